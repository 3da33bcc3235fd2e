#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace ostrel::currencytext {

// Amounts as the program shows them (en-US): "$1,234.50", negatives "($1,234.50)". Amounts are
// counts of ten-thousandths; the shown form is rounded to cents, half away from zero, except that a
// half cent that a double holds just below the half (48.055, 0.105) rounds down, as the old display
// form did.
QString format(qint64 tenThousandths);

// Reads a typed or shown amount: blanks around it, "$", thousands commas, a leading "-" or
// parentheses for a negative. The value is scaled by 10^decimals and rounded half to even, the way
// the currency and whole-number conversions of the old data round. Empty text, any other
// character or a value past 64 bits gives nothing.
std::optional<qint64> parseScaled(QStringView text, int decimals);

inline std::optional<qint64> parseCurrency(QStringView text) {
    return parseScaled(text, 4);
}
inline std::optional<qint64> parseWhole(QStringView text) {
    return parseScaled(text, 0);
}

} // namespace ostrel::currencytext
