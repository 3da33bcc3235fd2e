#include "TestDataRoot.h"
#include "invoicing/AssociateJournal.h"
#include "store/Record.h"

#include <QFile>
#include <QtEndian>

#include <cstring>

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {

AssociateJournalRecord sale(const QString& name, const QString& number, QDate date, const QString& associate,
                            qint64 sub, qint64 tax, qint64 gross) {
    AssociateJournalRecord r;
    r.Transaction = name;
    r.Account = number;
    r.JournalDate = date;
    r.Associate = associate;
    r.SubTotal = Money::fromTenThousandths(sub);
    r.Tax = Money::fromTenThousandths(tax);
    r.Gross = Money::fromTenThousandths(gross);
    return r;
}

QByteArray le64(qint64 v) {
    QByteArray b(8, '\0');
    qToLittleEndian(v, b.data());
    return b;
}
QByteArray leDouble(double v) {
    QByteArray b(8, '\0');
    quint64 bits;
    std::memcpy(&bits, &v, 8);
    qToLittleEndian(bits, b.data());
    return b;
}
QByteArray padded(const QByteArray& s, int width) { return s + QByteArray(width - s.size(), ' '); }

} // namespace

TEST(AssociateJournal, RecordFieldsStandAtTheirOffsetsByteForByte) {
    const AssociateJournalRecord r =
        sale("Ms Zo\u00eb Miller", "20260001", QDate(2026, 2, 15), "Crew Two", 889200, 21200, 910400);
    // 2026-02-15 is day 46068 after 1899-12-30.
    const QByteArray expected = padded("Ms Zo\xeb Miller", 30) + padded("20260001", 20) + leDouble(46068.0) +
                                padded("Crew Two", 25) + le64(889200) + le64(21200) + le64(0) + le64(910400);
    ASSERT_EQ(expected.size(), 115);
    EXPECT_EQ(r.toRecord().bytes(), expected);
    const AssociateJournalRecord back = AssociateJournalRecord::fromRecord(Record(expected));
    // Texts come back blank-padded to their widths, as the file holds them.
    EXPECT_EQ(back.Transaction, QString("Ms Zo\u00eb Miller") + QString(17, QChar(0x20)));
    EXPECT_EQ(back.Account.trimmed(), "20260001");
    EXPECT_EQ(back.Associate, "Crew Two" + QString(17, ' '));
    EXPECT_EQ(back.JournalDate, QDate(2026, 2, 15));
    EXPECT_EQ(back.SubTotal.tenThousandths(), 889200);
    EXPECT_EQ(back.Tax.tenThousandths(), 21200);
    EXPECT_EQ(back.Discount.tenThousandths(), 0);
    EXPECT_EQ(back.Gross.tenThousandths(), 910400);
    EXPECT_EQ(back.toRecord().bytes(), expected);
}

TEST(AssociateJournal, TextsAreCutAtTheirWidths) {
    AssociateJournalRecord r = sale(QString(40, 'x'), QString(25, '9'), QDate(2026, 1, 1), QString(30, 'a'), 0, 0, 0);
    const AssociateJournalRecord back = AssociateJournalRecord::fromRecord(r.toRecord());
    EXPECT_EQ(back.Transaction, QString(30, 'x'));
    EXPECT_EQ(back.Account, QString(20, '9'));
    EXPECT_EQ(back.Associate, QString(25, 'a'));
}

TEST(AssociateJournal, AppendStartsAMissingFileAndAddsAfterTheLastRecord) {
    TestDataRoot t;
    EXPECT_TRUE(ReadAssociateJournal(t.disk()).isEmpty());
    const auto a = sale("A", "1", QDate(2026, 3, 1), "Crew One", 10000, 500, 10500);
    const auto b = sale("B", "2", QDate(2026, 3, 2), "Crew Two", -20000, 0, -20000);
    AddJournalRecord(t.disk(), a);
    AddJournalRecord(t.disk(), b);
    EXPECT_EQ(t.readBytes("/AssociateJournal.txt").size(), 230);
    EXPECT_EQ(t.readBytes("/AssociateJournal.txt"), a.toRecord().bytes() + b.toRecord().bytes());
    const auto all = ReadAssociateJournal(t.disk());
    ASSERT_EQ(all.size(), 2);
    EXPECT_EQ(all[0].toRecord().bytes(), a.toRecord().bytes());
    EXPECT_EQ(all[1].toRecord().bytes(), b.toRecord().bytes());
    EXPECT_EQ(all[1].Gross.tenThousandths(), -20000);
    EXPECT_EQ(t.disk().OpenChannelCount(), 0);
}

TEST(AssociateJournal, ALastRecordAtLeastHalfThereCountsWithItsMissingBytesZero) {
    const auto a = sale("A", "1", QDate(2026, 3, 1), "Crew One", 10000, 500, 10500);
    const QByteArray whole = a.toRecord().bytes();
    EXPECT_EQ(AssociateJournalFromBytes(whole + whole.left(57)).size(), 1);
    const auto two = AssociateJournalFromBytes(whole + whole.left(100));
    ASSERT_EQ(two.size(), 2);
    EXPECT_EQ(two[1].Transaction.trimmed(), a.Transaction);
    EXPECT_EQ(two[1].Gross.tenThousandths(), 0);
}

TEST(AssociateJournal, ReadsTheLegacyJournal) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    QFile f(ostrel::test::legacyFixture() + "/AssociateJournal.txt");
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray bytes = f.readAll();
    ASSERT_EQ(bytes.size() % 115, 0);
    const auto all = AssociateJournalFromBytes(bytes);
    ASSERT_EQ(all.size(), bytes.size() / 115);
    EXPECT_EQ(all[0].Transaction.trimmed(), "Ms Zo\u00eb Miller");
    EXPECT_EQ(all[0].Account.trimmed(), "20260001");
    EXPECT_EQ(all[0].JournalDate, QDate(2026, 2, 15));
    EXPECT_EQ(all[0].Associate.trimmed(), "Crew Two");
    EXPECT_EQ(all[0].Discount.tenThousandths(), 0);
    EXPECT_EQ(all[0].Gross, all[0].SubTotal + all[0].Tax);
    // Written again, every record gives back its bytes.
    QByteArray again;
    for (const auto& r : all) again += r.toRecord().bytes();
    EXPECT_EQ(again, bytes);
}
