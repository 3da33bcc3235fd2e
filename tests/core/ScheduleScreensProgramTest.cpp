#include "FakePlatform.h"
#include "frmNewCustomerTestFixture.h"
#include "TestDataRoot.h"
#include "accounts/frmNewCustomer.h"
#include "contracts/frmContract.h"
#include "scheduling/frmDisplay.h"
#include "scheduling/frmWorkSchedules.h"
#include "shell/ProgramScreens.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <gtest/gtest.h>

#include <optional>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

namespace {

struct ScheduleScreensInTheProgram : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    ProgramScreens screens = AddProgramScreens(session);

    void SetUp() override {
        t.writeBytes("/ServiceAreas.txt", "\"Crew One\"\r\n\"Crew Two\"\r\n");
        ASSERT_EQ(session.Main(), Session::StartResult::Running);
    }
};

} // namespace

TEST_F(ScheduleScreensInTheProgram, TheScheduleAndContractScreensArePartOfTheSession) {
    EXPECT_EQ(session.ScreenAs<frmDisplay>(ScreenId::frmDisplay), &screens.display);
    EXPECT_EQ(session.ScreenAs<frmWorkSchedules>(ScreenId::frmWorkSchedules), &screens.workSchedules);
    EXPECT_EQ(session.ScreenAs<frmContract>(ScreenId::frmContract), &screens.contract);
    // Start-up fills the day sheet's list with the rest.
    EXPECT_EQ((QStringList{"Crew One", "Crew Two"}), screens.workSchedules.lstAssociates.items);
}

TEST_F(ScheduleScreensInTheProgram, TheMenuLeadsToBothScheduleScreens) {
    session.startup().Show();
    session.startup().optMainMenuSub_DblClick(8);
    EXPECT_TRUE(screens.workSchedules.isVisible());
    EXPECT_FALSE(session.startup().isVisible());
    screens.workSchedules.cmdWorkSchedules_Click(frmWorkSchedules::kMenu);
    session.startup().optMainMenuSub_DblClick(11);
    EXPECT_TRUE(screens.display.isVisible());
    EXPECT_EQ("Crew One", screens.display.lblTeam[1].caption);
    screens.display.cmdMenu_Click();
    EXPECT_TRUE(session.startup().isVisible());
}

TEST_F(ScheduleScreensInTheProgram, TheContractEntryGoesThroughTheAccountScreensSelect) {
    {
        CustomerBuffers b;
        CustomerStore store(t.disk(), b);
        store.OpenCustomerFile();
        b.customer = test::Business("7001", "Lakeview Dental");
        store.WriteCustomer(1);
        t.disk().CloseAllFiles();
        store.ResetCompanionBuffers(fake.clock.today());
        store.RebuildContractFile(1, {});
        store.RebuildCycleFile(1, {});
    }
    session.startup().Show();
    session.startup().optMainMenuSub_DblClick(0);
    ASSERT_TRUE(screens.account.isVisible());
    EXPECT_EQ("Creating a Contract", screens.account.caption);
    screens.account.cmdCustomer_Click(1);
    fake.dialogs.verify();
    EXPECT_TRUE(screens.contract.isVisible());
    EXPECT_FALSE(screens.account.isVisible());
    EXPECT_EQ("Lakeview Dental", screens.contract.lblCustomerName.caption);
}
