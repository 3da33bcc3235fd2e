#include "SplashView.h"

#include "ScreenWindow.h"
#include "binder/ClickableImage.h"
#include "shell/Session.h"
#include "shell/frmSplash.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace ostrel::ui {

namespace {

QLabel* label(const QString& name, QWidget* parent) {
    auto* l = new QLabel(parent);
    l->setObjectName(name);
    return l;
}

ClickableImage* logo(const QString& name, QWidget* parent) {
    auto* i = new ClickableImage(parent);
    i->setObjectName(name);
    i->setAlignment(Qt::AlignCenter);
    i->setCursor(Qt::PointingHandCursor);
    return i;
}

} // namespace

SplashView::SplashView(Session& session, frmSplash& screen)
    : ScreenView(session.platform.dialogs), m_screen(screen) {
    setMinimumSize(620, 460);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 24, 28, 24);
    layout->setSpacing(12);

    layout->addWidget(logo(QStringLiteral("Image1(0)"), this));
    QLabel* product = label(QStringLiteral("lblProduct"), this);
    QFont big = product->font();
    big.setPointSize(big.pointSize() + 8);
    big.setBold(true);
    product->setFont(big);
    product->setAlignment(Qt::AlignCenter);
    layout->addWidget(product);
    QLabel* version = label(QStringLiteral("lblVersion"), this);
    version->setAlignment(Qt::AlignCenter);
    layout->addWidget(version);
    layout->addStretch(1);

    auto* welcome = new QGroupBox(this);
    welcome->setObjectName(QStringLiteral("fraWelcome"));
    auto* wl = new QVBoxLayout(welcome);
    wl->setSpacing(8);
    wl->addWidget(logo(QStringLiteral("Image1(1)"), welcome));
    for (int i = 0; i < frmSplash::kWelcomeTexts.size(); ++i) {
        QLabel* l = label(QStringLiteral("lblWelcome(%1)").arg(i), welcome);
        l->setWordWrap(true);
        wl->addWidget(l);
    }
    layout->addWidget(welcome, 10);

    auto* row = new QHBoxLayout;
    row->addStretch(1);
    auto* cont = new QPushButton(this);
    cont->setObjectName(QStringLiteral("cmdContinue"));
    cont->setMinimumWidth(140);
    row->addWidget(cont);
    row->addStretch(1);
    layout->addLayout(row);

    binder().bindAll(screen.controls);
    binder().onClick(screen.cmdContinue, [this] { m_screen.cmdContinue_Click(); });
    binder().onClick(screen.Image1, [this](int index) { m_screen.Image1_Click(index); });
    FollowScreen(*this, screen, session);
    binder().sync();
}

} // namespace ostrel::ui
