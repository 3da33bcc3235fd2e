#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "controls/Screen.h"
#include "shell/Session.h"
#include "shell/ShellRoutines.h"
#include "shell/frmSplash.h"
#include "shell/frmStartup.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

namespace {

// A screen that a later part of the program provides; here it only records being shown.
class StandInScreen : public Screen {
public:
    explicit StandInScreen(const QString& name) : Screen(name) {}
    void Form_Activate() override { ++activations; }
    int activations = 0;
};

struct ShellFixture : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};

    void writeSetupFiles() {
        t.writeBytes("/MyBusinessData.txt", "\"Shop\",\"\",\"\",\"\",\"\",\"\",\"555-1234\",\"\",\"\"\r\n");
        t.writeBytes("/ServiceAreas.txt", "\"Crew One\"\r\n\"Crew Two\"\r\n");
        t.writeBytes("/TaxSettings.txt", "\"Sales Tax\",\"\",\"6.25\",\"0\",1,0\r\n");
        t.writeBytes("/OstrelAppointmentSchedulerSettings.txt",
                     "1,0,0,0,0,#TRUE#,#FALSE#,0,0,0,\"$0.00\",\"$0.00\",5,1,1,#TRUE#,1,1,1\r\n");
    }
};

} // namespace

TEST_F(ShellFixture, FirstRunOnAnEmptyRootBuildsTheTreeAndLeadsThroughTheWelcomeFrameToSetup) {
    ListControl blockList;
    session.SetPointOfServiceList(PointOfServiceList::frmBlock, &blockList);
    ASSERT_EQ(session.Main(), Session::StartResult::Running);
    fake.dialogs.verify();
    EXPECT_TRUE(t.isDir("/2026"));
    EXPECT_TRUE(t.isDir("/AuxFiles"));
    EXPECT_TRUE(t.root().list("/AuxFiles").isEmpty());
    EXPECT_EQ(session.pointOfServiceNames[0], "empty");
    EXPECT_EQ(session.pointOfServiceNames.UpperBound(), 0);
    EXPECT_EQ(blockList.ListCount(), 0);
    EXPECT_TRUE(session.splash().isVisible());

    session.splash().cmdContinue_Click();
    EXPECT_TRUE(session.splash().fraWelcome.visible);
    EXPECT_FALSE(session.splash().cmdContinue.visible);
    EXPECT_FALSE(session.startup().isVisible());

    StandInScreen setup("frmSetup");
    session.RegisterScreen(ScreenId::frmSetup, setup);
    session.splash().Image1_Click(1);
    EXPECT_FALSE(session.splash().fraWelcome.visible);
    EXPECT_TRUE(setup.isVisible());
    EXPECT_FALSE(session.splash().isVisible());
}

TEST_F(ShellFixture, ContinueOpensTheMenuWhenTheFourSetupFilesExist) {
    writeSetupFiles();
    session.Main();
    session.splash().cmdContinue_Click();
    EXPECT_TRUE(session.startup().isVisible());
    EXPECT_FALSE(session.splash().isVisible());
    EXPECT_FALSE(session.splash().fraWelcome.visible);
}

TEST_F(ShellFixture, ContinueRestoresAMissingSetupFileFromTheBackupFolder) {
    writeSetupFiles();
    t.writeBytes("/Backup/TaxSettings.txt", t.readBytes("/TaxSettings.txt"));
    QFile::remove(t.full("/TaxSettings.txt"));
    session.Main();
    session.splash().cmdContinue_Click();
    EXPECT_TRUE(session.startup().isVisible());
    EXPECT_TRUE(t.isFile("/TaxSettings.txt"));
}

TEST_F(ShellFixture, WithoutSetupInThisVersionTheLogoSaysSoAndTheWelcomeScreenStays) {
    session.Main();
    session.splash().cmdContinue_Click();
    session.splash().Image1_Click(1);
    EXPECT_BOX(fake.dialogs, "Not Available", "The Setup screen is not part of this version of the program yet.");
    EXPECT_TRUE(session.splash().isVisible());
}

TEST_F(ShellFixture, ASecondCopyIsRefusedBeforeTouchingTheDisk) {
    fake.instance.otherCopyRunning = true;
    fake.dialogs.expect("", "OstrelAppointmentScheduler is already Running!\nLook for it on the Task Bar");
    EXPECT_EQ(session.Main(), Session::StartResult::AnotherCopyRunning);
    fake.dialogs.verify();
    EXPECT_TRUE(t.root().list("/").isEmpty());
}

TEST_F(ShellFixture, ClicksOnTheWelcomeScreenDuringTheModemProbeReachNoScreenNotLoadedYet) {
    writeSetupFiles();
    t.writeBytes("/Services.txt", QByteArray(72, ' '));
    StandInScreen setup("frmSetup");
    session.RegisterScreen(ScreenId::frmSetup, setup);
    fake.serialMachine.attach(1, test::ScriptedDevice::of(test::ScriptedDevice::Kind::Silent));
    int clicks = 0;
    fake.serialMachine.duringWait = [&](int) {
        ++clicks;
        session.splash().cmdContinue_Click();
        session.splash().Image1_Click(1);
        session.splash().Image1_Click(0);
    };
    ASSERT_EQ(session.Main(), Session::StartResult::Running);
    fake.serialMachine.duringWait = nullptr;
    ASSERT_GT(clicks, 0) << "the probe never waited, so no click came early";
    EXPECT_TRUE(session.splash().isVisible());
    EXPECT_FALSE(setup.isVisible());
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty()) << fake.dialogs.boxes().size();
    // Once started, Continue goes on to the menu and the welcome screen makes way for it.
    session.splash().cmdContinue_Click();
    EXPECT_TRUE(session.startup().isVisible());
    EXPECT_FALSE(session.splash().isVisible());
}

namespace {

// One start of the program with a slow, silent device on the first port; during the probe's wait,
// which lets the owner's events through, the clicks come in the order given: 'C' Continue, 'S' the
// logo that opens Setup, 'L' the other logo.
struct EarlyClickRun {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    StandInScreen setup{"frmSetup"};
    bool processEnded = false;
    int waits = 0;

    EarlyClickRun(bool setupFiles, const QByteArray& clicks) {
        session.endProcess = [this] { processEnded = true; };
        if (setupFiles) {
            t.writeBytes("/MyBusinessData.txt", "\"Shop\",\"\",\"\",\"\",\"\",\"\",\"555-1234\",\"\",\"\"\r\n");
            t.writeBytes("/ServiceAreas.txt", "\"Crew One\"\r\n\"Crew Two\"\r\n");
            t.writeBytes("/TaxSettings.txt", "\"Sales Tax\",\"\",\"6.25\",\"0\",1,0\r\n");
            t.writeBytes("/OstrelAppointmentSchedulerSettings.txt",
                         "1,0,0,0,0,#TRUE#,#FALSE#,0,0,0,\"$0.00\",\"$0.00\",5,1,1,#TRUE#,1,1,1\r\n");
        }
        t.writeBytes("/Services.txt", QByteArray(72, ' '));
        session.RegisterScreen(ScreenId::frmSetup, setup);
        fake.serialMachine.attach(1, test::ScriptedDevice::of(test::ScriptedDevice::Kind::Silent));
        fake.serialMachine.duringWait = [this, clicks](int) {
            ++waits;
            for (const char c : clicks) {
                if (c == 'C') session.splash().cmdContinue_Click();
                if (c == 'S') session.splash().Image1_Click(1);
                if (c == 'L') session.splash().Image1_Click(0);
            }
        };
    }
};

} // namespace

TEST(StartupClicks, ClicksDuringASlowProbeLeadToTheMenuOrSetupAfterwardsAndClosingTheMenuEndsTheRun) {
    for (const bool setupFiles : {true, false}) {
        for (const QByteArray& clicks : {QByteArray("C"), QByteArray("S"), QByteArray("L"), QByteArray("CS"),
                                        QByteArray("SCC"), QByteArray("LSC")}) {
            SCOPED_TRACE(QStringLiteral("setup files %1, clicks %2").arg(setupFiles).arg(QString::fromLatin1(clicks))
                             .toStdString());
            EarlyClickRun run(setupFiles, clicks);
            Session& session = run.session;
            ASSERT_EQ(session.Main(), Session::StartResult::Running);
            ASSERT_GT(run.waits, 0) << "the probe never waited, so no click came early";
            // Nothing the clicks could reach was shown or said, and the welcome screen waits.
            EXPECT_TRUE(run.fake.dialogs.boxes().isEmpty()) << run.fake.dialogs.boxes().size();
            EXPECT_TRUE(session.splash().isVisible());
            EXPECT_FALSE(session.startup().isVisible());
            EXPECT_FALSE(run.setup.isVisible());
            EXPECT_TRUE(run.fake.instance.held);

            session.splash().cmdContinue_Click();
            if (!setupFiles) {
                // A first run: the welcome frame, and the logo on to Setup.
                EXPECT_TRUE(session.splash().fraWelcome.visible);
                session.splash().Image1_Click(1);
                EXPECT_TRUE(run.setup.isVisible());
                EXPECT_FALSE(session.splash().isVisible());
                continue;
            }
            ASSERT_TRUE(session.startup().isVisible());
            EXPECT_FALSE(session.splash().isVisible());
            // Closing the menu ends the run: the process is told to end, the lock is let go and no
            // screen stays shown.
            session.startup().mnuExit_Click();
            EXPECT_TRUE(session.hasEnded());
            EXPECT_TRUE(run.processEnded);
            EXPECT_FALSE(run.fake.instance.held);
            EXPECT_FALSE(session.startup().isVisible());
            EXPECT_FALSE(session.splash().isVisible());
            EXPECT_FALSE(run.setup.isVisible());
        }
    }
}

TEST_F(ShellFixture, AFolderThatCannotBeWrittenIsSaidSoAndNotTakenForASecondCopy) {
    fake.instance.folderNotWritable = true;
    EXPECT_EQ(session.Main(), Session::StartResult::FolderNotWritable);
    EXPECT_BOX(fake.dialogs, "", FolderNotWritableMessage(t.root().root()));
    const QString said = FolderNotWritableMessage(t.root().root());
    EXPECT_FALSE(said.contains("already Running"));
    EXPECT_TRUE(said.contains(t.root().root()));
    EXPECT_TRUE(t.root().list("/").isEmpty());
}

TEST_F(ShellFixture, AnEmptyServiceAreasFileIsPopulatedWithNoNamesAndOnlyAllAssignments) {
    t.writeBytes("/ServiceAreas.txt", {});
    ListControl setupList, blockList, createList;
    session.SetPointOfServiceList(PointOfServiceList::frmSetup, &setupList);
    session.SetPointOfServiceList(PointOfServiceList::frmBlock, &blockList);
    session.SetPointOfServiceList(PointOfServiceList::frmCreate, &createList);
    session.LoadServiceAreas();
    EXPECT_EQ(session.pointOfServiceNames[0], "populated");
    EXPECT_EQ(session.pointOfServiceNames.UpperBound(), 0);
    EXPECT_EQ(setupList.ListCount(), 0);
    EXPECT_EQ(createList.ListCount(), 0);
    EXPECT_EQ(blockList.items, QStringList{"All Assignments"});
}

TEST_F(ShellFixture, LoadServiceAreasRefillsEveryListAndMakesThisYearsDayFolders) {
    t.writeBytes("/ServiceAreas.txt", "\"Crew One\"\r\n\"Crew Two\"\r\n\"Install Team\"\r\n");
    t.makeDir("/2026");
    ListControl lists[kPointOfServiceLists];
    for (int i = 0; i < kPointOfServiceLists; ++i) {
        lists[i].AddItem("stale");
        session.SetPointOfServiceList(static_cast<PointOfServiceList>(i), &lists[i]);
    }
    session.LoadServiceAreas();
    const QStringList names{"Crew One", "Crew Two", "Install Team"};
    for (int i = 0; i < kPointOfServiceLists; ++i) {
        if (i == static_cast<int>(PointOfServiceList::frmBlock))
            EXPECT_EQ(lists[i].items, names + QStringList{"All Assignments"});
        else
            EXPECT_EQ(lists[i].items, names);
    }
    for (int n = 1; n <= 3; ++n) EXPECT_TRUE(t.isDir(QString("/2026/DaySchedules%1").arg(n)));
    EXPECT_FALSE(t.isDir("/2026/DaySchedules4"));
}

TEST_F(ShellFixture, StartUpPurgesPastDayFilesOfThisYear) {
    writeSetupFiles();
    t.writeBytes("/2026/DaySchedules1/300.txt", "x");
    t.writeBytes("/2026/DaySchedules1/326.txt", "x");
    t.writeBytes("/2026/DaySchedules2/325.txt", "x");
    session.Main(); // today is day 326
    EXPECT_FALSE(t.isFile("/2026/DaySchedules1/300.txt"));
    EXPECT_FALSE(t.isFile("/2026/DaySchedules2/325.txt"));
    EXPECT_TRUE(t.isFile("/2026/DaySchedules1/326.txt"));
    EXPECT_EQ(t.readBytes("/LastPurged.txt"), QByteArray("326\r\n"));
}

TEST_F(ShellFixture, TheMenuPreselectsTheCatalogueWhileTheItemFileIsMissing) {
    t.writeBytes("/Services.txt", QByteArray(72, ' '));
    session.startup().Show();
    EXPECT_TRUE(session.startup().optMainMenuSub[6].value);
    EXPECT_FALSE(session.startup().optMainMenuSub[5].value);
}

TEST_F(ShellFixture, TheMenuPreselectsAppointmentCreationOnceACatalogueExists) {
    t.writeBytes("/Services.txt", QByteArray(72, ' '));
    t.writeBytes("/OIInventoriedItems.txt", QByteArray(104, ' '));
    session.startup().Show();
    EXPECT_TRUE(session.startup().optMainMenuSub[5].value);
    EXPECT_FALSE(session.startup().optMainMenuSub[6].value);
}

TEST_F(ShellFixture, GotoWithButtonTwelveSetActivatesTwelveOnly) {
    StandInScreen reprint("frmReprint");
    StandInScreen customers("frmNewCustomer");
    session.RegisterScreen(ScreenId::frmReprint, reprint);
    session.RegisterScreen(ScreenId::frmNewCustomer, customers);
    frmStartup& menu = session.startup();
    menu.Show();
    for (auto& [i, o] : menu.optMainMenuSub) o.value = i == 12;
    menu.cmdGoto_Click();
    EXPECT_EQ(session.SelectedRoutine, 12);
    EXPECT_TRUE(reprint.isVisible());
    EXPECT_EQ(reprint.activations, 1);
    EXPECT_FALSE(customers.isVisible());
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(ShellFixture, GotoWithNothingSetDoesNothing) {
    frmStartup& menu = session.startup();
    menu.Show();
    for (auto& [i, o] : menu.optMainMenuSub) o.value = false;
    session.SelectedRoutine = 3;
    menu.cmdGoto_Click();
    EXPECT_EQ(session.SelectedRoutine, 3);
    EXPECT_TRUE(menu.isVisible());
}

TEST_F(ShellFixture, DoubleClickStoresTheRoutineAndShowsItsScreen) {
    StandInScreen customers("frmNewCustomer");
    session.RegisterScreen(ScreenId::frmNewCustomer, customers);
    session.startup().Show();
    session.startup().optMainMenuSub_DblClick(7);
    EXPECT_EQ(session.SelectedRoutine, 7);
    EXPECT_TRUE(customers.isVisible());
    EXPECT_FALSE(session.startup().isVisible());
}

TEST_F(ShellFixture, ARoutineThisVersionLacksIsSaidAndTheMenuStays) {
    session.startup().Show();
    session.startup().optMainMenuSub_DblClick(9);
    EXPECT_BOX(fake.dialogs, "Not Available", "The Work Orders screen is not part of this version of the program yet.");
    EXPECT_TRUE(session.startup().isVisible());
}

TEST_F(ShellFixture, EveryRoutineOpensTheScreenOfItsRow) {
    const ScreenId expected[] = {ScreenId::frmNewCustomer, ScreenId::frmTerms,       ScreenId::frmAppointments,
                                 ScreenId::frmAppointments, ScreenId::frmSales,      ScreenId::frmNewCustomer,
                                 ScreenId::frmServices,    ScreenId::frmNewCustomer, ScreenId::frmWorkSchedules,
                                 ScreenId::frmWorkOrders,  ScreenId::frmBlock,       ScreenId::frmDisplay,
                                 ScreenId::frmReprint};
    for (int i = 0; i < frmStartup::kRoutines; ++i) EXPECT_EQ(frmStartup::RoutineScreen(i), expected[i]) << i;
}

TEST_F(ShellFixture, MenuCaptionsAndTooltipsStandAsWritten) {
    const frmStartup& m = session.startup();
    EXPECT_EQ(m.caption, "Appointment Main Menu");
    EXPECT_EQ(m.optMainMenuSub[5].caption, "Create an &Appointment ");
    EXPECT_EQ(m.optMainMenuSub[7].toolTip, "Create New  Customers or Modify Customer Data");
    EXPECT_EQ(m.optMainMenuSub[11].caption, " View Schedules at a Glace");
    EXPECT_EQ(m.optMainMenuSub[2].caption, " &Invoice a Completed Appointment");
    EXPECT_EQ(m.lblHeading[3].caption, " Select Button then GOTO");
    EXPECT_EQ(m.mnuFiles.caption, " Files");
    EXPECT_EQ(m.Image1.toolTip, "Click Me to GOTO Setup Screen");
}

TEST_F(ShellFixture, TheSalesReportEntryFollowsTheBusinessType) {
    session.settings.program.optBusinessType0 = true;
    session.startup().Show();
    EXPECT_FALSE(session.startup().optMainMenuSub[4].visible);
    session.startup().Hide();
    session.settings.program.optBusinessType0 = false;
    session.startup().Show();
    EXPECT_TRUE(session.startup().optMainMenuSub[4].visible);
}

TEST_F(ShellFixture, OrderLinksAskFirstAndOpenOnlyOnYes) {
    frmStartup& m = session.startup();
    fake.dialogs.expect("Order Paper", "Use Plain Paper for Reports (etc)\nClick Yes to connect to a Supplier", vbNo);
    m.mnuPPaper_Click();
    EXPECT_TRUE(fake.browser.opened.isEmpty());
    fake.dialogs.expect("Order Graytex Forms",
                        "Graytex offers 2 and 3 part carbonless paper\nSuitable for creating a Proposal Form on "
                        "which\ninformation can be hand written as well as printed\nConnect to Graytex Now",
                        vbYes);
    m.mnuGraytex_Click();
    fake.dialogs.expect("Order Paper",
                        "Perforated Response Paper is used to create\nInvoices with a remittance Slip\nClick Yes to "
                        "connect to a Supplier",
                        vbYes);
    m.mnuPPPaper_Click();
    fake.dialogs.expect("Order Paper", "30 to a Page Mailing Labels\nClick Yes to connect to a Supplier", vbYes);
    m.mnuAddress_Click();
    fake.dialogs.expect("Order Labels", "Click YES to Connect to a Supplier", vbYes);
    m.mnuLabels_Click();
    fake.dialogs.verify();
    EXPECT_EQ(fake.browser.opened.size(), 4);
}

TEST_F(ShellFixture, DeluxeLinksOpenWithoutAQuestion) {
    session.startup().mnuDeluxe_Click();
    session.startup().mnuSlips_Click();
    EXPECT_EQ(fake.browser.opened.size(), 2);
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
}

TEST_F(ShellFixture, ExitHidesEveryScreenAndEndsTheProcess) {
    int ended = 0;
    session.endProcess = [&] { ++ended; };
    StandInScreen customers("frmNewCustomer");
    session.Main();
    session.RegisterScreen(ScreenId::frmNewCustomer, customers);
    customers.Show();
    session.ExitProgram();
    EXPECT_EQ(ended, 1);
    EXPECT_FALSE(customers.isVisible());
    EXPECT_FALSE(session.splash().isVisible());
    EXPECT_FALSE(fake.instance.held);
}

TEST_F(ShellFixture, TheWelcomeFrameSaysItsEightTexts) {
    const frmSplash& s = session.splash();
    EXPECT_EQ(s.fraWelcome.caption, "Welcome to Norlavex's Ostrel App.exe");
    ASSERT_EQ(s.lblWelcome.size(), 8);
    EXPECT_EQ(s.lblWelcome[4].caption, "The program will start.(Unless you forgot something)");
    EXPECT_EQ(s.lblVersion.caption, "Version 1.0.0");
    EXPECT_EQ(s.cmdContinue.toolTip, "Starts the Program");
}

TEST(DefaultCalendarDate, ChangesAtEightInTheEvening) {
    const QDate day(2026, 11, 22);
    EXPECT_EQ(DefaultCalendarDate(QDateTime(day, QTime(19, 59))), day);
    EXPECT_EQ(DefaultCalendarDate(QDateTime(day, QTime(20, 0))), day.addDays(1));
    EXPECT_EQ(DefaultCalendarDate(QDateTime(QDate(2026, 12, 31), QTime(23, 0))), QDate(2027, 1, 1));
}

TEST(CreateTeamDirectories, MakesTheYearAndATeamFolderPerPointOfService) {
    TestDataRoot t;
    CreateTeamDirectories(t.disk(), "2027", 2);
    EXPECT_TRUE(t.isDir("/2027/Team# 1"));
    EXPECT_TRUE(t.isDir("/2027/Team# 2"));
    EXPECT_FALSE(t.isDir("/2027/Team# 3"));
}

TEST(CreateTeamDirectories, DoesNothingWhenTheYearExists) {
    TestDataRoot t;
    t.makeDir("/2027");
    CreateTeamDirectories(t.disk(), "2027", 2);
    EXPECT_TRUE(t.root().list("/2027").isEmpty());
}
