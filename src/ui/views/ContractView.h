#pragma once

#include "binder/ScreenView.h"

class QTextBrowser;

namespace ostrel {
class Session;
class frmContract;
} // namespace ostrel

namespace ostrel::ui {

// The contract form: the parties and terms on the left, the document as it will be stored on the
// right, shown as formatted text.
class ContractView : public ScreenView {
    Q_OBJECT
public:
    ContractView(Session& session, frmContract& screen);

    // Shows the screen's document again when it changed.
    void showBody();

private:
    frmContract& m_screen;
    QTextBrowser* m_body = nullptr;
    int m_shownRevision = -1;
};

} // namespace ostrel::ui
