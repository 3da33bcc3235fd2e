#include "setup/AddressStyle.h"
#include "setup/BusinessData.h"
#include "setup/NumericText.h"

#include <gtest/gtest.h>

using namespace ostrel;

namespace {
BusinessData withNameAndPostal(const QString& name, const QString& postal) {
    BusinessData d;
    d.txtBusiness[0] = name;
    d.txtBusiness[5] = postal;
    return d;
}
} // namespace

TEST(AddressStyle, NameAndAllDigitPostalCodeStartInUsaStyle) {
    EXPECT_EQ(DecideAddressStyle(withNameAndPostal("Ace Repair", "45402")), "USA Style Address");
}

TEST(AddressStyle, NameAndEmptyPostalCodeStartInInternationalStyle) {
    EXPECT_EQ(DecideAddressStyle(withNameAndPostal("Ace Repair", "")), "International Style Address");
}

TEST(AddressStyle, NameAndPostalCodeWithALetterStartInUsaStyleAsWell) {
    EXPECT_EQ(DecideAddressStyle(withNameAndPostal("Ace Repair", "K1A 0B1")), "USA Style Address");
}

TEST(AddressStyle, NoDataStartsInUsaStyle) {
    EXPECT_EQ(DecideAddressStyle(BusinessData{}), kUsaStyleAddress);
    EXPECT_TRUE(IsUsaStyle(DecideAddressStyle(BusinessData{})));
}

TEST(AddressStyle, NumericPostalCodeAloneStartsInUsaStyle) {
    EXPECT_EQ(DecideAddressStyle(withNameAndPostal("", "62704")), kUsaStyleAddress);
}

TEST(AddressStyle, NonNumericPostalCodeWithoutNameStartsInInternationalStyle) {
    EXPECT_EQ(DecideAddressStyle(withNameAndPostal("", "SW1A 1AA")), kInternationalStyleAddress);
    EXPECT_FALSE(IsUsaStyle(DecideAddressStyle(withNameAndPostal("", "SW1A 1AA"))));
}

TEST(AddressStyle, WhenNoTestAppliesTheCurrentCaptionIsToggled) {
    const BusinessData d = withNameAndPostal("", "SW1A 1AA");
    EXPECT_EQ(AddressCaptionByTests(d, kInternationalStyleAddress), kInternationalStyleAddress);
    EXPECT_EQ(DecideAddressStyle(d, kInternationalStyleAddress), kUsaStyleAddress);
}

TEST(AddressStyle, TheTestsSetTheOppositeOfTheStyleInForce) {
    EXPECT_EQ(AddressCaptionByTests(withNameAndPostal("Ace", "45402"), kUsaStyleAddress),
              kInternationalStyleAddress);
    EXPECT_EQ(AddressCaptionByTests(withNameAndPostal("Ace", ""), kInternationalStyleAddress),
              kUsaStyleAddress);
}

TEST(AddressStyle, ToggleGoesToUsaFromAnyOtherCaption) {
    EXPECT_EQ(ToggledAddressCaption(kUsaStyleAddress), kInternationalStyleAddress);
    EXPECT_EQ(ToggledAddressCaption(kInternationalStyleAddress), kUsaStyleAddress);
    EXPECT_EQ(ToggledAddressCaption(""), kUsaStyleAddress);
}

TEST(NumericText, AcceptsTheFormsAUserTypesANumberIn) {
    EXPECT_TRUE(IsNumericText("45402"));
    EXPECT_TRUE(IsNumericText(" 45402 "));
    EXPECT_TRUE(IsNumericText("$1,234.50"));
    EXPECT_TRUE(IsNumericText("-3.5"));
    EXPECT_TRUE(IsNumericText("3-"));
    EXPECT_TRUE(IsNumericText("(12.00)"));
    EXPECT_TRUE(IsNumericText(".5"));
    EXPECT_TRUE(IsNumericText("1E5"));
}

TEST(NumericText, RefusesTextThatIsNotANumber) {
    EXPECT_FALSE(IsNumericText(""));
    EXPECT_FALSE(IsNumericText("   "));
    EXPECT_FALSE(IsNumericText("45402-1234"));
    EXPECT_FALSE(IsNumericText("K1A 0B1"));
    EXPECT_FALSE(IsNumericText("1.2.3"));
    EXPECT_FALSE(IsNumericText("$"));
    EXPECT_FALSE(IsNumericText("1E"));
    EXPECT_FALSE(IsNumericText("12a"));
}
