#include "CreateView.h"

#include "CreateViewLayout.h"
#include "binder/CheckableList.h"
#include "ScreenWindow.h"
#include "scheduling/frmCreate.h"
#include "shell/Session.h"

#include <QListWidget>
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
    auto follow = std::move(screen.visibilityChanged);
    screen.visibilityChanged = [this, follow](Screen& shown) {
        if (follow) follow(shown);
        if (shown.isVisible()) showChecksSoon();
    };
    binder().sync();
    if (m_serviceChecks) m_serviceChecks->show();
}

void CreateView::showChecksSoon() {
    if (m_serviceChecks) m_serviceChecks->showSoon();
}

void CreateView::onRightClick(Grid& model, void (frmCreate::*handler)()) {
    auto* table = qobject_cast<QTableWidget*>(binder().widgetFor(model));
    if (!table) return;
    table->setContextMenuPolicy(Qt::CustomContextMenu);
    // Plain pointers are captured: the slot outlives this call, so nothing may refer to its frame.
    Grid* grid = &model;
    frmCreate* screen = &m_screen;
    Binder* bound = &binder();
    connect(table, &QTableWidget::customContextMenuRequested, this, [table, grid, screen, bound, handler](QPoint at) {
        const int row = table->rowAt(at.y());
        if (row < 0) return;
        bound->run([grid, screen, handler, row] {
            grid->row = row + (grid->fixedRows > 0 ? 1 : 0);
            (screen->*handler)();
        });
    });
}

void CreateView::wire() {
    Binder& b = binder();
    frmCreate& s = m_screen;
    b.onClick(s.cmdService, [this](int i) {
        m_screen.cmdService_Click(i);
        showChecksSoon();
    });
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
    // A box ticked or cleared by the user is a click on that service.
    if (auto* list = qobject_cast<QListWidget*>(b.widgetFor(s.lstServices))) {
        m_serviceChecks = new CheckableList(
            list, b, [this](int row) { return m_screen.ServiceChecked(row); },
            [this](int row, bool checked) {
                m_screen.SetServiceChecked(row, checked);
                m_screen.lstServices.SetListIndex(row);
                m_screen.lstServices_Click();
            });
    }
    onRightClick(s.fgItems, &frmCreate::fgItems_RightClick);
}

} // namespace ostrel::ui
