#include "app/Application.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication qt(argc, argv);
    // Every window is hidden rather than closed; only ExitProgram ends the run.
    qt.setQuitOnLastWindowClosed(false);
    ostrel::ui::Application app(ostrel::AppInfo::fromProcess());
    if (!app.start()) return 1;
    return qt.exec();
}
