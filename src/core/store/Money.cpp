#include "Money.h"

#include "CurrencyText.h"

#include <cmath>
#include <limits>

namespace ostrel {

Money Money::fromDouble(double value) {
    const double scaled = std::nearbyint(value * 10000.0);
    // Compared as a double first: converting a value no 64-bit count can hold is undefined.
    if (!std::isfinite(scaled) || scaled < -9223372036854775808.0 || scaled >= 9223372036854775808.0) return Money();
    return Money(static_cast<qint64>(scaled));
}

std::optional<Money> Money::fromStatementText(QByteArrayView text) {
    QByteArrayView t = text.trimmed();
    bool negative = false;
    if (t.startsWith('-')) {
        negative = true;
        t = t.sliced(1);
    }
    if (t.isEmpty()) return std::nullopt;
    qint64 value = 0;
    int decimals = -1;
    for (char c : t) {
        if (c == '.') {
            if (decimals >= 0) return std::nullopt;
            decimals = 0;
            continue;
        }
        if (c < '0' || c > '9') return std::nullopt;
        if (decimals >= 4) return std::nullopt; // the type holds four decimals
        if (value > (std::numeric_limits<qint64>::max() - 9) / 10) return std::nullopt;
        value = value * 10 + (c - '0');
        if (decimals >= 0) ++decimals;
    }
    for (int d = decimals < 0 ? 0 : decimals; d < 4; ++d) {
        if (value > std::numeric_limits<qint64>::max() / 10) return std::nullopt;
        value *= 10;
    }
    return Money(negative ? -value : value);
}

std::optional<Money> Money::fromDisplayText(QStringView text) {
    const auto v = currencytext::parseCurrency(text);
    if (!v) return std::nullopt;
    return Money(*v);
}

QByteArray Money::statementText() const {
    if (m_value == 0) return "0";
    const bool negative = m_value < 0;
    const quint64 magnitude = negative ? 0 - static_cast<quint64>(m_value) : static_cast<quint64>(m_value);
    QByteArray s = magnitude / 10000 == 0 ? QByteArray() : QByteArray::number(magnitude / 10000);
    quint64 fraction = magnitude % 10000;
    if (fraction != 0) {
        QByteArray digits = QByteArray::number(fraction).rightJustified(4, '0');
        while (digits.endsWith('0'))
            digits.chop(1);
        s += '.' + digits;
    }
    return negative ? '-' + s : s;
}

QString FormatMoney(Money amount) {
    return currencytext::format(amount.tenThousandths());
}

QString Money::plainText() const {
    const QByteArray statement = statementText();
    if (statement.startsWith('.')) return u'0' + QString::fromLatin1(statement);
    if (statement.startsWith("-.")) return QStringLiteral("-0") + QString::fromLatin1(statement.mid(1));
    return QString::fromLatin1(statement);
}

QString FormatMoneyText(const QString& text) {
    const std::optional<Money> amount = Money::fromDisplayText(text);
    return amount ? FormatMoney(*amount) : text;
}

} // namespace ostrel
