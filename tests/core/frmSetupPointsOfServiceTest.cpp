#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "setup/frmSetup.h"
#include "shell/Session.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

namespace {

struct SetupPointsOfService : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmSetup& setup = session.AddScreen(ScreenId::frmSetup, std::make_unique<frmSetup>(session));
    ListControl blockList;

    void start(const QByteArray& serviceAreas) {
        t.writeBytes("/ServiceAreas.txt", serviceAreas);
        session.SetPointOfServiceList(PointOfServiceList::frmBlock, &blockList);
        ASSERT_EQ(session.Main(), Session::StartResult::Running);
        setup.tabInfo_Click(frmSetup::kPointsOfService);
    }
    void add(const QString& name) {
        setup.cboAssignments.text = name;
        setup.cmdSave_Click();
    }
    void choose(int index) {
        setup.cboAssignments.SetListIndex(index);
        setup.cboAssignments_Click();
    }
    static QByteArray eightNames() {
        QByteArray bytes;
        for (int i = 1; i <= 8; ++i)
            bytes += "\"Crew " + QByteArray::number(i) + "\"\r\n";
        return bytes;
    }
};

} // namespace

TEST_F(SetupPointsOfService, TheListShowsTheNamesLoadedAtStartUp) {
    start("\"Crew One\"\r\n\"Crew Two\"\r\n");
    EXPECT_EQ(setup.cboAssignments.items, (QStringList{"Crew One", "Crew Two"}));
}

TEST_F(SetupPointsOfService, ReachingThePageEnablesAddOnlyAndFocusesTheBox) {
    start("\"Crew One\"\r\n");
    EXPECT_TRUE(setup.cmdSave.enabled);
    EXPECT_FALSE(setup.cmdChange[3].enabled);
    EXPECT_FALSE(setup.cmdDelete.enabled);
    EXPECT_TRUE(setup.cboAssignments.focusRequested);
    EXPECT_TRUE(setup.Label3[frmSetup::kPosTip].visible);
    EXPECT_EQ(setup.Label3[frmSetup::kPosTip].caption,
              "TIP: Create POS Titles rather than names of Individuals.");
}

TEST_F(SetupPointsOfService, TheTipShowsInShopRepairStyleOnly) {
    start("\"Crew One\"\r\n");
    setup.optBusinessType_Click(1);
    setup.tabInfo_Click(frmSetup::kPointsOfService);
    EXPECT_FALSE(setup.Label3[frmSetup::kPosTip].visible);
}

TEST_F(SetupPointsOfService, ChoosingANameEnablesChangeAndDeleteAndDisablesAdd) {
    start("\"Crew One\"\r\n\"Crew Two\"\r\n");
    choose(1);
    EXPECT_FALSE(setup.cmdSave.enabled);
    EXPECT_TRUE(setup.cmdChange[3].enabled);
    EXPECT_TRUE(setup.cmdDelete.enabled);
}

TEST_F(SetupPointsOfService, OopsPutsTheButtonsBackAsThePageFoundThem) {
    start("\"Crew One\"\r\n");
    choose(0);
    setup.cmdOops_Click();
    EXPECT_EQ(setup.tabInfo.Tab, frmSetup::kPointsOfService);
    EXPECT_TRUE(setup.cmdSave.enabled);
    EXPECT_FALSE(setup.cmdChange[3].enabled);
    EXPECT_FALSE(setup.cmdDelete.enabled);
}

TEST_F(SetupPointsOfService, AddingAnEmptyNameBeepsAndAsksForOne) {
    start("\"Crew One\"\r\n");
    fake.dialogs.expect("", "Enter a Point of Service");
    add("");
    fake.dialogs.verify();
    EXPECT_EQ(fake.dialogs.beeps(), 1);
    EXPECT_TRUE(setup.cboAssignments.focusRequested);
    EXPECT_EQ(t.readBytes("/ServiceAreas.txt"), "\"Crew One\"\r\n");
}

TEST_F(SetupPointsOfService, WithAlarmsOffTheRefusalIsSilent) {
    start("\"Crew One\"\r\n");
    setup.ckAlarms.value = 0;
    setup.OptionChanged();
    fake.dialogs.expect("", "Enter a Point of Service");
    add("");
    fake.dialogs.verify();
    EXPECT_EQ(fake.dialogs.beeps(), 0);
}

TEST_F(SetupPointsOfService, AddingANameWritesTheFileAndRefillsEveryList) {
    start("\"Crew One\"\r\n");
    add("Install Team");
    EXPECT_EQ(t.readBytes("/ServiceAreas.txt"), "\"Crew One\"\r\n\"Install Team\"\r\n");
    EXPECT_EQ(setup.cboAssignments.items, (QStringList{"Crew One", "Install Team"}));
    EXPECT_EQ(setup.cboAssignments.text, "");
    EXPECT_TRUE(setup.cboAssignments.focusRequested);
    EXPECT_EQ(session.pointOfServiceNames.UpperBound(), 2);
    EXPECT_EQ(session.pointOfServiceNames[2], "Install Team");
    EXPECT_EQ(blockList.items, (QStringList{"Crew One", "Install Team", "All Assignments"}));
    EXPECT_TRUE(t.isDir("/2026/DaySchedules2"));
}

TEST_F(SetupPointsOfService, AnExactDuplicateIsRefusedAndTheBoxEmptied) {
    start("\"Crew One\"\r\n");
    fake.dialogs.expect("", "This Point of Service already Exists");
    add("Crew One");
    fake.dialogs.verify();
    EXPECT_EQ(fake.dialogs.beeps(), 0);
    EXPECT_EQ(setup.cboAssignments.text, "");
    EXPECT_EQ(setup.cboAssignments.ListCount(), 1);
}

TEST_F(SetupPointsOfService, TheDuplicateTestCountsCaseAndBlanks) {
    start("\"Crew One\"\r\n");
    add("crew one");
    add("Crew One ");
    EXPECT_EQ(setup.cboAssignments.items, (QStringList{"Crew One", "crew one", "Crew One "}));
}

TEST_F(SetupPointsOfService, AddingANinthNameIsRefused) {
    start(eightNames());
    fake.dialogs.expect("", "MaxPOS Names Created");
    add("Crew 9");
    fake.dialogs.verify();
    EXPECT_EQ(fake.dialogs.beeps(), 1);
    EXPECT_EQ(setup.cboAssignments.ListCount(), 8);
    EXPECT_EQ(t.readBytes("/ServiceAreas.txt"), eightNames());
}

TEST_F(SetupPointsOfService, ANinthNameThatDuplicatesOneShowsTheLimitNotTheDuplicate) {
    start(eightNames());
    fake.dialogs.expect("", "MaxPOS Names Created");
    add("Crew 3");
    fake.dialogs.verify();
    EXPECT_EQ(setup.cboAssignments.text, "Crew 3"); // the duplicate step that empties it never ran
}

TEST_F(SetupPointsOfService, RenamingToAnExistingNameGivesTwoEqualEntries) {
    start("\"Crew One\"\r\n\"Crew Two\"\r\n");
    choose(1);
    setup.cboAssignments.text = "Crew One";
    setup.cmdChange_Click(3);
    EXPECT_EQ(setup.cboAssignments.items, (QStringList{"Crew One", "Crew One"}));
    EXPECT_EQ(t.readBytes("/ServiceAreas.txt"), "\"Crew One\"\r\n\"Crew One\"\r\n");
    EXPECT_EQ(session.pointOfServiceNames[1], "Crew One");
    EXPECT_EQ(session.pointOfServiceNames[2], "Crew One");
}

TEST_F(SetupPointsOfService, RenamingReplacesTheRememberedEntryInPlace) {
    start("\"Crew One\"\r\n\"Crew Two\"\r\n\"Crew Three\"\r\n");
    choose(1);
    setup.cboAssignments.listIndex = -1; // the text was edited after choosing
    setup.cboAssignments.text = "Installers";
    setup.cmdChange_Click(3);
    EXPECT_EQ(t.readBytes("/ServiceAreas.txt"), "\"Crew One\"\r\n\"Installers\"\r\n\"Crew Three\"\r\n");
    EXPECT_EQ(blockList.items, (QStringList{"Crew One", "Installers", "Crew Three", "All Assignments"}));
}

TEST_F(SetupPointsOfService, DeletingMovesTheLaterNamesDownWithoutAQuestion) {
    start("\"Crew One\"\r\n\"Crew Two\"\r\n\"Crew Three\"\r\n");
    choose(0);
    setup.cmdDelete_Click();
    fake.dialogs.verify();
    EXPECT_EQ(t.readBytes("/ServiceAreas.txt"), "\"Crew Two\"\r\n\"Crew Three\"\r\n");
    EXPECT_EQ(session.pointOfServiceNames[1], "Crew Two");
    EXPECT_EQ(session.pointOfServiceNames.UpperBound(), 2);
    EXPECT_FALSE(setup.cmdDelete.enabled);
    EXPECT_TRUE(setup.cboAssignments.focusRequested);
}

TEST_F(SetupPointsOfService, DeletingTheLastNameLeavesAnEmptyFileThatStillCounts) {
    start("\"Crew One\"\r\n");
    choose(0);
    setup.cmdDelete_Click();
    EXPECT_TRUE(t.isFile("/ServiceAreas.txt"));
    EXPECT_EQ(t.readBytes("/ServiceAreas.txt"), "");
    EXPECT_EQ(session.pointOfServiceNames.ServiceAreasState(), "populated");
    EXPECT_EQ(session.pointOfServiceNames.UpperBound(), 0);
    EXPECT_EQ(blockList.items, QStringList{"All Assignments"});
}
