#pragma once

#include <Qt>

namespace ostrel::ui {

// Key codes as the legacy key-down handlers know them (13 Enter, 46 Delete, 65 "A", 112 F1 ...),
// 0 for a key they have no code for.
int VbKeyCode(int qtKey);
// The shift argument of a key-down handler: 1 Shift, 2 Ctrl, 4 Alt, added.
int VbShiftState(Qt::KeyboardModifiers modifiers);

} // namespace ostrel::ui
