#include "AppointmentRoad.h"
#include "PdfText.h"
#include "Screenshot.h"

#include "invoicing/AssociateJournal.h"
#include "invoicing/PostingRecords.h"

#include <QLabel>
#include <QTableView>

using namespace ostrel;
using ostrel::test::ProgramWindows;
using ostrel::test::saveShot;

TEST_F(ProgramWindows, TheRoadOfOneAppointmentFromAFirstRunToItsReprintAndTheSalesReport) {
    const QDate today = test::kRoadDay;
    ASSERT_NO_FATAL_FAILURE(test::StartOnTheRoadsDay(*this));
    ASSERT_NO_FATAL_FAILURE(test::FirstRunThroughSetup(*this, "Prairie Comfort", "217-555-0142",
                                                       {"Crew One", "Crew Two"}, true));
    EXPECT_EQ(t.readBytes("/ServiceAreas.txt"), "\"Crew One\"\r\n\"Crew Two\"\r\n");

    ASSERT_NO_FATAL_FAILURE(test::OpenCreateAnAppointment(*this));
    ASSERT_NO_FATAL_FAILURE(test::TypeCustomer({"1001", "Ann", "Archer", "12 Elm St", "217-555-0101"}));
    saveShot(*window("frmNewCustomer"), "road-1-customer");
    ASSERT_NO_FATAL_FAILURE(test::SelectCustomer(*this));
    EXPECT_EQ(window("frmCreate")->windowTitle(), "Appointment Creation");
    saveShot(*window("frmCreate"), "road-2-create-shown");

    ASSERT_NO_FATAL_FAILURE(test::AddService("Tune Up"));
    ASSERT_NO_FATAL_FAILURE(test::AddService("Inspection"));
    saveShot(*window("frmCreate"), "road-3-services");
    ASSERT_NO_FATAL_FAILURE(test::AddSalesItem("Parts", "Filter", "2"));
    saveShot(*window("frmCreate"), "road-4-item");
    ASSERT_NO_FATAL_FAILURE(test::CreateAndOpenTheDay());
    saveShot(*window("frmCreate"), "road-5-day");
    ASSERT_NO_FATAL_FAILURE(test::ClickDayRow(10));
    saveShot(*window("frmCreate"), "road-6-placed");
    ASSERT_NO_FATAL_FAILURE(test::SaveDaySchedule());
    EXPECT_TRUE(shown("frmStartup"));
    EXPECT_FALSE(shown("frmCreate"));

    // The files of the appointment, byte for byte: the first slip of the day (327) on the first
    // Point of Service, placed on today, a work day.
    const QString slip = QStringLiteral("1 - 327-1");
    EXPECT_EQ(t.readBytes("/Appointments/" + slip + ".txt"),
              "\"Scheduled\"\r\n#2026-11-23#\r\n\"1 - 327-1\"\r\n1\r\n5\r\n10\r\n\"1001\"\r\n\"Ann Archer\"\r\n"
              "\"12 Elm St\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"217-555-0101\"\r\nNo Customer Instructions\r\n");
    EXPECT_EQ(t.readBytes("/Services/" + slip + ".txt"), "\"Tune Up\"\r\n45\r\n4\r\n\"Inspection\"\r\n20\r\n1\r\n");
    EXPECT_EQ(t.readBytes("/SoldItems/" + slip + ".txt"), "2\r\nFilter\r\n$12.50\r\n");
    QByteArray dayFile;
    for (int r = 1; r <= 48; ++r) {
        QByteArray text;
        if (r == 10) text = "Ann Archer";
        if (r >= 11 && r <= 13) text = "Tune Up";
        if (r == 14) text = "Ann Archer Inspection";
        dayFile += '"' + text + "\"\r\n";
    }
    EXPECT_EQ(t.readBytes("/2026/DaySchedules1/327.txt"), dayFile);
    EXPECT_EQ(t.readBytes("/SlipCounter.txt"), "\"327\",2\r\n");
    // The customer file's one box said so on the way.
    EXPECT_EQ(boxes.said, QStringList{"Your Customer File is Empty\nCreate your First Customer Now"});

    // The day of the job: the work order, printed and confirmed.
    ASSERT_NO_FATAL_FAILURE(test::PrintTheWorkOrder(*this, slip));
    saveShot(*window("frmWorkOrders"), "road-7-work-order");
    // The summary report (ticked from the start), then the work order.
    ASSERT_EQ(printed.files.size(), 2);
    if (test::havePoppler()) {
        const test::PdfText summary = test::readPdf(printed.files[0]);
        EXPECT_EQ(summary.count("Summary"), 1);
        EXPECT_EQ(summary.count("327-1"), 1);
        const test::PdfText workOrder = test::readPdf(printed.files[1]);
        EXPECT_EQ(workOrder.count("Order"), 2); // the title and "Work Order No"
        EXPECT_EQ(workOrder.count("Archer"), 1);
        EXPECT_EQ(workOrder.count("Inspection"), 1);
        EXPECT_EQ(workOrder.count("$45.00"), 1);
        // The first service line stands below the ruled head of the body, in the left column.
        EXPECT_GT(workOrder.word("Tune").yMin, workOrder.word("Service").yMin);
        EXPECT_LT(workOrder.word("Tune").xMin, workOrder.word("1:00").xMin);
        test::savePages(printed.files[1], "road-7-work-order-pdf");
    }
    ASSERT_NO_FATAL_FAILURE(test::road::press("frmWorkOrders", "cmdWorkOrders(0)"));
    ASSERT_TRUE(shown("frmStartup"));

    // The finished job becomes an invoice; the slip's files are kept.
    boxes.answer("Would you like to DELETE the Appointment Files?", QMessageBox::No);
    ASSERT_NO_FATAL_FAILURE(test::HandTheSlipToInvoicing(*this));
    saveShot(*window("frmInvoice"), "road-8-invoice-opened");
    // Bill-to shows the slip's customer; the held first block stays out of sight.
    EXPECT_EQ(ProgramWindows::child<QLabel>("frmInvoice", "lblCustomer(6)")->text(), "Ann Archer");
    EXPECT_TRUE(ProgramWindows::child<QLabel>("frmInvoice", "lblCustomer(6)")->isVisible());
    EXPECT_FALSE(ProgramWindows::child<QLabel>("frmInvoice", "lblCustomer(0)")->isVisible());
    EXPECT_FALSE(ProgramWindows::child<QLabel>("frmInvoice", "lblAcct")->isVisible());
    ASSERT_NO_FATAL_FAILURE(test::FinalizeAndPrintTheInvoice());
    saveShot(*window("frmInvoice"), "road-9-invoice-posted");
    EXPECT_TRUE(shown("frmStartup"));
    // The invoice page went to the printer: the third job.
    ASSERT_EQ(printed.files.size(), 3);
    if (test::havePoppler()) {
        const test::PdfText invoice = test::readPdf(printed.files[2]);
        EXPECT_EQ(invoice.count("20260001"), 1); // "INVOICE NO: 20260001"
        EXPECT_EQ(invoice.count("Filter"), 1);
        EXPECT_EQ(invoice.count("$91.00"), 1);
        test::savePages(printed.files[2], "road-9-invoice-pdf");
    }

    // Posting, byte for byte where the files are text: the image, the next number, the slip kept
    // as invoiced (its customer fields one place earlier, as its readers expect).
    EXPECT_EQ(t.readBytes("/CompletedInvoices/20260001.txt"),
              "20260001\r\n1001\r\nAnn Archer\r\n11/23/2026\r\n$91.00\r\n"
              "\"Ann Archer\"\r\n\"12 Elm St\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"
              "\"Ann Archer\"\r\n\"12 Elm St\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"
              "None\r\n11/23/2026\r\n20260001\r\n1001\r\nPrepared 11/23/2026\r\n\r\n3\r\n"
              "1\r\nTune Up\r\n11/23/2026\r\n$45.00\r\n$45.00\r\nFalse\r\n"
              "1\r\nInspection\r\n11/23/2026\r\n$20.00\r\n$20.00\r\nFalse\r\n"
              "2\r\nFilter\r\n\r\n$12.50\r\n$25.00\r\nTrue\r\n"
              "\"$90.00\",\"$1.00\",\"$0.00\",\"$91.00\",\"$0.00\",\"$0.00\",\"$0.00\"\r\n");
    EXPECT_EQ(t.readBytes("/OIInvoiceNo.txt"), "20260002\r\n");
    EXPECT_EQ(t.readBytes("/Appointments/" + slip + ".txt"),
              "\"Invoiced\"\r\n#2026-11-23#\r\n\"1 - 327-1\"\r\n1\r\n5\r\n10\r\n\"Ann Archer\"\r\n\"12 Elm St\"\r\n"
              "\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"Ann Archer\"\r\n\"12 Elm St\"\r\nNo Customer Instructions\r\n");
    const QVector<AssociateJournalRecord> journal = ReadAssociateJournal(t.disk());
    ASSERT_EQ(journal.size(), 1);
    EXPECT_EQ(journal[0].Transaction.trimmed(), "Ann Archer");
    EXPECT_EQ(journal[0].Account.trimmed(), "20260001");
    EXPECT_EQ(journal[0].JournalDate, today);
    EXPECT_EQ(journal[0].Associate.trimmed(), "Crew One");
    EXPECT_EQ(journal[0].SubTotal, Money::fromWhole(90));
    EXPECT_EQ(journal[0].Tax, Money::fromWhole(1));
    EXPECT_EQ(journal[0].Gross, Money::fromWhole(91));
    const QVector<Record> sold = ReadAllRecords(t.disk(), SoldItemRecord::kFileName, SoldItemRecord::kLength);
    ASSERT_EQ(sold.size(), 1);
    const SoldItemRecord filter = SoldItemRecord::fromRecord(sold[0]);
    EXPECT_EQ(filter.Description.trimmed(), "Filter");
    EXPECT_EQ(filter.SoldOn, today);
    EXPECT_EQ(filter.InvoiceNo.trimmed(), "20260001");
    EXPECT_EQ(filter.Quantity, 2);
    EXPECT_TRUE(t.readBytes("/OIActiveAccounts/1001.txt").contains("20260001"));
    EXPECT_TRUE(t.readBytes("/TaxRecords.txt").startsWith("Sales Tax"));

    // The office looks back: the invoice reprinted from its image, with the address twice.
    ASSERT_NO_FATAL_FAILURE(test::ReprintTheInvoice(*this));
    saveShot(*window("frmReprint"), "road-10-reprint");
    ASSERT_EQ(printed.files.size(), 4);
    if (test::havePoppler()) {
        const test::PdfText reprint = test::readPdf(printed.files[3]);
        EXPECT_EQ(reprint.count("SHIPPED"), 1);
        EXPECT_EQ(reprint.count("Archer"), 2);
        EXPECT_EQ(reprint.count("Filter"), 1);
        EXPECT_EQ(reprint.count("$91.00"), 1);
        test::savePages(printed.files[3], "road-10-reprint-pdf");
    }
    ASSERT_NO_FATAL_FAILURE(test::road::press("frmReprint", "cmdExit"));
    ASSERT_TRUE(shown("frmStartup"));

    // The month's sales of the associate, on screen and printed.
    ASSERT_NO_FATAL_FAILURE(test::OpenRoutine(*this, 4, "frmSales"));
    auto* sales = ProgramWindows::child<QTableView>("frmSales", "fgSales");
    ASSERT_NE(sales, nullptr);
    ASSERT_EQ(sales->model()->rowCount(), 1);
    EXPECT_EQ(sales->model()->index(0, 0).data().toString(), "Ann Archer");
    EXPECT_EQ(sales->model()->index(0, 2).data().toString(), "20260001");
    EXPECT_EQ(sales->model()->index(0, 6).data().toString(), "$91.00");
    EXPECT_EQ(ProgramWindows::child<QLabel>("frmSales", "lblTotal(3)")->text(), "$91.00");
    saveShot(*window("frmSales"), "road-11-sales");
    ASSERT_NO_FATAL_FAILURE(test::road::press("frmSales", "cmdSales(3)"));
    ASSERT_EQ(printed.files.size(), 5);
    if (test::havePoppler()) {
        const test::PdfText report = test::readPdf(printed.files[4]);
        EXPECT_EQ(report.count("General"), 1);
        EXPECT_EQ(report.count("20260001"), 1);
        EXPECT_GE(report.count("$91.00"), 2); // the row and the sales total
        test::savePages(printed.files[4], "road-11-sales-pdf");
    }

    // Only the confirmations of the work order and the invoice, and the invoice's clean-up, were
    // asked on the way: the summary, the reprint and the report ask nothing.
    ASSERT_EQ(boxes.said.size(), 4) << boxes.said.join(u'|').toStdString();
    EXPECT_EQ(boxes.said[1], "Was the Work Order Printed Correctly");
    EXPECT_EQ(boxes.said[2], "Was the Invoice Printed Correctly");
    EXPECT_TRUE(boxes.said[3].startsWith("Would you like to DELETE the Appointment Files?"));
}

TEST_F(ProgramWindows, AnAppointmentSavedToBeInvoicedIsComposedPrintedAndPostedByteForByte) {
    const QDate today = test::kRoadDay;
    ASSERT_NO_FATAL_FAILURE(test::StartOnTheRoadsDay(*this));
    ASSERT_NO_FATAL_FAILURE(test::FirstRunThroughSetup(*this, "Prairie Comfort", "217-555-0142", {"Crew One"}));
    ASSERT_NO_FATAL_FAILURE(test::OpenCreateAnAppointment(*this));
    ASSERT_NO_FATAL_FAILURE(test::TypeCustomer({"1001", "Ann", "Archer", "12 Elm St", "217-555-0101"}));
    ASSERT_NO_FATAL_FAILURE(test::SelectCustomer(*this));
    ASSERT_NO_FATAL_FAILURE(test::AddService("Tune Up"));
    ASSERT_NO_FATAL_FAILURE(test::AddSalesItem("Parts", "Filter", "2"));
    ASSERT_NO_FATAL_FAILURE(test::CreateAndOpenTheDay());
    ASSERT_NO_FATAL_FAILURE(test::ClickDayRow(10));
    ASSERT_NO_FATAL_FAILURE(test::TickPrintInvoiceAfterSaving());
    ASSERT_NO_FATAL_FAILURE(test::SaveDaySchedule());
    ASSERT_TRUE(shown("frmInvoice"));
    EXPECT_FALSE(shown("frmCreate"));

    boxes.answer("Would you like to DELETE the Appointment Files?", QMessageBox::Yes);
    ASSERT_NO_FATAL_FAILURE(test::road::press("frmInvoice", "cmdInvoice(0)"));
    ASSERT_NO_FATAL_FAILURE(test::AddLaborHours("1.5"));
    ASSERT_NO_FATAL_FAILURE(test::AddInvoiceItem("Filter", "1"));
    saveShot(*window("frmInvoice"), "road-b-invoice-composed");
    ASSERT_NO_FATAL_FAILURE(test::road::press("frmInvoice", "cmdPrint"));
    ASSERT_NO_FATAL_FAILURE(test::road::press("frmInvoice", "cmdInvoice(9)"));
    saveShot(*window("frmInvoice"), "road-b-invoice-finalized");
    ASSERT_NO_FATAL_FAILURE(test::road::press("frmInvoice", "cmdInvoiceContinue"));
    EXPECT_TRUE(shown("frmStartup"));
    // One print, the invoice; the clean-up's Yes took the slip's three files and the hand-over.
    ASSERT_EQ(printed.files.size(), 1);
    if (test::havePoppler()) {
        const test::PdfText invoice = test::readPdf(printed.files[0]);
        EXPECT_EQ(invoice.count("Labor"), 1);
        EXPECT_EQ(invoice.count("$211.50"), 1);
        test::savePages(printed.files[0], "road-b-invoice-pdf");
    }
    EXPECT_EQ(boxes.said.size(), 3) << boxes.said.join(u'|').toStdString();
    for (const char* folder : {"/Appointments/", "/Services/", "/SoldItems/"})
        EXPECT_FALSE(t.isFile(QLatin1String(folder) + "1 - 327-1.txt")) << folder;
    EXPECT_FALSE(t.isFile("/FileToPrint.txt"));

    // Every file the posting wrote, byte for byte, the fixed records put together here by hand.
    const auto field = [](const QByteArray& text, int width) { return text + QByteArray(width - text.size(), ' '); };
    const auto dateBytes = [](const QDate& d) {
        const double days = static_cast<double>(QDate(1899, 12, 30).daysTo(d));
        return QByteArray(reinterpret_cast<const char*>(&days), 8);
    };
    const auto int16Bytes = [](qint16 v) { return QByteArray(reinterpret_cast<const char*>(&v), 2); };
    // The slip's two filters and the one added on the invoice, once per line.
    EXPECT_EQ(t.readBytes("/SoldItems.txt"),
              field("Filter", 60) + dateBytes(today) + field("20260001", 20) + int16Bytes(2) +
                  field("Filter", 60) + dateBytes(today) + field("20260001", 20) + int16Bytes(1));
    // A first invoice opens the ledger with its previous balance.
    EXPECT_EQ(t.readBytes("/OIActiveAccounts/1001.txt"),
              field("Ann Archer", 45) + field("1001", 25) + field("11/23/2026", 15) + field("Previous Balance", 60) +
                  field("$0.00", 10) + field("Ann Archer", 45) + field("1001", 25) + field("11/23/2026", 15) +
                  field("20260001", 60) + field("$211.50", 10));
    // 4 % on the taxed filters, $37.50; labor is not taxed.
    EXPECT_EQ(t.readBytes("/TaxRecords.txt"),
              field("Sales Tax", 20) + field("11/23/2026", 15) + field("20260001", 30) + field("1.5", 10));
    EXPECT_EQ(t.readBytes("/CompletedInvoices/20260001.txt"),
              "20260001\r\n1001\r\nAnn Archer\r\n11/23/2026\r\n$211.50\r\n"
              "\"Ann Archer\"\r\n\"12 Elm St\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"
              "\"Ann Archer\"\r\n\"12 Elm St\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"
              "None\r\n11/23/2026\r\n20260001\r\n1001\r\nPrepared 11/23/2026\r\n\r\n4\r\n"
              "1\r\nTune Up\r\n11/23/2026\r\n$45.00\r\n$45.00\r\nFalse\r\n"
              "2\r\nFilter\r\n\r\n$12.50\r\n$25.00\r\nTrue\r\n"
              "1.5 Hrs\r\nGeneral Labor\r\n\r\n$85.00\r\n$127.50\r\nFalse\r\n"
              "1\r\nFilter\r\n\r\n$12.50\r\n$12.50\r\nTrue\r\n"
              "\"$210.00\",\"$1.50\",\"$0.00\",\"$211.50\",\"$0.00\",\"$0.00\",\"$0.00\"\r\n");
    // Three filters left the shelf: 12 on hand become 9, the rest of the record as it was.
    InventoriedItemRecord filter = test::item("Filter", "Parts");
    filter.OnHand = 9;
    EXPECT_EQ(t.readBytes("/OIInventoriedItems.txt"), filter.toRecord().bytes());
    EXPECT_EQ(t.readBytes("/OIInvoiceNo.txt"), "20260002\r\n");
    // Shop/Repair style keeps no associate journal.
    EXPECT_FALSE(t.isFile("/AssociateJournal.txt"));
}
