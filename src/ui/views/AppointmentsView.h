#pragma once

#include "binder/ScreenView.h"

namespace ostrel {
class Session;
class frmAppointments;
} // namespace ostrel

namespace ostrel::ui {

// The appointment routines: the four routines and the Point of Service list on the left, the slips
// the routine lists in the middle with the routine's buttons, and on the right the date and the day
// the slip is placed on.
class AppointmentsView : public ScreenView {
    Q_OBJECT
public:
    AppointmentsView(Session& session, frmAppointments& screen);

private:
    void wire();
    frmAppointments& m_screen;
};

} // namespace ostrel::ui
