#pragma once

#include "binder/ScreenView.h"

namespace ostrel {
class Session;
class frmTerms;
} // namespace ostrel

namespace ostrel::ui {

// The terms and disclaimer screen: the two generic texts on the left for reference, the two
// custom boxes on the right with their buttons, and Menu.
class TermsView : public ScreenView {
    Q_OBJECT
public:
    TermsView(Session& session, frmTerms& screen);

private:
    frmTerms& m_screen;
};

} // namespace ostrel::ui
