#include "TestDataRoot.h"
#include "setup/PointOfServiceNames.h"
#include "setup/RequiredFiles.h"
#include "setup/SetupSettings.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {
const QString kProgram = QStringLiteral("OstrelAppointmentScheduler");

QStringList filesIn(const TestDataRoot& t) {
    return QDir(t.path()).entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden,
                                    QDir::Name);
}

BusinessBoxes ownerBoxes() {
    return {QString("Ace Repair"), QString("12 Main St"),   QString(), QString("Dayton"), QString("OH"),
            QString("45402"),      QString("937-555-0100"), QString(), QString()};
}
} // namespace

TEST(SetupFirstStart, OnlyTheSettingsFileIsWrittenDuringTheLoad) {
    TestDataRoot t;
    SetupSettings s;
    LoadSetupSettings(t.disk(), kProgram, s);
    EXPECT_EQ(filesIn(t), QStringList({"OstrelAppointmentSchedulerSettings.txt"}));
    EXPECT_EQ(t.readBytes("/OstrelAppointmentSchedulerSettings.txt"),
              QByteArray("1,0,0,0,0,#TRUE#,#FALSE#,0,0,0,\"$0.00\",\"$0.00\",5,1,1,#TRUE#,1,1,1\r\n"));
    EXPECT_EQ(s.cmdAddressCaption, "USA Style Address");
    EXPECT_EQ(s.colors.ckColor, 0);
    EXPECT_EQ(s.tax.cboRate1, "4.0");
    EXPECT_EQ(s.logoSize.width, 1440.0f);
    EXPECT_TRUE(s.txtReturnParts.isEmpty());
    EXPECT_FALSE(RequiredFilesPresent(t.disk(), kProgram));
}

TEST(SetupFirstStart, RequiredFilesStayMissingUntilAPointOfServiceIsEntered) {
    TestDataRoot t;
    SetupSettings s;
    LoadSetupSettings(t.disk(), kProgram, s);
    SaveSetupSettings(t.disk(), kProgram, s, ownerBoxes(), false);
    EXPECT_FALSE(t.isFile("/ServiceAreas.txt"));
    EXPECT_FALSE(RequiredFilesPresent(t.disk(), kProgram));

    PointOfServiceNames table;
    SaveAssociates(t.disk(), {"Crew One"}, table);
    EXPECT_TRUE(RequiredFilesPresent(t.disk(), kProgram));
}

TEST(SetupFirstStart, LeavingSetupWritesEachFileInItsFirstRunForm) {
    TestDataRoot t;
    SetupSettings s;
    LoadSetupSettings(t.disk(), kProgram, s);
    s.colors.ckColor = 1; // acts for this run only
    s.colors.cboCopies = "1";
    SaveSetupSettings(t.disk(), kProgram, s, ownerBoxes(), false);
    EXPECT_EQ(
        t.readBytes("/MyBusinessData.txt"),
        QByteArray(
            "\"Ace Repair\",\"12 Main St\",\"\",\"Dayton\",\"OH\",\"45402\",\"937-555-0100\",\"\",\"\"\r\n"));
    EXPECT_EQ(t.readBytes("/TaxSettings.txt"), QByteArray("\"Sales Tax\",\"Tax\",\"4.0\",\"4.0\",0,0\r\n"));
    EXPECT_EQ(t.readBytes("/OstrelAppointmentSchedulerSettings.txt"),
              QByteArray("1,0,0,0,0,#TRUE#,#FALSE#,0,0,0,\"$0.00\",\"$0.00\",5,1,1,#TRUE#,1,1,1\r\n"));
    EXPECT_EQ(t.readBytes("/PrintColors.txt"), QByteArray("0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n"));
    EXPECT_EQ(t.readBytes("/Phone.txt"), QByteArray("#FALSE#\r\n0\r\n"));
    EXPECT_EQ(t.readBytes("/CallID.txt"), QByteArray("#FALSE#\r\n"));
    EXPECT_FALSE(t.isFile("/CompanyLogo.txt"));
    EXPECT_FALSE(t.isFile("/LogoSettings.txt"));
}

TEST(SetupStartupLoad, ShopRepairStyleLoadsTheReturnPartsText) {
    TestDataRoot t;
    t.writeBytes("/ReturnPartsInstructions.txt", "\"Keep parts\"\r\n");
    SetupSettings s;
    LoadSetupSettings(t.disk(), kProgram, s);
    EXPECT_TRUE(s.program.isShopRepair());
    EXPECT_EQ(s.txtReturnParts, "Keep parts\r\n");
}

TEST(SetupStartupLoad, AssociateSalesStyleLeavesTheReturnPartsTextUnloaded) {
    TestDataRoot t;
    t.writeBytes("/OstrelAppointmentSchedulerSettings.txt",
                 "1,0,0,0,0,#TRUE#,#FALSE#,0,0,0,\"$0.00\",\"$0.00\",5,1,1,#FALSE#,1,1,1\r\n");
    t.writeBytes("/ReturnPartsInstructions.txt", "\"Keep parts\"\r\n");
    SetupSettings s;
    LoadSetupSettings(t.disk(), kProgram, s);
    EXPECT_FALSE(s.program.isShopRepair());
    EXPECT_TRUE(s.program.salesReportAvailable());
    EXPECT_TRUE(s.txtReturnParts.isEmpty());
}

TEST(SetupStartupLoad, TaxFileReadLastDecidesTheSecondTax) {
    TestDataRoot t;
    t.writeBytes("/OstrelAppointmentSchedulerSettings.txt",
                 "1,0,0,0,0,#TRUE#,#FALSE#,1,0,0,\"$0.00\",\"$0.00\",5,1,1,#TRUE#,1,1,1\r\n");
    t.writeBytes("/TaxSettings.txt", "\"Sales Tax\",\"Tax\",\"4.0\",\"4.0\",0,0\r\n");
    SetupSettings s;
    LoadSetupSettings(t.disk(), kProgram, s);
    EXPECT_EQ(s.program.ckApply2ndTax, 0);
}

TEST(SetupStartupLoad, AddressStyleFollowsTheLoadedBusinessData) {
    TestDataRoot t;
    t.writeBytes("/MyBusinessData.txt", "\"Ace Repair\",\"\",\"\",\"\",\"\",\"\",\"555\",\"\",\"\"\r\n");
    SetupSettings s;
    LoadSetupSettings(t.disk(), kProgram, s);
    EXPECT_EQ(s.cmdAddressCaption, "International Style Address");
    EXPECT_FALSE(s.isUsaStyle());
}
