#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <compare>
#include <optional>

namespace ostrel {

// An amount of money: a signed 64-bit count of ten-thousandths of the currency unit, so sums are
// exact to the fourth decimal and nothing is added in floating point.
class Money {
public:
    constexpr Money() = default;
    static constexpr Money fromTenThousandths(qint64 v) { return Money(v); }
    static constexpr Money fromWhole(qint64 units) { return Money(units * 10000); }
    // A double scaled to ten-thousandths, halves to even, as the old currency conversion rounds;
    // a value no count of ten-thousandths can hold (nan, inf, 1e300) gives nothing (zero).
    static Money fromDouble(double value);
    // The number form of a text statement ("120", "45.5", ".25", "-3.1416"), exactly; nothing for
    // any other text.
    static std::optional<Money> fromStatementText(QByteArrayView text);
    // A typed or shown amount: blanks, "$", thousands separators, a leading "-" or parentheses.
    static std::optional<Money> fromDisplayText(QStringView text);

    constexpr qint64 tenThousandths() const { return m_value; }
    double toDouble() const { return static_cast<double>(m_value) / 10000.0; }
    // The number as a quoted write puts a Currency: no trailing zeros, no leading zero before the point.
    QByteArray statementText() const;
    // The plain number as the bookkeeping records hold it: no sign of currency, no separators, a
    // leading zero, up to four decimals and no trailing zeros ("1.6492", "0.5", "-3.25", "0").
    QString plainText() const;

    constexpr Money operator+(Money o) const { return Money(m_value + o.m_value); }
    constexpr Money operator-(Money o) const { return Money(m_value - o.m_value); }
    constexpr Money operator-() const { return Money(-m_value); }
    Money& operator+=(Money o) { m_value += o.m_value; return *this; }
    Money& operator-=(Money o) { m_value -= o.m_value; return *this; }
    constexpr auto operator<=>(const Money&) const = default;

private:
    constexpr explicit Money(qint64 v) : m_value(v) {}
    qint64 m_value = 0;
};

// The display form: "$1,234.50", negatives "($1,234.50)", rounded to cents.
QString FormatMoney(Money amount);
// A text amount put in the display form; a text that is no amount stays as it is.
QString FormatMoneyText(const QString& text);

} // namespace ostrel
