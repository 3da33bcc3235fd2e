#include "frmReprintTestFixture.h"

#include <QFile>

using namespace ostrel;
using ostrel::test::ReprintScreen;

TEST_F(ReprintScreen, ListsEveryImageWithItsFirstFiveLinesAndTheDateKey) {
    post(invoice("20260002", "2/3/2026", "Bob Stone"));
    post(invoice("20260001", "11/20/2026"));
    open();
    EXPECT_TRUE(frm.isVisible());
    EXPECT_EQ(frm.caption, "Completed Invoices Details and Reprint Routine");
    ASSERT_EQ(frm.fgReceivables.Rows(), 3);
    EXPECT_EQ(column(0), (QStringList{"20260001", "20260002"}));
    const int r = rowOf("20260002");
    EXPECT_EQ(frm.fgReceivables.TextMatrix(r, 1), "A-002");
    EXPECT_EQ(frm.fgReceivables.TextMatrix(r, 2), "Bob Stone");
    EXPECT_EQ(frm.fgReceivables.TextMatrix(r, 3), "2/3/2026");
    EXPECT_EQ(frm.fgReceivables.TextMatrix(r, 4), "$91.04");
    EXPECT_EQ(frm.fgReceivables.TextMatrix(r, 5), "2026134");
    EXPECT_EQ(frm.DTPicker1.value, QDate(2026, 11, 23));
    EXPECT_EQ(frm.Label1[1].caption, "Sales Tax");
    EXPECT_EQ(frm.Label1[22].caption, "Tax");
    EXPECT_FALSE(frm.fraInvoice.visible);
}

TEST_F(ReprintScreen, WithNoImagesSaysSoAndReturnsToTheMenu) {
    open();
    EXPECT_BOX(fake.dialogs, "", "No Completed Invoices Exist");
    EXPECT_FALSE(frm.isVisible());
    EXPECT_TRUE(session.startup().isVisible());
}

TEST_F(ReprintScreen, AnImageWhoseFourthLineIsNoDateIsReportedByNameAndSkipped) {
    post(invoice("20260001", "11/20/2026"));
    post(invoice("20260002", "11/21/2026"));
    QByteArray bad = t.readBytes("/CompletedInvoices/20260002.txt");
    bad.replace("11/21/2026\r\n$91.04", "$91.04\r\n$91.04");
    t.writeBytes("/CompletedInvoices/20260002.txt", bad);
    open();
    ASSERT_EQ(fake.dialogs.boxes().size(), 1);
    EXPECT_EQ(fake.dialogs.boxes()[0].title, "Damaged Invoice Images");
    EXPECT_TRUE(fake.dialogs.boxes()[0].prompt.contains("/CompletedInvoices/20260002.txt"));
    EXPECT_TRUE(fake.dialogs.boxes()[0].prompt.contains("is not a date"));
    EXPECT_BOX(fake.dialogs, "Damaged Invoice Images", fake.dialogs.boxes()[0].prompt);
    EXPECT_TRUE(frm.isVisible());
    EXPECT_EQ(column(0), QStringList{"20260001"});
    ASSERT_EQ(frm.damagedImages().size(), 1);
    // The damaged file is left as it was.
    EXPECT_EQ(t.readBytes("/CompletedInvoices/20260002.txt"), bad);
}

TEST_F(ReprintScreen, AnImageCutShortIsReportedByNameAndTheListStillOpens) {
    post(invoice("20260001", "11/20/2026"));
    t.writeBytes("/CompletedInvoices/20260003.txt", "20260003\r\nA-003\r\nAnn");
    open();
    ASSERT_EQ(fake.dialogs.boxes().size(), 1);
    EXPECT_TRUE(fake.dialogs.boxes()[0].prompt.contains("/CompletedInvoices/20260003.txt"));
    EXPECT_BOX(fake.dialogs, "Damaged Invoice Images", fake.dialogs.boxes()[0].prompt);
    EXPECT_EQ(column(0), QStringList{"20260001"});
    EXPECT_TRUE(frm.isVisible());
}

TEST_F(ReprintScreen, AFileGivenAnotherNameShowsItsOldNumberAndItsDetailIsNotFound) {
    post(invoice("20260001", "11/20/2026"));
    QFile::rename(t.full("/CompletedInvoices/20260001.txt"), t.full("/CompletedInvoices/Copy.txt"));
    open();
    EXPECT_EQ(column(0), QStringList{"20260001"});
    clickRow("20260001");
    EXPECT_BOX(fake.dialogs, "Invoice Image Not Found",
               "An Image does not exist for this Transaction\nIt most likely is a result of\n"
               "a Service Attention Completion Posting\nor an E-Funds Received\nShown for Reference Only");
    EXPECT_FALSE(frm.fraInvoice.visible);
    EXPECT_TRUE(frm.mnuSort.enabled);
}

TEST_F(ReprintScreen, ClickingARowShowsTheWholeInvoice) {
    post(invoice("20260001", "11/20/2026"));
    open();
    clickRow("20260001");
    EXPECT_TRUE(frm.fraInvoice.visible);
    EXPECT_EQ(frm.fraInvoice.caption, "Details for Invoice 20260001");
    EXPECT_FALSE(frm.mnuSort.enabled);
    EXPECT_EQ(frm.Label1[19].caption, "11/20/2026");
    EXPECT_EQ(frm.lblBillTo[0].caption, "Ann Lee");
    EXPECT_EQ(frm.lblBillTo[5].caption, "62701");
    EXPECT_EQ(frm.lblShipTo[3].caption, "Springfield");
    EXPECT_EQ(frm.Label1[32].caption, "None");
    EXPECT_EQ(frm.Label1[33].caption, "11/20/2026");
    EXPECT_EQ(frm.Label1[27].caption, "20260001");
    EXPECT_EQ(frm.Label1[17].caption, "A-001");
    EXPECT_EQ(frm.Label1[9].caption, "Ref 20260001");
    EXPECT_EQ(frm.txtAttn.text, "Front desk");
    ASSERT_EQ(frm.fgItems.Rows(), 3);
    EXPECT_EQ(frm.fgItems.TextMatrix(1, 1), "Gas Leak Test");
    EXPECT_EQ(frm.fgItems.TextMatrix(2, 3), "$16.96");
    EXPECT_EQ(frm.fgItems.TextMatrix(2, 4), "$33.92");
    EXPECT_EQ(frm.fgItems.row, 1);
    EXPECT_EQ(frm.lblInvoice[0].caption, "$88.92");
    EXPECT_EQ(frm.lblInvoice[1].caption, "$2.12");
    EXPECT_EQ(frm.lblInvoice[9].caption, "$0.00");
    EXPECT_EQ(frm.lblInvoice[2].caption, "$91.04");
    EXPECT_EQ(frm.lblInvoice[4].caption, "$0.00");
    EXPECT_EQ(frm.lblInvoice[5].caption, "$0.00");
    EXPECT_EQ(frm.lblInvoice[6].caption, "$0.00");

    frm.cmdHide_Click();
    EXPECT_FALSE(frm.fraInvoice.visible);
    EXPECT_TRUE(frm.fgReceivables.visible);
    EXPECT_TRUE(frm.mnuSort.enabled);
}

TEST_F(ReprintScreen, ACommaInTheReferenceShiftsTheDetailFieldsBehindIt) {
    PostedInvoice in = invoice("20260001", "11/20/2026");
    in.reference = "PO 12, line 3";
    post(in);
    open();
    clickRow("20260001");
    EXPECT_EQ(frm.Label1[9].caption, "PO 12");
    EXPECT_EQ(frm.txtAttn.text, "line 3");
    EXPECT_EQ(frm.fgItems.Rows(), 1); // "Front desk" read as the line count
    EXPECT_EQ(frm.lblInvoice[0].caption, "$2.00"); // the real line count, as an amount
    EXPECT_EQ(frm.lblInvoice[1].caption, "$1.00");
    EXPECT_EQ(frm.lblInvoice[9].caption, "Gas Leak Test"); // no amount: shown as read
}

TEST_F(ReprintScreen, AnInvoiceWithNoLinesShowsABodyGridOfOneRow) {
    PostedInvoice in = invoice("20260001", "11/20/2026");
    in.lines.clear();
    post(in);
    open();
    clickRow("20260001");
    EXPECT_TRUE(frm.fraInvoice.visible);
    EXPECT_EQ(frm.fgItems.Rows(), 1);
    EXPECT_EQ(frm.lblInvoice[2].caption, "$91.04");
}

TEST_F(ReprintScreen, TheSortByDateUsesTheHiddenKeySoDaysSortByDayOfYearAndYearsByYear) {
    post(invoice("1", "10/2/2026"));  // day 275
    post(invoice("2", "2/3/2026"));   // day 34
    post(invoice("3", "12/31/2025")); // last year
    post(invoice("4", "9/30/2026"));  // day 273: as text "9/30" sorts after "10/2"
    open();
    frm.mnuSort_Click();
    EXPECT_TRUE(frm.fraSort.visible);
    frm.optCol[1].value = true;
    frm.optSort[0].value = true;
    frm.cmdMode_Click();
    EXPECT_FALSE(frm.fraSort.visible);
    EXPECT_EQ(frm.sortColumn(), frmReprint::kSortKey);
    EXPECT_EQ(column(0), (QStringList{"3", "2", "4", "1"}));
    EXPECT_EQ(column(5), (QStringList{"2025465", "2026134", "2026373", "2026375"}));

    frm.optSort[0].value = false;
    frm.optSort[1].value = true;
    frm.cmdMode_Click();
    EXPECT_EQ(column(0), (QStringList{"1", "4", "2", "3"}));
}

TEST_F(ReprintScreen, SortByAccountNameAndANoChoiceKeepsTheEarlierOne) {
    post(invoice("1", "10/2/2026", "carl"));
    post(invoice("2", "2/3/2026", "Anna"));
    post(invoice("3", "2/4/2026", "Bert"));
    open();
    frm.optCol[2].value = true;
    frm.optSort[0].value = true;
    frm.cmdMode_Click();
    EXPECT_EQ(column(2), (QStringList{"Anna", "Bert", "carl"}));
    // Nothing chosen: the column and the order stay.
    for (auto& [i, o] : frm.optCol) o.value = false;
    for (auto& [i, o] : frm.optSort) o.value = false;
    frm.cmdMode_Click();
    EXPECT_EQ(frm.sortColumn(), frmReprint::kAccountName);
    EXPECT_FALSE(frm.sortDescending());
}

TEST_F(ReprintScreen, TheListIsFirstSortedByInvoiceNumberAsNumbers) {
    post(invoice("100", "10/2/2026"));
    post(invoice("20", "2/3/2026"));
    post(invoice("3", "2/4/2026"));
    open();
    EXPECT_EQ(column(0), (QStringList{"3", "20", "100"}));
}

TEST_F(ReprintScreen, DeleteWithTheDefaultDateRemovesEveryInvoiceDatedTodayOrEarlier) {
    post(invoice("1", "11/22/2026")); // today
    post(invoice("2", "1/5/2026"));
    post(invoice("3", "11/23/2026")); // tomorrow, typed on a later image
    t.writeBytes("/OstrelInvoicer/Narratives/2.txt", "story");
    t.writeBytes("/Backup/OstrelInvoicer/Narratives/2.txt", "story");
    open();
    EXPECT_EQ(frm.DTPicker1.value, QDate(2026, 11, 23));
    fake.dialogs.expect("Delete Invoice Records", "This will Delete All Invoices before 11/23/2026", vbYesNo, vbYes);
    frm.cmdKill_Click();
    fake.dialogs.verify();
    EXPECT_FALSE(t.isFile("/CompletedInvoices/1.txt"));
    EXPECT_FALSE(t.isFile("/CompletedInvoices/2.txt"));
    EXPECT_TRUE(t.isFile("/CompletedInvoices/3.txt"));
    EXPECT_FALSE(t.isFile("/OstrelInvoicer/Narratives/2.txt"));
    EXPECT_FALSE(t.isFile("/Backup/OstrelInvoicer/Narratives/2.txt"));
    // The screen closes rather than removing rows.
    EXPECT_FALSE(frm.isVisible());
    EXPECT_TRUE(session.startup().isVisible());
}

TEST_F(ReprintScreen, AnInvoiceDatedOnTheChosenDateIsKept) {
    post(invoice("1", "11/10/2026"));
    post(invoice("2", "11/9/2026"));
    open();
    frm.DTPicker1.value = QDate(2026, 11, 10);
    frm.DTPicker1_Change();
    fake.dialogs.expect("Delete Invoice Records", "This will Delete All Invoices before 11/10/2026", vbYesNo, vbYes);
    frm.cmdKill_Click();
    EXPECT_TRUE(t.isFile("/CompletedInvoices/1.txt"));
    EXPECT_FALSE(t.isFile("/CompletedInvoices/2.txt"));
}

TEST_F(ReprintScreen, AnsweringNoToTheDeleteKeepsEverythingAndTheScreen) {
    post(invoice("1", "11/10/2026"));
    open();
    fake.dialogs.expect("Delete Invoice Records", "This will Delete All Invoices before 11/23/2026", vbYesNo, vbNo);
    frm.cmdKill_Click();
    EXPECT_TRUE(t.isFile("/CompletedInvoices/1.txt"));
    EXPECT_TRUE(frm.isVisible());
}

TEST_F(ReprintScreen, ADeleteDateAfterTodayIsSetBackToToday) {
    post(invoice("1", "11/10/2026"));
    open();
    frm.DTPicker1.value = QDate(2026, 12, 25);
    frm.DTPicker1_Change();
    EXPECT_EQ(frm.DTPicker1.value, QDate(2026, 11, 22));
    frm.DTPicker1.value = QDate(2026, 1, 2);
    frm.DTPicker1_Change();
    EXPECT_EQ(frm.DTPicker1.value, QDate(2026, 1, 2));
}

TEST_F(ReprintScreen, ClearMemoEmptiesTheBoxAndDeletesTheMemoFile) {
    post(invoice("1", "11/10/2026"));
    t.writeBytes("/InvoiceMemo.txt", "Old memo\r\n");
    open();
    frm.txtMemo.text = "typed";
    frm.cmdMemo_Click();
    EXPECT_EQ(frm.txtMemo.text, "");
    EXPECT_FALSE(t.isFile("/InvoiceMemo.txt"));
}

TEST_F(ReprintScreen, MenuReturnsToTheMainMenu) {
    post(invoice("1", "11/10/2026"));
    open();
    frm.cmdExit_Click();
    EXPECT_FALSE(frm.isVisible());
    EXPECT_TRUE(session.startup().isVisible());
}

TEST_F(ReprintScreen, TheSortKeyIsTheYearFollowedByTheDayOfTheYearPlus100) {
    EXPECT_EQ(frmReprint::SortKey(QDate(2026, 2, 3)), "2026134");
    EXPECT_EQ(frmReprint::SortKey(QDate(2026, 1, 1)), "2026101");
    EXPECT_EQ(frmReprint::SortKey(QDate(2024, 12, 31)), "2024466");
}
