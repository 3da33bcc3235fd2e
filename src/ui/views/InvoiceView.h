#pragma once

#include "binder/ScreenView.h"

class QDateEdit;
class QMenu;
class QPushButton;

namespace ostrel {
class Session;
class frmInvoice;
} // namespace ostrel

namespace ostrel::ui {

// "Invoice Creation": the setup frame over the body grid, the add windows and the print window
// below it, each with its instructions, and the menus that open them.
class InvoiceView : public ScreenView {
    Q_OBJECT
public:
    InvoiceView(Session& session, frmInvoice& screen);

private:
    void wire();
    // What the binder does not carry: the date picker, the second arrow, the pop-up, completions.
    void afterEvent();

    frmInvoice& m_screen;
    QMenu* m_popup = nullptr;
    QDateEdit* m_date = nullptr;
    QPushButton* m_down = nullptr;
    bool m_settingDate = false;
};

} // namespace ostrel::ui
