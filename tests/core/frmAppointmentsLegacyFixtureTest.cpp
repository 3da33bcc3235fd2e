#include "frmAppointmentsTestFixture.h"

#include <QFile>

using namespace ostrel;
using ostrel::test::AppointmentsScreen;

namespace {

struct LegacyShopAppointments : AppointmentsScreen {
    void SetUp() override {
        if (ostrel::test::legacyFixture().isEmpty()) GTEST_SKIP() << "legacy shop fixture not present";
        // The shop's own list of Points of Service replaces the one the screen was made with.
        QFile::remove(t.full("/ServiceAreas.txt"));
        t.copyTree(ostrel::test::legacyFixture());
        session.LoadServiceAreas();
    }
};

} // namespace

// Today is 22 November 2026 for all of these.
TEST_F(LegacyShopAppointments, ScheduleListsTheThreeUnscheduledSlips) {
    frm.optRoutine_Click(frmAppointments::kSchedule);
    EXPECT_EQ(listed(), (QStringList{"2 - 324-15", "3 - 324-19", "3 - 324-9"}));
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
}

TEST_F(LegacyShopAppointments, RescheduleListsTheScheduledSlipsFromTodayOn) {
    frm.optRoutine_Click(frmAppointments::kReschedule);
    EXPECT_EQ(listed(), (QStringList{"1 - 324-1", "1 - 324-12", "1 - 324-13", "1 - 324-21", "1 - 324-7", "2 - 324-10",
                                     "2 - 324-11", "2 - 324-16", "2 - 324-6", "2 - 324-8", "3 - 324-18", "3 - 324-2",
                                     "3 - 324-3", "3 - 324-5"}));
}

TEST_F(LegacyShopAppointments, InvoiceListsThePastScheduledAndInvoicedSlips) {
    frm.optRoutine_Click(frmAppointments::kInvoice);
    EXPECT_EQ(listed(), (QStringList{"1 - 324-14", "1 - 324-17", "2 - 324-20", "2 - 324-4"}));
    EXPECT_EQ(frm.fgAppointments.TextMatrix(1, 3), "Invoiced");
}

TEST_F(LegacyShopAppointments, DeleteListsAllTwentyOneSlips) {
    frm.optRoutine_Click(frmAppointments::kDelete);
    EXPECT_EQ(listed().size(), 21);
    EXPECT_EQ(frm.slipFiles().size(), 21);
}
