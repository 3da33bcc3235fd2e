#include "TestDataRoot.h"
#include "shell/DataDirectories.h"
#include "store/Record.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {

QByteArray customers(const QStringList& accounts) {
    QByteArray bytes;
    for (const QString& a : accounts) {
        Record r(328);
        r.setText(0, 20, a);
        r.setText(20, 45, u"Name");
        bytes += r.bytes();
    }
    return bytes;
}

const QDate kToday(2026, 11, 22);

} // namespace

TEST(PrepareDataDirectories, MakesTheFixedTreeOnAnEmptyRoot) {
    TestDataRoot t;
    EXPECT_TRUE(PrepareDataDirectories(t.disk(), kToday, "OstrelAppointmentScheduler").isEmpty());
    for (const char* d : {"/2026", "/OstrelAppointmentScheduler", "/Templates", "/OIActiveAccounts", "/Backup",
                          "/Backup/OIActiveAccounts", "/Backup/Assignments", "/AuxFiles", "/Appointments",
                          "/SoldItems", "/Services"})
        EXPECT_TRUE(t.isDir(d)) << d;
}

TEST(PrepareDataDirectories, TheExecutableStandingUnderTheProgramNameIsLeftAloneAndTheRestIsMade) {
    TestDataRoot t;
    t.writeBytes("/OstrelAppointmentScheduler", "\x7f" "ELF");
    EXPECT_TRUE(PrepareDataDirectories(t.disk(), kToday, "OstrelAppointmentScheduler").isEmpty());
    EXPECT_EQ(t.readBytes("/OstrelAppointmentScheduler"), QByteArray("\x7f" "ELF"));
    for (const char* d : {"/2026", "/Templates", "/Backup", "/AuxFiles", "/Appointments", "/SoldItems", "/Services"})
        EXPECT_TRUE(t.isDir(d)) << d;
}

TEST(PrepareDataDirectories, TheProgramFolderFollowsTheRunningName) {
    TestDataRoot t;
    PrepareDataDirectories(t.disk(), kToday, "Renamed");
    EXPECT_TRUE(t.isDir("/Renamed"));
    EXPECT_FALSE(t.isDir("/OstrelAppointmentScheduler"));
}

TEST(PrepareDataDirectories, AnEmptyCustomerFileSkipsTheCustomerPassAndStillMakesTheSlipFolders) {
    TestDataRoot t;
    t.writeBytes("/CustomerData.txt", {});
    PrepareDataDirectories(t.disk(), kToday, "OstrelAppointmentScheduler");
    EXPECT_TRUE(t.root().list("/AuxFiles").isEmpty());
    EXPECT_TRUE(t.isDir("/Appointments"));
    EXPECT_TRUE(t.isDir("/SoldItems"));
    EXPECT_TRUE(t.isDir("/Services"));
}

TEST(PrepareDataDirectories, GivesEveryCustomerItsSixAuxFolders) {
    TestDataRoot t;
    t.writeBytes("/CustomerData.txt", customers({"1001", "  1002  ", "217-555-0142"}));
    t.makeDir("/AuxFiles/1001/AuxFile3");
    t.makeDir("/AuxFiles/1002/auxfile0"); // another spelling on disk counts as there
    PrepareDataDirectories(t.disk(), kToday, "OstrelAppointmentScheduler");
    for (const char* acct : {"1001", "217-555-0142"})
        for (int k = 0; k < 6; ++k) EXPECT_TRUE(t.isDir(QString("/AuxFiles/%1/AuxFile%2").arg(acct).arg(k)));
    EXPECT_TRUE(t.isDir("/AuxFiles/1002/auxfile0"));
    EXPECT_TRUE(t.isDir("/AuxFiles/1002/AuxFile5"));
    EXPECT_FALSE(t.isDir("/AuxFiles/1002/AuxFile0"));
}

TEST(PrepareDataDirectories, ABlankAccountMakesTheAuxFoldersDirectlyBelowAuxFiles) {
    TestDataRoot t;
    t.writeBytes("/CustomerData.txt", customers({"", "77"}));
    PrepareDataDirectories(t.disk(), kToday, "OstrelAppointmentScheduler");
    for (int k = 0; k < 6; ++k) EXPECT_TRUE(t.isDir(QString("/AuxFiles/AuxFile%1").arg(k)));
    EXPECT_TRUE(t.isDir("/AuxFiles/77/AuxFile5"));
}

TEST(PrepareDataDirectories, AFileNamedAfterTheAccountLeavesThatCustomerAlone) {
    TestDataRoot t;
    t.writeBytes("/CustomerData.txt", customers({"55"}));
    t.writeBytes("/AuxFiles/55", "x");
    PrepareDataDirectories(t.disk(), kToday, "OstrelAppointmentScheduler");
    EXPECT_TRUE(t.isFile("/AuxFiles/55"));
}

TEST(PrepareDataDirectories, AnAccountThatCannotNameAFolderIsReportedAndTheRestGoOn) {
    TestDataRoot t;
    t.writeBytes("/CustomerData.txt", customers({"../../evil", "12/34", "99"}));
    const QStringList problems = PrepareDataDirectories(t.disk(), kToday, "OstrelAppointmentScheduler");
    ASSERT_EQ(problems.size(), 2);
    EXPECT_TRUE(problems[0].contains("../../evil"));
    EXPECT_TRUE(problems[1].contains("12/34"));
    EXPECT_TRUE(t.isDir("/AuxFiles/99/AuxFile0"));
    EXPECT_FALSE(QDir(t.path() + "/../evil").exists());
    EXPECT_FALSE(t.isDir("/AuxFiles/12"));
    EXPECT_TRUE(t.isDir("/Services"));
}

TEST(PrepareDataDirectories, MakesTheTreesOfEveryLegacyCustomer) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    TestDataRoot t;
    QFile f(ostrel::test::legacyFixture() + "/CustomerData.txt");
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray bytes = f.readAll();
    t.writeBytes("/CustomerData.txt", bytes);
    EXPECT_TRUE(PrepareDataDirectories(t.disk(), kToday, "OstrelAppointmentScheduler").isEmpty());
    const int records = static_cast<int>(bytes.size() / 328);
    QSet<QString> accounts;
    for (int r = 0; r < records; ++r)
        accounts.insert(QString::fromLatin1(bytes.mid(r * 328, 20)).trimmed().toCaseFolded());
    EXPECT_EQ(t.root().list("/AuxFiles").size(), accounts.size());
    for (const QString& a : t.root().list("/AuxFiles"))
        EXPECT_EQ(t.root().list("/AuxFiles/" + a).size(), 6) << a.toStdString();
}
