#pragma once

#include "binder/ScreenView.h"

namespace ostrel {
class Session;
class frmDisplay;
} // namespace ostrel

namespace ostrel::ui {

// Four day grids side by side under the names of their Points of Service, with the group and the
// date above them.
class DisplayView : public ScreenView {
    Q_OBJECT
public:
    DisplayView(Session& session, frmDisplay& screen);

private:
    frmDisplay& m_screen;
};

} // namespace ostrel::ui
