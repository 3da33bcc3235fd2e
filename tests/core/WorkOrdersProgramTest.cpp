#include "FakePlatform.h"
#include "RecordingPageSurface.h"
#include "TestDataRoot.h"
#include "setup/frmSetup.h"
#include "shell/ProgramScreens.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"
#include "workorders/frmTerms.h"
#include "workorders/frmWorkOrders.h"

#include <gtest/gtest.h>

#include <optional>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

namespace {

struct WorkOrdersInTheProgram : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    ProgramScreens screens = AddProgramScreens(session);

    void start() {
        t.writeBytes("/ServiceAreas.txt", "\"Crew One\"\r\n\"Crew Two\"\r\n");
        ASSERT_EQ(session.Main(), Session::StartResult::Running);
    }
};

} // namespace

TEST_F(WorkOrdersInTheProgram, BothScreensArePartOfTheProgram) {
    EXPECT_EQ(session.ScreenAs<frmTerms>(ScreenId::frmTerms), &screens.terms);
    EXPECT_EQ(session.ScreenAs<frmWorkOrders>(ScreenId::frmWorkOrders), &screens.workOrders);
}

TEST_F(WorkOrdersInTheProgram, StartUpLoadsTheTermsHiddenAndACustomDisclaimerBecomesTheOnePrinted) {
    t.writeBytes("/CustomDisclaimer.txt", "\"Owner supplies parts.\"\r\n");
    start();
    EXPECT_FALSE(screens.terms.isVisible());
    EXPECT_EQ(screens.terms.Label1[1].caption, kGenericTerms);
    EXPECT_EQ(screens.terms.ckDisclaimer.value, 1);
    EXPECT_TRUE(screens.workOrders.optDisclaimer[1].value);
    EXPECT_FALSE(screens.workOrders.optDisclaimer[0].value);
}

TEST_F(WorkOrdersInTheProgram, StartUpFillsThePointOfServiceListOfTheWorkOrderScreen) {
    start();
    EXPECT_EQ(screens.workOrders.lstAssignments.items, (QStringList{"Crew One", "Crew Two"}));
}

TEST_F(WorkOrdersInTheProgram, TheMenuEntriesOpenTheTermsAndTheWorkOrders) {
    start();
    session.startup().Show();
    session.startup().optMainMenuSub_DblClick(1);
    EXPECT_TRUE(screens.terms.isVisible());
    EXPECT_EQ(session.startup().optMainMenuSub[1].caption, "Create / Modify &Terms and Disclaimers");
    screens.terms.Command1_Click(frmTerms::kMenu);
    EXPECT_TRUE(session.startup().isVisible());
    session.startup().optMainMenuSub_DblClick(9);
    EXPECT_TRUE(screens.workOrders.isVisible());
    EXPECT_FALSE(session.startup().isVisible());
}

TEST_F(WorkOrdersInTheProgram, SetupsPrintSampleDocumentPrintsASampleWorkOrder) {
    start();
    screens.setup.cmdLogo_Click(5);
    ASSERT_EQ(fake.printDialogs.jobs().size(), 1u);
    const auto& job = fake.printDialogs.lastJob();
    EXPECT_TRUE(job.printed("Work Order No WO # 12345"));
    EXPECT_TRUE(job.printed("Customer AcctNo 12345678"));
    EXPECT_TRUE(job.printed("Scheduled Date 11/22/2026"));
    EXPECT_EQ(job.documentsEnded(), 1);
}

TEST_F(WorkOrdersInTheProgram, SetupsReturnPartsTickIsFollowedByTheWorkOrderScreen) {
    start();
    screens.setup.ckReturnParts.value = 0;
    screens.setup.ckReturnParts_Click();
    EXPECT_EQ(screens.workOrders.ckInstructions.value, 0);
    screens.setup.ckReturnParts.value = 1;
    screens.setup.ckReturnParts_Click();
    EXPECT_EQ(screens.workOrders.ckInstructions.value, 1);
}
