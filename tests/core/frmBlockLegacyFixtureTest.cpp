#include "frmBlockTestFixture.h"

#include <QFile>

using namespace ostrel;
using ostrel::test::BlockScreen;

TEST_F(BlockScreen, TheLegacyShopHasOneBlockedDayBeforeTheYearEnds) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    QFile::remove(t.full("/ServiceAreas.txt")); // the shop brings its own
    t.copyTree(ostrel::test::legacyFixture());
    session.LoadServiceAreas();
    frm.Form_Activate();
    frm.DTEnd.value = QDate(2026, 12, 31);
    frm.cmdSearch_Click();
    ASSERT_EQ(frm.fgBlocked.Rows(), 3);
    EXPECT_EQ(frm.fgBlocked.TextMatrix(1, 0), "Crew One");
    EXPECT_EQ(frm.fgBlocked.TextMatrix(1, 1), "12/24/2026");
    EXPECT_EQ(frm.fgBlocked.TextMatrix(1, 2), "Holiday");
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
}

TEST_F(BlockScreen, RestoringTheLegacyHolidayAsksAboutItAndDeletesItsFile) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    QFile::remove(t.full("/ServiceAreas.txt")); // the shop brings its own
    t.copyTree(ostrel::test::legacyFixture());
    session.LoadServiceAreas();
    frm.Form_Activate();
    const QDate eve(2026, 12, 24);
    choose(eve, 0, 1);
    frm.optAction_Click(1);
    fake.dialogs.expect("Action Selection", acceptQuestion(kRestore, 1, eve, "Crew One"), vbYes);
    fake.dialogs.expect("Verify Change", conflictQuestion(eve), vbYes);
    frm.cmdAccept_Click();
    fake.dialogs.verify();
    EXPECT_FALSE(t.isFile("/2026/DaySchedules1/358.txt"));
}
