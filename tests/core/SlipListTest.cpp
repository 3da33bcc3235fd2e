#include "TestDataRoot.h"
#include "scheduling/AppointmentSlip.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

TEST(ListSlipFiles, GivesTheSlipNamesOfTheTextFilesInNameOrder) {
    TestDataRoot t;
    t.writeBytes("/Appointments/2 - 320-1.txt", "x");
    t.writeBytes("/Appointments/1 - 320-2.TXT", "x");
    t.writeBytes("/Appointments/10 - 319-4.txt", "x");
    t.writeBytes("/Appointments/notes.doc", "x");
    t.makeDir("/Appointments/old.txt");
    EXPECT_EQ(QStringList({"1 - 320-2", "10 - 319-4", "2 - 320-1"}), ListSlipFiles(t.disk()));
}

TEST(ListSlipFiles, NoFolderIsNoSlips) {
    TestDataRoot t;
    EXPECT_TRUE(ListSlipFiles(t.disk()).isEmpty());
}
