#include "frmCreateTestFixture.h"

#include <QDir>

using namespace ostrel;
using ostrel::test::CountingScreen;
using ostrel::test::CreateScreenFixture;

namespace {

struct CreateSave : CreateScreenFixture {
    // Tune Up and Inspection, two Filters, comments, placed at row 10 of today.
    void buildAndPlace(const QString& comments = QStringLiteral("Side door")) {
        open();
        addService(0);
        addService(2);
        if (!comments.isEmpty()) {
            frm.mnuAddto_Click();
            frm.txtComments.text = comments;
            frm.cmdService_Click(frmCreate::kCloseAddTo);
        }
        addItem("Parts", 0, "2");
        frm.cmdService_Click(frmCreate::kCreateAppointment);
        frm.cmdService_Click(frmCreate::kScheduleForDate);
        clickRow(10);
    }

    static QByteArray slipBytes(const QByteArray& status, const QByteArray& date, const QByteArray& name,
                                int slots, int startRow, const QByteArray& comment) {
        return "\"" + status + "\"\r\n#" + date + "#\r\n\"" + name + "\"\r\n1\r\n" + QByteArray::number(slots) +
               "\r\n" + QByteArray::number(startRow) +
               "\r\n\"1001\"\r\n\"Ann Archer\"\r\n\"12 Elm St\"\r\n\"Apt 4\"\r\n\"Springfield\"\r\n\"IL\"\r\n"
               "\"62701\"\r\n\"217-555-0101\"\r\n" +
               comment + "\r\n";
    }
};

} // namespace

TEST_F(CreateSave, ScheduleWritesTheSlipCounterSoldItemsAndDayFileByteForByte) {
    buildAndPlace();
    frm.cmdService_Click(frmCreate::kSchedule);
    fake.dialogs.verify();

    EXPECT_EQ(t.readBytes("/Appointments/1 - 322-1.txt"),
              slipBytes("Scheduled", "2026-11-18", "1 - 322-1", 5, 10, "Side door"));
    EXPECT_EQ(t.readBytes("/SlipCounter.txt"), "\"322\",2\r\n");
    EXPECT_EQ(t.readBytes("/Services/1 - 322-1.txt"),
              "\"Tune Up\"\r\n45\r\n4\r\n\"Inspection\"\r\n20\r\n1\r\n");
    EXPECT_EQ(t.readBytes("/SoldItems/1 - 322-1.txt"), "2\r\nFilter\r\n$12.50\r\n");
    EXPECT_EQ(t.readBytes("/2026/DaySchedules1/322.txt"),
              dayFileBytes({{10, "Ann Archer"},
                            {11, "Tune Up"},
                            {12, "Tune Up"},
                            {13, "Tune Up"},
                            {14, "Ann Archer Inspection"}}));
    EXPECT_FALSE(t.isFile("/FileToPrint.txt"));

    // Back to the menu with the screen tidied.
    EXPECT_FALSE(frm.isVisible());
    EXPECT_TRUE(session.startup().isVisible());
    EXPECT_FALSE(frm.fraSchedule.visible);
    EXPECT_FALSE(frm.fraSummary.visible);
    EXPECT_FALSE(frm.fraAccount.visible);
    EXPECT_FALSE(frm.cmdService[2].enabled);
    EXPECT_EQ(frm.txtServicesSummary.text, "");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(10, 1), "");
}

TEST_F(CreateSave, TheScheduledSaveWritesInItsOrderAfterTheServicesFileOfTheClick) {
    buildAndPlace();
    ASSERT_TRUE(t.isFile("/Services/1 - 322-1.txt"));
    // A SoldItems folder that cannot take the file stops the save after the slip and the counter.
    ASSERT_TRUE(QDir(t.full("/SoldItems")).removeRecursively());
    t.writeBytes("/SoldItems", "not a folder");
    EXPECT_ANY_THROW(frm.cmdService_Click(frmCreate::kSchedule));
    EXPECT_TRUE(t.isFile("/Appointments/1 - 322-1.txt"));
    EXPECT_EQ(t.readBytes("/SlipCounter.txt"), "\"322\",2\r\n");
    EXPECT_FALSE(t.isFile("/2026/DaySchedules1/322.txt"));
}

TEST_F(CreateSave, TheDayFileIsTheLastWriteOfAScheduledSave) {
    buildAndPlace();
    // A day that cannot be written: everything before it is on disk.
    t.makeDir("/2026/DaySchedules1/322.txt");
    EXPECT_ANY_THROW(frm.cmdService_Click(frmCreate::kSchedule));
    EXPECT_TRUE(t.isFile("/Appointments/1 - 322-1.txt"));
    EXPECT_EQ(t.readBytes("/SlipCounter.txt"), "\"322\",2\r\n");
    EXPECT_TRUE(t.isFile("/SoldItems/1 - 322-1.txt"));
}

TEST_F(CreateSave, EmptyCommentsAreStoredAsNoCustomerInstructions) {
    buildAndPlace(QString());
    frm.cmdService_Click(frmCreate::kSchedule);
    EXPECT_EQ(t.readBytes("/Appointments/1 - 322-1.txt"),
              slipBytes("Scheduled", "2026-11-18", "1 - 322-1", 5, 10, "No Customer Instructions"));
    EXPECT_EQ(frm.txtComments.text, "No Customer Instructions");
}

TEST_F(CreateSave, CommentsOfSeveralLinesAreKeptAsTyped) {
    buildAndPlace(QStringLiteral("Gate code 4411, dog\r\nCall first"));
    frm.cmdService_Click(frmCreate::kSchedule);
    EXPECT_EQ(t.readBytes("/Appointments/1 - 322-1.txt"),
              slipBytes("Scheduled", "2026-11-18", "1 - 322-1", 5, 10, "Gate code 4411, dog\r\nCall first"));
    EXPECT_EQ(ReadSlip(t.disk(), "1 - 322-1").SlipComment, "Gate code 4411, dog");
}

TEST_F(CreateSave, PrintInvoiceWritesTheHandOverAndOpensTheInvoiceScreen) {
    CountingScreen invoice("frmInvoice");
    session.RegisterScreen(ScreenId::frmInvoice, invoice);
    buildAndPlace();
    frm.ckPrintInvoice.value = 1;
    frm.cmdService_Click(frmCreate::kSchedule);
    EXPECT_EQ(t.readBytes("/FileToPrint.txt"), "\"1 - 322-1\"\r\n");
    EXPECT_FALSE(frm.isVisible());
    EXPECT_TRUE(invoice.isVisible());
    EXPECT_EQ(invoice.activations, 1);
    EXPECT_FALSE(session.startup().isVisible());
    fake.dialogs.verify();
}

TEST_F(CreateSave, PrintInvoiceWithoutAnInvoiceScreenSaysSoAndReturnsToTheMenu) {
    t.writeBytes("/FileToPrint.txt", "\"2 - 300-1\"\r\n");
    buildAndPlace();
    frm.ckPrintInvoice.value = 1;
    frm.cmdService_Click(frmCreate::kSchedule);
    EXPECT_BOX(fake.dialogs, "Not Available", "The Invoice screen is not part of this version of the program yet.");
    EXPECT_EQ(t.readBytes("/FileToPrint.txt"), "\"1 - 322-1\"\r\n");
    EXPECT_TRUE(t.isFile("/Appointments/1 - 322-1.txt"));
    EXPECT_FALSE(frm.isVisible());
    EXPECT_TRUE(session.startup().isVisible());
}

TEST_F(CreateSave, SaveUnscheduledWritesSlipCounterServicesAndSoldItemsButNoDay) {
    open();
    addService(0);
    addItem("Parts", 1, "1");
    frm.cmdService_Click(frmCreate::kCreateAppointment);
    frm.cmdDay_Click(1);
    frm.cmdService_Click(frmCreate::kSaveUnscheduled);
    fake.dialogs.verify();
    EXPECT_EQ(t.readBytes("/Appointments/1 - 322-1.txt"),
              slipBytes("Unscheduled", "2026-11-19", "1 - 322-1", 4, 0, "No Customer Instructions"));
    EXPECT_EQ(t.readBytes("/SlipCounter.txt"), "\"322\",2\r\n");
    EXPECT_EQ(t.readBytes("/Services/1 - 322-1.txt"), "\"Tune Up\"\r\n45\r\n4\r\n");
    EXPECT_EQ(t.readBytes("/SoldItems/1 - 322-1.txt"), "1\r\nBelt\r\n$12.50\r\n");
    EXPECT_FALSE(t.isFile("/2026/DaySchedules1/323.txt"));
    EXPECT_FALSE(t.isFile("/2026/DaySchedules1/322.txt"));
    EXPECT_FALSE(frm.ScheduledFlag);
    EXPECT_TRUE(session.startup().isVisible());
}

TEST_F(CreateSave, SaveUnscheduledFollowedByANewAppointmentGetsTheNextRunningNumber) {
    open();
    addService(2);
    frm.cmdService_Click(frmCreate::kSaveUnscheduled);
    EXPECT_TRUE(t.isFile("/Appointments/1 - 322-1.txt"));
    EXPECT_EQ(frm.Counter.SlipId, "322-1"); // in force until the screen comes up again
    open();
    EXPECT_EQ(frm.Counter.SlipId, "322-2");
    EXPECT_EQ(frm.CurrentSlipName(), "1 - 322-2");
    EXPECT_EQ(t.readBytes("/SlipCounter.txt"), "\"322\",2\r\n");
    EXPECT_TRUE(t.isFile("/Appointments/1 - 322-1.txt"));
}

TEST_F(CreateSave, AnAppointmentOfOnlyAnAdditionalServiceHasNoServicesFileNorSoldItems) {
    open();
    addAdditional("Haul away", "$15.00", 3);
    frm.cmdService_Click(frmCreate::kCreateAppointment);
    EXPECT_EQ(frm.Slots, 4);
    frm.cmdService_Click(frmCreate::kScheduleForDate);
    clickRow(5);
    EXPECT_TRUE(frm.EventScheduled);
    EXPECT_FALSE(t.isFile("/Services/1 - 322-1.txt"));
    frm.cmdService_Click(frmCreate::kSchedule);
    const AppointmentSlip slip = ReadSlip(t.disk(), "1 - 322-1");
    EXPECT_EQ(slip.Slots, 4);
    EXPECT_GT(slip.Slots, 0);
    EXPECT_FALSE(t.isFile("/Services/1 - 322-1.txt"));
    EXPECT_FALSE(t.isFile("/SoldItems/1 - 322-1.txt"));
    // Its time painted nothing, so the day was saved empty.
    EXPECT_EQ(t.readBytes("/2026/DaySchedules1/322.txt"), dayFileBytes({}));
}

TEST_F(CreateSave, TheUnscheduledOnlyAdditionalAppointmentHasNoServicesFileEither) {
    open();
    addAdditional("Haul away", "$15.00", 0);
    frm.cmdService_Click(frmCreate::kCreateAppointment);
    frm.cmdService_Click(frmCreate::kSaveUnscheduled);
    EXPECT_EQ(ReadSlip(t.disk(), "1 - 322-1").Slots, 1);
    EXPECT_FALSE(t.isFile("/Services/1 - 322-1.txt"));
    EXPECT_FALSE(t.isFile("/SoldItems/1 - 322-1.txt"));
}

TEST_F(CreateSave, TheFirstSlipOfADayAfterACounterOfAnotherDayIsNumberOne) {
    SlipCounter old;
    old.day = QStringLiteral("321");
    old.number = 7;
    SaveSlipCounter(t.disk(), old);
    open();
    EXPECT_EQ(frm.Counter.SlipId, "322-1");
    EXPECT_EQ(t.readBytes("/SlipCounter.txt"), "\"322\",1\r\n");
}

TEST_F(CreateSave, LeavingAfterAClickLeavesTheServicesFileWithoutASlip) {
    buildAndPlace();
    frm.cmdService_Click(frmCreate::kMenu);
    EXPECT_TRUE(t.isFile("/Services/1 - 322-1.txt"));
    EXPECT_FALSE(t.isFile("/Appointments/1 - 322-1.txt"));
    open();
    // The cleanup on showing the screen deletes other names, not this one.
    EXPECT_TRUE(t.isFile("/Services/1 - 322-1.txt"));
    EXPECT_EQ(frm.Counter.SlipId, "322-1");
}

TEST_F(CreateSave, MenuHidesTheFramesAndTheScreenAndShowsTheMenu) {
    open();
    frm.cmdService_Click(frmCreate::kCreateAppointment);
    frm.cmdService_Click(frmCreate::kMenu);
    EXPECT_FALSE(frm.isVisible());
    EXPECT_FALSE(frm.fraSummary.visible);
    EXPECT_FALSE(frm.fraAccount.visible);
    EXPECT_TRUE(session.startup().isVisible());
    EXPECT_FALSE(t.isFile("/Appointments/1 - 322-1.txt"));
}
