#include "VbText.h"

#include <algorithm>
#include <utility>
#include <vector>

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
    char16_t text[10];
    int n = 0;
    const auto twoDigits = [&](int v) {
        if (v >= 10) text[n++] = static_cast<char16_t>(u'0' + v / 10);
        text[n++] = static_cast<char16_t>(u'0' + v % 10);
    };
    twoDigits(m);
    text[n++] = u'/';
    twoDigits(d);
    text[n++] = u'/';
    for (int div = 1000; div > 0; div /= 10)
        text[n++] = static_cast<char16_t>(u'0' + (y / div) % 10);
    return QString(reinterpret_cast<const QChar*>(text), n);
}

void SortIgnoringCase(QStringList& names) {
    const auto caseless = [](const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) < 0; };
    for (const QString& name : names)
        for (QChar c : name)
            if (c.unicode() >= 0x80) {
                std::sort(names.begin(), names.end(), caseless);
                return;
            }
    // Plain ASCII: lower case, compared byte by byte, is that order, without folding at every compare.
    std::vector<std::pair<QByteArray, QString>> keyed;
    keyed.reserve(names.size());
    for (const QString& name : names)
        keyed.emplace_back(name.toLatin1().toLower(), name);
    std::sort(keyed.begin(), keyed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    for (qsizetype i = 0; i < names.size(); ++i)
        names[i] = std::move(keyed[static_cast<std::size_t>(i)].second);
}

} // namespace ostrel
