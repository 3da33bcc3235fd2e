#include "SetupScreenCurrency.h"

#include "store/CurrencyText.h"

#include <cmath>

namespace ostrel {

QString SetupCurrencyForm(const QString& numericText) {
    if (const auto amount = currencytext::parseCurrency(numericText)) return currencytext::format(*amount);
    // The rarer forms: parentheses, a sign after the digits, an exponent.
    QString s = numericText.trimmed();
    bool negative = false;
    if (s.startsWith(u'(') && s.endsWith(u')')) {
        negative = true;
        s = s.mid(1, s.size() - 2).trimmed();
    }
    if (s.endsWith(u'-') || s.endsWith(u'+')) {
        if (s.endsWith(u'-')) negative = !negative;
        s.chop(1);
    }
    s.remove(u'$');
    s.remove(u',');
    s.replace(QChar(u'd'), QChar(u'e'), Qt::CaseInsensitive);
    bool ok = false;
    const double value = s.toDouble(&ok);
    if (!ok || !std::isfinite(value) || std::fabs(value) > 9.0e14) return numericText;
    const qint64 tenThousandths = std::llround((negative ? -value : value) * 10000.0);
    return currencytext::format(tenThousandths);
}

} // namespace ostrel
