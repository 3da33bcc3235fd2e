#pragma once

#include "binder/ScreenView.h"

class QMenu;

namespace ostrel {
class Session;
class frmNewCustomer;
} // namespace ostrel

namespace ostrel::ui {

// The account screen.
class NewCustomerView : public ScreenView {
    Q_OBJECT
public:
    NewCustomerView(Session& session, frmNewCustomer& screen);

    // The results grid's pop-up menu (mnupopup), shown after a click in the grid.
    QMenu* popupMenu() const { return m_popup; }

private:
    // What an event may have changed that the binder does not carry: the title, the pop-up, the
    // completed tail of the name list selected.
    void afterEvent();
    void showTypeAhead();

    frmNewCustomer& m_screen;
    QMenu* m_popup = nullptr;
};

} // namespace ostrel::ui
