#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "setup/frmSetup.h"
#include "shell/Session.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

namespace {

struct SetupOperations : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmSetup& setup = session.AddScreen(ScreenId::frmSetup, std::make_unique<frmSetup>(session));

    void start() {
        ASSERT_EQ(session.Main(), Session::StartResult::Running);
    }
};

} // namespace

TEST_F(SetupOperations, TheGraduatedSchemeOpensOnItsFirstAmount) {
    start();
    EXPECT_FALSE(setup.fraGraduated.visible);
    setup.cmdGraduatedTax_Click(0);
    EXPECT_TRUE(setup.fraGraduated.visible);
    EXPECT_TRUE(setup.txtGradulated[0].focusRequested);
}

TEST_F(SetupOperations, AZeroAmountIsEmptiedWhenItsBoxTakesTheFocus) {
    start();
    ASSERT_EQ(setup.txtGradulated[0].text, "$0.00");
    setup.txtGradulated_GotFocus(0);
    EXPECT_EQ(setup.txtGradulated[0].text, "");
    setup.txtGradulated[1].text = "$12.50";
    setup.txtGradulated_GotFocus(1);
    EXPECT_EQ(setup.txtGradulated[1].text, "$12.50");
}

TEST_F(SetupOperations, SavingTheSchemeReformatsBothAmountsAndClosesTheFrame) {
    start();
    setup.cmdGraduatedTax_Click(0);
    setup.ckApplyGraduated.value = 1;
    setup.txtGradulated[0].text = "1500";
    setup.txtGradulated[1].text = "2.5";
    setup.cmdGraduatedTax_Click(1);
    EXPECT_EQ(setup.txtGradulated[0].text, "$1,500.00");
    EXPECT_EQ(setup.txtGradulated[1].text, "$2.50");
    EXPECT_FALSE(setup.fraGraduated.visible);
    EXPECT_EQ(setup.ckApplyGraduated.value, 1);
    EXPECT_EQ(session.settings.program.txtGradulated[0], "$1,500.00");
    EXPECT_EQ(session.settings.program.txtGradulated[1], "$2.50");
}

TEST_F(SetupOperations, ALetterInTheSurchargeResetsItToZeroKeepsTheFrameOpenAfterTheLimitWasReformatted) {
    start();
    setup.cmdGraduatedTax_Click(0);
    setup.txtGradulated[0].text = "1500";
    setup.txtGradulated[1].text = "2x5";
    setup.cmdGraduatedTax_Click(1);
    EXPECT_EQ(setup.txtGradulated[1].text, "$0.00");
    EXPECT_TRUE(setup.txtGradulated[1].focusRequested);
    EXPECT_FALSE(setup.txtGradulated[0].focusRequested);
    EXPECT_TRUE(setup.fraGraduated.visible);
    EXPECT_EQ(setup.txtGradulated[0].text, "$1,500.00");
    EXPECT_EQ(fake.dialogs.beeps(), 1);
}

TEST_F(SetupOperations, ALetterInTheLimitStopsBeforeTheSurchargeIsLookedAt) {
    start();
    setup.cmdGraduatedTax_Click(0);
    setup.txtGradulated[0].text = "abc";
    setup.txtGradulated[1].text = "7";
    setup.cmdGraduatedTax_Click(1);
    EXPECT_EQ(setup.txtGradulated[0].text, "$0.00");
    EXPECT_EQ(setup.txtGradulated[1].text, "7");
    EXPECT_TRUE(setup.fraGraduated.visible);
}

TEST_F(SetupOperations, AZeroLimitClearsTheGraduatedOption) {
    start();
    setup.ckApplyGraduated.value = 1;
    setup.txtGradulated[0].text = "0";
    setup.txtGradulated[1].text = "5";
    setup.cmdGraduatedTax_Click(1);
    EXPECT_EQ(setup.ckApplyGraduated.value, 0);
    EXPECT_FALSE(session.settings.program.applyGraduated());
}

TEST_F(SetupOperations, ClearRedoPutsBothAmountsToZeroAndFocusesTheFirst) {
    start();
    setup.txtGradulated[0].text = "$10.00";
    setup.txtGradulated[1].text = "$1.00";
    setup.cmdGraduatedTax_Click(2);
    EXPECT_EQ(setup.txtGradulated[0].text, "$0.00");
    EXPECT_EQ(setup.txtGradulated[1].text, "$0.00");
    EXPECT_TRUE(setup.txtGradulated[0].focusRequested);
}

TEST_F(SetupOperations, TheColourDialogsSetTheBackColoursAndCancelKeepsThem) {
    start();
    fake.dialogs.answerColour(rgbColour(200, 0, 0));
    setup.cmdChange_Click(0);
    EXPECT_EQ(setup.txtBorders.BackColor, rgbColour(200, 0, 0));
    EXPECT_EQ(session.settings.colors.txtBorders, 200);
    fake.dialogs.answerColour(std::nullopt);
    setup.cmdChange_Click(0);
    EXPECT_EQ(setup.txtBorders.BackColor, rgbColour(200, 0, 0));
    fake.dialogs.answerColour(rgbColour(0, 0, 255));
    setup.cmdChange_Click(1);
    EXPECT_EQ(setup.txtData.BackColor, rgbColour(0, 0, 255));
    EXPECT_EQ(session.settings.colors.txtData, 255 << 16);
    EXPECT_EQ(fake.dialogs.colourRequests(), (QVector<Colour>{0, rgbColour(200, 0, 0), 0}));
}

TEST_F(SetupOperations, TheFontDialogPutsTheFontNameInTheLabel) {
    start();
    ASSERT_EQ(setup.lblFont.caption, "Arial");
    FontChoice chosen;
    chosen.name = "Liberation Serif";
    chosen.size = 12;
    fake.dialogs.answerFont(chosen);
    setup.cmdChange_Click(2);
    EXPECT_EQ(setup.lblFont.caption, "Liberation Serif");
    EXPECT_EQ(session.settings.colors.lblFont, "Liberation Serif");
    EXPECT_EQ(fake.dialogs.fontRequests().front().name, "Arial");
    fake.dialogs.answerFont(std::nullopt);
    setup.cmdChange_Click(2);
    EXPECT_EQ(setup.lblFont.caption, "Liberation Serif");
}

TEST_F(SetupOperations, PrintAndCopiesActForThisRunOnlyAndLeaveTheColoursFileAsLoaded) {
    t.writeBytes("/PrintColors.txt", "0\r\n0\r\n\"Arial\"\r\n#FALSE#\r\n2\r\n");
    start();
    EXPECT_EQ(setup.ckColor.value, 0);
    EXPECT_EQ(setup.cboCopies.text, "2");
    setup.ckColor.value = 1;
    setup.cboCopies.text = "4";
    setup.OptionChanged();
    EXPECT_TRUE(session.settings.colors.printInColour());
    setup.txtBusiness[0].text = "Shop";
    setup.txtBusiness[6].text = "555-1234";
    setup.cmdQuit_Click();
    EXPECT_EQ(t.readBytes("/PrintColors.txt"), "0\r\n0\r\n\"Arial\"\r\n#FALSE#\r\n2\r\n");
}

TEST_F(SetupOperations, WithoutAModemThePhonePageIsDisabledAndCallerIdStillShowsTicked) {
    t.writeBytes("/Phone.txt", "#TRUE#\r\n3\r\n");
    start();
    EXPECT_FALSE(setup.SSTab1.TabEnabled[frmSetup::kPhoneAndModem]);
    EXPECT_TRUE(setup.SSTab1.TabEnabled[frmSetup::kTaxation]);
    EXPECT_EQ(setup.ckCallerID.value, 1);
    EXPECT_TRUE(setup.lblCallid.visible);
    EXPECT_EQ(setup.ckPhone.value, 1);
}

TEST_F(SetupOperations, WithoutAModemOrPhoneFileTheDaisyChainBoxIsClear) {
    start();
    EXPECT_EQ(setup.ckPhone.value, 0);
}

TEST_F(SetupOperations, AFoundModemShowsItsPortEvenWhenThePhoneFileNamesAnother) {
    t.writeBytes("/Phone.txt", "#FALSE#\r\n3\r\n");
    t.writeBytes("/CallID.txt", "#FALSE#\r\n");
    fake.serialMachine.attach(4, ostrel::test::ScriptedDevice::modem());
    start();
    EXPECT_TRUE(setup.SSTab1.TabEnabled[frmSetup::kPhoneAndModem]);
    EXPECT_EQ(setup.txtModemPort.text, "4");
    EXPECT_EQ(setup.ckCallerID.value, 1);
    EXPECT_TRUE(setup.lblCallid.visible);
    EXPECT_EQ(setup.ckPhone.value, 0);
    EXPECT_EQ(session.settings.phone.ModemPort, 3);
}

TEST_F(SetupOperations, LeavingWritesThePhoneFilesWithTheDaisyChainBoxAndTheReadCallerIdFlag) {
    fake.serialMachine.attach(3, ostrel::test::ScriptedDevice::modem());
    start();
    setup.ckPhone.value = 1;
    setup.ckCallerID.value = 1;
    setup.txtBusiness[0].text = "Shop";
    setup.txtBusiness[6].text = "555-1234";
    setup.cmdQuit_Click();
    EXPECT_EQ(t.readBytes("/Phone.txt"), "#TRUE#\r\n3\r\n");
    EXPECT_EQ(t.readBytes("/CallID.txt"), "#FALSE#\r\n");
}
