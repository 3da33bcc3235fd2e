#include "invoicing/AssociateJournal.h"
#include "store/Record.h"
#include "util/VbText.h"

#include <QtEndian>

#include <cstring>
#include <limits>

#include <gtest/gtest.h>

using namespace ostrel;

namespace {

// The journal's record read one field at a time through Record, each field by its own reader.
AssociateJournalRecord fieldByField(const Record& r) {
    AssociateJournalRecord j;
    j.Transaction = r.text(0, 30);
    j.Account = r.text(30, 20);
    j.JournalDate = r.dateTime(50).date();
    j.Associate = r.text(58, 25);
    j.SubTotal = Money::fromTenThousandths(r.currency(83));
    j.Tax = Money::fromTenThousandths(r.currency(91));
    j.Discount = Money::fromTenThousandths(r.currency(99));
    j.Gross = Money::fromTenThousandths(r.currency(107));
    return j;
}

Record raw(const QByteArray& transaction, double storedDate, const QByteArray& associate, qint64 sub, qint64 tax,
           qint64 discount, qint64 gross) {
    Record r(AssociateJournalRecord::kLength);
    QByteArray& b = r.bytes();
    b.replace(0, transaction.size(), transaction);
    b.replace(30, 8, "20269999");
    r.setFloat64(50, storedDate);
    b.replace(58, associate.size(), associate);
    r.setCurrency(83, sub);
    r.setCurrency(91, tax);
    r.setCurrency(99, discount);
    r.setCurrency(107, gross);
    return r;
}

QByteArray padded(const QByteArray& s, int width) { return s + QByteArray(width - s.size(), ' '); }

constexpr qint64 kMax = std::numeric_limits<qint64>::max();
constexpr qint64 kMin = std::numeric_limits<qint64>::min();

// 2026-01-01 is day 46023 after 1899-12-30.
constexpr double kJanuaryFirst = 46023;
constexpr double kDecemberLast = 46387;

QVector<Record> edgeRecords() {
    const double inf = std::numeric_limits<double>::infinity();
    return {
        raw(padded("First day midnight", 30), kJanuaryFirst, padded("Crew Two", 25), 100, 4, 0, 104),
        raw(padded("Last day late", 30), kDecemberLast + 0.9999, padded("Crew Two", 25), -250000, -10000, 0,
            -260000),
        raw(padded("Day before", 30), kJanuaryFirst - 0.0001, padded("  Crew Two", 25), kMax, 0, 0, kMax),
        raw(padded("Day after", 30), kDecemberLast + 1, padded("Crew Two", 25), kMin, 0, 0, kMin),
        raw(padded("Before the epoch", 30), -5.5, padded("Crew Two", 25), 1, 2, 3, 4),
        raw(padded("No date", 30), std::numeric_limits<double>::quiet_NaN(), padded("Crew Two", 25), 0, 0, 0, 0),
        raw(padded("Far date", 30), 3e6 + 1, padded("Crew Two", 25), 0, 0, 0, 0),
        raw(padded("Infinite date", 30), -inf, padded("Crew Two", 25), 0, 0, 0, 0),
        // A field never written: NULs, which are no blanks.
        raw(QByteArray(30, '\0'), kJanuaryFirst + 10, QByteArray(25, '\0'), 0, 0, 0, 0),
        raw(padded("Euro \x80 and \x81", 30), kJanuaryFirst + 11, padded("Cr\xe9w \x80", 25), 5, 5, 5, 5),
        raw(padded("Tabbed", 30), kJanuaryFirst + 12, padded("Crew Two\t", 25), 0, 0, 0, 0),
        raw(QByteArray(30, 'x'), kJanuaryFirst + 13, QByteArray(25, 'y'), 0, 0, 0, 0),
        raw(padded("Blank associate", 30), kJanuaryFirst + 14, QByteArray(25, ' '), 0, 0, 0, 0),
    };
}

QByteArray journalOf(const QVector<Record>& records) {
    QByteArray out;
    for (const Record& r : records) out += r.bytes();
    return out;
}

} // namespace

TEST(AssociateJournalBytes, EveryFieldReadsAsTheFieldByFieldReadOnEdgeValues) {
    const QVector<Record> records = edgeRecords();
    const AssociateJournalBytes journal(journalOf(records));
    ASSERT_EQ(journal.count(), records.size());
    for (qsizetype i = 0; i < records.size(); ++i) {
        SCOPED_TRACE(i);
        const AssociateJournalRecord old = fieldByField(records[i]);
        EXPECT_EQ(journal.record(i), old);
        EXPECT_EQ(AssociateJournalRecord::fromRecord(records[i]), old);
        EXPECT_EQ(journal.transaction(i), old.Transaction);
        EXPECT_EQ(journal.account(i), old.Account);
        EXPECT_EQ(journal.journalDate(i), old.JournalDate);
        EXPECT_EQ(journal.subTotal(i), old.SubTotal);
        EXPECT_EQ(journal.tax(i), old.Tax);
        EXPECT_EQ(journal.discount(i), old.Discount);
        EXPECT_EQ(journal.gross(i), old.Gross);
    }
    EXPECT_EQ(journal.journalDate(0), QDate(2026, 1, 1));
    EXPECT_EQ(journal.journalDate(1), QDate(2026, 12, 31));
    EXPECT_EQ(journal.journalDate(2), QDate(2025, 12, 31));
    EXPECT_EQ(journal.journalDate(4), QDate(1899, 12, 25));
    EXPECT_FALSE(journal.journalDate(5).isValid());
    EXPECT_FALSE(journal.journalDate(6).isValid());
    EXPECT_EQ(journal.subTotal(2).tenThousandths(), kMax);
    EXPECT_EQ(journal.gross(3).tenThousandths(), kMin);
}

TEST(AssociateJournalBytes, TheAssociateMatchesAsTheTrimmedTextCompares) {
    const QVector<Record> records = edgeRecords();
    const AssociateJournalBytes journal(journalOf(records));
    const QString names[] = {"Crew Two", "Cr\u00e9w \u20ac", "", QString(25, 'y'), "Crew Two\t", "Crew"};
    for (const QString& name : names) {
        const std::optional<QByteArray> key = AssociateJournalBytes::AssociateKey(name);
        ASSERT_TRUE(key.has_value()) << name.toStdString();
        for (qsizetype i = 0; i < records.size(); ++i) {
            const bool byText = vbTrim(fieldByField(records[i]).Associate) == name;
            EXPECT_EQ(journal.associateIs(i, *key), byText) << name.toStdString() << " record " << i;
        }
    }
    // The leading blanks of record 2 are trimmed as the trailing ones are.
    EXPECT_TRUE(journal.associateIs(2, *AssociateJournalBytes::AssociateKey("Crew Two")));
    EXPECT_FALSE(journal.associateIs(10, *AssociateJournalBytes::AssociateKey("Crew Two")));
    EXPECT_TRUE(journal.associateIs(12, *AssociateJournalBytes::AssociateKey("")));
}

TEST(AssociateJournalBytes, ANameTheCodePageCannotHoldMatchesNoRecord) {
    EXPECT_FALSE(AssociateJournalBytes::AssociateKey("Crew \u2603").has_value());
    EXPECT_EQ(AssociateJournalBytes::AssociateKey("Cr\u00e9w \u20ac"), QByteArray("Cr\xe9w \x80"));
}

TEST(AssociateJournalBytes, ACutLastRecordCountsAsTheRecordFilesCountWithZeros) {
    const QByteArray whole = edgeRecords().at(1).bytes();
    EXPECT_EQ(AssociateJournalBytes(whole + whole.left(57)).count(), 1);
    const AssociateJournalBytes two(whole + whole.left(100));
    ASSERT_EQ(two.count(), 2);
    EXPECT_EQ(two.transaction(1), two.transaction(0));
    EXPECT_EQ(two.journalDate(1), QDate(2026, 12, 31));
    EXPECT_EQ(two.gross(1), Money());
    EXPECT_EQ(AssociateJournalBytes(QByteArray()).count(), 0);
}

TEST(AssociateJournalBytes, TheStoredDayCountsFromTheEndOfEighteenNinetyNine) {
    EXPECT_EQ(AssociateJournalRecord::DayOf(0), QDate(1899, 12, 30));
    EXPECT_EQ(AssociateJournalRecord::DayOf(2.75), QDate(1900, 1, 1));
    EXPECT_EQ(AssociateJournalRecord::DayOf(-1.5), QDate(1899, 12, 29));
    EXPECT_EQ(AssociateJournalRecord::DayOf(3e6), QDate(1899, 12, 30).addDays(3000000));
    EXPECT_FALSE(AssociateJournalRecord::DayOf(3e6 + 1).isValid());
}
