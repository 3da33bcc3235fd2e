#include "NewCustomerView.h"

#include "NewCustomerViewLayout.h"
#include "ScreenWindow.h"
#include "accounts/frmNewCustomer.h"
#include "shell/Session.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QTableWidget>
#include <QTimer>

namespace ostrel::ui {

NewCustomerView::NewCustomerView(Session& session, frmNewCustomer& screen)
    : ScreenView(session.platform.dialogs), m_screen(screen) {
    setMinimumSize(1120, 640);
    m_popup = BuildNewCustomerWidgets(this);

    Binder& b = binder();
    b.bindAll(screen.controls);
    SetDialPicture(this);
    frmNewCustomer& s = m_screen;
    auto then = [this](std::function<void()> f) {
        return [this, f] {
            f();
            afterEvent();
        };
    };
    b.onClick(s.cmdAcctType, [&s] { s.cmdAcctType_Click(); });
    b.onClick(s.mnuAdd, then([&s] { s.mnuAdd_Click(); }));
    b.onClick(s.cmdNew, then([&s] { s.cmdNew_Click(); }));
    b.onClick(s.cmdCustomer, [this](int i) {
        m_screen.cmdCustomer_Click(i);
        afterEvent();
    });
    b.onClick(s.cmdNav, [this](int i) {
        m_screen.cmdNav_Click(i);
        afterEvent();
    });
    b.onClick(s.Command1, [&s](int i) { s.Command1_Click(i); });
    b.onClick(s.cboAccounts, [&s] { s.cboAccounts_Click(); });
    b.onChange(s.cboAccounts, [this] {
        m_screen.cboAccounts_Change();
        showTypeAhead();
    });
    b.onKeyDown(s.cboAccounts, [&s](int& key, int shift) { s.cboAccounts_KeyDown(key, shift); });
    b.onLostFocus(s.cboAccounts, [&s] { s.cboAccounts_LostFocus(); });
    b.onClick(s.cmdStartSearch, [&s] { s.cmdStartSearch_Click(); });
    b.onClick(s.cmdClearSearch, [&s] { s.cmdClearSearch_Click(); });
    b.onClick(s.cmdHideSearch, [&s] { s.cmdHideSearch_Click(); });
    b.onClick(s.optSearch, [&s](int i) { s.optSearch_Click(i); });
    b.onClick(s.mnuPrint, [&s] { s.mnuPrint_Click(); });
    b.onClick(s.fgCustomersFound, then([&s] { s.fgCustomersFound_Click(); }));
    b.onClick(s.mnuSelect, [&s] { s.mnuSelect_Click(); });
    b.onClick(s.cmdRetry, [&s] { s.cmdRetry_Click(); });
    b.onGotFocus(s.txtCustomer, [&s](int i) { s.txtCustomer_GotFocus(i); });
    b.onLostFocus(s.txtCustomer, [&s](int i) { s.txtCustomer_LostFocus(i); });
    b.onKeyPress(s.txtCustomer, [&s](int i, int& key) { s.txtCustomer_KeyPress(i, key); });
    b.onClick(s.mnuDelete, [&s] { s.mnuDelete_Click(); });
    b.onClick(s.Image1, [&s](int i) { s.Image1_Click(i); });
    b.onClick(s.mnuAux, [&s] { s.mnuAux_Click(); });
    b.onClick(s.cmdSaveAux, [this](int i) {
        m_screen.cmdSaveAux_Click(i);
        afterEvent();
    });
    b.onDoubleClick(s.txtAux, [&s](int i) { s.txtAux_DblClick(i); });
    b.onDoubleClick(s.txtHeading, [&s](int i) { s.txtHeading_DblClick(i); });
    b.onClick(s.lblClear, [&s](int i) { s.lblClear_Click(i); });

    FollowScreen(*this, screen, session);
    // The activation runs after the window shows, whoever showed the screen: its caption and
    // controls are taken once it is over.
    auto follow = std::move(screen.visibilityChanged);
    screen.visibilityChanged = [this, follow](Screen& shown) {
        if (follow) follow(shown);
        if (shown.isVisible())
            QTimer::singleShot(0, this, [this] {
                binder().run({});
                afterEvent();
            });
    };
    b.sync();
}

void NewCustomerView::afterEvent() {
    if (windowTitle() != m_screen.caption) {
        setWindowTitle(m_screen.caption);
        setAccessibleName(m_screen.caption);
    }
    if (m_screen.popupMenuRequested) {
        m_screen.popupMenuRequested = false;
        auto* grid = qobject_cast<QTableWidget*>(binder().widgetFor(m_screen.fgCustomersFound));
        QPoint at = grid ? grid->viewport()->mapToGlobal(grid->viewport()->rect().center()) : QCursor::pos();
        if (grid && grid->currentItem())
            at = grid->viewport()->mapToGlobal(grid->visualItemRect(grid->currentItem()).center());
        m_popup->popup(at);
    }
}

void NewCustomerView::showTypeAhead() {
    // The binder shows the completed text; the tail is then selected so typing goes on over it.
    Binder::syncAll();
    auto* combo = qobject_cast<QComboBox*>(binder().widgetFor(m_screen.cboAccounts));
    if (!combo || !combo->lineEdit()) return;
    if (m_screen.cboAccountsSelLength > 0)
        combo->lineEdit()->setSelection(m_screen.cboAccountsSelStart, m_screen.cboAccountsSelLength);
    else
        combo->lineEdit()->setCursorPosition(m_screen.cboAccountsSelStart);
}

} // namespace ostrel::ui
