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

QString vbDate(const QDate& date) {
    // Put together by hand: the lists write one date per row, and the format engine is the larger
    // part of filling them. Years of other widths keep the engine's own form.
    int y = 0, m = 0, d = 0;
    date.getDate(&y, &m, &d);
    if (!date.isValid() || y < 1 || y > 9999) return date.toString(QStringLiteral("M/d/yyyy"));
    QString out;
    out.reserve(10);
    out += QString::number(m);
    out += u'/';
    out += QString::number(d);
    out += u'/';
    out += QString::number(y).rightJustified(4, u'0');
    return out;
}

} // namespace ostrel
