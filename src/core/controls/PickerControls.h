#pragma once

#include "Controls.h"

#include <QDate>

namespace ostrel {

// A date picker (drop-down calendar) or a month view: the date it shows, and the dates it lets
// the user choose (an invalid limit: none).
struct DatePicker : Control {
    QDate value;
    QDate minDate;
    QDate maxDate;
};

// An up-down (or slider) control: a whole number held between its limits.
struct UpDown : Control {
    int value = 0;
    int min = 0;
    int max = 10;
    // Keeps the number within the limits, as the control itself does.
    void SetValue(int v) { value = v < min ? min : (v > max ? max : v); }
};

} // namespace ostrel
