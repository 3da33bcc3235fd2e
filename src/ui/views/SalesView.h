#pragma once

#include "binder/ScreenView.h"

namespace ostrel {
class Session;
class frmSales;
} // namespace ostrel

namespace ostrel::ui {

// The associate sales report: the period and the associate at the top, the sales below with their
// four totals, the period buttons and the commands at the side.
class SalesView : public ScreenView {
    Q_OBJECT
public:
    SalesView(Session& session, frmSales& screen);

private:
    void wire();
    frmSales& m_screen;
};

} // namespace ostrel::ui
