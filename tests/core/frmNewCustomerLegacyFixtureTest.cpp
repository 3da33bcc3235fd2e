// The account screen over a copy of the legacy shop's customer files.
#include "frmNewCustomerTestFixture.h"

#include <QFile>

using namespace ostrel;
using ostrel::test::AccountScreenFixture;

namespace {

struct AccountLegacyShop : AccountScreenFixture {
    void copyFromShop(const QString& name) {
        QFile f(test::legacyFixture() + name);
        ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << name.toStdString();
        t.writeBytes(name, f.readAll());
    }
    void copyShop() {
        for (const char* name :
             {"/CustomerData.txt", "/ContractInfo.txt", "/CycleInfo.txt", "/AuxHeadings.txt",
              "/StatesList.txt", "/AuxFiles/10003/AuxFile0/Data.txt", "/AuxFiles/10003/AuxFile1/Data.txt"})
            copyFromShop(QString::fromLatin1(name));
    }
};

} // namespace

TEST_F(AccountLegacyShop, TheScreenOpensOnTheShopsCustomersWithTheirHeadingsAndStates) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    copyShop();
    open(5);
    fake.dialogs.verify();
    EXPECT_EQ(frm.CustomerCount, 240);
    EXPECT_EQ(frm.cboAccounts.ListCount(), 240);
    EXPECT_EQ(frm.cboStates.ListCount(), 50);
    EXPECT_EQ(frm.cboStates.List(0), "AL");
    EXPECT_EQ(frm.txtHeading[0].text, "Equipment");
    EXPECT_EQ(frm.txtHeading[3].text, "Pets");
    EXPECT_EQ(frm.txtHeading[5].text, "");
    EXPECT_EQ(frm.txtCustomer[0].text, "217-555-0791");
    EXPECT_EQ(frm.txtCustomer[1].text, "Miss Richard Goldsmith");
    EXPECT_EQ(frm.lbLType.caption, "Individual");
    EXPECT_EQ(frm.cboTitle.text, "Mr/Mrs");
    EXPECT_EQ(frm.txtCustomer[8].text, "Richard");
    EXPECT_EQ(frm.txtCustomer[9].text, "P");
    EXPECT_EQ(frm.txtCustomer[10].text, "Goldsmith");
    EXPECT_EQ(frm.cboCity.text, "Rochester");
    EXPECT_EQ(frm.cboStates.text, "IL");
    EXPECT_EQ(frm.txtCustomer[5].text, "62563");
}

TEST_F(AccountLegacyShop, ACustomersAuxDataComesBackSplitAtItsCommas) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    copyShop();
    open();
    frm.cmdNav_Click(3);
    frm.CurrentRecord = 4;
    frm.LoadAccount();
    EXPECT_EQ(frm.txtCustomer[0].text, "10003");
    EXPECT_EQ(frm.txtAux[0].text, "Carrier 58STA furnace\r\ninstalled 2014\r\nattic\r\n");
    EXPECT_EQ(frm.txtAux[1].text, "16x25x1\r\n");
    EXPECT_TRUE(frm.txtAux[2].text.isEmpty());
}

TEST_F(AccountLegacyShop, SavingACustomerUnchangedLeavesAllThreeFilesAsTheyWere) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    copyShop();
    const QByteArray customers = t.readBytes("/CustomerData.txt");
    const QByteArray contracts = t.readBytes("/ContractInfo.txt");
    const QByteArray cycles = t.readBytes("/CycleInfo.txt");
    open();
    frm.cmdNav_Click(2);
    frm.cmdNav_Click(1);
    EXPECT_EQ(frm.CurrentRecord, 1);
    EXPECT_EQ(t.readBytes("/CustomerData.txt"), customers);
    EXPECT_EQ(t.readBytes("/ContractInfo.txt"), contracts);
    EXPECT_EQ(t.readBytes("/CycleInfo.txt"), cycles);
}
