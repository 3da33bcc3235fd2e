#pragma once

#include <QString>

namespace ostrel {

// Whether a text reads as a number in the en-US way a user types one: blanks around it, a sign
// before or after, a leading "$", thousands commas, one decimal point, an exponent, or
// parentheses for a negative. An empty text is not numeric.
bool IsNumericText(const QString& text);

} // namespace ostrel
