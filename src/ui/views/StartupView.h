#pragma once

#include "binder/ScreenView.h"

namespace ostrel {
class Session;
class frmStartup;
}

namespace ostrel::ui {

// The main menu.
class StartupView : public ScreenView {
    Q_OBJECT
public:
    StartupView(Session& session, frmStartup& screen);

private:
    frmStartup& m_screen;
};

} // namespace ostrel::ui
