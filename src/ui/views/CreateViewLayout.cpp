#include "CreateViewLayout.h"
#include "NamedWidgets.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTableWidget>
#include <QVBoxLayout>

namespace ostrel::ui {

namespace {

constexpr int kDayRowHeight = 16;
constexpr int kDayRows = 48;

QPushButton* button(int index, QWidget* parent) {
    auto* b = named<QPushButton>(element("cmdService", index), parent);
    b->setMinimumHeight(28);
    return b;
}

QGroupBox* frame(const char* name, QWidget* parent) {
    auto* g = named<QGroupBox>(QLatin1String(name), parent);
    QFont bold = g->font();
    bold.setBold(true);
    g->setFont(bold);
    return g;
}

// A frame's children keep the normal font; only the frame's own title is bold.
void plainFont(QWidget* w) {
    QFont f = w->font();
    f.setBold(false);
    w->setFont(f);
}

QTableWidget* grid(const char* name, QWidget* parent, int columns, int stretchColumn) {
    auto* t = new QTableWidget(0, columns, parent);
    t->setObjectName(QLatin1String(name));
    t->setAlternatingRowColors(true);
    t->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    t->horizontalHeader()->setSectionResizeMode(stretchColumn, QHeaderView::Stretch);
    t->horizontalHeader()->setMinimumSectionSize(60);
    t->verticalHeader()->setDefaultSectionSize(20);
    plainFont(t);
    return t;
}

// A caption above or beside its control, which also names the control to assistive tools.
QLabel* caption(const QString& text, QWidget* buddy, QWidget* parent) {
    auto* l = new QLabel(text, parent);
    l->setBuddy(buddy);
    plainFont(l);
    return l;
}

QLabel* heading(const QString& text, QWidget* parent) {
    auto* l = new QLabel(text, parent);
    QFont f = l->font();
    f.setBold(true);
    l->setFont(f);
    return l;
}

// What a person picks from: the Point of Service, the services, the sales items; always in sight.
QWidget* choicesColumn(QWidget* window) {
    auto* column = new QWidget(window);
    column->setFixedWidth(350);
    auto* v = new QVBoxLayout(column);
    v->setContentsMargins(0, 0, 0, 0);

    auto* areas = named<QListWidget>(QStringLiteral("lstAssignments"), column);
    areas->setMaximumHeight(84);
    v->addWidget(heading(QStringLiteral("Point of Service"), column));
    areas->setAccessibleName(QStringLiteral("Point of Service"));
    v->addWidget(areas);
    v->addSpacing(6);

    auto* services = named<QListWidget>(QStringLiteral("lstServices"), column);
    services->setAccessibleName(QStringLiteral("Services"));
    v->addWidget(caption(QStringLiteral("Services (check one, then Add)"), services, column));
    v->addWidget(services, 1);
    v->addWidget(button(11, column));
    // The parallel lists of cost and time stay out of sight, as on the original form.
    for (auto [n, name] : {std::pair{"cboServicesCost", "Service Costs"}, {"cboTime", "Service Times"}}) {
        auto* hidden = named<QComboBox>(QLatin1String(n), column);
        hidden->setAccessibleName(QLatin1String(name));
        hidden->hide();
        v->addWidget(hidden);
    }
    auto* slips = named<QListWidget>(QStringLiteral("lstWorkorders"), column);
    slips->setAccessibleName(QStringLiteral("Appointment Slips"));
    slips->hide();
    v->addWidget(slips);
    v->addSpacing(8);

    auto* items = new QGroupBox(QStringLiteral("Sales Items"), column);
    auto* g = new QGridLayout(items);
    auto* categories = named<QListWidget>(QStringLiteral("lstCategories"), items);
    categories->setMaximumHeight(90);
    g->addWidget(caption(QStringLiteral("Category"), categories, items), 0, 0, Qt::AlignTop);
    g->addWidget(categories, 0, 1, 1, 2);
    auto* item = named<QComboBox>(QStringLiteral("cboItems"), items);
    item->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    item->setMinimumContentsLength(12);
    g->addWidget(caption(QStringLiteral("Item"), item, items), 1, 0);
    g->addWidget(item, 1, 1, 1, 2);
    auto* price = named<QComboBox>(QStringLiteral("cboItemPrices"), items);
    g->addWidget(caption(QStringLiteral("Price"), price, items), 2, 0);
    g->addWidget(price, 2, 1);
    auto* quantity = named<QLineEdit>(QStringLiteral("txtQuantity"), items);
    quantity->setMaximumWidth(90);
    g->addWidget(caption(QStringLiteral("Quantity"), quantity, items), 3, 0);
    g->addWidget(quantity, 3, 1);
    g->addWidget(button(10, items), 3, 2);
    auto* total = named<QLabel>(QStringLiteral("lblItemTotal"), items);
    total->setFrameShape(QFrame::StyledPanel);
    total->setMinimumWidth(90);
    total->setAccessibleName(QStringLiteral("Item Total"));
    g->addWidget(caption(QStringLiteral("Item Total"), total, items), 4, 0);
    g->addWidget(total, 4, 1);
    g->addWidget(button(9, items), 5, 0, 1, 3);
    g->addWidget(button(12, items), 6, 0, 1, 3);
    g->setColumnStretch(1, 1);
    v->addWidget(items);
    v->addSpacing(8);

    v->addWidget(button(6, column));
    v->addWidget(button(0, column));
    return column;
}

QGroupBox* accountFrame(QWidget* parent) {
    QGroupBox* f = frame("fraAccount", parent);
    auto* form = new QFormLayout(f);
    const char* const captions[] = {"Account No", "Name",  "Address",     "Address 2",
                                    "City",       "State", "Postal Code", "Telephone"};
    for (int i = 0; i < 8; ++i) {
        auto* value = named<QLabel>(element("lblCustomer", i), f);
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);
        plainFont(value);
        form->addRow(caption(QLatin1String(captions[i]), value, f), value);
    }
    auto* account = named<QLabel>(QStringLiteral("lblAccount"), f);
    plainFont(account);
    form->addRow(caption(QStringLiteral("Account"), account, f), account);
    return f;
}

// A frame of what the appointment holds so far: its grid, and how to take a row out.
QGroupBox* addedFrame(const char* frameName, const char* gridName, int columns, int stretchColumn,
                      const QString& accessibleName, QWidget* parent, QVBoxLayout** layout) {
    QGroupBox* f = frame(frameName, parent);
    auto* v = new QVBoxLayout(f);
    QTableWidget* g = grid(gridName, f, columns, stretchColumn);
    g->setAccessibleName(accessibleName);
    g->setMinimumHeight(150);
    v->addWidget(g);
    auto* hint = new QLabel(QStringLiteral("Right click a row to remove it"), f);
    plainFont(hint);
    v->addWidget(hint);
    *layout = v;
    return f;
}

QGroupBox* servicesFrame(QWidget* parent) {
    QVBoxLayout* v = nullptr;
    QGroupBox* f = addedFrame("fraServices", "fgServices", 3, 0, QStringLiteral("Services Added"), parent, &v);
    v->addWidget(button(15, f));
    return f;
}

QGroupBox* itemsFrame(QWidget* parent) {
    QVBoxLayout* v = nullptr;
    return addedFrame("fraItems", "fgItems", 4, 1, QStringLiteral("Sales Items added"), parent, &v);
}

QGroupBox* addToFrame(QWidget* parent) {
    QGroupBox* f = frame("fraAddTo", parent);
    auto* form = new QFormLayout(f);
    auto* service = named<QLineEdit>(QStringLiteral("txtAdditional"), f);
    plainFont(service);
    form->addRow(caption(QStringLiteral("Additional Service"), service, f), service);
    auto* cost = named<QLineEdit>(QStringLiteral("txtCost"), f);
    cost->setMaximumWidth(120);
    plainFont(cost);
    form->addRow(caption(QStringLiteral("Price"), cost, f), cost);
    auto* time = named<QListWidget>(QStringLiteral("lstTime"), f);
    time->setMaximumSize(120, 110);
    plainFont(time);
    form->addRow(caption(QStringLiteral("Time Required"), time, f), time);
    auto* comments = named<QPlainTextEdit>(QStringLiteral("txtComments"), f);
    comments->setMaximumHeight(90);
    plainFont(comments);
    form->addRow(caption(QStringLiteral("Customer Comments"), comments, f), comments);
    auto* row = new QHBoxLayout;
    for (int i : {3, 7, 1}) {
        QPushButton* b = button(i, f);
        plainFont(b);
        row->addWidget(b);
    }
    form->addRow(row);
    QPushButton* close = button(5, f);
    plainFont(close);
    // The caption holds its own long runs of blanks; it reads as two lines on the form.
    close->setMinimumHeight(34);
    form->addRow(close);
    return f;
}

QGroupBox* summaryFrame(QWidget* parent) {
    QGroupBox* f = frame("fraSummary", parent);
    auto* v = new QVBoxLayout(f);
    auto* summary = named<QPlainTextEdit>(QStringLiteral("txtServicesSummary"), f);
    summary->setReadOnly(true);
    summary->setMaximumHeight(80);
    plainFont(summary);
    v->addWidget(caption(QStringLiteral("Services"), summary, f));
    v->addWidget(summary);
    QTableWidget* items = grid("fgItemSummary", f, 4, 1);
    items->setAccessibleName(QStringLiteral("Items"));
    items->setMaximumHeight(110);
    v->addWidget(items);

    auto* totals = new QHBoxLayout;
    auto* time = named<QLabel>(QStringLiteral("lblTime"), f);
    auto* cost = named<QLabel>(QStringLiteral("lblCost"), f);
    for (QLabel* l : {time, cost}) {
        l->setFrameShape(QFrame::StyledPanel);
        l->setMinimumWidth(80);
    }
    totals->addWidget(caption(QStringLiteral("Total Time"), time, f));
    totals->addWidget(time);
    totals->addSpacing(12);
    totals->addWidget(caption(QStringLiteral("Total Cost"), cost, f));
    totals->addWidget(cost);
    totals->addStretch(1);
    v->addLayout(totals);

    auto* date = new QHBoxLayout;
    auto* picker = named<QDateEdit>(QStringLiteral("DTPicker1"), f);
    picker->setCalendarPopup(true);
    picker->setDisplayFormat(QStringLiteral("dddd, MMMM d, yyyy"));
    plainFont(picker);
    date->addWidget(caption(QStringLiteral("Date"), picker, f));
    date->addWidget(picker, 1);
    for (int i = 0; i < 4; ++i) {
        auto* b = named<QPushButton>(element("cmdDay", i), f);
        b->setFixedWidth(34);
        plainFont(b);
        date->addWidget(b);
    }
    v->addLayout(date);
    for (int i : {13, 4, 8}) {
        QPushButton* b = button(i, f);
        plainFont(b);
        v->addWidget(b);
    }
    return f;
}

QGroupBox* instructionsFrame(QWidget* parent, int lines) {
    QGroupBox* f = frame("fraInstructions", parent);
    auto* v = new QVBoxLayout(f);
    for (int i = 0; i < lines; ++i) {
        auto* l = named<QLabel>(element("lblInstructions", i), f);
        l->setWordWrap(true);
        plainFont(l);
        v->addWidget(l);
    }
    return f;
}

QGroupBox* scheduleFrame(QWidget* parent) {
    QGroupBox* f = frame("fraSchedule", parent);
    auto* v = new QVBoxLayout(f);
    QTableWidget* day = grid("fgDaySchedule", f, 1, 0);
    day->setAccessibleName(QStringLiteral("Day Schedule"));
    day->setAlternatingRowColors(false);
    // The smallest section first: the default may not go below it.
    day->verticalHeader()->setMinimumSectionSize(kDayRowHeight);
    day->verticalHeader()->setDefaultSectionSize(kDayRowHeight);
    day->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    day->verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    day->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    day->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The whole day in sight: the heading row and the 48 rows, nothing to scroll.
    const int height = day->horizontalHeader()->sizeHint().height() + kDayRows * kDayRowHeight + 2 * day->frameWidth();
    day->setFixedHeight(height);
    v->addWidget(day);
    auto* check = named<QCheckBox>(QStringLiteral("ckPrintInvoice"), f);
    plainFont(check);
    v->addWidget(check);
    // The save on a row of its own: its caption is long and must read whole.
    QPushButton* save = button(2, f);
    v->addWidget(save);
    QPushButton* other = button(14, f);
    plainFont(other);
    v->addWidget(other);
    return f;
}

} // namespace

void BuildCreateWidgets(QWidget* window, int instructionLines) {
    auto* outer = new QVBoxLayout(window);
    outer->setContentsMargins(0, 0, 0, 8);

    auto* bar = new QMenuBar(window);
    auto* toggle = new QMenu(bar);
    toggle->menuAction()->setObjectName(QStringLiteral("mnuToggle"));
    for (const char* n : {"mnuCustomer", "mnuServices", "mnuItems", "mnuAddto"})
        toggle->addAction(namedAction(n, toggle));
    bar->addMenu(toggle);
    bar->addAction(namedAction("mnuInstructions", bar));
    outer->setMenuBar(bar);

    auto* body = new QHBoxLayout;
    body->setContentsMargins(12, 8, 12, 0);
    body->setSpacing(12);
    outer->addLayout(body, 1);

    body->addWidget(choicesColumn(window));

    // The steps: one frame at a time comes up here as the appointment is built.
    // When several frames are up at once the column scrolls; the window keeps its size.
    auto* scroller = new QScrollArea(window);
    scroller->setObjectName(QStringLiteral("stepsArea"));
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setWidgetResizable(true);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* steps = new QWidget(scroller);
    steps->setObjectName(QStringLiteral("steps"));
    steps->setMinimumWidth(400);
    auto* stack = new QVBoxLayout(steps);
    stack->setContentsMargins(0, 0, 0, 0);
    stack->addWidget(accountFrame(steps));
    stack->addWidget(servicesFrame(steps));
    stack->addWidget(itemsFrame(steps));
    stack->addWidget(addToFrame(steps));
    stack->addWidget(summaryFrame(steps));
    stack->addWidget(instructionsFrame(steps, instructionLines));
    stack->addStretch(1);
    scroller->setWidget(steps);
    body->addWidget(scroller, 1);

    QGroupBox* schedule = scheduleFrame(window);
    schedule->setFixedWidth(430);
    body->addWidget(schedule, 0, Qt::AlignTop);
}

} // namespace ostrel::ui
