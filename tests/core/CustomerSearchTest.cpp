#include "TestDataRoot.h"
#include "accounts/CustomerStore.h"

#include <gtest/gtest.h>

#include <vector>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {

CustomerRecord customer(const QString& account, const QString& type, const QString& name,
                        const QString& first, const QString& last, const QString& phone = QString(),
                        const QString& city = QString()) {
    CustomerRecord c;
    c.SetAccountNumber(account);
    c.SetAccountType(type);
    c.SetBusinessName(name);
    c.SetTitle(u"");
    c.SetFirstName(first);
    c.SetMiddleInitial(u"");
    c.SetLastName(last);
    c.SetTelephone(phone);
    c.SetCity(city);
    return c;
}

CustomerRecord person(const QString& account, const QString& first, const QString& last,
                      const QString& phone = QString(), const QString& city = QString()) {
    return customer(account, "Individual", QString(), first, last, phone, city);
}

CustomerRecord business(const QString& account, const QString& name, const QString& phone = QString()) {
    return customer(account, "Business", name, QString(), QString(), phone);
}

struct Shop {
    TestDataRoot t;
    CustomerBuffers buffers;
    CustomerStore store{t.disk(), buffers};

    explicit Shop(const std::vector<CustomerRecord>& customers) {
        if (customers.empty()) return;
        store.OpenCustomerFile();
        int r = 0;
        for (const CustomerRecord& c : customers) {
            buffers.customer = c;
            store.WriteCustomer(++r);
        }
        t.disk().CloseAllFiles();
        buffers.customer = CustomerRecord();
    }
};

std::vector<int> records(const QVector<CustomerSearchHit>& hits) {
    std::vector<int> out;
    for (const auto& h : hits)
        out.push_back(h.recordNumber);
    return out;
}

} // namespace

TEST(FindAccountElsewhere, FindsAnotherRecordWithTheSameTrimmedAccount) {
    Shop s({person("100", "A", "B"), person("200", "C", "D"), person("300", "E", "F")});
    EXPECT_TRUE(s.store.FindAccountElsewhere("200", 1));
    EXPECT_FALSE(s.store.FindAccountElsewhere("400", 1));
    EXPECT_EQ(s.t.disk().OpenChannelCount(), 0);
}

TEST(FindAccountElsewhere, SkipsTheCurrentRecord) {
    Shop s({person("100", "A", "B"), person("200", "C", "D")});
    EXPECT_FALSE(s.store.FindAccountElsewhere("200", 2));
    EXPECT_TRUE(s.store.FindAccountElsewhere("200", 1));
}

TEST(FindAccountElsewhere, ComparesExactlyWithCaseAndInnerText) {
    Shop s({person("AB-1", "A", "B"), person("x", "C", "D")});
    EXPECT_FALSE(s.store.FindAccountElsewhere("ab-1", 2));
    EXPECT_FALSE(s.store.FindAccountElsewhere("AB-", 2));
    EXPECT_FALSE(s.store.FindAccountElsewhere(" AB-1", 2)); // the candidate is taken as given
    EXPECT_TRUE(s.store.FindAccountElsewhere("AB-1", 2));
}

TEST(FindAccountElsewhere, TheFirstEqualRecordEndsTheScanAndStaysInTheBuffer) {
    Shop s({person("100", "A", "B"), person("200", "First", "D"), person("200", "Second", "F"),
            person("400", "G", "H")});
    EXPECT_TRUE(s.store.FindAccountElsewhere("200", 1));
    EXPECT_EQ(s.buffers.customer.FirstName().trimmed(), "First");
}

TEST(FindAccountElsewhere, OverwritesTheBufferWithTheLastRecordRead) {
    Shop s({person("100", "A", "B"), person("200", "C", "D"), person("300", "E", "Last")});
    s.buffers.customer = person("new", "Being", "Typed");
    EXPECT_FALSE(s.store.FindAccountElsewhere("new", 0));
    EXPECT_EQ(s.buffers.customer.LastName().trimmed(), "Last");
    // The current record is skipped, not read.
    EXPECT_FALSE(s.store.FindAccountElsewhere("new", 3));
    EXPECT_EQ(s.buffers.customer.LastName().trimmed(), "D");
}

TEST(FindAccountElsewhere, ALongAccountIsComparedFromTheBoxAgainstTheCutTextOnFile) {
    const QString twenty = "ABCDEFGHIJKLMNOPQRST";
    const QString longer = twenty + "UVW";
    Shop s({person(twenty, "A", "B"), person(longer, "C", "D")});
    // Exactly 20 characters fill the field and are found again.
    EXPECT_TRUE(s.store.FindAccountElsewhere(twenty, 3));
    // The longer one was cut on storing, so it no longer matches itself on file...
    EXPECT_FALSE(s.store.FindAccountElsewhere(longer, 3));
    // ...but its cut form now duplicates the 20-character account.
    EXPECT_TRUE(s.store.FindAccountElsewhere(twenty, 1));
}

TEST(FindAccountElsewhere, WithoutACustomerFileFindsNothingAndMakesNoFile) {
    Shop s({});
    EXPECT_FALSE(s.store.FindAccountElsewhere("100", 1));
    EXPECT_FALSE(s.t.isFile("/CustomerData.txt"));
}

TEST(SearchCustomers, ByLastNameFindsTheTextAnywhereWithoutRegardToCase) {
    Shop s({person("1", "Zoe", "SMITHSON"), person("2", "Ann", "Jones"), person("3", "Bob", "Goldsmith"),
            person("4", "Cy", "Smit")});
    int found = -1;
    const auto hits = s.store.SearchCustomers(CustomerStore::ByLastName, "smith", false, found);
    EXPECT_EQ(found, 2);
    EXPECT_EQ(records(hits), (std::vector<int>{1, 3}));
}

TEST(SearchCustomers, TrimsAndUpperCasesTheSearchText) {
    Shop s({business("1", "Prairie Bakery"), business("2", "Lakeside Dental")});
    int found = 0;
    EXPECT_EQ(records(s.store.SearchCustomers(CustomerStore::ByBusinessName, "  bakery ", false, found)),
              (std::vector<int>{1}));
    EXPECT_EQ(found, 1);
}

TEST(SearchCustomers, HitsStayInFileOrderWithNameTelephoneAndRecordNumber) {
    Shop s({person("1", "Ann", "Lee", "555-0001"), business("2", "Lee Plumbing", "555-0002"),
            person("3", "Bo", "Leeds", " 555-0003")});
    s.t.writeBytes("/Unrelated.txt", "x");
    int found = 0;
    const auto hits = s.store.SearchCustomers(CustomerStore::ByAddress1, "", true, found);
    ASSERT_EQ(found, 3);
    EXPECT_EQ(hits[0].name, "Ann Lee");
    EXPECT_EQ(hits[0].telephone, "555-0001");
    EXPECT_EQ(hits[0].recordNumber, 1);
    EXPECT_EQ(hits[1].name, "Lee Plumbing");
    EXPECT_EQ(hits[1].recordNumber, 2);
    EXPECT_EQ(hits[2].name, "Bo Leeds");
    EXPECT_EQ(hits[2].telephone, "555-0003");
}

TEST(SearchCustomers, EachOptionSearchesItsOwnField) {
    CustomerRecord c = person("ACC-77", "Ann", "Lastname", "217-555-1234", "Springfield");
    c.SetBusinessName(u"Bizname");
    c.SetAddress1(u"12 Oak Ave");
    c.SetAddress2(u"PO Box 9");
    c.SetState(u"IL");
    c.SetAddress4(u"62701");
    Shop s({person("other", "X", "Y"), c});
    const std::vector<std::pair<int, QString>> probes{
        {CustomerStore::ByBusinessName, "bizn"}, {CustomerStore::ByAddress1, "oak"},
        {CustomerStore::ByAddress2, "box"},      {CustomerStore::ByCity, "field"},
        {CustomerStore::ByState, "il"},          {CustomerStore::ByAddress4, "627"},
        {CustomerStore::ByTelephone, "1234"},    {CustomerStore::ByLastName, "lastn"},
        {CustomerStore::ByAccountNumber, "c-7"},
    };
    for (const auto& [field, text] : probes) {
        int found = 0;
        EXPECT_EQ(records(s.store.SearchCustomers(field, text, false, found)), (std::vector<int>{2}))
            << "field " << field;
        // The same text in another option's field is no hit.
        const int other = field == CustomerStore::ByAccountNumber ? CustomerStore::ByBusinessName : field + 1;
        if (field != CustomerStore::ByAddress4 && field != CustomerStore::ByState) {
            EXPECT_EQ(s.store.SearchCustomers(other, text, false, found).size(), 0) << "field " << other;
        }
    }
}

TEST(SearchCustomers, NoHitLeavesFoundAtZero) {
    Shop s({person("1", "Ann", "Lee")});
    int found = 9;
    EXPECT_TRUE(s.store.SearchCustomers(CustomerStore::ByLastName, "zzz", false, found).isEmpty());
    EXPECT_EQ(found, 0);
}

TEST(SearchCustomers, ListAllTakesEveryRecordWhateverTheField) {
    Shop s({person("1", "Ann", "Lee"), person("2", "Bo", "Ray")});
    int found = 0;
    EXPECT_EQ(records(s.store.SearchCustomers(10, "ignored", true, found)), (std::vector<int>{1, 2}));
    EXPECT_TRUE(s.store.SearchCustomers(10, "Lee", false, found).isEmpty()); // no such option
}

TEST(SearchCustomers, LeavesTheLastRecordInTheBuffer) {
    Shop s({person("1", "Ann", "Lee"), person("2", "Bo", "Ray")});
    int found = 0;
    s.store.SearchCustomers(CustomerStore::ByLastName, "lee", false, found);
    EXPECT_EQ(s.buffers.customer.LastName().trimmed(), "Ray");
}

TEST(SearchCustomers, ComparesAccentedLettersInUpperCase) {
    Shop s({person("1", "Robert", "Núñez"), person("2", "Ann", "Nunez")});
    int found = 0;
    EXPECT_EQ(records(s.store.SearchCustomers(CustomerStore::ByLastName, "núñ", false, found)),
              (std::vector<int>{1}));
}

TEST(SearchCustomers, WithoutACustomerFileFindsNothingAndMakesNoFile) {
    Shop s({});
    int found = 3;
    EXPECT_TRUE(s.store.SearchCustomers(CustomerStore::ByLastName, "a", true, found).isEmpty());
    EXPECT_EQ(found, 0);
    EXPECT_FALSE(s.t.isFile("/CustomerData.txt"));
}

TEST(AccountList, GivesEveryCustomerItsListNameTrimmedCityAndRecordNumber) {
    Shop s({person("1", "Ann", "Lee", "", "Chatham"), business("2", "Prairie Bakery")});
    const auto list = s.store.ReadAccountList();
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(list[0].listName, "Lee, Ann  ");
    EXPECT_EQ(list[0].city, "Chatham");
    EXPECT_EQ(list[0].recordNumber, 1);
    EXPECT_EQ(list[1].listName, "Prairie Bakery");
    EXPECT_EQ(list[1].city, "");
    EXPECT_EQ(list[1].recordNumber, 2);
    EXPECT_EQ(s.buffers.customer.BusinessName().trimmed(), "Prairie Bakery");
}
