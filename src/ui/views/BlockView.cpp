#include "BlockView.h"
#include "NamedWidgets.h"

#include "ScreenWindow.h"
#include "scheduling/frmBlock.h"
#include "shell/Session.h"
#include "store/LocaleText.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTableWidget>
#include <QVBoxLayout>

namespace ostrel::ui {

namespace {

QPushButton* button(const char* name, QWidget* parent) {
    auto* b = named<QPushButton>(QLatin1String(name), parent);
    b->setMinimumWidth(110);
    b->setMinimumHeight(30);
    return b;
}

QLabel* caption(int index, QWidget* parent, QWidget* buddy) {
    QLabel* l = label(element("lblCaption", index), parent, buddy);
    QFont f = l->font();
    f.setBold(true);
    l->setFont(f);
    return l;
}

QTableWidget* table(const char* name, QWidget* parent) {
    auto* t = named<QTableWidget>(QLatin1String(name), parent);
    t->setAlternatingRowColors(true);
    t->horizontalHeader()->setStretchLastSection(true);
    t->verticalHeader()->setDefaultSectionSize(22);
    return t;
}

QDateEdit* dateBox(const char* name, QWidget* parent) {
    auto* d = named<QDateEdit>(QLatin1String(name), parent);
    d->setDisplayFormat(kShortDateFormat);
    d->setMinimumWidth(130);
    return d;
}

} // namespace

BlockView::BlockView(Session& session, frmBlock& screen) : ScreenView(session.platform.dialogs), m_screen(screen) {
    setMinimumSize(1040, 640);
    QVBoxLayout* outer = WindowWithMenuBar(this, {"mnuBlocked"});
    QHBoxLayout* body = AddBodyRow(outer);

    // Whom, what and how many days.
    auto* left = new QVBoxLayout;
    auto* who = named<QListWidget>(QStringLiteral("lstAssignto"), this);
    who->setMinimumWidth(200);
    who->setMaximumHeight(190);
    left->addWidget(caption(0, this, who));
    left->addWidget(who);
    left->addSpacing(6);
    left->addWidget(named<QRadioButton>(element("optAction", 0), this));
    left->addWidget(named<QRadioButton>(element("optAction", 1), this));
    left->addSpacing(6);
    auto* reason = named<QComboBox>(QStringLiteral("lstReason"), this);
    // Editable only so that it can show "No Events" while a restore is chosen; the reasons are fixed.
    reason->setEditable(true);
    reason->lineEdit()->setReadOnly(true);
    left->addWidget(caption(1, this, reason));
    left->addWidget(reason);
    left->addSpacing(6);
    auto* days = named<QLineEdit>(QStringLiteral("txtTimeReq"), this);
    days->setMaximumWidth(56);
    days->setAlignment(Qt::AlignCenter);
    days->setToolTip(QStringLiteral("Click to add a day"));
    auto* slider = named<QSlider>(QStringLiteral("sldTimeReq"), this);
    slider->setOrientation(Qt::Horizontal);
    slider->setTickPosition(QSlider::TicksBelow);
    slider->setTickInterval(5);
    slider->setPageStep(5);
    slider->setAccessibleName(QStringLiteral("Number of Days"));
    left->addWidget(caption(2, this, days));
    auto* dayRow = new QHBoxLayout;
    dayRow->addWidget(days);
    dayRow->addWidget(slider, 1);
    left->addLayout(dayRow);
    left->addStretch(1);
    body->addLayout(left);

    // The first day, and what to do with the run.
    auto* middle = new QVBoxLayout;
    auto* calendar = named<QCalendarWidget>(QStringLiteral("Calender"), this);
    calendar->setGridVisible(true);
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar->setMinimumSize(340, 240);
    middle->addWidget(caption(3, this, calendar));
    middle->addWidget(calendar);
    auto* buttons = new QHBoxLayout;
    QPushButton* accept = button("cmdAccept", this);
    buttons->addWidget(accept);
    buttons->addWidget(button("cmdCancel", this));
    buttons->addStretch(1);
    buttons->addWidget(button("cmdExit", this));
    middle->addLayout(buttons);

    auto* found = named<QGroupBox>(QStringLiteral("fraBlockedDays"), this);
    auto* fl = new QGridLayout(found);
    QDateEdit* from = dateBox("DTStart", found);
    QDateEdit* to = dateBox("DTEnd", found);
    fl->addWidget(caption(4, found, from), 0, 0);
    fl->addWidget(from, 0, 1);
    fl->addWidget(caption(5, found, to), 0, 2);
    fl->addWidget(to, 0, 3);
    fl->setColumnStretch(4, 1);
    QTableWidget* blocked = table("fgBlocked", found);
    blocked->setMinimumHeight(150);
    fl->addWidget(blocked, 1, 0, 1, 5);
    auto* gridButtons = new QHBoxLayout;
    gridButtons->addWidget(button("cmdSearch", found));
    gridButtons->addWidget(button("cmdClearGrid", found));
    gridButtons->addStretch(1);
    gridButtons->addWidget(button("cmdHideGrid", found));
    fl->addLayout(gridButtons, 2, 0, 1, 5);
    middle->addWidget(found, 1);
    middle->addStretch(0);
    body->addLayout(middle, 1);

    // The day in question while a conflict is asked about.
    auto* day = named<QGroupBox>(QStringLiteral("fraSchedule"), this);
    auto* dl = new QVBoxLayout(day);
    QLabel* note = named<QLabel>(QStringLiteral("lblSchedule"), day);
    note->setWordWrap(true);
    QFont noteFont = note->font();
    noteFont.setBold(true);
    note->setFont(noteFont);
    note->setStyleSheet(QStringLiteral("color: #8b0000;"));
    dl->addWidget(note);
    QTableWidget* schedule = table("fgDaySchedule", day);
    schedule->setMinimumWidth(300);
    dl->addWidget(schedule, 1);
    QSizePolicy keep = day->sizePolicy();
    keep.setRetainSizeWhenHidden(true);
    day->setSizePolicy(keep);
    body->addWidget(day, 1);

    binder().bindAll(screen.controls);
    wire();
    accept->setDefault(true);
    m_screen.waitCursor = [](bool busy) {
        if (busy)
            QApplication::setOverrideCursor(Qt::WaitCursor);
        else
            QApplication::restoreOverrideCursor();
    };
    FollowScreen(*this, screen, session);
    binder().sync();
}

void BlockView::wire() {
    frmBlock& s = m_screen;
    Binder& b = binder();
    b.onClick(s.Calender, [this] { m_screen.Calender_DateClick(); });
    b.onClick(s.optAction, [this](int i) { m_screen.optAction_Click(i); });
    b.onClick(s.lstReason, [this] { m_screen.lstReason_Click(); });
    b.onChange(s.sldTimeReq, [this] { m_screen.sldTimeReq_Change(); });
    b.onClick(s.txtTimeReq, [this] { m_screen.txtTimeReq_Click(); });
    b.onClick(s.cmdAccept, [this] { m_screen.cmdAccept_Click(); });
    b.onClick(s.cmdCancel, [this] { m_screen.cmdCancel_Click(); });
    b.onClick(s.cmdExit, [this] { m_screen.cmdExit_Click(); });
    b.onClick(s.cmdSearch, [this] { m_screen.cmdSearch_Click(); });
    b.onClick(s.cmdClearGrid, [this] { m_screen.cmdClearGrid_Click(); });
    b.onClick(s.cmdHideGrid, [this] { m_screen.cmdHideGrid_Click(); });
    b.onClick(s.mnuBlocked, [this] { m_screen.mnuBlocked_Click(); });
    b.onCloseUp(s.DTStart, [this] { m_screen.DTStart_CloseUp(); });
    b.onCloseUp(s.DTEnd, [this] { m_screen.DTEnd_CloseUp(); });
}

} // namespace ostrel::ui
