// The account screen's keys, duplicate test, deletion, dialing and aux data.
#include "frmNewCustomerTestFixture.h"

#include "accounts/AuxData.h"
#include "accounts/CustomerStore.h"
#include "store/StoreError.h"

using namespace ostrel;
using ostrel::test::AccountScreenFixture;
using ostrel::test::Business;
using ostrel::test::Person;

namespace {

using AccountRecord = AccountScreenFixture;

struct Call {
    QString name;
    QString number;
};

} // namespace

// Keys.

TEST_F(AccountRecord, EveryCustomerBoxRefusesTheDoubleQuote) {
    writeCustomers({Person("1", "A", "B")});
    open();
    for (int i : frmNewCustomer::kCustomerBoxes) {
        frm.txtCustomer[i].text = "abc";
        int key = '"';
        frm.txtCustomer_KeyPress(i, key);
        EXPECT_EQ(key, 0) << i;
        EXPECT_BOX(fake.dialogs, "Invalid Key entry", "This character, (\") is invalid for this field");
        EXPECT_TRUE(frm.txtCustomer[i].focusRequested) << i;
    }
    EXPECT_EQ(fake.dialogs.beeps(), 11);
}

TEST_F(AccountRecord, TheAccountAndTelephoneBoxesRefuseFileNameCharacters) {
    writeCustomers({Person("1", "A", "B")});
    open();
    for (int i : {0, 6}) {
        frm.txtCustomer[i].text = "555-12";
        int key = '/';
        frm.txtCustomer_KeyPress(i, key);
        EXPECT_EQ(key, 0);
        EXPECT_BOX(fake.dialogs, "Invalid Key entry", "This character, (/) is invalid for this field");
        frm.txtCustomer[i].text = "555";
        key = '/';
        frm.txtCustomer_KeyPress(i, key);
        EXPECT_EQ(key, '/');
    }
    fake.dialogs.verify();
}

TEST_F(AccountRecord, OtherBoxesTakeFileNameCharacters) {
    writeCustomers({Person("1", "A", "B")});
    open();
    for (int i : {1, 2, 3, 5, 7, 8, 9, 10, 11}) {
        frm.txtCustomer[i].text = "a";
        for (char c : {',', '&', '.', '\\', '*', '/', '?'}) {
            int key = c;
            frm.txtCustomer_KeyPress(i, key);
            EXPECT_EQ(key, c) << i;
        }
    }
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
}

TEST_F(AccountRecord, EnteringTheAccountNameOrTelephoneBoxDropsAMustHint) {
    writeCustomers({Person("1", "A", "B")});
    open();
    for (int i : {0, 1, 6}) {
        frm.txtCustomer[i].text = "You Must enter this";
        frm.txtCustomer_GotFocus(i);
        EXPECT_TRUE(frm.txtCustomer[i].text.isEmpty()) << i;
    }
    frm.txtCustomer[2].text = "Must St";
    frm.txtCustomer_GotFocus(2);
    EXPECT_EQ(frm.txtCustomer[2].text, "Must St");
    frm.txtCustomer[0].text = "must not";
    frm.txtCustomer_GotFocus(0);
    EXPECT_EQ(frm.txtCustomer[0].text, "must not");
}

// The duplicate test.

TEST_F(AccountRecord, ADuplicateAccountNumberAnsweredYesIsCleared) {
    writeCustomers({Person("A-1", "A", "B"), Person("A-2", "C", "D")});
    open();
    frm.txtCustomer[0].text = "A-2";
    fake.dialogs.expect(
        "Duplicate Account Number",
        "The Account Number is a duplicate\nClick Yes to Replace it\nEnter a different Number", vbYesNo,
        vbYes);
    frm.txtCustomer_LostFocus(0);
    fake.dialogs.verify();
    EXPECT_TRUE(frm.txtCustomer[0].text.isEmpty());
    EXPECT_TRUE(frm.txtCustomer[0].focusRequested);
    EXPECT_EQ(session.disk.OpenChannelCount(), 0);
}

TEST_F(AccountRecord, ADuplicateAccountNumberAnsweredNoStands) {
    writeCustomers({Person("A-1", "A", "B"), Person("A-2", "C", "D")});
    open();
    frm.txtCustomer[0].text = "A-2";
    fake.dialogs.expect(
        "Duplicate Account Number",
        "The Account Number is a duplicate\nClick Yes to Replace it\nEnter a different Number", vbNo);
    frm.txtCustomer_LostFocus(0);
    fake.dialogs.verify();
    EXPECT_EQ(frm.txtCustomer[0].text, "A-2");
    frm.SaveAccount();
    EXPECT_EQ(recordOnDisk(1).AccountNumber().trimmed(), "A-2");
}

TEST_F(AccountRecord, TheDuplicateTestSkipsTheCurrentRecordAndCountsCase) {
    writeCustomers({Person("A-1", "A", "B"), Person("A-2", "C", "D")});
    open();
    frm.txtCustomer[0].text = "A-1";
    frm.txtCustomer_LostFocus(0);
    frm.txtCustomer[0].text = "a-2";
    frm.txtCustomer_LostFocus(0);
    frm.txtCustomer[0].text.clear();
    frm.txtCustomer_LostFocus(0);
    frm.txtCustomer[0].text = "A-2";
    frm.txtCustomer_LostFocus(1);
    frm.CurrentRecord = 0;
    frm.txtCustomer_LostFocus(0);
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
}

TEST_F(AccountRecord, ALongAccountNumberIsCutOnStoringAndThenNoLongerEqualsItsCopy) {
    writeCustomers({Person("1", "A", "B"), Person("2", "C", "D")});
    open();
    const QString longer = "ACCOUNT-NUMBER-OF-25-CHAR";
    frm.txtCustomer[0].text = longer;
    frm.SaveAccount();
    EXPECT_EQ(recordOnDisk(1).AccountNumber(), longer.left(20));
    frm.cmdNav_Click(2);
    frm.txtCustomer[0].text = longer;
    frm.txtCustomer_LostFocus(0);
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
    frm.txtCustomer[0].text = longer.left(20);
    fake.dialogs.expect(
        "Duplicate Account Number",
        "The Account Number is a duplicate\nClick Yes to Replace it\nEnter a different Number", vbNo);
    frm.txtCustomer_LostFocus(0);
    fake.dialogs.verify();
}

// Deletion.

TEST_F(AccountRecord, DeletingACustomerAlsoDeletesItsActiveAccountFile) {
    writeCustomers(
        {Person("1001", "Ann", "Archer"), Person("1002", "Bob", "Baker"), Person("1003", "Cy", "Carter")});
    t.writeBytes("/OIActiveAccounts/1002.txt", "open account\r\n");
    t.writeBytes("/OIActiveAccounts/1003.txt", "other\r\n");
    open();
    frm.cmdNav_Click(2);
    fake.dialogs.expect("", "Delete this Customer", vbYesNo, vbYes);
    frm.mnuDelete_Click();
    fake.dialogs.verify();
    EXPECT_FALSE(t.isFile("/OIActiveAccounts/1002.txt"));
    EXPECT_TRUE(t.isFile("/OIActiveAccounts/1003.txt"));
    EXPECT_EQ(countOnDisk(), 2);
    EXPECT_EQ(recordOnDisk(2).AccountNumber().trimmed(), "1003");
    EXPECT_EQ(t.readBytes("/CycleInfo.txt").size(), 2 * 69);
    EXPECT_EQ(t.readBytes("/ContractInfo.txt").size(), 2 * 386);
    EXPECT_EQ(frm.CustomerCount, 2);
    EXPECT_EQ(frm.CurrentRecord, 1);
    EXPECT_EQ(frm.txtCustomer[0].text, "1001");
    EXPECT_TRUE(frm.txtCustomer[0].focusRequested);
    EXPECT_EQ(frm.cboAccounts.items, (QStringList{"Archer, Ann  ", "Carter, Cy  "}));
    EXPECT_EQ(frm.cboAccounts.itemData, (QVector<qint32>{1, 2}));
}

TEST_F(AccountRecord, DeleteAnsweredNoKeepsTheCustomerAndFocusesTheAccountBox) {
    writeCustomers({Person("1001", "Ann", "Archer"), Person("1002", "Bob", "Baker")});
    open();
    fake.dialogs.expect("", "Delete this Customer", vbYesNo, vbNo);
    frm.mnuDelete_Click();
    fake.dialogs.verify();
    EXPECT_EQ(countOnDisk(), 2);
    EXPECT_TRUE(frm.txtCustomer[0].focusRequested);
}

TEST_F(AccountRecord, DeletingTheOnlyCustomerLeavesAnEmptyFileAndEmptyBoxes) {
    writeCustomers({Person("1001", "Ann", "Archer")});
    t.makeDir("/AuxFiles/1001/AuxFile0");
    open();
    fake.dialogs.expect("", "Delete this Customer", vbYesNo, vbYes);
    frm.mnuDelete_Click();
    fake.dialogs.verify();
    EXPECT_TRUE(t.isFile("/CustomerData.txt"));
    EXPECT_EQ(t.readBytes("/CustomerData.txt").size(), 0);
    EXPECT_EQ(frm.CustomerCount, 1);
    EXPECT_EQ(frm.cboAccounts.ListCount(), 0);
    EXPECT_TRUE(frm.txtCustomer[0].text.isEmpty());
    EXPECT_TRUE(frm.txtCustomer[8].text.isEmpty());
    EXPECT_TRUE(t.isDir("/AuxFiles/1001"));
    open();
    EXPECT_EQ(frm.CustomerCount, 0);
}

TEST_F(AccountRecord, DeleteWithNoCustomersCountedAsksNothing) {
    fake.dialogs.expect("Create Customers", "Your Customer File is Empty\nCreate your First Customer Now");
    open();
    frm.mnuDelete_Click();
    fake.dialogs.verify();
}

// Dialing.

struct AccountDial : AccountScreenFixture {
    QVector<Call> calls;
    void SetUp() override {
        session.modem.detected = true;
        session.dial = [this](const QString& name, const QString& number) { calls.append({name, number}); };
    }
    void showWith(const QString& phone, const QString& cell) {
        CustomerRecord b = Business("B-1", "Acme Tools");
        b.SetTelephone(phone);
        b.SetCellPhone(cell);
        writeCustomers({b});
        open();
    }
};

TEST_F(AccountDial, OnlyATelephoneIsDialled) {
    showWith("217-555-0100", "");
    frm.Image1_Click(1);
    ASSERT_EQ(calls.size(), 1);
    EXPECT_EQ(calls[0].name, "Acme Tools");
    EXPECT_EQ(calls[0].number, "217-555-0100");
}

TEST_F(AccountDial, OnlyACellIsDialled) {
    showWith("", "217-555-0199");
    frm.Image1_Click(1);
    ASSERT_EQ(calls.size(), 1);
    EXPECT_EQ(calls[0].number, "217-555-0199");
}

TEST_F(AccountDial, WithBothTheUserChoosesYesForPhoneAndNoForCell) {
    showWith("217-555-0100", "217-555-0199");
    fake.dialogs.expect("Select Phone or Cell", "Click YES to dial Phone,\nClick NO to dial Cell", vbYesNo,
                        vbYes);
    frm.Image1_Click(1);
    fake.dialogs.expect("Select Phone or Cell", "Click YES to dial Phone,\nClick NO to dial Cell", vbYesNo,
                        vbNo);
    frm.Image1_Click(1);
    fake.dialogs.verify();
    ASSERT_EQ(calls.size(), 2);
    EXPECT_EQ(calls[0].number, "217-555-0100");
    EXPECT_EQ(calls[1].number, "217-555-0199");
}

TEST_F(AccountDial, WithNeitherTheDialerOpensWithoutANumber) {
    showWith("", "");
    frm.Image1_Click(1);
    ASSERT_EQ(calls.size(), 1);
    EXPECT_EQ(calls[0].number, "");
}

TEST_F(AccountDial, APersonIsCalledByTheComposedName) {
    writeCustomers({Person("P", "Jane", "Doe", "217-555-0001")});
    open();
    frm.Image1_Click(1);
    ASSERT_EQ(calls.size(), 1);
    EXPECT_EQ(calls[0].name, "Mr. Jane Doe");
}

TEST_F(AccountDial, NothingIsDialledWithoutAModem) {
    session.modem.detected = false;
    showWith("217-555-0100", "");
    frm.Image1_Click(1);
    EXPECT_TRUE(calls.isEmpty());
}

// Aux data.

TEST_F(AccountRecord, LoadingACustomerReadsItsAuxFilesSplitAtCommas) {
    writeCustomers({Person("1001", "Ann", "Archer")});
    t.writeBytes("/AuxFiles/1001/AuxFile0/Data.txt", "Gate 1234, side door\r\n");
    t.writeBytes("/AuxFiles/1001/AuxFile5/Data.txt", "Dog\r\n");
    open();
    EXPECT_EQ(frm.txtAux[0].text, "Gate 1234\r\nside door\r\n");
    EXPECT_EQ(frm.txtAux[5].text, "Dog\r\n");
    EXPECT_TRUE(frm.txtAux[1].text.isEmpty());
}

TEST_F(AccountRecord, RetainKeepsTheAuxBoxesFromOneAccountToTheNext) {
    writeCustomers({Person("1001", "Ann", "Archer"), Person("1002", "Bob", "Baker")});
    t.writeBytes("/AuxFiles/1001/AuxFile0/Data.txt", "first\r\n");
    open();
    frm.ckSaveAux.value = 1;
    frm.cmdNav_Click(2);
    EXPECT_EQ(frm.txtAux[0].text, "first\r\n");
    frm.ckSaveAux.value = 0;
    frm.cmdNav_Click(0);
    frm.cmdNav_Click(2);
    EXPECT_TRUE(frm.txtAux[0].text.isEmpty());
}

TEST_F(AccountRecord, TheDataScreenTogglesAndNamesTheAccount) {
    writeCustomers({Person("1001", "Ann", "Archer"), Business("B", "Acme Tools")});
    open();
    frm.cboTitle.text = "Ms";
    frm.mnuAux_Click();
    EXPECT_TRUE(frm.fraAux.visible);
    EXPECT_EQ(frm.lblAccount.caption, "Ms Ann Archer");
    frm.mnuAux_Click();
    EXPECT_FALSE(frm.fraAux.visible);
    frm.cmdNav_Click(2);
    frm.mnuAux_Click();
    EXPECT_EQ(frm.lblAccount.caption, "Acme Tools");
}

TEST_F(AccountRecord, CloseScreenSavesTheAuxDataOfANewCustomerIntoNewFolders) {
    writeCustomers({Person("1001", "Ann", "Archer")});
    open();
    frm.mnuAdd_Click();
    frm.txtCustomer[0].text = "NEW-9";
    frm.txtCustomer[8].text = "Hal";
    frm.txtCustomer[10].text = "Hart";
    frm.SaveAccount();
    frm.mnuAux_Click();
    frm.txtAux[2].text = "Pool, heated";
    frm.cmdSaveAux_Click(2);
    EXPECT_FALSE(frm.fraAux.visible);
    for (int k = 0; k < 6; ++k)
        EXPECT_TRUE(t.isFile(QStringLiteral("/AuxFiles/NEW-9/AuxFile%1/Data.txt").arg(k))) << k;
    EXPECT_EQ(t.readBytes("/AuxFiles/NEW-9/AuxFile2/Data.txt"), "Pool, heated\r\n");
    frm.cmdSaveAux_Click(3);
    EXPECT_EQ(frm.txtAux[2].text, "Pool\r\nheated\r\n");
}

TEST_F(AccountRecord, SaveHeadingsWritesTheSixHeadingsForEveryAccount) {
    writeCustomers({Person("1001", "Ann", "Archer")});
    open();
    for (int k = 0; k < 6; ++k)
        frm.txtHeading[k].text = QStringLiteral("H%1").arg(k);
    frm.txtHeading_DblClick(4);
    EXPECT_TRUE(frm.txtHeading[4].text.isEmpty());
    frm.cmdSaveAux_Click(0);
    EXPECT_EQ(t.readBytes("/AuxHeadings.txt"), "H0\r\nH1\r\nH2\r\nH3\r\n\r\nH5\r\n");
}

TEST_F(AccountRecord, TheBigEditorOpensOnABoxAndCopiesBackOnHide) {
    writeCustomers({Person("1001", "Ann", "Archer")});
    open();
    frm.mnuAux_Click();
    frm.txtHeading[2].text = "Pool";
    frm.txtAux[2].text = "old text";
    frm.txtAux_DblClick(2);
    EXPECT_TRUE(frm.fraBig.visible);
    EXPECT_EQ(frm.CurrentAuxBox, 2);
    EXPECT_EQ(frm.txtBig.text, "old text");
    EXPECT_EQ(frm.lblEditing.caption, "Editing Data Box # 3 - Pool - for Mr. Ann Archer");
    frm.cmdSaveAux_Click(5);
    EXPECT_TRUE(frm.txtBig.text.isEmpty());
    frm.cmdSaveAux_Click(6);
    EXPECT_EQ(frm.txtBig.text, "old text");
    frm.txtBig.text = "new text";
    frm.cmdSaveAux_Click(4);
    EXPECT_FALSE(frm.fraBig.visible);
    EXPECT_EQ(frm.txtAux[2].text, "new text");
}

TEST_F(AccountRecord, NextAndPreviousAccountSaveTheAuxDataAndStopAtTheEnds) {
    writeCustomers({Person("1001", "Ann", "Archer"), Person("1002", "Bob", "Baker")});
    open();
    frm.mnuAux_Click();
    frm.txtAux[0].text = "for Ann";
    frm.cmdSaveAux_Click(7);
    EXPECT_EQ(t.readBytes("/AuxFiles/1001/AuxFile0/Data.txt"), "for Ann\r\n");
    EXPECT_EQ(frm.CurrentRecord, 2);
    EXPECT_EQ(frm.lblAccount.caption, "Mr. Bob Baker");
    frm.cmdSaveAux_Click(7);
    EXPECT_EQ(frm.CurrentRecord, 2);
    frm.cmdSaveAux_Click(8);
    EXPECT_EQ(frm.CurrentRecord, 1);
    EXPECT_EQ(frm.txtAux[0].text, "for Ann\r\n");
    frm.cmdSaveAux_Click(8);
    EXPECT_EQ(frm.CurrentRecord, 1);
}

TEST_F(AccountRecord, ClearLabelEmptiesItsAuxBox) {
    writeCustomers({Person("1001", "Ann", "Archer")});
    open();
    frm.txtAux[3].text = "x";
    frm.lblClear_Click(3);
    EXPECT_TRUE(frm.txtAux[3].text.isEmpty());
    EXPECT_EQ(frm.lblClear[3].caption, "<Clear");
    EXPECT_EQ(frm.lblClear[3].toolTip, "Clears the Aux Data Box");
}

TEST_F(AccountRecord, AnAccountThatCannotNameAFolderLoadsWithoutABoxAndEmptyAuxBoxes) {
    writeCustomers({Person("12/34", "Ann", "Archer")});
    open();
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
    EXPECT_EQ(frm.txtCustomer[0].text, "12/34");
    EXPECT_EQ(frm.txtCustomer[8].text, "Ann");
    for (int k = 0; k < 6; ++k) EXPECT_TRUE(frm.txtAux[k].text.isEmpty()) << k;
}

TEST_F(AccountRecord, AnAccountThatCannotNameAFolderCanBeChangedAndDeleted) {
    writeCustomers({Person("1001", "Bob", "Baker"), Person("12/34", "Ann", "Archer")});
    open();
    frm.cmdNav_Click(3); // to the last customer
    ASSERT_EQ(frm.txtCustomer[0].text, "12/34");
    frm.txtCustomer[10].text = "Arden";
    frm.cmdNav_Click(0);
    EXPECT_EQ(recordOnDisk(2).LastName().trimmed(), "Arden");
    frm.cmdNav_Click(3);
    ASSERT_EQ(frm.txtCustomer[0].text, "12/34");
    fake.dialogs.takeAllBoxes();
    CustomerStore store(t.disk(), session.customer);
    EXPECT_EQ(store.DeleteCustomer(2, QStringLiteral("12/34"), 2), 1);
    EXPECT_EQ(countOnDisk(), 1);
    EXPECT_EQ(recordOnDisk(1).AccountNumber().trimmed(), "1001");
}

TEST_F(AccountRecord, WritingTheAuxDataOfAnAccountThatCannotNameAFolderIsRefusedNamingTheAccount) {
    writeCustomers({Person("12/34", "Ann", "Archer")});
    open();
    try {
        AuxData::SaveAuxData(t.disk(), QStringLiteral("12/34"), {QStringLiteral("note")});
        ADD_FAILURE() << "saved";
    } catch (const StoreError& e) {
        EXPECT_TRUE(e.problem().contains("\"12/34\"")) << e.problem().toStdString();
    }
    EXPECT_FALSE(t.isDir("/AuxFiles/12"));
}
