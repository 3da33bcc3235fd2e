#include "frmNewCustomerTestFixture.h"

using namespace ostrel;
using ostrel::test::AccountScreenFixture;
using ostrel::test::Business;
using ostrel::test::Person;

namespace {

struct AccountFind : AccountScreenFixture {
    void writeSmiths() {
        writeCustomers({Person("1", "Ann", "SMITHSON", "217-555-0001"),
                        Person("2", "Bob", "Jones", "217-555-0002"), Business("3", "Smith Plumbing"),
                        Person("4", "Cy", "Goldsmith", "217-555-0004"),
                        Person("5", "Di", "Nunez", "217-555-0005")});
    }
    void search(int option, const QString& text) {
        frm.Command1_Click(0);
        frm.optSearch_Click(option);
        for (int i = 0; i < frmNewCustomer::kSearchOptions; ++i)
            frm.optSearch[i].value = i == option;
        frm.txtSearchfor.text = text;
        frm.cmdStartSearch_Click();
    }
    QStringList column(int c) {
        QStringList out;
        for (int r = 0; r < frm.fgCustomersFound.Rows(); ++r)
            out << frm.fgCustomersFound.TextMatrix(r, c);
        return out;
    }
};

} // namespace

TEST_F(AccountFind, SearchByCriteriaSavesFirstThenShowsTheEmptiedSearchBox) {
    writeSmiths();
    open();
    frm.fraCustomersFound.visible = true;
    frm.cboAccounts.visible = true;
    frm.txtSearchfor.text = "old";
    frm.txtCustomer[2].text = "Saved first";
    frm.Command1_Click(0);
    EXPECT_TRUE(frm.fraSearch.visible);
    EXPECT_FALSE(frm.fraCustomersFound.visible);
    EXPECT_FALSE(frm.cboAccounts.visible);
    EXPECT_TRUE(frm.txtSearchfor.text.isEmpty());
    EXPECT_EQ(recordOnDisk(1).Address1().trimmed(), "Saved first");
}

TEST_F(AccountFind, SearchByCriteriaIsNotOpenedWhenTheSaveIsRefused) {
    writeSmiths();
    open();
    frm.txtCustomer[8].text.clear();
    fake.dialogs.expect("", "Enter Account Data or\n Click Cancel AddNew if Visible");
    frm.Command1_Click(0);
    fake.dialogs.verify();
    EXPECT_FALSE(frm.fraSearch.visible);
}

TEST_F(AccountFind, SmithByLastNameFindsSmithsonAndGoldsmithInFileOrder) {
    writeSmiths();
    open();
    search(7, "smith");
    fake.dialogs.verify();
    EXPECT_TRUE(frm.fraCustomersFound.visible);
    EXPECT_EQ(frm.fraCustomersFound.caption, "Customers Search by Name Results");
    EXPECT_FALSE(frm.fraSearch.visible);
    EXPECT_EQ(column(0), (QStringList{"Name", "Mr. Ann SMITHSON", "Mr. Cy Goldsmith"}));
    EXPECT_EQ(column(1), (QStringList{"Telephone", "217-555-0001", "217-555-0004"}));
    EXPECT_EQ(column(2), (QStringList{"Record", "1", "4"}));
    EXPECT_EQ(frm.CurrentRecord, 1);
}

TEST_F(AccountFind, EachOptionSearchesItsOwnField) {
    CustomerRecord p = Person("ACC-77", "Eve", "Ernst", "309-555-7777");
    p.SetAddress1(u"77 Quarry Rd");
    p.SetAddress2(u"Lot 9");
    p.SetCity(u"Galesburg");
    p.SetState(u"WI");
    p.SetAddress4(u"61401");
    writeCustomers({Person("1", "A", "B"), Business("2", "Quarry Supply"), p});
    open();
    const std::pair<int, const char*> probes[] = {{1, "quarry"}, {2, "lot"},  {3, "gales"}, {4, "wi"},
                                                  {5, "614"},    {6, "7777"}, {7, "ernst"}, {8, "acc-7"}};
    for (auto [option, text] : probes) {
        frm.CurrentRecord = 1;
        frm.LoadAccount();
        search(option, text);
        EXPECT_EQ(frm.CurrentRecord, 3) << option;
    }
    frm.CurrentRecord = 1;
    frm.LoadAccount();
    search(0, "quarry");
    EXPECT_EQ(frm.CurrentRecord, 2);
    fake.dialogs.verify();
}

TEST_F(AccountFind, ASearchWithOneHitLoadsTheCustomerWithNoGridShown) {
    writeSmiths();
    open();
    search(7, "  nunez ");
    EXPECT_FALSE(frm.fraCustomersFound.visible);
    EXPECT_FALSE(frm.fraSearch.visible);
    EXPECT_EQ(frm.CurrentRecord, 5);
    EXPECT_EQ(frm.txtCustomer[0].text, "5");
    EXPECT_EQ(frm.txtCustomer[8].text, "Di");
}

TEST_F(AccountFind, ASearchWithoutHitsSaysSoAndKeepsTheSearchOpen) {
    writeSmiths();
    open();
    fake.dialogs.expect("Customer not Found", "No Customer Record meets this Criteria");
    search(7, "zzz");
    fake.dialogs.verify();
    EXPECT_TRUE(frm.fraSearch.visible);
    EXPECT_FALSE(frm.fraCustomersFound.visible);
    EXPECT_EQ(frm.CurrentRecord, 1);
}

TEST_F(AccountFind, ASearchWithNoCriteriaAsksForSome) {
    writeSmiths();
    open();
    frm.Command1_Click(0);
    fake.dialogs.expect("", "You must enter some criteria data for the Search");
    frm.cmdStartSearch_Click();
    fake.dialogs.verify();
    EXPECT_TRUE(frm.fraSearch.visible);
}

TEST_F(AccountFind, ChoosingAnOptionOrClearEmptiesTheSearchBoxAndFocusesIt) {
    writeSmiths();
    open();
    frm.txtSearchfor.text = "abc";
    frm.optSearch_Click(3);
    EXPECT_TRUE(frm.txtSearchfor.text.isEmpty());
    EXPECT_TRUE(frm.txtSearchfor.focusRequested);
    frm.txtSearchfor.text = "abc";
    frm.txtSearchfor.focusRequested = false;
    frm.cmdClearSearch_Click();
    EXPECT_TRUE(frm.txtSearchfor.text.isEmpty());
    EXPECT_TRUE(frm.txtSearchfor.focusRequested);
}

TEST_F(AccountFind, HideSearchHidesBothFrames) {
    writeSmiths();
    open();
    frm.fraSearch.visible = true;
    frm.fraCustomersFound.visible = true;
    frm.cmdHideSearch_Click();
    EXPECT_FALSE(frm.fraSearch.visible);
    EXPECT_FALSE(frm.fraCustomersFound.visible);
}

TEST_F(AccountFind, AClickInTheResultsPopsUpLoadCustomerWhichLoadsTheRowsRecord) {
    writeSmiths();
    open();
    search(7, "smith");
    frm.fgCustomersFound.row = 2;
    frm.fgCustomersFound_Click();
    EXPECT_TRUE(frm.popupMenuRequested);
    EXPECT_EQ(frm.mnuSelect.caption, "Load Customer");
    frm.mnuSelect_Click();
    EXPECT_EQ(frm.CurrentRecord, 4);
    EXPECT_EQ(frm.txtCustomer[10].text, "Goldsmith");
    EXPECT_FALSE(frm.fraCustomersFound.visible);
}

TEST_F(AccountFind, LoadCustomerOnTheHeadingRowDoesNothing) {
    writeSmiths();
    open();
    search(7, "smith");
    frm.fgCustomersFound.row = 0;
    frm.mnuSelect_Click();
    EXPECT_EQ(frm.CurrentRecord, 1);
    EXPECT_TRUE(frm.fraCustomersFound.visible);
}

TEST_F(AccountFind, HideOfTheResultsHidesTheFrame) {
    writeSmiths();
    open();
    search(7, "smith");
    frm.cmdRetry_Click();
    EXPECT_FALSE(frm.fraCustomersFound.visible);
}

TEST_F(AccountFind, TheCustomerListShowsEveryCustomerAndClosesAgain) {
    writeSmiths();
    open();
    frm.mnuPrint_Click();
    EXPECT_EQ(frm.mnuPrint.caption, "Close Customer List");
    EXPECT_TRUE(frm.fraCustomersFound.visible);
    EXPECT_EQ(frm.fraCustomersFound.caption, "Complete Customer List");
    EXPECT_EQ(column(0), (QStringList{"Name", "Mr. Ann SMITHSON", "Mr. Bob Jones", "Smith Plumbing",
                                      "Mr. Cy Goldsmith", "Mr. Di Nunez"}));
    EXPECT_EQ(column(2), (QStringList{"Record", "1", "2", "3", "4", "5"}));
    EXPECT_EQ(frm.CurrentRecord, 1);
    frm.mnuPrint_Click();
    EXPECT_EQ(frm.mnuPrint.caption, "View Customer List");
    EXPECT_FALSE(frm.fraCustomersFound.visible);
}

TEST_F(AccountFind, TheCustomerListWithoutACustomerFileOnlyBeeps) {
    fake.dialogs.expect("Create Customers", "Your Customer File is Empty\nCreate your First Customer Now");
    open();
    fake.dialogs.verify();
    frm.mnuPrint_Click();
    EXPECT_EQ(fake.dialogs.beeps(), 1);
    EXPECT_FALSE(frm.fraCustomersFound.visible);
    EXPECT_EQ(frm.mnuPrint.caption, "View Customer List");
}

TEST_F(AccountFind, LocateInNameListHidesTheSearchAndOpensTheCustomerList) {
    writeSmiths();
    open();
    frm.fraSearch.visible = true;
    frm.Command1_Click(3);
    EXPECT_FALSE(frm.fraSearch.visible);
    EXPECT_TRUE(frm.fraCustomersFound.visible);
    EXPECT_EQ(frm.fgCustomersFound.Rows(), 6);
}

TEST_F(AccountFind, FindInNameListShowsTheListInPlaceOfTheName) {
    writeSmiths();
    open();
    frm.fraSearch.visible = true;
    frm.fraCustomersFound.visible = true;
    frm.cboAccounts.text = "left over";
    frm.Command1_Click(1);
    EXPECT_TRUE(frm.cboAccounts.visible);
    EXPECT_TRUE(frm.cboAccounts.focusRequested);
    EXPECT_TRUE(frm.cboAccounts.text.isEmpty());
    for (int i : {1, 8, 9, 10})
        EXPECT_FALSE(frm.txtCustomer[i].visible) << i;
    EXPECT_FALSE(frm.cboTitle.visible);
    EXPECT_FALSE(frm.fraSearch.visible);
    EXPECT_FALSE(frm.fraCustomersFound.visible);
}

TEST_F(AccountFind, FindInNameListDoesNothingWithAnEmptyList) {
    writeSmiths();
    open();
    frm.cboAccounts.Clear();
    frm.Command1_Click(1);
    EXPECT_FALSE(frm.cboAccounts.visible);
    EXPECT_TRUE(frm.txtCustomer[8].visible);
}

TEST_F(AccountFind, SelectFromAccountListPutsTheLayoutBack) {
    writeSmiths();
    open();
    frm.Command1_Click(1);
    frm.Command1_Click(2);
    EXPECT_FALSE(frm.cboAccounts.visible);
    EXPECT_TRUE(frm.txtCustomer[8].visible);
    EXPECT_TRUE(frm.cboTitle.visible);
    EXPECT_FALSE(frm.txtCustomer[1].visible);
}

TEST_F(AccountFind, ChoosingANameFromTheListLoadsThatCustomer) {
    writeSmiths();
    open();
    frm.Command1_Click(1);
    const int i = int(frm.cboAccounts.items.indexOf("Smith Plumbing"));
    ASSERT_GE(i, 0);
    frm.cboAccounts.SetListIndex(i);
    frm.cboAccounts_Click();
    EXPECT_FALSE(frm.cboAccounts.visible);
    EXPECT_EQ(frm.CurrentRecord, 3);
    EXPECT_EQ(frm.txtCustomer[1].text, "Smith Plumbing");
    EXPECT_TRUE(frm.txtCustomer[1].visible);
}

TEST_F(AccountFind, TypingInTheNameListCompletesTheFirstEntryAndSelectsTheTail) {
    writeSmiths();
    open();
    frm.Command1_Click(1);
    frm.cboAccounts.text = "go";
    frm.cboAccounts_Change();
    EXPECT_EQ(frm.cboAccounts.text, "goldsmith, Cy  ");
    EXPECT_EQ(frm.cboAccountsSelStart, 2);
    EXPECT_EQ(frm.cboAccountsSelLength, 13);
    EXPECT_FALSE(frm.CompletionGuard);
    // The next key goes on over the selected tail.
    frm.cboAccounts.text = "Smith";
    frm.cboAccounts_Change();
    EXPECT_EQ(frm.cboAccounts.text, "Smith Plumbing");
    EXPECT_EQ(frm.cboAccountsSelStart, 5);
    EXPECT_EQ(frm.cboAccountsSelLength, 9);
}

TEST_F(AccountFind, TypingWithoutAMatchOrAWholeEntryLeavesTheText) {
    writeSmiths();
    open();
    frm.cboAccounts.text = "xq";
    frm.cboAccounts_Change();
    EXPECT_EQ(frm.cboAccounts.text, "xq");
    EXPECT_EQ(frm.cboAccountsSelLength, 0);
    frm.cboAccounts.text = "Smith Plumbing";
    frm.cboAccounts_Change();
    EXPECT_EQ(frm.cboAccounts.text, "Smith Plumbing");
    EXPECT_EQ(frm.cboAccountsSelLength, 0);
}

TEST_F(AccountFind, DeleteAndBackspaceKeepTheCompletionFromUndoingThem) {
    writeSmiths();
    open();
    for (int key : {46, 8}) {
        int code = key;
        frm.cboAccounts_KeyDown(code, 0);
        EXPECT_TRUE(frm.CompletionGuard);
        frm.cboAccounts.text = "Smi";
        frm.cboAccounts_Change();
        EXPECT_EQ(frm.cboAccounts.text, "Smi");
        EXPECT_FALSE(frm.CompletionGuard);
    }
    int other = 65;
    frm.cboAccounts_KeyDown(other, 0);
    EXPECT_FALSE(frm.CompletionGuard);
}

TEST_F(AccountFind, LeavingTheListWithAWholeNameLoadsItWhateverTheCaseAndBlanks) {
    writeSmiths();
    open();
    frm.Command1_Click(1);
    frm.cboAccounts.text = "  JONES, BOB ";
    frm.cboAccounts_LostFocus();
    EXPECT_EQ(frm.cboAccounts.List(frm.cboAccounts.listIndex), "Jones, Bob  ");
    EXPECT_FALSE(frm.cboAccounts.visible);
    EXPECT_EQ(frm.CurrentRecord, 2);
    EXPECT_EQ(frm.txtCustomer[8].text, "Bob");
}

TEST_F(AccountFind, LeavingTheListWithAPartOfANameChangesNothing) {
    writeSmiths();
    open();
    frm.Command1_Click(1);
    frm.cboAccounts.text = "Jon";
    frm.cboAccounts_LostFocus();
    EXPECT_TRUE(frm.cboAccounts.visible);
    EXPECT_EQ(frm.CurrentRecord, 1);
    frm.cboAccounts.text.clear();
    frm.cboAccounts_LostFocus();
    EXPECT_TRUE(frm.cboAccounts.visible);
}
