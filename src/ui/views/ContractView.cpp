#include "ContractView.h"
#include "NamedWidgets.h"

#include "ScreenWindow.h"
#include "contracts/RtfText.h"
#include "contracts/frmContract.h"
#include "shell/Session.h"

#include <QAction>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace ostrel::ui {

namespace {

QLabel* caption(int index, QWidget* parent, QWidget* buddy = nullptr) {
    QLabel* l = label(element("Label1", index), parent, buddy);
    l->setWordWrap(true);
    return l;
}

QPushButton* button(const QString& name, QWidget* parent) {
    auto* b = named<QPushButton>(name, parent);
    b->setMinimumHeight(32);
    return b;
}

QGroupBox* partyBox(QWidget* parent) {
    auto* box = new QGroupBox(parent);
    auto* g = new QGridLayout(box);
    g->setVerticalSpacing(4);
    QLabel* customer = caption(6, box);
    QFont bold = customer->font();
    bold.setBold(true);
    customer->setFont(bold);
    g->addWidget(customer, 0, 0);
    QLabel* name = named<QLabel>(QStringLiteral("lblCustomerName"), box);
    name->setFont(bold);
    g->addWidget(name, 1, 0);
    g->addWidget(named<QLabel>(QStringLiteral("lblCustomerTel"), box), 2, 0);
    auto* info = named<QPlainTextEdit>(QStringLiteral("txtCustomerInfo"), box);
    info->setFixedHeight(64);
    info->setAccessibleName(QStringLiteral("Customer address"));
    g->addWidget(info, 3, 0);
    QLabel* contractor = caption(7, box);
    contractor->setFont(bold);
    g->addWidget(contractor, 0, 1);
    auto* owner = named<QPlainTextEdit>(QStringLiteral("txtContractor"), box);
    owner->setFixedHeight(86);
    contractor->setBuddy(owner);
    g->addWidget(owner, 1, 1, 3, 1);
    g->setColumnStretch(0, 1);
    g->setColumnStretch(1, 1);
    return box;
}

QLayout* termsColumn(QWidget* parent) {
    auto* v = new QVBoxLayout;
    v->setSpacing(4);
    auto* frequency = named<QListWidget>(QStringLiteral("lstFrequency"), parent);
    frequency->setFixedHeight(82);
    v->addWidget(caption(0, parent, frequency));
    v->addWidget(frequency);
    v->addSpacing(6);
    auto* duration = named<QComboBox>(QStringLiteral("cboDuration"), parent);
    duration->setEditable(true);
    v->addWidget(caption(1, parent, duration));
    v->addWidget(duration);
    QLabel* note = caption(2, parent);
    QFont small = note->font();
    small.setItalic(true);
    note->setFont(small);
    v->addWidget(note);
    v->addSpacing(6);
    v->addWidget(named<QCheckBox>(QStringLiteral("ckRenew"), parent));
    v->addStretch(1);
    return v;
}

QLayout* serviceFrames(QWidget* parent) {
    auto* over = new QGridLayout;
    auto* services = named<QGroupBox>(QStringLiteral("fraServices"), parent);
    auto* s = new QGridLayout(services);
    auto* name = named<QComboBox>(QStringLiteral("cboServices"), services);
    name->setAccessibleName(QStringLiteral("Service"));
    auto* price = named<QComboBox>(QStringLiteral("cboPrices"), services);
    price->setAccessibleName(QStringLiteral("Price"));
    s->addWidget(name, 0, 0);
    s->addWidget(price, 0, 1);
    s->setColumnStretch(0, 3);
    s->setColumnStretch(1, 1);
    over->addWidget(services, 0, 0);

    auto* manual = named<QGroupBox>(QStringLiteral("fraManual"), parent);
    auto* m = new QGridLayout(manual);
    auto* description = named<QLineEdit>(QStringLiteral("txtService"), manual);
    auto* amount = named<QLineEdit>(QStringLiteral("txtPrice"), manual);
    amount->setAlignment(Qt::AlignRight);
    m->addWidget(caption(3, manual, description), 0, 0);
    m->addWidget(caption(4, manual, amount), 0, 1);
    m->addWidget(description, 1, 0);
    m->addWidget(amount, 1, 1);
    m->setColumnStretch(0, 3);
    m->setColumnStretch(1, 1);
    over->addWidget(manual, 0, 0);
    return over;
}

} // namespace

ContractView::ContractView(Session& session, frmContract& screen)
    : ScreenView(session.platform.dialogs), m_screen(screen) {
    setMinimumSize(1180, 720);
    QVBoxLayout* outer = WindowWithMenuBar(this, {"mnuServices", "mnuManual"});
    QHBoxLayout* body = AddBodyRow(outer);

    auto* left = new QVBoxLayout;
    left->addWidget(partyBox(this));
    auto* terms = new QHBoxLayout;
    terms->addLayout(termsColumn(this), 1);
    auto* dates = new QVBoxLayout;
    auto* calendar = named<QCalendarWidget>(QStringLiteral("Calendar1"), this);
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar->setGridVisible(true);
    dates->addWidget(caption(8, this, calendar));
    dates->addWidget(calendar);
    dates->addStretch(1);
    terms->addLayout(dates, 1);
    left->addLayout(terms);
    left->addLayout(serviceFrames(this));
    left->addStretch(1);
    auto* buttons = new QGridLayout;
    QPushButton* build = button(QStringLiteral("cmdGeneric"), this);
    QPushButton* create = button(QStringLiteral("cmdAddServicetoBody"), this);
    QFont bold = create->font();
    bold.setBold(true);
    create->setFont(bold);
    buttons->addWidget(build, 0, 0);
    buttons->addWidget(create, 0, 1);
    buttons->addWidget(button(QStringLiteral("Command2"), this), 1, 0);
    buttons->addWidget(button(QStringLiteral("cmdMenu"), this), 1, 1);
    left->addLayout(buttons);
    body->addLayout(left, 5);

    auto* right = new QVBoxLayout;
    m_body = named<QTextBrowser>(QStringLiteral("txtBody"), this);
    m_body->setAccessibleName(QStringLiteral("Contract"));
    m_body->setMinimumWidth(560);
    m_body->setStyleSheet(QStringLiteral("QTextBrowser { background: white; }"));
    QLabel* hint = caption(5, this, m_body);
    right->addWidget(hint);
    right->addWidget(m_body, 1);
    body->addLayout(right, 6);

    binder().bindAll(screen.controls);
    Binder& b = binder();
    b.onClick(screen.cmdGeneric, [this] {
        m_screen.cmdGeneric_Click();
        showBody();
    });
    b.onClick(screen.cmdAddServicetoBody, [this] {
        m_screen.cmdAddServicetoBody_Click();
        showBody();
    });
    b.onClick(screen.Command2, [this] {
        m_screen.Command2_Click();
        showBody();
    });
    b.onClick(screen.cmdMenu, [this] { m_screen.cmdMenu_Click(); });
    b.onClick(screen.cboServices, [this] { m_screen.cboServices_Click(); });
    b.onClick(screen.cboPrices, [this] { m_screen.cboPrices_Click(); });
    b.onGotFocus(screen.txtPrice, [this] { m_screen.txtPrice_GotFocus(); });
    b.onLostFocus(screen.txtPrice, [this] { m_screen.txtPrice_LostFocus(); });
    b.onChange(screen.Calendar1, [this] { m_screen.Calendar1_Change(); });
    b.onClick(screen.mnuServices, [this] { m_screen.mnuServices_Click(); });
    b.onClick(screen.mnuManual, [this] { m_screen.mnuManual_Click(); });
    setActivateHandler([this] { showBody(); });
    FollowScreen(*this, screen, session);
    b.sync();
    showBody();
}

void ContractView::showBody() {
    if (m_shownRevision == m_screen.bodyRevision) return;
    m_shownRevision = m_screen.bodyRevision;
    if (m_screen.txtBody.isEmpty())
        m_body->clear();
    else
        m_body->setHtml(rtf::toHtml(m_screen.txtBody));
}

} // namespace ostrel::ui
