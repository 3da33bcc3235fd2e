#pragma once

#include "binder/ScreenView.h"

namespace ostrel {
class Session;
class frmDialer;
} // namespace ostrel

namespace ostrel::ui {

// The speed dialer, shown modally over the screen that opened it.
class DialerView : public ScreenView {
    Q_OBJECT
public:
    DialerView(Session& session, frmDialer& screen);

private:
    frmDialer& m_screen;
};

} // namespace ostrel::ui
