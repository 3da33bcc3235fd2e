#include "CreateView.h"

#include "CreateViewLayout.h"
#include "ScreenWindow.h"
#include "scheduling/frmCreate.h"
#include "shell/Session.h"

#include <QPushButton>
#include <QTableWidget>

namespace ostrel::ui {

CreateView::CreateView(Session& session, frmCreate& screen)
    : ScreenView(session.platform.dialogs), m_screen(screen) {
    setMinimumSize(1200, 900);
    resize(1260, 960);
    BuildCreateWidgets(this, screen.lblInstructions.size());
    binder().bindAll(screen.controls);
    wire();
    FollowScreen(*this, screen, session);
    binder().sync();
}

void CreateView::onRightClick(Grid& model, void (frmCreate::*handler)()) {
    auto* table = qobject_cast<QTableWidget*>(binder().widgetFor(model));
    if (!table) return;
    table->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(table, &QTableWidget::customContextMenuRequested, this, [this, table, &model, handler](QPoint at) {
        const int row = table->rowAt(at.y());
        if (row < 0) return;
        binder().run([this, &model, handler, row] {
            model.row = row + (model.fixedRows > 0 ? 1 : 0);
            (m_screen.*handler)();
        });
    });
}

void CreateView::wire() {
    Binder& b = binder();
    frmCreate& s = m_screen;
    b.onClick(s.cmdService, [this](int i) { m_screen.cmdService_Click(i); });
    b.onClick(s.cmdDay, [this](int i) { m_screen.cmdDay_Click(i); });
    b.onChange(s.DTPicker1, [&s] { s.DTPicker1_Change(); });
    b.onClick(s.lstAssignments, [&s] { s.lstAssignments_Click(); });
    b.onClick(s.lstServices, [&s] { s.lstServices_Click(); });
    b.onClick(s.lstCategories, [&s] { s.lstCategories_Click(); });
    b.onClick(s.cboItems, [&s] { s.cboItems_Click(); });
    b.onChange(s.txtAdditional, [&s] { s.txtAdditional_Change(); });
    b.onGotFocus(s.txtCost, [&s] { s.txtCost_GotFocus(); });
    b.onLostFocus(s.txtCost, [&s] { s.txtCost_LostFocus(); });
    b.onKeyPress(s.txtCost, [&s](int& key) { s.txtCost_KeyPress(key); });
    b.onClick(s.fgDaySchedule, [&s] { s.fgDaySchedule_Click(); });
    b.onClick(s.mnuCustomer, [&s] { s.mnuCustomer_Click(); });
    b.onClick(s.mnuServices, [&s] { s.mnuServices_Click(); });
    b.onClick(s.mnuItems, [&s] { s.mnuItems_Click(); });
    b.onClick(s.mnuAddto, [&s] { s.mnuAddto_Click(); });
    b.onClick(s.mnuInstructions, [&s] { s.mnuInstructions_Click(); });
    onRightClick(s.fgServices, &frmCreate::fgServices_RightClick);
    onRightClick(s.fgItems, &frmCreate::fgItems_RightClick);
}

} // namespace ostrel::ui
