#pragma once

#include <QString>

namespace ostrel::ui {

// A caption as a person reads it: "&Create" is "Create", "&&" is "&".
QString StripMnemonic(const QString& caption);

} // namespace ostrel::ui
