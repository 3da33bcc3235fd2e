#include "store/StoreError.h"
#include "store/TextStatements.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

using namespace ostrel;

TEST(QuotedWrite, WritesEveryValueKindInItsForm) {
    TextWriter w;
    w.write({QString("Crew One"), qint64(5), true, false, QDate(2026, 12, 25), NullValue{}, EmptyValue{},
             QString()});
    EXPECT_EQ(w.bytes(), QByteArray("\"Crew One\",5,#TRUE#,#FALSE#,#2026-12-25#,#NULL#,,\"\"\r\n"));
}

TEST(QuotedWrite, NumbersAreBareAndShortest) {
    EXPECT_EQ(TextWriter::formatNumber(0), "0");
    EXPECT_EQ(TextWriter::formatNumber(1440), "1440");
    EXPECT_EQ(TextWriter::formatNumber(-3), "-3");
    EXPECT_EQ(TextWriter::formatNumber(6.25), "6.25");
    EXPECT_EQ(TextWriter::formatNumber(0.5), ".5");
    EXPECT_EQ(TextWriter::formatNumber(-0.75), "-.75");
    EXPECT_EQ(TextWriter::formatNumber(0.1), ".1");
    EXPECT_EQ(TextWriter::formatNumber(1e20), "1E+20");
}

TEST(QuotedWrite, TimesAndDateTimes) {
    TextWriter w;
    w.write({QTime(9, 5, 0), QDateTime(QDate(2026, 1, 2), QTime(13, 30, 15))});
    EXPECT_EQ(w.bytes(), QByteArray("#09:05:00#,#2026-01-02 13:30:15#\r\n"));
}

TEST(QuotedWrite, DoesNotEscapeADoubleQuote) {
    TextWriter w;
    w.writeString("say \"hi\"");
    EXPECT_EQ(w.bytes(), QByteArray("\"say \"hi\"\"\r\n"));
}

TEST(QuotedWrite, StringsAreWindows1252) {
    TextWriter w;
    w.writeString(QString::fromUtf8("Zoë Núñez €5"));
    EXPECT_EQ(w.bytes(), QByteArray("\"Zo\xEB N\xFA\xF1" "ez \x80" "5\"\r\n"));
}

TEST(PrintStatement, WritesTheTextAsItStands) {
    TextWriter w;
    w.print("[InternetShortcut]").print("No \"quotes\" added, ok");
    EXPECT_EQ(w.bytes(), QByteArray("[InternetShortcut]\r\nNo \"quotes\" added, ok\r\n"));
}

TEST(FieldRead, ALineEndSeparatesFieldsLikeAComma) {
    TextReader r("\"a\",\"b\"\r\n\"c\"\r\n", "/x");
    EXPECT_EQ(r.readString(), "a");
    EXPECT_EQ(r.readString(), "b");
    EXPECT_EQ(r.readString(), "c");
    EXPECT_TRUE(r.atEnd());
}

TEST(FieldRead, TwoOneFieldWritesMeetOneTwoFieldRead) {
    TextWriter w;
    w.write({QString("x"), qint64(3)});
    TextReader r(w.bytes(), "/x");
    EXPECT_EQ(r.readString(), "x");
    EXPECT_EQ(r.readInteger(), 3);
    EXPECT_TRUE(r.atEnd());
}

TEST(FieldRead, AnUnquotedFieldLosesLeadingBlanks) {
    TextReader r("   12,  abc def  \r\n", "/x");
    EXPECT_EQ(r.readInteger(), 12);
    EXPECT_EQ(r.readString(), "abc def  ");
}

TEST(FieldRead, ADoubleQuoteInsideAStringEndsTheField) {
    TextWriter w;
    w.writeString("say \"hi\" there");
    w.writeString("next");
    TextReader r(w.bytes(), "/x");
    EXPECT_EQ(r.readString(), "say ");
    EXPECT_EQ(r.readString(), "next");
}

TEST(FieldRead, ReadsBooleansDatesNullAndEmpty) {
    TextReader r("#TRUE#,#FALSE#,#2026-12-25#,#NULL#,,\"\"\r\n", "/x");
    EXPECT_TRUE(r.readBoolean());
    EXPECT_FALSE(r.readBoolean());
    EXPECT_EQ(r.readDate(), QDate(2026, 12, 25));
    EXPECT_TRUE(r.readField().isNull());
    const TextField empty = r.readField();
    EXPECT_TRUE(empty.raw.isEmpty());
    EXPECT_FALSE(empty.quoted);
    EXPECT_EQ(r.readString(), "");
    EXPECT_TRUE(r.atEnd());
}

TEST(FieldRead, DatesReadAsTheDateParserReadsThemInEveryForm) {
    const auto parsed = [](const QByteArray& text) {
        QDate d = QDate::fromString(QString::fromLatin1(text.left(10)), u"yyyy-MM-dd");
        if (!d.isValid()) d = QDate::fromString(QString::fromLatin1(text), u"M/d/yyyy");
        return d;
    };
    for (QDate d(1999, 1, 1); d <= QDate(2031, 12, 31); d = d.addDays(1)) {
        const QByteArray text = d.toString(Qt::ISODate).toLatin1();
        TextReader r("#" + text + "#\r\n", "/x");
        ASSERT_EQ(r.readDate(), d) << text.constData();
    }
    for (const QByteArray& text : {QByteArray("2026-02-30"), QByteArray("2026-13-01"), QByteArray("0000-01-01"),
                                  QByteArray("2026-1-5"), QByteArray("2026-11-27 10:30:00"), QByteArray("11/27/2026"),
                                  QByteArray("2026-11-2x"), QByteArray("+026-11-27"), QByteArray("2026/11/27"),
                                  QByteArray("12/31/1999"), QByteArray("")}) {
        TextReader r("#" + text + "#\r\n", "/x");
        EXPECT_EQ(r.readDate(), parsed(text)) << text.constData();
    }
    TextReader cut("#2026-02-30#\r\n", "/x");
    EXPECT_FALSE(cut.readDate().isValid());
}

TEST(FieldRead, WholeNumbersReadAsTheGeneralConversionReadsThem) {
    const auto general = [](const QByteArray& text) {
        const QByteArray t = text.trimmed();
        bool ok = false;
        const double d = t.toDouble(&ok);
        if (ok) return d;
        char* end = nullptr;
        const double lead = std::strtod(t.constData(), &end);
        return end == t.constData() ? 0.0 : lead;
    };
    QList<QByteArray> texts = {"0", "-0", "007", " 12 ", "-5", "123456789012345", "-999999999999999",
                               "1234567890123456", "12a", "1.5", "-", "", "1e3", "+7", "- 3", "99999999999999999999"};
    for (int n = -1000; n <= 1000; ++n)
        texts << QByteArray::number(n);
    for (const QByteArray& text : texts) {
        TextReader r(text + "\r\n", "/x");
        const double got = r.readNumber();
        const double want = general(text);
        EXPECT_EQ(got, want) << text.constData();
        EXPECT_EQ(std::signbit(got), std::signbit(want)) << text.constData();
    }
}

TEST(FieldRead, TrueReadIntoANumberIsMinusOne) {
    TextReader r("#TRUE#,#FALSE#\r\n", "/x");
    EXPECT_EQ(r.readInteger(), -1);
    EXPECT_EQ(r.readInteger(), 0);
}

TEST(FieldRead, PastTheEndIsAnErrorNamingTheFile) {
    TextReader r("\"a\"\r\n", "/LastPurged.txt");
    r.readString();
    try {
        r.readString();
        FAIL();
    } catch (const StoreError& e) {
        EXPECT_EQ(e.file(), "/LastPurged.txt");
    }
}

TEST(LineRead, ReadsUpToTheLineEndWithoutIt) {
    TextReader r("first, with comma\r\n\"quoted\"\r\nlast", "/x");
    EXPECT_EQ(r.readLine(), "first, with comma");
    EXPECT_EQ(r.readLine(), "\"quoted\"");
    EXPECT_EQ(r.readLine(), "last");
    EXPECT_TRUE(r.atEnd());
}

TEST(FieldRead, ReadsWindows1252) {
    TextReader r(QByteArray("\"Ren\xE9" "e \x93ok\x94\"\r\n"), "/x");
    EXPECT_EQ(r.readString(), QString::fromUtf8("Renée “ok”"));
}

TEST(FieldRead, AStringReadGivesTheTextAFieldReadGivesOnEveryKindOfField) {
    const QByteArray file = "\"plain\",  \"blanks before\",bare text,\"after\"the quote,\"\",,"
                            "\"caf\xE9 \x80 long enough to pass eight bytes\",\"unterminated";
    TextReader byField(file, QStringLiteral("/Fields.txt"));
    TextReader byString(file, QStringLiteral("/Fields.txt"));
    QStringList read;
    while (!byField.atEnd()) {
        const QString expected = byField.readField().toString();
        EXPECT_EQ(byString.readString(), expected);
        read << expected;
    }
    EXPECT_TRUE(byString.atEnd());
    EXPECT_EQ(read, (QStringList{"plain", "blanks before", "bare text", "after", "", "",
                                 QString::fromUtf8("caf\u00E9 \u20AC long enough to pass eight bytes"), "unterminated"}));
    EXPECT_THROW(byString.readString(), StoreError);
}

TEST(FieldRead, AHighControlByteFarIntoALongStringStillReadsAsItsCharacter) {
    TextReader r(QByteArray("\"0123456789abcdef\x93quoted\x94 and \xA3 sign\"\r\n"), QStringLiteral("/Long.txt"));
    EXPECT_EQ(r.readString(), QString::fromUtf8("0123456789abcdef\u201Cquoted\u201D and \u00A3 sign"));
}
