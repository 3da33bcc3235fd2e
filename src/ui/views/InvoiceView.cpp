#include "InvoiceView.h"

#include "InvoiceViewLayout.h"
#include "ScreenWindow.h"
#include "invoicing/frmInvoice.h"
#include "shell/Session.h"

#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>

namespace ostrel::ui {

InvoiceView::InvoiceView(Session& session, frmInvoice& screen)
    : ScreenView(session.platform.dialogs), m_screen(screen) {
    setMinimumSize(1100, 760);
    m_popup = BuildInvoiceWidgets(this, screen);
    m_date = findChild<QDateEdit*>(QStringLiteral("DTPicker1"));
    m_down = findChild<QPushButton*>(QStringLiteral("UpDown1Down"));
    binder().bindAll(screen.controls);
    wire();

    FollowScreen(*this, screen, session);
    // The activation runs once the window shows; what it moved is taken after it.
    auto follow = std::move(screen.visibilityChanged);
    screen.visibilityChanged = [this, follow](Screen& shown) {
        if (follow) follow(shown);
        if (shown.isVisible())
            QTimer::singleShot(0, this, [this] {
                binder().run({});
                afterEvent();
            });
    };
    binder().sync();
    afterEvent();
}

void InvoiceView::wire() {
    Binder& b = binder();
    frmInvoice& s = m_screen;
    auto then = [this](std::function<void()> f) {
        return [this, f] {
            f();
            afterEvent();
        };
    };
    b.onClick(s.cmdInvoice, [this](int i) {
        m_screen.cmdInvoice_Click(i);
        afterEvent();
    });
    b.onClick(s.cmdInvoiceContinue, then([&s] { s.cmdInvoiceContinue_Click(); }));
    b.onClick(s.cmdPrint, then([&s] { s.cmdPrint_Click(); }));
    b.onClick(s.cmdPost, [this](int i) {
        m_screen.cmdPost_Click(i);
        afterEvent();
    });
    b.onClick(s.cmdLabor, [this](int i) {
        m_screen.cmdLabor_Click(i);
        afterEvent();
    });
    b.onClick(s.cmdCancelPrint, then([&s] { s.cmdCancelPrint_Click(); }));
    b.onClick(s.cmdRedo, then([&s] { s.cmdRedo_Click(); }));
    b.onClick(s.cmdExit, [&s] { s.cmdExit_Click(); });
    b.onClick(s.cmdReadyPrint, [&s] { s.cmdReadyPrint_Click(); });
    b.onClick(s.cmdPrepaid, [this](int i) {
        m_screen.cmdPrepaid_Click(i);
        afterEvent();
    });
    b.onClick(s.cmdResetDate, [&s] { s.cmdResetDate_Click(); });
    b.onClick(s.cboPrepaid, [&s] { s.cboPrepaid_Click(); });
    auto& lists = s.lists().frmInvoice;
    b.onClick(lists.cboDescription, [&s](int k) { s.cboDescription_Click(k); });
    b.onChange(lists.cboDescription, [this](int k) {
        m_screen.cboDescription_Change(k);
        Binder::syncAll();
        // The completed tail stays selected, so typing goes on over it.
        auto* combo = qobject_cast<QComboBox*>(binder().widgetFor(m_screen.lists().frmInvoice.cboDescription[k]));
        if (combo && combo->lineEdit() && m_screen.descriptionSelLength > 0)
            combo->lineEdit()->setSelection(m_screen.descriptionSelStart, m_screen.descriptionSelLength);
    });
    b.onKeyDown(lists.cboDescription, [&s](int k, int& key, int) { s.cboDescription_KeyDown(k, key); });
    b.onLostFocus(lists.cboPrice, [&s](int k) { s.cboPrice_LostFocus(k); });
    b.onClick(lists.lstCategories, [&s] { s.lstCategories_Click(); });
    for (TextBox* units : {&s.txtUnits, &s.txtCUnits}) {
        b.onKeyPress(*units, [&s, units](int& key) { s.txtUnits_KeyPress(*units, key); });
        b.onKeyDown(*units, [&s, units](int&, int) { s.txtUnits_KeyDown(*units); });
        b.onLostFocus(*units, [&s, units] { s.txtUnits_LostFocus(*units); });
    }
    b.onKeyPress(s.txtHours, [&s](int i, int& key) { s.txtUnits_KeyPress(s.txtHours[i], key); });
    b.onKeyDown(s.txtHours, [&s](int i, int&, int) { s.txtUnits_KeyDown(s.txtHours[i]); });
    b.onLostFocus(s.txtHours, [&s](int i) { s.txtHours_LostFocus(i); });
    b.onGotFocus(s.txtMisc, [&s] { s.txtMisc_GotFocus(); });
    b.onKeyDown(s.txtMisc, [&s](int&, int) { s.txtMisc_KeyDown(); });
    b.onLostFocus(s.txtMisc, then([&s] { s.txtMisc_LostFocus(); }));
    b.onLostFocus(s.txtInvoiceNo, [&s] { s.txtInvoiceNo_LostFocus(); });
    b.onLostFocus(s.txtReference, [&s] { s.txtReference_LostFocus(); });
    b.onClick(s.fgInvoice, then([&s] { s.fgInvoice_Click(); }));
    b.onKeyPress(s.fgInvoice, [&s](int& key) {
        s.fgInvoice_KeyPress(key);
        key = 0;
    });
    b.onClick(s.mnuDeleteItem, then([&s] { s.mnuDeleteItem_Click(); }));
    b.onClick(s.UpDown1, [&s] { s.UpDown1_Change(-1); });
    for (MenuItem* entry : {&s.mnuSetup, &s.mnuCreate, &s.mnuPrint, &s.mnuItems, &s.mnuServices, &s.mnuCItems,
                            &s.mnuLabor, &s.mnuClose})
        b.onClick(*entry, then([&s, entry] { s.mnuView_Click(*entry); }));

    if (m_down)
        connect(m_down, &QPushButton::clicked, this, [this] {
            binder().run([this] { m_screen.UpDown1_Change(1); });
        });
    if (m_date)
        connect(m_date, &QDateEdit::dateChanged, this, [this](const QDate& date) {
            if (m_settingDate) return;
            binder().run([this, date] { m_screen.DTPicker1_Change(date); });
            afterEvent();
        });
    if (auto* grid = qobject_cast<QTableWidget*>(binder().widgetFor(s.fgInvoice)))
        connect(grid, &QTableWidget::customContextMenuRequested, this, [this, grid](const QPoint& at) {
            const int row = grid->rowAt(at.y());
            if (row < 0) return;
            grid->setCurrentCell(row, std::max(0, grid->columnAt(at.x())));
            binder().run([this] { m_screen.fgInvoice_RightClick(); });
            afterEvent();
        });
}

void InvoiceView::afterEvent() {
    if (m_date && m_date->date() != m_screen.DTPicker1) {
        m_settingDate = true;
        m_date->setDate(m_screen.DTPicker1);
        m_settingDate = false;
    }
    if (m_down) m_down->setEnabled(m_screen.UpDown1.enabled);
    if (m_screen.popupMenuRequested) {
        m_screen.popupMenuRequested = false;
        auto* grid = qobject_cast<QTableWidget*>(binder().widgetFor(m_screen.fgInvoice));
        QPoint at = QCursor::pos();
        if (grid && grid->currentItem())
            at = grid->viewport()->mapToGlobal(grid->visualItemRect(grid->currentItem()).center());
        m_popup->popup(at);
    }
}

} // namespace ostrel::ui
