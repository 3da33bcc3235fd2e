#include "accounts/ContractInfoRecord.h"
#include "store/StoreError.h"

#include <gtest/gtest.h>

using namespace ostrel;

namespace {
QByteArray padded(const char* text, int width) {
    QByteArray b(text);
    b.append(QByteArray(width - b.size(), ' '));
    return b;
}
QByteArray blanks(int n) {
    return QByteArray(n, ' ');
}
QByteArray zeros(int n) {
    return QByteArray(n, '\0');
}
} // namespace

TEST(ContractInfoRecord, DefaultsAreWrittenAtTheirOffsetsByteForByte) {
    ContractInfoRecord c;
    c.ResetToDefaults(QDate(2026, 11, 18)); // a Wednesday, 46,344 days after 1899-12-30
    const QByteArray today("\x00\x00\x00\x00\x00\xa1\xe6\x40", 8);
    const QByteArray expected = padded("None Selected", 35) + padded("None", 15) + zeros(8) + "Wednesday" +
                                padded("None Selected", 40) + today + today + zeros(2) +
                                QByteArray("\xff\xff", 2) + zeros(2) + padded("None", 20) + blanks(20) +
                                blanks(30) + zeros(35) + blanks(25) + blanks(20) + blanks(2) + blanks(10) +
                                blanks(13) + blanks(30) + zeros(2) + blanks(50);
    ASSERT_EQ(expected.size(), 386);
    EXPECT_EQ(c.bytes(), expected);
}

TEST(ContractInfoRecord, TheNeverSetTextKeepsWhatTheBufferLastRead) {
    QByteArray raw(386, 'x');
    ContractInfoRecord c{Record(raw)};
    c.ResetToDefaults(QDate(2026, 11, 20));
    EXPECT_EQ(c.bytes().mid(ContractInfoRecord::kNeverSetOffset, 35), QByteArray(35, 'x'));
    EXPECT_EQ(c.bytes().mid(58, 9), QByteArray("Friday   "));
    EXPECT_EQ(c.record().date(107), QDate(2026, 11, 20));
    EXPECT_EQ(c.record().date(115), QDate(2026, 11, 20));
}

TEST(ContractInfoRecord, LayoutCoversTheRecordWithoutGapOrOverlap) {
    int next = 0;
    for (const ReservedField& f : ContractInfoRecord::kLayout) {
        EXPECT_EQ(f.offset, next);
        next = f.offset + f.width;
    }
    EXPECT_EQ(next, ContractInfoRecord::kLength);
}

TEST(ContractInfoRecord, ARecordOfTheWrongLengthIsRefused) {
    EXPECT_THROW(ContractInfoRecord{Record(385)}, StoreError);
}

TEST(ContractInfoRecord, WeekdayNamesAreFullEnglishNames) {
    EXPECT_EQ(WeekdayName(QDate(2026, 11, 16)), "Monday");
    EXPECT_EQ(WeekdayName(QDate(2026, 11, 22)), "Sunday");
    EXPECT_EQ(WeekdayName(QDate()), "");
}
