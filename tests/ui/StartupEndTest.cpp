// Closing the main menu by its frame ends the program's run: the event loop the executable runs
// returns, the lock is released and no window is left.
#include "AppointmentRoad.h"
#include "ProgramWindows.h"
#include "UiEvents.h"
#include "binder/ClickableImage.h"
#include "shell/Session.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using ostrel::test::ProgramWindows;

TEST_F(ProgramWindows, ClosingTheMenuByItsFrameEndsTheEventLoopAndLeavesNoWindow) {
    // A first run typed into Setup, then on to the menu, as an owner starts.
    start();
    ASSERT_NO_FATAL_FAILURE(test::FirstRunThroughSetup(*this, "Prairie Comfort", "217-555-0142", {"Crew One"}));
    ASSERT_TRUE(shown("frmStartup")) << boxes.said.join(u'|').toStdString();

    // The executable runs the event loop until the program ends it (a hidden last window does not
    // end it); a run still going after five seconds is a program left running.
    const bool quitOnLastWindow = QApplication::quitOnLastWindowClosed();
    QApplication::setQuitOnLastWindowClosed(false);
    QTimer::singleShot(0, [this] { closeByFrame(window("frmStartup")); });
    QTimer guard;
    guard.setSingleShot(true);
    QObject::connect(&guard, &QTimer::timeout, [] { QCoreApplication::exit(99); });
    guard.start(5000);
    EXPECT_EQ(QCoreApplication::exec(), 0);
    guard.stop();
    QApplication::setQuitOnLastWindowClosed(quitOnLastWindow);
    EXPECT_TRUE(app->session().hasEnded());
    for (QWidget* w : QApplication::topLevelWidgets())
        EXPECT_FALSE(w->isVisible()) << w->objectName().toStdString();
    // The lock is gone: a second start in the same folder is not refused as another copy.
    app.reset();
    start();
    EXPECT_TRUE(shown("frmSplash"));
    EXPECT_TRUE(boxes.said.filter("already Running").isEmpty()) << boxes.said.join(u'|').toStdString();
}
