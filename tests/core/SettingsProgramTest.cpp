#include "TestDataRoot.h"
#include "scheduling/WorkDays.h"
#include "setup/ProgramSettings.h"
#include "store/StoreError.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {
const QString kProgram = QStringLiteral("OstrelAppointmentScheduler");
const QByteArray kFirstRunBytes = "1,0,0,0,0,#TRUE#,#FALSE#,0,0,0,\"$0.00\",\"$0.00\",5,1,1,#TRUE#,1,1,1\r\n";

ProgramSettings loadFrom(TestDataRoot& t, const QByteArray& bytes) {
    t.writeBytes("/OstrelAppointmentSchedulerSettings.txt", bytes);
    ProgramSettings s;
    EXPECT_TRUE(LoadSettings(t.disk(), kProgram, s));
    return s;
}
} // namespace

TEST(ProgramSettingsFile, NameComesFromTheProgramName) {
    EXPECT_EQ(SettingsFileName("OstrelAppointmentScheduler"), "/OstrelAppointmentSchedulerSettings.txt");
    EXPECT_EQ(SettingsFileName("Sched2"), "/Sched2Settings.txt");
}

TEST(ProgramSettingsFile, FirstRunWritesTheFirstRunValuesAtOnce) {
    TestDataRoot t;
    ProgramSettings s;
    s.ckSalesItems = 0;
    s.WorkWeekCode = 7;
    s.ckPrompts = 0;
    EXPECT_FALSE(LoadSettings(t.disk(), kProgram, s));
    EXPECT_EQ(t.readBytes("/OstrelAppointmentSchedulerSettings.txt"), kFirstRunBytes);
    EXPECT_EQ(s.ckSalesItems, 1);
    EXPECT_EQ(s.WorkWeekCode, 5);
    EXPECT_TRUE(s.optMF());
    EXPECT_TRUE(s.prompts());
    EXPECT_TRUE(s.alarms());
    EXPECT_TRUE(s.isShopRepair());
    EXPECT_FALSE(s.salesReportAvailable());
    EXPECT_EQ(s.txtGradulated[0], "$0.00");
    EXPECT_EQ(s.txtGradulated[1], "$0.00");
}

TEST(ProgramSettingsFile, FirstRunLeavesTheSecondTaxBoxAsItWas) {
    TestDataRoot t;
    ProgramSettings s;
    s.ckApply2ndTax = 1;
    LoadSettings(t.disk(), kProgram, s);
    EXPECT_EQ(s.ckApply2ndTax, 1);
    EXPECT_EQ(t.readBytes("/OstrelAppointmentSchedulerSettings.txt"),
              QByteArray("1,0,0,0,0,#TRUE#,#FALSE#,1,0,0,\"$0.00\",\"$0.00\",5,1,1,#TRUE#,1,1,1\r\n"));
}

TEST(ProgramSettingsFile, RenamedExecutableStartsFromTheFirstRunValues) {
    TestDataRoot t;
    t.writeBytes("/OstrelAppointmentSchedulerSettings.txt",
                 "0,1,1,1,1,#FALSE#,#TRUE#,1,1,1,\"$100.00\",\"$5.00\",7,0,0,#FALSE#,0,0,0\r\n");
    ProgramSettings s;
    EXPECT_FALSE(LoadSettings(t.disk(), "Renamed", s));
    EXPECT_EQ(s.ckSalesItems, 1);
    EXPECT_EQ(s.WorkWeekCode, 5);
    EXPECT_EQ(t.readBytes("/RenamedSettings.txt"), kFirstRunBytes);
}

TEST(ProgramSettingsFile, LoadsEveryFieldInOrder) {
    TestDataRoot t;
    const ProgramSettings s =
        loadFrom(t, "0,1,1,1,1,#FALSE#,#TRUE#,1,1,1,\"$100.00\",\"$5.00\",61,0,0,#FALSE#,0,0,0\r\n");
    EXPECT_EQ(s.ckSalesItems, 0);
    EXPECT_EQ(s.ckServices, 1);
    EXPECT_EQ(s.ckLabor, 1);
    EXPECT_EQ(s.ckShipping, 1);
    EXPECT_EQ(s.ckMisc, 1);
    EXPECT_FALSE(s.optPlain);
    EXPECT_TRUE(s.optReturn);
    EXPECT_EQ(s.ckApply2ndTax, 1);
    EXPECT_EQ(s.ckManualInvoiceNo, 1);
    EXPECT_EQ(s.ckApplyGraduated, 1);
    EXPECT_EQ(s.txtGradulated[0], "$100.00");
    EXPECT_EQ(s.txtGradulated[1], "$5.00");
    EXPECT_EQ(s.WorkWeekCode, 61);
    EXPECT_TRUE(s.optMS());
    EXPECT_FALSE(s.optMF());
    EXPECT_FALSE(s.prompts());
    EXPECT_FALSE(s.alarms());
    EXPECT_FALSE(s.optBusinessType(0));
    EXPECT_TRUE(s.optBusinessType(1));
    EXPECT_TRUE(s.salesReportAvailable());
    EXPECT_EQ(s.ckEstimate, 0);
    EXPECT_EQ(s.ckReturnParts, 0);
    EXPECT_EQ(s.ckTerms, 0);
}

TEST(ProgramSettingsFile, SaveAfterChangesWritesOneStatementInFieldOrder) {
    TestDataRoot t;
    ProgramSettings s;
    LoadSettings(t.disk(), kProgram, s);
    s.ckServices = 1;
    s.optPlain = false;
    s.optReturn = true;
    s.ckApplyGraduated = 1;
    s.txtGradulated = {QString("$1,500.00"), QString("$25.00")};
    s.WorkWeekCode = 62;
    s.ckAlarms = 0;
    s.optBusinessType0 = false;
    s.ckTerms = 0;
    SaveSettings(t.disk(), kProgram, s);
    EXPECT_EQ(t.readBytes("/OstrelAppointmentSchedulerSettings.txt"),
              QByteArray("1,1,0,0,0,#FALSE#,#TRUE#,0,0,1,\"$1,500.00\",\"$25.00\",62,1,0,#FALSE#,1,1,0\r\n"));
    ProgramSettings back;
    ASSERT_TRUE(LoadSettings(t.disk(), kProgram, back));
    EXPECT_EQ(back.txtGradulated[0], "$1,500.00");
    EXPECT_TRUE(back.optSF());
}

TEST(ProgramSettingsFile, WorkWeekCodeSixTicksNoOptionAndMovesNoDate) {
    TestDataRoot t;
    const ProgramSettings s =
        loadFrom(t, "1,0,0,0,0,#TRUE#,#FALSE#,0,0,0,\"$0.00\",\"$0.00\",6,1,1,#TRUE#,1,1,1\r\n");
    EXPECT_EQ(s.WorkWeekCode, 6);
    EXPECT_FALSE(s.optMF());
    EXPECT_FALSE(s.optMS());
    EXPECT_FALSE(s.optSF());
    EXPECT_FALSE(s.optSS());
    const QDate saturday(2026, 11, 21);
    const QDate sunday(2026, 11, 22);
    ASSERT_EQ(saturday.dayOfWeek(), Qt::Saturday);
    EXPECT_EQ(SkipToWorkDay(saturday, s.WorkWeekCode), saturday);
    EXPECT_EQ(SkipToWorkDay(sunday, s.WorkWeekCode), sunday);
    SaveSettings(t.disk(), kProgram, s);
    EXPECT_EQ(t.readBytes("/OstrelAppointmentSchedulerSettings.txt"),
              QByteArray("1,0,0,0,0,#TRUE#,#FALSE#,0,0,0,\"$0.00\",\"$0.00\",6,1,1,#TRUE#,1,1,1\r\n"));
}

TEST(ProgramSettingsFile, EachKnownWorkWeekCodeTicksItsOwnOption) {
    ProgramSettings s;
    s.WorkWeekCode = 5;
    EXPECT_TRUE(s.optMF() && !s.optMS() && !s.optSF() && !s.optSS());
    s.WorkWeekCode = 61;
    EXPECT_TRUE(!s.optMF() && s.optMS() && !s.optSF() && !s.optSS());
    s.WorkWeekCode = 62;
    EXPECT_TRUE(!s.optMF() && !s.optMS() && s.optSF() && !s.optSS());
    s.WorkWeekCode = 7;
    EXPECT_TRUE(!s.optMF() && !s.optMS() && !s.optSF() && s.optSS());
}

TEST(ProgramSettingsFile, EstimateHeldAsTwoLoadsUnticked) {
    TestDataRoot t;
    const ProgramSettings s =
        loadFrom(t, "1,0,0,0,0,#TRUE#,#FALSE#,0,0,0,\"$0.00\",\"$0.00\",5,1,1,#TRUE#,2,1,1\r\n");
    EXPECT_EQ(s.ckEstimate, 0);
    EXPECT_FALSE(s.printEstimate());
    EXPECT_EQ(s.ckReturnParts, 1);
}

TEST(ProgramSettingsFile, OnlyExactlyOneTicksTheWorkOrderBoxes) {
    TestDataRoot t;
    const ProgramSettings s =
        loadFrom(t, "1,0,0,0,0,#TRUE#,#FALSE#,0,0,0,\"$0.00\",\"$0.00\",5,1,1,#TRUE#,255,0,1\r\n");
    EXPECT_EQ(s.ckEstimate, 0);
    EXPECT_EQ(s.ckReturnParts, 0);
    EXPECT_EQ(s.ckTerms, 1);
    EXPECT_TRUE(s.printTerms());
}

TEST(ProgramSettingsFile, AnyNonZeroSecondTaxFieldTicksTheBox) {
    TestDataRoot t;
    const ProgramSettings s =
        loadFrom(t, "1,0,0,0,0,#TRUE#,#FALSE#,-1,0,0,\"$0.00\",\"$0.00\",5,1,1,#TRUE#,1,1,1\r\n");
    EXPECT_EQ(s.ckApply2ndTax, 1);
    EXPECT_TRUE(s.applySecondTax());
}

TEST(ProgramSettingsFile, PromptsAndAlarmsReadAsBooleansAndSaveAsCheckBoxValues) {
    TestDataRoot t;
    ProgramSettings s =
        loadFrom(t, "1,0,0,0,0,#TRUE#,#FALSE#,0,0,0,\"$0.00\",\"$0.00\",5,#TRUE#,-1,#TRUE#,1,1,1\r\n");
    EXPECT_EQ(s.ckPrompts, 1);
    EXPECT_EQ(s.ckAlarms, 1);
    SaveSettings(t.disk(), kProgram, s);
    EXPECT_EQ(t.readBytes("/OstrelAppointmentSchedulerSettings.txt"), kFirstRunBytes);
}

TEST(ProgramSettingsFile, GraduatedTextsStayAsTyped) {
    TestDataRoot t;
    ProgramSettings s = loadFrom(t, "1,0,0,0,0,#TRUE#,#FALSE#,0,0,1,\"1000\",\"abc\",5,1,1,#TRUE#,1,1,1\r\n");
    EXPECT_EQ(s.txtGradulated[0], "1000");
    EXPECT_EQ(s.txtGradulated[1], "abc");
}

TEST(ProgramSettingsFile, FileCutShortStopsTheLoadAndKeepsTheHeldValues) {
    TestDataRoot t;
    t.writeBytes("/OstrelAppointmentSchedulerSettings.txt", "0,1,1,1,1,#FALSE#,#TRUE#,1\r\n");
    ProgramSettings s;
    EXPECT_THROW(LoadSettings(t.disk(), kProgram, s), StoreError);
    EXPECT_EQ(s.ckSalesItems, 1);
    EXPECT_TRUE(s.optPlain);
    EXPECT_EQ(t.readBytes("/OstrelAppointmentSchedulerSettings.txt"),
              QByteArray("0,1,1,1,1,#FALSE#,#TRUE#,1\r\n"));
}

TEST(ProgramSettingsFile, AByteFieldOutOfRangeStopsTheLoadNamingTheFile) {
    TestDataRoot t;
    t.writeBytes("/OstrelAppointmentSchedulerSettings.txt",
                 "1,0,0,0,0,#TRUE#,#FALSE#,0,0,0,\"$0.00\",\"$0.00\",5,1,1,#TRUE#,256,1,1\r\n");
    ProgramSettings s;
    try {
        LoadSettings(t.disk(), kProgram, s);
        FAIL() << "256 does not fit a byte";
    } catch (const StoreError& e) {
        EXPECT_TRUE(e.file().contains("OstrelAppointmentSchedulerSettings.txt"));
        EXPECT_TRUE(e.problem().contains("Field 17"));
    }
    EXPECT_EQ(s.ckEstimate, 1);
}

TEST(ProgramSettingsFile, AnIntegerFieldOutOfRangeStopsTheLoad) {
    TestDataRoot t;
    t.writeBytes("/OstrelAppointmentSchedulerSettings.txt",
                 "1,0,0,0,0,#TRUE#,#FALSE#,0,0,0,\"$0.00\",\"$0.00\",40000,1,1,#TRUE#,1,1,1\r\n");
    ProgramSettings s;
    EXPECT_THROW(LoadSettings(t.disk(), kProgram, s), StoreError);
    EXPECT_EQ(s.WorkWeekCode, 5);
}
