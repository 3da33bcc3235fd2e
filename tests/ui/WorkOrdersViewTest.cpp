#include "views/WorkOrdersView.h"
#include "FakePlatform.h"
#include "Screenshot.h"
#include "TestDataRoot.h"
#include "UiEvents.h"
#include "scheduling/AppointmentSlip.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"
#include "workorders/frmTerms.h"
#include "workorders/frmWorkOrders.h"

#include <QDateEdit>
#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

namespace {

struct WorkOrdersViewTest : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmTerms& terms = session.AddScreen(ScreenId::frmTerms, std::make_unique<frmTerms>(session));
    frmWorkOrders& frm = session.AddScreen(
        ScreenId::frmWorkOrders,
        std::make_unique<frmWorkOrders>(session, terms, session.catalogueLists.frmWorkOrders.fgAddServices));
    std::unique_ptr<WorkOrdersView> view;

    void SetUp() override {
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        for (const char* d : {"/Appointments", "/Services", "/SoldItems", "/2026"})
            t.makeDir(d);
        t.writeBytes("/ServiceAreas.txt", "\"North Crew\"\r\n\"South Crew\"\r\n");
        session.LoadServiceAreas();
        terms.Load();
        session.settings.program.ckPrompts = 0;
        const QStringList customers[] = {{"2175550199", "Mr. Dale Hensley"}, {"2175550123", "Mrs. Ana Ortiz"},
                                         {"2175550777", "Dr. Lee Park"}};
        for (int i = 0; i < 3; ++i) {
            AppointmentSlip s;
            s.Status = slipstatus::Scheduled;
            s.SlipDate = QDate(2026, 11, 23).addDays(i);
            s.SlipPointOfService = static_cast<qint16>(i % 2 + 1);
            s.SlipName = SlipName(s.SlipPointOfService, QStringLiteral("326-%1").arg(i + 1));
            s.Slots = 6;
            s.SlipStartRow = 13;
            s.Customer = {customers[i][0], customers[i][1], "88 Orchard Ln", "", "Chatham", "IL", "62629", ""};
            s.SlipComment = "Side gate";
            WriteSlip(t.disk(), s);
            WriteServicesFile(t.disk(), s.SlipName,
                              {{"Tune Up", Money::fromWhole(45), 4}, {"Filter Change", Money::fromDouble(12.5), 2}});
            WriteSoldItemsFile(t.disk(), s.SlipName, {{"2", "Furnace filter 16x25", "12.50"}});
        }
        Grid& add = frm.fgAddServices;
        add.SetRows(3);
        add.SetTextMatrix(1, 0, "Duct Cleaning");
        add.SetTextMatrix(1, 1, "2:30");
        add.SetTextMatrix(1, 2, "$120.50");
        add.SetTextMatrix(2, 0, "Attic Survey");
        add.SetTextMatrix(2, 1, "1:00");
        add.SetTextMatrix(2, 2, "$80.00");
        view = std::make_unique<WorkOrdersView>(session, frm);
        view->resize(1280, 860);
        frm.Show();
        ostrel::test::settle();
    }
    template <typename W> W* find(const QString& name) { return view->findChild<W*>(name); }
};

} // namespace

TEST_F(WorkOrdersViewTest, EveryControlHasItsWidgetAndTheButtonsTheirCaptions) {
    EXPECT_TRUE(view->binder().unboundControls().isEmpty()) << view->binder().unboundControls().join(", ").toStdString();
    EXPECT_EQ(view->windowTitle(), "Work Orders");
    for (int i = 0; i <= 14; ++i) {
        auto* b = find<QPushButton>(QStringLiteral("cmdWorkOrders(%1)").arg(i));
        ASSERT_NE(b, nullptr) << i;
        EXPECT_EQ(b->text(), frm.cmdWorkOrders[i].caption) << i;
        EXPECT_FALSE(b->accessibleName().isEmpty()) << i;
    }
    EXPECT_EQ(find<QRadioButton>("optFindBy(1)")->text(), "by Point of Service Only");
    EXPECT_EQ(find<QListWidget>("lstAssignments")->count(), 2);
}

TEST_F(WorkOrdersViewTest, TheOverviewComesUpAndAnAppointmentOpensFromTheList) {
    auto* overview = find<QGroupBox>("fraOverview");
    EXPECT_TRUE(overview->isVisible());
    EXPECT_EQ(find<QTableWidget>("fgOverview")->rowCount(), 3);
    ostrel::test::saveShot(*view, "frmWorkOrders-overview");

    auto* list = find<QListWidget>("lstWorkorders");
    ASSERT_EQ(list->count(), 1);
    EXPECT_EQ(list->item(0)->text(), "1 - 326-1");
    list->setCurrentRow(0);
    ostrel::test::settle();
    auto* services = find<QTableWidget>("fgServices");
    ASSERT_EQ(services->rowCount(), 2);
    EXPECT_EQ(services->item(0, 0)->text(), "Tune Up");
    EXPECT_EQ(services->item(1, 2)->text(), "$12.50");
    EXPECT_TRUE(find<QPushButton>("cmdWorkOrders(9)")->isEnabled());

    find<QPushButton>("cmdWorkOrders(14)")->click();
    find<QPushButton>("cmdWorkOrders(9)")->click();
    ostrel::test::settle();
    EXPECT_TRUE(find<QGroupBox>("fraTerms")->isVisible());
    EXPECT_FALSE(overview->isVisible());
    ostrel::test::saveShot(*view, "frmWorkOrders-print");
}

TEST_F(WorkOrdersViewTest, ARightClickAddsTheServiceTheLeftClickChose) {
    auto* list = find<QListWidget>("lstWorkorders");
    list->setCurrentRow(0);
    ostrel::test::settle();
    find<QPushButton>("cmdWorkOrders(14)")->click();
    find<QPushButton>("cmdWorkOrders(6)")->click();
    ostrel::test::settle();
    auto* add = find<QTableWidget>("fgAddServices");
    ASSERT_TRUE(add->isVisible());
    const QPoint at = add->visualItemRect(add->item(0, 0)).center();
    ostrel::test::click(add->viewport(), at);
    ostrel::test::settle();
    Q_EMIT add->customContextMenuRequested(at);
    ostrel::test::settle();
    auto* services = find<QTableWidget>("fgServices");
    ASSERT_EQ(services->rowCount(), 3);
    EXPECT_EQ(services->item(2, 0)->text(), "Duct Cleaning");
    EXPECT_EQ(services->item(2, 3)->text(), "10");
    EXPECT_EQ(find<QTableWidget>("fgItemsAdded")->rowCount(), 1);
    ostrel::test::saveShot(*view, "frmWorkOrders-add-services");
    find<QPushButton>("cmdWorkOrders(4)")->click();
    ostrel::test::settle();
    EXPECT_TRUE(find<QPushButton>("cmdWorkOrders(3)")->isEnabled());
}

TEST_F(WorkOrdersViewTest, TheAppointmentsFoundAreBoxesThatSelectAndLoad) {
    auto* list = find<QListWidget>("lstWorkorders");
    ASSERT_EQ(list->count(), 1);
    EXPECT_TRUE(list->item(0)->flags() & Qt::ItemIsUserCheckable);
    EXPECT_EQ(list->item(0)->checkState(), Qt::Unchecked);
    // A click on the entry itself selects it: its box is ticked and its services load.
    ostrel::test::click(list->viewport(), list->visualItemRect(list->item(0)).center());
    ostrel::test::settle();
    EXPECT_TRUE(frm.EntrySelected(0));
    EXPECT_EQ(list->item(0)->checkState(), Qt::Checked);
    EXPECT_EQ(find<QTableWidget>("fgServices")->rowCount(), 2);
    ostrel::test::saveShot(*view, "frmWorkOrders-ticked");
    // Cleared and ticked again by its box.
    list->item(0)->setCheckState(Qt::Unchecked);
    ostrel::test::settle();
    EXPECT_FALSE(frm.EntrySelected(0));
    EXPECT_EQ(find<QTableWidget>("fgServices")->rowCount(), 0);
    list->item(0)->setCheckState(Qt::Checked);
    ostrel::test::settle();
    EXPECT_TRUE(frm.EntrySelected(0));
    EXPECT_EQ(find<QTableWidget>("fgServices")->rowCount(), 2);
}

TEST_F(WorkOrdersViewTest, ThePickerShowsTheScreensDateAndAChosenDateReachesIt) {
    auto* picker = find<QDateEdit>("DTPicker1");
    EXPECT_EQ(picker->date(), frm.DTPicker1.value);
    picker->setDate(QDate(2026, 11, 25));
    ostrel::test::settle();
    EXPECT_EQ(frm.DTPicker1.value, QDate(2026, 11, 25));
}
