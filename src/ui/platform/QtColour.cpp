#include "QtColour.h"

namespace ostrel::ui {

QColor toQColor(Colour colour) {
    if (colour == kNoColour) return QColor();
    return QColor(int(colour & 0xFF), int((colour >> 8) & 0xFF), int((colour >> 16) & 0xFF));
}

Colour fromQColor(const QColor& colour) {
    if (!colour.isValid()) return kNoColour;
    const QColor rgb = colour.toRgb();
    return rgbColour(rgb.red(), rgb.green(), rgb.blue());
}

} // namespace ostrel::ui
