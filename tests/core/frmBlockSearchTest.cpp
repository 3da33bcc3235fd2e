#include "frmBlockTestFixture.h"

#include "platform/StoreErrorBox.h"

using namespace ostrel;
using ostrel::test::BlockScreen;

namespace {

DaySchedule filledWith(const QString& text) {
    DaySchedule day;
    for (int r = 1; r <= 48; ++r)
        day.setSlot(r, text);
    return day;
}

} // namespace

TEST_F(BlockScreen, SearchListsReservedDaysByPointOfServiceThenDate) {
    writeDay(QDate(2026, 12, 3), 1, filledWith("Holiday"));
    writeDay(QDate(2026, 11, 30), 1, filledWith("Vacation"));
    writeDay(QDate(2026, 11, 24), 3, filledWith("Sick Day"));
    writeDay(QDate(2026, 12, 1), 2, filledWith("Personal Day"));
    writeDay(QDate(2026, 12, 2), 2, appointmentDay()); // an appointment day is no blocked day
    DaySchedule changed = filledWith("Vacation");
    changed.setSlot(1, QStringLiteral("Ann Lee-Tune Up")); // line 1 changed: not listed
    writeDay(QDate(2026, 12, 4), 3, changed);
    frm.mnuBlocked_Click();
    ASSERT_TRUE(frm.fraBlockedDays.visible);
    frm.cmdSearch_Click();
    const Grid& g = frm.fgBlocked;
    ASSERT_EQ(g.Rows(), 6); // the head, four days, and the empty last row
    const QStringList expected[] = {{"North Crew", "11/30/2026", "Vacation"},
                                    {"North Crew", "12/3/2026", "Holiday"},
                                    {"South Crew", "12/1/2026", "Personal Day"},
                                    {"Shop Bench", "11/24/2026", "Sick Day"}};
    for (int r = 1; r <= 4; ++r)
        for (int c = 0; c < 3; ++c)
            EXPECT_EQ(g.TextMatrix(r, c), expected[r - 1][c]) << r << "," << c;
    EXPECT_EQ(g.TextMatrix(5, 0), "");
}

TEST_F(BlockScreen, SearchWithTheEndOnTheStartLooksAtThatOneDay) {
    writeDay(QDate(2026, 11, 30), 1, filledWith("Vacation"));
    writeDay(QDate(2026, 12, 1), 1, filledWith("Vacation"));
    writeDay(QDate(2026, 11, 27), 1, filledWith("Vacation"));
    frm.DTStart.value = QDate(2026, 11, 30);
    frm.DTEnd.value = QDate(2026, 11, 30);
    frm.DTEnd_CloseUp();
    frm.cmdSearch_Click();
    ASSERT_EQ(frm.fgBlocked.Rows(), 3);
    EXPECT_EQ(frm.fgBlocked.TextMatrix(1, 1), "11/30/2026");
}

TEST_F(BlockScreen, SearchReadsEachDateInItsOwnYear) {
    writeDay(QDate(2027, 1, 4), 2, filledWith("Holiday"));
    frm.DTStart.value = QDate(2026, 12, 28);
    frm.DTEnd.value = QDate(2027, 1, 8);
    frm.cmdSearch_Click();
    ASSERT_EQ(frm.fgBlocked.Rows(), 3);
    EXPECT_EQ(frm.fgBlocked.TextMatrix(1, 0), "South Crew");
    EXPECT_EQ(frm.fgBlocked.TextMatrix(1, 1), "1/4/2027");
}

TEST_F(BlockScreen, AStartBeforeTodayIsRefusedAndBothDatesGoBack) {
    session.settings.program.ckAlarms = 1;
    frm.DTStart.value = QDate(2026, 11, 21);
    frm.DTEnd.value = QDate(2026, 11, 25);
    fake.dialogs.expect("", "Your Calendar Selection is Invalid", vbOK);
    frm.DTStart_CloseUp();
    fake.dialogs.verify();
    EXPECT_EQ(fake.dialogs.beeps(), 1);
    EXPECT_EQ(frm.DTStart.value, QDate(2026, 11, 22));
    EXPECT_EQ(frm.DTEnd.value, QDate(2026, 12, 22));
}

TEST_F(BlockScreen, AnEndBeforeTheStartIsRefusedAndBothDatesGoBack) {
    session.settings.program.ckAlarms = 0;
    frm.DTStart.value = QDate(2026, 12, 10);
    frm.DTEnd.value = QDate(2026, 12, 9);
    fake.dialogs.expect("", "Your Calendar Selection is Invalid", vbOK);
    frm.DTEnd_CloseUp();
    fake.dialogs.verify();
    EXPECT_EQ(fake.dialogs.beeps(), 0);
    EXPECT_EQ(frm.DTStart.value, QDate(2026, 11, 22));
    EXPECT_EQ(frm.DTEnd.value, QDate(2026, 12, 22));
}

TEST_F(BlockScreen, TheGridButtonsAndTheMenuEntryClearHideAndToggle) {
    writeDay(QDate(2026, 11, 30), 1, filledWith("Vacation"));
    frm.mnuBlocked_Click();
    frm.cmdSearch_Click();
    ASSERT_EQ(frm.fgBlocked.Rows(), 3);
    frm.cmdClearGrid_Click();
    EXPECT_EQ(frm.fgBlocked.Rows(), 2);
    EXPECT_EQ(frm.fgBlocked.TextMatrix(1, 0), "");
    EXPECT_EQ(frm.fgBlocked.TextMatrix(0, 0), "Team");
    frm.cmdHideGrid_Click();
    EXPECT_FALSE(frm.fraBlockedDays.visible);
    frm.cmdSearch_Click();
    frm.mnuBlocked_Click(); // shows it again, emptied
    EXPECT_TRUE(frm.fraBlockedDays.visible);
    EXPECT_EQ(frm.fgBlocked.Rows(), 2);
    frm.mnuBlocked_Click();
    EXPECT_FALSE(frm.fraBlockedDays.visible);
}

TEST_F(BlockScreen, ADayFileCutShortStopsTheSearchWithAMessageNamingIt) {
    t.writeBytes("/2026/DaySchedules1/334.txt", "");
    frm.cmdSearch_Click();
    ASSERT_EQ(fake.dialogs.boxes().size(), 1);
    const auto box = fake.dialogs.boxes()[0];
    EXPECT_EQ(box.title, kStoreErrorTitle);
    EXPECT_TRUE(box.prompt.contains("334.txt"));
    EXPECT_TRUE(fake.dialogs.takeBox(box.title, box.prompt));
    EXPECT_EQ(frm.fgBlocked.Rows(), 2);
}
