#include "setup/LogoSettings.h"
#include "TestDataRoot.h"
#include "setup/CompanyLogo.h"
#include "store/StoreError.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {
// A picture outside the data root, where an owner keeps it.
struct Picture {
    QTemporaryDir dir;
    QString path;
    Picture() : path(dir.path() + "/logo.bmp") {
        QFile f(path);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("BM");
    }
};
} // namespace

TEST(LogoSettingsFile, MissingFileSetsOneInchAndWritesNothingWithoutAPicture) {
    TestDataRoot t;
    LogoSettings size;
    size.width = 500;
    EXPECT_FALSE(LoadLogoSettings(t.disk(), size, false));
    EXPECT_EQ(size.width, 1440.0f);
    EXPECT_EQ(size.height, 1440.0f);
    EXPECT_FALSE(t.isFile("/LogoSettings.txt"));
}

TEST(LogoSettingsFile, MissingFileWithAPictureLoadedIsWrittenAtOnce) {
    TestDataRoot t;
    LogoSettings size;
    EXPECT_FALSE(LoadLogoSettings(t.disk(), size, true));
    EXPECT_EQ(t.readBytes("/LogoSettings.txt"), QByteArray("1440,1440\r\n"));
}

TEST(LogoSettingsFile, SaveWritesWidthThenHeightAsSingles) {
    TestDataRoot t;
    LogoSettings size;
    size.width = 1800;
    size.height = 362.5f;
    SaveLogoSettings(t.disk(), size, true);
    EXPECT_EQ(t.readBytes("/LogoSettings.txt"), QByteArray("1800,362.5\r\n"));
    size.width = 0.1f;
    SaveLogoSettings(t.disk(), size, true);
    EXPECT_EQ(t.readBytes("/LogoSettings.txt"), QByteArray(".1,362.5\r\n"));
}

TEST(LogoSettingsFile, LoadReadsWidthThenHeight) {
    TestDataRoot t;
    t.writeBytes("/LogoSettings.txt", "1440,1080\r\n");
    LogoSettings size;
    ASSERT_TRUE(LoadLogoSettings(t.disk(), size, false));
    EXPECT_EQ(size.width, 1440.0f);
    EXPECT_EQ(size.height, 1080.0f);
}

TEST(LogoSettingsFile, SaveWithoutAPictureLeavesTheFileAlone) {
    TestDataRoot t;
    t.writeBytes("/LogoSettings.txt", "1440,1080\r\n");
    LogoSettings size;
    size.width = 400;
    SaveLogoSettings(t.disk(), size, false);
    EXPECT_EQ(t.readBytes("/LogoSettings.txt"), QByteArray("1440,1080\r\n"));
}

TEST(LogoSettingsFile, FileCutShortStopsTheLoad) {
    TestDataRoot t;
    t.writeBytes("/LogoSettings.txt", "1440\r\n");
    LogoSettings size;
    EXPECT_THROW(LoadLogoSettings(t.disk(), size, true), StoreError);
    EXPECT_EQ(t.readBytes("/LogoSettings.txt"), QByteArray("1440\r\n"));
}

TEST(CompanyLogoFile, StoredPathLoadsThePictureWhenItIsThere) {
    TestDataRoot t;
    Picture pic;
    CompanyLogo logo;
    logo.path = pic.path;
    logo.pictureLoaded = true;
    SaveCompanyLogo(t.disk(), logo);
    EXPECT_EQ(t.readBytes("/CompanyLogo.txt"), "\"" + pic.path.toLocal8Bit() + "\"\r\n");

    CompanyLogo back;
    ASSERT_TRUE(LoadCompanyLogo(t.disk(), back));
    EXPECT_EQ(back.path, pic.path);
    EXPECT_TRUE(back.pictureLoaded);
}

TEST(CompanyLogoFile, PathThatNoLongerExistsLeavesThePictureEmpty) {
    TestDataRoot t;
    t.writeBytes("/CompanyLogo.txt", "\"C:\\Shop\\Logo.bmp\"\r\n");
    CompanyLogo logo;
    ASSERT_TRUE(LoadCompanyLogo(t.disk(), logo));
    EXPECT_EQ(logo.path, "C:\\Shop\\Logo.bmp");
    EXPECT_FALSE(logo.pictureLoaded);
}

TEST(CompanyLogoFile, SaveWritesNothingWhileNoPictureIsLoaded) {
    TestDataRoot t;
    CompanyLogo logo;
    logo.path = "/nowhere/logo.bmp";
    SaveCompanyLogo(t.disk(), logo);
    EXPECT_FALSE(t.isFile("/CompanyLogo.txt"));
}

TEST(CompanyLogoFile, ClearingTheLogoKeepsItsSizeForTheNextLogo) {
    TestDataRoot t;
    Picture pic;
    CompanyLogo logo{pic.path, true};
    LogoSettings size;
    size.width = 900;
    size.height = 450;
    t.writeBytes("/Backup/CompanyLogo.txt", "\"old\"\r\n");
    SaveCompanyLogo(t.disk(), logo);
    SaveLogoSettings(t.disk(), size, logo.pictureLoaded);

    DeleteCompanyLogo(t.disk(), logo);
    EXPECT_FALSE(logo.pictureLoaded);
    EXPECT_FALSE(t.isFile("/CompanyLogo.txt"));
    EXPECT_FALSE(t.isFile("/Backup/CompanyLogo.txt"));
    EXPECT_EQ(t.readBytes("/LogoSettings.txt"), QByteArray("900,450\r\n"));

    // Leaving Setup now writes neither file, so the logo stays cleared.
    SaveCompanyLogo(t.disk(), logo);
    SaveLogoSettings(t.disk(), size, logo.pictureLoaded);
    EXPECT_FALSE(t.isFile("/CompanyLogo.txt"));

    LogoSettings next;
    ASSERT_TRUE(LoadLogoSettings(t.disk(), next, false));
    EXPECT_EQ(next.width, 900.0f);
    EXPECT_EQ(next.height, 450.0f);
}
