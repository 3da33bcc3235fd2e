#include "CurrencyText.h"

#include <QtNumeric>

#include <cmath>

namespace ostrel::currencytext {

QString format(qint64 tenThousandths) {
    const bool negative = tenThousandths < 0;
    // Unsigned so that the most negative amount has a magnitude too.
    quint64 magnitude =
        negative ? 0 - static_cast<quint64>(tenThousandths) : static_cast<quint64>(tenThousandths);
    quint64 cents = magnitude / 100;
    const quint64 rest = magnitude % 100;
    if (rest > 50) {
        ++cents;
    } else if (rest == 50) {
        // A half cent is decided on the amount as a double, the way the old display form rounded
        // it: 48.055 is stored in binary just below the half and shows $48.05, 0.335 just above
        // and shows $0.34. A half that a double holds exactly goes away from zero.
        const double d = static_cast<double>(magnitude) / 10000.0;
        if (std::fma(d, 10000.0, -static_cast<double>(magnitude)) >= 0) ++cents;
    }
    // Put together from the right, by hand: reports format tens of thousands of amounts at once.
    char16_t text[40];
    int at = 40;
    if (negative) text[--at] = u')';
    const quint64 fraction = cents % 100;
    text[--at] = static_cast<char16_t>(u'0' + fraction % 10);
    text[--at] = static_cast<char16_t>(u'0' + fraction / 10);
    text[--at] = u'.';
    quint64 whole = cents / 100;
    int digits = 0;
    do {
        if (digits > 0 && digits % 3 == 0) text[--at] = u',';
        text[--at] = static_cast<char16_t>(u'0' + whole % 10);
        whole /= 10;
        ++digits;
    } while (whole > 0);
    text[--at] = u'$';
    if (negative) text[--at] = u'(';
    return QString(reinterpret_cast<const QChar*>(text + at), 40 - at);
}

namespace {

QStringView trimBlanks(QStringView t) {
    while (!t.isEmpty() && t.front() == u' ')
        t = t.sliced(1);
    while (!t.isEmpty() && t.back() == u' ')
        t.chop(1);
    return t;
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

} // namespace

std::optional<qint64> parseScaled(QStringView text, int decimals) {
    QStringView t = trimBlanks(text);
    bool negative = false;
    if (t.size() >= 2 && t.front() == u'(' && t.back() == u')') {
        negative = true;
        t = trimBlanks(t.sliced(1, t.size() - 2));
    }
    auto takeSign = [&] {
        if (!t.isEmpty() && (t.front() == u'-' || t.front() == u'+')) {
            if (t.front() == u'-') negative = !negative;
            t = trimBlanks(t.sliced(1));
            return true;
        }
        return false;
    };
    const bool signed1 = takeSign();
    if (!t.isEmpty() && t.front() == u'$') t = trimBlanks(t.sliced(1));
    if (!signed1) takeSign();

    qint64 value = 0;
    bool anyDigit = false;
    qsizetype i = 0;
    for (; i < t.size() && (isDigit(t[i]) || t[i] == u','); ++i) {
        if (t[i] == u',') continue;
        anyDigit = true;
        if (qMulOverflow(value, qint64(10), &value) ||
            qAddOverflow(value, qint64(t[i].unicode() - u'0'), &value))
            return std::nullopt;
    }
    QStringView fraction;
    if (i < t.size() && t[i] == u'.') {
        const qsizetype start = ++i;
        while (i < t.size() && isDigit(t[i]))
            ++i;
        fraction = t.sliced(start, i - start);
        anyDigit = anyDigit || !fraction.isEmpty();
    }
    if (!anyDigit || i != t.size()) return std::nullopt;

    for (int d = 0; d < decimals; ++d) {
        const qint64 digit = d < fraction.size() ? fraction[d].unicode() - u'0' : 0;
        if (qMulOverflow(value, qint64(10), &value) || qAddOverflow(value, digit, &value))
            return std::nullopt;
    }
    // Round half to even on what lies past the kept decimals.
    const QStringView rest = decimals < fraction.size() ? fraction.sliced(decimals) : QStringView();
    if (!rest.isEmpty()) {
        const int first = rest.front().unicode() - u'0';
        bool tail = false;
        for (qsizetype k = 1; k < rest.size(); ++k)
            tail = tail || rest[k] != u'0';
        const bool up = first > 5 || (first == 5 && (tail || value % 2 != 0));
        if (up && qAddOverflow(value, qint64(1), &value)) return std::nullopt;
    }
    return negative ? -value : value;
}

} // namespace ostrel::currencytext
