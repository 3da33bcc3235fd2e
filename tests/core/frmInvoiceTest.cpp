#include "InvoiceTestFixture.h"
#include "invoicing/InvoiceNumber.h"

using namespace ostrel;
using ostrel::test::InvoiceScreen;

namespace {

struct InvoiceOpened : InvoiceScreen {
    InvoiceOpened() {
        writeCatalogue();
        open();
    }

    void postService(const QString& description, const QString& price) {
        lists.cboDescription[0].text = description;
        lists.cboPrice[0].text = price;
        frm.cmdPost_Click(frmInvoice::kPostService);
    }
    void postItem(int listIndex, const QString& units) {
        lists.cboDescription[1].SetListIndex(listIndex);
        frm.cboDescription_Click(1);
        frm.txtUnits.text = units;
        frm.cmdPost_Click(frmInvoice::kPostItem);
    }
    void fill(int lines) {
        for (int i = 0; i < lines; ++i)
            line("1", QStringLiteral("Line %1").arg(i + 1), "$1.00", "$1.00");
    }
};

} // namespace

TEST_F(InvoiceScreen, OpeningShowsTheSetupViewWithTheNextNumberAndTheTaxCaptions) {
    session.settings.tax.cboTaxHeading1 = QStringLiteral("State Tax");
    session.settings.tax.cboTaxHeading2 = QStringLiteral("City Tax");
    session.settings.program.ckApply2ndTax = 1;
    open();
    EXPECT_EQ(frm.caption, "Invoice Creation");
    EXPECT_TRUE(frm.fraSetup.visible);
    EXPECT_EQ(frm.fraSetup.caption, "Invoice Setup");
    EXPECT_EQ(frm.txtInvoiceNo.text, "20260001");
    EXPECT_EQ(t.readBytes("/OIInvoiceNo.txt"), "20260001\r\n");
    EXPECT_EQ(frm.cmdInvoice[0].caption, "Continue......");
    EXPECT_EQ(frm.cmdInvoice[0].toolTip, "Create this Invoice");
    EXPECT_FALSE(frm.cmdInvoiceContinue.enabled);
    EXPECT_TRUE(frm.ck2ndTax.visible);
    EXPECT_TRUE(frm.ck2ndTax.checked());
    EXPECT_EQ(frm.Label1[2].caption, "State Tax");
    EXPECT_EQ(frm.Label1[0].caption, "City Tax");
    EXPECT_EQ(frm.txtInvoiceNo.toolTip, "You may enter a different Invoice No or use the Next Generated Number");
    EXPECT_EQ(frm.fgInvoice.Rows(), 101);
    EXPECT_EQ(frm.fgInvoice.Cols(), 6);
    EXPECT_EQ(frm.fgInvoice.TextMatrix(0, 1), "Item Description");
}

TEST_F(InvoiceScreen, TheSecondTaxCaptionIsTheSurchargeOnTheGraduatedSchemeAndStaysWithoutASecondTax) {
    session.settings.program.ckApplyGraduated = 1;
    open();
    EXPECT_EQ(frm.Label1[0].caption, "Tax Surcharge");
    EXPECT_FALSE(frm.ck2ndTax.visible);
    EXPECT_FALSE(frm.ck2ndTax.checked());
}

TEST_F(InvoiceScreen, MenusWhoseCatalogueFileIsMissingAreDisabledAndLaborWithoutRates) {
    open();
    EXPECT_FALSE(frm.mnuServices.enabled);
    EXPECT_FALSE(frm.mnuItems.enabled);
    EXPECT_FALSE(frm.mnuCItems.enabled);
    EXPECT_FALSE(frm.mnuLabor.enabled);
}

TEST_F(InvoiceOpened, LaborHeadingsNameTheRateAndAnEmptyCategoryIsHidden) {
    EXPECT_TRUE(frm.mnuServices.enabled);
    EXPECT_TRUE(frm.mnuLabor.enabled);
    EXPECT_EQ(frm.lblLaborHeading[0].caption, "General Labor at $85.00 per Hour");
    EXPECT_EQ(frm.lblLaborHeading[1].caption, "Apprentice at $45.50 per Hour");
    EXPECT_FALSE(frm.lblLaborHeading[2].visible);
    EXPECT_FALSE(frm.txtHours[2].visible);
    EXPECT_EQ(frm.LaborRate[1], Money::fromTenThousandths(455000));
}

TEST_F(InvoiceOpened, ContinuingWithoutANumberSaysSoAndATypedNumberCarriesTheSequenceOn) {
    frm.txtInvoiceNo.text.clear();
    frm.cmdInvoice_Click(0);
    EXPECT_BOX(dialogs, "", "You have not entered an Invoice Number");
    EXPECT_TRUE(frm.txtInvoiceNo.focusRequested);

    frm.txtInvoiceNo.text = QStringLiteral("5000");
    frm.cmdInvoice_Click(0);
    EXPECT_EQ(frm.NextInvoiceNo, 5000);
    EXPECT_EQ(frm.txtReference.text, "Prepared 11/22/2026");
    EXPECT_FALSE(frm.fraSetup.visible);
    EXPECT_TRUE(frm.fraInstructions[1].visible);
    frm.txtInvoiceNo.text = QStringLiteral("x");
    frm.cmdInvoice_Click(2);
    EXPECT_EQ(frm.txtInvoiceNo.text, "5000");
}

TEST_F(InvoiceOpened, AServicePostedByHandHasNoQuantityTheDateOfThePickerAndTheServicesTaxFlag) {
    session.settings.program.ckServices = 1;
    frm.DTPicker1_Change(QDate(2026, 11, 20));
    lists.cboDescription[0].SetListIndex(1);
    frm.cboDescription_Click(0);
    EXPECT_EQ(lists.cboPrice[0].text, "$120.00");
    frm.cmdPost_Click(frmInvoice::kPostService);
    EXPECT_EQ(frm.LineCount, 1);
    EXPECT_EQ(cell(1, 0), "");
    EXPECT_EQ(cell(1, 1), "Full Service");
    EXPECT_EQ(cell(1, 2), "11/20/2026");
    EXPECT_EQ(cell(1, 3), "$120.00");
    EXPECT_EQ(cell(1, 4), "$120.00");
    EXPECT_EQ(cell(1, 5), "True");
    EXPECT_TRUE(frm.cmdPrint.enabled);
    EXPECT_EQ(lists.cboDescription[0].listIndex, -1);
    EXPECT_TRUE(lists.cboDescription[0].focusRequested);
    // With no quantity the flag cannot be toggled.
    frm.fgInvoice.row = 1;
    frm.fgInvoice.col = 5;
    frm.fgInvoice_Click();
    EXPECT_EQ(cell(1, 5), "True");
}

TEST_F(InvoiceOpened, APriceThatIsNoAmountOrAMissingDescriptionOrUnitsOnlyBeep) {
    postService("Wash", "abc");
    EXPECT_EQ(frm.LineCount, 0);
    EXPECT_TRUE(lists.cboPrice[0].focusRequested);
    postService("", "$5.00");
    EXPECT_EQ(frm.LineCount, 0);
    EXPECT_TRUE(lists.cboDescription[0].focusRequested);
    lists.cboDescription[1].SetListIndex(0);
    frm.cboDescription_Click(1);
    frm.txtUnits.text.clear();
    frm.cmdPost_Click(frmInvoice::kPostItem);
    EXPECT_EQ(frm.LineCount, 0);
    EXPECT_EQ(fake.dialogs.beeps(), 3);
}

TEST_F(InvoiceOpened, VolumePricingAppliesFromTheDiscountQuantityAndNeverForAQuantityOfNothing) {
    frm.ckApplyVolumeDiscount.value = 1;
    postItem(0, "9");
    EXPECT_EQ(cell(1, 3), "$12.50");
    EXPECT_FALSE(frm.Label4[42].visible);
    postItem(0, "10");
    EXPECT_EQ(cell(2, 0), "10");
    EXPECT_EQ(cell(2, 3), "$10.00");
    EXPECT_EQ(cell(2, 4), "$100.00");
    EXPECT_TRUE(frm.Label4[42].visible);
    // Belt has a discount quantity of 0.
    postItem(1, "500");
    EXPECT_EQ(cell(3, 3), "$20.00");
    EXPECT_EQ(cell(3, 4), "$10,000.00");
    // A price typed by hand stands at no list position: no discount.
    lists.cboDescription[1].text = QStringLiteral("Filter");
    lists.cboPrice[1].SetListIndex(-1);
    lists.cboPrice[1].text = QStringLiteral("12.50");
    frm.txtUnits.text = QStringLiteral("20");
    frm.cmdPost_Click(frmInvoice::kPostItem);
    EXPECT_EQ(cell(4, 3), "$12.50");
    EXPECT_EQ(cell(4, 5), "True"); // sold items are taxed on a first run
}

TEST_F(InvoiceOpened, CustomItemsTakeTheirDiscountThroughTheSortedListAndTheCustomTaxFlag) {
    setup.ckCustom.value = 1;
    frm.ckApplyVolumeDiscount.value = 1;
    lists.cboDescription[2].SetListIndex(0);
    frm.cboDescription_Click(2);
    EXPECT_EQ(lists.cboPrice[2].text, "$7.50");
    EXPECT_TRUE(frm.txtCUnits.focusRequested);
    frm.txtCUnits.text = QStringLiteral("3");
    frm.cmdPost_Click(frmInvoice::kPostCustom);
    EXPECT_EQ(cell(1, 3), "$6.00");
    EXPECT_EQ(cell(1, 4), "$18.00");
    EXPECT_EQ(cell(1, 5), "True");
    EXPECT_FALSE(frm.Label4[42].visible);
}

TEST_F(InvoiceOpened, AtExactlyAHundredLinesOnlyTheButtonThatReachedTheLimitIsDisabled) {
    fill(99);
    postService("Wash", "$5.00");
    EXPECT_EQ(frm.LineCount, 100);
    EXPECT_BOX(dialogs, "", "The Invoice is full");
    EXPECT_FALSE(frm.cmdPost[frmInvoice::kPostService].enabled);
    EXPECT_TRUE(frm.cmdPost[frmInvoice::kPostItem].enabled);
    EXPECT_TRUE(frm.cmdPost[frmInvoice::kPostCustom].enabled);

    // Another button can still be pressed; the line has no row to go to and is refused.
    postItem(0, "1");
    EXPECT_BOX(dialogs, "", "The Invoice is full");
    EXPECT_EQ(frm.LineCount, 100);
    EXPECT_EQ(cell(100, 1), "Wash");
    EXPECT_EQ(frm.fgInvoice.Rows(), 101);
}

TEST_F(InvoiceOpened, LaborIsChargedAtTheRatePostedWithHoursAndTaxedByTheCustomItemsFlag) {
    session.settings.program.ckLabor = 1;
    setup.ckCustom.value = 0;
    frm.mnuView_Click(frm.mnuLabor);
    EXPECT_TRUE(frm.fraLabor.visible);
    EXPECT_TRUE(frm.txtHours[0].focusRequested);
    frm.txtHours[0].text = QStringLiteral("1.5");
    frm.txtHours_LostFocus(0);
    EXPECT_EQ(frm.LaborCharge[0], Money::fromTenThousandths(1275000));
    EXPECT_EQ(frm.lblLaborCharge[0].caption, "$127.50");
    frm.txtHours[1].text = QStringLiteral("2");
    frm.txtHours_LostFocus(1);
    frm.cmdLabor_Click(0);
    EXPECT_EQ(frm.lblLaborCharge[3].caption, "$218.50");
    EXPECT_TRUE(frm.cmdLabor[1].visible);
    frm.cmdLabor_Click(1);
    ASSERT_EQ(frm.LineCount, 2);
    EXPECT_EQ(cell(1, 0), "1.5 Hrs");
    EXPECT_EQ(cell(1, 1), "General Labor");
    EXPECT_EQ(cell(1, 3), "$85.00");
    EXPECT_EQ(cell(1, 4), "$127.50");
    EXPECT_EQ(cell(1, 5), "False"); // "Tax Labor" is on, but the custom flag decides
    EXPECT_EQ(cell(2, 0), "2 Hrs");
    EXPECT_FALSE(frm.cmdLabor[1].visible);
    EXPECT_TRUE(frm.fraServices.visible);

    frm.cmdLabor_Click(2);
    EXPECT_EQ(frm.txtHours[0].text, "0");
    EXPECT_EQ(frm.LaborCharge[0], Money());
    EXPECT_EQ(frm.lblLaborCharge[3].caption, "$0.00");
}

TEST_F(InvoiceOpened, HoursThatAreNoNumberBecomeNothingAndBeep) {
    frm.txtHours[0].text = QStringLiteral("x");
    frm.txtHours_LostFocus(0);
    EXPECT_EQ(frm.txtHours[0].text, "0");
    EXPECT_TRUE(frm.txtHours[0].focusRequested);
    EXPECT_EQ(fake.dialogs.beeps(), 1);
}

TEST_F(InvoiceOpened, WithNinetyNineLinesThreeLaborLinesCannotAllGoInAndTheBodyLosesNothing) {
    fill(99);
    for (int i : {0, 1}) {
        frm.txtHours[i].text = QStringLiteral("1");
        frm.txtHours_LostFocus(i);
    }
    // A third category with a rate, so that three labor lines wait.
    services.txtLabor[2].text = QStringLiteral("Overtime");
    services.txtLaborRate[2].text = QStringLiteral("$100.00");
    frm.LaborCharge[2] = Money::fromTenThousandths(1000000);
    frm.lblLaborCharge[2].caption = QStringLiteral("$100.00");
    frm.txtHours[2].text = QStringLiteral("1");
    frm.cmdLabor_Click(1);
    EXPECT_BOX(dialogs, "", "The Invoice is full\n\nApprentice was not added: an invoice holds 100 lines at most.");
    EXPECT_EQ(frm.LineCount, 100);
    EXPECT_EQ(frm.fgInvoice.Rows(), 101);
    EXPECT_EQ(cell(99, 1), "Line 99");
    EXPECT_EQ(cell(100, 1), "General Labor");
}

TEST_F(InvoiceOpened, KeysOnALaborLineChangeNothing) {
    line("1.5 Hrs", "General Labor", "$85.00", "$127.50");
    frm.fgInvoice.row = 1;
    frm.fgInvoice.col = 3;
    frm.fgInvoice_KeyPress('5');
    EXPECT_BOX(dialogs, "", "Labor cannot be changed inside the Invoice Body\n"
                            "Delete the Labor Item and Re-enter from the labor Grid)");
    EXPECT_EQ(cell(1, 3), "$85.00");
}

TEST_F(InvoiceOpened, ThePriceAndQuantityCellsAreTypedIntoAndEnterWorksTheLineOut) {
    line("2", "Filter", "$12.50", "$25.00");
    frm.fgInvoice.row = 1;
    frm.fgInvoice.col = 3;
    frm.fgInvoice_KeyPress(8);
    EXPECT_EQ(cell(1, 3), "$0.00");
    EXPECT_EQ(cell(1, 4), "$0.00");
    frm.fgInvoice_KeyPress('1');
    frm.fgInvoice_KeyPress('x');
    frm.fgInvoice_KeyPress('.');
    frm.fgInvoice_KeyPress('2');
    frm.fgInvoice_KeyPress('.');
    EXPECT_EQ(cell(1, 3), "1.2");
    frm.fgInvoice.col = 0;
    frm.fgInvoice_KeyPress(8);
    EXPECT_EQ(cell(1, 0), "");
    frm.fgInvoice_KeyPress('3');
    EXPECT_EQ(cell(1, 0), "3");
    frm.fgInvoice_KeyPress(13);
    EXPECT_EQ(cell(1, 3), "$1.20");
    EXPECT_EQ(cell(1, 4), "$3.60");
    frm.fgInvoice.col = 5;
    frm.fgInvoice_Click();
    EXPECT_EQ(cell(1, 5), "False");
    frm.fgInvoice_Click();
    EXPECT_EQ(cell(1, 5), "True");
}

TEST_F(InvoiceOpened, ALineIsDeletedFromThePopUpAndRowsMoveUpAndDown) {
    line("1", "First", "$1.00", "$1.00");
    line("2", "Second", "$2.00", "$4.00");
    line("3", "Third", "$3.00", "$9.00");
    frm.fgInvoice.row = 2;
    frm.fgInvoice.col = 1;
    frm.fgInvoice_Click();
    EXPECT_TRUE(frm.UpDown1.enabled);
    frm.UpDown1_Change(-1);
    EXPECT_EQ(cell(1, 1), "Second");
    EXPECT_EQ(cell(2, 1), "First");

    frm.fgInvoice_RightClick();
    EXPECT_TRUE(frm.popupMenuRequested);
    dialogs.expect("Item Deletion", "Delete item First from Invoice?", vbYes);
    frm.mnuDeleteItem_Click();
    dialogs.verify();
    EXPECT_EQ(frm.LineCount, 2);
    EXPECT_EQ(cell(2, 1), "Third");
    EXPECT_EQ(cell(3, 1), "");
    EXPECT_EQ(frm.fgInvoice.Rows(), 101);

    dialogs.expect("Item Deletion", "Delete item Third from Invoice?", vbNo);
    frm.mnuDeleteItem_Click();
    dialogs.verify();
    EXPECT_EQ(frm.LineCount, 2);
}

TEST_F(InvoiceOpened, ADateAfterTodayIsRefusedAndResetDateEmptiesTheRowsDate) {
    line("1", "First", "$1.00", "$1.00");
    frm.fgInvoice.row = 1;
    frm.DTPicker1_Change(QDate(2026, 11, 23));
    EXPECT_EQ(cell(1, 2), "");
    EXPECT_EQ(fake.dialogs.beeps(), 1);
    frm.DTPicker1_Change(QDate(2026, 11, 2));
    EXPECT_EQ(cell(1, 2), "11/2/2026");
    frm.cmdResetDate_Click();
    EXPECT_EQ(cell(1, 2), "");
}

TEST_F(InvoiceOpened, TermsComeFromTheSavedFileAndSavingWritesTheShownText) {
    EXPECT_EQ(frm.cboTerms.ListCount(), 11);
    EXPECT_EQ(frm.cboTerms.text, "Payment due in Full upon Receipt");
    frm.cboTerms.text = QStringLiteral("Net 45, thank you");
    frm.cmdReadyPrint_Click();
    EXPECT_EQ(t.readBytes("/StatementTerms.txt"), "Net 45, thank you\r\n");
    frm.Hide();
    frm.Show();
    EXPECT_EQ(frm.cboTerms.text, "Net 45, thank you");
    EXPECT_EQ(frm.cboTerms.listIndex, -1);
}

TEST_F(InvoiceOpened, CancellingPrepaidNeverUnticksIt) {
    line("1", "First", "$1.00", "$1.00");
    frm.ckPrepaid.value = 1;
    finalize();
    EXPECT_TRUE(frm.fraPrePaid.visible);
    EXPECT_EQ(frm.txtPrepaid.text, "$1.04"); // taxed at the first-run 4 %
    for (MsgBoxResult answer : {vbYes, vbNo}) {
        dialogs.expect("Cancel PrePaid", "Click YES to Cancel Prepaid Posting", answer);
        frm.cmdPrepaid_Click(1);
        dialogs.verify();
        EXPECT_TRUE(frm.ckPrepaid.checked());
        EXPECT_FALSE(frm.fraPrePaid.visible);
    }
}

TEST_F(InvoiceOpened, PrintingAnInvoiceOfNoLinesIsRefused) {
    frm.cmdInvoiceContinue_Click();
    EXPECT_BOX(dialogs, "No Items Entered", "The Invoice contains no Items");
    EXPECT_EQ(fake.printDialogs.shown(), 0);
    EXPECT_TRUE(frm.fraInstructions[1].visible);
}

TEST_F(InvoiceOpened, ThePrintViewNamesThePaperToLoad) {
    session.settings.program.optReturn = true;
    frm.cmdPrint_Click();
    EXPECT_EQ(frm.fraPrintReady.caption, "Insert Perforated Response Paper");
    EXPECT_TRUE(frm.Label2[6].visible);
    session.settings.program.optReturn = false;
    frm.cmdPrint_Click();
    EXPECT_EQ(frm.fraPrintReady.caption, "Insert Standard Paper");
    EXPECT_FALSE(frm.Label2[6].visible);
}

TEST_F(InvoiceOpened, TypingADescriptionCompletesItFromTheList) {
    lists.cboDescription[0].text = QStringLiteral("fu");
    frm.txtUnits.text = QStringLiteral("3");
    frm.cboDescription_Change(0);
    EXPECT_EQ(lists.cboDescription[0].text, "full Service");
    EXPECT_EQ(frm.descriptionSelStart, 2);
    EXPECT_EQ(frm.descriptionSelLength, 10);
    EXPECT_EQ(frm.txtUnits.text, "");
    frm.cboDescription_KeyDown(0, 8);
    lists.cboDescription[0].text = QStringLiteral("f");
    frm.cboDescription_Change(0);
    EXPECT_EQ(lists.cboDescription[0].text, "f");
}

TEST_F(InvoiceOpened, PickingACategoryListsItsItemsWithTheirDiscounts) {
    t.writeBytes("/OIInventoriedItems.txt", records({ostrel::test::item("Filter", "Parts").toRecord(),
                                                     ostrel::test::item("Hose", "Plumbing").toRecord()}));
    services.Load();
    lists.lstCategories.SetListIndex(static_cast<int>(lists.lstCategories.items.indexOf("Plumbing")));
    frm.lstCategories_Click();
    ASSERT_EQ(lists.cboDescription[1].ListCount(), 1);
    EXPECT_EQ(lists.cboDescription[1].List(0), "Hose");
    EXPECT_EQ(lists.cboPrice[1].List(0), "$12.50");
    EXPECT_EQ(session.catalogueLists.ItemDiscountQuantity[1], 10);
    EXPECT_EQ(session.catalogueLists.ItemDiscountPrice[1], 100000);
}
