#include "setup/frmSetup.h"
#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

namespace {

struct SetupScreen : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmSetup& setup = session.AddScreen(ScreenId::frmSetup, std::make_unique<frmSetup>(session));

    void start() {
        ASSERT_EQ(session.Main(), Session::StartResult::Running);
    }
    void writeBusiness(const QByteArray& name, const QByteArray& postal) {
        t.writeBytes("/MyBusinessData.txt", "\"" + name + "\",\"1 Main St\",\"\",\"Springfield\",\"IL\",\"" +
                                                postal +
                                                "\",\"217-555-0142\",\"www.example.com\",\"FEIN 1\"\r\n");
    }
};

} // namespace

TEST_F(SetupScreen, CarriesItsCaptionAndTheCaptionsOfItsThreeTabStrips) {
    EXPECT_EQ(setup.caption, "Appointment Scheduker Setup");
    EXPECT_EQ(setup.tabInfo.TabCaption, (QStringList{"Business Info", "Setup Help", "Options", "Logo",
                                                     "Points of Service", "Operations"}));
    EXPECT_EQ(setup.SSTab2.TabCaption, (QStringList{"Work Orders", "Invoice Options", "Work DayScheduling"}));
    EXPECT_EQ(setup.SSTab1.TabCaption,
              (QStringList{"Printing", "Taxation", "Phone and Modem", "Assistance"}));
    EXPECT_EQ(setup.cmdQuit.caption, "&Save Settings / Return to Menu");
    EXPECT_EQ(setup.cmdGraduatedTax[0].caption, "View/Create a Graduated Tax Scheme");
    EXPECT_EQ(setup.cmdGraduatedTax[1].caption, "Save Graduated Tax Scheme and Close Window");
    EXPECT_EQ(setup.cmdGraduatedTax[2].caption, "Clear/Redo");
    EXPECT_EQ(setup.cmdOops.caption, "Oops - Do Over");
    EXPECT_EQ(setup.cmdLogo[5].caption, "Print Sample Document");
    EXPECT_EQ(setup.ckCustom.caption, "Tax Custom Sales  Items");
    EXPECT_EQ(setup.ckManualInvoiceNo.caption, "Program   =          110-1 Manual      =       100001");
    EXPECT_EQ(setup.optReturn.caption, "Print Remittance Slip ");
    EXPECT_EQ(setup.lblGraduated[0].caption, "Apply Primary Tax Rate to all Sales up to  a Total of:");
    EXPECT_EQ(setup.Image1[3].toolTip, "Toggles Sub Tabs  >");
    EXPECT_EQ(setup.Image4.toolTip, "Clear All business Data");
    EXPECT_EQ(setup.Image5.toolTip, "Reload Business Data");
    for (const char* name :
         {"txtBusiness(8)", "lblAddress(5)", "Image1(0)", "Image1(1)", "Image1(3)", "Label2(2)", "Label2(3)",
          "Label2(4)", "Label3(10)", "cmdChange(3)", "cmdLogo(5)", "cmdReturn(1)", "cmdGraduatedTax(2)",
          "txtGradulated(1)", "lblGraduated(3)", "optBusinessType(1)"})
        EXPECT_NE(setup.controls.find(QString::fromLatin1(name)), nullptr) << name;
}

TEST_F(SetupScreen, RateAndHeadingListsHoldTheirSevenSuggestionsAndTheRatesStartAtFourPercent) {
    const QStringList rates{"4.0", "5.0", "6.0", "7.0", "5,0", "6,0", "7,0"};
    const QStringList headings{"Sales Tax",      "State Tax",     "Taxes", "VAT Tax",
                               "Provincial Tax", "Tax Surcharge", "GST"};
    EXPECT_EQ(setup.cboRate1.items, rates);
    EXPECT_EQ(setup.cboRate2.items, rates);
    EXPECT_EQ(setup.cboTaxHeading1.items, headings);
    EXPECT_EQ(setup.cboTaxHeading2.items, headings);
    EXPECT_EQ(setup.cboRate1.text, "4.0");
    EXPECT_EQ(setup.cboRate2.text, "4.0");
    start();
    // The second heading's default is not among the suggestions; the box takes it as typed text.
    EXPECT_EQ(setup.cboTaxHeading1.text, "Sales Tax");
    EXPECT_EQ(setup.cboTaxHeading2.text, "Tax");
    EXPECT_EQ(setup.cboTaxHeading2.listIndex, -1);
}

TEST_F(SetupScreen, LoadShowsTheFirstEightBusinessStringsButNotTheNinth) {
    writeBusiness("Prairie Comfort", "62704");
    start();
    EXPECT_EQ(setup.txtBusiness[0].text, "Prairie Comfort");
    EXPECT_EQ(setup.txtBusiness[3].text, "Springfield");
    EXPECT_EQ(setup.txtBusiness[5].text, "62704");
    EXPECT_EQ(setup.txtBusiness[6].text, "217-555-0142");
    EXPECT_EQ(setup.txtBusiness[7].text, "www.example.com");
    EXPECT_EQ(setup.txtBusiness[8].text, "");
    EXPECT_EQ(session.settings.business.taxRegistration(), "FEIN 1");
}

TEST_F(SetupScreen, LoadTicksTheOptionsTheSettingsFileHolds) {
    t.writeBytes("/OstrelAppointmentSchedulerSettings.txt",
                 "0,1,1,1,1,#FALSE#,#TRUE#,1,1,1,\"$500.00\",\"$25.00\",62,0,0,#FALSE#,2,1,0\r\n");
    start();
    EXPECT_EQ(setup.ckSalesItems.value, 0);
    EXPECT_EQ(setup.ckServices.value, 1);
    EXPECT_EQ(setup.ckLabor.value, 1);
    EXPECT_EQ(setup.ckShipping.value, 1);
    EXPECT_EQ(setup.ckMisc.value, 1);
    EXPECT_FALSE(setup.optPlain.value);
    EXPECT_TRUE(setup.optReturn.value);
    EXPECT_EQ(setup.ckApply2ndTax.value, 1);
    EXPECT_EQ(setup.ckManualInvoiceNo.value, 1);
    EXPECT_EQ(setup.ckApplyGraduated.value, 1);
    EXPECT_EQ(setup.txtGradulated[0].text, "$500.00");
    EXPECT_EQ(setup.txtGradulated[1].text, "$25.00");
    EXPECT_TRUE(setup.optSF.value);
    EXPECT_FALSE(setup.optMF.value);
    EXPECT_EQ(setup.ckPrompts.value, 0);
    EXPECT_EQ(setup.ckAlarms.value, 0);
    EXPECT_FALSE(setup.optBusinessType[0].value);
    EXPECT_TRUE(setup.optBusinessType[1].value);
    EXPECT_EQ(setup.ckEstimate.value, 0); // held as 2
    EXPECT_EQ(setup.ckReturnParts.value, 1);
    EXPECT_EQ(setup.ckTerms.value, 0);
    EXPECT_FALSE(setup.fraWorkOrders.visible);
    EXPECT_TRUE(setup.Label3[frmSetup::kNoBusinessOptions].visible);
}

TEST_F(SetupScreen, AnUnknownWorkWeekCodeTicksNoDayOptionAndIsKept) {
    t.writeBytes("/OstrelAppointmentSchedulerSettings.txt",
                 "1,0,0,0,0,#TRUE#,#FALSE#,0,0,0,\"$0.00\",\"$0.00\",6,1,1,#TRUE#,1,1,1\r\n");
    start();
    EXPECT_FALSE(setup.optMF.value || setup.optMS.value || setup.optSF.value || setup.optSS.value);
    setup.ckShipping.value = 1;
    setup.OptionChanged();
    EXPECT_EQ(session.settings.program.WorkWeekCode, 6);
}

TEST_F(SetupScreen, EachDayOptionSetsItsWorkWeekCode) {
    start();
    setup.optMS_Click();
    EXPECT_EQ(session.settings.program.WorkWeekCode, 61);
    EXPECT_FALSE(setup.optMF.value);
    setup.optSF_Click();
    EXPECT_EQ(session.settings.program.WorkWeekCode, 62);
    setup.optSS_Click();
    EXPECT_EQ(session.settings.program.WorkWeekCode, 7);
    setup.optMF_Click();
    EXPECT_EQ(session.settings.program.WorkWeekCode, 5);
    EXPECT_TRUE(setup.optMF.value);
    EXPECT_FALSE(setup.optSS.value);
}

TEST_F(SetupScreen, AHeldOptionReachesTheSharedSettingsAtOnce) {
    start();
    setup.ckAlarms.value = 0;
    setup.ckLabor.value = 1;
    setup.cboRate1.text = "8.25";
    setup.cboTaxHeading2.text = "County Tax";
    setup.ckApply1stTax.value = 1;
    setup.OptionChanged();
    EXPECT_FALSE(session.settings.program.alarms());
    EXPECT_TRUE(session.settings.program.taxLabor());
    EXPECT_EQ(session.settings.tax.cboRate1, "8.25");
    EXPECT_EQ(session.settings.tax.cboTaxHeading2, "County Tax");
    EXPECT_TRUE(session.settings.tax.applyFirstTax());
}

TEST_F(SetupScreen, ReturnPartsOptionIsHeldForTheWorkOrderScreen) {
    start();
    setup.ckReturnParts.value = 0;
    setup.ckReturnParts_Click();
    EXPECT_FALSE(session.settings.program.printReturnParts());
    setup.ckReturnParts.value = 1;
    setup.ckReturnParts_Click();
    EXPECT_TRUE(session.settings.program.printReturnParts());
}

TEST_F(SetupScreen, AssociateSalesHidesTheWorkOrderOptionsAndOffersTheSalesReportOnTheMenu) {
    start();
    setup.optBusinessType_Click(1);
    EXPECT_FALSE(setup.fraWorkOrders.visible);
    EXPECT_TRUE(setup.Label3[frmSetup::kNoBusinessOptions].visible);
    EXPECT_EQ(setup.Label3[frmSetup::kNoBusinessOptions].caption,
              "There are No Business Options when you select Associate Sales Oriented Type");
    EXPECT_TRUE(session.settings.program.salesReportAvailable());
    session.startup().Form_Activate();
    EXPECT_TRUE(session.startup().optMainMenuSub[4].visible);
}

TEST_F(SetupScreen, ShopRepairShowsTheWorkOrderOptionsTicksTwoOfThemAndHidesTheSalesReport) {
    start();
    setup.optBusinessType_Click(1);
    setup.ckEstimate.value = 0;
    setup.ckReturnParts.value = 0;
    setup.ckTerms.value = 0;
    setup.OptionChanged();
    setup.optBusinessType_Click(0);
    EXPECT_TRUE(setup.fraWorkOrders.visible);
    EXPECT_FALSE(setup.Label3[frmSetup::kNoBusinessOptions].visible);
    EXPECT_EQ(setup.ckEstimate.value, 1);
    EXPECT_EQ(setup.ckReturnParts.value, 1);
    EXPECT_EQ(setup.ckTerms.value, 0);
    EXPECT_TRUE(session.settings.program.printReturnParts());
    EXPECT_FALSE(session.settings.program.salesReportAvailable());
    session.startup().Form_Activate();
    EXPECT_FALSE(session.startup().optMainMenuSub[4].visible);
}

TEST_F(SetupScreen, GoingToInternationalStyleEmptiesThePostalBoxAndWidensTheStateBox) {
    writeBusiness("Prairie Comfort", "62704");
    start();
    ASSERT_EQ(setup.cmdAddress.caption, "USA Style Address");
    setup.cmdAddress_Click();
    EXPECT_EQ(setup.cmdAddress.caption, "International Style Address");
    EXPECT_EQ(session.settings.cmdAddressCaption, "International Style Address");
    EXPECT_FALSE(setup.lblPostal.visible);
    EXPECT_EQ(setup.lblAddress[3].caption, "Address 3");
    EXPECT_EQ(setup.lblAddress[4].caption, "Address 4");
    EXPECT_FALSE(setup.lblAddress[5].visible);
    EXPECT_EQ(setup.txtBusiness[5].text, "");
    EXPECT_FALSE(setup.txtBusiness[5].enabled);
    EXPECT_EQ(setup.txtBusiness[4].Width, 5385);
    EXPECT_EQ(setup.txtBusiness[4].maxLength, 55);
    EXPECT_EQ(setup.txtBusiness[3].Width, 5385);
}

TEST_F(SetupScreen, GoingToUsaStyleBringsBackTheHeldPostalCodeAndNarrowsTheStateBox) {
    writeBusiness("Prairie Comfort", "62704");
    start();
    setup.cmdAddress_Click();
    setup.cmdAddress_Click();
    EXPECT_EQ(setup.cmdAddress.caption, "USA Style Address");
    EXPECT_EQ(session.settings.cmdAddressCaption, "USA Style Address");
    EXPECT_TRUE(setup.lblPostal.visible);
    EXPECT_EQ(setup.lblPostal.caption, "Postal Code is Mandatory");
    EXPECT_EQ(setup.lblAddress[3].caption, "City");
    EXPECT_EQ(setup.lblAddress[4].caption, "State");
    EXPECT_TRUE(setup.lblAddress[5].visible);
    EXPECT_EQ(setup.txtBusiness[5].text, "62704");
    EXPECT_TRUE(setup.txtBusiness[5].enabled);
    EXPECT_TRUE(setup.txtBusiness[5].focusRequested);
    EXPECT_EQ(setup.txtBusiness[4].Width, 390);
    EXPECT_EQ(setup.txtBusiness[4].maxLength, 2);
    EXPECT_EQ(setup.txtBusiness[3].Width, 3150);
}

TEST_F(SetupScreen, ANameWithAnEmptyPostalCodeStartsInInternationalStyle) {
    writeBusiness("Prairie Comfort", "");
    start();
    EXPECT_EQ(setup.cmdAddress.caption, "International Style Address");
    EXPECT_FALSE(setup.txtBusiness[5].enabled);
    EXPECT_EQ(setup.txtBusiness[4].maxLength, 55);
}

TEST_F(SetupScreen, ActivationDecidesTheStyleAgainFromTheBoxesShowsTheFirstTabsAndFocusesTheName) {
    start();
    ASSERT_EQ(setup.cmdAddress.caption, "USA Style Address");
    // A company name typed with no postal code reads as USA by the tests, which the toggle turns.
    setup.txtBusiness[0].text = "Prairie Comfort";
    setup.tabInfo_Click(frmSetup::kLogo);
    setup.SSTab1_Click(frmSetup::kTaxation);
    setup.Show();
    EXPECT_EQ(setup.cmdAddress.caption, "International Style Address");
    EXPECT_FALSE(setup.txtBusiness[5].enabled);
    EXPECT_EQ(setup.tabInfo.Tab, frmSetup::kBusinessInfo);
    EXPECT_EQ(setup.SSTab1.Tab, frmSetup::kPrinting);
    EXPECT_TRUE(setup.txtBusiness[0].focusRequested);
}

TEST_F(SetupScreen, ActivationInUsaStyleLeavesTheFocusOnTheCompanyNameNotThePostalCode) {
    writeBusiness("Prairie Comfort", "62704");
    start();
    setup.Show();
    EXPECT_EQ(setup.cmdAddress.caption, "USA Style Address");
    EXPECT_TRUE(setup.txtBusiness[0].focusRequested);
    EXPECT_FALSE(setup.txtBusiness[5].focusRequested);
}

TEST_F(SetupScreen, TheMenuOpensSetupWithTheWorkDayPageOfTheOptionsChosen) {
    start();
    setup.SSTab2_Click(frmSetup::kWorkOrders);
    setup.ShowFromMenu();
    EXPECT_TRUE(setup.isVisible());
    EXPECT_EQ(setup.SSTab2.Tab, frmSetup::kWorkDayScheduling);
    // Activation follows and puts the outer strip back on its first page.
    EXPECT_EQ(setup.tabInfo.Tab, frmSetup::kBusinessInfo);
}

TEST_F(SetupScreen, TheStepImagesGoThroughEachStripAndBackToItsFirstPage) {
    start();
    for (int expected : {1, 2, 3, 4, 5, 0}) {
        setup.Image1_Click(0);
        EXPECT_EQ(setup.tabInfo.Tab, expected);
    }
    for (int expected : {1, 2, 0}) {
        setup.Image1_Click(1);
        EXPECT_EQ(setup.SSTab2.Tab, expected);
    }
    session.modem.detected = true;
    setup.Load();
    for (int expected : {1, 2, 3, 0}) {
        setup.Image1_Click(3);
        EXPECT_EQ(setup.SSTab1.Tab, expected);
    }
}

TEST_F(SetupScreen, SteppingPassesOverTheDisabledPhonePage) {
    start();
    ASSERT_FALSE(setup.SSTab1.TabEnabled[frmSetup::kPhoneAndModem]);
    setup.Image1_Click(3);
    setup.Image1_Click(3);
    EXPECT_EQ(setup.SSTab1.Tab, frmSetup::kAssistance);
}

TEST_F(SetupScreen, ClearingTheBusinessDataAsksFirstAndNoKeepsEveryBox) {
    writeBusiness("Prairie Comfort", "62704");
    start();
    fake.dialogs.expect("Reset Business Data", "Do you want to reset (clear)all Business Data?",
                        vbYesNo + vbQuestion, vbNo);
    setup.Image4_Click();
    fake.dialogs.verify();
    EXPECT_EQ(setup.txtBusiness[0].text, "Prairie Comfort");
    fake.dialogs.expect("Reset Business Data", "Do you want to reset (clear)all Business Data?", vbYes);
    setup.txtBusiness[8].text = "ABN - 1";
    setup.Image4_Click();
    fake.dialogs.verify();
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(setup.txtBusiness[i].text, "") << i;
    EXPECT_TRUE(setup.txtBusiness[0].focusRequested);
}

TEST_F(SetupScreen, ReloadingTheBusinessDataRefillsTheBoxesFromTheFile) {
    writeBusiness("Prairie Comfort", "62704");
    start();
    setup.txtBusiness[0].text = "Typed Over";
    setup.txtBusiness[6].text = "";
    setup.txtBusiness[8].text = "Typed ninth";
    writeBusiness("Renamed Shop", "62704");
    setup.Image5_Click();
    EXPECT_EQ(setup.txtBusiness[0].text, "Renamed Shop");
    EXPECT_EQ(setup.txtBusiness[6].text, "217-555-0142");
    EXPECT_EQ(setup.txtBusiness[8].text, "Typed ninth");
    EXPECT_EQ(session.settings.business.companyName(), "Renamed Shop");
}

TEST_F(SetupScreen, SavingTheInstructionsWritesThemNowAndReloadingAddsALineEnd) {
    start();
    setup.txtReturnParts.text = "Return all parts\r\nto the customer.";
    setup.cmdReturn_Click(0);
    EXPECT_EQ(t.readBytes("/ReturnPartsInstructions.txt"), "\"Return all parts\r\nto the customer.\"\r\n");
    setup.txtReturnParts.text = "changed";
    setup.cmdReturn_Click(1);
    EXPECT_EQ(setup.txtReturnParts.text, "Return all parts\r\nto the customer.\r\n");
    EXPECT_EQ(session.settings.txtReturnParts, "Return all parts\r\nto the customer.\r\n");
}

TEST_F(SetupScreen, TaxCustomSalesItemsStartsUntickedEachRun) {
    start();
    EXPECT_EQ(setup.ckCustom.value, 0);
    setup.ckCustom.value = 1;
    setup.OptionChanged();
    setup.Load();
    EXPECT_EQ(setup.ckCustom.value, 1); // a reload within the run keeps it
    Session second(t.path(), fake);
    frmSetup& again = second.AddScreen(ScreenId::frmSetup, std::make_unique<frmSetup>(second));
    session.ExitProgram();
    ASSERT_EQ(second.Main(), Session::StartResult::Running);
    again.Load();
    EXPECT_EQ(again.ckCustom.value, 0);
}
