#include "setup/TaxSettings.h"
#include "TestDataRoot.h"
#include "setup/ProgramSettings.h"
#include "store/StoreError.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {
const QString kProgram = QStringLiteral("OstrelAppointmentScheduler");
}

TEST(TaxSettingsFile, MissingFileSetsTheDefaultsAndWritesNothing) {
    TestDataRoot t;
    TaxSettings tax;
    tax.cboTaxHeading1 = "Typed";
    tax.ckApply1stTax = 1;
    ProgramSettings program;
    EXPECT_FALSE(LoadTaxSettings(t.disk(), tax, program));
    EXPECT_EQ(tax.cboTaxHeading1, "Sales Tax");
    EXPECT_EQ(tax.cboTaxHeading2, "Tax");
    EXPECT_EQ(tax.cboRate1, "4.0");
    EXPECT_EQ(tax.cboRate2, "4.0");
    EXPECT_EQ(tax.ckApply1stTax, 0);
    EXPECT_FALSE(t.isFile("/TaxSettings.txt"));
}

TEST(TaxSettingsFile, SaveOfTheDefaultsWritesSixFieldsInOneStatement) {
    TestDataRoot t;
    TaxSettings tax;
    ProgramSettings program;
    LoadTaxSettings(t.disk(), tax, program);
    SaveTaxSettings(t.disk(), tax, program);
    EXPECT_EQ(t.readBytes("/TaxSettings.txt"), QByteArray("\"Sales Tax\",\"Tax\",\"4.0\",\"4.0\",0,0\r\n"));
}

TEST(TaxSettingsFile, SaveAfterChangesKeepsRatesAsText) {
    TestDataRoot t;
    TaxSettings tax;
    ProgramSettings program;
    tax.cboTaxHeading1 = "VAT Tax";
    tax.cboTaxHeading2 = "Provincial Tax";
    tax.cboRate1 = "7,0";
    tax.cboRate2 = "6.25";
    tax.ckApply1stTax = 1;
    program.ckApply2ndTax = 1;
    SaveTaxSettings(t.disk(), tax, program);
    EXPECT_EQ(t.readBytes("/TaxSettings.txt"),
              QByteArray("\"VAT Tax\",\"Provincial Tax\",\"7,0\",\"6.25\",1,1\r\n"));
    TaxSettings back;
    ProgramSettings p2;
    ASSERT_TRUE(LoadTaxSettings(t.disk(), back, p2));
    EXPECT_EQ(back.cboRate1, "7,0");
    EXPECT_TRUE(back.applyFirstTax());
    EXPECT_TRUE(p2.applySecondTax());
}

TEST(TaxSettingsFile, WithBothFilesPresentTheTaxFileDecidesTheSecondTax) {
    TestDataRoot t;
    t.writeBytes("/OstrelAppointmentSchedulerSettings.txt",
                 "1,0,0,0,0,#TRUE#,#FALSE#,1,0,0,\"$0.00\",\"$0.00\",5,1,1,#TRUE#,1,1,1\r\n");
    t.writeBytes("/TaxSettings.txt", "\"Sales Tax\",\"Tax\",\"4.0\",\"4.0\",1,0\r\n");
    ProgramSettings program;
    TaxSettings tax;
    LoadSettings(t.disk(), kProgram, program);
    EXPECT_EQ(program.ckApply2ndTax, 1);
    LoadTaxSettings(t.disk(), tax, program);
    EXPECT_EQ(program.ckApply2ndTax, 0);
    EXPECT_FALSE(program.applySecondTax());

    // And the other way round.
    t.writeBytes("/OstrelAppointmentSchedulerSettings.txt",
                 "1,0,0,0,0,#TRUE#,#FALSE#,0,0,0,\"$0.00\",\"$0.00\",5,1,1,#TRUE#,1,1,1\r\n");
    t.writeBytes("/TaxSettings.txt", "\"Sales Tax\",\"Tax\",\"4.0\",\"4.0\",0,1\r\n");
    LoadSettings(t.disk(), kProgram, program);
    LoadTaxSettings(t.disk(), tax, program);
    EXPECT_EQ(program.ckApply2ndTax, 1);
}

TEST(TaxSettingsFile, WithoutTheTaxFileTheSettingsFieldCounts) {
    TestDataRoot t;
    t.writeBytes("/OstrelAppointmentSchedulerSettings.txt",
                 "1,0,0,0,0,#TRUE#,#FALSE#,1,0,0,\"$0.00\",\"$0.00\",5,1,1,#TRUE#,1,1,1\r\n");
    ProgramSettings program;
    TaxSettings tax;
    LoadSettings(t.disk(), kProgram, program);
    LoadTaxSettings(t.disk(), tax, program);
    EXPECT_EQ(program.ckApply2ndTax, 1);
}

TEST(TaxSettingsFile, BothFilesWriteTheOneSecondTaxBox) {
    TestDataRoot t;
    ProgramSettings program;
    TaxSettings tax;
    program.ckApply2ndTax = 1;
    SaveTaxSettings(t.disk(), tax, program);
    SaveSettings(t.disk(), kProgram, program);
    EXPECT_TRUE(t.readBytes("/TaxSettings.txt").endsWith(",0,1\r\n"));
    EXPECT_TRUE(
        t.readBytes("/OstrelAppointmentSchedulerSettings.txt").startsWith("1,0,0,0,0,#TRUE#,#FALSE#,1,"));
}

TEST(TaxSettingsFile, FileCutShortChangesNeitherObject) {
    TestDataRoot t;
    t.writeBytes("/TaxSettings.txt", "\"VAT Tax\",\"Tax\",\"7.0\",\"4.0\",1\r\n");
    ProgramSettings program;
    program.ckApply2ndTax = 1;
    TaxSettings tax;
    EXPECT_THROW(LoadTaxSettings(t.disk(), tax, program), StoreError);
    EXPECT_EQ(tax.cboTaxHeading1, "Sales Tax");
    EXPECT_EQ(tax.ckApply1stTax, 0);
    EXPECT_EQ(program.ckApply2ndTax, 1);
}

TEST(TaxSettingsFile, SuggestionListsHoldSevenEntriesInOrder) {
    EXPECT_EQ(TaxRateChoices(), QStringList({"4.0", "5.0", "6.0", "7.0", "5,0", "6,0", "7,0"}));
    EXPECT_EQ(TaxHeadingChoices(), QStringList({"Sales Tax", "State Tax", "Taxes", "VAT Tax",
                                                "Provincial Tax", "Tax Surcharge", "GST"}));
}
