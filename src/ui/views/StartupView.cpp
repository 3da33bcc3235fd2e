#include "StartupView.h"

#include "NamedWidgets.h"
#include "ScreenWindow.h"
#include "binder/ClickableImage.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <QAction>
#include <QButtonGroup>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace ostrel::ui {

namespace {

// The routines by group, in the order they stand on the screen.
constexpr int kFileRoutines[] = {6, 7, 1, 0, 12, 4};
constexpr int kAppointmentRoutines[] = {5, 3, 2, 9, 8, 11, 10};

QLabel* heading(int index, QWidget* parent, int grow) {
    auto* l = new QLabel(parent);
    l->setObjectName(QStringLiteral("lblHeading(%1)").arg(index));
    QFont f = l->font();
    f.setBold(true);
    f.setPointSize(f.pointSize() + grow);
    l->setFont(f);
    return l;
}

QWidget* group(int headingIndex, const int* routines, int count, QWidget* parent, QButtonGroup* set) {
    auto* box = new QGroupBox(parent);
    auto* l = new QVBoxLayout(box);
    l->addWidget(heading(headingIndex, box, 1));
    for (int i = 0; i < count; ++i) {
        auto* b = new QRadioButton(box);
        b->setObjectName(QStringLiteral("optMainMenuSub(%1)").arg(routines[i]));
        set->addButton(b);
        l->addWidget(b);
    }
    l->addStretch(1);
    return box;
}

// A menu's title is its menu action's text, so the action carries the control's name.
QMenu* menu(const QString& name, QWidget* parent) {
    auto* m = new QMenu(parent);
    m->setObjectName(name + QStringLiteral("Menu"));
    m->menuAction()->setObjectName(name);
    return m;
}

} // namespace

StartupView::StartupView(Session& session, frmStartup& screen)
    : ScreenView(session.platform.dialogs), m_screen(screen) {
    setMinimumSize(800, 500);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 12);

    auto* bar = new QMenuBar(this);
    QMenu* files = menu(QStringLiteral("mnuFiles"), bar);
    QAction* create = namedAction(QStringLiteral("mnuCreate"), files);
    QAction* exit = namedAction(QStringLiteral("mnuExit"), files);
    files->addAction(create);
    files->addSeparator();
    files->addAction(exit);
    QMenu* order = menu(QStringLiteral("mnuOrder"), bar);
    QMenu* deluxe = menu(QStringLiteral("mnuDelexe"), order);
    for (const char* n : {"mnuDeluxe", "mnuSlips"}) deluxe->addAction(namedAction(QString::fromLatin1(n), deluxe));
    order->addMenu(deluxe);
    for (const char* n : {"mnuPPaper", "mnuPPPaper", "mnuGraytex", "mnuAddress", "mnuLabels"})
        order->addAction(namedAction(QString::fromLatin1(n), order));
    bar->addMenu(files);
    bar->addMenu(order);
    outer->setMenuBar(bar);

    auto* body = new QVBoxLayout;
    body->setContentsMargins(18, 12, 18, 0);
    outer->addLayout(body);
    auto* top = new QHBoxLayout;
    auto* logo = new ClickableImage(this);
    logo->setObjectName(QStringLiteral("Image1"));
    logo->setCursor(Qt::PointingHandCursor);
    top->addWidget(logo);
    top->addSpacing(16);
    QLabel* title = heading(0, this, 4);
    title->setWordWrap(true);
    title->setAlignment(Qt::AlignCenter);
    top->addWidget(title, 1);
    body->addLayout(top);

    // One set across both boxes: the boxes only group the routines for the eye.
    auto* routines = new QButtonGroup(this);
    routines->setExclusive(true);
    auto* groups = new QHBoxLayout;
    groups->addWidget(group(1, kFileRoutines, int(std::size(kFileRoutines)), this, routines), 1);
    groups->addWidget(group(2, kAppointmentRoutines, int(std::size(kAppointmentRoutines)), this, routines), 1);
    body->addLayout(groups, 1);

    auto* bottom = new QHBoxLayout;
    bottom->addStretch(1);
    bottom->addWidget(heading(4, this, 0));
    bottom->addSpacing(8);
    bottom->addWidget(heading(3, this, 0));
    bottom->addSpacing(12);
    auto* go = new QPushButton(this);
    go->setObjectName(QStringLiteral("cmdGoto"));
    go->setMinimumWidth(120);
    bottom->addWidget(go);
    body->addLayout(bottom);

    binder().bindAll(screen.controls);
    Binder& b = binder();
    b.onClick(screen.optMainMenuSub, [this](int i) { m_screen.optMainMenuSub_Click(i); });
    b.onDoubleClick(screen.optMainMenuSub, [this](int i) { m_screen.optMainMenuSub_DblClick(i); });
    b.onClick(screen.cmdGoto, [this] { m_screen.cmdGoto_Click(); });
    b.onClick(screen.Image1, [this] { m_screen.Image1_Click(); });
    b.onClick(screen.mnuCreate, [this] { m_screen.mnuCreate_Click(); });
    b.onClick(screen.mnuExit, [this] { m_screen.mnuExit_Click(); });
    b.onClick(screen.mnuDeluxe, [this] { m_screen.mnuDeluxe_Click(); });
    b.onClick(screen.mnuSlips, [this] { m_screen.mnuSlips_Click(); });
    b.onClick(screen.mnuPPaper, [this] { m_screen.mnuPPaper_Click(); });
    b.onClick(screen.mnuPPPaper, [this] { m_screen.mnuPPPaper_Click(); });
    b.onClick(screen.mnuGraytex, [this] { m_screen.mnuGraytex_Click(); });
    b.onClick(screen.mnuAddress, [this] { m_screen.mnuAddress_Click(); });
    b.onClick(screen.mnuLabels, [this] { m_screen.mnuLabels_Click(); });
    go->setDefault(true);
    FollowScreen(*this, screen, session);
    b.sync();
}

} // namespace ostrel::ui
