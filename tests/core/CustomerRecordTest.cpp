#include "accounts/CustomerRecord.h"
#include "store/StoreError.h"

#include <gtest/gtest.h>

using namespace ostrel;

namespace {

QByteArray padded(const char* text, int width) {
    QByteArray b(text);
    b.append(QByteArray(width - b.size(), ' '));
    return b;
}

CustomerRecord fullCustomer() {
    CustomerRecord c;
    c.SetAccountNumber(u"217-555-0791");
    c.SetBusinessName(u"Mr/Mrs Richard P. Goldsmith");
    c.SetAddress1(u"1642 Pine Rd");
    c.SetAddress2(u"Apt 4");
    c.SetCity(u"Rochester");
    c.SetServiceCity(u"Rochester");
    c.SetState(u"IL");
    c.SetPostalCode(u"62563");
    c.SetAddress4(u"62563");
    c.SetTelephone(u"217-555-0791");
    c.SetCellPhone(u"217-555-0792");
    c.SetEmail(u"rich@example.com");
    c.SetTitle(u"Mr/Mrs");
    c.SetFirstName(u"Richard");
    c.SetMiddleInitial(u"P");
    c.SetLastName(u"Goldsmith");
    c.SetAccountType(u"Individual");
    c.SetCustomerReserved(7);
    c.SetAssignedPointOfService(2);
    return c;
}

} // namespace

TEST(CustomerRecord, WritesEveryFieldAtItsOffsetBlankPadded) {
    const QByteArray expected = padded("217-555-0791", 20) + padded("Mr/Mrs Richard P. Goldsmith", 45) +
                                padded("1642 Pine Rd", 35) + padded("Apt 4", 25) + padded("Rochester", 25) +
                                padded("Rochester", 20) + "IL" + padded("62563", 10) + padded("62563", 25) +
                                "217-555-0791 " + "217-555-0792 " + padded("rich@example.com", 30) +
                                padded("Mr/Mrs", 10) + padded("Richard", 15) + "P" + padded("Goldsmith", 25) +
                                "Individual" + QByteArray("\x07\x00\x02\x00", 4);
    ASSERT_EQ(expected.size(), 328);
    EXPECT_EQ(fullCustomer().bytes(), expected);
}

TEST(CustomerRecord, ReadsBackEveryFieldAsStored) {
    const CustomerRecord c = fullCustomer();
    EXPECT_EQ(c.AccountNumber(), "217-555-0791        ");
    EXPECT_EQ(c.State(), "IL");
    EXPECT_EQ(c.MiddleInitial(), "P");
    EXPECT_EQ(c.AccountType(), "Individual");
    EXPECT_EQ(c.Email().size(), 30);
    EXPECT_EQ(c.CustomerReserved(), 7);
    EXPECT_EQ(c.AssignedPointOfService(), 2);
}

TEST(CustomerRecord, AnAccountNumberOfTwentyCharactersFillsTheFieldExactly) {
    CustomerRecord c;
    c.SetAccountNumber(u"ABCDEFGHIJKLMNOPQRST");
    EXPECT_EQ(c.bytes().left(20), QByteArray("ABCDEFGHIJKLMNOPQRST"));
    EXPECT_EQ(c.bytes().at(20), '\0'); // the next field is untouched
    EXPECT_EQ(c.AccountNumber(), "ABCDEFGHIJKLMNOPQRST");
}

TEST(CustomerRecord, ALongerAccountNumberIsCutOnStoring) {
    CustomerRecord c;
    c.SetAccountNumber(u"ABCDEFGHIJKLMNOPQRSTUVWXY");
    EXPECT_EQ(c.AccountNumber(), "ABCDEFGHIJKLMNOPQRST");
    EXPECT_EQ(c.bytes().mid(20, 5), QByteArray(5, '\0'));
}

TEST(CustomerRecord, ChangingOneFieldKeepsEveryOtherByteAsRead) {
    QByteArray raw(328, '\0');
    for (int i = 0; i < raw.size(); ++i)
        raw[i] = static_cast<char>(0x30 + i % 70);
    CustomerRecord c{Record(raw)};
    c.SetCity(u"Chatham");
    QByteArray expected = raw;
    expected.replace(125, 25, padded("Chatham", 25));
    EXPECT_EQ(c.bytes(), expected);
}

TEST(CustomerRecord, ARecordOfTheWrongLengthIsRefused) {
    EXPECT_THROW(CustomerRecord{Record(327)}, StoreError);
    EXPECT_THROW(CustomerRecord{Record(329)}, StoreError);
}

TEST(CustomerRecord, IsABusinessOnlyWhenTheTrimmedTypeSaysSo) {
    CustomerRecord c;
    c.SetAccountType(u"Business");
    EXPECT_TRUE(c.IsBusiness());
    c.SetAccountType(u"Individual");
    EXPECT_FALSE(c.IsBusiness());
    EXPECT_FALSE(CustomerRecord().IsBusiness()); // a record never written holds NULs
}

TEST(CustomerRecord, ANewAccountClearsThePersonAndKeepsServiceCityPostalAndPointOfService) {
    CustomerRecord c = fullCustomer();
    c.ClearForNewAccount();
    for (const auto& f :
         {CustomerRecord::kAccountNumber, CustomerRecord::kBusinessName, CustomerRecord::kAddress1,
          CustomerRecord::kAddress2, CustomerRecord::kCity, CustomerRecord::kState, CustomerRecord::kAddress4,
          CustomerRecord::kTelephone, CustomerRecord::kCellPhone, CustomerRecord::kEmail,
          CustomerRecord::kTitle, CustomerRecord::kFirstName, CustomerRecord::kMiddleInitial,
          CustomerRecord::kLastName})
        EXPECT_EQ(c.bytes().mid(f.offset, f.width), QByteArray(f.width, ' ')) << "offset " << f.offset;
    EXPECT_EQ(c.AccountType(), "Business  ");
    EXPECT_EQ(c.CustomerReserved(), 0);
    EXPECT_EQ(c.AssignedPointOfService(), 2);
    EXPECT_EQ(c.ServiceCity(), "Rochester           ");
    EXPECT_EQ(c.PostalCode(), "62563     ");
}
