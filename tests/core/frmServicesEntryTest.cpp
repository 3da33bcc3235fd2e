#include "CatalogueSamples.h"
#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "catalogue/CustomItemRecord.h"
#include "catalogue/InventoriedItemRecord.h"
#include "catalogue/ServiceRecord.h"
#include "catalogue/VolumePrice.h"
#include "catalogue/frmServices.h"
#include "platform/StoreErrorBox.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::custom;
using ostrel::test::FakePlatform;
using ostrel::test::item;
using ostrel::test::TestDataRoot;

namespace {

struct ServicesEntry : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmServices& frm = session.AddScreen(ScreenId::frmServices,
                                         std::make_unique<frmServices>(session, session.catalogueLists));

    ServicesEntry() { session.RegisterScreen(ScreenId::frmStartup, session.startup()); }

    // Two services, two items, two custom items.
    void writeCatalogue() {
        t.writeBytes("/Services.txt", ServiceRecord{"Tune Up", "$45.00", 4}.toRecord().bytes() +
                                          ServiceRecord{"Full Service", "$120.00", 8}.toRecord().bytes());
        t.writeBytes("/OIInventoriedItems.txt",
                     item("Filter", "Parts").toRecord().bytes() + item("Belt", "Belts").toRecord().bytes());
        t.writeBytes("/CustomItems.txt",
                     custom("Bracket").toRecord().bytes() + custom("Frame").toRecord().bytes());
    }

    void open() {
        frm.Load();
        frm.Show();
    }

    void pick(Grid& g, int row) {
        g.row = row;
        if (&g == &frm.fgServices) frm.fgServices_Click();
        if (&g == &frm.fgItems) frm.fgItems_Click();
        if (&g == &frm.fgCustom) frm.fgCustom_Click();
    }

    void fillItem(const QString& description, const QString& category) {
        frm.txtDescription[1].text = description;
        frm.cboCategory.text = category;
        frm.txtCost.text = "$2.00";
        frm.txtCharge[1].text = "$5.00";
        frm.txtCharge[2].text = "$4.50";
        frm.txtOnHand.text = "3";
        frm.txtDiscountQty.text = "12";
        frm.txtReorderAmount.text = "10";
        frm.txtReorderAt.text = "1";
    }
};

} // namespace

TEST_F(ServicesEntry, ClickingAServiceRowEnablesDeleteButNotModify) {
    writeCatalogue();
    open();
    EXPECT_FALSE(frm.cmdServices[2].enabled);
    EXPECT_FALSE(frm.cmdServices[3].enabled);
    pick(frm.fgServices, 2);
    EXPECT_TRUE(frm.cmdServices[2].enabled);
    EXPECT_FALSE(frm.cmdServices[3].enabled);
}

TEST_F(ServicesEntry, ClickingAnItemOrCustomRowEnablesBothDeleteAndModify) {
    writeCatalogue();
    open();
    pick(frm.fgItems, 1);
    EXPECT_TRUE(frm.cmdServices[10].enabled);
    EXPECT_TRUE(frm.cmdServices[9].enabled);
    pick(frm.fgCustom, 2);
    EXPECT_TRUE(frm.cmdServices[20].enabled);
    EXPECT_TRUE(frm.cmdServices[19].enabled);
}

TEST_F(ServicesEntry, AClickOnTheHeadingRowEnablesNothing) {
    writeCatalogue();
    open();
    pick(frm.fgServices, 0);
    pick(frm.fgItems, 0);
    pick(frm.fgCustom, 0);
    for (int i : {2, 3, 9, 10, 19, 20})
        EXPECT_FALSE(frm.cmdServices[i].enabled) << i;
}

TEST_F(ServicesEntry, ModifyCopiesTheServiceRowIntoTheBoxesAndDisablesTheGrid) {
    writeCatalogue();
    open();
    pick(frm.fgServices, 2);
    frm.cmdServices_Click(3);
    EXPECT_FALSE(frm.fgServices.enabled);
    EXPECT_TRUE(frm.EditingExisting);
    EXPECT_TRUE(frm.txtDescription[0].enabled);
    EXPECT_TRUE(frm.cmdServices[4].enabled);
    EXPECT_EQ(frm.txtDescription[0].text, "Full Service");
    EXPECT_EQ(frm.txtCharge[0].text, "$120.00");
    EXPECT_EQ(frm.lstTime.listIndex, 8);
}

TEST_F(ServicesEntry, ModifyCopiesTheNineCellsOfAnItem) {
    writeCatalogue();
    open();
    pick(frm.fgItems, 2);
    frm.cmdServices_Click(9);
    EXPECT_FALSE(frm.fgItems.enabled);
    EXPECT_EQ(frm.txtDescription[1].text, "Belt");
    EXPECT_EQ(frm.cboCategory.text, "Belts");
    EXPECT_EQ(frm.cboCategory.listIndex, 1);
    EXPECT_EQ(frm.txtCost.text, "$4.00");
    EXPECT_EQ(frm.txtCharge[1].text, "$12.50");
    EXPECT_EQ(frm.txtOnHand.text, "12");
    EXPECT_EQ(frm.txtCharge[2].text, "$10.00");
    EXPECT_EQ(frm.txtDiscountQty.text, "10");
    EXPECT_EQ(frm.txtReorderAmount.text, "6");
    EXPECT_EQ(frm.txtReorderAt.text, "2");
}

TEST_F(ServicesEntry, ModifyCopiesTheCategoryOnlyWhenTheBoxIsEmptyOrTheKeepBoxIsUnchecked) {
    writeCatalogue();
    open();
    frm.ckClearItem.value = 1;
    frm.cboCategory.text = "Seasonal";
    pick(frm.fgItems, 1);
    frm.cmdServices_Click(9);
    EXPECT_EQ(frm.cboCategory.text, "Seasonal");

    frm.cmdServices_Click(14);
    frm.cboCategory.text.clear();
    frm.cmdServices_Click(9);
    EXPECT_EQ(frm.cboCategory.text, "Parts");

    frm.cmdServices_Click(14);
    frm.ckClearItem.value = 0;
    frm.cboCategory.text = "Seasonal";
    frm.cmdServices_Click(9);
    EXPECT_EQ(frm.cboCategory.text, "Parts");
}

TEST_F(ServicesEntry, ModifyCopiesTheFourCellsOfACustomItem) {
    writeCatalogue();
    open();
    pick(frm.fgCustom, 1);
    frm.cmdServices_Click(19);
    EXPECT_FALSE(frm.fgCustom.enabled);
    EXPECT_EQ(frm.txtDescription[2].text, "Bracket");
    EXPECT_EQ(frm.txtCharge[3].text, "$7.50");
    EXPECT_EQ(frm.txtCharge[4].text, "$6.00");
    EXPECT_EQ(frm.txtCustomDiscItems.text, "3");
}

TEST_F(ServicesEntry, SavingAServiceWithoutADescriptionOrChargeBeepsAndFocusesTheBox) {
    open();
    frm.cmdServices_Click(1);
    frm.txtDescription[0].focusRequested = false;
    frm.txtCharge[0].text = "$10.00";
    frm.cmdServices_Click(4);
    EXPECT_EQ(fake.dialogs.beeps(), 1);
    EXPECT_TRUE(frm.txtDescription[0].focusRequested);
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 0), "");

    frm.txtDescription[0].text = "Tune Up";
    frm.txtCharge[0].text.clear();
    frm.cmdServices_Click(4);
    EXPECT_EQ(fake.dialogs.beeps(), 2);
    EXPECT_TRUE(frm.txtCharge[0].focusRequested);
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 0), "");
    EXPECT_TRUE(frm.cmdServices[4].enabled); // still open for the entry
}

TEST_F(ServicesEntry, RefusalsStaySilentWhenTheAlarmOptionIsOff) {
    open();
    session.settings.program.ckAlarms = 0;
    frm.cmdServices_Click(1);
    frm.cmdServices_Click(4);
    EXPECT_EQ(fake.dialogs.beeps(), 0);
    EXPECT_TRUE(frm.txtDescription[0].focusRequested);
}

TEST_F(ServicesEntry, TheFirstServiceTakesTheBlankRowOfAnEmptyGrid) {
    open();
    ASSERT_EQ(frm.fgServices.Rows(), 2);
    frm.cmdServices_Click(1);
    frm.txtDescription[0].text = "Tune Up";
    frm.txtCharge[0].text = "45";
    frm.lstTime.SetListIndex(4);
    frm.cmdServices_Click(4);
    EXPECT_EQ(frm.fgServices.Rows(), 2);
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 0), "Tune Up");
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 1), "$45.00");
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 2), "1:00");
    frm.cmdServices_Click(0);
    EXPECT_EQ(t.readBytes("/Services.txt"), (ServiceRecord{"Tune Up", "$45.00", 4}.toRecord().bytes()));
}

TEST_F(ServicesEntry, ANewServiceIsAddedAtTheEndAndBecomesTheCurrentRow) {
    writeCatalogue();
    open();
    frm.cmdServices_Click(1);
    frm.txtDescription[0].text = "Inspection";
    frm.txtCharge[0].text = "1234.5";
    frm.lstTime.SetListIndex(2);
    frm.cmdServices_Click(4);
    ASSERT_EQ(frm.fgServices.Rows(), 4);
    EXPECT_EQ(frm.fgServices.row, 3);
    EXPECT_EQ(frm.fgServices.TextMatrix(3, 0), "Inspection");
    EXPECT_EQ(frm.fgServices.TextMatrix(3, 1), "$1,234.50");
    EXPECT_EQ(frm.fgServices.TextMatrix(3, 2), "0:30");
    // The boxes are cleared and locked, and Modify comes on.
    EXPECT_EQ(frm.txtDescription[0].text, "");
    EXPECT_EQ(frm.txtCharge[0].text, "");
    EXPECT_EQ(frm.lstTime.listIndex, -1);
    EXPECT_FALSE(frm.txtDescription[0].enabled);
    EXPECT_FALSE(frm.cmdServices[4].enabled);
    EXPECT_TRUE(frm.cmdServices[3].enabled);
}

TEST_F(ServicesEntry, SavingAModifiedServiceChangesTheSelectedRowOnly) {
    writeCatalogue();
    open();
    pick(frm.fgServices, 1);
    frm.cmdServices_Click(3);
    frm.txtCharge[0].text = "50";
    frm.lstTime.SetListIndex(6);
    frm.cmdServices_Click(4);
    EXPECT_TRUE(frm.fgServices.enabled);
    ASSERT_EQ(frm.fgServices.Rows(), 3);
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 0), "Tune Up");
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 1), "$50.00");
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 2), "1:30");
    EXPECT_EQ(frm.fgServices.TextMatrix(2, 0), "Full Service");
    EXPECT_FALSE(frm.EditingExisting);
}

TEST_F(ServicesEntry, ASalesItemIsRefusedWithoutDescriptionOrPricesAndAnOnHandThatIsNoNumberBecomesZero) {
    open();
    frm.cmdServices_Click(8);
    fillItem("", "Parts");
    frm.txtDescription[1].focusRequested = false;
    frm.cmdServices_Click(13);
    EXPECT_TRUE(frm.txtDescription[1].focusRequested);
    EXPECT_EQ(fake.dialogs.beeps(), 1);

    fillItem("Filter", "Parts");
    frm.txtCharge[1].text.clear();
    frm.cmdServices_Click(13);
    EXPECT_TRUE(frm.txtCharge[1].focusRequested);
    EXPECT_EQ(fake.dialogs.beeps(), 2);

    fillItem("Filter", "Parts");
    frm.txtCharge[2].text.clear();
    frm.cmdServices_Click(13);
    EXPECT_TRUE(frm.txtCharge[2].focusRequested);
    EXPECT_EQ(fake.dialogs.beeps(), 3);

    fillItem("Filter", "Parts");
    frm.txtOnHand.text = "a few";
    frm.cmdServices_Click(13);
    EXPECT_EQ(frm.txtOnHand.text, "0");
    EXPECT_EQ(fake.dialogs.beeps(), 4);
    EXPECT_EQ(frm.fgItems.TextMatrix(1, 0), "");
    EXPECT_TRUE(frm.cmdServices[13].enabled);
}

TEST_F(ServicesEntry, SavingASalesItemFillsDefaultsAndItsNineCellsAndAddsItsCategory) {
    writeCatalogue();
    open();
    frm.cmdServices_Click(8);
    fillItem("Hose", " Plumbing");
    frm.txtCost.text.clear();
    frm.txtReorderAmount.text.clear();
    frm.txtReorderAt.text.clear();
    frm.txtOnHand.text = "7.5"; // a 16-bit conversion rounds half to even
    frm.cmdServices_Click(13);
    ASSERT_EQ(frm.fgItems.Rows(), 4);
    const QStringList expected = {"Hose", " Plumbing", "$0.00", "$5.00", "8", "$4.50", "12", "0", "0"};
    for (int c = 0; c < 9; ++c)
        EXPECT_EQ(frm.fgItems.TextMatrix(3, c), expected[c]) << c;
    EXPECT_EQ(frm.cboCategory.items, (QStringList({"Parts", "Belts", "Plumbing"})));
    EXPECT_EQ(session.catalogueLists.frmInvoice.lstCategories.items.last(), "Plumbing");
    EXPECT_EQ(session.catalogueLists.frmCreate.lstCategories.items.last(), "Plumbing");
    // What the tab looks like after the save.
    EXPECT_EQ(frm.txtDescription[1].text, "");
    EXPECT_EQ(frm.cboCategory.text, "");
    EXPECT_EQ(frm.cboCategory.listIndex, -1);
    EXPECT_EQ(frm.txtCost.text, "");
    EXPECT_EQ(frm.txtCharge[1].text, "$0.00");
    EXPECT_EQ(frm.txtCharge[2].text, "$0.00");
    EXPECT_EQ(frm.txtOnHand.text, "");
    EXPECT_EQ(frm.txtDiscountQty.text, "");
    EXPECT_FALSE(frm.txtDescription[1].enabled);
    EXPECT_FALSE(frm.cmdServices[13].enabled);
    EXPECT_FALSE(frm.cmdServices[11].enabled);
    EXPECT_TRUE(frm.fgItems.enabled);
}

TEST_F(ServicesEntry, WithClearItemCheckedTheCategorySurvivesASave) {
    writeCatalogue();
    open();
    frm.ckClearItem.value = 1;
    frm.cmdServices_Click(8);
    fillItem("Hose", "Parts");
    frm.cboCategory.SetListIndex(0);
    frm.cmdServices_Click(13);
    EXPECT_EQ(frm.fgItems.TextMatrix(3, 1), "Parts");
    EXPECT_EQ(frm.cboCategory.text, "Parts");
    EXPECT_EQ(frm.cboCategory.listIndex, 0);

    // The next item takes the same category without choosing it again.
    frm.cmdServices_Click(8);
    fillItem("Clamp", frm.cboCategory.text);
    frm.cmdServices_Click(13);
    EXPECT_EQ(frm.fgItems.TextMatrix(4, 1), "Parts");
}

TEST_F(ServicesEntry, SavingAModifiedItemChangesItsRow) {
    writeCatalogue();
    open();
    pick(frm.fgItems, 1);
    frm.cmdServices_Click(9);
    frm.txtOnHand.text = "40";
    frm.cmdServices_Click(13);
    ASSERT_EQ(frm.fgItems.Rows(), 3);
    EXPECT_EQ(frm.fgItems.TextMatrix(1, 0), "Filter");
    EXPECT_EQ(frm.fgItems.TextMatrix(1, 4), "40");
    EXPECT_TRUE(frm.fgItems.enabled);
}

TEST_F(ServicesEntry, AnItemQuantityOutsideItsFieldIsRefusedAndNothingIsAdded) {
    open();
    frm.cmdServices_Click(8);
    fillItem("Filter", "Parts");
    frm.txtReorderAt.text = "40000";
    frm.cmdServices_Click(13);
    EXPECT_TRUE(frm.txtReorderAt.focusRequested);
    EXPECT_EQ(fake.dialogs.beeps(), 1);
    EXPECT_EQ(frm.fgItems.TextMatrix(1, 0), "");
}

TEST_F(ServicesEntry, ACustomItemIsRefusedWithoutDescriptionOrPricesAndOtherwiseFillsFourCells) {
    open();
    frm.cmdServices_Click(18);
    frm.txtCharge[3].text = "$5.00";
    frm.txtCharge[4].text = "$4.00";
    frm.cmdServices_Click(22);
    EXPECT_TRUE(frm.txtDescription[2].focusRequested);
    frm.txtDescription[2].text = "Bracket";
    frm.txtCharge[4].text.clear();
    frm.cmdServices_Click(22);
    EXPECT_TRUE(frm.txtCharge[4].focusRequested);
    EXPECT_EQ(fake.dialogs.beeps(), 2);
    EXPECT_EQ(frm.fgCustom.TextMatrix(1, 0), "");

    frm.txtCharge[4].text = "4";
    frm.cmdServices_Click(22);
    EXPECT_EQ(frm.fgCustom.TextMatrix(1, 0), "Bracket");
    EXPECT_EQ(frm.fgCustom.TextMatrix(1, 1), "$5.00");
    EXPECT_EQ(frm.fgCustom.TextMatrix(1, 2), "$4.00");
    EXPECT_EQ(frm.fgCustom.TextMatrix(1, 3), "0");
    EXPECT_EQ(frm.txtDescription[2].text, "");
    EXPECT_EQ(frm.txtCharge[3].text, "");
    EXPECT_FALSE(frm.txtDescription[2].enabled);
    EXPECT_FALSE(frm.cmdServices[22].enabled);
}

TEST_F(ServicesEntry, ClearEmptiesTheBoxesOfItsTab) {
    open();
    frm.cmdServices_Click(1);
    frm.txtDescription[0].text = "x";
    frm.txtCharge[0].text = "$1.00";
    frm.lstTime.SetListIndex(1);
    frm.txtDescription[0].focusRequested = false;
    frm.cmdServices_Click(5);
    EXPECT_EQ(frm.txtDescription[0].text, "");
    EXPECT_EQ(frm.txtCharge[0].text, "");
    EXPECT_EQ(frm.lstTime.listIndex, -1);
    EXPECT_TRUE(frm.txtDescription[0].focusRequested);

    fillItem("Hose", "Parts");
    frm.cmdServices_Click(11);
    EXPECT_EQ(frm.txtDescription[1].text, "");
    EXPECT_EQ(frm.txtCharge[1].text, "");
    EXPECT_EQ(frm.txtOnHand.text, "");
    EXPECT_EQ(frm.txtDiscountQty.text, "");
    EXPECT_EQ(frm.txtReorderAmount.text, "");
    EXPECT_EQ(frm.txtReorderAt.text, "");
    // Not part of the tab's clear.
    EXPECT_EQ(frm.txtCost.text, "$2.00");
    EXPECT_EQ(frm.txtCharge[2].text, "$4.50");
    EXPECT_EQ(frm.cboCategory.text, "Parts");

    frm.txtDescription[2].text = "Bracket";
    frm.txtCharge[3].text = "$1.00";
    frm.txtCharge[4].text = "$1.00";
    frm.txtCustomDiscItems.text = "2";
    frm.cmdServices_Click(21);
    EXPECT_EQ(frm.txtDescription[2].text, "");
    EXPECT_EQ(frm.txtCharge[3].text, "");
    EXPECT_EQ(frm.txtCharge[4].text, "");
    EXPECT_EQ(frm.txtCustomDiscItems.text, "");
}

TEST_F(ServicesEntry, DeleteAsksWithTheTitleAndTextOfItsTab) {
    writeCatalogue();
    open();
    fake.dialogs.expect("Delete Service Item", "This will DELETE the Selected Service", vbYesNo + vbQuestion,
                        vbNo);
    fake.dialogs.expect("Delete Sales Item", "This will DELETE the Selected Sales Item", vbYesNo + vbQuestion,
                        vbNo);
    fake.dialogs.expect("Delete Sales Item", "This will DELETE the Selected Custom Item",
                        vbYesNo + vbQuestion, vbNo);
    pick(frm.fgServices, 1);
    frm.cmdServices_Click(2);
    pick(frm.fgItems, 1);
    frm.cmdServices_Click(10);
    pick(frm.fgCustom, 1);
    frm.cmdServices_Click(20);
    fake.dialogs.verify();
    // No changes nothing but the Delete buttons.
    EXPECT_EQ(frm.fgServices.Rows(), 3);
    EXPECT_EQ(frm.fgItems.Rows(), 3);
    EXPECT_EQ(frm.fgCustom.Rows(), 3);
    for (int i : {2, 10, 20})
        EXPECT_FALSE(frm.cmdServices[i].enabled) << i;
}

TEST_F(ServicesEntry, DeletingARowRemovesItAndRewritesTheFilesAtOnce) {
    writeCatalogue();
    open();
    fake.dialogs.expect("Delete Sales Item", "This will DELETE the Selected Sales Item", vbYes);
    pick(frm.fgItems, 1);
    frm.cmdServices_Click(10);
    fake.dialogs.verify();
    ASSERT_EQ(frm.fgItems.Rows(), 2);
    EXPECT_EQ(frm.fgItems.TextMatrix(1, 0), "Belt");
    EXPECT_EQ(t.readBytes("/OIInventoriedItems.txt"), item("Belt", "Belts").toRecord().bytes());
    EXPECT_EQ(session.catalogueLists.frmCreate.cboItems.items, (QStringList({"Belt", "Bracket", "Frame"})));
    EXPECT_FALSE(frm.cmdServices[10].enabled);

    fake.dialogs.expect("Delete Sales Item", "This will DELETE the Selected Custom Item", vbYes);
    pick(frm.fgCustom, 2);
    frm.cmdServices_Click(20);
    EXPECT_EQ(t.readBytes("/CustomItems.txt"), custom("Bracket").toRecord().bytes());

    fake.dialogs.expect("Delete Service Item", "This will DELETE the Selected Service", vbYes);
    pick(frm.fgServices, 1);
    frm.cmdServices_Click(2);
    EXPECT_EQ(t.readBytes("/Services.txt"), (ServiceRecord{"Full Service", "$120.00", 8}.toRecord().bytes()));
    EXPECT_EQ(frm.fgServices.TextMatrix(1, 0), "Full Service");
}

TEST_F(ServicesEntry, DeletingTheOnlyServiceRemovesItsFileAndLeavesOneEmptyRow) {
    t.writeBytes("/Services.txt", ServiceRecord{"Tune Up", "$45.00", 4}.toRecord().bytes());
    t.writeBytes("/Backup/Services.txt", ServiceRecord{"Tune Up", "$45.00", 4}.toRecord().bytes());
    t.writeBytes("/CustomItems.txt", custom("Bracket").toRecord().bytes());
    open();
    const QByteArray customBytes = t.readBytes("/CustomItems.txt");
    fake.dialogs.expect("Delete Service Item", "This will DELETE the Selected Service", vbYes);
    pick(frm.fgServices, 1);
    frm.cmdServices_Click(2);
    fake.dialogs.verify();
    EXPECT_FALSE(t.isFile("/Services.txt"));
    EXPECT_FALSE(t.isFile("/Backup/Services.txt"));
    ASSERT_EQ(frm.fgServices.Rows(), 2);
    for (int c = 0; c < 3; ++c)
        EXPECT_EQ(frm.fgServices.TextMatrix(1, c), "") << c;
    EXPECT_EQ(frm.fgServices.TextMatrix(0, 0), "Description");
    EXPECT_EQ(frm.fgServices.row, 0);
    EXPECT_FALSE(frm.cmdServices[2].enabled);
    EXPECT_EQ(t.readBytes("/CustomItems.txt"), customBytes); // only the tab's own file goes
    // Going back to the menu does not bring it back.
    frm.cmdServices_Click(0);
    EXPECT_FALSE(t.isFile("/Services.txt"));
}

TEST_F(ServicesEntry, DeletingTheOnlyItemOrCustomItemRemovesItsFileToo) {
    t.writeBytes("/OIInventoriedItems.txt", item("Filter", "Parts").toRecord().bytes());
    t.writeBytes("/CustomItems.txt", custom("Bracket").toRecord().bytes());
    open();
    fake.dialogs.expect("Delete Sales Item", "This will DELETE the Selected Sales Item", vbYes);
    fake.dialogs.expect("Delete Sales Item", "This will DELETE the Selected Custom Item", vbYes);
    pick(frm.fgItems, 1);
    frm.cmdServices_Click(10);
    pick(frm.fgCustom, 1);
    frm.cmdServices_Click(20);
    fake.dialogs.verify();
    EXPECT_FALSE(t.isFile("/OIInventoriedItems.txt"));
    EXPECT_FALSE(t.isFile("/CustomItems.txt"));
    EXPECT_EQ(frm.fgItems.Rows(), 2);
    EXPECT_EQ(frm.fgItems.TextMatrix(1, 0), "");
    EXPECT_EQ(frm.fgCustom.Rows(), 2);
    EXPECT_EQ(frm.fgCustom.row, 0);
}

TEST_F(ServicesEntry, NoDiscountSetsTheQuantityToZeroSoTheInvoiceNeverAppliesTheDiscount) {
    writeCatalogue();
    open();
    const CatalogueLists& lists = session.catalogueLists;
    ASSERT_EQ(VolumePrice(lists.ItemDiscountPrice, lists.ItemDiscountQuantity, 0, 50, 125000), 100000);

    frm.SelectTab(frm.kItemsTab);
    pick(frm.fgItems, 1);
    frm.cmdServices_Click(9);
    frm.cmdServices_Click(25);
    EXPECT_EQ(frm.txtDiscountQty.text, "0");
    EXPECT_EQ(frm.txtCharge[2].text, "$0.00");
    frm.cmdServices_Click(13);
    EXPECT_EQ(frm.fgItems.TextMatrix(1, 6), "0");
    frm.cmdServices_Click(0);

    EXPECT_EQ(lists.ItemDiscountQuantity[1], 0);
    for (double units : {1.0, 10.0, 1000.0})
        EXPECT_EQ(VolumePrice(lists.ItemDiscountPrice, lists.ItemDiscountQuantity, 0, units, 125000), 125000);
}

TEST_F(ServicesEntry, NoDiscountOnTheCustomTabClearsTheCustomDiscount) {
    writeCatalogue();
    open();
    frm.SelectTab(frm.kCustomTab);
    pick(frm.fgCustom, 1);
    frm.cmdServices_Click(19);
    frm.cmdServices_Click(25);
    EXPECT_EQ(frm.txtCustomDiscItems.text, "0");
    EXPECT_EQ(frm.txtCharge[4].text, "$0.00");
    frm.cmdServices_Click(22);
    frm.cmdServices_Click(0);
    EXPECT_EQ(session.catalogueLists.CustomDiscountQuantity[1], 0);
}

TEST_F(ServicesEntry, ClearPricesEmptiesThePriceBoxesOfTheItemTabs) {
    open();
    frm.SelectTab(frm.kItemsTab);
    fillItem("Hose", "Parts");
    frm.cmdServices_Click(24);
    EXPECT_EQ(frm.txtCost.text, "");
    EXPECT_EQ(frm.txtCharge[1].text, "");
    EXPECT_EQ(frm.txtCharge[2].text, "");
    EXPECT_EQ(frm.txtDescription[1].text, "Hose");

    frm.SelectTab(frm.kCustomTab);
    frm.txtCharge[3].text = "$3.00";
    frm.txtCharge[4].text = "$2.00";
    frm.cmdServices_Click(24);
    EXPECT_EQ(frm.txtCharge[3].text, "");
    EXPECT_EQ(frm.txtCharge[4].text, "");
}

TEST_F(ServicesEntry, A256thServiceIsRefusedWithAMessageAndTheGridKeeps255) {
    QByteArray full;
    for (int i = 0; i < 255; ++i)
        full += ServiceRecord{QStringLiteral("Service %1").arg(i), "$1.00", 1}.toRecord().bytes();
    t.writeBytes("/Services.txt", full);
    open();
    ASSERT_EQ(frm.fgServices.Rows(), 256);
    frm.cmdServices_Click(1);
    frm.txtDescription[0].text = "One too many";
    frm.txtCharge[0].text = "$1.00";
    frm.cmdServices_Click(4);
    const auto box = fake.dialogs.boxes().back();
    EXPECT_EQ(box.title, kStoreErrorTitle);
    EXPECT_TRUE(box.prompt.contains("Services.txt"));
    EXPECT_TRUE(box.prompt.contains("255"));
    EXPECT_BOX(fake.dialogs, box.title, box.prompt);
    EXPECT_EQ(frm.fgServices.Rows(), 256);
    EXPECT_EQ(frm.txtDescription[0].text, "One too many"); // the entry stays for the user
}
