#pragma once

#include "binder/ScreenView.h"

namespace ostrel {
class Session;
class frmBlock;
} // namespace ostrel

namespace ostrel::ui {

// Holiday and vacation days: whom and what to block on the left, the first day on the month view,
// the day in question on the right while a conflict is asked about, and the blocked days found
// below.
class BlockView : public ScreenView {
    Q_OBJECT
public:
    BlockView(Session& session, frmBlock& screen);

private:
    void wire();
    frmBlock& m_screen;
};

} // namespace ostrel::ui
