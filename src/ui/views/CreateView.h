#pragma once

#include "binder/ScreenView.h"

class QTableWidget;

namespace ostrel {
class Session;
class frmCreate;
struct Grid;
} // namespace ostrel

namespace ostrel::ui {

// The appointment creation screen.
class CreateView : public ScreenView {
    Q_OBJECT
public:
    CreateView(Session& session, frmCreate& screen);

private:
    void wire();
    // The services list shows a check box before each service; its marks are the screen's. They
    // are put on the items after each event, once the binder has pushed the list.
    void showChecksSoon();
    void showChecks();
    // A right mouse click on a row of a grid: the row becomes the current one, then the handler.
    void onRightClick(Grid& model, void (frmCreate::*handler)());

    frmCreate& m_screen;
};

} // namespace ostrel::ui
