#pragma once

#include "controls/Controls.h"

#include <QColor>

namespace ostrel::ui {

// Colours as the files keep them (red in the low byte) and as Qt paints them. kNoColour is an
// invalid QColor: the widget's own colour.
QColor toQColor(Colour colour);
Colour fromQColor(const QColor& colour);

} // namespace ostrel::ui
