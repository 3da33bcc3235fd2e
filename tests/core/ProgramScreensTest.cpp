#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "accounts/frmNewCustomer.h"
#include "catalogue/frmServices.h"
#include "setup/frmSetup.h"
#include "shell/ProgramScreens.h"
#include "shell/Session.h"
#include "shell/frmSplash.h"
#include "shell/frmStartup.h"
#include "scheduling/frmBlock.h"
#include "telephony/frmDialer.h"

#include <gtest/gtest.h>

#include <optional>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::ScriptedDevice;
using ostrel::test::TestDataRoot;

namespace {

struct WholeProgram : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    std::unique_ptr<Session> session = std::make_unique<Session>(t.path(), fake);
    std::optional<ProgramScreens> added{AddProgramScreens(*session)};
    ProgramScreens& screens = *added;

    // A later run of the program on the same folder.
    void restart() {
        session->ExitProgram();
        added.reset();
        session = std::make_unique<Session>(t.path(), fake);
        added.emplace(AddProgramScreens(*session));
        ASSERT_EQ(session->Main(), Session::StartResult::Running);
    }
};

} // namespace

TEST_F(WholeProgram, EveryScreenOfThisVersionIsPartOfTheSession) {
    for (ScreenId id : {ScreenId::frmSetup, ScreenId::frmNewCustomer, ScreenId::frmServices, ScreenId::frmDialer})
        EXPECT_TRUE(session->HasScreen(id)) << screenTitle(id).toStdString();
    EXPECT_EQ(session->ScreenAs<frmSetup>(ScreenId::frmSetup), &screens.setup);
    EXPECT_EQ(session->ScreenAs<frmDialer>(ScreenId::frmDialer), &screens.dialer);
}

TEST_F(WholeProgram, StartUpFillsThePointOfServiceListsOfTheScreensItLoads) {
    t.writeBytes("/ServiceAreas.txt", "\"Crew One\"\r\n\"Crew Two\"\r\n");
    ASSERT_EQ(session->Main(), Session::StartResult::Running);
    EXPECT_EQ(screens.setup.cboAssignments.items, (QStringList{"Crew One", "Crew Two"}));
    EXPECT_EQ(screens.account.cboAssignments.items, (QStringList{"Crew One", "Crew Two"}));
    // The account screen's load filled its fixed lists.
    EXPECT_EQ(screens.account.cboTitle.ListCount(), 5);
    EXPECT_EQ(screens.account.cboStates.ListCount(), 0); // no state list in this folder
}

TEST_F(WholeProgram, StartUpFindsTheModemAndTheAccountScreenCanDialThroughTheDialer) {
    fake.serialMachine.attach(2, ScriptedDevice::modem());
    ASSERT_EQ(session->Main(), Session::StartResult::Running);
    EXPECT_TRUE(session->modem.detected);
    EXPECT_EQ(session->modem.foundPort, 2);
    EXPECT_TRUE(screens.setup.SSTab1.TabEnabled[frmSetup::kPhoneAndModem]);
    EXPECT_EQ(screens.setup.txtModemPort.text, "2");
    ASSERT_TRUE(session->dial);
    session->dial(QStringLiteral("Ann Lee"), QStringLiteral("555-0100"));
    EXPECT_TRUE(screens.dialer.isVisible());
}

TEST_F(WholeProgram, WithoutAModemSetupOffersNoPhonePage) {
    ASSERT_EQ(session->Main(), Session::StartResult::Running);
    EXPECT_FALSE(session->modem.detected);
    EXPECT_FALSE(screens.setup.SSTab1.TabEnabled[frmSetup::kPhoneAndModem]);
}

TEST_F(WholeProgram, FirstRunPassesThroughSetupToTheMenuAndTheSecondStartSkipsTheWelcome) {
    ASSERT_EQ(session->Main(), Session::StartResult::Running);
    session->splash().cmdContinue_Click();
    ASSERT_TRUE(session->splash().fraWelcome.visible);
    session->splash().Image1_Click(1);
    ASSERT_TRUE(screens.setup.isVisible());

    frmSetup& setup = screens.setup;
    setup.txtBusiness[0].text = "Prairie Comfort";
    setup.txtBusiness[6].text = "217-555-0142";
    setup.tabInfo_Click(frmSetup::kPointsOfService);
    setup.cboAssignments.text = "Crew One";
    setup.cmdSave_Click();
    setup.cmdQuit_Click();
    EXPECT_FALSE(setup.isVisible());
    EXPECT_TRUE(session->startup().isVisible());
    EXPECT_EQ(screens.account.cboAssignments.items, QStringList{"Crew One"});

    restart();
    EXPECT_TRUE(session->RequiredFilesPresent());
    session->splash().cmdContinue_Click();
    EXPECT_TRUE(session->startup().isVisible());
    EXPECT_FALSE(session->splash().isVisible());
}

// The menu picks the help and work-day pages, then the screen's activation sends the outer strip
// back to its first page; the options strip keeps the work-day page.
TEST_F(WholeProgram, CreateModifyOpensSetupWithTheOptionsStripOnTheWorkDayPage) {
    ASSERT_EQ(session->Main(), Session::StartResult::Running);
    session->startup().Show();
    session->startup().mnuCreate_Click();
    EXPECT_TRUE(screens.setup.isVisible());
    EXPECT_FALSE(session->startup().isVisible());
    EXPECT_EQ(screens.setup.tabInfo.Tab, frmSetup::kBusinessInfo);
    EXPECT_EQ(screens.setup.SSTab2.Tab, frmSetup::kWorkDayScheduling);
}

TEST_F(WholeProgram, EndingTheProgramUnloadsTheCatalogueWhichWritesItsFiles) {
    ASSERT_EQ(session->Main(), Session::StartResult::Running);
    ASSERT_FALSE(t.isFile("/Labor.txt"));
    session->ExitProgram();
    EXPECT_TRUE(session->hasEnded());
    EXPECT_EQ(t.readBytes("/Labor.txt"), QByteArray("\"General Labor\",\"$0.00\"\r\n"
                                                    "\"\",\"$0.00\"\r\n"
                                                    "\"\",\"$0.00\"\r\n"));
    for (ScreenId id : {ScreenId::frmSetup, ScreenId::frmNewCustomer, ScreenId::frmServices, ScreenId::frmDialer})
        EXPECT_FALSE(session->FindScreen(id)->isVisible());
}

TEST_F(WholeProgram, TheBlockedDaysScreenIsPartOfTheProgramWithItsAllAssignmentsEntry) {
    t.writeBytes("/ServiceAreas.txt", "\"Crew One\"\r\n\"Crew Two\"\r\n");
    ASSERT_EQ(session->Main(), Session::StartResult::Running);
    EXPECT_EQ(session->ScreenAs<frmBlock>(ScreenId::frmBlock), &screens.block);
    EXPECT_EQ(screens.block.lstAssignto.items, (QStringList{"Crew One", "Crew Two", "All Assignments"}));
}
