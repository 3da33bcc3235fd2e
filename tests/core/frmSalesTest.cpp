#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "invoicing/AssociateJournal.h"
#include "printing/frmSales.h"
#include "setup/PointOfServiceNames.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::RecordingPrintDialogs;
using ostrel::test::PageOp;
using ostrel::test::RecordingPageSurface;
using ostrel::test::TestDataRoot;

namespace {

AssociateJournalRecord sale(const QString& name, const QString& number, QDate date, const QString& associate,
                            qint64 sub, qint64 tax, qint64 discount = 0) {
    AssociateJournalRecord r;
    r.Transaction = name;
    r.Account = number;
    r.JournalDate = date;
    r.Associate = associate;
    r.SubTotal = Money::fromTenThousandths(sub);
    r.Tax = Money::fromTenThousandths(tax);
    r.Discount = Money::fromTenThousandths(discount);
    r.Gross = Money::fromTenThousandths(sub + tax);
    return r;
}

struct SalesScreen : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmSales& frm = session.AddScreen(ScreenId::frmSales, std::make_unique<frmSales>(session));

    SalesScreen() {
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        t.makeDir("/Backup");
        fake.clock.set(QDate(2026, 11, 22), QTime(9, 0));
        session.settings.program.optBusinessType0 = false; // Associate Sales
        PointOfServiceNames names;
        SaveAssociates(t.disk(), {"Crew One", "Crew Two", "Crew Three"}, names);
        session.LoadServiceAreas();
    }

    void journal(std::initializer_list<AssociateJournalRecord> records) {
        for (const auto& r : records) AddJournalRecord(t.disk(), r);
    }
    void standardJournal() {
        journal({sale("Ann Lee", "20260001", QDate(2026, 11, 1), "Crew One", 100000, 5000),
                 sale("Bob Stone", "20260002", QDate(2026, 11, 10), "Crew Two", 200000, 10000, 20000),
                 sale("Cy Young", "20260003", QDate(2026, 11, 22), "Crew Two", 50000, 2500),
                 sale("Di Old", "20260004", QDate(2026, 10, 31), "Crew One", 70000, 0)});
    }
    QStringList column(int c) const {
        QStringList out;
        for (int r = 1; r < frm.fgSales.Rows(); ++r) out.append(frm.fgSales.TextMatrix(r, c));
        return out;
    }
    void open() { session.ShowScreen(ScreenId::frmSales); }
    QVector<AssociateJournalRecord> onDisk() { return ReadAssociateJournal(t.disk()); }
};

} // namespace

TEST_F(SalesScreen, OpensOnThisMonthForEveryAssociateAndLoads) {
    standardJournal();
    open();
    EXPECT_EQ(frm.caption, "Associate Sales Report");
    EXPECT_EQ(frm.DTPicker1[0].value, QDate(2026, 11, 1));
    EXPECT_EQ(frm.DTPicker1[1].value, QDate(2026, 11, 22));
    EXPECT_EQ(frm.cboAssociates.listIndex, 0);
    EXPECT_TRUE(frm.cboAssociates.visible);
    EXPECT_TRUE(frm.Label1[6].visible);
    EXPECT_EQ(column(frmSales::kTransaction), (QStringList{"Ann Lee", "Bob Stone", "Cy Young"}));
    EXPECT_EQ(column(frmSales::kDate), (QStringList{"11/1/2026", "11/10/2026", "11/22/2026"}));
    EXPECT_EQ(column(frmSales::kAccount), (QStringList{"20260001", "20260002", "20260003"}));
    EXPECT_EQ(column(frmSales::kSubTotal), (QStringList{"$10.00", "$20.00", "$5.00"}));
    EXPECT_EQ(column(frmSales::kDiscount), (QStringList{"$0.00", "$2.00", "$0.00"}));
    EXPECT_EQ(column(frmSales::kTax), (QStringList{"$0.50", "$1.00", "$0.25"}));
    EXPECT_EQ(column(frmSales::kNet), (QStringList{"$10.50", "$19.00", "$5.25"}));
    EXPECT_EQ(frm.lblTotal[0].caption, "$35.00");
    EXPECT_EQ(frm.lblTotal[1].caption, "$2.00");
    EXPECT_EQ(frm.lblTotal[2].caption, "$1.75");
    EXPECT_EQ(frm.lblTotal[3].caption, "$34.75");
}

TEST_F(SalesScreen, TheAssociateControlsAreHiddenInShopRepairStyle) {
    session.settings.program.optBusinessType0 = true;
    open();
    EXPECT_FALSE(frm.cboAssociates.visible);
    EXPECT_FALSE(frm.Label1[6].visible);
}

TEST_F(SalesScreen, SelectingTheFirstListEntryShowsEveryAssociatesSales) {
    standardJournal();
    open();
    frm.cboAssociates.SetListIndex(0);
    EXPECT_EQ(frm.cboAssociates.text, "Crew One");
    frm.cmdSales_Click(frmSales::kLoadGrid);
    EXPECT_EQ(column(0), (QStringList{"Ann Lee", "Bob Stone", "Cy Young"}));
}

TEST_F(SalesScreen, AnyOtherEntryShowsOnlyThatAssociatesSales) {
    standardJournal();
    open();
    frm.cboAssociates.SetListIndex(1);
    frm.cmdSales_Click(frmSales::kLoadGrid);
    EXPECT_EQ(column(0), (QStringList{"Bob Stone", "Cy Young"}));
    EXPECT_EQ(frm.lblTotal[0].caption, "$25.00");
    frm.cboAssociates.SetListIndex(2);
    frm.cmdSales_Click(frmSales::kLoadGrid);
    EXPECT_EQ(frm.fgSales.Rows(), 1);
    EXPECT_EQ(frm.lblTotal[3].caption, "$0.00");
}

TEST_F(SalesScreen, LastMonthInJanuaryIsDecemberOfLastYear) {
    fake.clock.setDate(QDate(2026, 1, 14));
    journal({sale("Dec", "1", QDate(2025, 12, 31), "Crew One", 10000, 0),
             sale("Dec first", "2", QDate(2025, 12, 1), "Crew One", 10000, 0),
             sale("Nov", "3", QDate(2025, 11, 30), "Crew One", 10000, 0),
             sale("Jan", "4", QDate(2026, 1, 1), "Crew One", 10000, 0)});
    open();
    frm.cmdIncome_Click(frmSales::kLastMonth);
    EXPECT_EQ(frm.DTPicker1[0].value, QDate(2025, 12, 1));
    EXPECT_EQ(frm.DTPicker1[1].value, QDate(2025, 12, 31));
    EXPECT_EQ(column(0), (QStringList{"Dec", "Dec first"}));
}

TEST_F(SalesScreen, ThePeriodButtonsSetTheirRanges) {
    const QDate today(2026, 3, 15);
    EXPECT_EQ(frmSales::PeriodOf(0, today), std::make_pair(QDate(2026, 2, 1), QDate(2026, 2, 28)));
    EXPECT_EQ(frmSales::PeriodOf(1, today), std::make_pair(QDate(2026, 3, 1), today));
    EXPECT_EQ(frmSales::PeriodOf(2, today), std::make_pair(QDate(2026, 1, 1), today));
    EXPECT_EQ(frmSales::PeriodOf(3, today), std::make_pair(QDate(1990, 1, 1), today));
    EXPECT_EQ(frmSales::PeriodOf(0, QDate(2024, 3, 31)), std::make_pair(QDate(2024, 2, 1), QDate(2024, 2, 29)));
}

TEST_F(SalesScreen, RecordsDatedOnTheStartOrEndDateAreShown) {
    standardJournal();
    open();
    frm.DTPicker1[0].value = QDate(2026, 11, 1);
    frm.DTPicker1_Change(0);
    frm.DTPicker1[1].value = QDate(2026, 11, 10);
    frm.DTPicker1_Change(1);
    frm.cmdSales_Click(frmSales::kLoadGrid);
    EXPECT_EQ(column(0), (QStringList{"Ann Lee", "Bob Stone"}));
}

TEST_F(SalesScreen, RecordsDatedOnTheStartOrEndDateAreDeletedForEveryAssociate) {
    standardJournal();
    open();
    frm.cboAssociates.SetListIndex(1); // the filter plays no part in a delete
    frm.DTPicker1[0].value = QDate(2026, 11, 1);
    frm.DTPicker1_Change(0);
    frm.DTPicker1[1].value = QDate(2026, 11, 10);
    frm.DTPicker1_Change(1);
    fake.dialogs.expect("Delete Sales Records", "This will delete all Sales Records \nfrom 11/1/2026 to 11/10/2026",
                        vbYesNo, vbYes);
    fake.dialogs.expect("Delete Verification", "Are you Sure?", vbYesNo, vbYes);
    frm.cmdSales_Click(frmSales::kDeleteRecords);
    fake.dialogs.verify();
    const auto left = onDisk();
    ASSERT_EQ(left.size(), 2);
    EXPECT_EQ(left[0].Transaction.trimmed(), "Cy Young");
    EXPECT_EQ(left[1].Transaction.trimmed(), "Di Old");
    // The backup is the new journal, and the scratch file is gone into it.
    EXPECT_EQ(t.readBytes("/Backup/AssociateJournal.txt"), t.readBytes("/AssociateJournal.txt"));
    EXPECT_FALSE(t.isFile("/TempFile.txt"));
}

TEST_F(SalesScreen, ALeftoverTempFileIsNotClearedAndNewRecordsAreWrittenOverItsFirstOnes) {
    journal({sale("Keep", "1", QDate(2026, 10, 1), "Crew One", 10000, 0),
             sale("Gone", "2", QDate(2026, 11, 5), "Crew One", 10000, 0)});
    QByteArray leftover;
    for (const char* n : {"Old A", "Old B", "Old C"})
        leftover += sale(n, "9", QDate(2020, 1, 1), "Crew Two", 1, 0).toRecord().bytes();
    t.writeBytes("/TempFile.txt", leftover);
    open();
    fake.dialogs.expect("Delete Sales Records", "This will delete all Sales Records \nfrom 11/1/2026 to 11/22/2026",
                        vbYesNo, vbYes);
    fake.dialogs.expect("Delete Verification", "Are you Sure?", vbYesNo, vbYes);
    frm.cmdSales_Click(frmSales::kDeleteRecords);
    const auto left = onDisk();
    ASSERT_EQ(left.size(), 3);
    EXPECT_EQ(left[0].Transaction.trimmed(), "Keep");
    EXPECT_EQ(left[1].Transaction.trimmed(), "Old B");
    EXPECT_EQ(left[2].Transaction.trimmed(), "Old C");
}

TEST_F(SalesScreen, TheStrayScratchNameIsDeletedInsideTheDataFolderOnly) {
    standardJournal();
    t.writeBytes("/BackupTempFile.txt", "stray");
    t.writeBytes("/TempFile.txt", QByteArray());
    open();
    fake.dialogs.expect("Delete Sales Records", "This will delete all Sales Records \nfrom 11/1/2026 to 11/22/2026",
                        vbYesNo, vbNo);
    frm.cmdSales_Click(frmSales::kDeleteRecords);
    // The first step runs before the question; /TempFile.txt is another name and stays.
    EXPECT_FALSE(t.isFile("/BackupTempFile.txt"));
    EXPECT_TRUE(t.isFile("/TempFile.txt"));
    EXPECT_EQ(onDisk().size(), 4);
}

TEST_F(SalesScreen, NoToTheVerificationDeletesNothing) {
    standardJournal();
    const QByteArray before = t.readBytes("/AssociateJournal.txt");
    open();
    fake.dialogs.expect("Delete Sales Records", "This will delete all Sales Records \nfrom 11/1/2026 to 11/22/2026",
                        vbYesNo, vbYes);
    fake.dialogs.expect("Delete Verification", "Are you Sure?", vbYesNo, vbNo);
    frm.cmdSales_Click(frmSales::kDeleteRecords);
    EXPECT_EQ(t.readBytes("/AssociateJournal.txt"), before);
}

TEST_F(SalesScreen, WithoutAJournalTheDeleteDoesNothingAndTheGridIsEmpty) {
    open();
    EXPECT_EQ(frm.fgSales.Rows(), 1);
    frm.cmdSales_Click(frmSales::kDeleteRecords); // no question
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
    EXPECT_FALSE(t.isFile("/AssociateJournal.txt"));
}

TEST_F(SalesScreen, ADateAfterTodayIsRefusedAndSetToToday) {
    open();
    frm.DTPicker1[1].value = QDate(2026, 12, 1);
    frm.DTPicker1_Change(1);
    EXPECT_BOX(fake.dialogs, "", "Your Calendar Selection is Invalid");
    EXPECT_EQ(fake.dialogs.beeps(), 1);
    EXPECT_EQ(frm.DTPicker1[1].value, QDate(2026, 11, 22));
    EXPECT_EQ(frm.EndDate(), QDate(2026, 11, 22));
}

TEST_F(SalesScreen, AnEndBeforeTheStartIsSetToTheStart) {
    open();
    frm.DTPicker1[1].value = QDate(2026, 10, 1);
    frm.DTPicker1_Change(1);
    EXPECT_BOX(fake.dialogs, "", "Your Calendar Selection is Invalid");
    EXPECT_EQ(frm.DTPicker1[1].value, QDate(2026, 11, 1));
    EXPECT_EQ(frm.EndDate(), QDate(2026, 11, 1));
}

TEST_F(SalesScreen, MenuHidesTheScreenAndShowsTheMainMenu) {
    open();
    frm.cmdSales_Click(frmSales::kMenu);
    EXPECT_FALSE(frm.isVisible());
    EXPECT_TRUE(session.startup().isVisible());
}

TEST_F(SalesScreen, ThePrintedReportHasItsHeadColumnsRuleAndTotals) {
    standardJournal();
    open();
    frm.cboAssociates.SetListIndex(1);
    frm.cmdSales_Click(frmSales::kLoadGrid);
    frm.cmdSales_Click(frmSales::kPrintReport);
    ASSERT_EQ(fake.printDialogs.jobs().size(), 1u);
    const auto& page = fake.printDialogs.lastJob();
    EXPECT_EQ(page.documentsEnded(), 1);
    const auto title = page.text("General Sales Report");
    EXPECT_TRUE(title.font.bold);
    EXPECT_EQ(title.font.size, 14);
    EXPECT_TRUE(page.printed("from 11/1/2026 to 11/22/2026"));
    EXPECT_TRUE(page.printed("11/22/2026"));
    const auto head = page.text("Sales Report for Crew Two");
    EXPECT_DOUBLE_EQ(head.x, 0.75 * 1440);
    EXPECT_DOUBLE_EQ(head.y, 1.5 * 1440);
    const auto transaction = page.text("Transaction");
    EXPECT_DOUBLE_EQ(transaction.x, 1440);
    EXPECT_DOUBLE_EQ(transaction.y, 2.0 * 1440);
    EXPECT_DOUBLE_EQ(page.text("Total").x, 7.35 * 1440);
    const auto rules = page.of(PageOp::Kind::Line);
    ASSERT_EQ(rules.size(), 2);
    EXPECT_DOUBLE_EQ(rules[0].x, 720);
    EXPECT_DOUBLE_EQ(rules[0].x2, 13680);
    const auto bob = page.text("Bob Stone");
    EXPECT_DOUBLE_EQ(bob.y, 2.5 * 1440);
    // Money is right-aligned under its head, in the smaller size.
    const auto net = page.text("$19.00");
    EXPECT_EQ(net.font.size, 8);
    const auto totalHead = page.text("Total");
    EXPECT_NEAR(net.x + RecordingPageSurface::charWidth(8) * 6, totalHead.x + RecordingPageSurface::charWidth(10) * 5,
                1);
    EXPECT_TRUE(page.printed("Goods Sub Total"));
    EXPECT_TRUE(page.printed("$25.00"));
    EXPECT_TRUE(page.printed("Discounts Taken"));
    EXPECT_TRUE(page.printed("Tax Collected"));
    EXPECT_TRUE(page.printed("Sales Total(before Discounts)"));
    EXPECT_TRUE(page.printed("$26.25")); // gross before discounts
    EXPECT_GT(page.text("Goods Sub Total").y, rules[1].y);
}

TEST_F(SalesScreen, CancelInThePrintDialogSaysTheReportWillNotBePrinted) {
    open();
    fake.printDialogs.answer(RecordingPrintDialogs::Answer::Cancel);
    frm.cmdSales_Click(frmSales::kPrintReport);
    EXPECT_BOX(fake.dialogs, "", "The Report will not be Printed");
}

TEST_F(SalesScreen, AFailingPrinterGivesThePrintError) {
    standardJournal();
    open();
    fake.printDialogs.failNextJobAt(3);
    frm.cmdSales_Click(frmSales::kPrintReport);
    EXPECT_BOX(fake.dialogs, "Print Error", "A Print Error has occurred");
}

TEST_F(SalesScreen, ALongReportStartsANewPageWithTheSameHead) {
    for (int i = 0; i < 80; ++i)
        AddJournalRecord(t.disk(), sale(QString("Customer %1").arg(i), QString::number(i), QDate(2026, 11, 2),
                                        "Crew One", 10000, 0));
    open();
    frm.cmdSales_Click(frmSales::kPrintReport);
    const auto& page = fake.printDialogs.lastJob();
    EXPECT_GE(page.pagesEnded(), 1);
    int heads = 0;
    for (const auto& op : page.texts()) heads += op.text == "General Sales Report";
    EXPECT_EQ(heads, page.pagesEnded() + 1);
    for (const auto& op : page.texts())
        if (op.text.startsWith("Customer ")) {
            EXPECT_LT(op.y, 15840);
        }
}

TEST_F(SalesScreen, TotalsStayExactOverLargeAndNegativeAmounts) {
    journal({sale("Big", "1", QDate(2026, 11, 2), "Crew One", 900000000000000LL, 36000000000000LL, 5),
             sale("Refund", "2", QDate(2026, 11, 3), "Crew Two  ", -1234567, -49383),
             sale("Small", "3", QDate(2026, 11, 4), "Crew Two", 1, 0)});
    open();
    const frmSales::Totals& sums = frm.totals();
    EXPECT_EQ(sums.subTotal.tenThousandths(), 900000000000000LL - 1234567 + 1);
    EXPECT_EQ(sums.tax.tenThousandths(), 36000000000000LL - 49383);
    EXPECT_EQ(sums.discount.tenThousandths(), 5);
    EXPECT_EQ(sums.gross.tenThousandths(), 936000000000000LL - 1234567 - 49383 + 1);
    EXPECT_EQ(column(frmSales::kSubTotal), (QStringList{"$90,000,000,000.00", "($123.46)", "$0.00"}));
    EXPECT_EQ(column(frmSales::kNet), (QStringList{"$93,600,000,000.00", "($128.40)", "$0.00"}));
    EXPECT_EQ(frm.lblTotal[3].caption, FormatMoney(sums.gross - sums.discount));
    // The associate written with trailing blanks is still "Crew Two".
    frm.cboAssociates.SetListIndex(1);
    frm.cmdSales_Click(frmSales::kLoadGrid);
    EXPECT_EQ(column(frmSales::kTransaction), (QStringList{"Refund", "Small"}));
}

TEST_F(SalesScreen, AnAssociateNameTheJournalCannotHoldShowsNoSales) {
    journal({sale("Qu Mark", "1", QDate(2026, 11, 2), "Crew ?", 10000, 0)});
    open();
    EXPECT_EQ(frm.fgSales.Rows(), 2);
    frm.cboAssociates.SetListIndex(frm.cboAssociates.AddItem(QStringLiteral("Crew \u2603")));
    frm.cmdSales_Click(frmSales::kLoadGrid);
    EXPECT_EQ(frm.fgSales.Rows(), 1);
    EXPECT_EQ(frm.lblTotal[0].caption, "$0.00");
}
