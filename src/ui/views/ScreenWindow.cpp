#include "ScreenWindow.h"
#include "NamedWidgets.h"

#include "controls/Screen.h"
#include "shell/Session.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QVBoxLayout>

namespace ostrel::ui {

void FollowScreen(ScreenView& view, Screen& screen, Session& session) {
    view.setObjectName(screen.formName());
    view.setWindowTitle(screen.caption);
    view.setAccessibleName(screen.caption);
    QPointer<ScreenView> window(&view);
    screen.visibilityChanged = [window](Screen& s) {
        if (!window) return;
        window->setWindowTitle(s.caption);
        if (s.isVisible()) {
            window->show();
            if (QGuiApplication::platformName() != QLatin1String("offscreen")) {
                window->raise();
                window->activateWindow();
            }
        } else {
            window->hide();
        }
    };
    screen.activated = [window](Screen& s) {
        if (!window) return;
        window->setWindowTitle(s.caption);
        window->screenActivated();
    };
    view.setExitHandler([&session] { session.ExitProgram(); });
    if (screen.isVisible()) view.show();
}

QVBoxLayout* WindowWithMenuBar(QWidget* window, std::initializer_list<const char*> entries) {
    auto* outer = new QVBoxLayout(window);
    outer->setContentsMargins(0, 0, 0, 10);
    auto* bar = new QMenuBar(window);
    for (const char* name : entries) bar->addAction(namedAction(name, bar));
    outer->setMenuBar(bar);
    return outer;
}

QHBoxLayout* AddBodyRow(QVBoxLayout* outer) {
    auto* body = new QHBoxLayout;
    body->setContentsMargins(14, 10, 14, 0);
    body->setSpacing(16);
    outer->addLayout(body, 1);
    return body;
}

} // namespace ostrel::ui
