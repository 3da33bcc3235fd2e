#include "ReprintView.h"

#include "NamedWidgets.h"
#include "ScreenWindow.h"
#include "invoicing/frmReprint.h"
#include "shell/Session.h"
#include "store/LocaleText.h"

#include <QAction>
#include <QDateEdit>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTextEdit>
#include <QVBoxLayout>

namespace ostrel::ui {

namespace {

QTableWidget* grid(const char* name, QWidget* parent, int columns, int stretchColumn) {
    auto* t = named<QTableWidget>(QLatin1String(name), parent);
    t->setColumnCount(columns);
    t->setAlternatingRowColors(true);
    t->setSelectionBehavior(QAbstractItemView::SelectRows);
    t->setEditTriggers(QAbstractItemView::NoEditTriggers);
    t->horizontalHeader()->setStretchLastSection(false);
    t->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    if (stretchColumn >= 0) t->horizontalHeader()->setSectionResizeMode(stretchColumn, QHeaderView::Stretch);
    return t;
}

// A value shown under a heading that names it, also to assistive tools.
QLabel* value(const QString& name, const QString& heading, QWidget* parent) {
    auto* l = named<QLabel>(name, parent);
    l->setAccessibleDescription(heading);
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);
    l->setMinimumWidth(90);
    return l;
}

QLabel* heading(const QString& text, QWidget* parent) {
    auto* l = new QLabel(text, parent);
    QFont f = l->font();
    f.setBold(true);
    l->setFont(f);
    return l;
}

QGroupBox* addressBox(const QString& title, const char* base, QWidget* parent) {
    auto* box = new QGroupBox(title, parent);
    auto* v = new QVBoxLayout(box);
    v->setSpacing(2);
    auto* cityLine = new QHBoxLayout;
    for (int i = 0; i < 6; ++i) {
        QLabel* l = value(element(base, i), title, box);
        l->setMinimumWidth(i >= 3 ? 40 : 200);
        if (i < 3) v->addWidget(l);
        else cityLine->addWidget(l, i == 3 ? 3 : 1);
    }
    v->addLayout(cityLine);
    v->addStretch(1);
    return box;
}

} // namespace

ReprintView::ReprintView(Session& session, frmReprint& screen)
    : ScreenView(session.platform.dialogs), m_screen(screen) {
    setMinimumSize(1040, 680);
    QVBoxLayout* outer = WindowWithMenuBar(this, {"mnuSort"});

    // The detail frame lies over the list, as a sheet laid on it.
    auto* over = new QGridLayout;
    over->setContentsMargins(12, 8, 12, 0);
    over->addWidget(listPanel(), 0, 0);
    over->addWidget(detailFrame(), 0, 0);
    outer->addLayout(over, 1);

    binder().bindAll(screen.controls);
    if (auto* t = findChild<QTableWidget*>(QStringLiteral("fgReceivables"))) t->setColumnHidden(frmReprint::kSortKey, true);
    wire();
    FollowScreen(*this, screen, session);
    binder().sync();
}

QWidget* ReprintView::listPanel() {
    auto* panel = new QWidget(this);
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(grid("fgReceivables", panel, 6, frmReprint::kAccountName), 1);

    auto* side = new QVBoxLayout;
    side->addWidget(sortFrame());
    auto* records = new QGroupBox(QStringLiteral("Records"), panel);
    auto* rv = new QVBoxLayout(records);
    rv->addWidget(named<QPushButton>(QStringLiteral("cmdReport"), records));
    auto* dateCaption = new QLabel(QStringLiteral("Invoices prior to this date will be deleted"), records);
    dateCaption->setWordWrap(true);
    auto* date = named<QDateEdit>(QStringLiteral("DTPicker1"), records);
    date->setCalendarPopup(true);
    date->setDisplayFormat(kShortDateFormat);
    dateCaption->setBuddy(date);
    rv->addWidget(dateCaption);
    rv->addWidget(date);
    rv->addWidget(named<QPushButton>(QStringLiteral("cmdKill"), records));
    side->addWidget(records);
    side->addStretch(1);
    side->addWidget(named<QPushButton>(QStringLiteral("cmdExit"), panel));
    row->addLayout(side);
    return panel;
}

QWidget* ReprintView::sortFrame() {
    auto* box = named<QGroupBox>(QStringLiteral("fraSort"), this);
    auto* v = new QVBoxLayout(box);
    auto* columns = new QWidget(box);
    auto* cv = new QVBoxLayout(columns);
    cv->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < 3; ++i) cv->addWidget(named<QRadioButton>(element("optCol", i), columns));
    v->addWidget(columns);
    auto* order = new QWidget(box);
    auto* ov = new QVBoxLayout(order);
    ov->setContentsMargins(0, 6, 0, 0);
    for (int i = 0; i < 2; ++i) ov->addWidget(named<QRadioButton>(element("optSort", i), order));
    v->addWidget(order);
    v->addWidget(named<QPushButton>(QStringLiteral("cmdMode"), box));
    return box;
}

QWidget* ReprintView::detailFrame() {
    auto* frame = named<QGroupBox>(QStringLiteral("fraInvoice"), this);
    frame->setAutoFillBackground(true);
    auto* v = new QVBoxLayout(frame);

    auto* top = new QHBoxLayout;
    auto* facts = new QFormLayout;
    facts->addRow(heading(QStringLiteral("Creation Date"), frame), value(element("Label1", 19), "Creation Date", frame));
    facts->addRow(heading(QStringLiteral("Invoice No"), frame), value(element("Label1", 27), "Invoice No", frame));
    facts->addRow(heading(QStringLiteral("Account Number"), frame),
                  value(element("Label1", 17), "Account Number", frame));
    facts->addRow(heading(QStringLiteral("Reference or PO #"), frame),
                  value(element("Label1", 9), "Reference or PO #", frame));
    facts->addRow(heading(QStringLiteral("Ship Via"), frame), value(element("Label1", 32), "Ship Via", frame));
    facts->addRow(heading(QStringLiteral("Date"), frame), value(element("Label1", 33), "Date", frame));
    auto* attnCaption = heading(QStringLiteral("To the Attn of:"), frame);
    auto* attn = named<QLineEdit>(QStringLiteral("txtAttn"), frame);
    attnCaption->setBuddy(attn);
    facts->addRow(attnCaption, attn);
    top->addLayout(facts, 2);
    top->addWidget(addressBox(QStringLiteral("Billed to"), "lblBillTo", frame), 2);
    top->addWidget(addressBox(QStringLiteral("Shipped  to"), "lblShipTo", frame), 2);
    v->addLayout(top);

    auto* middle = new QHBoxLayout;
    middle->addWidget(grid("fgItems", frame, 5, 1), 3);

    auto* totals = new QGridLayout;
    int r = 0;
    auto addTotal = [&](QLabel* head, int index) {
        head->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        QLabel* amount = value(element("lblInvoice", index), head->text(), frame);
        amount->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        amount->setFrameShape(QFrame::StyledPanel);
        totals->addWidget(head, r, 0);
        totals->addWidget(amount, r, 1);
        ++r;
    };
    addTotal(heading(QStringLiteral("Item Sub Total"), frame), 0);
    auto* tax1 = named<QLabel>(element("Label1", 1), frame);
    tax1->setFont(heading(QString(), frame)->font());
    addTotal(tax1, 1);
    auto* tax2 = named<QLabel>(element("Label1", 22), frame);
    tax2->setFont(tax1->font());
    addTotal(tax2, 9);
    addTotal(heading(QStringLiteral("Shipping Charge"), frame), 4);
    addTotal(heading(QStringLiteral("Handling"), frame), 5);
    addTotal(heading(QStringLiteral("Discount Offered"), frame), 6);
    addTotal(heading(QStringLiteral("Invoice Grand Total"), frame), 2);
    totals->setRowStretch(r, 1);
    middle->addLayout(totals, 1);
    v->addLayout(middle, 1);

    auto* bottom = new QHBoxLayout;
    auto* memoColumn = new QVBoxLayout;
    auto* memoCaption = new QLabel(QStringLiteral("The Memo can change This may not be the Original Memo"), frame);
    auto* memo = named<QTextEdit>(QStringLiteral("txtMemo"), frame);
    memo->setAcceptRichText(false);
    memo->setMaximumHeight(90);
    memoCaption->setBuddy(memo);
    memoColumn->addWidget(memoCaption);
    memoColumn->addWidget(memo);
    bottom->addLayout(memoColumn, 1);
    auto* buttons = new QVBoxLayout;
    for (const char* n : {"cmdPrint", "cmdMemo", "cmdHide"}) {
        auto* b = named<QPushButton>(QLatin1String(n), frame);
        b->setMinimumWidth(130);
        buttons->addWidget(b);
    }
    bottom->addLayout(buttons);
    v->addLayout(bottom);
    return frame;
}

void ReprintView::wire() {
    Binder& b = binder();
    frmReprint& s = m_screen;
    b.onClick(s.fgReceivables, [this] { m_screen.fgReceivables_Click(); });
    b.onClick(s.cmdHide, [this] { m_screen.cmdHide_Click(); });
    b.onClick(s.cmdPrint, [this] { m_screen.cmdPrint_Click(); });
    b.onClick(s.cmdMemo, [this] { m_screen.cmdMemo_Click(); });
    b.onClick(s.cmdExit, [this] { m_screen.cmdExit_Click(); });
    b.onClick(s.cmdReport, [this] { m_screen.cmdReport_Click(); });
    b.onClick(s.cmdKill, [this] { m_screen.cmdKill_Click(); });
    b.onChange(s.DTPicker1, [this] { m_screen.DTPicker1_Change(); });
    b.onClick(s.mnuSort, [this] { m_screen.mnuSort_Click(); });
    b.onClick(s.cmdMode, [this] { m_screen.cmdMode_Click(); });
}

} // namespace ostrel::ui
