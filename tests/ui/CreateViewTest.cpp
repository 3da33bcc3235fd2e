#include "views/CreateView.h"
#include "../core/frmCreateTestFixture.h"
#include "Screenshot.h"
#include "UiEvents.h"
#include "app/Application.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>

using namespace ostrel;
using namespace ostrel::ui;
using ostrel::test::saveShot;

namespace {

struct CreateViews : ostrel::test::CreateScreenFixture {
    CreateViews() { InitResources(); }
    CreateView view{session, frm};

    template <typename W> W* find(const QString& name) {
        W* w = view.findChild<W*>(name);
        EXPECT_NE(w, nullptr) << name.toStdString();
        return w;
    }
    QPushButton* cmd(int i) { return find<QPushButton>(QStringLiteral("cmdService(%1)").arg(i)); }
    void press(int i) {
        QPushButton* b = cmd(i);
        ASSERT_TRUE(b->isVisible() && b->isEnabled()) << i;
        test::click(b);
        test::settle();
    }
    bool frameShown(const char* name) { return find<QGroupBox>(QLatin1String(name))->isVisible(); }
    void show() {
        frm.Show();
        Binder::syncAll();
        test::settle();
    }
    void tick(const QString& service) {
        auto* list = find<QListWidget>("lstServices");
        const auto found = list->findItems(service, Qt::MatchExactly);
        ASSERT_FALSE(found.isEmpty());
        found.first()->setCheckState(Qt::Checked);
        test::settle();
    }
    void clickDayRow(int row) {
        auto* grid = find<QTableWidget>("fgDaySchedule");
        test::click(grid->viewport(), grid->visualItemRect(grid->item(row - 1, 0)).center());
        test::settle();
    }
};

} // namespace

TEST_F(CreateViews, EveryControlHasItsWidgetAndAnAccessibleName) {
    EXPECT_TRUE(view.binder().unboundControls().isEmpty())
        << view.binder().unboundControls().join(", ").toStdString();
    show();
    EXPECT_TRUE(view.isVisible());
    EXPECT_EQ(view.windowTitle(), "Appointment Creation");
    for (const auto& entry : frm.controls.entries()) {
        const Control& c = AsControl(entry);
        QObject* o = view.binder().objectFor(c);
        ASSERT_NE(o, nullptr) << c.name.toStdString();
        if (auto* w = qobject_cast<QWidget*>(o)) {
            // A label showing data may be empty until a customer is shown; every other control is named.
            if (qobject_cast<QLabel*>(w) && c.name.startsWith(u"lbl") && !c.name.startsWith(u"lblInstructions"))
                continue;
            EXPECT_FALSE(w->accessibleName().isEmpty()) << c.name.toStdString();
        } else if (auto* a = qobject_cast<QAction*>(o)) {
            EXPECT_FALSE(a->text().isEmpty()) << c.name.toStdString();
        }
    }
    EXPECT_EQ(cmd(2)->text(), "Schedule Appointment    Save Day Schedule");
    EXPECT_EQ(find<QPushButton>("cmdDay(2)")->toolTip(), "- 1 Week");
    EXPECT_EQ(find<QCheckBox>("ckPrintInvoice")->text(), "Print Invoice AFTER Saving Day Schdule");
    EXPECT_EQ(find<QAction>("mnuToggle")->text(), "Toggle Grids");
    EXPECT_EQ(find<QAction>("mnuAddto")->text(), "Add To Appointment");
    EXPECT_EQ(find<QLabel>("lblCustomer(1)")->text(), "Ann Archer");
    EXPECT_EQ(find<QLabel>("lblCustomer(1)")->accessibleName(), "Ann Archer");
    EXPECT_FALSE(find<QListWidget>("lstWorkorders")->isVisible());
    EXPECT_FALSE(find<QComboBox>("cboTime")->isVisible());
}

TEST_F(CreateViews, TheWholeDayShowsWithoutAScrollBarOnAScreenOf1280By1024) {
    show();
    tick("Tune Up");
    press(11);
    press(6);
    press(13);
    ASSERT_TRUE(frameShown("fraSchedule"));
    // Room for the window's own title bar and a task bar.
    EXPECT_LE(view.width(), 1280);
    EXPECT_LE(view.height(), 1024 - 60);
    EXPECT_LE(view.minimumSizeHint().height(), 1024 - 60);
    auto* grid = find<QTableWidget>("fgDaySchedule");
    EXPECT_EQ(grid->rowCount(), 48);
    EXPECT_FALSE(grid->verticalScrollBar()->isVisible());
    const QRect last = grid->visualItemRect(grid->item(47, 0));
    EXPECT_TRUE(grid->viewport()->rect().contains(last)) << last.bottom() << " " << grid->viewport()->height();
    EXPECT_EQ(grid->verticalHeaderItem(0)->text(), "6:00");
    EXPECT_EQ(grid->verticalHeaderItem(47)->text(), "6:45");
    saveShot(view, "create-view-day");
}

TEST_F(CreateViews, ABuildThroughTheWidgetsStepByStep) {
    show();
    saveShot(view, "create-view-1-shown");
    EXPECT_TRUE(frameShown("fraAccount"));
    EXPECT_FALSE(frameShown("fraServices"));
    EXPECT_FALSE(cmd(11)->isEnabled());

    tick("Tune Up");
    EXPECT_TRUE(frm.ServiceChecked(0));
    EXPECT_TRUE(cmd(11)->isEnabled());
    press(11);
    tick("Inspection");
    press(11);
    EXPECT_TRUE(frameShown("fraServices"));
    EXPECT_FALSE(find<QListWidget>("lstAssignments")->isEnabled());
    EXPECT_EQ(find<QTableWidget>("fgServices")->item(1, 0)->text(), "Inspection");
    EXPECT_EQ(find<QListWidget>("lstServices")->item(0)->checkState(), Qt::Unchecked);
    saveShot(view, "create-view-2-services");

    find<QAction>("mnuAddto")->trigger();
    test::settle();
    EXPECT_TRUE(frameShown("fraAddTo"));
    EXPECT_FALSE(frameShown("fraServices"));
    auto* comments = find<QPlainTextEdit>("txtComments");
    comments->setPlainText("Side door");
    test::settle();
    saveShot(view, "create-view-3-add-to");
    press(5);
    EXPECT_FALSE(frameShown("fraAddTo"));

    auto* categories = find<QListWidget>("lstCategories");
    test::click(categories->viewport(), categories->visualItemRect(categories->item(0)).center());
    test::settle();
    EXPECT_EQ(find<QComboBox>("cboItems")->count(), 2);
    auto* quantity = find<QLineEdit>("txtQuantity");
    test::typeText(quantity, "2");
    press(10);
    EXPECT_EQ(find<QLabel>("lblItemTotal")->text(), "$25.00");
    press(9);
    EXPECT_TRUE(frameShown("fraItems"));
    EXPECT_EQ(find<QTableWidget>("fgItems")->item(0, 1)->text(), "Filter");
    saveShot(view, "create-view-4-items");

    press(6);
    EXPECT_TRUE(frameShown("fraSummary"));
    EXPECT_EQ(find<QLabel>("lblTime")->text(), "1:15");
    EXPECT_EQ(find<QLabel>("lblCost")->text(), "$90.00");
    EXPECT_EQ(find<QPlainTextEdit>("txtServicesSummary")->toPlainText(), "Tune Up\nInspection\n");
    EXPECT_EQ(find<QDateEdit>("DTPicker1")->date(), kToday);
    saveShot(view, "create-view-5-summary");

    press(13);
    EXPECT_TRUE(frameShown("fraSchedule"));
    clickDayRow(48);
    EXPECT_BOX(fake.dialogs, "", "Not enough Time remaining this day for this assignment");
    clickDayRow(10);
    EXPECT_TRUE(frm.EventScheduled);
    EXPECT_TRUE(cmd(2)->isEnabled());
    auto* grid = find<QTableWidget>("fgDaySchedule");
    EXPECT_EQ(grid->item(9, 0)->text(), "Ann Archer");
    EXPECT_EQ(grid->item(13, 0)->text(), "Ann Archer Inspection");
    saveShot(view, "create-view-6-placed");

    press(2);
    EXPECT_FALSE(view.isVisible());
    EXPECT_TRUE(t.isFile("/Appointments/1 - 322-1.txt"));
    EXPECT_EQ(t.readBytes("/SoldItems/1 - 322-1.txt"), "2\r\nFilter\r\n$12.50\r\n");
    fake.dialogs.verify();
}

TEST_F(CreateViews, ARightClickOnAServiceRowRemovesIt) {
    show();
    tick("Tune Up");
    press(11);
    tick("Oil Change");
    press(11);
    auto* grid = find<QTableWidget>("fgServices");
    const QPoint at = grid->visualItemRect(grid->item(0, 0)).center();
    Q_EMIT grid->customContextMenuRequested(at);
    test::settle();
    EXPECT_EQ(grid->item(0, 0)->text(), "Oil Change");
    EXPECT_EQ(frm.Slots, 6);
}

TEST_F(CreateViews, TheMenusToggleTheFramesAndTheInstructions) {
    show();
    find<QAction>("mnuItems")->trigger();
    test::settle();
    EXPECT_TRUE(frameShown("fraItems"));
    EXPECT_FALSE(frameShown("fraAccount"));
    find<QAction>("mnuInstructions")->trigger();
    test::settle();
    EXPECT_TRUE(frameShown("fraInstructions"));
    saveShot(view, "create-view-instructions");
    find<QAction>("mnuCustomer")->trigger();
    test::settle();
    EXPECT_TRUE(frameShown("fraAccount"));
    EXPECT_FALSE(frameShown("fraItems"));
}

TEST_F(CreateViews, TheDayButtonsMoveThePicker) {
    show();
    find<QPushButton>("cmdDay(3)")->click();
    test::settle();
    EXPECT_EQ(frm.DTPicker1.value, kToday.addDays(7));
    EXPECT_EQ(find<QDateEdit>("DTPicker1")->date(), kToday.addDays(7));
    find<QPushButton>("cmdDay(2)")->click();
    test::settle();
    EXPECT_EQ(find<QDateEdit>("DTPicker1")->date(), kToday);
    EXPECT_EQ(find<QDateEdit>("DTPicker1")->minimumDate(), kToday);
}
