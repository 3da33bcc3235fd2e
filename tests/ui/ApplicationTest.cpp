#include "AppointmentRoad.h"
#include "ProgramWindows.h"
#include "Screenshot.h"
#include "TestDataRoot.h"
#include "UiEvents.h"
#include "app/Application.h"
#include "binder/ClickableImage.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QTabWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using ostrel::test::saveShot;
using ostrel::test::ProgramWindows;
using ostrel::test::TestDataRoot;

TEST_F(ProgramWindows, AFirstRunShowsTheWelcomeFrameAndTheLogoOpensSetup) {
    start();
    // The folder of the executable is the data root.
    EXPECT_TRUE(t.isDir("/AuxFiles"));
    EXPECT_TRUE(t.isFile("/OstrelAppointmentSchedulerSettings.txt"));
    ASSERT_TRUE(shown("frmSplash"));
    EXPECT_FALSE(shown("frmStartup"));
    saveShot(*window("frmSplash"), "program-first-run-welcome");

    test::click(child<QPushButton>("frmSplash", "cmdContinue"));
    test::settle();
    EXPECT_TRUE(child<QGroupBox>("frmSplash", "fraWelcome")->isVisible());
    saveShot(*window("frmSplash"), "program-first-run-welcome-frame");

    test::click(child<ClickableImage>("frmSplash", "Image1(1)"));
    test::settle();
    EXPECT_TRUE(shown("frmSetup"));
    EXPECT_FALSE(shown("frmSplash"));
    EXPECT_EQ(window("frmSetup")->windowTitle(), "Appointment Scheduker Setup");
    saveShot(*window("frmSetup"), "program-first-run-setup");
    EXPECT_TRUE(boxes.said.isEmpty()) << boxes.said.join(u'|').toStdString();

    closeByFrame(window("frmSetup"));
    EXPECT_TRUE(app->session().hasEnded());
    for (QWidget* w : QApplication::topLevelWidgets())
        EXPECT_FALSE(w->isVisible()) << w->objectName().toStdString();
}

TEST_F(ProgramWindows, TheLegacyShopGoesFromContinueToTheMenuAndItsRoutines) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    t.copyTree(ostrel::test::legacyFixture());
    start();
    test::click(child<QPushButton>("frmSplash", "cmdContinue"));
    test::settle();
    ASSERT_TRUE(shown("frmStartup")) << boxes.said.join(u'|').toStdString();
    EXPECT_FALSE(shown("frmSplash"));
    EXPECT_EQ(window("frmStartup")->windowTitle(), "Appointment Main Menu");
    saveShot(*window("frmStartup"), "program-legacy-menu");

    frmStartup& menu = app->session().startup();
    menu.optMainMenuSub_DblClick(7);
    test::settle();
    EXPECT_TRUE(shown("frmNewCustomer"));
    EXPECT_FALSE(shown("frmStartup"));
    EXPECT_EQ(window("frmNewCustomer")->windowTitle(), "Managing Accounts"); // set by the activation
    saveShot(*window("frmNewCustomer"), "program-legacy-accounts");
    app->session().HideScreen(ScreenId::frmNewCustomer);
    menu.Show();

    menu.optMainMenuSub_DblClick(6);
    test::settle();
    EXPECT_TRUE(shown("frmServices"));
    saveShot(*window("frmServices"), "program-legacy-catalogue");
    app->session().HideScreen(ScreenId::frmServices);
    menu.Show();

    menu.mnuCreate_Click();
    test::settle();
    EXPECT_TRUE(shown("frmSetup"));
    saveShot(*window("frmSetup"), "program-legacy-setup");
    EXPECT_TRUE(boxes.said.isEmpty()) << boxes.said.join(u'|').toStdString();

    const QByteArray services = t.readBytes("/Services.txt");
    closeByFrame(window("frmSetup"));
    EXPECT_TRUE(app->session().hasEnded());
    // Leaving unloads the catalogue, which writes back what it read.
    EXPECT_EQ(t.readBytes("/Services.txt"), services);
}

TEST_F(ProgramWindows, AFirstRunTypedIntoSetupOpensTheMenuAndTheNextStartGoesOnToIt) {
    start();
    ASSERT_NO_FATAL_FAILURE(test::FirstRunThroughSetup(*this, "Prairie Comfort", "217-555-0142", {"Crew One"}));
    EXPECT_TRUE(boxes.said.isEmpty()) << boxes.said.join(u'|').toStdString();
    EXPECT_FALSE(shown("frmSetup"));
    ASSERT_TRUE(shown("frmStartup"));
    saveShot(*window("frmStartup"), "program-first-run-menu");
    EXPECT_EQ(t.readBytes("/ServiceAreas.txt"), "\"Crew One\"\r\n");
    EXPECT_TRUE(t.readBytes("/MyBusinessData.txt").startsWith("\"Prairie Comfort\""));

    app->session().startup().mnuExit_Click();
    test::settle();
    app.reset();
    start();
    test::click(child<QPushButton>("frmSplash", "cmdContinue"));
    test::settle();
    EXPECT_TRUE(shown("frmStartup"));
    EXPECT_FALSE(shown("frmSplash"));
}
