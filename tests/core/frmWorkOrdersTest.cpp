#include "frmWorkOrdersTestFixture.h"

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::PageOp;
using ostrel::test::RecordingPageSurface;
using ostrel::test::RecordingPrintDialogs;
using ostrel::test::TestDataRoot;
using ostrel::test::WorkOrdersScreen;
using ostrel::test::kMonday;
using ostrel::test::kToday;

TEST_F(WorkOrdersScreen, BuildTimeTurnsSlotsIntoHoursAndQuarters) {
    EXPECT_EQ(BuildTime(5), "1:15");
    EXPECT_EQ(BuildTime(0), "0:00");
    EXPECT_EQ(BuildTime(6), "1:30");
    EXPECT_EQ(BuildTime(47), "11:45");
}

TEST_F(WorkOrdersScreen, WithNoSlipsAtAllActivationShowsNoOverviewAndTheListStaysEmpty) {
    frm.Show();
    EXPECT_FALSE(frm.fraOverview.visible);
    EXPECT_EQ(frm.lstWorkorders.ListCount(), 0);
    EXPECT_FALSE(frm.OverviewBuilt);
    EXPECT_FALSE(frm.cmdWorkOrders[8].enabled);
    EXPECT_EQ(frm.DTPicker1.value, kMonday);
    EXPECT_TRUE(frm.fraDate.visible);
    EXPECT_FALSE(frm.fraAssignmentList.visible);
}

TEST_F(WorkOrdersScreen, ActivationFillsTheOverviewAndListsTheSlipsOfTheDate) {
    save(slip("327-1", 1, kMonday));
    save(slip("327-2", 2, kMonday.addDays(1)));
    frm.Show();
    EXPECT_TRUE(frm.fraOverview.visible);
    ASSERT_EQ(frm.fgOverview.Rows(), 3);
    QStringList names{frm.fgOverview.TextMatrix(1, 0), frm.fgOverview.TextMatrix(2, 0)};
    names.sort();
    EXPECT_EQ(names, QStringList({"1 - 327-1", "2 - 327-2"}));
    for (int r = 1; r <= 2; ++r)
        if (frm.fgOverview.TextMatrix(r, 0) == "2 - 327-2") {
            EXPECT_EQ(frm.fgOverview.TextMatrix(r, 1), "11/24/2026");
            EXPECT_EQ(frm.fgOverview.TextMatrix(r, 2), "2175550199");
            EXPECT_EQ(frm.fgOverview.TextMatrix(r, 3), "Mr. Dale Hensley");
            EXPECT_EQ(frm.fgOverview.TextMatrix(r, 4), "South Crew");
            EXPECT_EQ(frm.fgOverview.TextMatrix(r, 5), "2");
            EXPECT_EQ(frm.fgOverview.TextMatrix(r, 6), "Scheduled");
        }
    EXPECT_EQ(frm.lstWorkorders.items, QStringList({"1 - 327-1"}));
}

TEST_F(WorkOrdersScreen, ASlipDatedTodayIsNotExpiredAndIsNotPurged) {
    const QString name = save(slip("326-1", 1, kToday));
    frm.Show();
    EXPECT_FALSE(frm.cmdWorkOrders[8].enabled);
    // Even a purge run by hand leaves today's slip whole.
    fake.dialogs.expect("Delete Old Appointments", "This will Delete all Appointments\nCreated before 11/22/2026\nThey cannot be retrieved", vbYes);
    fake.dialogs.expect("Delete Verification", "Are you Sure?", vbYes);
    frm.cmdWorkOrders_Click(8);
    fake.dialogs.verify();
    EXPECT_TRUE(t.isFile("/Appointments/" + name + ".txt"));
    EXPECT_TRUE(t.isFile("/Services/" + name + ".txt"));
    EXPECT_TRUE(t.isFile("/SoldItems/" + name + ".txt"));
}

TEST_F(WorkOrdersScreen, ASlipDatedYesterdayEnablesThePurgeAndCannotBeOpenedFromTheOverview) {
    save(slip("325-1", 1, kToday.addDays(-1)));
    frm.Show();
    EXPECT_TRUE(frm.cmdWorkOrders[8].enabled);
    ASSERT_EQ(frm.fgOverview.Rows(), 2);
    frm.fgOverview.row = 1;
    frm.fgOverview_Click();
    EXPECT_BOX(fake.dialogs, "", "You can not modify this Appointment\nThe Appointment date has passed");
    EXPECT_EQ(frm.lstWorkorders.ListCount(), 0);
    EXPECT_TRUE(frm.fraOverview.visible);
    EXPECT_FALSE(frm.cmdWorkOrders[9].enabled);
}

TEST_F(WorkOrdersScreen, PurgeDeletesTheCompanionFilesOfExpiredSlipsButTheSlipFileStays) {
    const QString old = save(slip("325-1", 1, kToday.addDays(-1)));
    const QString current = save(slip("327-1", 2, kMonday));
    frm.Show();
    fake.dialogs.expect("Delete Old Appointments",
                        "This will Delete all Appointments\nCreated before 11/22/2026\nThey cannot be retrieved", vbYes);
    fake.dialogs.expect("Delete Verification", "Are you Sure?", vbYes);
    frm.cmdWorkOrders_Click(8);
    fake.dialogs.verify();
    EXPECT_TRUE(frm.PurgeMode);
    // The misspelled folder spares the slip itself; its services and items are gone.
    EXPECT_TRUE(t.isFile("/Appointments/" + old + ".txt"));
    EXPECT_FALSE(t.isFile("/Services/" + old + ".txt"));
    EXPECT_FALSE(t.isFile("/SoldItems/" + old + ".txt"));
    EXPECT_TRUE(t.isFile("/Services/" + current + ".txt"));
    EXPECT_TRUE(t.isFile("/SoldItems/" + current + ".txt"));
}

TEST_F(WorkOrdersScreen, PurgeAnsweredNoAtEitherQuestionDeletesNothing) {
    const QString old = save(slip("325-1", 1, kToday.addDays(-1)));
    frm.Show();
    fake.dialogs.expect("Delete Old Appointments",
                        "This will Delete all Appointments\nCreated before 11/22/2026\nThey cannot be retrieved", vbNo);
    frm.cmdWorkOrders_Click(8);
    fake.dialogs.expect("Delete Old Appointments",
                        "This will Delete all Appointments\nCreated before 11/22/2026\nThey cannot be retrieved", vbYes);
    fake.dialogs.expect("Delete Verification", "Are you Sure?", vbNo);
    frm.cmdWorkOrders_Click(8);
    fake.dialogs.verify();
    EXPECT_FALSE(frm.PurgeMode);
    EXPECT_TRUE(t.isFile("/Services/" + old + ".txt"));
}

TEST_F(WorkOrdersScreen, ASecondLoadAfterAPurgeListsAllSlips) {
    save(slip("325-1", 1, kToday.addDays(-1)));
    save(slip("327-1", 1, kMonday));
    save(slip("330-1", 2, kMonday.addDays(5)));
    frm.Show();
    EXPECT_EQ(frm.lstWorkorders.ListCount(), 1);
    fake.dialogs.expect("Delete Old Appointments",
                        "This will Delete all Appointments\nCreated before 11/22/2026\nThey cannot be retrieved", vbYes);
    fake.dialogs.expect("Delete Verification", "Are you Sure?", vbYes);
    frm.cmdWorkOrders_Click(8);
    fake.dialogs.verify();
    frm.cmdWorkOrders_Click(1);
    EXPECT_EQ(frm.lstWorkorders.ListCount(), 3);
    // And the next activation too: the mode is never reset in a run.
    frm.Hide();
    frm.Show();
    EXPECT_EQ(frm.lstWorkorders.ListCount(), 3);
    EXPECT_TRUE(frm.PurgeMode);
}

TEST_F(WorkOrdersScreen, LoadingASlipFillsItsServicesAndPickList) {
    const QString name = save(slip("327-1", 1, kMonday));
    openOn(name);
    ASSERT_EQ(frm.fgServices.Rows(), 3);
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 0), "Tune Up");
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 1), "1:00");
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 2), "$45.00");
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 3), "4");
    EXPECT_EQ(frm.fgServices.TextMatrix(2, 1), "0:30");
    EXPECT_EQ(frm.fgServices.TextMatrix(2, 2), "$12.50");
    ASSERT_EQ(frm.fgPicklist.Rows(), 3);
    EXPECT_EQ(frm.fgPicklist.TextMatrix(1, 0), "2");
    EXPECT_EQ(frm.fgPicklist.TextMatrix(1, 1), "Furnace filter 16x25");
    EXPECT_TRUE(frm.ckPick.enabled);
    EXPECT_TRUE(frm.cmdWorkOrders[12].enabled);
    for (int i : {6, 7, 9})
        EXPECT_TRUE(frm.cmdWorkOrders[i].enabled) << i;
    EXPECT_EQ(frm.currentSlip().SlipComment, "Dog in the yard, use the side gate");
}

TEST_F(WorkOrdersScreen, ASlipWithoutSoldItemsDisablesThePickList) {
    const QString name = save(slip("327-1", 1, kMonday), false);
    openOn(name);
    EXPECT_FALSE(frm.ckPick.enabled);
    EXPECT_FALSE(frm.cmdWorkOrders[12].enabled);
    EXPECT_EQ(frm.fgPicklist.Rows(), 1);
}

TEST_F(WorkOrdersScreen, ClickingAnOverviewRowOfTheFutureOpensThatSlip) {
    save(slip("327-1", 1, kMonday));
    const QString later = save(slip("330-1", 2, kMonday.addDays(3)));
    frm.Show();
    int row = 1;
    while (frm.fgOverview.TextMatrix(row, 0) != later)
        ++row;
    frm.fgOverview.row = row;
    frm.fgOverview_Click();
    EXPECT_EQ(frm.DTPicker1.value, kMonday.addDays(3));
    EXPECT_EQ(frm.lstAssignments.listIndex, 1);
    EXPECT_TRUE(frm.optFindBy[2].value);
    EXPECT_TRUE(frm.fraDate.visible);
    EXPECT_TRUE(frm.fraAssignmentList.visible);
    EXPECT_EQ(frm.lstWorkorders.items, QStringList({later}));
    EXPECT_EQ(frm.lstWorkorders.listIndex, 0);
    EXPECT_FALSE(frm.fraOverview.visible);
    EXPECT_EQ(frm.currentSlip().SlipName, later);
    EXPECT_EQ(frm.fgServices.Rows(), 3);
}

TEST_F(WorkOrdersScreen, LoadWithoutDateFindAndNoPointOfServiceAsksForOne) {
    frm.Show();
    frm.optFindBy_Click(1);
    frm.cmdWorkOrders_Click(1);
    EXPECT_BOX(fake.dialogs, "", "Select a Point of Service before loading Work Orders");
}

TEST_F(WorkOrdersScreen, PrepareWithNothingSelectedSaysSo) {
    frm.Show();
    frm.cmdWorkOrders_Click(9);
    EXPECT_BOX(fake.dialogs, "", "Select Work Order(s) to Print from the List Above");
    EXPECT_FALSE(frm.fraTerms.visible);
}

TEST_F(WorkOrdersScreen, AddOtherServicesWarnsWhenPromptsAreOn) {
    const QString name = save(slip("327-1", 1, kMonday));
    openOn(name);
    session.settings.program.ckPrompts = 1;
    frm.cmdWorkOrders_Click(6);
    EXPECT_BOX(fake.dialogs, "",
               "ONLY add Services to Appointments if Time Scheduling is NOT a Factor\n"
               "Added Services will NOT appear in Day Schedules, do this ONLY if you plan to\nPRINT a Work Order Now");
    EXPECT_TRUE(frm.fraAddServices.visible);
    EXPECT_TRUE(frm.cmdWorkOrders[4].enabled);
}

TEST_F(WorkOrdersScreen, AServiceAddedTwiceAfterYesGivesTwoRowsInEachGrid) {
    const QString name = save(slip("327-1", 1, kMonday));
    catalogue();
    openOn(name);
    frm.cmdWorkOrders_Click(6);
    addService(2);
    EXPECT_TRUE(frm.ServicesAdded);
    fake.dialogs.expect("Accept Entry", "Duct Cleaning already exists\nClick YES to add another entry of this Service",
                        vbYes);
    addService(2);
    fake.dialogs.verify();
    EXPECT_EQ(fake.dialogs.beeps(), 1);
    ASSERT_EQ(frm.fgServices.Rows(), 5);
    EXPECT_EQ(frm.fgServices.TextMatrix(3, 0), "Duct Cleaning");
    EXPECT_EQ(frm.fgServices.TextMatrix(4, 0), "Duct Cleaning");
    EXPECT_EQ(frm.fgServices.TextMatrix(4, 3), "10");
    ASSERT_EQ(frm.fgItemsAdded.Rows(), 3);
    EXPECT_EQ(frm.fgItemsAdded.TextMatrix(1, 0), "Duct Cleaning");
    EXPECT_EQ(frm.fgItemsAdded.TextMatrix(2, 1), "$120.50");
    EXPECT_EQ(frm.fgItemsAdded.TextMatrix(2, 2), "10");
}

TEST_F(WorkOrdersScreen, AServiceAlreadyOnTheWorkOrderAnsweredNoIsNotAdded) {
    const QString name = save(slip("327-1", 1, kMonday));
    catalogue();
    openOn(name);
    fake.dialogs.expect("Accept Entry", "Tune Up already exists\nClick YES to add another entry of this Service", vbNo);
    addService(1);
    fake.dialogs.verify();
    EXPECT_EQ(frm.fgServices.Rows(), 3);
    EXPECT_EQ(frm.fgItemsAdded.Rows(), 1);
    EXPECT_FALSE(frm.ServicesAdded);
}

TEST_F(WorkOrdersScreen, TenOClockReadBackAsASlotCountGivesFourNotForty) {
    const QString name = save(slip("327-1", 1, kMonday));
    catalogue();
    openOn(name);
    addService(3);
    EXPECT_EQ(frm.fgServices.TextMatrix(3, 1), "10:00");
    EXPECT_EQ(frm.fgServices.TextMatrix(3, 3), "4");
    EXPECT_EQ(frm.fgItemsAdded.TextMatrix(1, 2), "4");
}

TEST_F(WorkOrdersScreen, SavingAddedServicesAppendsThemWithTheirPriceRoundedAndRewritesTheSlots) {
    const QString name = save(slip("327-1", 1, kMonday));
    catalogue();
    openOn(name);
    const QByteArray before = t.readBytes("/Services/" + name + ".txt");
    frm.cmdWorkOrders_Click(6);
    addService(2);
    frm.cmdWorkOrders_Click(4);
    EXPECT_FALSE(frm.fraAddServices.visible);
    EXPECT_TRUE(frm.cmdWorkOrders[3].enabled);
    EXPECT_TRUE(frm.imgSave[0].enabled);
    frm.cmdWorkOrders_Click(3);
    // $120.50 goes down as 120 (halves to even), then the ten slots.
    EXPECT_EQ(t.readBytes("/Services/" + name + ".txt"), before + "\"Duct Cleaning\"\r\n120\r\n10\r\n");
    const AppointmentSlip saved = ReadSlip(t.disk(), name);
    EXPECT_EQ(saved.Slots, 4 + 2 + 10);
    EXPECT_EQ(saved.SlipStartRow, 13);
    EXPECT_EQ(saved.SlipComment, "Dog in the yard, use the side gate");
    EXPECT_FALSE(frm.ServicesAdded);
    EXPECT_FALSE(frm.isVisible());
    EXPECT_TRUE(session.startup().isVisible());
    // The services read back in order: the price where the cost was, the slots after it.
    const auto services = ReadServicesFile(t.disk(), name);
    ASSERT_EQ(services.size(), 3u);
    EXPECT_EQ(services[2].cost, Money::fromWhole(120));
    EXPECT_EQ(services[2].slots, 10);
}

TEST_F(WorkOrdersScreen, PrintInvoiceNowWritesTheHandOverAndSaysTheInvoiceIsNotThereYet) {
    const QString name = save(slip("327-1", 1, kMonday));
    openOn(name);
    frm.cmdWorkOrders_Click(7);
    EXPECT_EQ(ReadFileToPrint(t.disk()), std::optional<QString>(name));
    EXPECT_EQ(t.readBytes("/FileToPrint.txt"), "\"1 - 327-1\"\r\n");
    EXPECT_BOX(fake.dialogs, "Not Available", "The Invoice screen is not part of this version of the program yet.");
    EXPECT_TRUE(frm.isVisible());
}

TEST_F(WorkOrdersScreen, MenuEmptiesTheGridsAndReturnsToTheMainMenu) {
    const QString name = save(slip("327-1", 1, kMonday));
    openOn(name);
    frm.cmdWorkOrders_Click(0);
    EXPECT_EQ(frm.fgServices.Rows(), 1);
    EXPECT_FALSE(frm.cmdWorkOrders[7].enabled);
    EXPECT_FALSE(frm.isVisible());
    EXPECT_TRUE(session.startup().isVisible());
}

TEST_F(WorkOrdersScreen, ResetOffersTheCustomTextsOnlyWhenTheirBoxesHoldText) {
    frm.Show();
    EXPECT_FALSE(frm.optTerms[1].enabled);
    EXPECT_FALSE(frm.optDisclaimer[1].enabled);
    terms.Text1[0].text = "Net 30";
    frm.Reset();
    EXPECT_TRUE(frm.optTerms[1].enabled);
    EXPECT_FALSE(frm.optDisclaimer[1].enabled);
    EXPECT_TRUE(frm.fraTermsandDis.visible);
    session.settings.program.optBusinessType0 = false;
    frm.Reset();
    EXPECT_FALSE(frm.fraTermsandDis.visible);
}

TEST_F(WorkOrdersScreen, ACustomDisclaimerFoundAtStartUpIsTheOneChosen) {
    t.writeBytes("/CustomDisclaimer.txt", "\"Owner supplies parts.\"\r\n");
    terms.customDisclaimerFound = [this] { frm.SelectDisclaimer(1); };
    terms.Load();
    EXPECT_TRUE(frm.optDisclaimer[1].value);
    EXPECT_FALSE(frm.optDisclaimer[0].value);
    EXPECT_EQ(frm.FixedPart().disclaimer, "Owner supplies parts.");
}

TEST_F(WorkOrdersScreen, WithCustomTermsChosenAndAnEmptyCustomBoxNoTermsPrint) {
    const QString name = save(slip("327-1", 1, kMonday));
    openOn(name);
    frm.optTerms[0].value = false;
    frm.optTerms[1].value = true;
    frm.cmdWorkOrders_Click(9);
    frm.ckCompletion.value = 0;
    frm.ckPick.value = 0;
    fake.dialogs.expect("Printing Confirmation", "Was the Work Order Printed Correctly", vbYes);
    frm.cmdWorkOrders_Click(2);
    fake.dialogs.verify();
    ASSERT_EQ(fake.printDialogs.jobs().size(), 1u);
    const RecordingPageSurface& p = fake.printDialogs.lastJob();
    const QString all = p.printedTexts().join(u' ');
    EXPECT_FALSE(all.contains("All material is guaranteed"));
    EXPECT_TRUE(all.contains("Any alteration or deviation"));
    for (const PageOp& op : p.texts())
        EXPECT_NE(op.y, 12960) << op.text.toStdString();
}

TEST_F(WorkOrdersScreen, InAssociateSalesStyleAWorkOrderHasNoDisclaimerOrTermsAlthoughEstimateIsTicked) {
    session.settings.program.optBusinessType0 = false;
    session.settings.program.ckEstimate = 1;
    session.settings.program.ckTerms = 1;
    const QString name = save(slip("327-1", 1, kMonday));
    openOn(name);
    frm.ckCompletion.value = 0;
    frm.ckPick.value = 0;
    fake.dialogs.expect("Printing Confirmation", "Was the Work Order Printed Correctly", vbYes);
    frm.cmdWorkOrders_Click(2);
    fake.dialogs.verify();
    const QString all = fake.printDialogs.lastJob().printedTexts().join(u' ');
    EXPECT_TRUE(all.contains("Work Order No 1 - 327-1"));
    EXPECT_FALSE(all.contains("Any alteration"));
    EXPECT_FALSE(all.contains("All material"));
}

TEST_F(WorkOrdersScreen, DeletingTheCustomTermsFileStillPrintsTheBoxText) {
    terms.Text1[0].text = "Payment due on completion.";
    terms.Command1_Click(frmTerms::kSaveTerms);
    terms.Command1_Click(frmTerms::kDeleteTerms);
    EXPECT_FALSE(t.isFile("/CustomTerms.txt"));
    const QString name = save(slip("327-1", 1, kMonday));
    openOn(name);
    frm.optTerms[0].value = false;
    frm.optTerms[1].value = true;
    frm.ckCompletion.value = 0;
    frm.ckPick.value = 0;
    fake.dialogs.expect("Printing Confirmation", "Was the Work Order Printed Correctly", vbYes);
    frm.cmdWorkOrders_Click(2);
    fake.dialogs.verify();
    const RecordingPageSurface& p = fake.printDialogs.lastJob();
    EXPECT_EQ(p.text("Payment due on completion.").y, 12960);
}

TEST_F(WorkOrdersScreen, PrintDocumentsPrintsSummaryPicklistThenWorkOrderWithTheirQuestions) {
    const QString name = save(slip("327-1", 1, kMonday));
    openOn(name);
    frm.cmdWorkOrders_Click(9);
    EXPECT_TRUE(frm.fraTerms.visible);
    frm.ckCompletion.value = 1;
    frm.ckPick.value = 1;
    fake.dialogs.expect("Print Confirmation", "Was the Picklist printed Correctly?", vbNo);
    fake.dialogs.expect("Reprint Confirmation", "Would you like to reprint it?", vbNo);
    fake.dialogs.expect("Printing Confirmation", "Was the Work Order Printed Correctly", vbNo);
    fake.dialogs.expect("Print Retry", "Would you like to Reprint this Work Order", vbYes);
    fake.dialogs.expect("Printing Confirmation", "Was the Work Order Printed Correctly", vbYes);
    frm.cmdWorkOrders_Click(2);
    fake.dialogs.verify();
    const auto& jobs = fake.printDialogs.jobs();
    // Summary, pick list, then one dialog for the work orders, which prints twice on it.
    ASSERT_EQ(jobs.size(), 3u);
    EXPECT_TRUE(jobs[0]->printedTexts().join(u' ').contains("Summary Report"));
    EXPECT_TRUE(jobs[0]->printed("WO No. 1 - 327-1"));
    EXPECT_TRUE(jobs[1]->printed("Picklist"));
    EXPECT_TRUE(jobs[1]->printed("Furnace filter 16x25"));
    EXPECT_FALSE(jobs[1]->printed("Thermocouple"));
    EXPECT_EQ(jobs[2]->documentsEnded(), 2);
    EXPECT_TRUE(jobs[2]->printed("_____   Tune Up"));
    EXPECT_TRUE(jobs[2]->printed("Scheduled Date 11/23/2026"));
    EXPECT_TRUE(jobs[2]->printed("Customer AcctNo 2175550199"));
    // Without the invoice tick the screen starts over.
    EXPECT_FALSE(frm.fraTerms.visible);
    EXPECT_EQ(frm.lstWorkorders.ListCount(), 0);
}

TEST_F(WorkOrdersScreen, CancelInThePrintDialogsNamesTheDocument) {
    const QString name = save(slip("327-1", 1, kMonday));
    openOn(name);
    frm.ckCompletion.value = 0;
    frm.ckPick.value = 1;
    fake.printDialogs.answer(RecordingPrintDialogs::Answer::Cancel).answer(RecordingPrintDialogs::Answer::Cancel);
    frm.cmdWorkOrders_Click(2);
    EXPECT_BOX(fake.dialogs, "", "The Picklist will not be Printed");
    EXPECT_BOX(fake.dialogs, "", "The Work Order will not be Printed");
}

TEST_F(WorkOrdersScreen, AFailingPrinterShowsThePrintErrorAndTheScreenGoesOn) {
    const QString name = save(slip("327-1", 1, kMonday));
    openOn(name);
    frm.ckCompletion.value = 0;
    frm.ckPick.value = 0;
    fake.printDialogs.answer(RecordingPrintDialogs::Answer::NoPrinter);
    frm.cmdWorkOrders_Click(2);
    EXPECT_BOX(fake.dialogs, "Print Error", "A Print Error has occurred");
    EXPECT_TRUE(frm.isVisible());
}

TEST_F(WorkOrdersScreen, TheSampleWorkOrderCarriesTodayTheSampleAccountAndNumber) {
    fake.dialogs.verify();
    frm.PrintSampleWorkOrder();
    const RecordingPageSurface& p = fake.printDialogs.lastJob();
    EXPECT_TRUE(p.printed("Work Order No WO # 12345"));
    EXPECT_TRUE(p.printed("Scheduled Date 11/22/2026"));
    EXPECT_TRUE(p.printed("Customer AcctNo 12345678"));
    EXPECT_EQ(p.documentsEnded(), 1);
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
}

TEST_F(WorkOrdersScreen, MoreThan255SlipsListTheFirst255AndNameTheFolder) {
    AppointmentSlip s = slip("327-1", 1, kMonday);
    for (int i = 1; i <= 256; ++i) {
        s.SlipName = SlipName(1, QStringLiteral("327-%1").arg(i));
        WriteSlip(t.disk(), s);
    }
    frm.Show();
    EXPECT_EQ(frm.lstWorkorders.ListCount(), 255);
    EXPECT_EQ(frm.fgOverview.Rows(), 256);
    EXPECT_BOX(fake.dialogs, "Too Many Appointments",
               "The folder /Appointments holds more than 255 appointments.\n"
               "Only the first 255 are listed: purge the expired ones.");
}

TEST_F(WorkOrdersScreen, InstructionsAndOverviewMenusToggleTheirFrames) {
    frm.Show();
    frm.mnuInstructions_Click();
    EXPECT_TRUE(frm.fraInstructions.visible);
    frm.mnuOverview_Click();
    EXPECT_TRUE(frm.fraOverview.visible);
    EXPECT_FALSE(frm.fraInstructions.visible);
    frm.mnuOverview_Click();
    EXPECT_FALSE(frm.fraOverview.visible);
}
