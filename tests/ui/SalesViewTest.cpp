#include "views/SalesView.h"
#include "FakePlatform.h"
#include "Screenshot.h"
#include "TestDataRoot.h"
#include "UiEvents.h"
#include "invoicing/AssociateJournal.h"
#include "printing/frmSales.h"
#include "setup/PointOfServiceNames.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"
#include "store/LocaleText.h"
#include "store/Money.h"

#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using ostrel::test::FakePlatform;
using ostrel::test::saveShot;
using ostrel::test::TestDataRoot;

namespace {

struct SalesViewTest : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmSales& frm = session.AddScreen(ScreenId::frmSales, std::make_unique<frmSales>(session));
    std::unique_ptr<SalesView> view;

    void SetUp() override {
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        fake.clock.set(QDate(2026, 11, 22), QTime(9, 0));
        session.settings.program.optBusinessType0 = false;
        PointOfServiceNames names;
        SaveAssociates(t.disk(), {"Crew One", "Crew Two"}, names);
        session.LoadServiceAreas();
        const char* const people[] = {"Ann Lee", "Bob Stone", "Carla Diaz", "Dev Patel", "Eve Moss"};
        for (int i = 0; i < 5; ++i) {
            AssociateJournalRecord r;
            r.Transaction = people[i];
            r.Account = QString("2026%1").arg(i + 1, 4, 10, QChar('0'));
            r.JournalDate = QDate(2026, 11, 3 + 4 * i);
            r.Associate = i % 2 ? "Crew Two" : "Crew One";
            r.SubTotal = Money::fromTenThousandths(1000000 + 125000 * i);
            r.Tax = Money::fromTenThousandths(40000 + 5000 * i);
            r.Gross = r.SubTotal + r.Tax;
            AddJournalRecord(t.disk(), r);
        }
        view = std::make_unique<SalesView>(session, frm);
        session.ShowScreen(ScreenId::frmSales);
        Binder::syncAll();
        view->resize(1050, 620);
        test::settle();
    }

    template <typename W> W* find(const QString& name) {
        W* w = view->findChild<W*>(name);
        EXPECT_NE(w, nullptr) << name.toStdString();
        return w;
    }
};

} // namespace

TEST_F(SalesViewTest, EveryControlHasItsWidgetAndTheMonthIsLoaded) {
    EXPECT_TRUE(view->binder().unboundControls().isEmpty()) << view->binder().unboundControls().join(", ").toStdString();
    EXPECT_EQ(view->windowTitle(), "Associate Sales Report");
    const char* const income[] = {"&L M", "M&TD", "&YTD", "&Eternity"};
    const char* const sales[] = {"&Menu", "&Load Grid", "&Delete Records", "&Print Report"};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(find<QPushButton>(QString("cmdIncome(%1)").arg(i))->text(), income[i]);
        EXPECT_EQ(find<QPushButton>(QString("cmdSales(%1)").arg(i))->text(), sales[i]);
    }
    EXPECT_EQ(find<QDateEdit>("DTPicker1(0)")->date(), QDate(2026, 11, 1));
    EXPECT_EQ(find<QDateEdit>("DTPicker1(1)")->date(), QDate(2026, 11, 22));
    EXPECT_EQ(find<QLabel>("Label1(6)")->text(), "Select Sales Associate");
    EXPECT_EQ(find<QComboBox>("cboAssociates")->accessibleName(), "Select Sales Associate");
    EXPECT_EQ(find<QComboBox>("cboAssociates")->count(), 2);
    EXPECT_EQ(find<QTableView>("fgSales")->model()->rowCount(), 5);
    EXPECT_EQ(find<QLabel>("lblTotal(0)")->text(), "$625.00");
    saveShot(*view, "sales-month");
}

TEST_F(SalesViewTest, PickingTheSecondAssociateAndLoadingShowsTheirSales) {
    // As a person picks the entry from the list.
    auto* combo = find<QComboBox>("cboAssociates");
    combo->setCurrentIndex(1);
    Q_EMIT combo->activated(1);
    test::settle();
    find<QPushButton>("cmdSales(1)")->click();
    test::settle();
    auto* grid = find<QTableView>("fgSales");
    EXPECT_EQ(grid->model()->rowCount(), 2);
    EXPECT_EQ(grid->model()->index(0, 0).data().toString(), "Bob Stone");
    EXPECT_EQ(find<QLabel>("lblTotal(3)")->text(), "$260.00");
    saveShot(*view, "sales-crew-two");
}

TEST_F(SalesViewTest, ShopRepairStyleHidesTheAssociateChoice) {
    session.settings.program.optBusinessType0 = true;
    session.ShowScreen(ScreenId::frmSales);
    Binder::syncAll();
    test::settle();
    EXPECT_FALSE(find<QComboBox>("cboAssociates")->isVisible());
    EXPECT_FALSE(find<QLabel>("Label1(6)")->isVisible());
}

TEST_F(SalesViewTest, ABigJournalShowsItsFirstAndLastSalesAndTheirTotals) {
    constexpr int kSales = 50000;
    QByteArray bytes;
    qint64 subTotal = 0;
    qint64 tax = 0;
    for (int i = 0; i < kSales; ++i) {
        AssociateJournalRecord r;
        r.Transaction = QString("Customer %1").arg(i);
        r.Account = QString::number(30000000 + i);
        r.JournalDate = QDate(2020, 1, 1).addDays(i % 2400);
        r.Associate = i % 2 ? "Crew Two" : "Crew One";
        r.SubTotal = Money::fromTenThousandths(100000 + 37 * i);
        r.Tax = Money::fromTenThousandths(4000 + i % 13);
        r.Gross = r.SubTotal + r.Tax;
        subTotal += r.SubTotal.tenThousandths();
        tax += r.Tax.tenThousandths();
        bytes += r.toRecord().bytes();
    }
    t.writeBytes("/AssociateJournal.txt", bytes);
    find<QPushButton>("cmdIncome(3)")->click();
    test::settle();

    auto* grid = find<QTableView>("fgSales");
    QAbstractItemModel* m = grid->model();
    ASSERT_EQ(m->rowCount(), kSales);
    EXPECT_EQ(m->index(0, frmSales::kTransaction).data().toString(), "Customer 0");
    EXPECT_EQ(m->index(0, frmSales::kDate).data().toString(), "1/1/2020");
    EXPECT_EQ(m->index(0, frmSales::kAccount).data().toString(), "30000000");
    EXPECT_EQ(m->index(0, frmSales::kSubTotal).data().toString(), "$10.00");
    EXPECT_EQ(grid->rowAt(0), 0);

    // Down to the end, as a person drags the scroll bar there.
    grid->verticalScrollBar()->setValue(grid->verticalScrollBar()->maximum());
    test::settle();
    const int last = kSales - 1;
    EXPECT_GE(grid->rowViewportPosition(last), 0);
    EXPECT_LE(grid->rowViewportPosition(last) + grid->rowHeight(last), grid->viewport()->height());
    EXPECT_EQ(m->index(last, frmSales::kTransaction).data().toString(), "Customer 49999");
    EXPECT_EQ(m->index(last, frmSales::kDate).data().toString(), QDate(2020, 1, 1).addDays(last % 2400).toString("M/d/yyyy"));
    EXPECT_EQ(m->index(last, frmSales::kNet).data().toString(),
              FormatMoney(Money::fromTenThousandths(100000 + 37 * last + 4000 + last % 13)));
    EXPECT_EQ(frm.fgSales.topRow, grid->verticalScrollBar()->value() + 1);

    EXPECT_EQ(find<QLabel>("lblTotal(0)")->text(), FormatMoney(Money::fromTenThousandths(subTotal)));
    EXPECT_EQ(find<QLabel>("lblTotal(2)")->text(), FormatMoney(Money::fromTenThousandths(tax)));
    EXPECT_EQ(find<QLabel>("lblTotal(3)")->text(), FormatMoney(Money::fromTenThousandths(subTotal + tax)));
    // Showing and scrolling only read the grid: its rows are still made on demand.
    EXPECT_TRUE(frm.fgSales.HasRowSource());
    saveShot(*view, "sales-big-journal-end");
}
