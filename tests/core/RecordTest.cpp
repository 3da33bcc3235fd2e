#include "store/Cp1252.h"
#include "store/Record.h"

#include <gtest/gtest.h>

using namespace ostrel;

TEST(FixedString, IsBlankPaddedAndCutToWidth) {
    Record r(10);
    r.setText(0, 5, u"ab");
    r.setText(5, 5, u"abcdefgh");
    EXPECT_EQ(r.bytes(), QByteArray("ab   abcde"));
    EXPECT_EQ(r.text(0, 5), "ab   ");
}

TEST(FixedString, AFieldNeverWrittenReadsAsNuls) {
    Record r(8);
    r.setText(0, 4, u"abcd");
    const QString unwritten = r.text(4, 4);
    EXPECT_EQ(unwritten, QString(4, QChar(0)));
    EXPECT_EQ(unwritten.trimmed().size(), 4); // NULs are not blanks
}

TEST(Integers, AreLittleEndianAndSigned) {
    Record r(6);
    r.setInt16(0, -2);
    r.setInt32(2, 20260061);
    EXPECT_EQ(r.bytes(), QByteArray("\xFE\xFF\xDD\x24\x35\x01", 6));
    EXPECT_EQ(r.int16(0), -2);
    EXPECT_EQ(r.int32(2), 20260061);
}

TEST(Currency, CountsTenThousandths) {
    Record r(8);
    r.setCurrency(0, 452500); // 45.25
    EXPECT_EQ(r.bytes(), QByteArray("\x94\xE7\x06\x00\x00\x00\x00\x00", 8));
    EXPECT_EQ(r.currency(0), 452500);
}

TEST(Floats, SingleAndDoubleAreIeeeLittleEndian) {
    Record r(12);
    r.setSingle(0, 1.5f);
    r.setFloat64(4, -2.0);
    EXPECT_EQ(r.bytes(), QByteArray("\x00\x00\xC0\x3F\x00\x00\x00\x00\x00\x00\x00\xC0", 12));
    EXPECT_EQ(r.single(0), 1.5f);
    EXPECT_EQ(r.float64(4), -2.0);
}

TEST(Dates, CountDaysFrom30December1899) {
    Record r(8);
    r.setDate(0, QDate(1899, 12, 31));
    EXPECT_EQ(r.float64(0), 1.0);
    r.setDate(0, QDate(2026, 11, 22));
    EXPECT_EQ(r.float64(0), 46348.0);
    EXPECT_EQ(r.date(0), QDate(2026, 11, 22));
    r.setDateTime(0, QDateTime(QDate(1900, 1, 1), QTime(18, 0)));
    EXPECT_EQ(r.float64(0), 2.75);
    EXPECT_EQ(r.dateTime(0), QDateTime(QDate(1900, 1, 1), QTime(18, 0)));
}

TEST(Record, UntouchedBytesTravelThrough) {
    QByteArray raw("\x01\x02\x03\x04\x05\x06", 6);
    Record r(raw);
    r.setInt16(2, 0x0807);
    EXPECT_EQ(r.bytes(), QByteArray("\x01\x02\x07\x08\x05\x06", 6));
}

TEST(Cp1252, EveryByteReadsAndWritesBackUnchanged) {
    QByteArray all(256, '\0');
    for (int i = 0; i < 256; ++i) all[i] = static_cast<char>(i);
    EXPECT_EQ(cp1252::encode(cp1252::decode(all)), all);
    EXPECT_EQ(cp1252::decode("\x80"), QString(QChar(0x20AC)));
    EXPECT_EQ(cp1252::encode(QString(QChar(0x4E2D))), QByteArray("?"));
}

TEST(Cp1252, AHighByteReadsTheSameWhereverItStandsInALongText) {
    // Plain text is widened many bytes at a time; a byte of the high half may stand in any of those
    // blocks, or in the few bytes after the last one.
    for (const char high : {'\x80', '\x9f', '\xe9', '\xff'}) {
        for (int length = 1; length <= 40; ++length) {
            for (int at = 0; at < length; ++at) {
                QByteArray text(length, 'a');
                for (int i = 0; i < length; ++i) text[i] = static_cast<char>('A' + i % 26);
                text[at] = high;
                QString expected;
                for (const char b : text) expected += cp1252::decode(QByteArray(1, b));
                ASSERT_EQ(cp1252::decode(text), expected) << "length " << length << ", high byte at " << at;
            }
        }
    }
    EXPECT_EQ(cp1252::decode(QByteArray(33, 'z')), QString(33, u'z'));
    EXPECT_EQ(cp1252::decode(QByteArray()), QString());
}
