#include "ShippedData.h"
#include "catalogue/CatalogueFile.h"
#include "catalogue/ServiceRecord.h"
#include "contracts/RtfText.h"
#include "contracts/frmContract.h"
#include "frmNewCustomerTestFixture.h"
#include "store/Cp1252.h"

#include <QProcess>
#include <QStandardPaths>

using namespace ostrel;
using namespace ostrel::test;

namespace {

struct ContractScreen : AccountScreenFixture {
    frmContract& contract = session.AddScreen(ScreenId::frmContract, std::make_unique<frmContract>(session));

    ContractScreen() {
        fake.clock.set(QDate(2027, 1, 31), QTime(10, 0));
        session.settings.business.txtBusiness = {"Prairie Comfort Heating", "1207 Wabash Ave", "", "Springfield",
                                                 "IL", "62704", "217-555-0142", "", ""};
        t.writeBytes("/GenericContract.rtf", shippedDataFile("GenericContract.rtf"));
        t.makeDir("/Templates/Contracts");
    }

    // The road of the menu: the contract routine, the account screen, Select.
    void selectCustomer(const CustomerRecord& c) {
        writeCustomers({c});
        open(0);
        frm.cmdCustomer_Click(1);
        fake.dialogs.verify();
        ASSERT_TRUE(contract.isVisible());
    }

    QString stored(const QString& account) {
        return cp1252::decode(t.readBytes("/Templates/Contracts/Contract - " + account + ".rtf"));
    }
    QString storedText(const QString& account) { return rtf::toPlainText(stored(account)); }

    void expectCreated(const QString& account) {
        fake.dialogs.expect("Contract Created",
                            "The Contract has been Created\nYou can modify and Print it Using MicroSoft Word or "
                            "WordPad\nIt is named Contract - " +
                                account +
                                ".rtf and is Located in \nDirectory {Hard Drive}/Norlavex/Templates/Contracts\nDo "
                                "not create another Contract for this Customer\nuntil you have printed this "
                                "Contract");
    }

    void fillManually(const QString& service, const QString& price) {
        contract.mnuManual_Click();
        contract.txtService.text = service;
        contract.txtPrice_GotFocus();
        contract.txtPrice.text = price;
        contract.txtPrice_LostFocus();
    }
};

} // namespace

TEST_F(ContractScreen, SelectOnTheAccountScreenOfTheContractRoutineOpensTheFormWithTheCustomer) {
    selectCustomer(Business("A-77", "Lakeview Dental", "Decatur"));
    EXPECT_EQ("Contract Creation Form", contract.caption);
    EXPECT_FALSE(frm.isVisible());
    EXPECT_EQ("Lakeview Dental", contract.lblCustomerName.caption);
    EXPECT_EQ("217-555-0100", contract.lblCustomerTel.caption);
    EXPECT_EQ("Decatur, IL  62521", contract.txtCustomerInfo.text);
    EXPECT_EQ("Prairie Comfort Heating\n1207 Wabash Ave\nSpringfield, IL  62704", contract.txtContractor.text);
    EXPECT_EQ(QDate(2027, 1, 31), contract.Calendar1.value);
    EXPECT_FALSE(contract.cmdAddServicetoBody.enabled);
    EXPECT_EQ(QStringList({"Monthly", "Quarterly", "Semi-Annually", "Annually"}), contract.lstFrequency.items);
    EXPECT_EQ(QStringList({"1 Month", "3 Months", "6 Months", "1 Year"}), contract.cboDuration.items);
    // No catalogue: the manual frame is the only one.
    EXPECT_FALSE(contract.fraServices.visible);
    EXPECT_TRUE(contract.fraManual.visible);
}

TEST_F(ContractScreen, BuildingLoadsTheTemplateWithTheBodyMarginsAndEnablesCreate) {
    selectCustomer(Person("1001", "Ann", "Archer"));
    contract.cmdGeneric_Click();
    EXPECT_TRUE(contract.cmdAddServicetoBody.enabled);
    const QVector<rtf::Paragraph> ps = rtf::parse(contract.txtBody);
    ASSERT_GT(ps.size(), 10);
    for (const rtf::Paragraph& p : ps) {
        EXPECT_EQ(1440, p.leftIndent);
        EXPECT_EQ(1080, p.rightIndent);
    }
    EXPECT_TRUE(rtf::toPlainText(contract.txtBody).contains("UNDERSIGNEDCUSTOMER"));
}

TEST_F(ContractScreen, CreatingMergesEveryValueAndStoresTheContractUnderTheAccount) {
    selectCustomer(Person("1001", "Ann", "Archer"));
    contract.cmdGeneric_Click();
    fillManually("Furnace Tune-up", "89");
    EXPECT_EQ("$89.00", contract.txtPrice.text);
    contract.lstFrequency.SetListIndex(1);
    contract.cboDuration.SetListIndex(0);
    contract.ckRenew.value = 1;
    expectCreated("1001");
    contract.cmdAddServicetoBody_Click();
    fake.dialogs.verify();
    EXPECT_FALSE(contract.cmdAddServicetoBody.enabled);

    const QString text = storedText("1001");
    EXPECT_TRUE(text.contains("This Service Agreement is made on 1/31/2027 between"));
    EXPECT_TRUE(text.contains("Furnace Tune-up - $89.00"));
    EXPECT_TRUE(text.contains("Mr. Ann Archer") || text.contains("Ann Archer"));
    EXPECT_TRUE(text.contains("period of 1 Month, commencing on 1/31/2027 and ending on 2/28/2027."));
    EXPECT_TRUE(text.contains("pay $89.00, billed Quarterly,"));
    EXPECT_TRUE(text.contains("this agreement automatically Renew."));
    EXPECT_TRUE(text.contains("12 Elm St\nSpringfield, IL  62701"));
    EXPECT_TRUE(text.contains("Prairie Comfort Heating\n1207 Wabash Ave\nSpringfield, IL  62704"));
}

TEST_F(ContractScreen, ThirtyFirstOfJanuaryPlusOneMonthEndsOnTheLastDayOfFebruary) {
    selectCustomer(Person("1001", "Ann", "Archer"));
    contract.cmdGeneric_Click();
    fillManually("Inspection", "10");
    contract.cboDuration.SetListIndex(0);
    expectCreated("1001");
    contract.cmdAddServicetoBody_Click();
    EXPECT_TRUE(storedText("1001").contains("ending on 2/28/2027."));
}

TEST_F(ContractScreen, TypedDurationPrintsInTermsAndLeavesTheBlankLineInTerminations) {
    selectCustomer(Person("1001", "Ann", "Archer"));
    contract.cmdGeneric_Click();
    fillManually("Inspection", "10");
    contract.cboDuration.SetListIndex(-1);
    contract.cboDuration.text = "18 Months";
    expectCreated("1001");
    contract.cmdAddServicetoBody_Click();
    EXPECT_TRUE(storedText("1001").contains(
        "a period of 18 Months, commencing on 1/31/2027 and ending on _____________________."));
}

TEST_F(ContractScreen, NoFrequencyChosenMergesAnEmptyTextAndNotRenewingSaysSo) {
    selectCustomer(Person("1001", "Ann", "Archer"));
    contract.cmdGeneric_Click();
    fillManually("Inspection", "10");
    expectCreated("1001");
    contract.cmdAddServicetoBody_Click();
    const QString text = storedText("1001");
    EXPECT_TRUE(text.contains("pay $10.00, billed , for"));
    EXPECT_TRUE(text.contains("this agreement not automatically Renew."));
}

TEST_F(ContractScreen, SecondBuildForTheSameAccountAsksFirstAndNoReturnsToTheMenu) {
    selectCustomer(Person("1001", "Ann", "Archer"));
    contract.cmdGeneric_Click();
    fillManually("Inspection", "10");
    expectCreated("1001");
    contract.cmdAddServicetoBody_Click();
    const QByteArray first = t.readBytes("/Templates/Contracts/Contract - 1001.rtf");

    fake.dialogs.expect("Replace Existing Contract",
                        "A Contract Exists for this Account\nClick Yes to Delete it and create a new Contract", vbNo);
    contract.cmdGeneric_Click();
    fake.dialogs.verify();
    EXPECT_FALSE(contract.isVisible());
    EXPECT_TRUE(session.startup().isVisible());
    EXPECT_EQ(first, t.readBytes("/Templates/Contracts/Contract - 1001.rtf"));
}

TEST_F(ContractScreen, SecondBuildAnsweredYesReplacesTheContract) {
    selectCustomer(Person("1001", "Ann", "Archer"));
    contract.cmdGeneric_Click();
    fillManually("Inspection", "10");
    expectCreated("1001");
    contract.cmdAddServicetoBody_Click();

    fake.dialogs.expect("Replace Existing Contract",
                        "A Contract Exists for this Account\nClick Yes to Delete it and create a new Contract", vbYes);
    contract.cmdGeneric_Click();
    EXPECT_TRUE(contract.cmdAddServicetoBody.enabled);
    fillManually("Boiler Service", "120");
    expectCreated("1001");
    contract.cmdAddServicetoBody_Click();
    fake.dialogs.verify();
    EXPECT_TRUE(storedText("1001").contains("Boiler Service - $120.00"));
    EXPECT_FALSE(storedText("1001").contains("Inspection"));
}

TEST_F(ContractScreen, MissingTemplateIsReportedAndCreateStaysOff) {
    selectCustomer(Person("1001", "Ann", "Archer"));
    QFile::remove(t.full("/GenericContract.rtf"));
    fake.dialogs.expect("", "The Generic Contract File could not be Found\nContact Norlavex for a Replacement");
    contract.cmdGeneric_Click();
    fake.dialogs.verify();
    EXPECT_FALSE(contract.cmdAddServicetoBody.enabled);
    EXPECT_TRUE(fake.dialogs.beeps() > 0);
}

TEST_F(ContractScreen, CustomerNameHoldingItsOwnPlaceholderIsReportedAndNothingIsStored) {
    selectCustomer(Business("B-1", "UNDERSIGNEDCUSTOMER Holdings"));
    contract.cmdGeneric_Click();
    fillManually("Inspection", "10");
    fake.dialogs.expect("Contract Not Created",
                        "The value for UNDERSIGNEDCUSTOMER, \"UNDERSIGNEDCUSTOMER Holdings\", holds the word "
                        "UNDERSIGNEDCUSTOMER itself, so it cannot be placed in the Contract.\nChange it and click "
                        "Create Contract again. Nothing was saved.");
    contract.cmdAddServicetoBody_Click();
    fake.dialogs.verify();
    EXPECT_FALSE(t.isFile("/Templates/Contracts/Contract - B-1.rtf"));
    EXPECT_TRUE(rtf::toPlainText(contract.txtBody).contains("CONTRACTORNAME")); // the body is as loaded
    EXPECT_TRUE(contract.cmdAddServicetoBody.enabled);
}

TEST_F(ContractScreen, CustomerNamedCostIsReplacedByTheAmountWhenTheCostStepComes) {
    selectCustomer(Business("B-2", "COST"));
    contract.cmdGeneric_Click();
    fillManually("Inspection", "10");
    expectCreated("B-2");
    contract.cmdAddServicetoBody_Click();
    const QString text = storedText("B-2");
    EXPECT_FALSE(text.contains("COST"));
    EXPECT_TRUE(text.contains("$10.00\nDecatur, IL  62521")) << text.toStdString();
}

TEST_F(ContractScreen, CatalogueServicesAndPricesMoveTogetherAndGiveTheServiceLine) {
    ServiceRecord a{"Furnace Tune-up", "$89.00", 4};
    ServiceRecord b{"Duct Cleaning", "250", 8};
    WriteCatalogueRecords(t.disk(), ServiceRecord::kFileName, ServiceRecord::kLength, {a.toRecord(), b.toRecord()});
    selectCustomer(Person("1001", "Ann", "Archer"));
    EXPECT_TRUE(contract.fraServices.visible);
    EXPECT_FALSE(contract.fraManual.visible);
    EXPECT_EQ(QStringList({"Furnace Tune-up", "Duct Cleaning"}), contract.cboServices.items);
    EXPECT_EQ(QStringList({"$89.00", "$250.00"}), contract.cboPrices.items);
    contract.cboServices.SetListIndex(1);
    contract.cboServices_Click();
    EXPECT_EQ(1, contract.cboPrices.listIndex);
    contract.cboPrices.SetListIndex(0);
    contract.cboPrices_Click();
    EXPECT_EQ(0, contract.cboServices.listIndex);

    contract.cmdGeneric_Click();
    contract.cboServices.SetListIndex(1);
    contract.cboServices_Click();
    expectCreated("1001");
    contract.cmdAddServicetoBody_Click();
    EXPECT_TRUE(storedText("1001").contains("Duct Cleaning - $250.00"));

    contract.mnuManual_Click();
    EXPECT_TRUE(contract.fraManual.visible);
    EXPECT_FALSE(contract.fraServices.visible);
    contract.mnuServices_Click();
    EXPECT_TRUE(contract.fraServices.visible);
}

TEST_F(ContractScreen, PriceBoxEmptiesAZeroOnEntryAndTurnsOtherTextIntoZero) {
    selectCustomer(Person("1001", "Ann", "Archer"));
    EXPECT_EQ("$0.00", contract.txtPrice.text);
    contract.txtPrice_GotFocus();
    EXPECT_EQ("", contract.txtPrice.text);
    contract.txtPrice.text = "1234.5";
    contract.txtPrice_LostFocus();
    EXPECT_EQ("$1,234.50", contract.txtPrice.text);
    contract.txtPrice_GotFocus();
    EXPECT_EQ("$1,234.50", contract.txtPrice.text);
    const int beeps = fake.dialogs.beeps();
    contract.txtPrice.text = "twelve";
    contract.txtPrice_LostFocus();
    EXPECT_EQ("$0.00", contract.txtPrice.text);
    EXPECT_EQ(beeps + 1, fake.dialogs.beeps());
}

TEST_F(ContractScreen, CalendarDateBeforeTodayIsCalledInvalidAndStaysChosen) {
    selectCustomer(Person("1001", "Ann", "Archer"));
    contract.Calendar1.value = QDate(2027, 1, 30);
    fake.dialogs.expect("", "Your Calendar Selection is Invalid");
    contract.Calendar1_Change();
    fake.dialogs.verify();
    EXPECT_EQ(QDate(2027, 1, 30), contract.Calendar1.value);
    contract.Calendar1.value = QDate(2027, 2, 1);
    contract.Calendar1_Change(); // no box
}

TEST_F(ContractScreen, RedoReturnsToTheEntryState) {
    selectCustomer(Person("1001", "Ann", "Archer"));
    contract.cmdGeneric_Click();
    fillManually("Inspection", "10");
    contract.lstFrequency.SetListIndex(2);
    contract.ckRenew.value = 1;
    contract.Command2_Click();
    EXPECT_TRUE(contract.txtBody.isEmpty());
    EXPECT_FALSE(contract.cmdAddServicetoBody.enabled);
    EXPECT_EQ(-1, contract.lstFrequency.listIndex);
    EXPECT_EQ(0, contract.ckRenew.value);
    EXPECT_EQ("", contract.txtService.text);
    EXPECT_EQ("$0.00", contract.txtPrice.text);
}

TEST_F(ContractScreen, TheStoredContractAndTheTemplateReadInAnIndependentReader) {
    const QString unrtf = QStandardPaths::findExecutable("unrtf");
    if (unrtf.isEmpty()) GTEST_SKIP() << "unrtf is not installed";
    auto readWithUnrtf = [&](const QString& file) {
        QProcess p;
        p.start(unrtf, {"--text", file});
        p.waitForFinished(10000);
        EXPECT_EQ(0, p.exitCode()) << file.toStdString();
        return QString::fromLocal8Bit(p.readAllStandardOutput()).simplified();
    };
    const QString templ = readWithUnrtf(t.full("/GenericContract.rtf"));
    EXPECT_TRUE(templ.contains("(Insert Services and Prices Here)"));
    for (const char* w : {"CONTRACTORNAME", "UNDERSIGNEDCUSTOMER", "CREATIONDATE", "TERMS", "COMMENCING",
                          "TERMINATIONS", "FREQUENCY", "COST", "RENEWS", "CONTRACTORADDRESS", "CUSTOMERADDRESS"})
        EXPECT_TRUE(templ.contains(QLatin1String(w))) << w;

    selectCustomer(Business("B-3", "Lakeview Dental"));
    contract.cmdGeneric_Click();
    fillManually("Water Heater Flush", "75");
    contract.lstFrequency.SetListIndex(3);
    contract.cboDuration.SetListIndex(3);
    contract.ckRenew.value = 1;
    expectCreated("B-3");
    contract.cmdAddServicetoBody_Click();
    const QString merged = readWithUnrtf(t.full("/Templates/Contracts/Contract - B-3.rtf"));
    for (const char* w : {"CONTRACTORNAME", "UNDERSIGNEDCUSTOMER", "CREATIONDATE", "TERMS ", "COMMENCING",
                          "TERMINATIONS", "FREQUENCY", "COST", "RENEWS", "CONTRACTORADDRESS", "CUSTOMERADDRESS",
                          "(Insert Services"})
        EXPECT_FALSE(merged.contains(QLatin1String(w))) << w;
    for (const char* v : {"Prairie Comfort Heating", "Lakeview Dental", "1/31/2027", "1 Year", "1/31/2028",
                          "Annually", "$75.00", "automatically Renew", "1207 Wabash Ave", "Decatur, IL 62521",
                          "Water Heater Flush - $75.00"})
        EXPECT_TRUE(merged.contains(QLatin1String(v))) << v << " in " << merged.toStdString();
}
