#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "scheduling/DayScheduleStore.h"
#include "scheduling/frmDisplay.h"
#include "setup/PointOfServiceNames.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"
#include "store/TextStatements.h"

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::test;

namespace {

struct DisplayScreen : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmDisplay& frm = session.AddScreen(ScreenId::frmDisplay, std::make_unique<frmDisplay>(session));

    DisplayScreen() {
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        fake.clock.set(QDate(2026, 11, 23), QTime(9, 0)); // a Monday
    }

    void writeNames(int count) {
        TextWriter w;
        for (int i = 1; i <= count; ++i)
            w.writeString(QStringLiteral("Crew %1").arg(i));
        t.writeBytes("/ServiceAreas.txt", w.bytes());
    }
    // A day whose every row names its Point of Service and row.
    void writeDay(int year, int n, int dayOfYear, const QString& tag) {
        DaySchedule d;
        for (int r = 1; r <= 48; ++r)
            d.setSlot(r, QStringLiteral("%1 row %2").arg(tag).arg(r));
        writeDaySchedule(t.disk(), year, n, dayOfYear, d);
    }
    void open() {
        frm.Show();
        fake.dialogs.verify();
    }
    QString cell(int grid, int row) { return frm.fgHours[grid].TextMatrix(row, 1); }
    bool gridBlank(int grid) {
        for (int r = 1; r <= 48; ++r)
            if (!cell(grid, r).isEmpty()) return false;
        return true;
    }
};

} // namespace

TEST_F(DisplayScreen, ComesUpOnTodayWithTheFirstGroupAndItsNames) {
    writeNames(4);
    open();
    EXPECT_EQ("Work Schedules", frm.caption);
    EXPECT_EQ(QDate(2026, 11, 23), frm.DTPicker1.value);
    EXPECT_EQ(2026, frm.PathYear);
    EXPECT_EQ(QStringList({"Points 1-4"}), frm.lstTeams.items);
    EXPECT_EQ(0, frm.lstTeams.listIndex);
    for (int k = 1; k <= 4; ++k)
        EXPECT_EQ(QStringLiteral("Crew %1").arg(k), frm.lblTeam[k].caption);
    EXPECT_EQ("6:00", frm.fgHours[1].TextMatrix(1, 0));
    EXPECT_EQ("1:00", frm.fgHours[4].TextMatrix(25, 0));
}

TEST_F(DisplayScreen, ShowsEachPointsDayWithTheHeadBlankedAndLineFortyEightLeftOut) {
    writeNames(4);
    writeDay(2026, 1, 327, "A");
    writeDay(2026, 3, 327, "C");
    open();
    EXPECT_EQ("A row 1", cell(1, 1));
    EXPECT_EQ("A row 47", cell(1, 47));
    EXPECT_EQ("", cell(1, 48));
    EXPECT_EQ("", frm.fgHours[1].TextMatrix(0, 1)); // the head of column 1 is blanked
    EXPECT_TRUE(gridBlank(2));                      // no file: an empty day
    EXPECT_EQ("C row 20", cell(3, 20));
    EXPECT_TRUE(gridBlank(4));
}

TEST_F(DisplayScreen, ThirteenOrMorePointsOfServiceLeaveNumbersFromThirteenOnUnseen) {
    writeNames(14);
    for (int n = 1; n <= 14; ++n)
        writeDay(2026, n, 327, QStringLiteral("P%1").arg(n));
    open();
    EXPECT_EQ(QStringList({"Points 1-4", "Points 5-8", "Points 9-12"}), frm.lstTeams.items);
    QStringList seenNames;
    QStringList seenDays;
    for (int group = 0; group < frm.lstTeams.ListCount(); ++group) {
        frm.lstTeams.SetListIndex(group);
        frm.lstTeams_Click();
        for (int k = 1; k <= 4; ++k) {
            seenNames << frm.lblTeam[k].caption;
            seenDays << cell(k, 1);
        }
    }
    EXPECT_EQ(12, seenNames.size());
    EXPECT_TRUE(seenNames.contains("Crew 12"));
    EXPECT_FALSE(seenNames.contains("Crew 13"));
    EXPECT_FALSE(seenNames.contains("Crew 14"));
    EXPECT_TRUE(seenDays.contains("P12 row 1"));
    EXPECT_FALSE(seenDays.contains("P13 row 1"));
    EXPECT_FALSE(seenDays.contains("P14 row 1"));
}

TEST_F(DisplayScreen, GroupWithFewerThanFourNamesLeavesTheRestUnnamedAndBlank) {
    writeNames(6);
    for (int n = 1; n <= 8; ++n)
        writeDay(2026, n, 327, QStringLiteral("P%1").arg(n)); // 7 and 8 have files but no names
    open();
    frm.lstTeams.SetListIndex(1);
    frm.lstTeams_Click();
    EXPECT_EQ(8, frm.HighNumber);
    EXPECT_EQ("Crew 5", frm.lblTeam[1].caption);
    EXPECT_EQ("Crew 6", frm.lblTeam[2].caption);
    EXPECT_EQ("", frm.lblTeam[3].caption);
    EXPECT_EQ("", frm.lblTeam[4].caption);
    EXPECT_EQ("P5 row 3", cell(1, 3));
    EXPECT_EQ("P6 row 3", cell(2, 3));
    EXPECT_TRUE(gridBlank(3));
    EXPECT_TRUE(gridBlank(4));
}

TEST_F(DisplayScreen, DayFileOfTheNextYearIsNotFound) {
    fake.clock.set(QDate(2026, 12, 30), QTime(9, 0));
    writeNames(1);
    const QDate jan4(2027, 1, 4);
    writeDay(2027, 1, jan4.dayOfYear(), "NextYear");
    open();
    frm.DTPicker1.value = jan4;
    frm.DTPicker1_Change();
    EXPECT_EQ(jan4, frm.DTPicker1.value);
    EXPECT_TRUE(gridBlank(1));
    // The folder of the year the screen came up in is the one read.
    writeDay(2026, 1, jan4.dayOfYear(), "ThisYear");
    frm.DTPicker1_Change();
    EXPECT_EQ("ThisYear row 1", cell(1, 1));
}

TEST_F(DisplayScreen, DateBeforeTodayIsRefusedAndReturnsToToday) {
    writeNames(2);
    open();
    frm.DTPicker1.value = QDate(2026, 11, 20);
    fake.dialogs.expect("", "Date selection cannot be before today");
    frm.DTPicker1_Change();
    fake.dialogs.verify();
    EXPECT_EQ(QDate(2026, 11, 23), frm.DTPicker1.value);
    EXPECT_GT(fake.dialogs.beeps(), 0);

    session.settings.program.ckPrompts = 0;
    const int beeps = fake.dialogs.beeps();
    frm.UpDown1.value = -1;
    frm.UpDown1_Change();
    EXPECT_EQ(QDate(2026, 11, 23), frm.DTPicker1.value); // no box without prompts, the bell still
    EXPECT_EQ(beeps + 1, fake.dialogs.beeps());
}

TEST_F(DisplayScreen, ArrowsStepADayAndWeekendsMoveOnToTheWorkDay) {
    writeNames(1);
    writeDay(2026, 1, QDate(2026, 11, 30).dayOfYear(), "Mon");
    open();
    frm.UpDown1.value = 1;
    frm.UpDown1_Change();
    EXPECT_EQ(0, frm.UpDown1.value);
    EXPECT_EQ(QDate(2026, 11, 24), frm.DTPicker1.value);
    frm.DTPicker1.value = QDate(2026, 11, 28); // a Saturday
    frm.DTPicker1_Change();
    EXPECT_EQ(QDate(2026, 11, 30), frm.DTPicker1.value);
    EXPECT_EQ("Mon row 5", cell(1, 5));
}

TEST_F(DisplayScreen, HolidayIsTestedButStaysOnShow) {
    writeNames(1);
    t.writeBytes("/Holidays.txt", "#2026-11-26#\r\n");
    writeDay(2026, 1, QDate(2026, 11, 26).dayOfYear(), "Thanksgiving");
    open();
    frm.DTPicker1.value = QDate(2026, 11, 26);
    frm.DTPicker1_Change();
    EXPECT_EQ(QDate(2026, 11, 26), frm.DTPicker1.value);
    EXPECT_EQ("Thanksgiving row 2", cell(1, 2));
}

TEST_F(DisplayScreen, WithoutPointsOfServiceItSaysSoAndGoesBackToTheMenu) {
    fake.dialogs.expect("", "No assignments Found");
    frm.Show();
    fake.dialogs.verify();
    EXPECT_FALSE(frm.isVisible());
    EXPECT_TRUE(session.startup().isVisible());
}

TEST_F(DisplayScreen, MenuButtonReturnsToTheMenu) {
    writeNames(1);
    open();
    frm.cmdMenu_Click();
    EXPECT_FALSE(frm.isVisible());
    EXPECT_TRUE(session.startup().isVisible());
}
