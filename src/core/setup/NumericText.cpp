#include "NumericText.h"

namespace ostrel {

bool IsNumericText(const QString& text) {
    QString s = text.trimmed();
    if (s.startsWith(u'(') && s.endsWith(u')')) s = s.mid(1, s.size() - 2).trimmed();
    if (s.isEmpty()) return false;

    qsizetype i = 0;
    const qsizetype n = s.size();
    bool sign = false;
    auto takeSign = [&] {
        if (!sign && i < n && (s[i] == u'+' || s[i] == u'-')) {
            sign = true;
            ++i;
        }
    };
    takeSign();
    if (i < n && s[i] == u'$') ++i;
    takeSign();

    bool digits = false;
    bool point = false;
    while (i < n) {
        const QChar c = s[i];
        if (c.isDigit() && c.unicode() < 128) {
            digits = true;
        } else if (c == u',' && !point && digits) {
            // thousands separator: only among the whole digits
        } else if (c == u'.' && !point) {
            point = true;
        } else {
            break;
        }
        ++i;
    }
    if (!digits) return false;

    if (i < n && (s[i] == u'e' || s[i] == u'E' || s[i] == u'd' || s[i] == u'D')) {
        ++i;
        if (i < n && (s[i] == u'+' || s[i] == u'-')) ++i;
        bool expDigits = false;
        while (i < n && s[i].isDigit() && s[i].unicode() < 128) {
            expDigits = true;
            ++i;
        }
        if (!expDigits) return false;
    }
    takeSign();
    return i == n;
}

} // namespace ostrel
