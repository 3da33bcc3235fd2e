#include "views/DisplayView.h"
#include "Screenshot.h"
#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "UiEvents.h"
#include "scheduling/DayScheduleStore.h"
#include "scheduling/frmDisplay.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"
#include "store/TextStatements.h"

#include <QDateEdit>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using namespace ostrel::test;

namespace {

struct DisplayViewTest : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmDisplay& frm = session.AddScreen(ScreenId::frmDisplay, std::make_unique<frmDisplay>(session));
    std::unique_ptr<DisplayView> view;

    void SetUp() override {
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        session.endProcess = [] {};
        fake.clock.set(QDate(2026, 11, 23), QTime(9, 0));
        TextWriter w;
        for (const char* n : {"Front Desk", "Service Van", "Bay 3", "Bay 4", "Parts Counter"})
            w.writeString(QString::fromLatin1(n));
        t.writeBytes("/ServiceAreas.txt", w.bytes());
        const int day = QDate(2026, 11, 23).dayOfYear();
        DaySchedule a;
        a.setSlot(1, "Ann Archer");
        a.setSlot(2, "Furnace Tune-up");
        a.setSlot(3, "Furnace Tune-up");
        a.setSlot(9, "Bob Baker - Thermostat Check");
        writeDaySchedule(t.disk(), 2026, 1, day, a);
        DaySchedule b;
        for (int r = 1; r <= 48; ++r)
            b.setSlot(r, "Vacation");
        writeDaySchedule(t.disk(), 2026, 3, day, b);
        DaySchedule next;
        next.setSlot(5, "Tuesday Job");
        writeDaySchedule(t.disk(), 2026, 1, day + 1, next);
        view = std::make_unique<DisplayView>(session, frm);
        frm.Show();
        Binder::syncAll();
        view->resize(1240, 780);
        settle();
    }

    template <typename W> W* find(const QString& name) {
        W* w = view->findChild<W*>(name);
        EXPECT_NE(w, nullptr) << name.toStdString();
        return w;
    }
};

} // namespace

TEST_F(DisplayViewTest, FourGridsShowTheDaySideBySideUnderTheirNames) {
    EXPECT_TRUE(view->binder().unboundControls().isEmpty()) << view->binder().unboundControls().join(", ").toStdString();
    EXPECT_EQ("Work Schedules", view->windowTitle());
    EXPECT_EQ("Front Desk", find<QLabel>("lblTeam(1)")->text());
    EXPECT_EQ("Bay 4", find<QLabel>("lblTeam(4)")->text());
    auto* first = find<QTableWidget>("fgHours(1)");
    EXPECT_EQ(48, first->rowCount());
    EXPECT_EQ("6:00", first->verticalHeaderItem(0)->text());
    EXPECT_EQ("Ann Archer", first->item(0, 0)->text());
    EXPECT_EQ("Bob Baker - Thermostat Check", first->item(8, 0)->text());
    EXPECT_EQ("Vacation", find<QTableWidget>("fgHours(3)")->item(10, 0)->text());
    EXPECT_EQ(QDate(2026, 11, 23), find<QDateEdit>("DTPicker1")->date());
    EXPECT_EQ(2, find<QListWidget>("lstTeams")->count());
    EXPECT_EQ("Return to &Menu", find<QPushButton>("cmdMenu")->text());
    for (int k = 1; k <= 4; ++k)
        EXPECT_FALSE(find<QTableWidget>(QStringLiteral("fgHours(%1)").arg(k))->accessibleName().isEmpty());
    saveShot(*view, "display-first-group");
}

TEST_F(DisplayViewTest, TheArrowStepsToTheNextDayAndTheSecondGroupShowsOneName) {
    auto* step = find<QSpinBox>("UpDown1");
    step->stepUp();
    settle();
    EXPECT_EQ(QDate(2026, 11, 24), find<QDateEdit>("DTPicker1")->date());
    EXPECT_EQ("Tuesday Job", find<QTableWidget>("fgHours(1)")->item(4, 0)->text());
    EXPECT_EQ(0, step->value());

    auto* teams = find<QListWidget>("lstTeams");
    click(teams->viewport(), teams->visualItemRect(teams->item(1)).center());
    settle();
    EXPECT_EQ("Parts Counter", find<QLabel>("lblTeam(1)")->text());
    EXPECT_EQ("", find<QLabel>("lblTeam(2)")->text());
    saveShot(*view, "display-second-group");
}
