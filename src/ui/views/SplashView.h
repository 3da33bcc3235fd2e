#pragma once

#include "binder/ScreenView.h"

namespace ostrel {
class Session;
class frmSplash;
}

namespace ostrel::ui {

// The welcome screen.
class SplashView : public ScreenView {
    Q_OBJECT
public:
    SplashView(Session& session, frmSplash& screen);

private:
    frmSplash& m_screen;
};

} // namespace ostrel::ui
