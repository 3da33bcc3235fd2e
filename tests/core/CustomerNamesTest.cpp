#include "accounts/CustomerNames.h"
#include "accounts/CustomerRecord.h"

#include <gtest/gtest.h>

using namespace ostrel;

TEST(ComposeName, JoinsTitleFirstInitialAndLast) {
    EXPECT_EQ(ComposeName("Mr.", "John", "Q", "Public"), "Mr. John Q. Public");
}

TEST(ComposeName, TrimsEachPartAndLeavesOutEmptyOnes) {
    EXPECT_EQ(ComposeName("  ", " John ", "", " Public  "), "John Public");
    EXPECT_EQ(ComposeName("Ms", "", "", "Smith"), "Ms Smith");
    EXPECT_EQ(ComposeName("", "", "R", "Smith"), "R. Smith");
}

TEST(ComposeName, KeepsATrailingBlankWhenTheLastNameIsEmpty) {
    EXPECT_EQ(ComposeName("Mr.", "John", "", ""), "Mr. John ");
    EXPECT_EQ(ComposeName("", "", "Q", ""), "Q. ");
}

TEST(ComposeName, OfNothingIsEmpty) {
    EXPECT_EQ(ComposeName("", " ", "", ""), "");
}

TEST(ComposeName, OfARecordUsesItsNameFields) {
    CustomerRecord c;
    c.SetTitle(u"Mrs");
    c.SetFirstName(u"Ann");
    c.SetMiddleInitial(u" ");
    c.SetLastName(u"Lee");
    EXPECT_EQ(ComposeName(c), "Mrs Ann Lee");
}

TEST(AccountListName, ShowsABusinessByItsTrimmedName) {
    CustomerRecord c;
    c.SetAccountType(u"Business");
    c.SetBusinessName(u"  Prairie Bakery");
    c.SetLastName(u"Ignored");
    EXPECT_EQ(AccountListName(c), "Prairie Bakery");
}

TEST(AccountListName, ShowsAPersonLastNameFirstWithTheInitial) {
    CustomerRecord c;
    c.SetAccountType(u"Individual");
    c.SetFirstName(u"Richard");
    c.SetMiddleInitial(u"P");
    c.SetLastName(u"Goldsmith");
    EXPECT_EQ(AccountListName(c), "Goldsmith, Richard P");
}

TEST(AccountListName, APersonWithoutAnInitialEndsInTwoBlanks) {
    CustomerRecord c;
    c.SetAccountType(u"Individual");
    c.SetFirstName(u"Ann");
    c.SetMiddleInitial(u"");
    c.SetLastName(u"Lee");
    EXPECT_EQ(AccountListName(c), "Lee, Ann  ");
}

TEST(SearchResultName, IsTheBusinessNameOrTheComposedName) {
    CustomerRecord c;
    c.SetAccountType(u"Business");
    c.SetBusinessName(u"Lakeside Dental");
    EXPECT_EQ(SearchResultName(c), "Lakeside Dental");
    c.SetAccountType(u"Individual");
    c.SetTitle(u"Ms");
    c.SetFirstName(u"Zoë");
    c.SetMiddleInitial(u"M");
    c.SetLastName(u"Smithson");
    EXPECT_EQ(SearchResultName(c), "Ms Zoë M. Smithson");
}
