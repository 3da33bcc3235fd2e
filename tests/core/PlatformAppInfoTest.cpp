#include "platform/AppInfo.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace ostrel;

TEST(AppInfo, ProgramNameIsTheExecutableFileNameWithoutExtension) {
    EXPECT_EQ(QStringLiteral("OstrelAppointmentScheduler"),
              AppInfo(QStringLiteral("/opt/shop/OstrelAppointmentScheduler")).programName());
    EXPECT_EQ(QStringLiteral("OstrelAppointmentScheduler"),
              AppInfo(QStringLiteral("/opt/shop/OstrelAppointmentScheduler.exe")).programName());
    EXPECT_EQ(QStringLiteral("Ostrel.App"),
              AppInfo(QStringLiteral("/opt/shop/Ostrel.App.exe")).programName());
}

TEST(AppInfo, PathIsTheExecutablesFolder) {
    EXPECT_EQ(QStringLiteral("/opt/shop"),
              AppInfo(QStringLiteral("/opt/shop/OstrelAppointmentScheduler")).path());
}

TEST(AppInfo, TitleIsTheProgramNameUntilSet) {
    AppInfo app(QStringLiteral("/opt/shop/Scheduler"));
    EXPECT_EQ(QStringLiteral("Scheduler"), app.title());
    app.setTitle(QStringLiteral("Bob's Repair"));
    EXPECT_EQ(QStringLiteral("Bob's Repair"), app.title());
    EXPECT_EQ(QStringLiteral("Scheduler"), app.programName());
}

TEST(AppInfo, VersionJoinsMajorMinorAndRevisionWithDots) {
    const AppInfo app(QStringLiteral("/opt/shop/Scheduler"), 2, 5, 17);
    EXPECT_EQ(QStringLiteral("2.5.17"), app.version());
    EXPECT_EQ(2, app.versionMajor());
    EXPECT_EQ(5, app.versionMinor());
    EXPECT_EQ(17, app.versionRevision());
}

TEST(AppInfo, BuildVersionComesFromTheProject) {
    const AppInfo app(QStringLiteral("/opt/shop/Scheduler"));
    EXPECT_EQ(OSTREL_VERSION_MAJOR, app.versionMajor());
    EXPECT_EQ(OSTREL_VERSION_MINOR, app.versionMinor());
    EXPECT_EQ(OSTREL_VERSION_PATCH, app.versionRevision());
}

TEST(AppInfo, FromProcessNamesTheRunningExecutable) {
    const AppInfo app = AppInfo::fromProcess();
    const QFileInfo self(QStringLiteral("/proc/self/exe"));
    EXPECT_EQ(QFileInfo(self.canonicalFilePath()).completeBaseName(), app.programName());
    EXPECT_EQ(QStringLiteral("core_tests"), app.programName());
    EXPECT_TRUE(QDir(app.path()).exists());
}
