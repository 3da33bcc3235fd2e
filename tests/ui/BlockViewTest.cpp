#include "views/BlockView.h"
#include "FakePlatform.h"
#include "Screenshot.h"
#include "TestDataRoot.h"
#include "UiEvents.h"
#include "scheduling/DayScheduleStore.h"
#include "scheduling/frmBlock.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <QAction>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTableWidget>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using namespace ostrel::test;

namespace {

QByteArray reserved(const char* reason) {
    QByteArray out;
    for (int i = 0; i < 48; ++i)
        out += QByteArray("\"") + reason + "\"\r\n";
    return out;
}

struct BlockViewFixture : ::testing::Test {
    BlockViewFixture() {
        session.endProcess = [] {};
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        t.writeBytes("/ServiceAreas.txt", "\"North Crew\"\r\n\"South Crew\"\r\n");
        session.LoadServiceAreas();
    }

    template <typename W> W* find(const QString& name) {
        W* w = view.findChild<W*>(name);
        EXPECT_NE(w, nullptr) << name.toStdString();
        return w;
    }
    void open() {
        frm.Show();
        Binder::syncAll();
        settle();
    }
    void pickDay(const QDate& d) {
        auto* calendar = find<QCalendarWidget>("Calender");
        calendar->setSelectedDate(d);
        Q_EMIT calendar->clicked(d);
        settle();
    }
    QString question(const char* action, int days, const QString& date, const QString& who) {
        return QStringLiteral("You have Selected to\n%1\nof %2 Consecutive WORKDAYS\nStarting on %3\nfor %4")
            .arg(QLatin1String(action))
            .arg(days)
            .arg(date, who);
    }

    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmBlock& frm = session.AddScreen(ScreenId::frmBlock, std::make_unique<frmBlock>(session));
    BlockView view{session, frm};
};

} // namespace

TEST_F(BlockViewFixture, EveryControlHasItsWidget) {
    EXPECT_TRUE(view.binder().unboundControls().isEmpty()) << view.binder().unboundControls().join(", ").toStdString();
}

TEST_F(BlockViewFixture, OpensWithTheFirstWorkDayAndItsCaptions) {
    open();
    EXPECT_TRUE(view.isVisible());
    EXPECT_EQ(view.windowTitle(), "Holiday and Vacation Days");
    EXPECT_EQ(find<QCalendarWidget>("Calender")->selectedDate(), QDate(2026, 11, 23));
    EXPECT_EQ(find<QListWidget>("lstAssignto")->count(), 3);
    EXPECT_EQ(find<QListWidget>("lstAssignto")->item(2)->text(), "All Assignments");
    EXPECT_EQ(find<QComboBox>("lstReason")->currentText(), "Vacation");
    EXPECT_EQ(find<QRadioButton>("optAction(0)")->text(), "Reserve Days (Prevents work Scheduling)");
    EXPECT_TRUE(find<QRadioButton>("optAction(0)")->isChecked());
    EXPECT_EQ(find<QLineEdit>("txtTimeReq")->text(), "1");
    EXPECT_EQ(find<QSlider>("sldTimeReq")->maximum(), 30);
    EXPECT_FALSE(find<QGroupBox>("fraBlockedDays")->isVisible());
    EXPECT_FALSE(find<QGroupBox>("fraSchedule")->isVisible());
    EXPECT_EQ(find<QPushButton>("cmdAccept")->accessibleName(), "Accept");
    EXPECT_EQ(find<QLineEdit>("txtTimeReq")->accessibleName(), "Number of Days");
    EXPECT_EQ(find<QListWidget>("lstAssignto")->accessibleName(), "Assignment");
    saveShot(view, QStringLiteral("block-open"));
}

TEST_F(BlockViewFixture, ReservingTwoDaysByClicksWritesBothDaysAndAsksAboutAnAppointment) {
    DaySchedule day;
    day.setSlot(9, QStringLiteral("Ann Lee-Tune Up"));
    writeDaySchedule(t.disk(), 2026, 2, 331, day); // Friday 11/27
    open();
    pickDay(QDate(2026, 11, 27));
    auto* who = find<QListWidget>("lstAssignto");
    who->setCurrentRow(1);
    settle();
    find<QSlider>("sldTimeReq")->setValue(2);
    settle();
    EXPECT_EQ(find<QLineEdit>("txtTimeReq")->text(), "2");
    auto* reason = find<QComboBox>("lstReason");
    reason->setCurrentIndex(2);
    Q_EMIT reason->activated(2);
    settle();
    fake.dialogs.expect("Action Selection", question("Prevent Work Scheduling", 2, "11/27/2026", "South Crew"), vbYes);
    fake.dialogs.expect("Verify Change",
                        QStringLiteral("Events are Scheduled for 11/27/2026\nDo you want to DELETE these Events)"), vbYes);
    click(find<QPushButton>("cmdAccept"));
    settle();
    fake.dialogs.verify();
    EXPECT_EQ(t.readBytes("/2026/DaySchedules2/331.txt"), reserved("Personal Day"));
    EXPECT_EQ(t.readBytes("/2026/DaySchedules2/334.txt"), reserved("Personal Day"));
    // The day asked about stays in sight with what it now holds.
    EXPECT_TRUE(find<QGroupBox>("fraSchedule")->isVisible());
    EXPECT_EQ(find<QTableWidget>("fgDaySchedule")->item(8, 0)->text(), "Personal Day");
    EXPECT_EQ(find<QCalendarWidget>("Calender")->selectedDate(), QDate(2026, 11, 27));
    saveShot(view, QStringLiteral("block-reserved"));
}

TEST_F(BlockViewFixture, ChoosingRestoreShowsNoEventsAndRestoringDeletesTheDay) {
    t.writeBytes("/2026/DaySchedules1/331.txt", reserved("Holiday"));
    open();
    pickDay(QDate(2026, 11, 27));
    click(find<QRadioButton>("optAction(1)"));
    settle();
    auto* reason = find<QComboBox>("lstReason");
    EXPECT_EQ(reason->currentText(), "No Events");
    EXPECT_FALSE(reason->isEnabled());
    fake.dialogs.expect("Action Selection", question("Clear Previous Blocked Days", 1, "11/27/2026", "North Crew"),
                        vbYes);
    fake.dialogs.expect("Verify Change",
                        QStringLiteral("Events are Scheduled for 11/27/2026\nDo you want to DELETE these Events)"), vbYes);
    click(find<QPushButton>("cmdAccept"));
    settle();
    fake.dialogs.verify();
    EXPECT_FALSE(t.isFile("/2026/DaySchedules1/331.txt"));
    saveShot(view, QStringLiteral("block-restored"));
}

TEST_F(BlockViewFixture, TheBlockedDaysGridListsWhatIsReserved) {
    t.writeBytes("/2026/DaySchedules1/331.txt", reserved("Holiday"));
    t.writeBytes("/2026/DaySchedules2/334.txt", reserved("Sick Day"));
    open();
    QMenuBar* bar = view.findChild<QMenuBar*>();
    ASSERT_NE(bar, nullptr);
    QAction* toggle = view.findChild<QAction*>("mnuBlocked");
    ASSERT_NE(toggle, nullptr);
    EXPECT_EQ(toggle->text(), "Toggle Blocked Days Grid");
    toggle->trigger();
    settle();
    ASSERT_TRUE(find<QGroupBox>("fraBlockedDays")->isVisible());
    click(find<QPushButton>("cmdSearch"));
    settle();
    auto* grid = find<QTableWidget>("fgBlocked");
    ASSERT_EQ(grid->rowCount(), 3);
    EXPECT_EQ(grid->horizontalHeaderItem(0)->text(), "Team");
    EXPECT_EQ(grid->item(0, 0)->text(), "North Crew");
    EXPECT_EQ(grid->item(0, 1)->text(), "11/27/2026");
    EXPECT_EQ(grid->item(0, 2)->text(), "Holiday");
    EXPECT_EQ(grid->item(1, 0)->text(), "South Crew");
    EXPECT_EQ(grid->item(1, 2)->text(), "Sick Day");
    saveShot(view, QStringLiteral("block-grid"));
    click(find<QPushButton>("cmdHideGrid"));
    settle();
    EXPECT_FALSE(find<QGroupBox>("fraBlockedDays")->isVisible());
}

TEST_F(BlockViewFixture, AStartDateBeforeTodayIsRefusedWhenThePickerCloses) {
    open();
    frm.mnuBlocked_Click();
    Binder::syncAll();
    auto* start = find<QDateEdit>("DTStart");
    start->setDate(QDate(2026, 11, 2));
    fake.dialogs.expect("", "Your Calendar Selection is Invalid", vbOK);
    Q_EMIT start->calendarWidget()->clicked(QDate(2026, 11, 2));
    settle();
    fake.dialogs.verify();
    EXPECT_EQ(start->date(), QDate(2026, 11, 22));
    EXPECT_EQ(find<QDateEdit>("DTEnd")->date(), QDate(2026, 12, 22));
}

TEST_F(BlockViewFixture, AClickOnTheNumberOfDaysAddsADay) {
    open();
    auto* days = find<QLineEdit>("txtTimeReq");
    click(days);
    settle();
    click(days);
    settle();
    EXPECT_EQ(days->text(), "3");
    EXPECT_EQ(find<QSlider>("sldTimeReq")->value(), 3);
}
