#include "frmWorkOrdersTestFixture.h"

using namespace ostrel;
using ostrel::test::kMonday;
using ostrel::test::WorkOrdersScreen;

namespace {

// Two appointments of Monday on the first Point of Service, for two customers; only the first has
// parts to pick.
struct WorkOrderSelection : WorkOrdersScreen {
    QString first, second;

    WorkOrderSelection() {
        first = save(slip("327-1", 1, kMonday));
        AppointmentSlip other = slip("327-2", 1, kMonday);
        other.Customer[0] = "2175550123";
        other.Customer[1] = "Mrs. Ana Ortiz";
        second = save(other, false);
        frm.Show();
    }
    int rowsOf(const Grid& g) const { return g.Rows() - 1; }
};

} // namespace

TEST_F(WorkOrderSelection, TheDaysAppointmentsAreListedWithNoneSelected) {
    EXPECT_EQ(frm.lstWorkorders.items, (QStringList{first, second}));
    EXPECT_FALSE(frm.EntrySelected(0));
    EXPECT_FALSE(frm.EntrySelected(1));
    EXPECT_EQ(rowsOf(frm.fgServices), 0);
}

TEST_F(WorkOrderSelection, TwoTickedAppointmentsLoadTogetherAndPrintAWorkOrderEach) {
    frm.lstWorkorders_ItemCheck(0, true);
    frm.lstWorkorders_ItemCheck(1, true);
    EXPECT_EQ(rowsOf(frm.fgServices), 4); // two services of each
    EXPECT_EQ(frm.fgServices.TextMatrix(3, 0), "Tune Up");
    frm.cmdWorkOrders_Click(9);
    ASSERT_TRUE(frm.fraTerms.visible);
    frm.ckCompletion.value = 0;
    frm.ckPick.value = 0;
    fake.dialogs.expect("Printing Confirmation", "Was the Work Order Printed Correctly", vbYes);
    fake.dialogs.expect("Printing Confirmation", "Was the Work Order Printed Correctly", vbYes);
    frm.cmdWorkOrders_Click(2);
    fake.dialogs.verify();
    const auto& jobs = fake.printDialogs.jobs();
    ASSERT_EQ(jobs.size(), 1u);
    EXPECT_EQ(jobs[0]->documentsEnded(), 2);
    EXPECT_TRUE(jobs[0]->printed("Work Order No 1 - 327-1"));
    EXPECT_TRUE(jobs[0]->printed("Work Order No 1 - 327-2"));
    EXPECT_TRUE(jobs[0]->printed("Customer AcctNo 2175550123"));
}

TEST_F(WorkOrderSelection, ClearingABoxLeavesThatAppointmentOut) {
    frm.lstWorkorders_ItemCheck(0, true);
    frm.lstWorkorders_ItemCheck(1, true);
    frm.lstWorkorders_ItemCheck(0, false);
    EXPECT_FALSE(frm.EntrySelected(0));
    EXPECT_TRUE(frm.EntrySelected(1));
    EXPECT_EQ(rowsOf(frm.fgServices), 2);
    EXPECT_EQ(frm.currentSlip().SlipName, second);
}

TEST_F(WorkOrderSelection, AClickOnAnEntrySelectsItAndKeepsTheOthersSelected) {
    frm.lstWorkorders.SetListIndex(0);
    frm.lstWorkorders_Click();
    frm.lstWorkorders.SetListIndex(1);
    frm.lstWorkorders_Click();
    EXPECT_TRUE(frm.EntrySelected(0));
    EXPECT_TRUE(frm.EntrySelected(1));
    EXPECT_EQ(rowsOf(frm.fgServices), 4);
}

TEST_F(WorkOrderSelection, ThePickListIsThatOfTheEntryAtTheListIndex) {
    frm.lstWorkorders_ItemCheck(1, true);
    frm.lstWorkorders_ItemCheck(0, true);
    EXPECT_TRUE(frm.ckPick.enabled);
    EXPECT_EQ(frm.fgPicklist.TextMatrix(1, 1), "Furnace filter 16x25");
    frm.lstWorkorders_ItemCheck(1, true);
    EXPECT_FALSE(frm.ckPick.enabled); // the second has no parts
    EXPECT_EQ(rowsOf(frm.fgPicklist), 0);
}

TEST_F(WorkOrderSelection, ALoadOfTheListStartsWithNothingSelected) {
    frm.lstWorkorders_ItemCheck(0, true);
    frm.cmdWorkOrders_Click(1);
    EXPECT_EQ(frm.lstWorkorders.ListCount(), 2);
    EXPECT_FALSE(frm.EntrySelected(0));
}
