#include "store/LocaleText.h"

#include <gtest/gtest.h>

using namespace ostrel;

namespace {

QStringList numbers(int from, int to) {
    QStringList out;
    for (int i = from; i <= to; ++i) {
        out.append(QString::number(i));
        if (i < 10) out.append(QStringLiteral("0") + QString::number(i));
    }
    return out;
}

} // namespace

TEST(ShortDateParse, EveryPlainFormReadsAsTheFormatEngineReadsIt) {
    const QStringList years = {"2026", "2024", "1900", "0001", "0000", "9999", "1999", "202", "20260", "-2026"};
    int checked = 0;
    for (const QString& y : years)
        for (const QString& m : numbers(0, 13))
            for (const QString& d : numbers(0, 32)) {
                const QString text = m + u'/' + d + u'/' + y;
                ASSERT_EQ(ParseShortDate(text), QDate::fromString(text, kShortDateFormat)) << text.toStdString();
                ++checked;
            }
    EXPECT_GT(checked, 5000);
    EXPECT_EQ(ParseShortDate(u"2/29/2024"), QDate(2024, 2, 29));
    EXPECT_FALSE(ParseShortDate(u"2/29/2026").isValid());
}

TEST(ShortDateParse, OtherTextsReadAsTheFormatEngineReadsThem) {
    const char* const texts[] = {"",           "/",          "//",          "1/2/",         "1/2/2026/",
                                 "1//2026",    " 1/2/2026",  "1/2/2026 ",   "a/b/cdef",     "1-2-2026",
                                 "2026-01-02", "1/2/２０２６", "123/1/2026",   "1/123/2026",   "+1/2/2026",
                                 "1/2/+2026",  "1/2/2026\n", "12/31/9999", "1/1/0001",     "1/2/20 6"};
    for (const char* t : texts) {
        const QString text = QString::fromUtf8(t);
        EXPECT_EQ(ParseShortDate(text), QDate::fromString(text, kShortDateFormat)) << t;
    }
}
