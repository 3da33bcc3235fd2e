#include "AppointmentsView.h"
#include "NamedWidgets.h"

#include "ScreenWindow.h"
#include "scheduling/frmAppointments.h"
#include "shell/Session.h"

#include <QDateEdit>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace ostrel::ui {

namespace {

QLabel* caption(int index, QWidget* parent, QWidget* buddy = nullptr) {
    QLabel* l = label(element("lblCaption", index), parent, buddy);
    QFont f = l->font();
    f.setBold(true);
    l->setFont(f);
    return l;
}

QPushButton* button(const QString& name, QWidget* parent) {
    auto* b = named<QPushButton>(name, parent);
    b->setMinimumWidth(120);
    b->setMinimumHeight(30);
    return b;
}

} // namespace

AppointmentsView::AppointmentsView(Session& session, frmAppointments& screen)
    : ScreenView(session.platform.dialogs), m_screen(screen) {
    setMinimumSize(1100, 660);
    auto* outer = new QHBoxLayout(this);
    outer->setContentsMargins(14, 12, 14, 12);
    outer->setSpacing(14);

    // The routines, and whose schedule.
    auto* left = new QVBoxLayout;
    auto* routines = new QGroupBox(this);
    auto* rl = new QVBoxLayout(routines);
    rl->addWidget(caption(2, routines));
    for (int i = 0; i < 4; ++i)
        rl->addWidget(named<QRadioButton>(element("optRoutine", i), routines));
    left->addWidget(routines);
    for (int i = 0; i < 4; ++i) {
        QLabel* instruction = named<QLabel>(element("lblRoutine", i), this);
        instruction->setWordWrap(true);
        instruction->setMaximumWidth(250);
        instruction->setStyleSheet(QStringLiteral("color: #00008b; font-weight: bold;"));
        left->addWidget(instruction);
    }
    auto* areas = named<QListWidget>(QStringLiteral("lstAssignments"), this);
    areas->setMaximumWidth(250);
    areas->setMaximumHeight(180);
    left->addSpacing(8);
    left->addWidget(caption(1, this, areas));
    left->addWidget(areas);
    left->addStretch(1);
    outer->addLayout(left);

    // The slips of the routine, and what to do with the chosen one.
    auto* middle = new QVBoxLayout;
    auto* slips = named<QTableWidget>(QStringLiteral("fgAppointments"), this);
    slips->setAlternatingRowColors(true);
    slips->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    slips->horizontalHeader()->setStretchLastSection(true);
    slips->setMinimumWidth(420);
    middle->addWidget(caption(0, this, slips));
    middle->addWidget(slips, 1);
    auto* buttons = new QHBoxLayout;
    for (int i = 0; i < 4; ++i)
        buttons->addWidget(button(element("cmdAppointments", i), this));
    buttons->addStretch(1);
    middle->addLayout(buttons);
    auto* menuRow = new QHBoxLayout;
    menuRow->addStretch(1);
    menuRow->addWidget(button(element("cmdAppointments", 4), this));
    middle->addLayout(menuRow);
    outer->addLayout(middle, 3);

    // The date and the day the slip goes on.
    auto* day = named<QGroupBox>(QStringLiteral("fraSchedule"), this);
    auto* dl = new QVBoxLayout(day);
    auto* calendar = named<QGroupBox>(QStringLiteral("fraCalendar"), day);
    auto* cl = new QHBoxLayout(calendar);
    auto* picker = named<QDateEdit>(QStringLiteral("DTPicker1"), calendar);
    picker->setDisplayFormat(QStringLiteral("dddd, MMMM d, yyyy"));
    picker->setMinimumWidth(220);
    picker->setAccessibleName(QStringLiteral("Date to Schedule"));
    cl->addWidget(picker);
    cl->addStretch(1);
    QSizePolicy keep = calendar->sizePolicy();
    keep.setRetainSizeWhenHidden(true);
    calendar->setSizePolicy(keep);
    dl->addWidget(calendar);
    auto* grid = named<QTableWidget>(QStringLiteral("fgDaySchedule"), day);
    grid->horizontalHeader()->setStretchLastSection(true);
    grid->verticalHeader()->setDefaultSectionSize(22);
    grid->setMinimumWidth(360);
    dl->addWidget(grid, 1);
    dl->addWidget(button(QStringLiteral("cmdService"), day));
    outer->addWidget(day, 2);

    binder().bindAll(screen.controls);
    // A slip is chosen as a whole row.
    slips->setSelectionBehavior(QAbstractItemView::SelectRows);
    wire();
    FollowScreen(*this, screen, session);
    binder().sync();
}

void AppointmentsView::wire() {
    frmAppointments& s = m_screen;
    Binder& b = binder();
    b.onClick(s.optRoutine, [this](int i) { m_screen.optRoutine_Click(i); });
    b.onClick(s.fgAppointments, [this] { m_screen.fgAppointments_Click(); });
    b.onChange(s.DTPicker1, [this] { m_screen.DTPicker1_Change(); });
    b.onCloseUp(s.DTPicker1, [this] { m_screen.DTPicker1_CloseUp(); });
    b.onClick(s.lstAssignments, [this] { m_screen.lstAssignments_Click(); });
    b.onClick(s.fgDaySchedule, [this] { m_screen.fgDaySchedule_Click(); });
    b.onClick(s.cmdAppointments, [this](int i) { m_screen.cmdAppointments_Click(i); });
    b.onClick(s.cmdService, [this] { m_screen.cmdService_Click(); });
}

} // namespace ostrel::ui
