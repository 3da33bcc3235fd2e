// The posted files of the legacy shop, read with this program's record layouts: every field must
// stand where our writers put it, and the files must agree with each other as posting makes them.
#include "TestDataRoot.h"
#include "catalogue/CustomItemRecord.h"
#include "catalogue/InventoriedItemRecord.h"
#include "invoicing/InvoiceImage.h"
#include "invoicing/PostingRecords.h"
#include "store/Money.h"

#include <QDir>

#include <gtest/gtest.h>

#include <map>
#include <set>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {

struct LegacyPosting : ::testing::Test {
    TestDataRoot t;
    std::map<QString, InvoiceImage> images;

    void SetUp() override {
        if (ostrel::test::legacyFixture().isEmpty()) GTEST_SKIP() << "legacy shop fixture not present";
        t.copyTree(ostrel::test::legacyFixture());
        for (const QString& file : QDir(t.full("/CompletedInvoices")).entryList({"*.txt"}, QDir::Files)) {
            const QString number = file.chopped(4);
            images.emplace(number, ReadInvoiceImage(t.disk(), number));
        }
        ASSERT_FALSE(images.empty());
    }

    static bool isShortDate(const QString& text) {
        return QDate::fromString(text.trimmed(), QStringLiteral("M/d/yyyy")).isValid();
    }
};

} // namespace

TEST_F(LegacyPosting, TheInvoiceNumberFileHoldsTheNumberAfterTheLastImage) {
    TextReader file = t.disk().ReadTextFile("/OIInvoiceNo.txt");
    bool ok = false;
    const qint64 next = file.readLine().toLongLong(&ok);
    ASSERT_TRUE(ok);
    EXPECT_GT(next, images.rbegin()->first.toLongLong());
}

TEST_F(LegacyPosting, EachLedgerStartsWithAPreviousBalanceAndItsInvoicesMatchTheirImages) {
    int matched = 0;
    for (const QString& file : QDir(t.full("/OIActiveAccounts")).entryList({"*.txt"}, QDir::Files)) {
        const auto records = ReadAllRecords(t.disk(), kLedgerFolder + u'/' + file, LedgerRecord::kLength);
        ASSERT_GE(records.size(), 2) << file.toStdString();
        const LedgerRecord first = LedgerRecord::fromRecord(records[0]);
        EXPECT_EQ(first.Comment.trimmed(), kPreviousBalance) << file.toStdString();
        EXPECT_EQ(first.Amount.trimmed(), "$0.00");
        EXPECT_EQ(first.Account.trimmed(), file.chopped(4));
        for (const Record& r : records.mid(1)) {
            const LedgerRecord entry = LedgerRecord::fromRecord(r);
            EXPECT_TRUE(isShortDate(entry.DateText)) << entry.DateText.toStdString();
            EXPECT_TRUE(Money::fromDisplayText(entry.Amount.trimmed()).has_value()) << entry.Amount.toStdString();
            const auto image = images.find(entry.Comment.trimmed());
            if (image == images.end()) continue;
            EXPECT_EQ(entry.Account.trimmed(), image->second.accountNo);
            EXPECT_EQ(entry.Name.trimmed(), image->second.customerName);
            // The amount is the grand total as it stood, cut at ten characters.
            EXPECT_EQ(entry.Amount.trimmed(), image->second.grandTotalText.left(LedgerRecord::kAmountWidth));
            ++matched;
        }
    }
    EXPECT_GT(matched, 0);
}

TEST_F(LegacyPosting, TaxRecordsNameTheirInvoiceAndHoldTheTaxOfItsImage) {
    const auto records = ReadAllRecords(t.disk(), TaxRecord::kFileName, TaxRecord::kLength);
    ASSERT_FALSE(records.isEmpty());
    int matched = 0;
    for (const Record& r : records) {
        const TaxRecord tax = TaxRecord::fromRecord(r);
        EXPECT_FALSE(tax.Heading.trimmed().isEmpty());
        EXPECT_TRUE(isShortDate(tax.DateText)) << tax.DateText.toStdString();
        const auto amount = Money::fromStatementText(tax.Amount.trimmed().toLatin1());
        ASSERT_TRUE(amount.has_value()) << tax.Amount.toStdString();
        // Our writer puts the same plain text back.
        EXPECT_EQ(amount->plainText(), tax.Amount.trimmed());
        const auto image = images.find(tax.InvoiceNo.trimmed());
        ASSERT_NE(image, images.end()) << tax.InvoiceNo.toStdString();
        const QString shown = FormatMoney(*amount);
        EXPECT_TRUE(shown == image->second.totals[1] || shown == image->second.totals[2])
            << tax.InvoiceNo.toStdString() << " " << shown.toStdString();
        ++matched;
    }
    EXPECT_EQ(matched, records.size());
}

TEST_F(LegacyPosting, SoldItemsAreCatalogueItemsOfPostedInvoicesWithTheirQuantities) {
    std::set<QString> catalogue;
    for (const Record& r : ReadAllRecords(t.disk(), InventoriedItemRecord::kFileName, InventoriedItemRecord::kLength))
        catalogue.insert(InventoriedItemRecord::fromRecord(r).Description.trimmed());
    for (const Record& r : ReadAllRecords(t.disk(), CustomItemRecord::kFileName, CustomItemRecord::kLength))
        catalogue.insert(CustomItemRecord::fromRecord(r).Description.trimmed());
    const auto records = ReadAllRecords(t.disk(), SoldItemRecord::kFileName, SoldItemRecord::kLength);
    ASSERT_FALSE(records.isEmpty());
    int onImages = 0;
    for (const Record& r : records) {
        const SoldItemRecord sold = SoldItemRecord::fromRecord(r);
        EXPECT_TRUE(catalogue.count(sold.Description.trimmed())) << sold.Description.toStdString();
        EXPECT_TRUE(sold.SoldOn.isValid());
        EXPECT_GT(sold.Quantity, 0);
        // Our writer gives the same bytes back.
        EXPECT_EQ(sold.toRecord().bytes(), r.bytes());
        const auto image = images.find(sold.InvoiceNo.trimmed());
        if (image == images.end()) continue;
        bool listed = false;
        for (const InvoiceImage::BodyLine& line : image->second.lines)
            listed = listed || (line[1].trimmed() == sold.Description.trimmed() &&
                                line[0].trimmed().toInt() == sold.Quantity);
        EXPECT_TRUE(listed) << sold.InvoiceNo.toStdString() << " " << sold.Description.toStdString();
        ++onImages;
    }
    EXPECT_GT(onImages, 0);
}

TEST_F(LegacyPosting, LedgerAndTaxRecordsReadBackToTheirOwnBytes) {
    for (const Record& r : ReadAllRecords(t.disk(), TaxRecord::kFileName, TaxRecord::kLength))
        EXPECT_EQ(TaxRecord::fromRecord(r).toRecord().bytes(), r.bytes());
    for (const QString& file : QDir(t.full("/OIActiveAccounts")).entryList({"*.txt"}, QDir::Files))
        for (const Record& r : ReadAllRecords(t.disk(), kLedgerFolder + u'/' + file, LedgerRecord::kLength))
            EXPECT_EQ(LedgerRecord::fromRecord(r).toRecord().bytes(), r.bytes());
}
