#include "TestDataRoot.h"
#include "setup/PointOfServiceNames.h"
#include "setup/RequiredFiles.h"
#include "setup/ReturnPartsInstructions.h"
#include "setup/SetupSettings.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {
const QString kProgram = QStringLiteral("OstrelAppointmentScheduler");

const QStringList kSettingsFiles = {"MyBusinessData.txt",
                                    "OstrelAppointmentSchedulerSettings.txt",
                                    "TaxSettings.txt",
                                    "PrintColors.txt",
                                    "LogoSettings.txt",
                                    "ServiceAreas.txt",
                                    "ReturnPartsInstructions.txt",
                                    "Phone.txt",
                                    "CallID.txt"};

// The fixture is read-only: its files are copied into a fresh data root.
class LegacySettings : public ::testing::Test {
protected:
    void SetUp() override {
        OSTREL_REQUIRE_LEGACY_FIXTURE();
        for (const QString& name : kSettingsFiles) {
            QFile f(ostrel::test::legacyFixture() + "/" + name);
            ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << name.toStdString();
            original[name] = f.readAll();
            t.writeBytes("/" + name, original[name]);
        }
    }
    QByteArray file(const QString& name) const { return t.readBytes("/" + name); }

    TestDataRoot t;
    QMap<QString, QByteArray> original;
};
} // namespace

TEST_F(LegacySettings, LoadsEveryFileAtItsStatedFields) {
    SetupSettings s;
    LoadSetupSettings(t.disk(), kProgram, s);
    LoadPhoneFiles(t.disk(), s.phone);

    EXPECT_EQ(s.business.companyName(), "Prairie Comfort Heating & Air");
    EXPECT_EQ(s.business.state(), "IL");
    EXPECT_EQ(s.business.postalCode(), "62704");
    EXPECT_EQ(s.business.telephone(), "217-555-0142");
    EXPECT_EQ(s.business.taxRegistration(), "FEIN 37-1234567");
    EXPECT_TRUE(s.isUsaStyle());

    EXPECT_EQ(s.program.ckSalesItems, 1);
    EXPECT_TRUE(s.program.optPlain);
    EXPECT_EQ(s.program.txtGradulated[0], "$0.00");
    EXPECT_TRUE(s.program.optMF());
    EXPECT_TRUE(s.program.prompts());
    EXPECT_TRUE(s.program.isShopRepair());
    EXPECT_EQ(s.program.ckTerms, 1);

    EXPECT_EQ(s.tax.cboTaxHeading2, "County Tax");
    EXPECT_EQ(s.tax.cboRate1, "6.25");
    EXPECT_EQ(s.tax.cboRate2, "1.5");
    EXPECT_TRUE(s.tax.applyFirstTax());
    EXPECT_FALSE(s.program.applySecondTax());

    EXPECT_EQ(s.colors.lblFont, "Arial");
    EXPECT_EQ(s.colors.ckColor, 1);
    EXPECT_EQ(s.colors.cboCopies, "3");
    EXPECT_EQ(s.logoSize.width, 1440.0f);
    EXPECT_EQ(s.logoSize.height, 1080.0f);
    EXPECT_EQ(s.txtReturnParts,
              "Return all replaced parts to the customer\r\nunless they ask us to dispose of them.\r\n");

    EXPECT_FALSE(s.phone.PhoneChained);
    EXPECT_EQ(s.phone.ModemPort, 3);
    EXPECT_FALSE(s.phone.CallerIdOn);

    const PointOfServiceNames table = LoadPointOfServiceNames(t.disk());
    EXPECT_EQ(table.names(), QStringList({"Crew One", "Crew Two", "Install Team"}));
    EXPECT_TRUE(RequiredFilesPresent(t.disk(), kProgram));
}

TEST_F(LegacySettings, SavingUnchangedGivesTheSameBytes) {
    SetupSettings s;
    LoadSetupSettings(t.disk(), kProgram, s);
    LoadPhoneFiles(t.disk(), s.phone);
    // The owner retyped the ninth string, so every box holds what the file held.
    SaveSetupSettings(t.disk(), kProgram, s, s.business.txtBusiness, s.phone.PhoneChained);
    for (const QString& name :
         QStringList{"MyBusinessData.txt", "OstrelAppointmentSchedulerSettings.txt", "TaxSettings.txt",
                     "PrintColors.txt", "Phone.txt", "CallID.txt", "LogoSettings.txt"})
        EXPECT_EQ(file(name), original[name]) << name.toStdString();
    // No logo picture is stored in this tree, so leaving Setup writes no logo path.
    EXPECT_FALSE(t.isFile("/CompanyLogo.txt"));

    SaveLogoSettings(t.disk(), s.logoSize, true);
    EXPECT_EQ(file("LogoSettings.txt"), original["LogoSettings.txt"]);

    PointOfServiceNames table = LoadPointOfServiceNames(t.disk());
    SaveAssociates(t.disk(), table.names(), table);
    EXPECT_EQ(file("ServiceAreas.txt"), original["ServiceAreas.txt"]);
}

TEST_F(LegacySettings, LeavingSetupEmptiesTheUnshownNinthBusinessString) {
    // Stated exception: the ninth string is not shown on load, so its empty box is what is saved.
    SetupSettings s;
    LoadSetupSettings(t.disk(), kProgram, s);
    BusinessBoxes boxes;
    FillBusinessBoxes(s.business, boxes);
    SaveSetupSettings(t.disk(), kProgram, s, boxes, false);
    EXPECT_EQ(
        file("MyBusinessData.txt"),
        QByteArray("\"Prairie Comfort Heating & Air\",\"1207 Wabash Ave\",\"Suite B\",\"Springfield\",\"IL\","
                   "\"62704\",\"217-555-0142\",\"Fax 217-555-0143  www.prairiecomfort.example\",\"\"\r\n"));
}

TEST_F(LegacySettings, ReturnPartsRoundAddsOneLineEndInsideTheQuotes) {
    // Stated exception: each save and load round adds a line end at the end of the text.
    const QString text = LoadReturnPartsInstructions(t.disk());
    SaveReturnPartsInstructions(t.disk(), text);
    QByteArray expected = original["ReturnPartsInstructions.txt"];
    expected.insert(expected.size() - 3, "\r\n");
    EXPECT_EQ(file("ReturnPartsInstructions.txt"), expected);
    EXPECT_EQ(file("ReturnPartsInstructions.txt"),
              QByteArray("\"Return all replaced parts to the customer\r\nunless they ask us to dispose of "
                         "them.\r\n\"\r\n"));
}
