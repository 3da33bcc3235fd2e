#include "frmCreateTestFixture.h"

#include "scheduling/frmBlock.h"
#include "util/VbText.h"

using namespace ostrel;
using ostrel::test::CreateScreenFixture;

namespace {

// The blocked-days screen and the creation screen in one session, over the same day files.
struct BlockedDayBooking : CreateScreenFixture {
    frmBlock& block = session.AddScreen(ScreenId::frmBlock, std::make_unique<frmBlock>(session));
    const QDate friday{2026, 11, 20};

    // The names reach the lists of the screens that are there when they are loaded, as at start-up.
    BlockedDayBooking() {
        session.LoadServiceAreas();
        account.cboAssignments.SetListIndex(0);
    }

    // Reserves (action 0) or restores (action 1) Friday for Crew One, answering Yes to both questions.
    void blockFriday(int action) {
        block.Show();
        block.Calender.value = friday;
        block.Calender_DateClick();
        block.lstAssignto.SetListIndex(0);
        block.sldTimeReq.SetValue(1);
        block.sldTimeReq_Change();
        block.optAction_Click(action);
        const QString what = action == 0 ? QStringLiteral("Prevent Work Scheduling")
                                         : QStringLiteral("Clear Previous Blocked Days");
        fake.dialogs.expect("Action Selection",
                            QStringLiteral("You have Selected to\n") + what +
                                QStringLiteral("\nof 1 Consecutive WORKDAYS\nStarting on 11/20/2026\nfor Crew One"),
                            vbYes);
        fake.dialogs.expect("Verify Change",
                            QStringLiteral("Events are Scheduled for 11/20/2026\nDo you want to DELETE these Events)"),
                            vbYes);
        block.cmdAccept_Click();
        fake.dialogs.verify();
        block.cmdExit_Click();
    }
    // Tune Up on the creation screen, for Friday, and the day grid opened.
    void openFriday() {
        frm.DTPicker1.value = friday;
        frm.DTPicker1_Change();
        frm.cmdService_Click(frmCreate::kScheduleForDate);
    }
    QString fridayFile() const { return daySchedulePath(2026, 1, friday.dayOfYear()); }
};

} // namespace

TEST_F(BlockedDayBooking, AReservedDayRefusesABookingOnTheCreationScreenUntilItIsRestored) {
    // An appointment stands on Friday; reserving the day asks about it and takes its place.
    DaySchedule standing;
    standing.setSlot(9, QStringLiteral("Bob Baker-Tune Up"));
    standing.setSlot(10, QStringLiteral("   ------Scheduled------"));
    writeDaySchedule(t.disk(), 2026, 1, friday.dayOfYear(), standing);
    blockFriday(0);
    const DaySchedule reserved = readDaySchedule(t.disk(), 2026, 1, friday.dayOfYear());
    for (int row = 1; row <= 48; ++row)
        EXPECT_EQ(reserved.slot(row), "Vacation") << row;

    open();
    addService(0);
    frm.cmdService_Click(frmCreate::kCreateAppointment);
    openFriday();
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(12, 1), "Vacation");
    clickRow(12);
    EXPECT_BOX(fake.dialogs, "", "Not enough contiguous Time Slots to Schedule Here");
    EXPECT_FALSE(frm.EventScheduled);
    EXPECT_FALSE(t.isFile("/Services/" + slipName() + ".txt"));

    // Given back, the day has no file at all, and the same booking goes through.
    blockFriday(1);
    EXPECT_FALSE(t.isFile(fridayFile()));
    frm.cmdService_Click(frmCreate::kDifferentDate);
    openFriday();
    EXPECT_EQ(frm.fgDaySchedule.TextMatrix(12, 1), "");
    clickRow(12);
    EXPECT_TRUE(frm.EventScheduled);
    frm.cmdService_Click(frmCreate::kSchedule);
    const DaySchedule booked = readDaySchedule(t.disk(), 2026, 1, friday.dayOfYear());
    EXPECT_EQ(booked.slot(12), "Ann Archer");
    EXPECT_EQ(booked.slot(13), "Tune Up");
    EXPECT_EQ(booked.slot(11), "");
    EXPECT_EQ(ReadSlip(t.disk(), slipName()).SlipDate, friday);
    fake.dialogs.verify();
}
