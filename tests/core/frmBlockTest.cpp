#include "frmBlockTestFixture.h"

#include "scheduling/SlotFit.h"
#include "shell/frmStartup.h"

#include <QDir>
#include <QFileInfo>

using namespace ostrel;
using ostrel::test::BlockScreen;

TEST_F(BlockScreen, ComesUpWithItsCaptionsReasonsAndTheFirstWorkDay) {
    EXPECT_EQ(frm.caption, "Holiday and Vacation Days");
    EXPECT_EQ(frm.lstAssignto.items, (QStringList{"North Crew", "South Crew", "Shop Bench", "All Assignments"}));
    EXPECT_EQ(frm.lstReason.items, (QStringList{"Vacation", "Holiday", "Personal Day", "Sick Day"}));
    EXPECT_EQ(frm.lstReason.text, "Vacation");
    EXPECT_EQ(frm.lstAssignto.listIndex, 0);
    EXPECT_EQ(frm.optAction[0].caption, "Reserve Days (Prevents work Scheduling)");
    EXPECT_EQ(frm.optAction[1].caption, "Restore Days (Clears previous Blocks)");
    EXPECT_TRUE(frm.optAction[0].value);
    EXPECT_EQ(frm.cmdAccept.caption, "&Accept");
    EXPECT_EQ(frm.cmdCancel.caption, "&Cancel");
    EXPECT_EQ(frm.cmdExit.caption, "&Menu");
    EXPECT_EQ(frm.cmdSearch.caption, "&Load Grid");
    EXPECT_EQ(frm.cmdClearGrid.caption, "&Clear Grid");
    EXPECT_EQ(frm.cmdHideGrid.caption, "&Hide Grid");
    EXPECT_EQ(frm.mnuBlocked.caption, "Toggle Blocked Days Grid");
    EXPECT_EQ(frm.lblSchedule.caption, "These Events will be overwritten if you selected Reserve Days or the Day "
                                       "Schedule will be  DELETED if you selected Restore Days");
    EXPECT_EQ(frm.fgBlocked.TextMatrix(0, 0), "Team");
    EXPECT_EQ(frm.fgBlocked.TextMatrix(0, 1), "Date");
    EXPECT_EQ(frm.fgBlocked.TextMatrix(0, 2), "Reason");
    EXPECT_EQ(frm.fgDaySchedule.Rows(), 49);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(25, 0), "1:00");
    EXPECT_EQ(frm.txtTimeReq.text, "1");
    // Today is a Sunday: the calendar moves on to Monday.
    EXPECT_EQ(frm.Calender.value, QDate(2026, 11, 23));
    EXPECT_EQ(frm.DTStart.value, QDate(2026, 11, 22));
    EXPECT_EQ(frm.DTEnd.value, QDate(2026, 12, 22));
    EXPECT_FALSE(frm.fraBlockedDays.visible);
}

TEST_F(BlockScreen, FiveDaysFromAFridayAreFridayAndTheNextFourWorkDays) {
    choose(friday, 0, 5);
    fake.dialogs.expect("Action Selection", acceptQuestion(kReserve, 5, friday, "North Crew"), vbYes);
    frm.cmdAccept_Click();
    fake.dialogs.verify();
    for (const QDate d : {friday, QDate(2026, 11, 30), QDate(2026, 12, 1), QDate(2026, 12, 2), QDate(2026, 12, 3)}) {
        ASSERT_TRUE(hasDay(d, 1)) << d.toString().toStdString();
        EXPECT_EQ(t.readBytes(dayFile(d, 1)), reservedBytes("Vacation"));
    }
    EXPECT_FALSE(hasDay(QDate(2026, 11, 28), 1));
    EXPECT_FALSE(hasDay(QDate(2026, 11, 29), 1));
    EXPECT_FALSE(hasDay(QDate(2026, 12, 4), 1));
    EXPECT_FALSE(hasDay(friday, 2));
    // The calendar is back on the first day of the run.
    EXPECT_EQ(frm.Calender.value, friday);
}

TEST_F(BlockScreen, APastDateOnTheCalendarFallsBackToToday) {
    frm.Calender.value = QDate(2026, 11, 10);
    frm.Calender_DateClick();
    EXPECT_EQ(frm.Calender.value, QDate(2026, 11, 22)); // today, a Sunday, not moved on
}

TEST_F(BlockScreen, APastDateAfter1959FallsBackToTomorrow) {
    fake.clock.setTime(QTime(19, 59));
    frm.Calender.value = QDate(2026, 11, 10);
    frm.Calender_DateClick();
    EXPECT_EQ(frm.Calender.value, QDate(2026, 11, 22));
    fake.clock.setTime(QTime(20, 0));
    frm.Calender.value = QDate(2026, 11, 10);
    frm.Calender_DateClick();
    EXPECT_EQ(frm.Calender.value, QDate(2026, 11, 23));
}

TEST_F(BlockScreen, AFutureDateMovesToAWorkDayAndTheFocusToAccept) {
    frm.Calender.value = QDate(2026, 11, 28); // Saturday
    frm.Calender_DateClick();
    EXPECT_EQ(frm.Calender.value, QDate(2026, 11, 30));
    EXPECT_TRUE(frm.cmdAccept.focusRequested);
    EXPECT_EQ(frm.pathStem(), "\\2026\\DaySchedules");
    EXPECT_EQ(frm.dayOfYearText(), "334");
}

TEST_F(BlockScreen, AllAssignmentsAsksTheConflictQuestionForEachPointOfService) {
    for (int n = 1; n <= 3; ++n)
        writeDay(friday, n, appointmentDay());
    choose(friday, 3, 1);
    fake.dialogs.expect("Action Selection", acceptQuestion(kReserve, 1, friday, "All Assignments"), vbYes);
    for (int n = 1; n <= 3; ++n)
        fake.dialogs.expect("Verify Change", conflictQuestion(friday), vbYes);
    frm.cmdAccept_Click();
    fake.dialogs.verify();
    for (int n = 1; n <= 3; ++n)
        EXPECT_EQ(t.readBytes(dayFile(friday, n)), reservedBytes("Vacation"));
}

TEST_F(BlockScreen, AllAssignmentsReservesEveryPointOfServiceAndAsksOnlyWhereAFileExists) {
    writeDay(friday, 2, appointmentDay());
    choose(friday, 3, 2);
    frm.lstReason.SetListIndex(1);
    frm.lstReason_Click();
    fake.dialogs.expect("Action Selection", acceptQuestion(kReserve, 2, friday, "All Assignments"), vbYes);
    fake.dialogs.expect("Verify Change", conflictQuestion(friday), vbYes);
    frm.cmdAccept_Click();
    fake.dialogs.verify();
    for (int n = 1; n <= 3; ++n) {
        EXPECT_EQ(t.readBytes(dayFile(friday, n)), reservedBytes("Holiday"));
        EXPECT_EQ(t.readBytes(dayFile(QDate(2026, 11, 30), n)), reservedBytes("Holiday"));
    }
}

TEST_F(BlockScreen, TheDaysReservedBeforeAConflictQuestionAreOnDiskWhileItWaits) {
    writeDay(friday, 3, appointmentDay());
    choose(friday, 3, 1);
    fake.dialogs.expect("Action Selection", acceptQuestion(kReserve, 1, friday, "All Assignments"), vbYes);
    fake.dialogs.expect("Verify Change", conflictQuestion(friday), vbYes);
    QStringList seenWhileAsked;
    fake.dialogs.whenShown = [&](const test::ScriptedDialogs::Box& box) {
        if (box.title != QLatin1String("Verify Change")) return;
        for (int n = 1; n <= 2; ++n)
            if (t.readBytes(dayFile(friday, n)) == reservedBytes("Vacation")) seenWhileAsked << QString::number(n);
        if (QFileInfo(t.full(dayFile(friday, 1))).absoluteDir().entryList(QDir::Files).size() != 1)
            seenWhileAsked << QStringLiteral("a temporary");
    };
    frm.cmdAccept_Click();
    fake.dialogs.verify();
    EXPECT_EQ(seenWhileAsked, (QStringList{"1", "2"}));
    for (int n = 1; n <= 3; ++n)
        EXPECT_EQ(t.readBytes(dayFile(friday, n)), reservedBytes("Vacation"));
}

TEST_F(BlockScreen, AnsweringNoForOneDayKeepsThatDayAndGoesOnWithTheNext) {
    const QDate monday(2026, 11, 30);
    writeDay(monday, 1, appointmentDay());
    const QByteArray before = t.readBytes(dayFile(monday, 1));
    choose(friday, 0, 3);
    fake.dialogs.expect("Action Selection", acceptQuestion(kReserve, 3, friday, "North Crew"), vbYes);
    fake.dialogs.expect("Verify Change", conflictQuestion(monday), vbNo);
    frm.cmdAccept_Click();
    fake.dialogs.verify();
    EXPECT_EQ(t.readBytes(dayFile(monday, 1)), before);
    EXPECT_FALSE(frm.fraSchedule.visible);
    EXPECT_EQ(t.readBytes(dayFile(friday, 1)), reservedBytes("Vacation"));
    EXPECT_EQ(t.readBytes(dayFile(QDate(2026, 12, 1), 1)), reservedBytes("Vacation"));
}

TEST_F(BlockScreen, TheConflictQuestionShowsTheDayInQuestion) {
    writeDay(friday, 1, appointmentDay());
    choose(friday, 0, 1);
    fake.dialogs.expect("Action Selection", acceptQuestion(kReserve, 1, friday, "North Crew"), vbYes);
    fake.dialogs.expect("Verify Change", conflictQuestion(friday), vbNo);
    frm.cmdAccept_Click();
    fake.dialogs.verify();
    // The grid still holds the day that was asked about.
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(9, 1), "Ann Lee-Tune Up");
}

TEST_F(BlockScreen, ARestoreWithNoFileForTheDayDoesNothingAndAsksNothing) {
    choose(friday, 0, 1);
    frm.optAction_Click(1);
    fake.dialogs.expect("Action Selection", acceptQuestion(kRestore, 1, friday, "North Crew"), vbYes);
    frm.cmdAccept_Click();
    fake.dialogs.verify();
    EXPECT_FALSE(hasDay(friday, 1));
    EXPECT_TRUE(fake.dialogs.boxes().size() == 1);
}

TEST_F(BlockScreen, ARestoreAsksAboutAReservedDayAndDeletesItsFile) {
    choose(friday, 1, 1);
    fake.dialogs.expect("Action Selection", acceptQuestion(kReserve, 1, friday, "South Crew"), vbYes);
    frm.cmdAccept_Click();
    ASSERT_TRUE(hasDay(friday, 2));
    frm.optAction_Click(1);
    EXPECT_EQ(frm.lstReason.text, "No Events");
    EXPECT_FALSE(frm.lstReason.enabled);
    fake.dialogs.expect("Action Selection", acceptQuestion(kRestore, 1, friday, "South Crew"), vbYes);
    fake.dialogs.expect("Verify Change", conflictQuestion(friday), vbYes);
    frm.cmdAccept_Click();
    fake.dialogs.verify();
    EXPECT_FALSE(hasDay(friday, 2));
    frm.optAction_Click(0);
    EXPECT_EQ(frm.lstReason.text, "Vacation");
    EXPECT_TRUE(frm.lstReason.enabled);
}

TEST_F(BlockScreen, NoToTheActionQuestionCancelsAndResetsTheScreen) {
    choose(friday, 2, 4);
    fake.dialogs.expect("Action Selection", acceptQuestion(kReserve, 4, friday, "Shop Bench"), vbNo);
    frm.cmdAccept_Click();
    fake.dialogs.verify();
    EXPECT_FALSE(hasDay(friday, 3));
    EXPECT_EQ(frm.txtTimeReq.text, "1");
    EXPECT_EQ(frm.lstAssignto.listIndex, 0);
    EXPECT_EQ(frm.Calender.value, QDate(2026, 11, 23));
}

TEST_F(BlockScreen, TheNumberOfDaysStopsRisingAt30ByAClickOnTheBox) {
    for (int i = 0; i < 40; ++i)
        frm.txtTimeReq_Click();
    EXPECT_EQ(frm.txtTimeReq.text, "30");
    EXPECT_EQ(frm.sldTimeReq.value, 30);
    frm.txtTimeReq.text = QStringLiteral("29");
    frm.txtTimeReq_Click();
    EXPECT_EQ(frm.txtTimeReq.text, "30");
}

TEST_F(BlockScreen, TheUpDownControlSpans1To30AndTheBoxFollowsIt) {
    EXPECT_EQ(frm.sldTimeReq.min, 1);
    EXPECT_EQ(frm.sldTimeReq.max, 30);
    frm.sldTimeReq.SetValue(31);
    EXPECT_EQ(frm.sldTimeReq.value, 30);
    frm.sldTimeReq.SetValue(0);
    EXPECT_EQ(frm.sldTimeReq.value, 1);
    frm.sldTimeReq.SetValue(12);
    frm.sldTimeReq_Change();
    EXPECT_EQ(frm.txtTimeReq.text, "12");
    EXPECT_TRUE(frm.cmdAccept.focusRequested);
}

TEST_F(BlockScreen, AReservedDayMakesTheCreationScreenRefuseEveryRow) {
    choose(friday, 0, 1);
    fake.dialogs.expect("Action Selection", acceptQuestion(kReserve, 1, friday, "North Crew"), vbYes);
    frm.cmdAccept_Click();
    const DaySchedule day = readDaySchedule(t.disk(), friday.year(), 1, friday.dayOfYear());
    for (int row = 1; row <= 47; ++row) {
        const SlotFit fit = checkSlotFit(day, row, 1, FreeRowScan::BlockOnly);
        EXPECT_EQ(fit.refusal, "Not enough contiguous Time Slots to Schedule Here") << row;
    }
}

TEST_F(BlockScreen, ADayOfALaterYearGetsItsFoldersMade) {
    const QDate next(2027, 1, 4);
    choose(next, 0, 1);
    EXPECT_TRUE(t.isDir("/2027/Team# 1"));
    EXPECT_TRUE(t.isDir("/2027/Team# 3"));
    fake.dialogs.expect("Action Selection", acceptQuestion(kReserve, 1, next, "North Crew"), vbYes);
    frm.cmdAccept_Click();
    fake.dialogs.verify();
    EXPECT_EQ(t.readBytes("/2027/DaySchedules1/4.txt"), reservedBytes("Vacation"));
}

TEST_F(BlockScreen, MenuHidesTheScreenAndShowsTheMainMenu) {
    frm.cmdExit_Click();
    EXPECT_FALSE(frm.isVisible());
    EXPECT_TRUE(session.startup().isVisible());
}

TEST_F(BlockScreen, CheckJulianRefusesADayThatHoldsAnythingAndCancels) {
    writeDay(friday, 2, appointmentDay());
    choose(friday, 1, 3);
    fake.dialogs.expect("Can't Block or UnBlock This Time",
                        QStringLiteral("An Event Exists at South Crew on 11/27/2026 Use the Reschedule Routine to "
                                       "Delete or Rechedule this Attention\nThis Request will be aborted."),
                        vbOKOnly + vbCritical, vbOK);
    EXPECT_TRUE(frm.CheckJulian(QStringLiteral("2")));
    fake.dialogs.verify();
    EXPECT_EQ(frm.txtTimeReq.text, "1"); // cancelled
    EXPECT_FALSE(frm.CheckJulian(QStringLiteral("1")));
}

TEST_F(BlockScreen, TheMainMenuEntryOpensTheScreenReset) {
    frm.Hide();
    frm.txtTimeReq_Click();
    session.startup().Show();
    session.startup().optMainMenuSub_DblClick(10);
    EXPECT_TRUE(frm.isVisible());
    EXPECT_FALSE(session.startup().isVisible());
    EXPECT_EQ(frm.txtTimeReq.text, "1");
}
