#include "frmCreateTestFixture.h"

#include "scheduling/SlotFit.h"

using namespace ostrel;
using ostrel::test::CreateScreenFixture;

namespace {

struct CreateSchedule : CreateScreenFixture {
    // A day file of this year for the first Point of Service, written by the program's writer.
    void writeDay(int dayOfYear, const std::map<int, QString>& rows, int year = 2026) {
        DaySchedule day;
        for (const auto& [r, text] : rows)
            day.setSlot(r, text);
        writeDaySchedule(t.disk(), year, 1, dayOfYear, day);
    }
    void openGrid() {
        frm.cmdService_Click(frmCreate::kCreateAppointment);
        frm.cmdService_Click(frmCreate::kScheduleForDate);
    }
};

} // namespace

TEST_F(CreateSchedule, ScheduleForThisDateLoadsTheDayAndNamesItInTheHeading) {
    writeDay(kTodayNumber + 1, {{5, "Bob Baker Tune Up"}});
    open();
    addService(0);
    frm.cmdDay_Click(1);
    openGrid();
    EXPECT_TRUE(frm.fraSchedule.visible);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(0, 1), "Scheduled Appointments for 11/19/2026");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(5, 1), "Bob Baker Tune Up");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(4, 1), "");
    frm.cmdService_Click(14);
    EXPECT_FALSE(frm.fraSchedule.visible);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(5, 1), "");
}

TEST_F(CreateSchedule, AClickOnAFreeRowWritesTheServicesFileAndPaintsTheRows) {
    open();
    addService(0); // 4 slots
    addService(2); // 1 slot
    openGrid();
    clickRow(10);
    EXPECT_EQ(t.readBytes("/Services/1 - 322-1.txt"), "\"Tune Up\"\r\n45\r\n4\r\n\"Inspection\"\r\n20\r\n1\r\n");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(10, 1), "Ann Archer");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(11, 1), "Tune Up");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(13, 1), "Tune Up");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(14, 1), "Ann Archer Inspection");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(15, 1), "");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(9, 1), "");
    EXPECT_TRUE(frm.EventScheduled);
    EXPECT_TRUE(frm.ScheduledFlag);
    EXPECT_EQ(frm.StartRow, 10);
    EXPECT_TRUE(frm.cmdService[2].enabled);
    // Nothing else is written before the save.
    EXPECT_FALSE(t.isFile("/Appointments/1 - 322-1.txt"));
    EXPECT_FALSE(t.isFile("/2026/DaySchedules1/322.txt"));
    fake.dialogs.verify();
}

TEST_F(CreateSchedule, ASecondClickAfterPlacingIsRefused) {
    open();
    addService(2);
    openGrid();
    clickRow(3);
    clickRow(20);
    EXPECT_BOX(fake.dialogs, "", "Event has already been Scheduled");
    EXPECT_EQ(fake.dialogs.beeps(), 1);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(20, 1), "");
}

TEST_F(CreateSchedule, SlotsOfZeroAreRefusedEvenWithCommentsEntered) {
    open();
    frm.mnuAddto_Click();
    frm.txtComments.text = "Ring twice";
    frm.cmdService_Click(5);
    EXPECT_FALSE(frm.fraAddTo.visible);
    ASSERT_EQ(frm.Slots, 0);
    openGrid();
    EXPECT_EQ(frm.Slots, 0); // the flag is set, but no time was chosen: position -1 adds nothing
    clickRow(10);
    EXPECT_BOX(fake.dialogs, "", "Select Services before Scheduling");
    EXPECT_FALSE(frm.EventScheduled);
    EXPECT_FALSE(t.isFile("/Services/1 - 322-1.txt"));
}

TEST_F(CreateSchedule, OnAReservedDayTheFirstClickFindsNoContiguousSlots) {
    std::map<int, QString> vacation;
    for (int r = 1; r <= 48; ++r)
        vacation[r] = "Vacation";
    writeDay(kTodayNumber, vacation);
    open();
    addService(2);
    openGrid();
    clickRow(1);
    EXPECT_BOX(fake.dialogs, "", "Not enough contiguous Time Slots to Schedule Here");
    EXPECT_EQ(fake.dialogs.beeps(), 1);
    EXPECT_FALSE(frm.EventScheduled);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(1, 1), "Vacation");
}

TEST_F(CreateSchedule, AnOccupiedStartRowIsRefusedByTheScanNotByTheAlreadyScheduledTest) {
    writeDay(kTodayNumber, {{12, "Bob Baker Oil Change"}});
    open();
    addService(2); // one slot
    openGrid();
    clickRow(12);
    // The scan has looked at the start row already, so its own refusal is what the user reads.
    EXPECT_BOX(fake.dialogs, "", "Not enough contiguous Time Slots to Schedule Here");
    fake.dialogs.verify();
    for (const auto& box : fake.dialogs.boxes())
        EXPECT_NE(box.prompt, "An Event is Already Scheduled Here");
}

TEST_F(CreateSchedule, RowFortyEightIsRefusedForEveryAppointmentWithNotEnoughTime) {
    open();
    addService(2); // one slot
    openGrid();
    clickRow(48);
    EXPECT_BOX(fake.dialogs, "", "Not enough Time remaining this day for this assignment");
    clickRow(47);
    EXPECT_TRUE(frm.EventScheduled);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(47, 1), "Ann Archer Inspection");
}

TEST_F(CreateSchedule, RowFortyEightIsRefusedForALongerAppointmentToo) {
    open();
    addService(0);
    openGrid();
    clickRow(48);
    EXPECT_BOX(fake.dialogs, "", "Not enough Time remaining this day for this assignment");
    clickRow(45);
    EXPECT_BOX(fake.dialogs, "", "Not enough Time remaining this day for this assignment");
    EXPECT_FALSE(frm.EventScheduled);
    clickRow(44);
    EXPECT_TRUE(frm.EventScheduled);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(47, 1), "Tune Up");
}

TEST_F(CreateSchedule, TheCreationScreenScansOnlyTheBlockItself) {
    // Four slots at row 40 need rows 40 to 43 here; row 44 may be taken.
    writeDay(kTodayNumber, {{44, "Bob Baker Oil Change"}});
    open();
    addService(0);
    openGrid();
    clickRow(40);
    EXPECT_TRUE(frm.EventScheduled);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(43, 1), "Tune Up");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(44, 1), "Bob Baker Oil Change");
}

TEST_F(CreateSchedule, ATakenRowInsideTheBlockIsRefused) {
    writeDay(kTodayNumber, {{43, "Bob Baker Oil Change"}});
    open();
    addService(0);
    openGrid();
    clickRow(40);
    EXPECT_BOX(fake.dialogs, "", "Not enough contiguous Time Slots to Schedule Here");
    EXPECT_FALSE(frm.EventScheduled);
    EXPECT_FALSE(t.isFile("/Services/1 - 322-1.txt"));
}

TEST_F(CreateSchedule, TheAdditionalServicesTimeCountsButPaintsNothing) {
    open();
    addService(2);
    addAdditional("Haul away", "$15.00", 3); // four slots more
    openGrid();
    EXPECT_EQ(frm.Slots, 5);
    clickRow(44);
    EXPECT_BOX(fake.dialogs, "", "Not enough Time remaining this day for this assignment");
    clickRow(10);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(10, 1), "Ann Archer Inspection");
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(11, 1), "");
}

TEST_F(CreateSchedule, TwoAppointmentsInOneRunCarryTheFirstsSlots) {
    open();
    addService(0);
    openGrid();
    clickRow(10);
    frm.cmdService_Click(2);
    EXPECT_TRUE(session.startup().isVisible());
    EXPECT_EQ(frm.Slots, 4);

    open();
    EXPECT_EQ(frm.Counter.SlipId, "322-2");
    addService(2);
    EXPECT_EQ(frm.Slots, 5);
    openGrid();
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(10, 1), "Ann Archer");
    // Rows 20 to 24 are free: the five slots fit and only the one service is painted.
    clickRow(20);
    EXPECT_TRUE(frm.EventScheduled);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(20, 1), "Ann Archer Inspection");
    frm.cmdService_Click(2);
    EXPECT_NE(t.readBytes("/Appointments/1 - 322-2.txt").indexOf("\r\n5\r\n20\r\n"), -1);
}

TEST_F(CreateSchedule, ADecemberBookingForJanuaryUsesThisYearsFileOfThatDayNumber) {
    fake.clock.setDate(QDate(2026, 12, 16));
    // Something already kept for the 5th of January of this year, day 5.
    writeDay(5, {{1, "Cy Carter Tune Up"}});
    open();
    addService(2);
    frm.DTPicker1.value = QDate(2027, 1, 5);
    frm.DTPicker1_Change();
    ASSERT_EQ(frm.DTPicker1.value, QDate(2027, 1, 5));
    openGrid();
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(1, 1), "Cy Carter Tune Up");
    clickRow(2);
    frm.cmdService_Click(2);
    EXPECT_EQ(t.readBytes("/2026/DaySchedules1/5.txt"),
              dayFileBytes({{1, "Cy Carter Tune Up"}, {2, "Ann Archer Inspection"}}));
    EXPECT_FALSE(t.isFile("/2027/DaySchedules1/5.txt"));
    EXPECT_EQ(ReadSlip(t.disk(), "1 - 350-1").SlipDate, QDate(2027, 1, 5));
}

TEST_F(CreateSchedule, PaintingThatRunsPastTheDayStopsWithNotEnoughTime) {
    open();
    // Inspection is checked but Tune Up is the current entry: the grid takes Tune Up, the count one slot.
    frm.SetServiceChecked(2, true);
    frm.lstServices.SetListIndex(0);
    frm.lstServices_Click();
    frm.cmdService_Click(frmCreate::kAddService);
    ASSERT_EQ(frm.Slots, 1);
    openGrid();
    clickRow(47);
    EXPECT_BOX(fake.dialogs, "", "Not enough Time remaining this day for this assignment");
    EXPECT_EQ(fake.dialogs.beeps(), 1);
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(47, 1), "");
    // The placing itself went through.
    EXPECT_TRUE(frm.EventScheduled);
    EXPECT_TRUE(t.isFile("/Services/1 - 322-1.txt"));
}
