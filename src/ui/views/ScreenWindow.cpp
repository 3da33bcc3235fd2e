#include "ScreenWindow.h"

#include "controls/Screen.h"
#include "shell/Session.h"

#include <QGuiApplication>

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

} // namespace ostrel::ui
