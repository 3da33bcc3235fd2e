#include "WorkOrdersView.h"
#include "NamedWidgets.h"

#include "ScreenWindow.h"
#include "binder/CheckableList.h"
#include "binder/ClickableImage.h"
#include "shell/Session.h"
#include "workorders/frmWorkOrders.h"

#include <QAction>
#include <QCheckBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QTableWidget>
#include <QVBoxLayout>

namespace ostrel::ui {

namespace {

QPushButton* button(int index, QWidget* parent) {
    auto* b = named<QPushButton>(element("cmdWorkOrders", index), parent);
    b->setMinimumHeight(28);
    return b;
}

QTableWidget* grid(const QString& name, int columns, QWidget* parent, int stretchColumn = 0) {
    auto* t = new QTableWidget(0, columns, parent);
    t->setObjectName(name);
    t->setAlternatingRowColors(true);
    t->setEditTriggers(QAbstractItemView::NoEditTriggers);
    t->setSelectionBehavior(QAbstractItemView::SelectRows);
    t->verticalHeader()->setVisible(false);
    t->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    t->horizontalHeader()->setSectionResizeMode(stretchColumn, QHeaderView::Stretch);
    return t;
}

QGroupBox* frame(const char* name, QWidget* parent) { return named<QGroupBox>(QLatin1String(name), parent); }

// A small picture that acts as a button, drawn from the style so it needs no picture file.
ClickableImage* picture(int index, QStyle::StandardPixmap icon, QWidget* parent) {
    auto* p = new ClickableImage(parent);
    p->setObjectName(element("imgSave", index));
    p->setCursor(Qt::PointingHandCursor);
    p->setProperty("icon", int(icon));
    return p;
}

QRadioButton* option(const char* base, int index, QWidget* parent) {
    return named<QRadioButton>(element(base, index), parent);
}

} // namespace

WorkOrdersView::WorkOrdersView(Session& session, frmWorkOrders& screen)
    : ScreenView(session.platform.dialogs), m_screen(screen) {
    setMinimumSize(1180, 760);
    QVBoxLayout* outer = WindowWithMenuBar(this, {"mnuInstructions", "mnuOverview"});
    QHBoxLayout* body = AddBodyRow(outer);
    body->addWidget(findColumn(), 0);
    body->addWidget(workColumn(), 1);

    binder().bindAll(screen.controls);
    // The pictures are drawn once; the binding leaves a picture it has cleared alone.
    for (auto& [i, model] : screen.imgSave)
        if (auto* p = qobject_cast<QLabel*>(binder().widgetFor(model)))
            p->setPixmap(style()->standardIcon(QStyle::StandardPixmap(p->property("icon").toInt())).pixmap(28, 28));
    wire();
    FollowScreen(*this, screen, session);
    binder().sync();
}

QWidget* WorkOrdersView::findColumn() {
    auto* column = new QWidget(this);
    column->setMinimumWidth(330);
    column->setMaximumWidth(380);
    auto* l = new QVBoxLayout(column);
    l->setContentsMargins(0, 0, 0, 0);

    auto* finder = new QGroupBox(QStringLiteral("Find Work Orders"), column);
    auto* fl = new QVBoxLayout(finder);
    for (int i = 0; i <= 2; ++i)
        fl->addWidget(option("optFindBy", i, finder));

    QGroupBox* date = frame("fraDate", finder);
    auto* dl = new QHBoxLayout(date);
    auto* picker = named<QDateEdit>(QStringLiteral("DTPicker1"), date);
    picker->setCalendarPopup(true);
    picker->setDisplayFormat(QStringLiteral("dddd, MMMM d, yyyy"));
    picker->setAccessibleName(QStringLiteral("Appointment Date"));
    dl->addWidget(picker);
    fl->addWidget(date);

    QGroupBox* places = frame("fraAssignmentList", finder);
    auto* pl = new QVBoxLayout(places);
    auto* assignments = named<QListWidget>(QStringLiteral("lstAssignments"), places);
    assignments->setAccessibleName(QStringLiteral("Point of Service"));
    assignments->setMaximumHeight(150);
    pl->addWidget(assignments);
    fl->addWidget(places);

    auto* loadRow = new QHBoxLayout;
    loadRow->addWidget(button(1, finder), 1);
    loadRow->addWidget(picture(1, QStyle::SP_BrowserReload, finder));
    fl->addLayout(loadRow);
    l->addWidget(finder);

    auto* found = new QGroupBox(QStringLiteral("Appointments Found"), column);
    auto* wl = new QVBoxLayout(found);
    auto* hint = named<QLabel>(element("Label1", 2), found);
    hint->setWordWrap(true);
    wl->addWidget(hint);
    auto* list = named<QListWidget>(QStringLiteral("lstWorkorders"), found);
    list->setAccessibleName(QStringLiteral("Appointments Found"));
    list->setMinimumHeight(120);
    wl->addWidget(list, 1);
    wl->addWidget(button(5, found));
    l->addWidget(found, 1);

    auto* buttons = new QGridLayout;
    buttons->addWidget(button(8, column), 0, 0);
    buttons->addWidget(button(10, column), 0, 1);
    buttons->addWidget(button(0, column), 1, 0, 1, 2);
    l->addLayout(buttons);
    return column;
}

QWidget* WorkOrdersView::workColumn() {
    auto* column = new QWidget(this);
    auto* l = new QVBoxLayout(column);
    l->setContentsMargins(0, 0, 0, 0);

    // The overview and the step list come first, above the slip, while they are shown.
    QGroupBox* overview = frame("fraOverview", column);
    auto* ol = new QVBoxLayout(overview);
    ol->addWidget(grid(QStringLiteral("fgOverview"), 7, overview, 3), 1);
    auto* orow = new QHBoxLayout;
    orow->addWidget(new QLabel(QStringLiteral("Click an appointment of today or later to open it."), overview), 1);
    orow->addWidget(button(14, overview));
    ol->addLayout(orow);
    l->addWidget(overview, 3);

    QGroupBox* steps = frame("fraInstructions", column);
    auto* sl = new QVBoxLayout(steps);
    for (const auto& [i, model] : m_screen.lblInstructions) {
        auto* s = named<QLabel>(element("lblInstructions", i), steps);
        s->setWordWrap(true);
        sl->addWidget(s);
    }
    l->addWidget(steps);

    QGroupBox* services = frame("fraWorkorders", column);
    auto* vl = new QVBoxLayout(services);
    vl->addWidget(grid(QStringLiteral("fgServices"), 4, services), 1);
    auto* actions = new QHBoxLayout;
    for (int i : {6, 9, 12, 7})
        actions->addWidget(button(i, services));
    actions->addStretch(1);
    actions->addWidget(button(3, services));
    actions->addWidget(picture(0, QStyle::SP_DialogSaveButton, services));
    vl->addLayout(actions);
    l->addWidget(services, 2);

    QGroupBox* add = frame("fraAddServices", column);
    auto* al = new QGridLayout(add);
    al->addWidget(new QLabel(QStringLiteral("Click a service, then right-click it to add it to this Work Order"), add),
                  0, 0, 1, 2);
    al->addWidget(grid(QStringLiteral("fgAddServices"), 3, add), 1, 0);
    auto* addedBox = new QVBoxLayout;
    addedBox->addWidget(new QLabel(QStringLiteral("Added in this visit"), add));
    addedBox->addWidget(grid(QStringLiteral("fgItemsAdded"), 3, add), 1);
    al->addLayout(addedBox, 1, 1);
    al->addWidget(button(4, add), 2, 1, Qt::AlignRight);
    l->addWidget(add, 2);

    QGroupBox* print = frame("fraTerms", column);
    auto* pl = new QGridLayout(print);
    auto* docs = new QVBoxLayout;
    docs->addWidget(new QLabel(QStringLiteral("Print with the Work Order:"), print));
    for (const char* n : {"ckCompletion", "ckPick", "ckInstructions"})
        docs->addWidget(named<QCheckBox>(QLatin1String(n), print));
    docs->addSpacing(6);
    docs->addWidget(named<QCheckBox>(QStringLiteral("ckPrintInvoice"), print));
    auto* warning = named<QLabel>(element("Label1", 1), print);
    QFont wf = warning->font();
    wf.setItalic(true);
    warning->setFont(wf);
    docs->addWidget(warning);
    docs->addStretch(1);
    pl->addLayout(docs, 0, 0);
    QGroupBox* texts = frame("fraTermsandDis", print);
    auto* tl = new QGridLayout(texts);
    // Two sets of options: each pair is exclusive on its own.
    auto* termsBox = new QWidget(texts);
    auto* tbl = new QVBoxLayout(termsBox);
    tbl->setContentsMargins(0, 0, 0, 0);
    tbl->addWidget(option("optTerms", 0, termsBox));
    tbl->addWidget(option("optTerms", 1, termsBox));
    auto* disclaimerBox = new QWidget(texts);
    auto* dbl = new QVBoxLayout(disclaimerBox);
    dbl->setContentsMargins(0, 0, 0, 0);
    dbl->addWidget(option("optDisclaimer", 0, disclaimerBox));
    dbl->addWidget(option("optDisclaimer", 1, disclaimerBox));
    tl->addWidget(termsBox, 0, 0);
    tl->addWidget(disclaimerBox, 0, 1);
    pl->addWidget(texts, 0, 1);
    auto* prow = new QHBoxLayout;
    prow->addStretch(1);
    prow->addWidget(button(13, print));
    QPushButton* go = button(2, print);
    go->setMinimumWidth(160);
    prow->addWidget(go);
    pl->addLayout(prow, 1, 0, 1, 2);
    l->addWidget(print);

    QGroupBox* parts = frame("fraPicklist", column);
    auto* kl = new QVBoxLayout(parts);
    kl->addWidget(grid(QStringLiteral("fgPicklist"), 2, parts, 1), 1);
    kl->addWidget(button(11, parts), 0, Qt::AlignRight);
    l->addWidget(parts, 2);
    return column;
}

void WorkOrdersView::wire() {
    Binder& b = binder();
    frmWorkOrders& s = m_screen;
    if (auto* list = qobject_cast<QListWidget*>(b.widgetFor(s.lstWorkorders)))
        m_entryChecks = new CheckableList(
            list, b, [this](int row) { return m_screen.EntrySelected(row); },
            [this](int row, bool selected) { m_screen.lstWorkorders_ItemCheck(row, selected); });
    // Any of these may change which appointments are selected.
    const auto showEntries = [this] {
        if (m_entryChecks) m_entryChecks->showSoon();
    };
    b.onClick(s.cmdWorkOrders, [this, showEntries](int i) {
        m_screen.cmdWorkOrders_Click(i);
        showEntries();
    });
    b.onClick(s.optFindBy, [this](int i) { m_screen.optFindBy_Click(i); });
    b.onClick(s.fgOverview, [this, showEntries] {
        m_screen.fgOverview_Click();
        showEntries();
    });
    b.onClick(s.lstWorkorders, [this, showEntries] {
        m_screen.lstWorkorders_Click();
        showEntries();
    });
    b.onClick(s.fgAddServices, [this] { m_screen.fgAddServices_Click(); });
    b.onClick(s.mnuInstructions, [this] { m_screen.mnuInstructions_Click(); });
    b.onClick(s.mnuOverview, [this] { m_screen.mnuOverview_Click(); });
    b.onClick(s.imgSave[0], [this] { m_screen.cmdWorkOrders_Click(3); });
    b.onClick(s.imgSave[1], [this, showEntries] {
        m_screen.cmdWorkOrders_Click(1);
        showEntries();
    });

    // The activation loads the day's appointments: the window shows them once it has run.
    setActivateHandler([showEntries] { showEntries(); });

    // A right click adds the service the left click chose; the grid has no such event of its own.
    if (auto* table = qobject_cast<QTableWidget*>(b.widgetFor(s.fgAddServices))) {
        table->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(table, &QWidget::customContextMenuRequested, this,
                [this] { binder().dispatch([this] { m_screen.fgAddServices_RightClick(); }); });
    }
}

} // namespace ostrel::ui
