#include "VbText.h"

namespace ostrel {

QString vbLTrim(const QString& s) {
    qsizetype i = 0;
    while (i < s.size() && s[i] == u' ') ++i;
    return s.mid(i);
}

QString vbRTrim(const QString& s) {
    qsizetype n = s.size();
    while (n > 0 && s[n - 1] == u' ') --n;
    return s.left(n);
}

QString vbTrim(const QString& s) { return vbLTrim(vbRTrim(s)); }

QString vbStr(qint64 n) { return n >= 0 ? u' ' + QString::number(n) : QString::number(n); }

QString vbDate(const QDate& date) { return date.toString(QStringLiteral("M/d/yyyy")); }

} // namespace ostrel
