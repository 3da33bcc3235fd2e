#include "ScriptedDialogs.h"
#include "UiEvents.h"
#include "binder/Binder.h"

#include <QCalendarWidget>
#include <QDateEdit>
#include <QSlider>
#include <QSpinBox>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;

namespace {

class BinderDatePicker : public ::testing::Test {
protected:
    test::ScriptedDialogs dialogs;
    QWidget window;
    Binder binder{dialogs, &window};

    template <typename W> W* make(const QString& name) {
        auto* w = new W(&window);
        w->setObjectName(name);
        return w;
    }
};

} // namespace

TEST_F(BinderDatePicker, ADateBoxShowsTheDateAndItsLimitsAndReportsAChangeAndACloseUp) {
    DatePicker model;
    model.name = QStringLiteral("DTStart");
    model.value = QDate(2026, 11, 22);
    model.minDate = QDate(2026, 1, 1);
    auto* w = make<QDateEdit>(QStringLiteral("DTStart"));
    ControlRegistry controls;
    controls.add(QStringLiteral("DTStart"), model);
    binder.bindAll(controls);
    ASSERT_TRUE(binder.unboundControls().isEmpty());
    EXPECT_EQ(w->date(), QDate(2026, 11, 22));
    EXPECT_EQ(w->minimumDate(), QDate(2026, 1, 1));
    EXPECT_TRUE(w->calendarPopup());

    int changes = 0;
    int closeUps = 0;
    binder.onChange(model, [&] { ++changes; });
    binder.onCloseUp(model, [&] { ++closeUps; });
    w->setDate(QDate(2026, 12, 5));
    EXPECT_EQ(model.value, QDate(2026, 12, 5));
    EXPECT_EQ(changes, 1);
    Q_EMIT w->calendarWidget()->clicked(QDate(2026, 12, 5));
    EXPECT_EQ(closeUps, 1);

    // The program's own change is pushed and is no user's change.
    model.value = QDate(2026, 11, 30);
    Binder::syncAll();
    EXPECT_EQ(w->date(), QDate(2026, 11, 30));
    EXPECT_EQ(changes, 1);
}

TEST_F(BinderDatePicker, AMonthViewReportsTheDayClicked) {
    DatePicker model;
    model.value = QDate(2026, 11, 23);
    auto* w = make<QCalendarWidget>(QStringLiteral("Calender"));
    binder.bind(w, model);
    EXPECT_EQ(w->selectedDate(), QDate(2026, 11, 23));
    QDate clicked;
    binder.onClick(model, [&] { clicked = model.value; });
    w->setSelectedDate(QDate(2026, 11, 27));
    Q_EMIT w->clicked(QDate(2026, 11, 27));
    EXPECT_EQ(clicked, QDate(2026, 11, 27));
}

TEST_F(BinderDatePicker, AnUpDownShowsItsRangeAndReportsAStep) {
    UpDown model;
    model.min = 1;
    model.max = 30;
    model.value = 4;
    auto* slider = make<QSlider>(QStringLiteral("sldTimeReq"));
    binder.bind(slider, model);
    EXPECT_EQ(slider->minimum(), 1);
    EXPECT_EQ(slider->maximum(), 30);
    EXPECT_EQ(slider->value(), 4);
    int changes = 0;
    binder.onChange(model, [&] { ++changes; });
    slider->setValue(9);
    EXPECT_EQ(model.value, 9);
    EXPECT_EQ(changes, 1);

    UpDown other;
    other.min = 1;
    other.max = 30;
    other.value = 2;
    auto* spin = make<QSpinBox>(QStringLiteral("UpDown2"));
    binder.bind(spin, other);
    EXPECT_EQ(spin->value(), 2);
    spin->setValue(3);
    EXPECT_EQ(other.value, 3);
}
