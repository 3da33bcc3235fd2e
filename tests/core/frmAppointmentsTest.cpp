#include "frmAppointmentsTestFixture.h"

#include "util/VbText.h"

using namespace ostrel;
using ostrel::test::AppointmentsScreen;

TEST_F(AppointmentsScreen, ComesUpResetWithItsCaptionsAndYesterdayInThePicker) {
    EXPECT_EQ(frm.caption, "Appointments");
    const char* captions[] = {"Schedule an Appointment", "Re-Schedule an Appointment", "Invoice an Appointment",
                              "Delete an Appointment"};
    const char* tips[] = {"Schedule a previously created appointment", "Re-schedule a previously scheduled appointment",
                          "Create an invoice for a completed appointment", "DELETE AN APPOINTMENT"};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(frm.optRoutine[i].caption, captions[i]);
        EXPECT_EQ(frm.optRoutine[i].toolTip, tips[i]);
        EXPECT_FALSE(frm.optRoutine[i].value);
        EXPECT_FALSE(frm.lblRoutine[i].visible);
        EXPECT_FALSE(frm.cmdAppointments[i].enabled);
    }
    const char* buttons[] = {"S&chedule", "&Re-Schedule", "&Create Invoice", "&Delete", "&Menu"};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(frm.cmdAppointments[i].caption, buttons[i]);
    EXPECT_TRUE(frm.cmdAppointments[4].enabled);
    EXPECT_EQ(frm.cmdService.caption, "Schedule Service    Save Day Schedule");
    EXPECT_FALSE(frm.cmdService.enabled);
    const char* headings[] = {"Scheduled", "Account", "Appt No.", "Status", "Sort"};
    for (int c = 0; c < 5; ++c)
        EXPECT_EQ(frm.fgAppointments.TextMatrix(0, c), headings[c]);
    EXPECT_EQ(frm.fgAppointments.Rows(), 1);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(0, 0), "Time");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(0, 1), "Scheduled Appointments");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(24, 0), "11:45");
    EXPECT_EQ(frm.DTPicker1.value, yesterday);
    EXPECT_EQ(frm.dayOfYear(), yesterday.dayOfYear());
    EXPECT_FALSE(frm.fraCalendar.visible);
    EXPECT_EQ(frm.lstAssignments.items, (QStringList{"North Crew", "South Crew"}));
}

TEST_F(AppointmentsScreen, AnEmptyFolderWithPromptsOffShowsNoMessageAndTheGridStaysEmpty) {
    session.settings.program.ckPrompts = 0;
    frm.optRoutine_Click(frmAppointments::kSchedule);
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
    EXPECT_EQ(frm.fgAppointments.Rows(), 1);
    EXPECT_FALSE(frm.lblRoutine[0].visible);
    EXPECT_FALSE(frm.fraCalendar.visible);
}

TEST_F(AppointmentsScreen, AnEmptyFolderWithPromptsOnSaysNoAppointmentsWereFound) {
    session.settings.program.ckAlarms = 1;
    frm.optRoutine_Click(frmAppointments::kDelete);
    EXPECT_BOX(fake.dialogs, "", "No Appointments were Found");
    EXPECT_EQ(fake.dialogs.beeps(), 1);
    EXPECT_EQ(frm.fgAppointments.Rows(), 1);
}

TEST_F(AppointmentsScreen, ScheduleListsOnlyUnscheduledSlipsUnderCreatedOn) {
    annLee("1 - 320-1", "Unscheduled", QDate(2026, 11, 16));
    annLee("1 - 320-2", "Scheduled", QDate(2026, 11, 30), 4, 9);
    frm.optRoutine_Click(frmAppointments::kSchedule);
    EXPECT_EQ(listed(), QStringList{"1 - 320-1"});
    EXPECT_EQ(frm.fgAppointments.TextMatrix(0, 0), "Created On");
    EXPECT_EQ(frm.fgAppointments.TextMatrix(1, 0), "11/16/2026");
    EXPECT_EQ(frm.fgAppointments.TextMatrix(1, 1), "Ann Lee");
    EXPECT_EQ(frm.fgAppointments.TextMatrix(1, 3), "Unscheduled");
    EXPECT_EQ(frm.fgAppointments.TextMatrix(1, 4), "");
    EXPECT_TRUE(frm.lblRoutine[0].visible);
    EXPECT_FALSE(frm.lblRoutine[1].visible);
    EXPECT_TRUE(frm.fraCalendar.visible);
    EXPECT_FALSE(frm.optRoutine[0].value); // cleared, so it can be chosen again
}

TEST_F(AppointmentsScreen, RescheduleHidesSlipsDatedYesterday) {
    annLee("1 - 320-1", "Scheduled", yesterday, 4, 9);
    annLee("1 - 320-2", "Scheduled", today, 4, 9);
    annLee("1 - 320-3", "Scheduled", QDate(2026, 12, 1), 4, 9);
    annLee("1 - 320-4", "Invoiced", QDate(2026, 12, 1), 4, 9);
    frm.optRoutine_Click(frmAppointments::kReschedule);
    EXPECT_EQ(listed(), (QStringList{"1 - 320-2", "1 - 320-3"}));
    EXPECT_EQ(frm.fgAppointments.TextMatrix(0, 0), "Scheduled");
}

TEST_F(AppointmentsScreen, InvoiceListsTodaysSlipAndInvoicedOnesButNeverUnscheduledOnes) {
    annLee("1 - 320-1", "Scheduled", today, 4, 9);
    annLee("1 - 320-2", "Unscheduled", yesterday);
    annLee("1 - 320-3", "Invoiced", yesterday, 4, 9);
    annLee("1 - 320-4", "Scheduled", QDate(2026, 11, 23), 4, 9);
    frm.optRoutine_Click(frmAppointments::kInvoice);
    EXPECT_EQ(listed(), (QStringList{"1 - 320-1", "1 - 320-3"}));
    EXPECT_FALSE(frm.fraCalendar.visible);
    EXPECT_TRUE(frm.lblRoutine[2].visible);
}

TEST_F(AppointmentsScreen, DeleteListsEverySlip) {
    annLee("1 - 320-1", "Scheduled", today, 4, 9);
    annLee("1 - 320-2", "Unscheduled", yesterday);
    annLee("2 - 320-3", "Invoiced", QDate(2025, 3, 1), 4, 9);
    frm.optRoutine_Click(frmAppointments::kDelete);
    EXPECT_EQ(listed(), (QStringList{"1 - 320-1", "1 - 320-2", "2 - 320-3"}));
}

TEST_F(AppointmentsScreen, NothingMeetingTheFilterSaysSoWhateverThePromptsOption) {
    session.settings.program.ckPrompts = 0;
    annLee("1 - 320-1", "Unscheduled", yesterday);
    frm.optRoutine_Click(frmAppointments::kReschedule);
    EXPECT_BOX(fake.dialogs, "", "No Appointments meeting this Criteria were Found");
    EXPECT_EQ(frm.fgAppointments.Rows(), 2); // the one empty data row stays
    EXPECT_EQ(frm.fgAppointments.TextMatrix(1, 2), "");
}

TEST_F(AppointmentsScreen, TheMenusInvoicingEntrySelectsTheInvoicingRoutineByItself) {
    annLee("1 - 320-1", "Scheduled", today, 4, 9);
    frm.Hide();
    session.startup().Show();
    session.startup().optMainMenuSub_DblClick(2);
    EXPECT_TRUE(frm.isVisible());
    EXPECT_EQ(frm.routine(), frmAppointments::kInvoice);
    EXPECT_EQ(listed(), QStringList{"1 - 320-1"});
    EXPECT_TRUE(frm.lblRoutine[2].visible);

    frm.cmdAppointments_Click(frmAppointments::kCmdMenu);
    session.startup().optMainMenuSub_DblClick(3);
    EXPECT_TRUE(frm.isVisible());
    EXPECT_EQ(frm.fgAppointments.Rows(), 1); // the other entry chooses nothing
}

TEST_F(AppointmentsScreen, MenuEmptiesTheListAndReturnsToTheMainMenu) {
    annLee("1 - 320-1", "Scheduled", today, 4, 9);
    frm.optRoutine_Click(frmAppointments::kDelete);
    frm.cmdAppointments_Click(frmAppointments::kCmdMenu);
    EXPECT_FALSE(frm.isVisible());
    EXPECT_TRUE(session.startup().isVisible());
    EXPECT_EQ(frm.fgAppointments.Rows(), 1);
}

TEST_F(AppointmentsScreen, The255thSlipFileIsNamedInAMessageAndTheFirst254AreListed) {
    for (int i = 1; i <= 255; ++i)
        annLee(QStringLiteral("1 - 300-%1").arg(i, 3, 10, QLatin1Char('0')), "Unscheduled", yesterday);
    frm.optRoutine_Click(frmAppointments::kSchedule);
    ASSERT_EQ(fake.dialogs.boxes().size(), 1);
    const auto box = fake.dialogs.boxes()[0];
    EXPECT_EQ(box.title, "Too Many Appointments");
    EXPECT_TRUE(box.prompt.contains(t.full("/Appointments"))) << box.prompt.toStdString();
    EXPECT_TRUE(box.prompt.contains("254"));
    EXPECT_TRUE(fake.dialogs.takeBox(box.title, box.prompt));
    EXPECT_EQ(frm.slipFiles().size(), 254);
    EXPECT_EQ(frm.fgAppointments.Rows(), 255);
    EXPECT_EQ(rowOf("1 - 300-255"), -1);
    EXPECT_TRUE(frm.isVisible());
}

TEST_F(AppointmentsScreen, ExactlyTheLimitOf254SlipsIsListedWithoutAMessage) {
    for (int i = 1; i <= 254; ++i)
        annLee(QStringLiteral("1 - 300-%1").arg(i, 3, 10, QLatin1Char('0')), "Unscheduled", yesterday);
    frm.optRoutine_Click(frmAppointments::kSchedule);
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
    EXPECT_EQ(frm.fgAppointments.Rows(), 255);
}

TEST_F(AppointmentsScreen, ASlipCutShortIsReportedByNameAndTheProgramGoesOn) {
    t.writeBytes("/Appointments/1 - 320-9.txt", "\"Scheduled\"\r\n#2026-11-30#\r\n");
    frm.optRoutine_Click(frmAppointments::kDelete);
    ASSERT_EQ(fake.dialogs.boxes().size(), 1);
    const auto box = fake.dialogs.boxes()[0];
    EXPECT_TRUE(box.prompt.contains("1 - 320-9.txt")) << box.prompt.toStdString();
    EXPECT_TRUE(fake.dialogs.takeBox(box.title, box.prompt));
}
