#pragma once

#include "ControlBinding.h"
#include "controls/PickerControls.h"

class QCalendarWidget;
class QDateEdit;

namespace ostrel::ui {

// A date picker shown as a date box with a drop-down calendar, or a month view shown as a
// calendar. The date and its limits are pushed. A user's new date is pulled, then Change; a day
// clicked on a month view is also Click; closing the drop-down on a date, or leaving the box after
// typing one, is CloseUp.
class DatePickerBinding : public ControlBinding {
    Q_OBJECT
public:
    DatePickerBinding(Binder& binder, QDateEdit* edit, DatePicker& model);
    DatePickerBinding(Binder& binder, QCalendarWidget* calendar, DatePicker& model);

protected:
    void pushState() override;
    void pull() override;

private:
    void changed();
    QDateEdit* edit() const;
    QCalendarWidget* calendar() const;

    DatePicker& m_model;
    QDate m_pulled;
};

} // namespace ostrel::ui
