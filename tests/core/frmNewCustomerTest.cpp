#include "frmNewCustomerTestFixture.h"

#include "accounts/CustomerNames.h"

using namespace ostrel;
using ostrel::test::AccountScreenFixture;
using ostrel::test::Business;
using ostrel::test::Person;

namespace {

using AccountScreen = AccountScreenFixture;

// A screen a later part of the program provides; here it only records being shown.
class StandInScreen : public Screen {
public:
    using Screen::Screen;
    void Form_Activate() override { ++activations; }
    int activations = 0;
};

} // namespace

TEST_F(AccountScreen, LoadFillsTheTitlesAndTheFiftyStateCodes) {
    QByteArray states;
    for (int i = 0; i < 50; ++i)
        states += "\"S" + QByteArray::number(i) + "\"\r\n";
    t.writeBytes("/StatesList.txt", states);
    frm.CurrentRecord = 9;
    frm.Load();
    EXPECT_EQ(frm.CurrentRecord, 1);
    EXPECT_EQ(frm.cboTitle.items, (QStringList{"Mr/Mrs", "Mr.", "Mrs", "Ms", "Miss"}));
    ASSERT_EQ(frm.cboStates.ListCount(), 50);
    EXPECT_EQ(frm.cboStates.List(0), "S0");
    EXPECT_EQ(frm.cboStates.List(49), "S49");
}

TEST_F(AccountScreen, LoadWithoutAStatesFileLeavesTheStateListAlone) {
    frm.cboStates.AddItem("ZZ");
    frm.Load();
    EXPECT_EQ(frm.cboStates.items, QStringList{"ZZ"});
}

TEST_F(AccountScreen, FirstActivationOnAnEmptyFolderAsksForTheFirstCustomer) {
    session.settings.business.txtBusiness[3] = "Peoria";
    fake.dialogs.expect("Create Customers", "Your Customer File is Empty\nCreate your First Customer Now");
    open();
    fake.dialogs.verify();
    for (auto& [i, b] : frm.cmdNav)
        EXPECT_FALSE(b.enabled) << i;
    for (int i = 0; i <= 2; ++i)
        EXPECT_FALSE(frm.Command1[i].enabled);
    EXPECT_FALSE(frm.mnuDelete.enabled);
    EXPECT_EQ(frm.cboCity.text, "Peoria");
    EXPECT_EQ(frm.lbLType.caption, "Individual");
    EXPECT_TRUE(frm.txtCustomer[0].focusRequested);
    EXPECT_FALSE(t.isFile("/CustomerData.txt"));
}

TEST_F(AccountScreen, TheFirstCustomerIsSavedAtRecordOneWithoutAnAdd) {
    fake.dialogs.expect("Create Customers", "Your Customer File is Empty\nCreate your First Customer Now");
    open();
    frm.txtCustomer[0].text = "A-1";
    frm.txtCustomer[8].text = "Jane";
    frm.txtCustomer[10].text = "Doe";
    frm.cmdNav_Click(0);
    fake.dialogs.verify();
    EXPECT_TRUE(frm.SaveSucceeded);
    ASSERT_EQ(countOnDisk(), 1);
    EXPECT_EQ(recordOnDisk(1).AccountNumber().trimmed(), "A-1");
    EXPECT_EQ(recordOnDisk(1).LastName().trimmed(), "Doe");
    EXPECT_EQ(t.readBytes("/ContractInfo.txt").size(), 386);
    EXPECT_EQ(t.readBytes("/CycleInfo.txt").size(), 69);
    EXPECT_TRUE(frm.cmdNav[3].enabled);
    EXPECT_TRUE(frm.Command1[3].enabled);
    EXPECT_TRUE(frm.mnuDelete.enabled);
}

TEST_F(AccountScreen, AnAddAfterTheFirstCustomerOnAnEmptyFileKeepsTheFirstAndNumbersTheNextTwo) {
    fake.dialogs.expect("Create Customers", "Your Customer File is Empty\nCreate your First Customer Now");
    open();
    fake.dialogs.verify();
    frm.txtCustomer[0].text = "A-1";
    frm.txtCustomer[8].text = "Jane";
    frm.txtCustomer[10].text = "Doe";
    frm.mnuAdd_Click(); // saves Jane, then goes on to the next customer
    EXPECT_EQ(frm.CurrentRecord, 2);
    EXPECT_EQ(frm.caption, "Account Information for Customer No 2");
    frm.txtCustomer[0].text = "B-2";
    frm.txtCustomer[8].text = "John";
    frm.txtCustomer[10].text = "Roe";
    frm.cmdNav_Click(0);
    ASSERT_EQ(countOnDisk(), 2);
    EXPECT_EQ(recordOnDisk(1).LastName().trimmed(), "Doe");
    EXPECT_EQ(recordOnDisk(2).LastName().trimmed(), "Roe");
}

TEST_F(AccountScreen, TheCaptionFollowsTheRoutineThatOpenedTheScreen) {
    writeSeven();
    open(0);
    EXPECT_EQ(frm.caption, "Creating a Contract");
    open(5);
    EXPECT_EQ(frm.caption, "Creating an Appointment");
    open(7);
    EXPECT_EQ(frm.caption, "Managing Accounts");
    frm.caption = "Earlier";
    open(3);
    EXPECT_EQ(frm.caption, "Earlier");
}

TEST_F(AccountScreen, ActivationLoadsRecordOneAndFocusesSelectWhenItHasAnAccount) {
    writeSeven();
    open();
    fake.dialogs.verify();
    EXPECT_EQ(frm.CustomerCount, 7);
    EXPECT_EQ(frm.CurrentRecord, 1);
    EXPECT_EQ(frm.txtCustomer[0].text, "1001");
    EXPECT_EQ(frm.txtCustomer[8].text, "Ann");
    EXPECT_EQ(frm.lbLType.caption, "Individual");
    // The activation ends on the account box.
    EXPECT_TRUE(frm.txtCustomer[0].focusRequested);
    EXPECT_FALSE(frm.cmdCustomer[1].focusRequested);
    frm.LoadAccount();
    EXPECT_TRUE(frm.cmdCustomer[1].focusRequested);
    EXPECT_FALSE(frm.txtCustomer[0].focusRequested);
}

TEST_F(AccountScreen, ActivationFillsTheSortedNameListAndTheCityList) {
    writeCustomers({Person("1", "Zoe", "young"), Business("2", "acme Tools", "Peoria"),
                    Person("3", "Al", "Baker"), Business("4", "Zed Supply")});
    open();
    EXPECT_EQ(frm.cboAccounts.items,
              (QStringList{"acme Tools", "Baker, Al  ", "young, Zoe  ", "Zed Supply"}));
    EXPECT_EQ(frm.cboAccounts.itemData, (QVector<qint32>{2, 3, 1, 4}));
    EXPECT_EQ(frm.cboCity.items, (QStringList{"Springfield", "Peoria", "Decatur"}));
    EXPECT_FALSE(frm.cboAccounts.visible);
}

TEST_F(AccountScreen, ActivationRebuildsAMissingCycleFileWithOneDefaultRecordPerCustomer) {
    writeSeven();
    QFile::remove(t.full("/CycleInfo.txt"));
    open();
    EXPECT_BOX(fake.dialogs, "Customer Files",
               "The file CycleInfo.txt was missing, so it was made anew with the default entries for each of the 7 "
               "customers.");
    fake.dialogs.verify();
    const QByteArray cycle = t.readBytes("/CycleInfo.txt");
    ASSERT_EQ(cycle.size(), 7 * 69);
    CycleInfoRecord defaults;
    defaults.ResetToDefaults();
    for (int r = 0; r < 7; ++r)
        EXPECT_EQ(cycle.mid(r * 69, 69), defaults.bytes());
}

TEST_F(AccountScreen, ActivationReadsTheAuxHeadings) {
    writeSeven();
    t.writeBytes("/AuxHeadings.txt", "Gate code\r\nDog\r\nPool\r\nAlarm\r\nNotes\r\nOther\r\n");
    open();
    EXPECT_EQ(frm.txtHeading[0].text, "Gate code");
    EXPECT_EQ(frm.txtHeading[5].text, "Other");
}

TEST_F(AccountScreen, TheAddressStyleOfSetupPicksTheAddressFrame) {
    writeSeven();
    open();
    EXPECT_TRUE(frm.UsaAddressMode);
    EXPECT_TRUE(frm.fraUSAddress.visible);
    EXPECT_FALSE(frm.fraIntAddress.visible);
    session.settings.cmdAddressCaption = kInternationalStyleAddress;
    open();
    EXPECT_FALSE(frm.UsaAddressMode);
    EXPECT_FALSE(frm.fraUSAddress.visible);
    EXPECT_TRUE(frm.fraIntAddress.visible);
}

TEST_F(AccountScreen, TheDialImageIsEnabledOnlyWithAModemAndADialer) {
    writeSeven();
    open();
    EXPECT_FALSE(frm.Image1[1].enabled);
    session.modem.detected = true;
    open();
    EXPECT_FALSE(frm.Image1[1].enabled);
    session.dial = [](const QString&, const QString&) {};
    open();
    EXPECT_TRUE(frm.Image1[1].enabled);
}

TEST_F(AccountScreen, LoadAccountShowsABusinessWithItsNameBoxAndTheAddressFields) {
    CustomerRecord b = Business("B-7", "Acme Tools");
    b.SetAddress1(u"1 Main");
    b.SetCellPhone(u"217-555-9999");
    b.SetEmail(u"a@b.c");
    b.SetCustomerReserved(12);
    writeCustomers({Person("1", "A", "B"), b});
    open();
    frm.CurrentRecord = 2;
    frm.LoadAccount();
    EXPECT_EQ(frm.lbLType.caption, "Business");
    EXPECT_TRUE(frm.txtCustomer[1].visible);
    EXPECT_FALSE(frm.txtCustomer[8].visible);
    EXPECT_FALSE(frm.txtCustomer[9].visible);
    EXPECT_FALSE(frm.txtCustomer[10].visible);
    EXPECT_FALSE(frm.cboTitle.visible);
    EXPECT_EQ(frm.txtCustomer[1].text, "Acme Tools");
    EXPECT_EQ(frm.txtCustomer[2].text, "1 Main");
    EXPECT_EQ(frm.txtCustomer[5].text, "62521");
    EXPECT_EQ(frm.txtCustomer[6].text, "217-555-0100");
    EXPECT_EQ(frm.txtCustomer[7].text, "a@b.c");
    EXPECT_EQ(frm.txtCustomer[11].text, "217-555-9999");
    EXPECT_EQ(frm.cboCity.text, "Decatur");
    EXPECT_EQ(frm.txtAdd3.text, "Decatur");
    EXPECT_EQ(frm.txtAdd4.text, "62521");
    EXPECT_EQ(frm.cboStates.text, "IL");
    EXPECT_EQ(frm.CustomerReserved, 12);
    EXPECT_EQ(frm.fraAux.caption, "Data for Acme Tools");
}

TEST_F(AccountScreen, LoadAccountComposesTheNameOfAPersonIntoTheEmptyNameBox) {
    CustomerRecord p = Person("P-1", "Jane", "Doe");
    p.SetTitle(u"Ms");
    p.SetMiddleInitial(u"Q");
    writeCustomers({p});
    open();
    EXPECT_EQ(frm.lbLType.caption, "Individual");
    EXPECT_FALSE(frm.txtCustomer[1].visible);
    EXPECT_TRUE(frm.txtCustomer[8].visible);
    EXPECT_TRUE(frm.cboTitle.visible);
    EXPECT_EQ(frm.txtCustomer[1].text, "Ms Jane Q. Doe");
    EXPECT_EQ(frm.cboTitle.text, "Ms");
    EXPECT_EQ(frm.cboTitle.listIndex, 3);
    EXPECT_EQ(frm.txtCustomer[9].text, "Q");
    EXPECT_EQ(frm.fraAux.caption, "Data for Ms Jane Q. Doe");
}

TEST_F(AccountScreen, AnEmptyPostalCodeShowsAddressFourInThePostalBox) {
    CustomerRecord p = Person("P-1", "Jane", "Doe");
    p.SetPostalCode(u"");
    p.SetAddress4(u"SW1A 1AA");
    writeCustomers({p});
    open();
    EXPECT_EQ(frm.txtCustomer[5].text, "SW1A 1AA");
}

TEST_F(AccountScreen, TheAssignedPointOfServiceIsClampedToTheList) {
    t.writeBytes("/ServiceAreas.txt", "\"Crew One\"\r\n\"Crew Two\"\r\n");
    session.LoadServiceAreas();
    ASSERT_EQ(frm.cboAssignments.ListCount(), 2);
    CustomerRecord one = Person("1", "A", "B");
    one.SetAssignedPointOfService(1);
    CustomerRecord far = Person("2", "C", "D");
    far.SetAssignedPointOfService(7);
    CustomerRecord below = Person("3", "E", "F");
    below.SetAssignedPointOfService(-3);
    writeCustomers({one, far, below});
    open();
    EXPECT_EQ(frm.cboAssignments.listIndex, 1);
    EXPECT_EQ(frm.cboAssignments.text, "Crew Two");
    frm.CurrentRecord = 2;
    frm.LoadAccount();
    EXPECT_EQ(frm.cboAssignments.listIndex, 0);
    EXPECT_EQ(frm.cboAssignments.text, "Crew One");
    frm.CurrentRecord = 3;
    frm.LoadAccount();
    EXPECT_EQ(frm.cboAssignments.listIndex, 0);
}

TEST_F(AccountScreen, LoadAccountBelowRecordOneDoesNothing) {
    writeSeven();
    open();
    frm.txtCustomer[0].text = "kept";
    frm.CurrentRecord = 0;
    frm.LoadAccount();
    EXPECT_EQ(frm.txtCustomer[0].text, "kept");
}

TEST_F(AccountScreen, TheToggleSwitchesBetweenThePersonAndTheBusinessLayout) {
    writeCustomers({Person("1", "Jane", "Doe")});
    open();
    frm.cboAccounts.visible = true;
    frm.cmdAcctType_Click();
    EXPECT_EQ(frm.lbLType.caption, "Business");
    EXPECT_FALSE(frm.cboAccounts.visible);
    EXPECT_TRUE(frm.txtCustomer[1].visible);
    EXPECT_FALSE(frm.txtCustomer[10].visible);
    EXPECT_FALSE(frm.lblCustomer[10].visible);
    // The business name comes from the buffer, which holds a person without one.
    EXPECT_EQ(frm.fraAux.caption, "Data for ");
    frm.cmdAcctType_Click();
    EXPECT_EQ(frm.lbLType.caption, "Individual");
    EXPECT_FALSE(frm.txtCustomer[1].visible);
    EXPECT_TRUE(frm.lblCustomer[8].visible);
    EXPECT_EQ(frm.fraAux.caption, "Data for Mr. Jane Doe");
}

// Saving.

TEST_F(AccountScreen, ABusinessWithNoNameAndNoNameFieldsIsRefusedWithBothMessages) {
    writeCustomers({Business("B-1", "Acme"), Person("2", "A", "B")});
    open();
    ASSERT_EQ(frm.lbLType.caption, "Business");
    const QByteArray before = t.readBytes("/CustomerData.txt");
    frm.txtCustomer[1].text.clear();
    frm.txtCustomer[2].text = "changed";
    fake.dialogs.expect("", "An Attempt was make to\nconvert an Individual Name\nto a Business Name");
    fake.dialogs.expect("", "Enter Account Data or\n Click Cancel AddNew if Visible");
    frm.cmdNav_Click(2);
    fake.dialogs.verify();
    EXPECT_FALSE(frm.SaveSucceeded);
    EXPECT_EQ(frm.txtCustomer[1].text, ""); // the composed name of the empty fields
    EXPECT_TRUE(frm.txtCustomer[1].focusRequested);
    EXPECT_EQ(frm.CurrentRecord, 1);
    EXPECT_EQ(t.readBytes("/CustomerData.txt"), before);
}

TEST_F(AccountScreen, ABusinessBoxEmptiedOverAPersonsBufferTakesTheComposedNameButIsStillRefused) {
    writeCustomers({Person("1", "Jane", "Doe")});
    open();
    frm.cmdAcctType_Click(); // to Business, with the person still in the buffer
    frm.txtCustomer[1].text.clear();
    fake.dialogs.expect("", "An Attempt was make to\nconvert an Individual Name\nto a Business Name");
    fake.dialogs.expect("", "Enter Account Data or\n Click Cancel AddNew if Visible");
    frm.SaveAccount();
    fake.dialogs.verify();
    EXPECT_FALSE(frm.SaveSucceeded);
    EXPECT_EQ(frm.txtCustomer[1].text, "Mr. Jane Doe");
}

TEST_F(AccountScreen, APersonWithoutFirstOrLastNameIsRefusedAndTheFirstNameBoxFocused) {
    writeSeven();
    open();
    frm.txtCustomer[10].text.clear();
    fake.dialogs.expect("", "Enter Account Data or\n Click Cancel AddNew if Visible");
    frm.cmdNav_Click(2);
    fake.dialogs.verify();
    EXPECT_FALSE(frm.SaveSucceeded);
    EXPECT_TRUE(frm.txtCustomer[8].focusRequested);
    EXPECT_EQ(frm.CurrentRecord, 1);
}

TEST_F(AccountScreen, ANewPersonWithNoAccountAndNoTelephoneIsLostButTheMoveGoesOn) {
    writeCustomers({Person("1001", "Ann", "Archer"), Person("1002", "Bob", "Baker")});
    open();
    frm.mnuAdd_Click();
    ASSERT_EQ(frm.CurrentRecord, 3);
    frm.txtCustomer[8].text = "Carl";
    frm.txtCustomer[10].text = "Cole";
    fake.dialogs.expect("No number", "The Telephone Number cannot be blank");
    frm.cmdNav_Click(0);
    fake.dialogs.verify();
    EXPECT_TRUE(frm.SaveSucceeded);
    EXPECT_EQ(frm.CurrentRecord, 1);
    EXPECT_EQ(frm.txtCustomer[8].text, "Ann");
    EXPECT_EQ(countOnDisk(), 2);
}

TEST_F(AccountScreen, ANewPersonWithATelephoneTakesItAsTheAccountNumber) {
    writeCustomers({Person("1001", "Ann", "Archer"), Person("1002", "Bob", "Baker")});
    open();
    frm.mnuAdd_Click();
    frm.txtCustomer[8].text = "Carl";
    frm.txtCustomer[10].text = "Cole";
    frm.txtCustomer[6].text = "555-123-4567 ";
    fake.dialogs.expect("Account not Entered", "Telephone Number will be used as Acct No.");
    frm.SaveAccount();
    fake.dialogs.verify();
    EXPECT_TRUE(frm.SaveSucceeded);
    EXPECT_EQ(frm.txtCustomer[0].text, "555-123-4567");
    ASSERT_EQ(countOnDisk(), 3);
    EXPECT_EQ(recordOnDisk(3).AccountNumber().trimmed(), "555-123-4567");
    EXPECT_EQ(recordOnDisk(3).Telephone().trimmed(), "555-123-4567");
}

TEST_F(AccountScreen, SaveStoresEveryBoxTrimmedButThePostalCodeInUsaStyle) {
    writeCustomers({Person("1", "A", "B")});
    open();
    frm.cboTitle.text = " Dr ";
    frm.txtCustomer[0].text = " ACC-9 ";
    frm.txtCustomer[2].text = " 4 Oak ";
    frm.txtCustomer[3].text = "Apt 2";
    frm.txtCustomer[5].text = " 61820";
    frm.txtCustomer[6].text = "217-555-1111";
    frm.txtCustomer[7].text = "x@y.z";
    frm.txtCustomer[8].text = "Lee";
    frm.txtCustomer[9].text = "K";
    frm.txtCustomer[10].text = "Park";
    frm.txtCustomer[11].text = "217-555-2222";
    frm.cboCity.text = "Champaign";
    frm.cboStates.text = "IL";
    frm.SaveAccount();
    const CustomerRecord c = recordOnDisk(1);
    EXPECT_EQ(c.AccountNumber(), QString("ACC-9").leftJustified(20));
    EXPECT_EQ(c.Title().trimmed(), "Dr");
    EXPECT_EQ(c.Address1().trimmed(), "4 Oak");
    EXPECT_EQ(c.PostalCode(), QString(" 61820").leftJustified(10));
    EXPECT_EQ(c.Address4().trimmed(), "61820");
    EXPECT_EQ(c.City().trimmed(), "Champaign");
    EXPECT_EQ(c.ServiceCity().trimmed(), "Champaign");
    EXPECT_EQ(c.State(), "IL");
    EXPECT_EQ(c.CellPhone().trimmed(), "217-555-2222");
    EXPECT_EQ(c.MiddleInitial(), "K");
    EXPECT_EQ(c.AccountType().trimmed(), "Individual");
    EXPECT_TRUE(frm.cboCity.items.contains("Champaign"));
}

TEST_F(AccountScreen, SaveInInternationalStyleTakesTheAddressThreeAndFourBoxes) {
    session.settings.cmdAddressCaption = kInternationalStyleAddress;
    writeCustomers({Person("1", "A", "B")});
    open();
    frm.txtAdd3.text = "Leeds";
    frm.txtAdd4.text = "LS1 4AP";
    frm.cboCity.text = "Service Town";
    frm.cboStates.text = "IL";
    frm.SaveAccount();
    const CustomerRecord c = recordOnDisk(1);
    EXPECT_EQ(c.City().trimmed(), "Leeds");
    EXPECT_EQ(c.State(), "  ");
    EXPECT_EQ(c.Address4().trimmed(), "LS1 4AP");
    EXPECT_EQ(c.ServiceCity().trimmed(), "Service Town");
}

TEST_F(AccountScreen, ASaveResetsTheCompanionBuffersToTheirDefaults) {
    writeSeven();
    open();
    session.customer.cycle.record().setText(0, 35, u"changed");
    frm.SaveAccount();
    CycleInfoRecord defaults;
    defaults.ResetToDefaults();
    EXPECT_EQ(session.customer.cycle, defaults);
    EXPECT_EQ(t.readBytes("/CycleInfo.txt").left(69),
              QByteArray(QByteArray("changed").leftJustified(35) + defaults.bytes().mid(35)));
}

TEST_F(AccountScreen, TheNameListIsNotRefilledByASave) {
    writeSeven();
    open();
    frm.txtCustomer[10].text = "Zimmer";
    frm.SaveAccount();
    EXPECT_TRUE(frm.cboAccounts.items.contains("Archer, Ann  "));
    EXPECT_FALSE(frm.cboAccounts.items.contains("Zimmer, Ann  "));
}

// Navigation.

TEST_F(AccountScreen, NextFromTheLastRecordWrapsToTheFirstAndPreviousFromTheFirstStays) {
    writeSeven();
    open();
    frm.cmdNav_Click(1);
    EXPECT_EQ(frm.CurrentRecord, 1);
    frm.cmdNav_Click(3);
    EXPECT_EQ(frm.CurrentRecord, 7);
    EXPECT_EQ(frm.txtCustomer[0].text, "1007");
    frm.cmdNav_Click(2);
    EXPECT_EQ(frm.CurrentRecord, 1);
    EXPECT_EQ(frm.txtCustomer[0].text, "1001");
    frm.cmdNav_Click(2);
    EXPECT_EQ(frm.CurrentRecord, 2);
    frm.cmdNav_Click(1);
    EXPECT_EQ(frm.CurrentRecord, 1);
}

TEST_F(AccountScreen, TheQuarterMovesOverSevenCustomersGoToRecordsOneTwoAndThree) {
    writeSeven();
    open();
    frm.cmdNav_Click(3);
    frm.cmdNav_Click(4);
    EXPECT_EQ(frm.CurrentRecord, 1);
    frm.cmdNav_Click(6);
    EXPECT_EQ(frm.CurrentRecord, 2);
    EXPECT_EQ(frm.txtCustomer[0].text, "1002");
    frm.cmdNav_Click(5);
    EXPECT_EQ(frm.CurrentRecord, 3);
    EXPECT_EQ(frm.txtCustomer[0].text, "1003");
}

TEST_F(AccountScreen, TheQuarterMovesDoNothingBelowFourCustomersButTheBoxesAreSaved) {
    writeCustomers({Person("1", "A", "B"), Person("2", "C", "D"), Person("3", "E", "F")});
    open();
    frm.cmdNav_Click(3);
    frm.txtCustomer[2].text = "New Street";
    for (int i : {4, 5, 6}) {
        frm.cmdNav_Click(i);
        EXPECT_EQ(frm.CurrentRecord, 3);
    }
    EXPECT_EQ(frm.txtCustomer[2].text, "New Street");
    EXPECT_EQ(recordOnDisk(3).Address1().trimmed(), "New Street");
}

TEST_F(AccountScreen, ARefusedSaveStopsEveryMove) {
    writeSeven();
    open();
    frm.txtCustomer[8].text.clear();
    for (int i = 0; i <= 6; ++i) {
        fake.dialogs.expect("", "Enter Account Data or\n Click Cancel AddNew if Visible");
        frm.cmdNav_Click(i);
        EXPECT_EQ(frm.CurrentRecord, 1);
    }
    fake.dialogs.verify();
}

// Adding.

TEST_F(AccountScreen, AddSavesTheShownCustomerAndStartsTheNextRecord) {
    writeSeven();
    open();
    frm.txtCustomer[2].text = "99 Birch";
    frm.txtCustomer[11].text = "cell kept";
    session.customer.customer.SetAssignedPointOfService(3);
    frm.mnuAdd_Click();
    EXPECT_EQ(recordOnDisk(1).Address1().trimmed(), "99 Birch");
    EXPECT_EQ(frm.CustomerCount, 8);
    EXPECT_EQ(frm.CurrentRecord, 8);
    EXPECT_EQ(frm.caption, "Account Information for Customer No 8");
    EXPECT_TRUE(frm.cmdCustomer[13].visible);
    EXPECT_FALSE(frm.mnuAux.enabled);
    EXPECT_FALSE(frm.mnuDelete.enabled);
    EXPECT_FALSE(frm.mnuAdd.enabled);
    for (int i : {0, 1, 2, 3, 5, 6, 7, 8, 9, 10})
        EXPECT_TRUE(frm.txtCustomer[i].text.isEmpty()) << i;
    EXPECT_TRUE(frm.cboCity.text.isEmpty());
    // The cell box is not among the boxes cleared.
    EXPECT_EQ(frm.txtCustomer[11].text, "cell kept");
    const CustomerRecord& b = session.customer.customer;
    EXPECT_EQ(b.AccountType().trimmed(), "Business");
    EXPECT_EQ(b.CustomerReserved(), 0);
    EXPECT_TRUE(b.AccountNumber().trimmed().isEmpty());
    EXPECT_TRUE(b.LastName().trimmed().isEmpty());
    // What the screen does not set comes from the last read.
    EXPECT_EQ(b.AssignedPointOfService(), 3);
    EXPECT_EQ(countOnDisk(), 7); // the new customer is written by a later save
}

TEST_F(AccountScreen, AddHidesTheSearchFrames) {
    writeSeven();
    open();
    frm.fraSearch.visible = true;
    frm.fraCustomersFound.visible = true;
    frm.cmdNew_Click();
    EXPECT_FALSE(frm.fraSearch.visible);
    EXPECT_FALSE(frm.fraCustomersFound.visible);
}

TEST_F(AccountScreen, AnAddedCustomerIsWrittenAtTheNextRecordByTheNextSave) {
    writeSeven();
    open();
    frm.mnuAdd_Click();
    frm.txtCustomer[0].text = "NEW-1";
    frm.txtCustomer[8].text = "Hal";
    frm.txtCustomer[10].text = "Hart";
    frm.txtCustomer[6].text = "217-555-0199";
    frm.cmdNav_Click(0);
    ASSERT_EQ(countOnDisk(), 8);
    EXPECT_EQ(recordOnDisk(8).AccountNumber().trimmed(), "NEW-1");
    EXPECT_EQ(recordOnDisk(8).CustomerReserved(), 0);
    EXPECT_EQ(t.readBytes("/ContractInfo.txt").size(), 8 * 386);
    EXPECT_EQ(t.readBytes("/CycleInfo.txt").size(), 8 * 69);
    EXPECT_EQ(frm.CurrentRecord, 1);
}

TEST_F(AccountScreen, AddWithoutAnAccountNumberBeepsAndPrompts) {
    writeSeven();
    open();
    frm.txtCustomer[0].text.clear();
    fake.dialogs.expect("", "Enter an Account Number");
    frm.NewAccount("555-0000");
    fake.dialogs.verify();
    EXPECT_EQ(fake.dialogs.beeps(), 1);
    EXPECT_EQ(frm.CustomerCount, 7);
    EXPECT_EQ(frm.CurrentRecord, 1);
}

TEST_F(AccountScreen, AddWithoutAnAccountNumberIsSilentWithAlarmsAndPromptsOff) {
    writeSeven();
    open();
    session.settings.program.ckAlarms = 0;
    session.settings.program.ckPrompts = 0;
    frm.txtCustomer[0].text.clear();
    frm.NewAccount("");
    EXPECT_EQ(fake.dialogs.beeps(), 0);
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
}

TEST_F(AccountScreen, NewAccountPutsTheTelephoneGivenIntoItsBox) {
    writeSeven();
    open();
    frm.NewAccount("217-555-4242");
    EXPECT_EQ(frm.txtCustomer[6].text, "217-555-4242");
    EXPECT_EQ(frm.CurrentRecord, 8);
}

TEST_F(AccountScreen, CancelAddDropsTheCountAndReturnsToRecordOne) {
    writeSeven();
    open();
    frm.cmdNav_Click(3);
    frm.mnuAdd_Click();
    frm.cmdCustomer_Click(13);
    EXPECT_EQ(frm.CustomerCount, 7);
    EXPECT_EQ(frm.CurrentRecord, 1);
    EXPECT_EQ(frm.txtCustomer[0].text, "1001");
    EXPECT_FALSE(frm.cmdCustomer[13].visible);
    EXPECT_TRUE(frm.mnuAdd.enabled);
    EXPECT_TRUE(frm.mnuAux.enabled);
    EXPECT_TRUE(frm.mnuDelete.enabled);
}

TEST_F(AccountScreen, ASavedAddStaysInTheFileAfterCancelAndCountsAgainAtTheNextActivation) {
    writeSeven();
    open();
    frm.mnuAdd_Click();
    frm.txtCustomer[0].text = "NEW-1";
    frm.txtCustomer[8].text = "Hal";
    frm.txtCustomer[10].text = "Hart";
    frm.SaveAccount();
    EXPECT_TRUE(frm.cmdCustomer[13].visible); // a save does not end the Add
    frm.cmdCustomer_Click(13);
    EXPECT_EQ(frm.CustomerCount, 7);
    EXPECT_EQ(countOnDisk(), 8);
    open();
    EXPECT_EQ(frm.CustomerCount, 8);
}

// Leaving.

TEST_F(AccountScreen, MenuSavesAndReturnsToTheMainMenu) {
    writeSeven();
    open();
    frm.txtCustomer[2].text = "Saved on leaving";
    frm.cmdCustomer_Click(0);
    EXPECT_FALSE(frm.isVisible());
    EXPECT_TRUE(session.startup().isVisible());
    EXPECT_EQ(recordOnDisk(1).Address1().trimmed(), "Saved on leaving");
}

TEST_F(AccountScreen, MenuDuringAnAddCancelsItFirstAndSavesRecordOne) {
    writeSeven();
    open();
    frm.cmdNav_Click(3);
    frm.mnuAdd_Click();
    frm.txtCustomer[0].text = "DROPPED";
    frm.cmdCustomer_Click(0);
    EXPECT_EQ(frm.CurrentRecord, 1);
    EXPECT_FALSE(frm.cmdCustomer[13].visible);
    EXPECT_EQ(countOnDisk(), 7);
    EXPECT_EQ(recordOnDisk(1).AccountNumber().trimmed(), "1001");
    EXPECT_TRUE(session.startup().isVisible());
}

TEST_F(AccountScreen, ARefusedSaveKeepsTheScreenOpen) {
    writeSeven();
    open(5);
    frm.txtCustomer[10].text.clear();
    fake.dialogs.expect("", "Enter Account Data or\n Click Cancel AddNew if Visible");
    frm.cmdCustomer_Click(1);
    fake.dialogs.verify();
    EXPECT_TRUE(frm.isVisible());
}

TEST_F(AccountScreen, SelectOpensTheAppointmentScreenForRoutineFive) {
    StandInScreen create("frmCreate");
    session.RegisterScreen(ScreenId::frmCreate, create);
    writeSeven();
    open(5);
    frm.cmdNav_Click(2);
    frm.cmdCustomer_Click(1);
    EXPECT_FALSE(frm.isVisible());
    EXPECT_TRUE(create.isVisible());
    EXPECT_EQ(create.activations, 1);
    // The customer selected stays in the buffer for the next screen.
    EXPECT_EQ(session.customer.customer.AccountNumber().trimmed(), "1002");
}

TEST_F(AccountScreen, SelectOpensTheContractScreenForRoutineZero) {
    StandInScreen contract("frmContract");
    session.RegisterScreen(ScreenId::frmContract, contract);
    writeSeven();
    open(0);
    frm.cmdCustomer_Click(1);
    EXPECT_TRUE(contract.isVisible());
    EXPECT_FALSE(frm.isVisible());
}

TEST_F(AccountScreen, SelectForRoutineSevenLeavesNoScreenShown) {
    writeSeven();
    open(7);
    frm.cmdCustomer_Click(1);
    EXPECT_FALSE(frm.isVisible());
    EXPECT_FALSE(session.startup().isVisible());
}

TEST_F(AccountScreen, SelectForAScreenThisVersionLacksSaysSoAndStays) {
    writeSeven();
    open(5);
    frm.cmdCustomer_Click(1);
    EXPECT_BOX(fake.dialogs, "Not Available",
               "The Create an Appointment screen is not part of this version of the program yet.");
    EXPECT_TRUE(frm.isVisible());
}
