#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "setup/frmSetup.h"
#include "shell/Session.h"
#include "shell/frmSplash.h"
#include "shell/frmStartup.h"
#include "store/StoreError.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

namespace {

const QString kSettingsFile = QStringLiteral("/OstrelAppointmentSchedulerSettings.txt");

struct SetupQuit : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    std::unique_ptr<Session> session = std::make_unique<Session>(t.path(), fake);
    frmSetup* setup = &session->AddScreen(ScreenId::frmSetup, std::make_unique<frmSetup>(*session));

    void start() {
        ASSERT_EQ(session->Main(), Session::StartResult::Running);
    }
    // A later run of the program on the same folder.
    void restart() {
        session->ExitProgram();
        session = std::make_unique<Session>(t.path(), fake);
        setup = &session->AddScreen(ScreenId::frmSetup, std::make_unique<frmSetup>(*session));
        start();
    }
    QStringList filesInRoot() const { return QDir(t.path()).entryList(QDir::Files, QDir::Name); }
};

} // namespace

TEST_F(SetupQuit, LeavingWithAnEmptyTelephoneStaysOnTheScreenAndSavesNothing) {
    start();
    setup->Show();
    const QByteArray settingsBefore = t.readBytes(kSettingsFile);
    const QStringList filesBefore = filesInRoot();
    setup->txtBusiness[0].text = "Prairie Comfort";
    setup->ckLabor.value = 1;
    setup->tabInfo_Click(frmSetup::kOperations);
    fake.dialogs.expect("Missing Name or Telphone", "Name and Telephone are Required");
    setup->cmdQuit_Click();
    fake.dialogs.verify();
    EXPECT_TRUE(setup->isVisible());
    EXPECT_FALSE(session->startup().isVisible());
    EXPECT_EQ(filesInRoot(), filesBefore);
    EXPECT_EQ(t.readBytes(kSettingsFile), settingsBefore);
    EXPECT_FALSE(t.isFile("/MyBusinessData.txt"));
    EXPECT_FALSE(t.isFile("/TaxSettings.txt"));
    EXPECT_TRUE(setup->txtBusiness[0].focusRequested);
    EXPECT_EQ(setup->tabInfo.Tab, frmSetup::kBusinessInfo);
}

TEST_F(SetupQuit, LeavingWithAnEmptyNameIsRefusedTheSameWay) {
    start();
    setup->txtBusiness[6].text = "217-555-0142";
    fake.dialogs.expect("Missing Name or Telphone", "Name and Telephone are Required");
    setup->cmdQuit_Click();
    fake.dialogs.verify();
    EXPECT_FALSE(t.isFile("/MyBusinessData.txt"));
}

TEST_F(SetupQuit, LeavingWritesEveryFileHidesSetupAndShowsTheMenu) {
    start();
    setup->Show();
    for (int i = 0; i < 9; ++i)
        setup->txtBusiness[i].text = QStringLiteral("B%1").arg(i);
    setup->txtBusiness[0].text = "Prairie Comfort";
    setup->txtBusiness[6].text = "217-555-0142";
    setup->ckLabor.value = 1;
    setup->cboRate1.text = "6.25";
    setup->cboTaxHeading2.text = "County Tax";
    setup->ckApply2ndTax.value = 1;
    setup->OptionChanged();
    setup->optMS_Click();
    setup->cmdQuit_Click();
    fake.dialogs.verify();
    EXPECT_FALSE(setup->isVisible());
    EXPECT_TRUE(session->startup().isVisible());
    EXPECT_EQ(t.readBytes("/MyBusinessData.txt"),
              "\"Prairie Comfort\",\"B1\",\"B2\",\"B3\",\"B4\",\"B5\",\"217-555-0142\",\"B7\",\"B8\"\r\n");
    EXPECT_EQ(t.readBytes("/TaxSettings.txt"), "\"Sales Tax\",\"County Tax\",\"6.25\",\"4.0\",0,1\r\n");
    EXPECT_EQ(t.readBytes(kSettingsFile),
              "1,0,1,0,0,#TRUE#,#FALSE#,1,0,0,\"$0.00\",\"$0.00\",61,1,1,#TRUE#,1,1,1\r\n");
    EXPECT_EQ(t.readBytes("/PrintColors.txt"), "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
    EXPECT_EQ(t.readBytes("/Phone.txt"), "#FALSE#\r\n0\r\n");
    EXPECT_EQ(t.readBytes("/CallID.txt"), "#FALSE#\r\n");
    // No picture was chosen: neither logo file is written.
    EXPECT_FALSE(t.isFile("/CompanyLogo.txt"));
    EXPECT_FALSE(t.isFile("/LogoSettings.txt"));
    EXPECT_EQ(session->settings.business.companyName(), "Prairie Comfort");
}

TEST_F(SetupQuit, AFailingSaveStopsAtThatFileKeepsTheEarlierOnesAndStaysOnSetup) {
    start();
    setup->Show();
    const QByteArray settingsBefore = t.readBytes(kSettingsFile);
    t.makeDir("/TaxSettings.txt"); // a folder where the tax file belongs
    setup->txtBusiness[0].text = "Prairie Comfort";
    setup->txtBusiness[6].text = "217-555-0142";
    setup->ckLabor.value = 1;
    EXPECT_THROW(setup->cmdQuit_Click(), StoreError);
    session->disk.CloseAllFiles();
    EXPECT_TRUE(t.isFile("/MyBusinessData.txt"));
    EXPECT_EQ(t.readBytes(kSettingsFile), settingsBefore);
    EXPECT_FALSE(t.isFile("/PrintColors.txt"));
    EXPECT_TRUE(setup->isVisible());
    EXPECT_FALSE(session->startup().isVisible());
}

TEST_F(SetupQuit, TheNinthBusinessStringIsWrittenFromItsBoxSoALoadAndSaveDropsIt) {
    t.writeBytes("/MyBusinessData.txt",
                 "\"Shop\",\"\",\"\",\"\",\"\",\"\",\"555-1234\",\"\",\"ABN - 123456789\"\r\n");
    start();
    setup->cmdQuit_Click();
    EXPECT_EQ(t.readBytes("/MyBusinessData.txt"),
              "\"Shop\",\"\",\"\",\"\",\"\",\"\",\"555-1234\",\"\",\"\"\r\n");
}

TEST_F(SetupQuit, AFirstRunGoesFromTheWelcomeLogoThroughSetupToTheMenu) {
    start();
    EXPECT_FALSE(session->RequiredFilesPresent());
    session->splash().cmdContinue_Click();
    ASSERT_TRUE(session->splash().fraWelcome.visible);
    session->splash().Image1_Click(1);
    EXPECT_TRUE(setup->isVisible());
    EXPECT_FALSE(session->splash().isVisible());

    setup->txtBusiness[0].text = "Prairie Comfort";
    setup->txtBusiness[6].text = "217-555-0142";
    setup->tabInfo_Click(frmSetup::kPointsOfService);
    setup->cboAssignments.text = "Crew One";
    setup->cmdSave_Click();
    setup->cmdQuit_Click();
    fake.dialogs.verify();
    EXPECT_FALSE(setup->isVisible());
    EXPECT_TRUE(session->startup().isVisible());
    EXPECT_TRUE(session->RequiredFilesPresent());
    EXPECT_EQ(session->pointOfServiceNames[1], "Crew One");

    restart();
    EXPECT_TRUE(session->RequiredFilesPresent());
    EXPECT_EQ(setup->txtBusiness[0].text, "Prairie Comfort");
    EXPECT_EQ(setup->cboAssignments.items, QStringList{"Crew One"});
    session->splash().cmdContinue_Click();
    EXPECT_TRUE(session->startup().isVisible());
    EXPECT_FALSE(session->splash().fraWelcome.visible);
}

TEST_F(SetupQuit, AFirstRunLeftWithoutAPointOfServiceStillLacksARequiredFile) {
    start();
    setup->txtBusiness[0].text = "Prairie Comfort";
    setup->txtBusiness[6].text = "217-555-0142";
    setup->cmdQuit_Click();
    EXPECT_FALSE(t.isFile("/ServiceAreas.txt"));
    EXPECT_FALSE(session->RequiredFilesPresent());
}

TEST_F(SetupQuit, TheLegacyShopLoadsIntoTheScreenAndLeavingRewritesItsSettingsUnchanged) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    const QStringList files = {"MyBusinessData.txt",
                               "ServiceAreas.txt",
                               "TaxSettings.txt",
                               "OstrelAppointmentSchedulerSettings.txt",
                               "PrintColors.txt",
                               "LogoSettings.txt",
                               "Phone.txt",
                               "CallID.txt",
                               "ReturnPartsInstructions.txt"};
    for (const QString& f : files) {
        QFile in(ostrel::test::legacyFixture() + u'/' + f);
        ASSERT_TRUE(in.open(QIODevice::ReadOnly)) << f.toStdString();
        t.writeBytes(u'/' + f, in.readAll());
    }
    start();
    LoadPhoneFiles(session->disk, session->settings.phone);
    setup->Load();
    EXPECT_EQ(setup->txtBusiness[0].text, "Prairie Comfort Heating & Air");
    EXPECT_EQ(setup->txtBusiness[4].text, "IL");
    EXPECT_EQ(setup->txtBusiness[8].text, "");
    EXPECT_EQ(setup->cmdAddress.caption, "USA Style Address");
    EXPECT_EQ(setup->cboAssignments.items, (QStringList{"Crew One", "Crew Two", "Install Team"}));
    EXPECT_EQ(setup->cboTaxHeading2.text, "County Tax");
    EXPECT_EQ(setup->cboRate1.text, "6.25");
    EXPECT_EQ(setup->ckApply1stTax.value, 1);
    EXPECT_EQ(setup->ckColor.value, 1);
    EXPECT_EQ(setup->cboCopies.text, "3");
    EXPECT_TRUE(setup->optMF.value);
    EXPECT_EQ(setup->txtReturnParts.text,
              "Return all replaced parts to the customer\r\nunless they ask us to dispose of them.\r\n");

    setup->cmdQuit_Click();
    for (const QString f : {"TaxSettings.txt", "OstrelAppointmentSchedulerSettings.txt", "PrintColors.txt",
                            "Phone.txt", "CallID.txt", "ServiceAreas.txt", "LogoSettings.txt"}) {
        QFile in(ostrel::test::legacyFixture() + u'/' + f);
        ASSERT_TRUE(in.open(QIODevice::ReadOnly));
        EXPECT_EQ(t.readBytes(u'/' + f), in.readAll()) << f.toStdString();
    }
    // The ninth string was not shown, so it is not written back.
    EXPECT_EQ(
        t.readBytes("/MyBusinessData.txt"),
        "\"Prairie Comfort Heating & Air\",\"1207 Wabash Ave\",\"Suite B\",\"Springfield\",\"IL\",\"62704\","
        "\"217-555-0142\",\"Fax 217-555-0143  www.prairiecomfort.example\",\"\"\r\n");
}

TEST_F(SetupQuit, ASystemColourNumberInPrintColorsIsKeptExactlyByAnUnchangedSave) {
    t.writeBytes("/MyBusinessData.txt", "\"Shop\",\"\",\"\",\"\",\"\",\"\",\"555-1234\",\"\",\"\"\r\n");
    t.writeBytes("/PrintColors.txt", "-2147483643\r\n-2147483633\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
    start();
    setup->Show();
    setup->cmdQuit_Click();
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
    EXPECT_TRUE(t.readBytes("/PrintColors.txt").startsWith("-2147483643\r\n-2147483633\r\n"))
        << t.readBytes("/PrintColors.txt").constData();
}

TEST_F(SetupQuit, APickedColourReplacesASystemColourNumber) {
    t.writeBytes("/MyBusinessData.txt", "\"Shop\",\"\",\"\",\"\",\"\",\"\",\"555-1234\",\"\",\"\"\r\n");
    t.writeBytes("/PrintColors.txt", "-2147483643\r\n-2147483633\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
    start();
    setup->Show();
    setup->txtBorders.BackColor = 0x00FF00;
    setup->cmdQuit_Click();
    EXPECT_TRUE(t.readBytes("/PrintColors.txt").startsWith("65280\r\n-2147483633\r\n"))
        << t.readBytes("/PrintColors.txt").constData();
}
