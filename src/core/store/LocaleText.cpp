#include "LocaleText.h"

#include "util/VbText.h"

namespace ostrel {

QString ShortDateText(const QDate& date) { return vbDate(date); }

QDate ParseShortDate(QStringView text) {
    // The plain form, one or two digits of month and day and four of year, is read by hand: lists
    // of many images parse a date each, and the format engine is the larger part of that. Any
    // other text goes to the engine.
    int part[3] = {};
    int digits[3] = {};
    int k = 0;
    bool plain = true;
    for (const QChar ch : text) {
        if (ch == u'/') {
            if (++k > 2) plain = false;
        } else if (ch >= u'0' && ch <= u'9' && digits[k] < 4) {
            part[k] = part[k] * 10 + (ch.unicode() - u'0');
            ++digits[k];
        } else {
            plain = false;
        }
        if (!plain) break;
    }
    if (plain && k == 2 && digits[0] >= 1 && digits[0] <= 2 && digits[1] >= 1 && digits[1] <= 2 && digits[2] == 4 &&
        part[2] >= 1)
        return QDate(part[2], part[0], part[1]);
    return QDate::fromString(text.toString(), kShortDateFormat);
}

} // namespace ostrel
