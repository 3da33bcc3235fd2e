#include "DatePickerBinding.h"

#include <QCalendarWidget>
#include <QDateEdit>

namespace ostrel::ui {

namespace {

// Qt needs both limits; an open end is the widest date it knows.
QDate lowLimit(const QDate& d) { return d.isValid() ? d : QDate(100, 1, 1); }
QDate highLimit(const QDate& d) { return d.isValid() ? d : QDate(9999, 12, 31); }

} // namespace

DatePickerBinding::DatePickerBinding(Binder& binder, QDateEdit* edit, DatePicker& model)
    : ControlBinding(binder, model, edit), m_model(model) {
    edit->setCalendarPopup(true);
    connect(edit, &QDateEdit::dateChanged, this, [this] { changed(); });
    // The drop-down closes when a day is chosen in it; a typed date is done when the box is left.
    QCalendarWidget* popup = edit->calendarWidget();
    connect(popup, &QCalendarWidget::clicked, this, [this] {
        if (pushing()) return;
        pull();
        fire(handlers.closeUp);
    });
    connect(popup, &QCalendarWidget::activated, this, [this] {
        if (pushing()) return;
        pull();
        fire(handlers.closeUp);
    });
    connect(edit, &QDateEdit::editingFinished, this, [this] {
        if (pushing()) return;
        pull();
        fire(handlers.closeUp);
    });
}

DatePickerBinding::DatePickerBinding(Binder& binder, QCalendarWidget* calendar, DatePicker& model)
    : ControlBinding(binder, model, calendar), m_model(model) {
    connect(calendar, &QCalendarWidget::selectionChanged, this, [this] { changed(); });
    connect(calendar, &QCalendarWidget::clicked, this, [this] {
        if (pushing()) return;
        pull();
        fire(handlers.click);
    });
}

QDateEdit* DatePickerBinding::edit() const { return qobject_cast<QDateEdit*>(target()); }
QCalendarWidget* DatePickerBinding::calendar() const { return qobject_cast<QCalendarWidget*>(target()); }

void DatePickerBinding::changed() {
    if (pushing()) return;
    const QDate before = m_model.value;
    pull();
    if (m_model.value != before) fire(handlers.change);
}

void DatePickerBinding::pull() {
    const QDate shown = edit() ? edit()->date() : calendar()->selectedDate();
    if (shown.isValid()) m_model.value = shown;
    m_pulled = m_model.value;
}

void DatePickerBinding::pushState() {
    const QDate low = lowLimit(m_model.minDate);
    const QDate high = highLimit(m_model.maxDate);
    if (QDateEdit* e = edit()) {
        if (e->minimumDate() != low || e->maximumDate() != high) e->setDateRange(low, high);
        if (m_model.value.isValid() && e->date() != m_model.value) e->setDate(m_model.value);
    } else if (QCalendarWidget* c = calendar()) {
        if (c->minimumDate() != low || c->maximumDate() != high) c->setDateRange(low, high);
        if (m_model.value.isValid() && c->selectedDate() != m_model.value) {
            c->setSelectedDate(m_model.value);
            c->setCurrentPage(m_model.value.year(), m_model.value.month());
        }
    }
    m_pulled = m_model.value;
}

} // namespace ostrel::ui
