#include "workorders/frmTerms.h"
#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"
#include "workorders/TermsFiles.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

namespace {

struct TermsScreen : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmTerms& frm = session.AddScreen(ScreenId::frmTerms, std::make_unique<frmTerms>(session));
    int disclaimerChosen = 0;

    TermsScreen() {
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        frm.customDisclaimerFound = [this] { ++disclaimerChosen; };
    }
};

const QByteArray kTwoLineTerms = "\"Net 30 days.\r\nA late fee of 2% per month applies.\"\r\n";

} // namespace

TEST_F(TermsScreen, LoadSetsBothGenericTextsWordForWord) {
    frm.Load();
    EXPECT_EQ(frm.Label1[1].caption,
              "All material is guaranteed to be as specified, and the work to be performed in accordance with "
              "the drawings and specifications submitted for above work and completed in substantial "
              "workmanlike manner");
    EXPECT_TRUE(frm.Label1[0].caption.startsWith("Any alteration or deviation from above specifications involving "
                                                 "extra costs, will be executed only upon written orders"));
    EXPECT_TRUE(frm.Label1[0].caption.endsWith("Workmen's Compensation and Public Liability Insurance on above "
                                               "work to be provided by: __________________________"));
    EXPECT_EQ(frm.caption, "Custom Terms and Disclaimer Creation Screen");
}

TEST_F(TermsScreen, LoadWithNoFilesLeavesBothBoxesEmptyAndNothingTicked) {
    frm.Load();
    EXPECT_TRUE(frm.Text1[0].text.isEmpty());
    EXPECT_TRUE(frm.Text1[1].text.isEmpty());
    EXPECT_EQ(frm.ckTerms.value, 0);
    EXPECT_EQ(frm.ckDisclaimer.value, 0);
    EXPECT_EQ(disclaimerChosen, 0);
}

TEST_F(TermsScreen, LoadReadsBothFilesWithTheirLineEndsAndReportsWhatItFound) {
    t.writeBytes("/CustomTerms.txt", kTwoLineTerms);
    t.writeBytes("/CustomDisclaimer.txt", "\"We are not liable for pre-existing damage.\"\r\n");
    frm.Load();
    EXPECT_EQ(frm.Text1[0].text, "Net 30 days.\r\nA late fee of 2% per month applies.");
    EXPECT_EQ(frm.Text1[1].text, "We are not liable for pre-existing damage.");
    EXPECT_EQ(frm.ckTerms.value, 1);
    EXPECT_EQ(frm.ckDisclaimer.value, 1);
    EXPECT_EQ(disclaimerChosen, 1);
}

TEST_F(TermsScreen, SaveWritesTheWholeTextAsOneQuotedStringAndDropsTheBackup) {
    t.makeDir("/Backup");
    t.writeBytes("/Backup/CustomTerms.txt", "\"old terms\"\r\n");
    frm.Text1[0].text = "Net 30 days.\r\nA late fee of 2% per month applies.";
    frm.Command1_Click(frmTerms::kSaveTerms);
    EXPECT_EQ(t.readBytes("/CustomTerms.txt"), kTwoLineTerms);
    EXPECT_FALSE(t.isFile("/Backup/CustomTerms.txt"));

    frm.Text1[1].text = "Owner supplies parts.";
    frm.Command1_Click(frmTerms::kSaveDisclaimer);
    EXPECT_EQ(t.readBytes("/CustomDisclaimer.txt"), "\"Owner supplies parts.\"\r\n");
}

TEST_F(TermsScreen, ClearingABoxLeavesTheFileInPlaceAndTheNextLoadBringsTheTextBack) {
    t.writeBytes("/CustomTerms.txt", kTwoLineTerms);
    frm.Load();
    frm.Command1_Click(frmTerms::kClearTerms);
    EXPECT_BOX(fake.dialogs, "Input Box Cleared",
               "The Custom Terms input box has been Cleared\nThe file Custom Terms has not been Deleted");
    EXPECT_TRUE(frm.Text1[0].text.isEmpty());
    EXPECT_EQ(t.readBytes("/CustomTerms.txt"), kTwoLineTerms);

    frm.Command1_Click(frmTerms::kLoadTerms);
    EXPECT_EQ(frm.Text1[0].text, "Net 30 days.\r\nA late fee of 2% per month applies.");
}

TEST_F(TermsScreen, ClearingTheDisclaimerNamesTheDisclaimerInItsMessage) {
    t.writeBytes("/CustomDisclaimer.txt", "\"Owner supplies parts.\"\r\n");
    frm.Load();
    frm.Command1_Click(frmTerms::kClearDisclaimer);
    EXPECT_BOX(fake.dialogs, "Input Box Cleared",
               "The Custom Disclaimer input box has been Cleared\nThe file Custom Disclaimer has not been Deleted");
    EXPECT_TRUE(frm.Text1[1].text.isEmpty());
    EXPECT_TRUE(t.isFile("/CustomDisclaimer.txt"));
}

TEST_F(TermsScreen, DeletingAFileAsksNothingAndLeavesTheBoxText) {
    t.writeBytes("/CustomTerms.txt", kTwoLineTerms);
    t.writeBytes("/CustomDisclaimer.txt", "\"Owner supplies parts.\"\r\n");
    frm.Load();
    frm.Command1_Click(frmTerms::kDeleteTerms);
    frm.Command1_Click(frmTerms::kDeleteDisclaimer);
    EXPECT_FALSE(t.isFile("/CustomTerms.txt"));
    EXPECT_FALSE(t.isFile("/CustomDisclaimer.txt"));
    EXPECT_EQ(frm.Text1[0].text, "Net 30 days.\r\nA late fee of 2% per month applies.");
    EXPECT_EQ(frm.Text1[1].text, "Owner supplies parts.");
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
    // A delete of what is not there is no error either.
    frm.Command1_Click(frmTerms::kDeleteTerms);
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
}

TEST_F(TermsScreen, AnEmptyBoxSavedWritesAnEmptyStringAndTheFileThenCountsAsPresent) {
    frm.Command1_Click(frmTerms::kSaveTerms);
    EXPECT_EQ(t.readBytes("/CustomTerms.txt"), "\"\"\r\n");
    EXPECT_TRUE(t.disk().FileExists(kCustomTermsFile));
    frm.Text1[0].text = "typed and not saved";
    frm.Command1_Click(frmTerms::kLoadTerms);
    // The file is present, so the load reads it: the empty string replaces what the box held.
    EXPECT_TRUE(frm.Text1[0].text.isEmpty());
}

TEST_F(TermsScreen, LoadOfAMissingFileKeepsWhatTheBoxHolds) {
    frm.Text1[1].text = "typed";
    frm.Command1_Click(frmTerms::kLoadDisclaimer);
    EXPECT_EQ(frm.Text1[1].text, "typed");
}

TEST_F(TermsScreen, ACustomFileCutShortIsReportedByNameAndTheOtherStillLoads) {
    t.writeBytes("/CustomTerms.txt", "");
    t.writeBytes("/CustomDisclaimer.txt", "\"Owner supplies parts.\"\r\n");
    frm.Load();
    EXPECT_BOX(fake.dialogs, "Data File Problem",
               "The file ends before all of its data could be read.\n\nFile: /CustomTerms.txt");
    EXPECT_EQ(frm.Text1[1].text, "Owner supplies parts.");
    EXPECT_EQ(frm.ckTerms.value, 0);
}

TEST_F(TermsScreen, MenuHidesTheScreenAndShowsTheMainMenu) {
    frm.Show();
    frm.Command1_Click(frmTerms::kMenu);
    EXPECT_FALSE(frm.isVisible());
    EXPECT_TRUE(session.startup().isVisible());
}

TEST_F(TermsScreen, StartUpLoadsTheScreenHiddenWithTheCustomTexts) {
    t.writeBytes("/CustomTerms.txt", kTwoLineTerms);
    session.Main();
    EXPECT_FALSE(frm.isVisible());
    EXPECT_EQ(frm.ckTerms.value, 1);
    EXPECT_EQ(frm.Label1[1].caption, kGenericTerms);
}
