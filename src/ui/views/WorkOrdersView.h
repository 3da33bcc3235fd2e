#pragma once

#include "binder/ScreenView.h"

namespace ostrel {
class Session;
class frmWorkOrders;
} // namespace ostrel

namespace ostrel::ui {

class CheckableList;

// The work order screen: how to find the slips on the left, the slip's services and the step
// frames (overview, services to add, print instructions, pick list) on the right.
class WorkOrdersView : public ScreenView {
    Q_OBJECT
public:
    WorkOrdersView(Session& session, frmWorkOrders& screen);

private:
    QWidget* findColumn();
    QWidget* workColumn();
    void wire();

    frmWorkOrders& m_screen;
    // The appointments found are boxes to tick, several at a time.
    CheckableList* m_entryChecks = nullptr;
};

} // namespace ostrel::ui
