#include "frmAppointmentsTestFixture.h"

using namespace ostrel;
using ostrel::test::AppointmentsScreen;

namespace {

struct InvoiceStandIn : Screen {
    InvoiceStandIn() : Screen(QStringLiteral("frmInvoice")) {}
};

DaySchedule bookedDay() {
    DaySchedule d;
    d.setSlot(9, QStringLiteral("Ann Lee-Tune Up"));
    for (int r = 10; r <= 12; ++r)
        d.setSlot(r, QStringLiteral("   ------Scheduled------"));
    return d;
}

} // namespace

TEST_F(AppointmentsScreen, DeletingAScheduledSlipRightAfterChoosingTheRoutineWritesYesterdaysDay) {
    annLee("1 - 320-1", "Scheduled", QDate(2026, 11, 30), 4, 9);
    services("1 - 320-1", {{"Tune Up", 4}});
    const QDate slipDay(2026, 11, 30);
    writeDaySchedule(t.disk(), 2026, 1, slipDay.dayOfYear(), bookedDay());
    const QByteArray slipDayBytes = t.readBytes(daySchedulePath(2026, 1, slipDay.dayOfYear()));
    frm.optRoutine_Click(frmAppointments::kDelete);
    selectSlip("1 - 320-1");
    EXPECT_TRUE(frm.cmdAppointments[3].enabled);
    fake.dialogs.expect("Appointment Deletion", "This will Delete Appointment 1 - 320-1 from 11/30/2026 Day Schedule",
                        vbYes);
    fake.dialogs.expect("Confirm Deletion", "Are you Sure?", vbYes);
    fake.dialogs.expect("", "The Appointment has been Removed from 11/30/2026\nNow DELETE the Appointment Slip", vbOK);
    fake.dialogs.expect("Confirm Deletion", "Delete the Appointment Slip?", vbYes);
    fake.dialogs.expect("", "No Appointments were Found", vbOK); // the list reloads, empty
    frm.cmdAppointments_Click(frmAppointments::kCmdDelete);
    fake.dialogs.verify();
    // The picker still held yesterday: that day's file was written, the slip's own day kept its rows.
    ASSERT_TRUE(t.isFile(daySchedulePath(2026, 1, yesterday.dayOfYear())));
    EXPECT_TRUE(day(yesterday, 1).isEmpty());
    EXPECT_EQ(t.readBytes(daySchedulePath(2026, 1, slipDay.dayOfYear())), slipDayBytes);
    EXPECT_FALSE(t.isFile("/Appointments/1 - 320-1.txt"));
    EXPECT_FALSE(t.isFile("/Services/1 - 320-1.txt"));
    EXPECT_FALSE(frm.cmdAppointments[3].enabled);
}

TEST_F(AppointmentsScreen, ClearRowsWorksOnThePickersDateNotTheSlips) {
    annLee("1 - 320-1", "Scheduled", QDate(2026, 11, 30), 4, 9);
    const QDate pickerDay(2026, 12, 14);
    writeDaySchedule(t.disk(), 2026, 1, pickerDay.dayOfYear(), bookedDay());
    frm.optRoutine_Click(frmAppointments::kDelete);
    pickDate(pickerDay);
    selectSlip("1 - 320-1");
    fake.dialogs.expect("Appointment Deletion", "This will Delete Appointment 1 - 320-1 from 11/30/2026 Day Schedule",
                        vbYes);
    fake.dialogs.expect("Confirm Deletion", "Are you Sure?", vbYes);
    fake.dialogs.expect("", "The Appointment has been Removed from 11/30/2026\nNow DELETE the Appointment Slip", vbOK);
    fake.dialogs.expect("Confirm Deletion", "Delete the Appointment Slip?", vbNo);
    frm.cmdAppointments_Click(frmAppointments::kCmdDelete);
    fake.dialogs.verify();
    EXPECT_TRUE(day(pickerDay, 1).isEmpty());
    EXPECT_TRUE(t.isFile("/Appointments/1 - 320-1.txt")); // No keeps the slip
    EXPECT_FALSE(frm.cmdAppointments[3].enabled);
}

TEST_F(AppointmentsScreen, ANoToTheFirstDeletionQuestionTouchesNothing) {
    annLee("1 - 320-1", "Scheduled", QDate(2026, 11, 30), 4, 9);
    frm.optRoutine_Click(frmAppointments::kDelete);
    selectSlip("1 - 320-1");
    fake.dialogs.expect("Appointment Deletion", "This will Delete Appointment 1 - 320-1 from 11/30/2026 Day Schedule",
                        vbNo);
    frm.cmdAppointments_Click(frmAppointments::kCmdDelete);
    fake.dialogs.verify();
    EXPECT_TRUE(t.isFile("/Appointments/1 - 320-1.txt"));
    EXPECT_FALSE(t.isFile(daySchedulePath(2026, 1, yesterday.dayOfYear())));
    EXPECT_FALSE(frm.cmdAppointments[3].enabled);
}

TEST_F(AppointmentsScreen, AnUnscheduledSlipGoesStraightToTheSlipQuestionAndItsThreeFilesGo) {
    annLee("2 - 320-1", "Unscheduled", yesterday, 2);
    annLee("2 - 320-2", "Invoiced", yesterday, 2, 5);
    services("2 - 320-1", {{"Mow", 2}});
    WriteSoldItemsFile(t.disk(), "2 - 320-1", {{"1", "Blade", "$9.00"}});
    frm.optRoutine_Click(frmAppointments::kDelete);
    selectSlip("2 - 320-1");
    fake.dialogs.expect("Confirm Deletion", "Delete the Appointment Slip?", vbYes);
    frm.cmdAppointments_Click(frmAppointments::kCmdDelete);
    fake.dialogs.verify();
    for (const char* folder : {"/Appointments/", "/Services/", "/SoldItems/"})
        EXPECT_FALSE(t.isFile(QString::fromLatin1(folder) + "2 - 320-1.txt")) << folder;
    EXPECT_EQ(listed(), QStringList{"2 - 320-2"});
    EXPECT_FALSE(t.isFile(daySchedulePath(2026, 2, yesterday.dayOfYear()))); // no day was touched
}

TEST_F(AppointmentsScreen, CreateInvoiceHandsTheSlipOverThroughFileToPrint) {
    InvoiceStandIn invoice;
    session.RegisterScreen(ScreenId::frmInvoice, invoice);
    annLee("1 - 320-1", "Scheduled", today, 4, 9);
    frm.optRoutine_Click(frmAppointments::kInvoice);
    selectSlip("1 - 320-1");
    EXPECT_TRUE(frm.cmdAppointments[2].enabled);
    EXPECT_FALSE(frm.cmdAppointments[0].enabled);
    frm.cmdAppointments_Click(frmAppointments::kCmdInvoice);
    EXPECT_EQ(t.readBytes("/FileToPrint.txt"), QByteArray("\"1 - 320-1\"\r\n"));
    EXPECT_FALSE(frm.isVisible());
    EXPECT_TRUE(invoice.isVisible());
}

TEST_F(AppointmentsScreen, CreateInvoiceWithoutTheInvoiceScreenSaysSoAndStays) {
    annLee("1 - 320-1", "Invoiced", yesterday, 4, 9);
    frm.optRoutine_Click(frmAppointments::kInvoice);
    selectSlip("1 - 320-1");
    frm.cmdAppointments_Click(frmAppointments::kCmdInvoice);
    EXPECT_EQ(t.readBytes("/FileToPrint.txt"), QByteArray("\"1 - 320-1\"\r\n"));
    ASSERT_EQ(fake.dialogs.boxes().size(), 1);
    EXPECT_EQ(fake.dialogs.boxes()[0].title, "Not Available");
    EXPECT_TRUE(fake.dialogs.takeBox("Not Available", fake.dialogs.boxes()[0].prompt));
    EXPECT_TRUE(frm.isVisible());
}
