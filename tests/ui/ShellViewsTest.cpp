#include "FakePlatform.h"
#include "Screenshot.h"
#include "TestDataRoot.h"
#include "UiEvents.h"
#include "app/Application.h"
#include "binder/ClickableImage.h"
#include "controls/Screen.h"
#include "shell/Session.h"
#include "shell/frmSplash.h"
#include "shell/frmStartup.h"
#include "views/SplashView.h"
#include "views/StartupView.h"

#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QAccessible>
#include <QRadioButton>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

using ostrel::test::saveShot;

namespace {

class StandInScreen : public Screen {
public:
    using Screen::Screen;
};

struct ShellViews : ::testing::Test {
    ShellViews() { InitResources(); }
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    SplashView splash{session, session.splash()};
    StartupView menu{session, session.startup()};
    int ended = 0;

    void SetUp() override {
        session.endProcess = [this] { ++ended; };
    }

    template <typename W> W* find(QWidget& root, const QString& name) {
        W* w = root.findChild<W*>(name);
        EXPECT_NE(w, nullptr) << name.toStdString();
        return w;
    }

    void writeSetupFiles() {
        t.writeBytes("/MyBusinessData.txt", "\"Shop\",\"\",\"\",\"\",\"\",\"\",\"555-1234\",\"\",\"\"\r\n");
        t.writeBytes("/ServiceAreas.txt", "\"Crew One\"\r\n");
        t.writeBytes("/TaxSettings.txt", "\"Sales Tax\",\"\",\"6.25\",\"0\",1,0\r\n");
        t.writeBytes("/OstrelAppointmentSchedulerSettings.txt",
                     "1,0,0,0,0,#TRUE#,#FALSE#,0,0,0,\"$0.00\",\"$0.00\",5,1,1,#TRUE#,1,1,1\r\n");
    }
};

} // namespace

TEST_F(ShellViews, EveryControlOfBothScreensHasItsWidget) {
    EXPECT_TRUE(splash.binder().unboundControls().isEmpty())
        << splash.binder().unboundControls().join(", ").toStdString();
    EXPECT_TRUE(menu.binder().unboundControls().isEmpty())
        << menu.binder().unboundControls().join(", ").toStdString();
}

TEST_F(ShellViews, FirstRunClicksThroughTheWelcomeScreenToSetup) {
    ASSERT_EQ(session.Main(), Session::StartResult::Running);
    test::settle();
    EXPECT_TRUE(splash.isVisible());
    EXPECT_FALSE(menu.isVisible());
    EXPECT_EQ(find<QLabel>(splash, "lblVersion")->text(), "Version 1.0.0");
    QPushButton* cont = find<QPushButton>(splash, "cmdContinue");
    EXPECT_EQ(cont->text(), "Continue");
    EXPECT_EQ(cont->toolTip(), "Starts the Program");
    saveShot(splash, "welcome-screen");

    cont->click();
    test::settle();
    auto* frame = find<QGroupBox>(splash, "fraWelcome");
    EXPECT_TRUE(frame->isVisible());
    EXPECT_EQ(frame->title(), "Welcome to Norlavex's Ostrel App.exe");
    EXPECT_FALSE(cont->isVisible());
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(find<QLabel>(splash, QString("lblWelcome(%1)").arg(i))->text(),
                  frmSplash::kWelcomeTexts[i]);
    saveShot(splash, "welcome-frame");

    StandInScreen setup("frmSetup");
    session.RegisterScreen(ScreenId::frmSetup, setup);
    test::click(find<ClickableImage>(splash, "Image1(1)"));
    test::settle();
    EXPECT_TRUE(setup.isVisible());
    EXPECT_FALSE(splash.isVisible());
}

TEST_F(ShellViews, TheMenuOpensFromContinueAndShowsItsRoutines) {
    writeSetupFiles();
    t.writeBytes("/Services.txt", QByteArray(72, ' '));
    session.Main();
    find<QPushButton>(splash, "cmdContinue")->click();
    test::settle();
    ASSERT_TRUE(menu.isVisible());
    EXPECT_FALSE(splash.isVisible());
    EXPECT_EQ(menu.windowTitle(), "Appointment Main Menu");
    auto* six = find<QRadioButton>(menu, "optMainMenuSub(6)");
    EXPECT_TRUE(six->isChecked());
    EXPECT_EQ(six->toolTip(), "Add or Modify Services and Sales Items");
    EXPECT_FALSE(find<QRadioButton>(menu, "optMainMenuSub(4)")->isVisible()); // Shop/Repair style
    EXPECT_EQ(find<QPushButton>(menu, "cmdGoto")->text(), "Goto");
    EXPECT_EQ(find<QAction>(menu, "mnuFiles")->text(), " Files");
    EXPECT_EQ(find<QAction>(menu, "mnuLabels")->text(), "Shipping Labels");
    saveShot(menu, "main-menu");
}

TEST_F(ShellViews, DoubleClickOnARoutineOpensItsScreen) {
    StandInScreen reprint("frmReprint");
    session.RegisterScreen(ScreenId::frmReprint, reprint);
    session.startup().Show();
    test::settle();
    auto* twelve = find<QRadioButton>(menu, "optMainMenuSub(12)");
    test::doubleClick(twelve);
    EXPECT_EQ(session.SelectedRoutine, 12);
    EXPECT_TRUE(reprint.isVisible());
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(ShellViews, ARoutineChosenInEitherBoxClearsThePreselectedOneAndGotoOpensIt) {
    StandInScreen accounts("frmNewCustomer");
    session.RegisterScreen(ScreenId::frmNewCustomer, accounts);
    // With services and items on file the menu preselects "Create an Appointment ".
    t.writeBytes("/Services.txt", QByteArray(72, ' '));
    t.writeBytes("/OIInventoriedItems.txt", QByteArray(104, ' '));
    frmStartup& frm = session.startup();
    frm.Show();
    Binder::syncAll(); // what follows any event: the widgets show the models
    test::settle();
    auto* appointment = find<QRadioButton>(menu, "optMainMenuSub(5)");
    auto* records = find<QRadioButton>(menu, "optMainMenuSub(7)"); // in the other box
    ASSERT_TRUE(frm.optMainMenuSub[5].value) << "model";
    ASSERT_TRUE(appointment->isChecked());
    test::click(records);
    test::settle();
    EXPECT_TRUE(records->isChecked());
    EXPECT_FALSE(appointment->isChecked());
    for (int i = 0; i < frmStartup::kRoutines; ++i) EXPECT_EQ(frm.optMainMenuSub[i].value, i == 7) << i;
    find<QPushButton>(menu, "cmdGoto")->click();
    test::settle();
    EXPECT_EQ(session.SelectedRoutine, 7);
    EXPECT_TRUE(accounts.isVisible());
}

TEST_F(ShellViews, ARoutineChosenByKeyboardOrAccessibilityIsTheOneGotoOpens) {
    StandInScreen catalogue("frmServices");
    session.RegisterScreen(ScreenId::frmServices, catalogue);
    t.writeBytes("/Services.txt", QByteArray(72, ' '));
    t.writeBytes("/OIInventoriedItems.txt", QByteArray(104, ' '));
    frmStartup& frm = session.startup();
    frm.Show();
    Binder::syncAll(); // what follows any event: the widgets show the models
    test::settle();
    auto* services = find<QRadioButton>(menu, "optMainMenuSub(6)");
    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(services);
    ASSERT_TRUE(access && access->actionInterface());
    access->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    test::settle();
    EXPECT_FALSE(find<QRadioButton>(menu, "optMainMenuSub(5)")->isChecked());
    EXPECT_FALSE(frm.optMainMenuSub[5].value);
    EXPECT_TRUE(frm.optMainMenuSub[6].value);
    frm.cmdGoto_Click();
    EXPECT_EQ(session.SelectedRoutine, 6);
    EXPECT_TRUE(catalogue.isVisible());
}

TEST_F(ShellViews, ClosingAWindowByItsFrameEndsTheProgram) {
    session.Main();
    session.startup().Show();
    test::settle();
    QCloseEvent e;
    QSpontaneKeyEvent::setSpontaneous(&e);
    QCoreApplication::instance()->notify(&menu, &e);
    test::settle();
    EXPECT_EQ(ended, 1);
    EXPECT_TRUE(session.hasEnded());
    EXPECT_FALSE(menu.isVisible());
    EXPECT_FALSE(splash.isVisible());
}
