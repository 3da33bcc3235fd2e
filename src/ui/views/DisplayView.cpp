#include "DisplayView.h"
#include "NamedWidgets.h"

#include "ScreenWindow.h"
#include "scheduling/frmDisplay.h"
#include "shell/Session.h"

#include <QDateEdit>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

namespace ostrel::ui {

DisplayView::DisplayView(Session& session, frmDisplay& screen)
    : ScreenView(session.platform.dialogs), m_screen(screen) {
    setMinimumSize(1240, 760);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(12, 12, 12, 12);

    auto* top = new QHBoxLayout;
    auto* teams = named<QListWidget>(QStringLiteral("lstTeams"), this);
    teams->setFixedSize(150, 62);
    teams->setAccessibleName(QStringLiteral("Points of Service group"));
    top->addWidget(teams);
    top->addSpacing(20);
    auto* date = named<QDateEdit>(QStringLiteral("DTPicker1"), this);
    date->setDisplayFormat(QStringLiteral("dddd, MMMM d, yyyy"));
    date->setMinimumWidth(230);
    QLabel* dateCaption = label(QStringLiteral("lblDate"), this, date);
    top->addWidget(dateCaption);
    top->addWidget(date);
    auto* step = named<QSpinBox>(QStringLiteral("UpDown1"), this);
    step->setRange(-1, 1);
    step->setButtonSymbols(QAbstractSpinBox::UpDownArrows);
    step->setFixedWidth(22);
    step->setStyleSheet(QStringLiteral("QSpinBox { color: transparent; selection-color: transparent; }"));
    top->addWidget(step);
    top->addStretch(1);
    outer->addLayout(top);

    auto* grids = new QHBoxLayout;
    grids->setSpacing(8);
    for (int k = 1; k <= frmDisplay::kGrids; ++k) {
        auto* column = new QVBoxLayout;
        QLabel* team = named<QLabel>(element("lblTeam", k), this);
        QFont bold = team->font();
        bold.setBold(true);
        bold.setPointSize(bold.pointSize() + 1);
        team->setFont(bold);
        team->setAlignment(Qt::AlignCenter);
        team->setMinimumHeight(24);
        auto* grid = named<QTableWidget>(element("fgHours", k), this);
        grid->horizontalHeader()->setStretchLastSection(true);
        grid->verticalHeader()->setDefaultSectionSize(22);
        grid->setAccessibleName(QStringLiteral("Day schedule %1").arg(k));
        team->setBuddy(grid);
        column->addWidget(team);
        column->addWidget(grid, 1);
        grids->addLayout(column, 1);
    }
    outer->addLayout(grids, 1);

    auto* bottom = new QHBoxLayout;
    bottom->addStretch(1);
    auto* menu = named<QPushButton>(QStringLiteral("cmdMenu"), this);
    menu->setMinimumSize(160, 32);
    bottom->addWidget(menu);
    outer->addLayout(bottom);

    binder().bindAll(screen.controls);
    Binder& b = binder();
    b.onClick(screen.lstTeams, [this] { m_screen.lstTeams_Click(); });
    b.onChange(screen.DTPicker1, [this] { m_screen.DTPicker1_Change(); });
    b.onChange(screen.UpDown1, [this] { m_screen.UpDown1_Change(); });
    b.onClick(screen.cmdMenu, [this] { m_screen.cmdMenu_Click(); });
    FollowScreen(*this, screen, session);
    b.sync();
}

} // namespace ostrel::ui
