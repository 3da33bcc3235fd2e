// Numeric fields that no number type can hold make their file a bad file: the reader stops with a
// message naming the file, and nothing is written over it.
#include "TestDataRoot.h"
#include "scheduling/DaySchedulePurge.h"
#include "setup/PrintColors.h"
#include "setup/ProgramSettings.h"
#include "setup/TaxSettings.h"
#include "store/StoreError.h"
#include "store/TextStatements.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {

const QList<QByteArray> kAbsurd = {"nan", "NaN", "inf", "-inf", "1e300", "-1e300", "-99999999999", "\"nan\"",
                                   "\"1e300\"", "9223372036854775808"};

} // namespace

TEST(AbsurdNumbers, AWholeNumberReadOfNanInfOrHugeIsABadFileNamedInTheMessage) {
    for (const QByteArray& field : kAbsurd) {
        TextReader r(field + "\r\n", QStringLiteral("/Some.txt"));
        try {
            r.readInteger(-32768, 32767);
            ADD_FAILURE() << field.constData() << " was taken as a whole number";
        } catch (const StoreError& e) {
            EXPECT_EQ(e.file(), "/Some.txt");
        }
    }
}

TEST(AbsurdNumbers, AWholeNumberReadWithoutLimitsStillRefusesWhatNoIntegerHolds) {
    for (const QByteArray& field : {QByteArray("nan"), QByteArray("inf"), QByteArray("1e300"), QByteArray("-1e19")}) {
        TextReader r(field, QStringLiteral("/Some.txt"));
        EXPECT_THROW(r.readInteger(), StoreError) << field.constData();
    }
    TextReader fine("-99999999999", QStringLiteral("/Some.txt"));
    EXPECT_EQ(fine.readInteger(), -99999999999LL);
    TextReader half("2.5,3.5", QStringLiteral("/Some.txt"));
    EXPECT_EQ(half.readInteger(-32768, 32767), 2);
    EXPECT_EQ(half.readInteger(-32768, 32767), 4);
}

TEST(AbsurdNumbers, ALastPurgedDayThatIsNoNumberStopsThePurgeAndTheFileIsKept) {
    for (const QByteArray& field : kAbsurd) {
        TestDataRoot t;
        const QByteArray bytes = " " + field + " \r\n";
        t.writeBytes("/LastPurged.txt", bytes);
        try {
            PurgePastDays(t.disk(), QDate(2026, 11, 20), 324, 1);
            ADD_FAILURE() << field.constData() << " was read as a day";
        } catch (const StoreError& e) {
            EXPECT_EQ(e.file(), "/LastPurged.txt");
        }
        EXPECT_EQ(t.readBytes("/LastPurged.txt"), bytes);
    }
}

TEST(AbsurdNumbers, ASettingsFieldThatIsNoNumberStopsTheLoadNamingTheFile) {
    for (const QByteArray& field : kAbsurd) {
        TestDataRoot t;
        const QByteArray bytes = field + ",0,0,0,0,#TRUE#,#FALSE#,0,0,0,\"$0.00\",\"$0.00\",5,1,1,#TRUE#,1,1,1\r\n";
        t.writeBytes("/OstrelAppointmentSchedulerSettings.txt", bytes);
        ProgramSettings s;
        try {
            LoadSettings(t.disk(), QStringLiteral("OstrelAppointmentScheduler"), s);
            ADD_FAILURE() << field.constData() << " was read as a setting";
        } catch (const StoreError& e) {
            EXPECT_EQ(e.file(), "/OstrelAppointmentSchedulerSettings.txt");
        }
        EXPECT_EQ(t.readBytes("/OstrelAppointmentSchedulerSettings.txt"), bytes);
    }
}

TEST(AbsurdNumbers, PrintColoursThatAreNoNumberStopTheLoadNamingTheFile) {
    for (const QByteArray& field : kAbsurd) {
        TestDataRoot t;
        t.writeBytes("/PrintColors.txt", field + "," + field + ",1\r\n");
        PrintColors c;
        try {
            LoadPrintColors(t.disk(), c);
            ADD_FAILURE() << field.constData() << " was read as a colour";
        } catch (const StoreError& e) {
            EXPECT_EQ(e.file(), "/PrintColors.txt");
        }
    }
}
