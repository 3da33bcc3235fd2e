#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "setup/frmSetup.h"
#include "shell/Session.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

namespace {

struct SetupLogo : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmSetup& setup = session.AddScreen(ScreenId::frmSetup, std::make_unique<frmSetup>(session));
    QString firstPicture;
    QString secondPicture;

    void SetUp() override {
        // The pictures lie outside the data folder, where an owner keeps them.
        t.writeBytes("/Pictures/first.bmp", "BM first");
        t.writeBytes("/Pictures/second.bmp", "BM second");
        firstPicture = t.full("/Pictures/first.bmp");
        secondPicture = t.full("/Pictures/second.bmp");
    }
    void start() {
        ASSERT_EQ(session.Main(), Session::StartResult::Running);
    }
    void writeStoredLogo(const QByteArray& size) {
        t.writeBytes("/CompanyLogo.txt", "\"" + firstPicture.toUtf8() + "\"\r\n");
        t.writeBytes("/LogoSettings.txt", size);
    }
};

} // namespace

TEST_F(SetupLogo, AStoredLogoShowsInBothPicturesAtItsStoredSizeUnderTheCompanyName) {
    t.writeBytes("/MyBusinessData.txt",
                 "\"Prairie Comfort\",\"\",\"\",\"\",\"\",\"\",\"217-555-0142\",\"\",\"\"\r\n");
    writeStoredLogo("900,600\r\n");
    start();
    EXPECT_EQ(setup.Image2.picture, firstPicture);
    EXPECT_EQ(setup.Image3.picture, firstPicture);
    EXPECT_EQ(setup.Image3.Width, 900);
    EXPECT_EQ(setup.Image3.Height, 600);
    EXPECT_EQ(setup.Label2[2].caption, "Prairie Comfort");
    EXPECT_EQ(setup.Label2[3].caption, "Width 900 (0.63 in.)");
    EXPECT_EQ(setup.Label2[4].caption, "Height 600 (0.42 in.)");
    EXPECT_FALSE(setup.cmdLogo[1].enabled);
}

TEST_F(SetupLogo, APictureGoneFromItsPathLeavesBothPicturesEmptyWithoutAMessage) {
    t.writeBytes("/CompanyLogo.txt", "\"" + t.full("/Pictures/gone.bmp").toUtf8() + "\"\r\n");
    start();
    fake.dialogs.verify();
    EXPECT_EQ(setup.Image2.picture, "");
    EXPECT_EQ(setup.Image3.picture, "");
}

TEST_F(SetupLogo, FindOffersThePictureFilterAndShowsTheChoiceReadyToStore) {
    start();
    fake.dialogs.answerOpenFile(firstPicture);
    setup.cmdLogo_Click(0);
    ASSERT_EQ(fake.dialogs.openFileRequests().size(), 1);
    EXPECT_EQ(fake.dialogs.openFileRequests().front().filter,
              "Pictures |(*.bmp;*.BMP;*.ico;*.ICO; *.cur; *.CUR;*jpg;*JPG; *.EMF)|All|*.*");
    EXPECT_EQ(setup.Image2.picture, firstPicture);
    EXPECT_EQ(setup.Image3.picture, firstPicture);
    EXPECT_TRUE(setup.cmdLogo[1].enabled);
    EXPECT_FALSE(t.isFile("/CompanyLogo.txt"));
}

TEST_F(SetupLogo, CancellingFindKeepsTheLogoAsItWas) {
    writeStoredLogo("1440,1440\r\n");
    start();
    fake.dialogs.answerOpenFile(std::nullopt);
    setup.cmdLogo_Click(0);
    EXPECT_EQ(setup.Image2.picture, firstPicture);
    EXPECT_FALSE(setup.cmdLogo[1].enabled);
}

TEST_F(SetupLogo, StoreWritesThePathAndTheSizeSaysSoAndDisablesItself) {
    start();
    fake.dialogs.answerOpenFile(firstPicture);
    setup.cmdLogo_Click(0);
    setup.UpDown2_DownClick();
    fake.dialogs.expect("", "Your Logo has been Stored");
    setup.cmdLogo_Click(1);
    fake.dialogs.verify();
    EXPECT_EQ(t.readBytes("/CompanyLogo.txt"), "\"" + firstPicture.toUtf8() + "\"\r\n");
    EXPECT_EQ(t.readBytes("/LogoSettings.txt"), "1390,1440\r\n");
    EXPECT_FALSE(setup.cmdLogo[1].enabled);
    EXPECT_EQ(setup.Image3.picture, firstPicture);
    EXPECT_EQ(setup.Image3.Width, 1390);
}

TEST_F(SetupLogo, ClearAsksAndNoKeepsTheLogo) {
    writeStoredLogo("900,600\r\n");
    start();
    fake.dialogs.expect("Delete Logo", "This will Delete your Company Logo", vbYesNo + vbQuestion, vbNo);
    setup.cmdLogo_Click(2);
    fake.dialogs.verify();
    EXPECT_EQ(setup.Image2.picture, firstPicture);
    EXPECT_TRUE(t.isFile("/CompanyLogo.txt"));
}

TEST_F(SetupLogo, ClearingDeletesThePathAndItsBackupButKeepsTheSize) {
    writeStoredLogo("900,600\r\n");
    t.writeBytes("/Backup/CompanyLogo.txt", "\"" + firstPicture.toUtf8() + "\"\r\n");
    start();
    fake.dialogs.expect("Delete Logo", "This will Delete your Company Logo", vbYes);
    setup.cmdLogo_Click(2);
    fake.dialogs.verify();
    EXPECT_EQ(setup.Image2.picture, "");
    EXPECT_EQ(setup.Image3.picture, "");
    EXPECT_FALSE(t.isFile("/CompanyLogo.txt"));
    EXPECT_FALSE(t.isFile("/Backup/CompanyLogo.txt"));
    EXPECT_EQ(setup.Image2.Width, 1440);
    EXPECT_EQ(setup.Image2.Height, 1440);
    EXPECT_EQ(t.readBytes("/LogoSettings.txt"), "900,600\r\n");
    EXPECT_EQ(setup.Image3.Width, 900);
    EXPECT_EQ(setup.Image3.Height, 600);
}

TEST_F(SetupLogo, TheNextLogoAfterAClearStartsAtTheStoredSize) {
    writeStoredLogo("900,600\r\n");
    start();
    fake.dialogs.expect("Delete Logo", "This will Delete your Company Logo", vbYes);
    setup.cmdLogo_Click(2);
    fake.dialogs.answerOpenFile(secondPicture);
    setup.cmdLogo_Click(0);
    EXPECT_EQ(setup.Image3.picture, secondPicture);
    EXPECT_EQ(setup.Image3.Width, 900);
    EXPECT_EQ(setup.Image3.Height, 600);
    fake.dialogs.expect("", "Your Logo has been Stored");
    setup.cmdLogo_Click(1);
    fake.dialogs.verify();
    EXPECT_EQ(t.readBytes("/LogoSettings.txt"), "900,600\r\n");
}

TEST_F(SetupLogo, AfterAClearAndARestartTheSizeIsStillTheStoredOne) {
    writeStoredLogo("900,600\r\n");
    start();
    fake.dialogs.expect("Delete Logo", "This will Delete your Company Logo", vbYes);
    setup.cmdLogo_Click(2);
    setup.txtBusiness[0].text = "Shop";
    setup.txtBusiness[6].text = "555-1234";
    setup.cmdQuit_Click();
    EXPECT_FALSE(t.isFile("/CompanyLogo.txt"));
    EXPECT_EQ(t.readBytes("/LogoSettings.txt"), "900,600\r\n");

    session.ExitProgram();
    Session second(t.path(), fake);
    frmSetup& again = second.AddScreen(ScreenId::frmSetup, std::make_unique<frmSetup>(second));
    ASSERT_EQ(second.Main(), Session::StartResult::Running);
    again.Load();
    fake.dialogs.answerOpenFile(secondPicture);
    again.cmdLogo_Click(0);
    EXPECT_EQ(again.Image3.Width, 900);
    EXPECT_EQ(again.Image3.Height, 600);
}

TEST_F(SetupLogo, TheUpDownsStepBy50AndJumpAtTheEndsOfTheRange) {
    start();
    ASSERT_EQ(setup.Image3.Width, 1440);
    setup.UpDown2_UpClick();
    EXPECT_EQ(setup.Image3.Width, 1490);
    setup.UpDown2_DownClick();
    setup.UpDown2_DownClick();
    EXPECT_EQ(setup.Image3.Width, 1390);
    setup.Image3.Width = 360;
    setup.UpDown2_DownClick();
    EXPECT_EQ(setup.Image3.Width, 1800);
    setup.UpDown2_UpClick();
    EXPECT_EQ(setup.Image3.Width, 360);
    setup.Image3.Width = 380;
    setup.UpDown2_DownClick();
    EXPECT_EQ(setup.Image3.Width, 330); // above 360 it steps, even past the bottom of the range
    setup.Image3.Width = 1790;
    setup.UpDown2_UpClick();
    EXPECT_EQ(setup.Image3.Width, 1840);
    setup.UpDown2_UpClick();
    EXPECT_EQ(setup.Image3.Width, 360);

    ASSERT_EQ(setup.Image3.Height, 1440);
    setup.UpDown1_UpClick();
    EXPECT_EQ(setup.Image3.Height, 1490);
    setup.Image3.Height = 360;
    setup.UpDown1_DownClick();
    EXPECT_EQ(setup.Image3.Height, 1800);
    setup.UpDown1_UpClick();
    EXPECT_EQ(setup.Image3.Height, 360);
    EXPECT_EQ(session.settings.logoSize.height, 360);
}

TEST_F(SetupLogo, ASizeChangedByTheUpDownsIsWrittenOnlyWhenLeaving) {
    writeStoredLogo("900,600\r\n");
    start();
    setup.UpDown2_UpClick();
    setup.UpDown1_DownClick();
    EXPECT_EQ(t.readBytes("/LogoSettings.txt"), "900,600\r\n");
    setup.txtBusiness[0].text = "Shop";
    setup.txtBusiness[6].text = "555-1234";
    setup.cmdQuit_Click();
    EXPECT_EQ(t.readBytes("/LogoSettings.txt"), "950,550\r\n");
}
