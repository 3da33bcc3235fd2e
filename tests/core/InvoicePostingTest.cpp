#include "InvoiceTestFixture.h"
#include "invoicing/AssociateJournal.h"
#include "invoicing/InvoiceImage.h"
#include "invoicing/InvoiceNumber.h"
#include "invoicing/PostingRecords.h"
#include "printing/ConfirmedPrint.h"
#include "scheduling/AppointmentSlip.h"
#include "store/StoreError.h"

using namespace ostrel;
using ostrel::test::InvoiceScreen;

namespace {

const QString kCleanupTitle = QStringLiteral("Delete Appointment Records");
const QString kCleanupQuestion = QStringLiteral(
    "Would you like to DELETE the Appointment Files?\n"
    "This cannot be reversed, the Day Schedule is not DELETED\n"
    "You can DELETE these files manually via the Work Order Routine\n"
    "\n"
    "The Day Schedule is automatically DELETED\n"
    "The Day after it's Scheduled Date");
const QString kPrinted = QStringLiteral("Was the Invoice Printed Correctly");

QByteArray padded(const QByteArray& text, int width) {
    QByteArray out = text.left(width);
    out.append(QByteArray(width - out.size(), ' '));
    return out;
}

QByteArray ledgerBytes(const QByteArray& name, const QByteArray& account, const QByteArray& date,
                       const QByteArray& comment, const QByteArray& amount) {
    return padded(name, 45) + padded(account, 25) + padded(date, 15) + padded(comment, 60) + padded(amount, 10);
}

struct Posting : InvoiceScreen {
    Posting() {
        writeCatalogue();
        t.makeDir("/CompletedInvoices");
        t.makeDir("/OIActiveAccounts");
        t.makeDir("/Appointments");
        t.makeDir("/Services");
        t.makeDir("/SoldItems");
        session.settings.tax.cboRate1 = QStringLiteral("8.25");
        open();
        customer();
    }

    // The customer of a slip, as loading one sets the labels.
    void customer() {
        frm.lblAcctNo.caption = frm.lblAcct.caption = QStringLiteral("2175550199");
        const QStringList fields = {"Dana Whitfield", "88 Elm St", "", "Springfield", "IL", "62701"};
        for (int i = 0; i <= 5; ++i) {
            frm.lblCustomer[i].caption = fields[i];
            frm.lblCustomer[i + 6].caption = fields[i];
        }
        frm.lblCustomer[12].caption = QStringLiteral("217-555-0199");
        frm.SlipDate = QDate(2026, 11, 20);
        frm.AssignedTo = QStringLiteral("Crew One");
        frm.txtReference.text = QStringLiteral("PO 4411");
    }

    // Finalizes and prints; the user says the invoice printed, then answers the clean-up question.
    void post(MsgBoxResult cleanup = vbNo) {
        finalize();
        dialogs.expect(kPrintConfirmationTitle, kPrinted, vbYes);
        dialogs.expect(kCleanupTitle, kCleanupQuestion, cleanup);
        frm.cmdInvoiceContinue_Click();
        dialogs.verify();
    }
};

} // namespace

TEST_F(InvoiceScreen, TheFirstInvoiceOfANewInstallationIsNumberY0001AndAStoredNothingGivesY0000) {
    EXPECT_EQ(LoadInvoiceNumber(t.disk(), QDate(2026, 11, 22)), 20260001);
    EXPECT_EQ(t.readBytes("/OIInvoiceNo.txt"), "20260001\r\n");
    t.writeBytes("/OIInvoiceNo.txt", "0\r\n");
    EXPECT_EQ(LoadInvoiceNumber(t.disk(), QDate(2026, 11, 22)), 20260000);
    EXPECT_EQ(t.readBytes("/OIInvoiceNo.txt"), "20260000\r\n");
    t.writeBytes("/OIInvoiceNo.txt", "none\r\n");
    EXPECT_EQ(LoadInvoiceNumber(t.disk(), QDate(2026, 11, 22)), 20260000);
}

TEST_F(InvoiceScreen, OnTheFirstDayOfANewYearTheNumberRestartsAtY0001) {
    t.writeBytes("/OIInvoiceNo.txt", "20260042\r\n");
    EXPECT_EQ(LoadInvoiceNumber(t.disk(), QDate(2026, 12, 31)), 20260042);
    EXPECT_EQ(LoadInvoiceNumber(t.disk(), QDate(2027, 1, 1)), 20270001);
    EXPECT_EQ(t.readBytes("/OIInvoiceNo.txt"), "20270001\r\n");
    // A short number is compared by its first four digits as text.
    t.writeBytes("/OIInvoiceNo.txt", "1500\r\n");
    EXPECT_EQ(LoadInvoiceNumber(t.disk(), QDate(2027, 1, 1)), 20270001);
    t.writeBytes("/OIInvoiceNo.txt", "3000\r\n");
    EXPECT_EQ(LoadInvoiceNumber(t.disk(), QDate(2027, 1, 1)), 3000);
}

TEST_F(Posting, AnInvoiceWithoutTaxWritesNoTaxRecord) {
    line("1", "Tune Up", "$45.00", "$45.00", "False");
    post();
    EXPECT_FALSE(t.isFile("/TaxRecords.txt"));
    EXPECT_TRUE(t.isFile("/CompletedInvoices/20260001.txt"));
}

TEST_F(Posting, TwoTaxesWriteTwoTaxRecordsOfTheSameNumberAndDate) {
    session.settings.tax.cboTaxHeading2 = QStringLiteral("City Tax");
    session.settings.tax.cboRate2 = QStringLiteral("2");
    frm.ck2ndTax.value = 1;
    line("1", "Tune Up", "$19.99", "$19.99", "True");
    post();
    const QByteArray expected = padded("Sales Tax", 20) + padded("11/22/2026", 15) + padded("20260001", 30) +
                                padded("1.6492", 10) + padded("City Tax", 20) + padded("11/22/2026", 15) +
                                padded("20260001", 30) + padded("0.3998", 10);
    EXPECT_EQ(t.readBytes("/TaxRecords.txt"), expected);
}

TEST_F(Posting, ASurchargeGoesInUnderTheSecondTaxsName) {
    session.settings.program.ckApplyGraduated = 1;
    session.settings.program.txtGradulated = {QStringLiteral("$10.00"), QStringLiteral("$2.50")};
    session.settings.tax.cboRate2 = QStringLiteral("6");
    line("1", "Tune Up", "$19.99", "$19.99", "True");
    post();
    const auto records = ReadAllRecords(t.disk(), TaxRecord::kFileName, TaxRecord::kLength);
    ASSERT_EQ(records.size(), 2);
    EXPECT_EQ(TaxRecord::fromRecord(records[0]).Amount.trimmed(), "1.1994");
    EXPECT_EQ(TaxRecord::fromRecord(records[1]).Heading.trimmed(), "Tax");
    EXPECT_EQ(TaxRecord::fromRecord(records[1]).Amount.trimmed(), "2.5");
}

TEST_F(Posting, ALedgersFirstInvoiceWritesThePreviousBalanceAndTheInvoice) {
    line("1", "Tune Up", "$45.00", "$45.00", "False");
    post();
    const QByteArray expected =
        ledgerBytes("Dana Whitfield", "2175550199", "11/22/2026", "Previous Balance", "$0.00") +
        ledgerBytes("Dana Whitfield", "2175550199", "11/22/2026", "20260001", "$45.00");
    EXPECT_EQ(t.readBytes("/OIActiveAccounts/2175550199.txt"), expected);

    // A second invoice adds one record.
    frm.Show();
    customer();
    line("1", "Tune Up", "$45.00", "$45.00", "False");
    post();
    EXPECT_EQ(t.readBytes("/OIActiveAccounts/2175550199.txt"),
              expected + ledgerBytes("Dana Whitfield", "2175550199", "11/22/2026", "20260002", "$45.00"));
}

TEST_F(Posting, APrepaidInvoiceWritesThePaymentToTheLedgerAndTheGrandTotalToThePaymentRecords) {
    line("1", "Tune Up", "$45.00", "$45.00", "False");
    frm.ckPrepaid.value = 1;
    finalize();
    ASSERT_EQ(frm.txtPrepaid.text, "$45.00");
    frm.txtPrepaid.text = QStringLiteral("$40.00");
    frm.cboPrepaid.text = QStringLiteral("Check # 1123");
    dialogs.expect(kPrintConfirmationTitle, kPrinted, vbYes);
    dialogs.expect(kCleanupTitle, kCleanupQuestion, vbNo);
    frm.cmdPrepaid_Click(0);
    dialogs.verify();
    EXPECT_EQ(t.readBytes("/OIActiveAccounts/2175550199.txt"),
              ledgerBytes("Dana Whitfield", "2175550199", "11/22/2026", "Previous Balance", "$0.00") +
                  ledgerBytes("Dana Whitfield", "2175550199", "11/22/2026", "20260001", "$45.00") +
                  ledgerBytes("Dana Whitfield", "2175550199", "11/22/2026", "Payment Received", "$40.00"));
    EXPECT_EQ(t.readBytes("/OAPaymentRecords.txt"),
              ledgerBytes("Dana Whitfield", "2175550199", "11/20/2026", "Check # 1123", "$45.00"));
    // After posting the three option boxes are cleared.
    EXPECT_FALSE(frm.ckPrepaid.checked());
}

TEST_F(Posting, AmountsOfAThousandAndMoreTakeTheSeparatorAndAreCutAtTenCharacters) {
    line("1", "Rebuild", "$123,456.78", "$123,456.78", "False");
    post();
    const auto records = ReadAllRecords(t.disk(), LedgerFileName("2175550199"), LedgerRecord::kLength);
    ASSERT_EQ(records.size(), 2);
    EXPECT_EQ(LedgerRecord::fromRecord(records[1]).Amount, "$123,456.7");

    frm.Show();
    customer();
    line("1", "Tune Up", "$1,045.00", "$1,045.00", "False");
    post();
    EXPECT_EQ(LedgerRecord::fromRecord(
                  ReadAllRecords(t.disk(), LedgerFileName("2175550199"), LedgerRecord::kLength)[2])
                  .Amount,
              "$1,045.00 ");
}

TEST_F(Posting, ShopRepairStyleWritesNoAssociateJournalAndAssociateSalesStyleWritesOne) {
    line("1", "Tune Up", "$19.99", "$19.99", "True");
    post();
    EXPECT_FALSE(t.isFile("/AssociateJournal.txt"));

    session.settings.program.optBusinessType0 = false;
    frm.Show();
    customer();
    line("1", "Tune Up", "$19.99", "$19.99", "True");
    post();
    const auto journal = ReadAssociateJournal(t.disk());
    ASSERT_EQ(journal.size(), 1);
    EXPECT_EQ(journal[0].Transaction.trimmed(), "Dana Whitfield");
    EXPECT_EQ(journal[0].Account.trimmed(), "20260002");
    EXPECT_EQ(journal[0].JournalDate, QDate(2026, 11, 20));
    EXPECT_EQ(journal[0].Associate.trimmed(), "Crew One");
    EXPECT_EQ(journal[0].SubTotal, Money::fromTenThousandths(199900));
    EXPECT_EQ(journal[0].Tax, Money::fromTenThousandths(16492));
    EXPECT_EQ(journal[0].Discount, Money());
    EXPECT_EQ(journal[0].Gross, Money::fromTenThousandths(216392));
}

TEST_F(Posting, SoldItemsAreJournalledOncePerCatalogueListingWithTheQuantity) {
    line("3", "Filter", "$12.50", "$37.50", "True");
    line("1", "Tune Up", "$45.00", "$45.00", "False");
    line("2", "Bracket", "$7.50", "$15.00", "False");
    post();
    const QByteArray date = QByteArray::fromHex("0000000080a1e640");
    const QByteArray expected = padded("Filter", 60) + date + padded("20260001", 20) + QByteArray::fromHex("0300") +
                                padded("Bracket", 60) + date + padded("20260001", 20) + QByteArray::fromHex("0200");
    EXPECT_EQ(t.readBytes("/SoldItems.txt"), expected);
}

TEST_F(Posting, StockGoesDownByNameAndStopsAtNothingWithAWarning) {
    line("3", "Filter", "$12.50", "$37.50", "True");
    line("20", "Filter", "$12.50", "$250.00", "True");
    finalize();
    dialogs.expect(kPrintConfirmationTitle, kPrinted, vbYes);
    dialogs.expect("", "Item Filter may be low in Inventory");
    dialogs.expect(kCleanupTitle, kCleanupQuestion, vbNo);
    frm.cmdInvoiceContinue_Click();
    dialogs.verify();
    const auto items = ReadAllRecords(t.disk(), InventoriedItemRecord::kFileName, InventoriedItemRecord::kLength);
    ASSERT_EQ(items.size(), 2);
    EXPECT_EQ(InventoriedItemRecord::fromRecord(items[0]).OnHand, 0);
    EXPECT_EQ(InventoriedItemRecord::fromRecord(items[1]).OnHand, 12);
    // The catalogue is read again.
    EXPECT_EQ(services.fgItems.TextMatrix(1, 4), "0");
}

TEST_F(Posting, AfterPostingTheNumberMovesOnAndTheScreenIsCleared) {
    line("1", "Tune Up", "$45.00", "$45.00", "False");
    post();
    EXPECT_EQ(t.readBytes("/OIInvoiceNo.txt"), "20260002\r\n");
    EXPECT_EQ(frm.LineCount, 0);
    EXPECT_EQ(frm.txtInvoiceNo.text, "");
    EXPECT_EQ(frm.fgInvoice.TextMatrix(1, 1), "");
    EXPECT_FALSE(frm.isVisible());
}

TEST_F(Posting, TheImageOfAnExistingNumberIsReplacedWithoutAMessage) {
    t.writeBytes("/CompletedInvoices/20260001.txt", "old image\r\n");
    line("1", "Tune Up", "$45.00", "$45.00", "False");
    post();
    const InvoiceImage image = ReadInvoiceImage(t.disk(), "20260001");
    EXPECT_EQ(image.customerName, "Dana Whitfield");
    EXPECT_EQ(image.grandTotalText, "$45.00");
    ASSERT_EQ(image.lines.size(), 1);
    EXPECT_EQ(image.lines[0][1], "Tune Up");
}

TEST_F(Posting, TheImageIsWrittenInItsStatementOrder) {
    frm.txtShipto[6].text = QStringLiteral("Front desk");
    line("2", "Filter", "$12.50", "$25.00", "True");
    post();
    const QByteArray expected = "20260001\r\n"
                                "2175550199\r\n"
                                "Dana Whitfield\r\n"
                                "11/22/2026\r\n"
                                "$27.06\r\n"
                                "\"Dana Whitfield\"\r\n\"88 Elm St\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n\"62701\"\r\n"
                                "\"Dana Whitfield\"\r\n\"88 Elm St\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n\"62701\"\r\n"
                                "None\r\n"
                                "11/22/2026\r\n"
                                "20260001\r\n"
                                "2175550199\r\n"
                                "PO 4411\r\n"
                                "Front desk\r\n"
                                "1\r\n"
                                "2\r\nFilter\r\n\r\n$12.50\r\n$25.00\r\nTrue\r\n"
                                "\"$25.00\",\"$2.06\",\"$0.00\",\"$27.06\",\"$0.00\",\"$0.00\",\"$0.00\"\r\n";
    EXPECT_EQ(t.readBytes("/CompletedInvoices/20260001.txt"), expected);
}

TEST_F(Posting, WithNoSlipAtHandTheAnswerNoRewritesTheSlipNamedNothing) {
    ASSERT_EQ(frm.SlipName, "");
    line("1", "Tune Up", "$45.00", "$45.00", "False");
    post(vbNo);
    const QByteArray expected = "\"Invoiced\"\r\n"
                                "#2026-11-20#\r\n" // the slip date the customer fixture set
                                "\"\"\r\n"
                                "0\r\n0\r\n0\r\n"
                                "\"Dana Whitfield\"\r\n\"88 Elm St\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n"
                                "\"62701\"\r\n\"Dana Whitfield\"\r\n\"88 Elm St\"\r\n"
                                "\r\n";
    EXPECT_EQ(t.readBytes("/Appointments/.txt"), expected);
}

namespace {

AppointmentSlip sampleSlip() {
    AppointmentSlip slip;
    slip.Status = slipstatus::Scheduled;
    slip.SlipDate = QDate(2026, 11, 20);
    slip.SlipName = QStringLiteral("1 - 324-3");
    slip.SlipPointOfService = 1;
    slip.Slots = 4;
    slip.SlipStartRow = 12;
    slip.Customer = {"2175550199", "Dana Whitfield", "88 Elm St", "", "Springfield", "IL", "62701", "217-555-0199"};
    slip.SlipComment = QStringLiteral("Side door, dog in yard");
    return slip;
}

} // namespace

struct SlipHandedOver : Posting {
    void handOver(bool withServices = true) {
        WriteSlip(t.disk(), sampleSlip());
        if (withServices)
            WriteServicesFile(t.disk(), "1 - 324-3", {{"Tune Up", Money::fromTenThousandths(450000), 4}});
        WriteSoldItemsFile(t.disk(), "1 - 324-3", {{"2", "Filter", "$12.50"}});
        WriteFileToPrint(t.disk(), "1 - 324-3");
        frm.cboAssignments.Clear();
        frm.cboAssignments.AddItem(QStringLiteral("Crew One "));
        frm.Hide();
        frm.Show();
    }
};

TEST_F(SlipHandedOver, TheBodyIsFilledFromTheSlipAndTheServicesTaxFlagIsCarriedToTheSoldItems) {
    session.settings.program.ckServices = 1;
    session.settings.program.ckSalesItems = 0;
    handOver();
    EXPECT_EQ(frm.LineCount, 2);
    EXPECT_EQ(frm.lblAcctNo.caption, "2175550199");
    EXPECT_EQ(frm.lblAcct.caption, "2175550199");
    EXPECT_EQ(frm.lblCustomer[0].caption, "Dana Whitfield");
    EXPECT_EQ(frm.lblCustomer[6].caption, "Dana Whitfield");
    EXPECT_EQ(frm.lblCustomer[12].caption, "217-555-0199");
    EXPECT_EQ(frm.txtAppointment.text, "1 - 324-3");
    EXPECT_EQ(frm.AssignedTo, "Crew One");
    EXPECT_EQ(frm.cboAssignments.listIndex, 0);
    EXPECT_EQ(frm.SlipComment, "Side door, dog in yard");
    const QStringList service = {"1", "Tune Up", "11/20/2026", "$45.00", "$45.00", "True"};
    const QStringList sold = {"2", "Filter", "", "$12.50", "$25.00", "True"};
    for (int c = 0; c < 6; ++c) {
        EXPECT_EQ(cell(1, c), service[c]) << c;
        EXPECT_EQ(cell(2, c), sold[c]) << c;
    }
    EXPECT_EQ(frm.txtTotal.text, "$70.00");

    // Without a services file the flag stays as the last invoice left it.
    session.settings.program.ckServices = 0;
    t.disk().DeleteDataFile("/Services/1 - 324-3.txt");
    frm.Hide();
    frm.Show();
    EXPECT_EQ(frm.LineCount, 1);
    EXPECT_EQ(cell(1, 5), "True");
}

TEST_F(SlipHandedOver, AHandOverWhoseSlipIsGoneOpensAnEmptyScreen) {
    WriteFileToPrint(t.disk(), "9 - 1-1");
    frm.Hide();
    frm.Show();
    EXPECT_EQ(frm.SlipName, "9 - 1-1");
    EXPECT_EQ(frm.LineCount, 0);
}

TEST_F(SlipHandedOver, TheAnswerYesDeletesTheSlipsThreeFilesAndTheHandOver) {
    handOver();
    post(vbYes);
    EXPECT_FALSE(t.isFile("/Appointments/1 - 324-3.txt"));
    EXPECT_FALSE(t.isFile("/Services/1 - 324-3.txt"));
    EXPECT_FALSE(t.isFile("/SoldItems/1 - 324-3.txt"));
    EXPECT_FALSE(t.isFile("/FileToPrint.txt"));
}

TEST_F(SlipHandedOver, TheAnswerNoRewritesTheSlipAsInvoicedWithItsCustomerFieldsOnePlaceEarlier) {
    handOver();
    post(vbNo);
    const QByteArray expected = "\"Invoiced\"\r\n"
                                "#2026-11-20#\r\n"
                                "\"1 - 324-3\"\r\n"
                                "1\r\n4\r\n12\r\n"
                                "\"Dana Whitfield\"\r\n\"88 Elm St\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n"
                                "\"62701\"\r\n\"Dana Whitfield\"\r\n\"88 Elm St\"\r\n"
                                "Side door, dog in yard\r\n";
    EXPECT_EQ(t.readBytes("/Appointments/1 - 324-3.txt"), expected);
    EXPECT_TRUE(t.isFile("/FileToPrint.txt"));
    EXPECT_TRUE(t.isFile("/Services/1 - 324-3.txt"));
}

TEST_F(Posting, NoToThePrintQuestionAndNoToTheRetryPostsNothingButStillAsksAboutTheSlip) {
    line("1", "Tune Up", "$45.00", "$45.00", "False");
    finalize();
    dialogs.expect(kPrintConfirmationTitle, kPrinted, vbNo);
    dialogs.expect(kPrintRetryTitle, "Would you like to Retry Printing this Invoice", vbNo);
    dialogs.expect(kCleanupTitle, kCleanupQuestion, vbNo);
    frm.cmdInvoiceContinue_Click();
    dialogs.verify();
    EXPECT_FALSE(t.isFile("/CompletedInvoices/20260001.txt"));
    EXPECT_FALSE(t.isFile("/OIActiveAccounts/2175550199.txt"));
    EXPECT_EQ(t.readBytes("/OIInvoiceNo.txt"), "20260001\r\n");
}

TEST_F(Posting, AQuantityThatIsNoNumberStopsPostingAtTheStockAfterImageJournalAndLedger) {
    line("2", "Filter", "$12.50", "$25.00", "True");
    line("", "Wash", "$5.00", "$5.00", "True");
    finalize();
    dialogs.expect(kPrintConfirmationTitle, kPrinted, vbYes);
    dialogs.expect(kPrintErrorTitle, kPrintErrorMessage);
    frm.cmdInvoiceContinue_Click();
    dialogs.verify();
    EXPECT_TRUE(t.isFile("/CompletedInvoices/20260001.txt"));
    EXPECT_TRUE(t.isFile("/OIActiveAccounts/2175550199.txt"));
    EXPECT_TRUE(t.isFile("/SoldItems.txt"));
    EXPECT_FALSE(t.isFile("/TaxRecords.txt"));
    EXPECT_EQ(t.readBytes("/OIInvoiceNo.txt"), "20260001\r\n");
    // The line before the failure has moved stock; the invoice stays, to be finalized again.
    const auto items = ReadAllRecords(t.disk(), InventoriedItemRecord::kFileName, InventoriedItemRecord::kLength);
    EXPECT_EQ(InventoriedItemRecord::fromRecord(items[0]).OnHand, 10);
    EXPECT_EQ(frm.LineCount, 2);
    EXPECT_FALSE(frm.cmdInvoiceContinue.enabled);
}

TEST_F(Posting, AQuantityOfAnItemLineThatIsNoWholeNumberStopsBeforeAnythingIsWritten) {
    line("1 Hrs", "Filter", "$12.50", "$12.50", "True");
    finalize();
    dialogs.expect(kPrintConfirmationTitle, kPrinted, vbYes);
    dialogs.expect(kPrintErrorTitle, kPrintErrorMessage);
    frm.cmdInvoiceContinue_Click();
    dialogs.verify();
    EXPECT_FALSE(t.isFile("/SoldItems.txt"));
    EXPECT_FALSE(t.isFile("/CompletedInvoices/20260001.txt"));
    EXPECT_FALSE(t.isFile("/OIActiveAccounts/2175550199.txt"));
}

TEST(PostingRecords, EachRecordSitsAtItsOffsets) {
    SoldItemRecord sold{"Filter", QDate(2026, 11, 22), "20260001", 3};
    EXPECT_EQ(sold.toRecord().bytes(), padded("Filter", 60) + QByteArray::fromHex("0000000080a1e640") +
                                           padded("20260001", 20) + QByteArray::fromHex("0300"));
    EXPECT_EQ(SoldItemRecord::fromRecord(sold.toRecord()).Quantity, 3);
    EXPECT_EQ(SoldItemRecord::fromRecord(sold.toRecord()).SoldOn, QDate(2026, 11, 22));
    LedgerRecord ledger{"Dana", "217", "11/22/2026", "20260001", "$123,456.78"};
    EXPECT_EQ(ledger.toRecord().bytes(), ledgerBytes("Dana", "217", "11/22/2026", "20260001", "$123,456.7"));
    TaxRecord tax{"Sales Tax", "11/22/2026", "20260001", "1.6492"};
    EXPECT_EQ(tax.toRecord().bytes().size(), 75);
    EXPECT_EQ(tax.toRecord().bytes().mid(65), padded("1.6492", 10));
}

TEST(PostingRecords, TwoTaxesTogetherLeaveTheBytesOfOneAfterTheOther) {
    // A whole journal, and one whose last record is cut short (less than half, then more than half).
    for (const QByteArray& tail : {QByteArray(), QByteArray(30, 'x'), QByteArray(40, 'y')}) {
        const QByteArray before = TaxRecord{"Old", "1/2/2026", "20260001", "1.5"}.toRecord().bytes().repeated(3) + tail;
        ostrel::test::TestDataRoot one, both;
        one.writeBytes("/TaxRecords.txt", before);
        both.writeBytes("/TaxRecords.txt", before);
        const QDate day(2026, 11, 22);
        AddTaxRecord(one.disk(), "Sales Tax", "20260002", day, Money::fromTenThousandths(16492));
        AddTaxRecord(one.disk(), "Surcharge", "20260002", day, Money::fromTenThousandths(25000));
        AddTaxRecords(both.disk(),
                      {{"Sales Tax", Money::fromTenThousandths(16492)}, {"Surcharge", Money::fromTenThousandths(25000)}},
                      "20260002", day);
        EXPECT_EQ(both.readBytes("/TaxRecords.txt"), one.readBytes("/TaxRecords.txt")) << tail.size();
        EXPECT_EQ(both.readBytes("/TaxRecords.txt").size() % TaxRecord::kLength, 0);
    }
}

TEST(PostingRecords, TwoTaxesAtTheLastCountableRecordWriteTheFirstAndRefuseTheSecond) {
    ostrel::test::TestDataRoot t;
    const QByteArray record = TaxRecord{"Old", "1/2/2026", "20260001", "1.5"}.toRecord().bytes();
    t.writeBytes("/TaxRecords.txt", record.repeated(32767));
    EXPECT_THROW(AddTaxRecords(t.disk(),
                               {{"Sales Tax", Money::fromTenThousandths(16492)},
                                {"Surcharge", Money::fromTenThousandths(25000)}},
                               "20260002", QDate(2026, 11, 22)),
                 StoreError);
    const QByteArray after = t.readBytes("/TaxRecords.txt");
    ASSERT_EQ(after.size(), 32768 * TaxRecord::kLength);
    EXPECT_EQ(TaxRecord::fromRecord(Record(after.right(TaxRecord::kLength))).Heading.trimmed(), "Sales Tax");
}
