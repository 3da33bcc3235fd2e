#include "catalogue/frmServices.h"
#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "catalogue/CustomItemRecord.h"
#include "catalogue/InventoriedItemRecord.h"
#include "catalogue/LaborRates.h"
#include "catalogue/ServiceRecord.h"
#include "platform/StoreErrorBox.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

namespace {

QByteArray records(std::initializer_list<Record> rs) {
    QByteArray out;
    for (const Record& r : rs)
        out += r.bytes();
    return out;
}

InventoriedItemRecord item(const QString& description, const QString& category, qint64 price) {
    InventoriedItemRecord i;
    i.Description = description;
    i.Category = category;
    i.UnitCost = 40000;
    i.SellPrice = price;
    i.OnHand = 12;
    i.DiscountPrice = price / 2;
    i.DiscountQuantity = 10;
    i.ReorderAmount = 6;
    i.ReorderAt = 2;
    return i;
}

CustomItemRecord custom(const QString& description, qint64 price) {
    CustomItemRecord c;
    c.Description = description;
    c.SellPrice = price;
    c.DiscountPrice = price;
    c.DiscountQuantity = 0;
    return c;
}

struct ServicesScreen : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmServices& frm = session.AddScreen(ScreenId::frmServices,
                                         std::make_unique<frmServices>(session, session.catalogueLists));

    ServicesScreen() { session.RegisterScreen(ScreenId::frmStartup, session.startup()); }

    void writeCatalogue() {
        t.writeBytes("/Services.txt", records({ServiceRecord{"Tune Up", "$45.00", 4}.toRecord(),
                                               ServiceRecord{"Full Service", "$120.00", 8}.toRecord()}));
        t.writeBytes("/OIInventoriedItems.txt", records({item("Filter", "Parts", 125000).toRecord()}));
        t.writeBytes("/CustomItems.txt", records({custom("Bracket", 75000).toRecord()}));
        TextWriter labor;
        labor.write({QStringLiteral("General Labor"), QStringLiteral("$85.00")});
        labor.write({QStringLiteral("Apprentice"), QStringLiteral("$45.00")});
        labor.write({QString(), QString()});
        t.disk().ReplaceTextFile(kLaborFileName, labor);
    }

    void open() {
        frm.Load();
        frm.Show();
    }
};

} // namespace

TEST_F(ServicesScreen, ShowsItsCaptionTabsAndEveryButtonCaption) {
    EXPECT_EQ(frm.caption, "Services & Products Creation Screen");
    EXPECT_EQ(frm.tabServices.TabCaption,
              QStringList({"Services", "Inventoried Items", "Labor Rates", "Custom Items", "Instructions"}));
    const std::map<int, QString> captions = {
        {0, "Menu"},
        {1, "Add New"},
        {2, "Delete Item"},
        {3, "Modify Item"},
        {4, "Save"},
        {5, "Clear"},
        {7, "Cancel Add New or Modify"},
        {8, "Add New"},
        {9, "Modify Item"},
        {10, "Delete Item"},
        {11, "Clear Item"},
        {12, "Create General Labor"},
        {13, "Save Sales Item"},
        {14, "Cancel Add New or Modify"},
        {15, "&Clear All"},
        {16, "Reload from File"},
        {17, "Save &Labor Rates"},
        {18, "Add New"},
        {19, "Modify Item"},
        {20, "Delete Item"},
        {21, " Clear Item"},
        {22, "Save Custom Item"},
        {23, "Cancel Add New or Modify "},
        {24, "Clear Prices"},
        {25, "No Discount"},
    };
    EXPECT_EQ(frm.cmdServices.size(), int(captions.size()));
    for (const auto& [i, caption] : captions)
        EXPECT_EQ(frm.cmdServices[i].caption, caption) << i;
    EXPECT_EQ(frm.ckClearItem.caption, "Do not clear Category when Saving");
    EXPECT_EQ(frm.Image1.toolTip, "Toggles Tab  >");
    EXPECT_EQ(frm.controls.find("cmdServices(23)"), &frm.cmdServices[23]);
    EXPECT_EQ(frm.controls.find("txtCharge(4)"), &frm.txtCharge[4]);
}

TEST_F(ServicesScreen, TheInstructionsTabCarriesItsHeadingsAndNotes) {
    QStringList texts;
    for (const auto& [i, label] : frm.lblInstructions)
        texts << label.caption;
    for (const char* line :
         {"CREATING SERVICES", "INVENTORIED ITEMS", "CUSTOM ITEMS", "CREATING LABOR",
          "The On-hand quantity will be decremented when an Invoice is created.",
          "These items are not inventoried", "These items might be sub-assemblies you fabricate",
          "Keep the description to 20 characters or Less", "Can be Added when Printing an Invoice"})
        EXPECT_TRUE(texts.contains(QString::fromLatin1(line))) << line;
    EXPECT_LT(texts.indexOf("CREATING SERVICES"), texts.indexOf("INVENTORIED ITEMS"));
}

TEST_F(ServicesScreen, TheInstructionsSayWhenLaborRatesAreWrittenAndDoNotPromiseItAtTheMenu) {
    QStringList texts;
    for (const auto& [i, label] : frm.lblInstructions)
        texts << label.caption;
    EXPECT_FALSE(texts.contains("Your changes are written to the files when you return to the Menu."));
    const QString all = texts.join(u'\n');
    EXPECT_TRUE(all.contains("Labor rates are written with Save Labor Rates, and when this screen closes"));
    EXPECT_TRUE(all.contains("Services and items are written to the files when you return to the Menu"));
}

TEST_F(ServicesScreen, LoadFillsTheGridsTheLaborBoxesAndTheOtherScreensLists) {
    writeCatalogue();
    frm.Load();
    EXPECT_EQ(frm.lstTime.ListCount(), 33);
    ASSERT_EQ(frm.fgServices.Rows(), 3);
    EXPECT_EQ(frm.fgServices.TextMatrix(0, 0), "Description");
    EXPECT_EQ(frm.fgServices.TextMatrix(2, 0), "Full Service");
    EXPECT_EQ(frm.fgServices.TextMatrix(2, 1), "$120.00");
    EXPECT_EQ(frm.fgServices.TextMatrix(2, 2), "2:00");
    EXPECT_EQ(frm.fgServices.topRow, 1);
    ASSERT_EQ(frm.fgItems.Rows(), 2);
    EXPECT_EQ(frm.fgItems.TextMatrix(1, 3), "$12.50");
    EXPECT_EQ(frm.fgCustom.TextMatrix(1, 1), "$7.50");
    EXPECT_EQ(frm.txtLabor[1].text, "Apprentice");
    EXPECT_EQ(frm.txtLaborRate[0].text, "$85.00");
    EXPECT_TRUE(frm.cmdServices[16].visible);

    const CatalogueLists& lists = session.catalogueLists;
    EXPECT_EQ(lists.frmCreate.lstServices.items, (QStringList({"Tune Up", "Full Service"})));
    EXPECT_EQ(lists.frmCreate.cboTime.items, (QStringList({"1:00", "2:00"})));
    EXPECT_EQ(lists.frmCreate.cboItems.items, (QStringList({"Filter", "Bracket"})));
    EXPECT_EQ(lists.frmInvoice.lstCategories.items, (QStringList({"All", "Parts"})));
    EXPECT_EQ(frm.cboCategory.items, (QStringList({"Parts"})));
}

TEST_F(ServicesScreen, WithoutALaborFileGeneralLaborComesUpAndReloadFromFileIsHidden) {
    open();
    EXPECT_EQ(frm.txtLabor[0].text, "General Labor");
    EXPECT_EQ(frm.txtLabor[1].text, "");
    EXPECT_EQ(frm.txtLaborRate[2].text, "$0.00");
    EXPECT_FALSE(frm.cmdServices[16].visible);
    EXPECT_FALSE(t.isFile("/Labor.txt"));
}

TEST_F(ServicesScreen, EachActivationLocksTheEntryBoxesOfTheThreeItemTabs) {
    open();
    for (int i : {4, 13, 22})
        EXPECT_FALSE(frm.cmdServices[i].enabled) << i;
    for (int i = 0; i <= 4; ++i)
        EXPECT_FALSE(frm.txtCharge[i].enabled) << i;
    for (int i = 0; i <= 2; ++i)
        EXPECT_FALSE(frm.txtDescription[i].enabled) << i;
    // Only the named boxes lock; the others stay as they are.
    EXPECT_TRUE(frm.txtCost.enabled);
    EXPECT_TRUE(frm.txtLaborRate[0].enabled);

    frm.cmdServices_Click(1);
    EXPECT_TRUE(frm.txtDescription[0].enabled);
    frm.Hide();
    frm.Show();
    EXPECT_FALSE(frm.txtDescription[0].enabled);
    EXPECT_FALSE(frm.cmdServices[4].enabled);
}

TEST_F(ServicesScreen, AddNewUnlocksItsTabClearsTheBoxesAndFocusesTheDescription) {
    open();
    frm.txtDescription[0].text = "left over";
    frm.txtCharge[0].text = "$9.00";
    frm.lstTime.SetListIndex(3);
    frm.EditingExisting = true;
    frm.cmdServices_Click(1);
    EXPECT_FALSE(frm.EditingExisting);
    EXPECT_TRUE(frm.cmdServices[4].enabled);
    EXPECT_TRUE(frm.txtCharge[0].enabled);
    EXPECT_TRUE(frm.txtDescription[0].enabled);
    EXPECT_EQ(frm.txtDescription[0].text, "");
    EXPECT_EQ(frm.txtCharge[0].text, "");
    EXPECT_EQ(frm.lstTime.listIndex, -1);
    EXPECT_TRUE(frm.txtDescription[0].focusRequested);
    EXPECT_FALSE(frm.txtDescription[1].enabled); // another tab's set stays locked

    frm.cmdServices_Click(8);
    EXPECT_TRUE(frm.cmdServices[13].enabled);
    EXPECT_TRUE(frm.txtCharge[1].enabled);
    EXPECT_TRUE(frm.txtCharge[2].enabled);
    EXPECT_TRUE(frm.txtDescription[1].focusRequested);

    frm.txtCustomDiscItems.text = "4";
    frm.cmdServices_Click(18);
    EXPECT_TRUE(frm.cmdServices[22].enabled);
    EXPECT_TRUE(frm.txtCharge[3].enabled);
    EXPECT_TRUE(frm.txtCharge[4].enabled);
    EXPECT_EQ(frm.txtCustomDiscItems.text, "");
    EXPECT_TRUE(frm.txtDescription[2].focusRequested);
}

TEST_F(ServicesScreen, CancelEnablesTheGridLocksAndClearsTheTab) {
    writeCatalogue();
    open();
    frm.fgItems.row = 1;
    frm.fgItems_Click();
    frm.cmdServices_Click(9);
    ASSERT_FALSE(frm.fgItems.enabled);
    frm.cmdServices_Click(14);
    EXPECT_TRUE(frm.fgItems.enabled);
    EXPECT_FALSE(frm.txtDescription[1].enabled);
    EXPECT_FALSE(frm.cmdServices[13].enabled);
    EXPECT_EQ(frm.txtDescription[1].text, "");
    EXPECT_EQ(frm.txtCharge[1].text, "");
    EXPECT_EQ(frm.txtOnHand.text, "");

    frm.fgCustom.row = 1;
    frm.cmdServices_Click(19);
    frm.cmdServices_Click(23);
    EXPECT_TRUE(frm.fgCustom.enabled);
    EXPECT_FALSE(frm.txtDescription[2].enabled);
    EXPECT_EQ(frm.txtCharge[3].text, "");

    frm.fgServices.row = 1;
    frm.cmdServices_Click(3);
    frm.cmdServices_Click(7);
    EXPECT_TRUE(frm.fgServices.enabled);
    EXPECT_FALSE(frm.txtDescription[0].enabled);
    EXPECT_EQ(frm.txtDescription[0].text, "");
}

TEST_F(ServicesScreen, TheSaveButtonsChangeOnlyTheGridsAndMenuWritesTheFiles) {
    writeCatalogue();
    open();
    const QByteArray before = t.readBytes("/Services.txt");
    frm.cmdServices_Click(1);
    frm.txtDescription[0].text = "Inspection";
    frm.txtCharge[0].text = "30";
    frm.lstTime.SetListIndex(2);
    frm.cmdServices_Click(4);
    ASSERT_EQ(frm.fgServices.Rows(), 4);
    EXPECT_EQ(t.readBytes("/Services.txt"), before);
    EXPECT_EQ(session.catalogueLists.frmCreate.lstServices.ListCount(), 2);

    frm.cmdServices_Click(0);
    EXPECT_EQ(t.readBytes("/Services.txt").size(), 3 * ServiceRecord::kLength);
    const ServiceRecord third = ServiceRecord::fromRecord(Record(t.readBytes("/Services.txt").mid(144, 72)));
    EXPECT_EQ(third.Description.trimmed(), "Inspection");
    EXPECT_EQ(third.Charge.trimmed(), "$30.00");
    EXPECT_EQ(third.TimeIndex, 2);
    EXPECT_EQ(session.catalogueLists.frmCreate.lstServices.items.last(), "Inspection");
    EXPECT_TRUE(session.startup().isVisible());
    EXPECT_FALSE(frm.isVisible());
    fake.dialogs.verify();
}

TEST_F(ServicesScreen, Image1StepsToTheNextTabAndFromInstructionsBackToServices) {
    open();
    const std::vector<Control*> starts = {&frm.cmdServices[8], &frm.txtLabor[0], &frm.cmdServices[18],
                                          nullptr, &frm.cmdServices[1]};
    for (int step = 0; step < 5; ++step) {
        frm.Image1_Click();
        EXPECT_EQ(frm.tabServices.Tab, (step + 1) % 5);
        if (Control* c = starts[step]) {
            EXPECT_TRUE(c->focusRequested) << step;
            c->focusRequested = false;
        }
    }
}

TEST_F(ServicesScreen, TheViewIsToldWhenTheProgramMovesTheTab) {
    open();
    std::vector<int> told;
    frm.tabServices.tabChanged = [&](int tab) { told.push_back(tab); };
    frm.Image1_Click();
    frm.SelectTab(frm.kInstructionsTab);
    EXPECT_EQ(told, std::vector<int>({1, 4}));
}

TEST_F(ServicesScreen, EnteringATabFocusesItsNaturalStartAndShowsThePriceButtonsOnItemTabsOnly) {
    open();
    const std::map<int, Control*> starts = {
        {0, &frm.cmdServices[1]}, {1, &frm.cmdServices[8]}, {2, &frm.txtLabor[0]}, {3, &frm.cmdServices[18]}};
    for (int tab = 0; tab < 5; ++tab) {
        const int previous = frm.tabServices.Tab;
        frm.tabServices.Tab = tab; // the user's pick
        frm.tabServices_Click(previous);
        if (starts.count(tab)) {
            EXPECT_TRUE(starts.at(tab)->focusRequested) << tab;
            starts.at(tab)->focusRequested = false;
        }
        const bool priced = tab == 1 || tab == 3;
        EXPECT_EQ(frm.cmdServices[24].visible, priced) << tab;
        EXPECT_EQ(frm.cmdServices[25].visible, priced) << tab;
    }
}

TEST_F(ServicesScreen, ClosingTheScreenSavesTheCatalogueAndTheLaborRatesWithoutSaveLaborRates) {
    open();
    frm.SelectTab(frm.kLaborTab);
    frm.txtLabor[1].text = "Overtime";
    frm.txtLaborRate[1].text = "$90.00";
    frm.cmdServices_Click(1);
    frm.txtDescription[0].text = "Tune Up";
    frm.txtCharge[0].text = "$45.00";
    frm.lstTime.SetListIndex(4);
    frm.cmdServices_Click(4);
    ASSERT_FALSE(t.isFile("/Labor.txt"));
    ASSERT_FALSE(t.isFile("/Services.txt"));

    frm.Form_Unload();
    EXPECT_EQ(t.readBytes("/Labor.txt"), QByteArray("\"General Labor\",\"$0.00\"\r\n"
                                                    "\"Overtime\",\"$90.00\"\r\n"
                                                    "\"\",\"$0.00\"\r\n"));
    EXPECT_EQ(t.readBytes("/Services.txt"), (ServiceRecord{"Tune Up", "$45.00", 4}.toRecord().bytes()));
}

TEST_F(ServicesScreen, OneClosingSavesOnceEvenWhenTheExitAndTheFrameBothReportIt) {
    open();
    frm.Form_Unload();
    ASSERT_TRUE(t.isFile("/Labor.txt"));
    QFile::remove(t.full("/Labor.txt"));
    frm.Form_Unload();
    EXPECT_FALSE(t.isFile("/Labor.txt"));
    frm.Show(); // shown again, it is a new use of the screen
    frm.Form_Unload();
    EXPECT_TRUE(t.isFile("/Labor.txt"));
}

TEST_F(ServicesScreen, ACatalogueFileThatCouldNotBeReadIsNeverWrittenOver) {
    QByteArray tooMany;
    for (int i = 0; i < 256; ++i)
        tooMany += ServiceRecord{QStringLiteral("Service %1").arg(i), "$1.00", 1}.toRecord().bytes();
    t.writeBytes("/Services.txt", tooMany);
    open();
    ASSERT_FALSE(fake.dialogs.boxes().isEmpty());
    const auto box = fake.dialogs.boxes().back();
    EXPECT_EQ(box.title, kStoreErrorTitle);
    EXPECT_TRUE(box.prompt.contains("Services.txt"));
    EXPECT_BOX(fake.dialogs, box.title, box.prompt);

    fake.dialogs.expect(
        "Catalogue Not Saved",
        "The catalogue files could not be read when the program started, so they were left as they "
        "are and the changes made here were not saved.");
    frm.cmdServices_Click(0);
    fake.dialogs.verify();
    EXPECT_EQ(t.readBytes("/Services.txt"), tooMany);
    EXPECT_TRUE(session.startup().isVisible());
}

TEST_F(ServicesScreen, AMenuSaveThatFailsLeavesTheFilesAndTheScreenAsTheyWere) {
    writeCatalogue();
    open();
    const QByteArray items = t.readBytes("/OIInventoriedItems.txt");
    frm.fgItems.SetTextMatrix(1, 4, "lots");
    frm.cmdServices_Click(0);
    const auto box = fake.dialogs.boxes().back();
    EXPECT_EQ(box.title, kStoreErrorTitle);
    EXPECT_TRUE(box.prompt.contains("OIInventoriedItems.txt"));
    EXPECT_BOX(fake.dialogs, box.title, box.prompt);
    EXPECT_EQ(t.readBytes("/OIInventoriedItems.txt"), items);
    EXPECT_TRUE(frm.isVisible());
    EXPECT_FALSE(session.startup().isVisible());
}

TEST_F(ServicesScreen, ALegacyItemChangedOnTheScreenRewritesOnlyItsOwnRecord) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    for (const char* f : {"/Services.txt", "/OIInventoriedItems.txt", "/CustomItems.txt", "/Labor.txt"}) {
        QFile in(test::legacyFixture() + QLatin1String(f));
        ASSERT_TRUE(in.open(QIODevice::ReadOnly)) << f;
        t.writeBytes(QLatin1String(f), in.readAll());
    }
    const QByteArray items = t.readBytes("/OIInventoriedItems.txt");
    ASSERT_GE(items.size(), 2 * InventoriedItemRecord::kLength);
    open();
    frm.SelectTab(frm.kItemsTab);
    frm.fgItems.row = 2;
    frm.fgItems_Click();
    frm.cmdServices_Click(9);
    frm.txtOnHand_GotFocus();
    frm.txtOnHand.text = "77";
    frm.cmdServices_Click(13);
    frm.cmdServices_Click(0);

    QByteArray expected = items;
    expected[InventoriedItemRecord::kLength + InventoriedItemRecord::kOnHandOffset] = 77;
    expected[InventoriedItemRecord::kLength + InventoriedItemRecord::kOnHandOffset + 1] = 0;
    EXPECT_EQ(t.readBytes("/OIInventoriedItems.txt"), expected);
    frm.Form_Unload();
    QFile labor(test::legacyFixture() + QStringLiteral("/Labor.txt"));
    ASSERT_TRUE(labor.open(QIODevice::ReadOnly));
    EXPECT_EQ(t.readBytes("/Labor.txt"), labor.readAll());
}
