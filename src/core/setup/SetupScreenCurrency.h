#pragma once

#include <QString>

namespace ostrel {

// The currency form ("$1,234.50", "($5.00)") of a text that reads as a number (IsNumericText),
// including the forms a user may type beyond the plain amount: a trailing sign or an exponent.
QString SetupCurrencyForm(const QString& numericText);

} // namespace ostrel
