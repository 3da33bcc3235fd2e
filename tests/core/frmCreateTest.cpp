#include "frmCreateTestFixture.h"

#include "scheduling/SlotArithmetic.h"
#include "shell/KeyFilters.h"

using namespace ostrel;
using ostrel::test::CreateScreenFixture;

namespace {
using CreateScreen = CreateScreenFixture;
} // namespace

TEST_F(CreateScreen, CarriesItsTitleEveryButtonCaptionAndTheMenus) {
    EXPECT_EQ(frm.caption, "Appointment Creation");
    const QStringList captions = {
        "Menu",
        "Close Without Saving",
        "Schedule Appointment    Save Day Schedule",
        "Clear Added Service / Redo",
        "Save Unscheduled Appointment ",
        "                 Close Window                     Add to Appointment",
        "Create Appointment",
        "Clear Customer Comments",
        "Clear - Start Over",
        "Add Item to Appointment",
        "Calculate",
        "Add Service to Appointment",
        "Clear - Start Over",
        "Schedule Appointment for This Date",
        "Select a Different Date",
        "All Services have been Selected",
    };
    ASSERT_EQ(frm.cmdService.size(), 16);
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(frm.cmdService[i].caption, captions[i]) << i;
    EXPECT_EQ(frm.cmdDay[0].caption, "<");
    EXPECT_EQ(frm.cmdDay[1].caption, ">");
    EXPECT_EQ(frm.cmdDay[2].caption, "<<");
    EXPECT_EQ(frm.cmdDay[3].caption, ">>");
    EXPECT_EQ(frm.cmdDay[2].toolTip, "- 1 Week");
    EXPECT_EQ(frm.ckPrintInvoice.caption, "Print Invoice AFTER Saving Day Schdule");
    EXPECT_EQ(frm.mnuToggle.caption, "Toggle Grids");
    EXPECT_EQ(frm.mnuCustomer.caption, "Toggle Customer Info");
    EXPECT_EQ(frm.mnuServices.caption, "Services Added");
    EXPECT_EQ(frm.mnuItems.caption, "Sales Items added");
    EXPECT_EQ(frm.mnuAddto.caption, "Add To Appointment");
    EXPECT_EQ(frm.mnuInstructions.caption, "Toggle Instructions");
    EXPECT_EQ(frm.controls.find("cmdService(15)"), &frm.cmdService[15]);
    EXPECT_EQ(frm.controls.find("lblCustomer(7)"), &frm.lblCustomer[7]);
    EXPECT_EQ(frm.controls.find("DTPicker1"), &frm.DTPicker1);
}

TEST_F(CreateScreen, GridsCarryTheirHeadings) {
    open();
    EXPECT_EQ(frm.fgServices.TextMatrix(0, 0), "Service");
    EXPECT_EQ(frm.fgServices.TextMatrix(0, 2), "Time");
    EXPECT_EQ(frm.fgItems.TextMatrix(0, 0), "Qty");
    EXPECT_EQ(frm.fgItems.TextMatrix(0, 3), "Total");
    EXPECT_EQ(frm.fgItemSummary.TextMatrix(0, 0), "Quantity");
    EXPECT_EQ(frm.fgItemSummary.TextMatrix(0, 2), "Unit Cost");
    EXPECT_EQ(frm.fgDaySchedule.Rows(), 49);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(0, 0), "Time");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(24, 0), "11:45");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(25, 0), "1:00");
    EXPECT_EQ(frm.lstTime.ListCount(), 32);
    EXPECT_EQ(frm.lstTime.List(31), "7:45");
}

TEST_F(CreateScreen, ShowingTheScreenTakesTheCustomerAndANewSlipNumber) {
    open();
    const QStringList expected = {"1001", "Ann Archer", "12 Elm St", "Apt 4", "Springfield", "IL", "62701",
                                  "217-555-0101"};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(frm.lblCustomer[i].caption, expected[i]) << i;
    EXPECT_EQ(frm.Counter.SlipId, "322-1");
    EXPECT_EQ(t.readBytes("/SlipCounter.txt"), "\"322\",1\r\n");
    EXPECT_EQ(frm.PointOfService, 1);
    EXPECT_EQ(frm.lstAssignments.items, (QStringList{"Crew One", "Crew Two"}));
    EXPECT_EQ(frm.lstAssignments.listIndex, 0);
    EXPECT_TRUE(frm.lstAssignments.enabled);
    EXPECT_EQ(frm.DTPicker1.value, kToday);
    EXPECT_EQ(frm.DTPicker1.minDate, kToday);
    EXPECT_EQ(frm.lblCost.caption, "$0.00");
    EXPECT_EQ(frm.lblItemTotal.caption, "$0.00");
    EXPECT_EQ(frm.txtCost.text, "$0.00");
    EXPECT_FALSE(frm.cmdService[11].enabled);
    EXPECT_FALSE(frm.cmdService[2].enabled);
    EXPECT_FALSE(frm.fraServices.visible);
    EXPECT_FALSE(frm.fraSummary.visible);
    EXPECT_FALSE(frm.fraSchedule.visible);
    EXPECT_TRUE(frm.fraAccount.visible);
    fake.dialogs.verify();
}

TEST_F(CreateScreen, ThePointOfServiceFollowsTheAccountScreensList) {
    account.cboAssignments.SetListIndex(1);
    open();
    EXPECT_EQ(frm.lstAssignments.listIndex, 1);
    EXPECT_EQ(frm.PointOfService, 2);
    EXPECT_EQ(frm.CurrentSlipName(), "2 - 322-1");
}

TEST_F(CreateScreen, ANegativeStoredAssignmentCountsAsNone) {
    CustomerRecord c = customer();
    c.SetAssignedPointOfService(-3);
    session.customer.customer = c;
    account.cboAssignments.SetListIndex(-1);
    open();
    EXPECT_EQ(frm.PointOfService, 0);
}

TEST_F(CreateScreen, TheHiddenListHoldsTheNameOfEverySlip) {
    t.makeDir("/Appointments");
    t.writeBytes("/Appointments/1 - 300-1.txt", "x");
    t.writeBytes("/Appointments/2 - 301-4.txt", "x");
    t.writeBytes("/Appointments/notes.doc", "x");
    open();
    QStringList names = frm.lstWorkorders.items;
    names.sort();
    EXPECT_EQ(names, (QStringList{"1 - 300-1", "2 - 301-4"}));
    EXPECT_FALSE(frm.lstWorkorders.visible);
}

// Date rule.

TEST_F(CreateScreen, ASaturdayUnderAMondayToFridayWeekMovesThePickerToTheMonday) {
    open();
    frm.DTPicker1.value = QDate(2026, 11, 21); // Saturday
    frm.DTPicker1_Change();
    EXPECT_EQ(frm.DTPicker1.value, QDate(2026, 11, 23));
    frm.DTPicker1.value = QDate(2026, 11, 22); // Sunday
    frm.DTPicker1_Change();
    EXPECT_EQ(frm.DTPicker1.value, QDate(2026, 11, 23));
}

TEST_F(CreateScreen, ThePickerNeverShowsADateBeforeToday) {
    open();
    for (int i = 0; i < 5; ++i)
        frm.cmdDay_Click(0);
    EXPECT_EQ(frm.DTPicker1.value, kToday);
    EXPECT_EQ(frm.DTPicker1.minDate, kToday);
    frm.cmdDay_Click(1);
    EXPECT_EQ(frm.DTPicker1.value, kToday.addDays(1));
    frm.cmdDay_Click(0);
    EXPECT_EQ(frm.DTPicker1.value, kToday);
    frm.cmdDay_Click(0);
    EXPECT_EQ(frm.DTPicker1.value, kToday);
    EXPECT_EQ(fake.dialogs.beeps(), 0);
}

TEST_F(CreateScreen, ADateBeforeTodayOnlyBeeps) {
    open();
    // The screen was loaded yesterday: its picker still offers that day.
    fake.clock.setDate(kToday.addDays(1));
    frm.DTPicker1.value = kToday;
    frm.DTPicker1_Change();
    EXPECT_EQ(frm.DTPicker1.value, kToday);
    EXPECT_EQ(fake.dialogs.beeps(), 1);
    fake.dialogs.verify();
}

TEST_F(CreateScreen, DayButtonsStepADayAWeekAndBackToTodayFromAnyDate) {
    open();
    frm.cmdDay_Click(3);
    EXPECT_EQ(frm.DTPicker1.value, QDate(2026, 11, 25));
    frm.cmdDay_Click(3);
    frm.cmdDay_Click(3);
    EXPECT_EQ(frm.DTPicker1.value, QDate(2026, 12, 9));
    frm.cmdDay_Click(2);
    EXPECT_EQ(frm.DTPicker1.value, kToday);
    // Friday, then one on: the weekend is skipped.
    frm.cmdDay_Click(1);
    frm.cmdDay_Click(1);
    EXPECT_EQ(frm.DTPicker1.value, QDate(2026, 11, 20));
    frm.cmdDay_Click(1);
    EXPECT_EQ(frm.DTPicker1.value, QDate(2026, 11, 23));
    frm.cmdDay_Click(2);
    EXPECT_EQ(frm.DTPicker1.value, kToday);
}

TEST_F(CreateScreen, TodayOnAWeekendOpensOnTheNextWorkDay) {
    fake.clock.setDate(QDate(2026, 11, 21));
    open();
    EXPECT_EQ(frm.DTPicker1.value, QDate(2026, 11, 23));
}

// Services.

TEST_F(CreateScreen, AddingACheckedServiceFillsTheGridAndCountsItsTimeAndCost) {
    open();
    EXPECT_EQ(frm.lstServices.items, (QStringList{"Tune Up", "Oil Change", "Inspection"}));
    addService(0);
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 0), "Tune Up");
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 1), "$45.00");
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 2), "1:00");
    EXPECT_EQ(frm.fgServices.Rows(), 3);
    EXPECT_EQ(frm.Slots, 4);
    EXPECT_EQ(frm.TotalCost, Money::fromWhole(45));
    EXPECT_FALSE(frm.ServiceChecked(0));
    EXPECT_TRUE(frm.fraServices.visible);
    EXPECT_FALSE(frm.cmdService[11].enabled);
    // The Point of Service is fixed from the first service on.
    EXPECT_FALSE(frm.lstAssignments.enabled);
    addService(1);
    EXPECT_EQ(frm.fgServices.TextMatrix(2, 0), "Oil Change");
    EXPECT_EQ(frm.Slots, 6);
    EXPECT_EQ(frm.TotalCost, Money::fromWhole(75));
    frm.cmdService_Click(15);
    EXPECT_FALSE(frm.fraServices.visible);
}

TEST_F(CreateScreen, AddServiceWithNothingCheckedAsksForTheCheckbox) {
    open();
    frm.lstServices.SetListIndex(0);
    frm.lstServices_Click();
    EXPECT_TRUE(frm.cmdService[11].enabled);
    fake.dialogs.expect("", "Click on the Services Checkbox [] to Proceed");
    frm.cmdService_Click(11);
    fake.dialogs.verify();
    EXPECT_EQ(frm.Slots, 0);
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 0), "");
    EXPECT_FALSE(frm.lstAssignments.enabled);
}

TEST_F(CreateScreen, TheGridTakesTheCurrentEntryButTheCountTakesTheFirstChecked) {
    open();
    frm.SetServiceChecked(0, true); // Tune Up checked
    frm.lstServices.SetListIndex(2);      // Inspection current
    frm.lstServices_Click();
    frm.cmdService_Click(11);
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 0), "Inspection");
    EXPECT_EQ(frm.Slots, 4);
    EXPECT_EQ(frm.TotalCost, Money::fromWhole(45));
}

TEST_F(CreateScreen, AServiceAddedAndThenRemovedFromTheGridStillCountsInSlots) {
    open();
    addService(0);
    addService(2);
    EXPECT_EQ(frm.Slots, 5);
    frm.fgServices.row = 1;
    frm.fgServices_RightClick();
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 0), "Inspection");
    EXPECT_EQ(frm.Slots, 5);
    EXPECT_EQ(frm.TotalCost, Money::fromWhole(65));
    frm.cmdService_Click(6);
    EXPECT_EQ(frm.lblTime.caption, "1:15");
    EXPECT_EQ(frm.txtServicesSummary.text, "Inspection\r\n");
}

TEST_F(CreateScreen, ARightClickOnALastServiceRowEmptiesTheGrid) {
    open();
    frm.fgServices.row = 1;
    frm.fgServices_RightClick();
    EXPECT_EQ(frm.fgServices.Rows(), 2);
    addService(1);
    addService(2);
    frm.fgServices.row = 3; // the blank row
    frm.fgServices_RightClick();
    EXPECT_EQ(frm.fgServices.Rows(), 3);
    EXPECT_EQ(frm.fgServices.TextMatrix(2, 0), "Inspection");
}

// The additional service and comments.

TEST_F(CreateScreen, TheAddToMenuShowsItsFrameAndHidesTheOtherThree) {
    open();
    addService(0);
    EXPECT_TRUE(frm.fraServices.visible);
    frm.mnuAddto_Click();
    EXPECT_TRUE(frm.fraAddTo.visible);
    EXPECT_FALSE(frm.fraServices.visible);
    EXPECT_FALSE(frm.fraAccount.visible);
    EXPECT_FALSE(frm.fraItems.visible);
    frm.mnuAddto_Click();
    EXPECT_FALSE(frm.fraAddTo.visible);
}

TEST_F(CreateScreen, EachToggleShowsOneFrameOfFourAndInstructionsToggleAlone) {
    open();
    frm.mnuItems_Click();
    EXPECT_TRUE(frm.fraItems.visible);
    EXPECT_FALSE(frm.fraAccount.visible);
    frm.mnuServices_Click();
    EXPECT_TRUE(frm.fraServices.visible);
    EXPECT_FALSE(frm.fraItems.visible);
    frm.mnuCustomer_Click();
    EXPECT_TRUE(frm.fraAccount.visible);
    EXPECT_FALSE(frm.fraServices.visible);
    frm.mnuCustomer_Click();
    EXPECT_FALSE(frm.fraAccount.visible);
    frm.mnuInstructions_Click();
    EXPECT_TRUE(frm.fraInstructions.visible);
    frm.mnuItems_Click();
    EXPECT_TRUE(frm.fraInstructions.visible);
    frm.mnuInstructions_Click();
    EXPECT_FALSE(frm.fraInstructions.visible);
    EXPECT_FALSE(frm.lblInstructions[0].caption.isEmpty());
}

TEST_F(CreateScreen, AnAdditionalServiceWithoutATimeCannotCloseTheFrame) {
    open();
    frm.mnuAddto_Click();
    frm.txtAdditional.text = "Haul away";
    frm.txtAdditional_Change();
    EXPECT_TRUE(frm.cmdService[3].enabled);
    fake.dialogs.expect("", "Select a Time before Exiting");
    frm.cmdService_Click(5);
    fake.dialogs.verify();
    EXPECT_TRUE(frm.fraAddTo.visible);
    EXPECT_FALSE(frm.AdditionalFlag);
    EXPECT_TRUE(frm.lstAssignments.enabled);
}

TEST_F(CreateScreen, ClosingAnEmptyAddToFrameLeavesItUpWithoutTheFlag) {
    open();
    frm.mnuAddto_Click();
    frm.cmdService_Click(5);
    EXPECT_TRUE(frm.fraAddTo.visible);
    EXPECT_FALSE(frm.AdditionalFlag);
    EXPECT_FALSE(frm.lstAssignments.enabled);
    EXPECT_TRUE(frm.mnuAddto.enabled);
}

TEST_F(CreateScreen, ClosingTheAddToFrameWithAServiceSetsTheFlagAndLocksTheMenu) {
    open();
    addAdditional("Haul away", "$15.00", 1);
    EXPECT_TRUE(frm.AdditionalFlag);
    EXPECT_FALSE(frm.fraAddTo.visible);
    EXPECT_FALSE(frm.mnuAddto.enabled);
    EXPECT_FALSE(frm.lstAssignments.enabled);
}

TEST_F(CreateScreen, CloseWithoutSavingClearsTheServiceAndTheComments) {
    open();
    frm.mnuAddto_Click();
    frm.txtAdditional.text = "Haul away";
    frm.txtCost.text = "$15.00";
    frm.lstTime.SetListIndex(3);
    frm.txtComments.text = "Side door";
    frm.cmdService_Click(1);
    EXPECT_EQ(frm.txtAdditional.text, "");
    EXPECT_EQ(frm.txtCost.text, "$0.00");
    EXPECT_EQ(frm.lstTime.listIndex, -1);
    EXPECT_EQ(frm.txtComments.text, "");
    EXPECT_FALSE(frm.fraAddTo.visible);
    EXPECT_TRUE(frm.mnuAddto.enabled);
    frm.txtComments.text = "Back door";
    frm.cmdService_Click(7);
    EXPECT_EQ(frm.txtComments.text, "");
}

TEST_F(CreateScreen, TheCostBoxTakesCurrencyFormAndEmptiesItsZero) {
    open();
    frm.txtCost_GotFocus();
    EXPECT_EQ(frm.txtCost.text, "");
    int key = 'x';
    frm.txtCost_KeyPress(key);
    EXPECT_EQ(key, 0);
    for (char c : QByteArray("12.5")) {
        int k = c;
        frm.txtCost_KeyPress(k);
        ASSERT_EQ(k, c);
        frm.txtCost.text += QChar(c);
    }
    int second = '.';
    frm.txtCost_KeyPress(second);
    EXPECT_EQ(second, 0);
    int backspace = kKeyBackspace;
    frm.txtCost_KeyPress(backspace);
    EXPECT_EQ(backspace, kKeyBackspace);
    frm.txtCost_LostFocus();
    EXPECT_EQ(frm.txtCost.text, "$12.50");
    frm.txtCost_GotFocus();
    EXPECT_EQ(frm.txtCost.text, "$12.50");
}

// Sales items.

TEST_F(CreateScreen, ACategoryListsItsItemsWithTheirPrices) {
    open();
    EXPECT_EQ(frm.lstCategories.items, (QStringList{"Parts", "Supplies"}));
    EXPECT_EQ(frm.cboItems.ListCount(), 0); // emptied by the reset
    frm.txtQuantity.text = "4";
    frm.lstCategories.SetListIndex(0);
    frm.lstCategories_Click();
    EXPECT_EQ(frm.cboItems.items, (QStringList{"Filter", "Belt"}));
    EXPECT_EQ(frm.cboItemPrices.items, (QStringList{"$12.50", "$12.50"}));
    EXPECT_EQ(frm.cboItems.listIndex, 0);
    EXPECT_EQ(frm.txtQuantity.text, "");
    frm.cboItems.SetListIndex(1);
    frm.txtQuantity.text = "3";
    frm.cboItems_Click();
    EXPECT_EQ(frm.cboItemPrices.listIndex, 1);
    EXPECT_EQ(frm.txtQuantity.text, "");
    EXPECT_TRUE(frm.txtQuantity.focusRequested);
}

TEST_F(CreateScreen, CalculateTakesOneForAQuantityThatIsNoNumber) {
    open();
    frm.lstCategories.SetListIndex(0);
    frm.lstCategories_Click();
    frm.txtQuantity.text = "three";
    frm.cmdService_Click(10);
    EXPECT_EQ(frm.txtQuantity.text, "1");
    EXPECT_EQ(frm.lblItemTotal.caption, "$12.50");
    frm.txtQuantity.text = "3";
    frm.cmdService_Click(10);
    EXPECT_EQ(frm.lblItemTotal.caption, "$37.50");
}

TEST_F(CreateScreen, AddItemNeedsAQuantity) {
    open();
    frm.lstCategories.SetListIndex(0);
    frm.lstCategories_Click();
    fake.dialogs.expect("", "Enter a Quantity for this Item");
    frm.cmdService_Click(9);
    fake.dialogs.verify();
    EXPECT_TRUE(frm.txtQuantity.focusRequested);
    EXPECT_FALSE(frm.fraItems.visible);
    EXPECT_FALSE(frm.lstAssignments.enabled);
}

TEST_F(CreateScreen, AddedItemsGoToTheGridAndARightClickOnRowOneEmptiesIt) {
    open();
    addItem("Parts", 0, "2");
    EXPECT_TRUE(frm.fraItems.visible);
    EXPECT_EQ(frm.fgItems.TextMatrix(1, 0), "2");
    EXPECT_EQ(frm.fgItems.TextMatrix(1, 1), "Filter");
    EXPECT_EQ(frm.fgItems.TextMatrix(1, 2), "$12.50");
    EXPECT_EQ(frm.fgItems.TextMatrix(1, 3), "$25.00");
    EXPECT_EQ(frm.lblItemTotal.caption, "");
    EXPECT_EQ(frm.txtQuantity.text, "");
    // Without Calculate the total is worked out on adding, once the label is empty.
    frm.lstCategories.SetListIndex(1);
    frm.lstCategories_Click();
    frm.txtQuantity.text = "3";
    frm.cmdService_Click(9);
    EXPECT_EQ(frm.fgItems.TextMatrix(2, 1), "Wax");
    EXPECT_EQ(frm.fgItems.TextMatrix(2, 3), "$37.50");
    frm.fgItems.row = 2;
    frm.fgItems_RightClick();
    EXPECT_EQ(frm.fgItems.Rows(), 3);
    frm.fgItems.row = 1;
    frm.fgItems_RightClick();
    EXPECT_EQ(frm.fgItems.Rows(), 2);
    EXPECT_EQ(frm.fgItems.TextMatrix(1, 1), "");
}

// The summary.

TEST_F(CreateScreen, CreateAppointmentSumsTheTimeAndTheCostOfEverything) {
    open();
    addService(0);
    addService(2);
    addAdditional("Haul away", "$15.00", 1); // "0:15": one more than its position
    addItem("Parts", 0, "2");
    frm.cmdService_Click(6);
    EXPECT_EQ(frm.Slots, 4 + 1 + 2);
    EXPECT_EQ(frm.lblTime.caption, "1:45");
    EXPECT_EQ(frm.txtServicesSummary.text, "Tune Up\r\nInspection\r\nHaul away");
    EXPECT_EQ(frm.fgItemSummary.TextMatrix(1, 0), "2");
    EXPECT_EQ(frm.fgItemSummary.TextMatrix(1, 1), "Filter");
    EXPECT_EQ(frm.fgItemSummary.TextMatrix(1, 2), "$12.50");
    EXPECT_EQ(frm.fgItemSummary.TextMatrix(1, 3), "$25.00");
    EXPECT_EQ(frm.lblCost.caption, "$105.00");
    EXPECT_TRUE(frm.fraSummary.visible);
}

TEST_F(CreateScreen, ASecondCreateAppointmentAddsTheAdditionalTimeAndTheCostsAgain) {
    open();
    addService(0);
    addAdditional("Haul away", "$15.00", 0);
    addItem("Parts", 0, "1");
    frm.cmdService_Click(6);
    EXPECT_EQ(frm.Slots, 5);
    EXPECT_EQ(frm.lblCost.caption, "$72.50");
    frm.cmdService_Click(6);
    EXPECT_EQ(frm.Slots, 6);
    EXPECT_EQ(frm.lblTime.caption, "1:30");
    EXPECT_EQ(frm.lblCost.caption, "$100.00");
    EXPECT_EQ(frm.fgItemSummary.Rows(), 3); // the summary grid itself is rebuilt
}

TEST(CreateSlotsAsTime, HoursThenTheQuarter) {
    EXPECT_EQ(SlotsAsTime(0), "0:00");
    EXPECT_EQ(SlotsAsTime(1), "0:15");
    EXPECT_EQ(SlotsAsTime(6), "1:30");
    EXPECT_EQ(SlotsAsTime(47), "11:45");
}

// Starting over.

TEST_F(CreateScreen, ClearStartOverAsksTwiceAndAnyNoKeepsEverything) {
    open();
    addService(0);
    fake.dialogs.expect("Delete Appointment", "This will Remove this Appointment Data", vbYesNo, vbNo);
    frm.cmdService_Click(8);
    fake.dialogs.expect("Delete Appointment", "This will Remove this Appointment Data", vbYesNo, vbYes);
    fake.dialogs.expect("Confirm Delete Appointment", "Are You Sure?", vbYesNo, vbNo);
    frm.cmdService_Click(12);
    fake.dialogs.verify();
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 0), "Tune Up");
    EXPECT_FALSE(frm.lstAssignments.enabled);
}

TEST_F(CreateScreen, ClearStartOverEmptiesTheAppointmentButNotSlots) {
    open();
    addService(0);
    addAdditional("Haul away", "$15.00", 2, "Side door");
    addItem("Parts", 0, "1");
    frm.cmdService_Click(6);
    fake.dialogs.expect("Delete Appointment", "This will Remove this Appointment Data", vbYesNo, vbYes);
    fake.dialogs.expect("Confirm Delete Appointment", "Are You Sure?", vbYesNo, vbYes);
    frm.cmdService_Click(8);
    fake.dialogs.verify();
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 0), "");
    EXPECT_EQ(frm.fgItems.TextMatrix(1, 0), "");
    EXPECT_EQ(frm.fgItemSummary.TextMatrix(1, 0), "");
    EXPECT_EQ(frm.txtAdditional.text, "");
    EXPECT_EQ(frm.txtComments.text, "");
    EXPECT_EQ(frm.txtCost.text, "$0.00");
    EXPECT_EQ(frm.lblCost.caption, "$0.00");
    EXPECT_EQ(frm.TotalCost, Money());
    EXPECT_FALSE(frm.fraSummary.visible);
    EXPECT_TRUE(frm.lstAssignments.enabled);
    EXPECT_TRUE(frm.mnuAddto.enabled);
    EXPECT_FALSE(frm.AdditionalFlag);
    EXPECT_EQ(frm.Slots, 4 + 3); // never set back
}
