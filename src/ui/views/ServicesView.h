#pragma once

#include "binder/ScreenView.h"

class QTabWidget;

namespace ostrel {
class Session;
class frmServices;
} // namespace ostrel

namespace ostrel::ui {

// The catalogue screen: a tab strip of services, inventoried items, labor rates, custom items and
// instructions, with Menu and the price buttons below it. A close by the window frame writes the
// catalogue and the labor rates before the program ends.
class ServicesView : public ScreenView {
    Q_OBJECT
public:
    ServicesView(Session& session, frmServices& screen);

    QTabWidget* tabs() const { return m_tabs; }

private:
    QWidget* servicesPage();
    QWidget* itemsPage();
    QWidget* laborPage();
    QWidget* customPage();
    QWidget* instructionsPage();
    void wire();

    frmServices& m_screen;
    QTabWidget* m_tabs = nullptr;
    bool m_movingTab = false;
};

} // namespace ostrel::ui
