#include "views/ReprintView.h"
#include "FakePlatform.h"
#include "Screenshot.h"
#include "TestDataRoot.h"
#include "UiEvents.h"
#include "invoicing/InvoiceImage.h"
#include "invoicing/frmReprint.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <QAction>
#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTextEdit>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using ostrel::test::FakePlatform;
using ostrel::test::saveShot;
using ostrel::test::TestDataRoot;

namespace {

struct ReprintViewTest : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmReprint& frm = session.AddScreen(ScreenId::frmReprint, std::make_unique<frmReprint>(session));
    std::unique_ptr<ReprintView> view;

    void SetUp() override {
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        fake.clock.set(QDate(2026, 11, 22), QTime(9, 0));
        t.makeDir("/CompletedInvoices");
        const char* const names[] = {"Ann Lee", "Bob Stone", "Carla Diaz", "Dev Patel"};
        const char* const dates[] = {"11/20/2026", "2/3/2026", "10/2/2026", "12/31/2025"};
        for (int i = 0; i < 4; ++i) {
            PostedInvoice in;
            in.invoiceNo = QString("2026000%1").arg(i + 1);
            in.accountNo = QString("10%1").arg(i + 101);
            in.customer = {names[i], "12 Elm St", "Suite 4", "Springfield", "IL", "62701"};
            in.dateText = dates[i];
            in.reference = "Spring service";
            in.attention = "Front desk";
            in.lines = {{"1", "Furnace Inspection", dates[i], "$55.00", "$55.00", "False"},
                        {"2", "Air Filter 16x25", "", "$16.96", "$33.92", "True"},
                        {"1.5 Hrs", "Labor", "", "$85.00", "$127.50", "False"}};
            in.total = "$216.42";
            in.tax = "$2.12";
            in.grandTotal = "$218.54";
            WriteInvoiceImage(t.disk(), MakeInvoiceImage(in));
        }
        view = std::make_unique<ReprintView>(session, frm);
        session.ShowScreen(ScreenId::frmReprint);
        Binder::syncAll();
        view->resize(1100, 700);
        test::settle();
    }

    template <typename W> W* find(const QString& name) {
        W* w = view->findChild<W*>(name);
        EXPECT_NE(w, nullptr) << name.toStdString();
        return w;
    }
    void clickRow(int tableRow) {
        auto* g = find<QTableWidget>("fgReceivables");
        QTableWidgetItem* cell = g->item(tableRow, 0);
        ASSERT_NE(cell, nullptr);
        test::click(g->viewport(), g->visualItemRect(cell).center());
        test::settle();
    }
};

} // namespace

TEST_F(ReprintViewTest, EveryControlHasItsWidgetWithItsCaption) {
    EXPECT_TRUE(view->binder().unboundControls().isEmpty()) << view->binder().unboundControls().join(", ").toStdString();
    EXPECT_EQ(view->windowTitle(), "Completed Invoices Details and Reprint Routine");
    EXPECT_TRUE(view->isVisible());
    EXPECT_EQ(find<QPushButton>("cmdHide")->text(), "Re-&Select");
    EXPECT_EQ(find<QPushButton>("cmdPrint")->text(), "&RePrint");
    EXPECT_EQ(find<QPushButton>("cmdMemo")->text(), "Clear&M&emo");
    EXPECT_EQ(find<QPushButton>("cmdExit")->text(), "&Menu");
    EXPECT_EQ(find<QPushButton>("cmdReport")->text(), "Print&Report");
    EXPECT_EQ(find<QPushButton>("cmdKill")->text(), "Delete");
    EXPECT_EQ(find<QAction>("mnuSort")->text(), "Toggle Sort Column");
    EXPECT_EQ(find<QRadioButton>("optSort(0)")->text(), "Asending Order");
    EXPECT_EQ(find<QRadioButton>("optSort(1)")->text(), "Desending Order");
    EXPECT_EQ(find<QDateEdit>("DTPicker1")->date(), QDate(2026, 11, 23));
    EXPECT_EQ(find<QDateEdit>("DTPicker1")->accessibleName(), "Invoices prior to this date will be deleted");
    auto* list = find<QTableWidget>("fgReceivables");
    EXPECT_EQ(list->rowCount(), 4);
    EXPECT_TRUE(list->isColumnHidden(frmReprint::kSortKey));
    EXPECT_EQ(list->horizontalHeaderItem(0)->text(), "Invoice Number");
    EXPECT_FALSE(find<QGroupBox>("fraInvoice")->isVisible());
    EXPECT_FALSE(find<QGroupBox>("fraSort")->isVisible());
    saveShot(*view, "reprint-list");
}

TEST_F(ReprintViewTest, AClickedRowOpensTheInvoiceOverTheList) {
    clickRow(1);
    auto* frame = find<QGroupBox>("fraInvoice");
    EXPECT_TRUE(frame->isVisible());
    EXPECT_EQ(frame->title(), "Details for Invoice 20260002");
    EXPECT_EQ(find<QLabel>("lblBillTo(0)")->text(), "Bob Stone");
    EXPECT_EQ(find<QLabel>("Label1(19)")->text(), "2/3/2026");
    EXPECT_EQ(find<QLabel>("Label1(1)")->text(), "Sales Tax");
    EXPECT_EQ(find<QLabel>("lblInvoice(2)")->text(), "$218.54");
    EXPECT_EQ(find<QLabel>("lblInvoice(2)")->accessibleDescription(), "Invoice Grand Total");
    EXPECT_EQ(find<QLineEdit>("txtAttn")->text(), "Front desk");
    EXPECT_EQ(find<QTableWidget>("fgItems")->rowCount(), 3);
    EXPECT_FALSE(find<QAction>("mnuSort")->isEnabled());
    find<QTextEdit>("txtMemo")->setPlainText("Thank you for your business");
    test::settle();
    saveShot(*view, "reprint-detail");

    find<QPushButton>("cmdHide")->click();
    test::settle();
    EXPECT_FALSE(frame->isVisible());
    EXPECT_TRUE(find<QAction>("mnuSort")->isEnabled());
}

TEST_F(ReprintViewTest, TheSortFrameComesFromTheMenuAndSortsByDate) {
    find<QAction>("mnuSort")->trigger();
    test::settle();
    EXPECT_TRUE(find<QGroupBox>("fraSort")->isVisible());
    saveShot(*view, "reprint-sort");
    find<QRadioButton>("optCol(1)")->click();
    find<QRadioButton>("optSort(1)")->click();
    find<QPushButton>("cmdMode")->click();
    test::settle();
    EXPECT_FALSE(find<QGroupBox>("fraSort")->isVisible());
    auto* list = find<QTableWidget>("fgReceivables");
    EXPECT_EQ(list->item(0, 0)->text(), "20260001");
    EXPECT_EQ(list->item(3, 0)->text(), "20260004");
}
