#include "frmAppointmentsTestFixture.h"

using namespace ostrel;
using ostrel::test::AppointmentsScreen;

namespace {
const QString kScheduled = QStringLiteral("   ------Scheduled------");
}

TEST_F(AppointmentsScreen, SchedulingASavedSlipPaintsTheDayAndSavesDayAndSlip) {
    annLee("1 - 320-1", "Unscheduled", QDate(2026, 11, 16));
    services("1 - 320-1", {{"Tune Up", 4}});
    frm.optRoutine_Click(frmAppointments::kSchedule);
    selectSlip("1 - 320-1");
    EXPECT_TRUE(frm.cmdAppointments[0].enabled);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(0, 1), "Scheduled Appointments for 11/16/2026");
    const QDate monday(2026, 11, 30);
    pickDate(monday);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(0, 1), "Scheduled Appointments for 11/30/2026");
    EXPECT_EQ(frm.dayOfYear(), monday.dayOfYear());
    clickDayRow(9);
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
    EXPECT_EQ(frm.customerFields()[1], "Ann Lee");
    frm.cmdAppointments_Click(frmAppointments::kCmdSchedule);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(9, 1), "Ann Lee-Tune Up");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(10, 1), kScheduled);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(11, 1), kScheduled);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(12, 1), kScheduled);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(13, 1), "");
    EXPECT_TRUE(frm.cmdService.enabled);
    frm.cmdService_Click();

    const DaySchedule saved = day(monday, 1);
    EXPECT_EQ(saved.slot(9), "Ann Lee-Tune Up");
    EXPECT_EQ(saved.slot(12), kScheduled);
    EXPECT_EQ(saved.slot(13), "");
    const AppointmentSlip s = readBack("1 - 320-1");
    EXPECT_EQ(s.Status, "Scheduled");
    EXPECT_EQ(s.SlipDate, monday);
    EXPECT_EQ(s.SlipPointOfService, 1);
    EXPECT_EQ(s.Slots, 4);
    EXPECT_EQ(s.SlipStartRow, 9);
    EXPECT_EQ(s.Customer[1], "Ann Lee");
    EXPECT_EQ(s.SlipComment, "Back gate");
    // The save ends with the reset.
    EXPECT_EQ(frm.DTPicker1.value, yesterday);
    EXPECT_EQ(frm.fgAppointments.Rows(), 1);
    EXPECT_FALSE(frm.cmdService.enabled);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(9, 1), "");
}

TEST_F(AppointmentsScreen, ASlipWithSoldItemsSaysSeeItemsRequiredListInItsSecondRow) {
    annLee("2 - 320-1", "Unscheduled", QDate(2026, 11, 16), 3);
    services("2 - 320-1", {{"Hedge Trim", 3}});
    WriteSoldItemsFile(t.disk(), "2 - 320-1", {{"2", "Filter", "$4.50"}});
    frm.optRoutine_Click(frmAppointments::kSchedule);
    selectSlip("2 - 320-1");
    pickDate(QDate(2026, 11, 30));
    clickDayRow(20);
    frm.cmdAppointments_Click(frmAppointments::kCmdSchedule);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(20, 1), "Ann Lee-Hedge Trim");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(21, 1), "See Items Required List");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(22, 1), kScheduled);
    frm.cmdService_Click();
    EXPECT_EQ(day(QDate(2026, 11, 30), 2).slot(21), "See Items Required List");
}

TEST_F(AppointmentsScreen, ASlipOfThreeOneSlotServicesPaintsOnlyTheLastServiceInOneRow) {
    annLee("1 - 320-1", "Unscheduled", yesterday, 3);
    services("1 - 320-1", {{"Wash", 1}, {"Wax", 1}, {"Vacuum", 1}});
    frm.optRoutine_Click(frmAppointments::kSchedule);
    selectSlip("1 - 320-1");
    pickDate(QDate(2026, 11, 30));
    clickDayRow(5);
    frm.cmdAppointments_Click(frmAppointments::kCmdSchedule);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(5, 1), "Ann Lee-Vacuum");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(6, 1), "");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(7, 1), "");
}

TEST_F(AppointmentsScreen, ServicesOfSeveralSlotsAllStartOnTheSameRow) {
    annLee("1 - 320-1", "Unscheduled", yesterday, 6);
    services("1 - 320-1", {{"Tune Up", 4}, {"Oil", 2}});
    frm.optRoutine_Click(frmAppointments::kSchedule);
    selectSlip("1 - 320-1");
    pickDate(QDate(2026, 11, 30));
    clickDayRow(9);
    frm.cmdAppointments_Click(frmAppointments::kCmdSchedule);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(9, 1), "Ann Lee-Oil");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(10, 1), kScheduled);
    // The first service's rows run to the appointment's count less one.
    for (int r = 11; r <= 14; ++r)
        EXPECT_EQ(frm.fgDaySchedule.TextMatrix(r, 1), kScheduled) << r;
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(15, 1), "");
}

TEST_F(AppointmentsScreen, ASlipWithoutAServicesFileIsScheduledWithTheDayUnchanged) {
    annLee("1 - 320-1", "Unscheduled", yesterday, 2);
    const QDate monday(2026, 11, 30);
    DaySchedule other;
    other.setSlot(30, QStringLiteral("Bob Ray-Mow"));
    writeDaySchedule(t.disk(), 2026, 1, monday.dayOfYear(), other);
    const QByteArray before = t.readBytes(daySchedulePath(2026, 1, monday.dayOfYear()));
    frm.optRoutine_Click(frmAppointments::kSchedule);
    selectSlip("1 - 320-1");
    pickDate(monday);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(30, 1), "Bob Ray-Mow");
    clickDayRow(12);
    frm.cmdAppointments_Click(frmAppointments::kCmdSchedule);
    EXPECT_TRUE(frm.cmdService.enabled);
    frm.cmdService_Click();
    EXPECT_EQ(t.readBytes(daySchedulePath(2026, 1, monday.dayOfYear())), before);
    const AppointmentSlip s = readBack("1 - 320-1");
    EXPECT_EQ(s.Status, "Scheduled");
    EXPECT_EQ(s.SlipDate, monday);
    EXPECT_EQ(s.SlipStartRow, 12);
}

TEST_F(AppointmentsScreen, ARowTooLateInTheDayIsRefused) {
    session.settings.program.ckAlarms = 1;
    annLee("1 - 320-1", "Unscheduled", yesterday, 4);
    frm.optRoutine_Click(frmAppointments::kSchedule);
    selectSlip("1 - 320-1");
    pickDate(QDate(2026, 11, 30));
    clickDayRow(45);
    EXPECT_BOX(fake.dialogs, "", "Not enough Time remaining this day for this assignment");
    EXPECT_EQ(fake.dialogs.beeps(), 1);
}

TEST_F(AppointmentsScreen, ARescheduleNeedsTheRowBelowItsBlockFree) {
    annLee("1 - 320-1", "Scheduled", QDate(2026, 12, 1), 4, 9);
    const QDate target(2026, 12, 2);
    DaySchedule busy;
    busy.setSlot(48, QStringLiteral("Bob Ray-Mow"));
    writeDaySchedule(t.disk(), 2026, 1, target.dayOfYear(), busy);
    frm.optRoutine_Click(frmAppointments::kReschedule);
    fake.dialogs.expect("Remove Appointment Slip",
                        "This will Delete Appointment 1 - 320-1\nfrom 12/1/2026\nThen Select a new Date", vbYes);
    selectSlip("1 - 320-1");
    fake.dialogs.verify();
    EXPECT_TRUE(frm.fraSchedule.visible);
    pickDate(target);
    // Rows 44 to 47 hold the block, but 44 to 48 are scanned.
    clickDayRow(44);
    EXPECT_BOX(fake.dialogs, "", "Not enough contiguous Time Slots to Schedule Here");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(44, 1), "");

    // With the last row free the same place is accepted and marked.
    busy.setSlot(48, QString());
    writeDaySchedule(t.disk(), 2026, 1, target.dayOfYear(), busy);
    pickDate(target);
    const auto shown = fake.dialogs.boxes().size();
    clickDayRow(44);
    EXPECT_EQ(fake.dialogs.boxes().size(), shown);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(44, 1), "Schedule Here - Click Re-Schedule");
    EXPECT_TRUE(frm.cmdAppointments[1].enabled);
}

TEST_F(AppointmentsScreen, ReschedulingTheFirstOfTwoSlipsGivesItTheSecondsCustomer) {
    annLee("1 - 320-1", "Scheduled", QDate(2026, 12, 1), 2, 9);
    services("1 - 320-1", {{"Tune Up", 2}});
    slip("1 - 320-2", "Scheduled", QDate(2026, 12, 3), 2, 20,
         customer(QStringLiteral("2002"), QStringLiteral("Bob Ray"), QStringLiteral("217-555-0199")),
         QStringLiteral("Dog in yard"));
    frm.optRoutine_Click(frmAppointments::kReschedule);
    fake.dialogs.expect("Remove Appointment Slip",
                        "This will Delete Appointment 1 - 320-1\nfrom 12/1/2026\nThen Select a new Date", vbYes);
    selectSlip("1 - 320-1");
    const QDate target(2026, 12, 4);
    pickDate(target);
    clickDayRow(9);
    frm.cmdAppointments_Click(frmAppointments::kCmdReschedule);
    // The rows are painted with the slip's own customer...
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(9, 1), "Ann Lee-Tune Up");
    frm.cmdService_Click();
    fake.dialogs.verify();
    // ...but the slip is stored with the last listed slip's fields, and its own comment.
    const AppointmentSlip s = readBack("1 - 320-1");
    EXPECT_EQ(s.SlipDate, target);
    EXPECT_EQ(s.SlipStartRow, 9);
    EXPECT_EQ(s.Customer[0], "2002");
    EXPECT_EQ(s.Customer[1], "Bob Ray");
    EXPECT_EQ(s.Customer[7], "217-555-0199");
    EXPECT_EQ(s.SlipComment, "Back gate");
    EXPECT_EQ(day(target, 1).slot(9), "Ann Lee-Tune Up");
}

TEST_F(AppointmentsScreen, TheCommentIsTakenByFilePositionNotByListedRow) {
    slip("1 - 320-1", "Unscheduled", yesterday, 2, 0,
         customer(QStringLiteral("3003"), QStringLiteral("Cal Doe"), QStringLiteral("217-555-0111")),
         QStringLiteral("First file"));
    annLee("1 - 320-2", "Scheduled", QDate(2026, 12, 1), 2, 9);
    slip("1 - 320-3", "Scheduled", QDate(2026, 12, 2), 2, 20,
         customer(QStringLiteral("2002"), QStringLiteral("Bob Ray"), QStringLiteral("217-555-0199")),
         QStringLiteral("Third file"));
    frm.optRoutine_Click(frmAppointments::kReschedule);
    EXPECT_EQ(listed(), (QStringList{"1 - 320-2", "1 - 320-3"}));
    EXPECT_EQ(frm.comments().value(2), "Back gate");
    EXPECT_EQ(frm.comments().value(3), "Third file");
    fake.dialogs.expect("Remove Appointment Slip",
                        "This will Delete Appointment 1 - 320-3\nfrom 12/2/2026\nThen Select a new Date", vbYes);
    selectSlip("1 - 320-3");
    pickDate(QDate(2026, 12, 4));
    clickDayRow(30);
    frm.cmdAppointments_Click(frmAppointments::kCmdReschedule);
    frm.cmdService_Click();
    fake.dialogs.verify();
    // Grid row 2 is file 2, whose comment is the second file's.
    EXPECT_EQ(readBack("1 - 320-3").SlipComment, "Back gate");
}

TEST_F(AppointmentsScreen, ATenthPointOfServiceComesBackAsItsFirstDigit) {
    t.writeBytes("/ServiceAreas.txt", "\"A\"\r\n\"B\"\r\n\"C\"\r\n\"D\"\r\n\"E\"\r\n\"F\"\r\n\"G\"\r\n\"H\"\r\n\"I\"\r\n\"J\"\r\n");
    session.LoadServiceAreas();
    annLee("10 - 320-1", "Unscheduled", yesterday, 2);
    frm.optRoutine_Click(frmAppointments::kSchedule);
    selectSlip("10 - 320-1");
    const QDate target(2026, 11, 30);
    pickDate(target);
    clickDayRow(9);
    EXPECT_EQ(frm.pointOfService(), 10);
    frm.cmdAppointments_Click(frmAppointments::kCmdSchedule);
    frm.cmdService_Click();
    EXPECT_TRUE(t.isFile(daySchedulePath(2026, 10, target.dayOfYear())));
    EXPECT_EQ(readBack("10 - 320-1").SlipPointOfService, 1);
}

TEST_F(AppointmentsScreen, ChoosingADateLoadsThatDayForTheKnownPointOfService) {
    const QDate target(2026, 12, 7);
    DaySchedule d;
    d.setSlot(17, QStringLiteral("Bob Ray-Mow"));
    writeDaySchedule(t.disk(), 2026, 2, target.dayOfYear(), d);
    pickDate(target); // no Point of Service known yet
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(17, 1), "");
    frm.lstAssignments.SetListIndex(1);
    frm.lstAssignments_Click();
    EXPECT_EQ(frm.pointOfService(), 2);
    pickDate(target);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(17, 1), "Bob Ray-Mow");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(0, 1), "Scheduled Appointments for 12/7/2026");
    frm.DTPicker1.value = QDate(2026, 12, 8);
    frm.DTPicker1_CloseUp();
    EXPECT_EQ(frm.dayOfYear(), QDate(2026, 12, 8).dayOfYear());
}

TEST_F(AppointmentsScreen, ChoosingARoutineSelectsTheFirstPointOfServiceWhenNoneIs) {
    frm.optRoutine_Click(frmAppointments::kSchedule);
    EXPECT_EQ(frm.lstAssignments.listIndex, 0);
    EXPECT_EQ(frm.pointOfService(), 1);
    EXPECT_BOX(fake.dialogs, "", "No Appointments were Found");
}
