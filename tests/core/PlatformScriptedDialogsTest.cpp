#include "FakePlatform.h"
#include "ScriptedDialogs.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::ScriptedDialogs;

TEST(ScriptedDialogs, AnswersAnExpectedBoxWithTheScriptedButton) {
    ScriptedDialogs dialogs;
    dialogs.expect("Delete Logo", "This will Delete your Company Logo", vbNo);
    EXPECT_EQ(vbNo, dialogs.MsgBox("This will Delete your Company Logo", vbYesNo, "Delete Logo"));
    dialogs.verify();
    ASSERT_EQ(1, dialogs.boxes().size());
    EXPECT_EQ(vbYesNo, dialogs.boxes()[0].style);
}

TEST(ScriptedDialogs, BoxWithoutTitleCarriesTheProgramTitle) {
    ScriptedDialogs dialogs(QStringLiteral("Shop Scheduler"));
    dialogs.MsgBox("Your Logo has been Stored");
    ASSERT_EQ(1, dialogs.boxes().size());
    EXPECT_EQ(QStringLiteral("Shop Scheduler"), dialogs.boxes()[0].title);
    EXPECT_EQ(vbOKOnly, dialogs.boxes()[0].style);
    EXPECT_BOX(dialogs, "Shop Scheduler", "Your Logo has been Stored");
}

TEST(ScriptedDialogs, EmptyExpectedTitleMeansTheProgramTitle) {
    ScriptedDialogs dialogs(QStringLiteral("Shop Scheduler"));
    dialogs.expect(QString(), "MaxPOS Names Created");
    dialogs.MsgBox("MaxPOS Names Created");
    dialogs.MsgBox("Enter a Point of Service");
    EXPECT_BOX(dialogs, QString(), "Enter a Point of Service");
}

TEST(ScriptedDialogs, BoxNobodyExpectedFailsTheTestWithItsText) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedDialogs dialogs;
            dialogs.MsgBox("Enter a Point of Service", vbOKOnly, "Setup");
        },
        "Enter a Point of Service");
}

TEST(ScriptedDialogs, ExpectedBoxNeverShownFailsAtVerify) {
    ScriptedDialogs dialogs;
    dialogs.expect("Order Paper", "Click Yes to connect to a Supplier", vbYes);
    EXPECT_NONFATAL_FAILURE(dialogs.verify(), "Expected message box never shown");
}

TEST(ScriptedDialogs, ExpectedBoxNeverShownFailsAtDestruction) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedDialogs dialogs;
            dialogs.expect("Order Paper", "Click Yes to connect to a Supplier", vbYes);
        },
        "Click Yes to connect to a Supplier");
}

TEST(ScriptedDialogs, DifferentPromptFailsAndShowsBothTexts) {
    ScriptedDialogs dialogs;
    dialogs.expect("Confirm Print", "Did the Schedule Print Correctly?", vbYes);
    EXPECT_NONFATAL_FAILURE(dialogs.MsgBox("Did the Report Print Correctly?", vbYesNo, "Confirm Print"),
                            "Did the Schedule Print Correctly?");
}

TEST(ScriptedDialogs, DifferentTitleFails) {
    ScriptedDialogs dialogs;
    dialogs.expect("Confirm Print", "Did the Schedule Print Correctly?", vbYes);
    EXPECT_NONFATAL_FAILURE(dialogs.MsgBox("Did the Schedule Print Correctly?", vbYesNo, "Print Retry"),
                            "Print Retry");
}

TEST(ScriptedDialogs, StyleGivenInTheExpectationMustMatch) {
    ScriptedDialogs dialogs;
    dialogs.expect("Delete Logo", "This will Delete your Company Logo", vbYesNo + vbQuestion, vbYes);
    EXPECT_NONFATAL_FAILURE(dialogs.MsgBox("This will Delete your Company Logo", vbYesNo, "Delete Logo"),
                            "Yes No");
}

TEST(ScriptedDialogs, AnswerThatIsNotAButtonOfTheBoxFails) {
    ScriptedDialogs dialogs;
    dialogs.expect("Setup", "Settings are saved upon exiting.", vbYes);
    MsgBoxResult answer = vbCancel;
    EXPECT_NONFATAL_FAILURE(answer = dialogs.MsgBox("Settings are saved upon exiting.", vbOKOnly, "Setup"),
                            "not a button");
    EXPECT_EQ(vbOK, answer);
}

TEST(ScriptedDialogs, UnexpectedBoxGetsItsDefaultButton) {
    ScriptedDialogs dialogs;
    EXPECT_EQ(vbYes, dialogs.MsgBox("Proceed?", vbYesNo, "Q"));
    EXPECT_EQ(vbNo, dialogs.MsgBox("Proceed?", vbYesNo + vbDefaultButton2, "Q"));
    EXPECT_TRUE(dialogs.takeBox("Q", "Proceed?", vbYesNo));
    EXPECT_TRUE(dialogs.takeBox("Q", "Proceed?", vbYesNo + vbDefaultButton2));
}

TEST(ScriptedDialogs, ExpectBoxFailsWhenNoBoxWasShown) {
    ScriptedDialogs dialogs;
    EXPECT_NONFATAL_FAILURE(EXPECT_BOX(dialogs, "Print Error", "A Print Error has occurred"),
                            "No message box was shown");
}

TEST(ScriptedDialogs, ExpectBoxFailsForAnotherText) {
    ScriptedDialogs dialogs;
    dialogs.MsgBox("The Report will not be Printed");
    EXPECT_NONFATAL_FAILURE(EXPECT_BOX(dialogs, QString(), "A Print Error has occurred"),
                            "The Report will not be Printed");
}

TEST(ScriptedDialogs, BoxesAreCheckedInTheOrderShown) {
    ScriptedDialogs dialogs;
    dialogs.expect("A", "first", vbOK).expect("B", "second", vbCancel);
    EXPECT_EQ(vbOK, dialogs.MsgBox("first", vbOKOnly, "A"));
    EXPECT_EQ(vbCancel, dialogs.MsgBox("second", vbOKCancel, "B"));
    dialogs.verify();
    ASSERT_EQ(2, dialogs.boxes().size());
    EXPECT_EQ(QStringLiteral("second"), dialogs.boxes()[1].prompt);
}

TEST(ScriptedDialogs, CountsBeeps) {
    ScriptedDialogs dialogs;
    EXPECT_EQ(0, dialogs.beeps());
    dialogs.Beep();
    dialogs.Beep();
    EXPECT_EQ(2, dialogs.beeps());
}

TEST(ScriptedDialogs, CommonDialogsAnswerFromTheScriptAndRecordTheRequest) {
    ScriptedDialogs dialogs;
    dialogs.answerOpenFile(QStringLiteral("/home/owner/logo.bmp"));
    dialogs.answerOpenFile(std::nullopt);
    dialogs.answerColour(rgbColour(255, 0, 0));
    dialogs.answerFont(FontChoice{QStringLiteral("Arial"), 12, true, false, false});
    dialogs.answerInput(QStringLiteral("42"));
    dialogs.answerInput(std::nullopt);

    const OpenFileRequest req{QString(), QStringLiteral("All|*.*"), QStringLiteral("/home/owner")};
    EXPECT_EQ(QStringLiteral("/home/owner/logo.bmp"), dialogs.OpenFileName(req).value());
    EXPECT_FALSE(dialogs.OpenFileName(req).has_value());
    EXPECT_EQ(0x0000FFu, dialogs.ChooseColour(rgbColour(0, 0, 255)).value());
    EXPECT_TRUE(dialogs.ChooseFont(FontChoice{QStringLiteral("Courier"), 10}).value().bold);
    EXPECT_EQ(QStringLiteral("42"), dialogs.InputBox("How many?", QString(), "1").value());
    EXPECT_FALSE(dialogs.InputBox("How many?").has_value());

    ASSERT_EQ(2, dialogs.openFileRequests().size());
    EXPECT_EQ(QStringLiteral("All|*.*"), dialogs.openFileRequests()[0].filter);
    EXPECT_EQ(rgbColour(0, 0, 255), dialogs.colourRequests().value(0));
    EXPECT_EQ(QStringLiteral("Courier"), dialogs.fontRequests().value(0).name);
    ASSERT_EQ(2, dialogs.inputRequests().size());
    EXPECT_EQ(QStringLiteral("OstrelAppointmentScheduler"), dialogs.inputRequests()[0].title);
    EXPECT_EQ(QStringLiteral("1"), dialogs.inputRequests()[0].defaultText);
}

TEST(ScriptedDialogs, UnscriptedCommonDialogFailsAndCancels) {
    ScriptedDialogs dialogs;
    std::optional<Colour> chosen = Colour(1);
    EXPECT_NONFATAL_FAILURE(chosen = dialogs.ChooseColour(0), "Colour dialog nobody expected");
    EXPECT_FALSE(chosen.has_value());
}

TEST(ScriptedDialogs, UnusedCommonDialogAnswerFailsAtVerify) {
    ScriptedDialogs dialogs;
    dialogs.answerOpenFile(QStringLiteral("/tmp/x.bmp"));
    EXPECT_NONFATAL_FAILURE(dialogs.verify(), "open-file answer(s) never asked for");
}

TEST(FakePlatform, BoxesCarryTheProgramNameAsTitle) {
    ostrel::test::FakePlatform fake(QStringLiteral("/srv/shop"));
    Platform& p = fake;
    EXPECT_EQ(QStringLiteral("/srv/shop"), p.app.path());
    p.dialogs.MsgBox("Look for it on the Task Bar");
    EXPECT_BOX(fake.dialogs, "OstrelAppointmentScheduler", "Look for it on the Task Bar");
}
