#pragma once

#include "binder/ScreenView.h"

class QTableWidget;

namespace ostrel {
class Session;
class frmCreate;
struct Grid;
} // namespace ostrel

namespace ostrel::ui {

class CheckableList;

// The appointment creation screen.
class CreateView : public ScreenView {
    Q_OBJECT
public:
    CreateView(Session& session, frmCreate& screen);

private:
    void wire();
    // The services list shows a check box before each service; its marks are the screen's.
    void showChecksSoon();
    // A right mouse click on a row of a grid: the row becomes the current one, then the handler.
    void onRightClick(Grid& model, void (frmCreate::*handler)());

    frmCreate& m_screen;
    CheckableList* m_serviceChecks = nullptr;
};

} // namespace ostrel::ui
