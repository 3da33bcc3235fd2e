#pragma once

#include "binder/ScreenView.h"

class QLabel;
class QTableWidget;

namespace ostrel {
class Session;
class frmWorkSchedules;
} // namespace ostrel

namespace ostrel::ui {

// The day sheet screen: date and Point of Service on the left with the buttons, the overview of a
// date range or the day grid on the right, and the found mark in its colour.
class WorkSchedulesView : public ScreenView {
    Q_OBJECT
public:
    WorkSchedulesView(Session& session, frmWorkSchedules& screen);

    // The found mark takes the screen's colour.
    void showFoundColour();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    frmWorkSchedules& m_screen;
    QLabel* m_shape = nullptr;
    QLabel* m_found = nullptr;
    QTableWidget* m_schedule = nullptr;
};

} // namespace ostrel::ui
