#pragma once

class QWidget;

namespace ostrel::ui {

// The widgets of the appointment creation screen, each named as its control, laid out in `window`:
// the menu bar; the choices (Point of Service, services, sales items) at the left; the frames of
// the steps in the middle, one shown at a time as the appointment is built; the day grid, whole,
// at the right.
void BuildCreateWidgets(QWidget* window, int instructionLines);

} // namespace ostrel::ui
