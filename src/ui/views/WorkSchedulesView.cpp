#include "WorkSchedulesView.h"
#include "NamedWidgets.h"

#include "ScreenWindow.h"
#include "platform/QtColour.h"
#include "scheduling/frmWorkSchedules.h"
#include "shell/Session.h"

#include <QAction>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace ostrel::ui {

namespace {

QPushButton* button(int index, QWidget* parent) {
    auto* b = named<QPushButton>(element("cmdWorkSchedules", index), parent);
    b->setMinimumSize(120, 32);
    return b;
}

QDateEdit* dateBox(const QString& name, QWidget* parent) {
    auto* d = named<QDateEdit>(name, parent);
    d->setDisplayFormat(QStringLiteral("ddd M/d/yyyy"));
    d->setMinimumWidth(150);
    return d;
}

} // namespace

WorkSchedulesView::WorkSchedulesView(Session& session, frmWorkSchedules& screen)
    : ScreenView(session.platform.dialogs), m_screen(screen) {
    setMinimumSize(1120, 760);
    QVBoxLayout* outer = WindowWithMenuBar(this, {"mnuToggle"});
    QHBoxLayout* body = AddBodyRow(outer);

    // The day to load and print.
    auto* left = new QVBoxLayout;
    auto* picker = dateBox(QStringLiteral("DTPicker1"), this);
    left->addWidget(label(element("Label1", 3), this, picker));
    left->addWidget(picker);
    left->addSpacing(8);
    auto* points = named<QListWidget>(QStringLiteral("lstAssociates"), this);
    points->setMinimumHeight(170);
    left->addWidget(label(element("Label1", 0), this, points));
    left->addWidget(points);
    auto* hidden = named<QListWidget>(QStringLiteral("lstWorkorders"), this);
    hidden->setAccessibleName(QStringLiteral("Appointments of the day"));
    hidden->setMaximumHeight(60);
    left->addWidget(hidden);
    left->addSpacing(8);
    auto* mark = new QHBoxLayout;
    m_shape = named<QLabel>(QStringLiteral("shpFound"), this);
    m_shape->setFixedSize(22, 22);
    m_shape->setAccessibleName(QStringLiteral("Found mark"));
    m_found = named<QLabel>(QStringLiteral("lblFound"), this);
    QFont bold = m_found->font();
    bold.setBold(true);
    m_found->setFont(bold);
    mark->addWidget(m_shape);
    mark->addWidget(m_found, 1);
    left->addLayout(mark);
    left->addStretch(1);
    left->addWidget(button(frmWorkSchedules::kLoadDay, this));
    left->addWidget(button(frmWorkSchedules::kPrint, this));
    left->addSpacing(16);
    left->addWidget(button(frmWorkSchedules::kMenu, this));
    auto* leftBox = new QWidget(this);
    leftBox->setLayout(left);
    leftBox->setFixedWidth(230);
    left->setContentsMargins(0, 0, 0, 0);
    body->addWidget(leftBox);

    // The overview of a range and the day grid share the right side.
    auto* right = new QGridLayout;
    m_schedule = named<QTableWidget>(QStringLiteral("fgSchedule"), this);
    m_schedule->horizontalHeader()->setStretchLastSection(true);
    m_schedule->verticalHeader()->setDefaultSectionSize(22);
    m_schedule->setAccessibleName(QStringLiteral("Day schedule"));
    m_schedule->viewport()->installEventFilter(this);
    right->addWidget(m_schedule, 0, 0);
    auto* overview = named<QGroupBox>(QStringLiteral("fraOverview"), this);
    auto* o = new QVBoxLayout(overview);
    auto* range = new QHBoxLayout;
    auto* start = dateBox(QStringLiteral("DTStart"), overview);
    auto* end = dateBox(QStringLiteral("DTEnd"), overview);
    range->addWidget(label(element("Label1", 1), overview, start));
    range->addWidget(start);
    range->addSpacing(12);
    range->addWidget(label(element("Label1", 2), overview, end));
    range->addWidget(end);
    range->addSpacing(12);
    range->addWidget(button(frmWorkSchedules::kLoadOverview, overview));
    range->addStretch(1);
    o->addLayout(range);
    auto* list = named<QTableWidget>(QStringLiteral("fgOverview"), overview);
    list->horizontalHeader()->setStretchLastSection(true);
    list->setAccessibleName(QStringLiteral("Scheduled appointments"));
    o->addWidget(list, 1);
    right->addWidget(overview, 0, 0);
    body->addLayout(right, 1);

    binder().bindAll(screen.controls);
    Binder& b = binder();
    auto withMark = [this](std::function<void()> handler) {
        return [this, handler] {
            handler();
            showFoundColour();
        };
    };
    b.onClick(screen.cmdWorkSchedules,
              [this](int i) {
                  m_screen.cmdWorkSchedules_Click(i);
                  showFoundColour();
              });
    b.onChange(screen.DTPicker1, withMark([this] { m_screen.DTPicker1_Change(); }));
    b.onChange(screen.DTStart, [this] { m_screen.DTStart_Change(); });
    b.onChange(screen.DTEnd, [this] { m_screen.DTEnd_Change(); });
    b.onClick(screen.lstAssociates, withMark([this] { m_screen.lstAssociates_Click(); }));
    b.onClick(screen.fgOverview, withMark([this] { m_screen.fgOverview_Click(); }));
    b.onClick(screen.mnuToggle, [this] { m_screen.mnuToggle_Click(); });
    FollowScreen(*this, screen, session);
    b.sync();
    showFoundColour();
}

void WorkSchedulesView::showFoundColour() {
    const QColor c = toQColor(m_screen.FoundColour);
    m_shape->setStyleSheet(QStringLiteral("QLabel { background: %1; border: 1px solid #404040; border-radius: 11px; }")
                               .arg(c.name()));
    m_found->setStyleSheet(QStringLiteral("QLabel { color: %1; }").arg(c.name()));
}

bool WorkSchedulesView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_schedule->viewport() && event->type() == QEvent::MouseButtonRelease) {
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() == Qt::RightButton) {
            const int row = m_schedule->rowAt(mouse->position().toPoint().y());
            if (row >= 0) {
                // Model rows count the heading row.
                binder().run([this, row] {
                    m_screen.fgSchedule.row = row + 1;
                    m_screen.fgSchedule_RightClick();
                });
            }
            return true;
        }
    }
    return ScreenView::eventFilter(watched, event);
}

} // namespace ostrel::ui
