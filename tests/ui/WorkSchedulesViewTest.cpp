#include "views/WorkSchedulesView.h"
#include "Screenshot.h"
#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "UiEvents.h"
#include "platform/QtColour.h"
#include "scheduling/AppointmentSlip.h"
#include "scheduling/DayScheduleStore.h"
#include "scheduling/frmWorkSchedules.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"
#include "store/TextStatements.h"

#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QTableWidget>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using namespace ostrel::test;

namespace {

struct WorkSchedulesViewTest : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmWorkSchedules& frm = session.AddScreen(ScreenId::frmWorkSchedules, std::make_unique<frmWorkSchedules>(session));
    std::unique_ptr<WorkSchedulesView> view;
    QStringList dialed;
    const QDate monday{2026, 11, 23};

    void SetUp() override {
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        session.endProcess = [] {};
        session.dial = [this](const QString& a, const QString& b) { dialed << a << b; };
        fake.clock.set(monday, QTime(9, 0));
        TextWriter w;
        for (const char* n : {"Front Desk", "Service Van", "Bay 3"})
            w.writeString(QString::fromLatin1(n));
        t.writeBytes("/ServiceAreas.txt", w.bytes());
        session.LoadServiceAreas();
        for (const char* folder : {"/Appointments", "/Services", "/SoldItems"})
            t.makeDir(QString::fromLatin1(folder));
        addSlip(2, "327-1", 1, 6, "Ann Archer", {{"Furnace Tune-up", Money::fromWhole(89), 4},
                                                  {"Filter Change", Money::fromWhole(20), 2}});
        addSlip(2, "327-2", 9, 4, "Bob Baker", {{"Duct Cleaning", Money::fromWhole(250), 4}});
        addSlip(1, "327-3", 5, 4, "Cy Carter", {{"Boiler Service", Money::fromWhole(120), 4}}, monday.addDays(2));
        DaySchedule d;
        for (int r = 1; r <= 6; ++r)
            d.setSlot(r, "Ann Archer");
        for (int r = 9; r <= 12; ++r)
            d.setSlot(r, "Bob Baker");
        writeDaySchedule(t.disk(), 2026, 2, monday.dayOfYear(), d);
        view = std::make_unique<WorkSchedulesView>(session, frm);
        frm.Show();
        Binder::syncAll();
        view->resize(1120, 780);
        settle();
    }

    void addSlip(int point, const QString& id, int start, int slots, const QString& name,
                 const std::vector<SlipService>& services, QDate date = QDate()) {
        AppointmentSlip s;
        s.Status = slipstatus::Scheduled;
        s.SlipDate = date.isValid() ? date : monday;
        s.SlipName = SlipName(point, id);
        s.SlipPointOfService = static_cast<qint16>(point);
        s.Slots = static_cast<qint16>(slots);
        s.SlipStartRow = static_cast<qint16>(start);
        s.Customer = {"A-" + id, name, "12 Elm St", "", "Springfield", "IL", "62701", "217-555-0100"};
        WriteSlip(t.disk(), s);
        WriteServicesFile(t.disk(), s.SlipName, services);
    }

    template <typename W> W* find(const QString& name) {
        W* w = view->findChild<W*>(name);
        EXPECT_NE(w, nullptr) << name.toStdString();
        return w;
    }
};

} // namespace

TEST_F(WorkSchedulesViewTest, OverviewComesUpWithTheWeeksAppointmentsAndEveryControlBound) {
    EXPECT_TRUE(view->binder().unboundControls().isEmpty()) << view->binder().unboundControls().join(", ").toStdString();
    EXPECT_EQ("Print Work Schedules", view->windowTitle());
    EXPECT_EQ("Scheduled Appointments", find<QGroupBox>("fraOverview")->title());
    auto* overview = find<QTableWidget>("fgOverview");
    EXPECT_EQ(3, overview->rowCount());
    EXPECT_EQ("Select Work Area", find<QLabel>("Label1(0)")->text());
    EXPECT_EQ("Select Work Area", find<QListWidget>("lstAssociates")->accessibleName());
    EXPECT_FALSE(find<QPushButton>("cmdWorkSchedules(1)")->isEnabled());
    EXPECT_FALSE(find<QListWidget>("lstWorkorders")->isVisibleTo(view.get()));
    saveShot(*view, "work-schedules-overview");
}

TEST_F(WorkSchedulesViewTest, ClickingAnOverviewRowLoadsThePaintedDayAndTheGreenMark) {
    auto* overview = find<QTableWidget>("fgOverview");
    int annRow = -1;
    for (int r = 0; r < overview->rowCount(); ++r)
        if (overview->item(r, 2)->text() == "Ann Archer") annRow = r;
    ASSERT_GE(annRow, 0);
    click(overview->viewport(), overview->visualItemRect(overview->item(annRow, 0)).center());
    settle();
    auto* day = find<QTableWidget>("fgSchedule");
    EXPECT_TRUE(day->isVisibleTo(view.get()));
    EXPECT_FALSE(find<QGroupBox>("fraOverview")->isVisibleTo(view.get()));
    EXPECT_EQ("Ann Archer", day->item(0, 0)->text());
    EXPECT_EQ("Furnace Tune-up", day->item(0, 1)->text());
    EXPECT_EQ("Tel.  217-555-0100", day->item(1, 0)->text());
    EXPECT_EQ("Bob Baker", day->item(8, 0)->text());
    EXPECT_EQ("Appiontments Found", find<QLabel>("lblFound")->text());
    EXPECT_TRUE(find<QLabel>("lblFound")->isVisibleTo(view.get()));
    EXPECT_TRUE(find<QLabel>("lblFound")->styleSheet().contains(toQColor(frmWorkSchedules::kFoundGreen).name()));
    EXPECT_TRUE(find<QPushButton>("cmdWorkSchedules(2)")->isEnabled());
    saveShot(*view, "work-schedules-day");

    // A right click on the telephone row opens the dialer with that row.
    const QPoint at = day->visualItemRect(day->item(1, 0)).center();
    QMouseEvent press(QEvent::MouseButtonPress, at, day->viewport()->mapToGlobal(at), Qt::RightButton,
                      Qt::RightButton, Qt::NoModifier);
    QMouseEvent release(QEvent::MouseButtonRelease, at, day->viewport()->mapToGlobal(at), Qt::RightButton,
                        Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(day->viewport(), &press);
    QCoreApplication::sendEvent(day->viewport(), &release);
    settle();
    EXPECT_EQ(QStringList({"   ------Scheduled------", "6:15"}), dialed);
}
