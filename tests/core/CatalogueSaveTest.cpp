#include "TestDataRoot.h"
#include "catalogue/CatalogueStore.h"
#include "catalogue/CustomItemRecord.h"
#include "catalogue/InventoriedItemRecord.h"
#include "catalogue/ServiceRecord.h"
#include "store/StoreError.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {

template <typename R> QByteArray fileOf(const QVector<R>& records) {
    QByteArray bytes;
    for (const R& r : records)
        bytes += r.toRecord().bytes();
    return bytes;
}

void setRow(Grid& g, int row, const QStringList& cells) {
    if (g.Rows() <= row) g.SetRows(row + 1);
    for (int c = 0; c < cells.size(); ++c)
        g.SetTextMatrix(row, c, cells[c]);
}

struct Catalogue {
    TestDataRoot t;
    CatalogueGrids grids;
    CatalogueLists lists;
    CatalogueStore store{t.disk(), grids, lists};
};

const QByteArray kServices = fileOf<ServiceRecord>({{"Diagnostic Check", "$65.00", 4}});
const QByteArray kItems = [] {
    InventoriedItemRecord i;
    i.Description = "Igniter";
    i.Category = "Parts";
    i.SellPrice = 248000;
    return fileOf<InventoriedItemRecord>({i});
}();
const QByteArray kCustom = fileOf<CustomItemRecord>({{"Plenum", 3100000, 0, 0}});

void writeAllThree(const TestDataRoot& t) {
    t.writeBytes("/Services.txt", kServices);
    t.writeBytes("/OIInventoriedItems.txt", kItems);
    t.writeBytes("/CustomItems.txt", kCustom);
}

void expectAllThreeUnchanged(const TestDataRoot& t) {
    EXPECT_EQ(t.readBytes("/Services.txt"), kServices);
    EXPECT_EQ(t.readBytes("/OIInventoriedItems.txt"), kItems);
    EXPECT_EQ(t.readBytes("/CustomItems.txt"), kCustom);
}

} // namespace

TEST(SaveCatalogue, TimeIndexZeroLoadsAsAQuarterHourAndIsSavedBackAsOne) {
    Catalogue c;
    c.t.writeBytes("/Services.txt", fileOf<ServiceRecord>({{"Quick Look", "$10.00", 0}}));
    ASSERT_TRUE(c.store.LoadServices());
    EXPECT_EQ(c.grids.fgServices.TextMatrix(1, 2), QStringLiteral("0:15"));
    EXPECT_EQ(c.lists.frmCreate.cboTime.items, QStringList({"0:15"}));

    c.store.SaveCatalogue();
    const QByteArray saved = c.t.readBytes("/Services.txt");
    ASSERT_EQ(saved.size(), 72);
    EXPECT_EQ(saved.mid(70, 2), QByteArray("\x01\x00", 2));
}

TEST(SaveCatalogue, ATimeCellThatMatchesNoEntryStoresZero) {
    Catalogue c;
    setRow(c.grids.fgServices, 1, {"Odd Job", "$30.00", "1:20"});
    setRow(c.grids.fgServices, 2, {"Blank Time", "$30.00", ""});
    c.store.SaveCatalogue();
    const QByteArray saved = c.t.readBytes("/Services.txt");
    ASSERT_EQ(saved.size(), 144);
    EXPECT_EQ(saved.mid(70, 2), QByteArray("\x00\x00", 2));
    EXPECT_EQ(saved.mid(142, 2), QByteArray("\x00\x00", 2));
    // The reload then shows the shortest service.
    EXPECT_EQ(c.grids.fgServices.TextMatrix(1, 2), QStringLiteral("0:15"));
}

TEST(SaveCatalogue, WritesEachGridToItsFileAsRecordsInRowOrder) {
    Catalogue c;
    setRow(c.grids.fgServices, 1, {"Duct Cleaning", "$249.00", "4:00"});
    setRow(c.grids.fgServices, 2, {"Filter Change", "$25.00", "0:15"});
    setRow(c.grids.fgItems, 1, {"Igniter", "Parts", "$17.60", "$24.80", "17", "$22.20", "10", "5", "3"});
    setRow(c.grids.fgCustom, 1, {"Plenum", "$310.00", "($1.00)", "0"});
    c.store.SaveCatalogue();

    EXPECT_EQ(c.t.readBytes("/Services.txt"),
              fileOf<ServiceRecord>({{"Duct Cleaning", "$249.00", 16}, {"Filter Change", "$25.00", 1}}));
    InventoriedItemRecord i;
    i.Description = "Igniter";
    i.Category = "Parts";
    i.UnitCost = 176000;
    i.SellPrice = 248000;
    i.OnHand = 17;
    i.DiscountPrice = 222000;
    i.DiscountQuantity = 10;
    i.ReorderAmount = 5;
    i.ReorderAt = 3;
    EXPECT_EQ(c.t.readBytes("/OIInventoriedItems.txt"), fileOf<InventoriedItemRecord>({i}));
    EXPECT_EQ(c.t.readBytes("/CustomItems.txt"), fileOf<CustomItemRecord>({{"Plenum", 3100000, -10000, 0}}));
}

TEST(SaveCatalogue, ReloadsTheListsFromTheFilesItWrote) {
    Catalogue c;
    setRow(c.grids.fgServices, 1, {"Duct Cleaning", "$249.00", "4:00"});
    setRow(c.grids.fgItems, 1, {"Igniter", " Parts ", "$17.60", "$24.80", "17", "$22.20", "10", "5", "3"});
    setRow(c.grids.fgCustom, 1, {"Plenum", "310", "0", "0"});
    c.store.SaveCatalogue();
    EXPECT_EQ(c.lists.frmCreate.lstServices.items, QStringList({"Duct Cleaning"}));
    EXPECT_EQ(c.lists.frmCreate.cboItems.items, QStringList({"Igniter", "Plenum"}));
    EXPECT_EQ(c.lists.frmInvoice.lstCategories.items, QStringList({"All", "Parts"}));
    // The grid shows the reloaded, formatted values.
    EXPECT_EQ(c.grids.fgCustom.TextMatrix(1, 1), QStringLiteral("$310.00"));
    EXPECT_EQ(c.grids.fgItems.TextMatrix(1, 1), QStringLiteral("Parts"));
}

TEST(SaveCatalogue, TextLongerThanItsFieldIsCut) {
    Catalogue c;
    setRow(c.grids.fgServices, 1, {QString(61, u'x'), "$12,345,678.00", "1:00"});
    c.store.SaveCatalogue();
    const QByteArray saved = c.t.readBytes("/Services.txt");
    ASSERT_EQ(saved.size(), 72);
    EXPECT_EQ(saved.left(60), QByteArray(60, 'x'));
    EXPECT_EQ(saved.mid(60, 10), QByteArray("$12,345,67"));
}

TEST(SaveCatalogue, AnEmptyGridLeavesNoFileNorBackupAndTheListsKeepTheirContents) {
    Catalogue c;
    writeAllThree(c.t);
    c.t.writeBytes("/Backup/CustomItems.txt", kCustom);
    c.store.LoadCatalogue();
    c.grids.fgCustom.SetRows(1);
    c.store.SaveCatalogue();
    EXPECT_FALSE(c.t.isFile("/CustomItems.txt"));
    EXPECT_FALSE(c.t.isFile("/Backup/CustomItems.txt"));
    EXPECT_FALSE(c.t.disk().FileExists("/CustomItems.txt"));
    EXPECT_EQ(c.t.readBytes("/Services.txt"), kServices);
    EXPECT_EQ(c.t.readBytes("/OIInventoriedItems.txt"), kItems);
    EXPECT_EQ(c.lists.frmInvoice.cboDescription[2].items, QStringList({"Plenum"}));
}

TEST(SaveCatalogue, ABlankFirstDataCellLeavesNoFileWhateverFollows) {
    Catalogue c;
    writeAllThree(c.t);
    setRow(c.grids.fgServices, 1, {"", "$1.00", "1:00"});
    setRow(c.grids.fgServices, 2, {"Second", "$2.00", "1:00"});
    c.store.SaveCatalogue();
    EXPECT_FALSE(c.t.isFile("/Services.txt"));
}

TEST(SaveCatalogue, MoreThan255RowsStopsWithAMessageAndNoFileChanges) {
    Catalogue c;
    writeAllThree(c.t);
    Grid& g = c.grids.fgCustom;
    g.SetRows(257);
    for (int r = 1; r <= 256; ++r)
        setRow(g, r, {QStringLiteral("C%1").arg(r), "$1.00", "$1.00", "0"});
    try {
        c.store.SaveCatalogue();
        FAIL() << "256 custom items were saved";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.file(), QStringLiteral("/CustomItems.txt"));
        EXPECT_TRUE(e.problem().contains(QStringLiteral("255"))) << e.problem().toStdString();
    }
    expectAllThreeUnchanged(c.t);
    EXPECT_EQ(c.t.disk().OpenChannelCount(), 0);
}

TEST(SaveCatalogue, Exactly255RowsAreSaved) {
    Catalogue c;
    Grid& g = c.grids.fgServices;
    for (int r = 1; r <= 255; ++r)
        setRow(g, r, {QStringLiteral("S%1").arg(r), "$1.00", "1:00"});
    c.store.SaveCatalogue();
    EXPECT_EQ(c.t.readBytes("/Services.txt").size(), 255 * 72);
    EXPECT_EQ(c.lists.frmCreate.lstServices.ListCount(), 255);
}

TEST(SaveCatalogue, ACellThatIsNoAmountStopsTheSaveNamingFileAndCell) {
    Catalogue c;
    writeAllThree(c.t);
    c.store.LoadCatalogue();
    c.grids.fgServices.SetTextMatrix(1, 0, QStringLiteral("Changed"));
    c.grids.fgItems.SetTextMatrix(1, 3, QStringLiteral("twelve"));
    try {
        c.store.SaveCatalogue();
        FAIL() << "a price of \"twelve\" was saved";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.file(), QStringLiteral("/OIInventoriedItems.txt"));
        EXPECT_TRUE(e.problem().contains(QStringLiteral("\"twelve\""))) << e.problem().toStdString();
    }
    // Services come first in the save, and are not written either.
    expectAllThreeUnchanged(c.t);
}

TEST(SaveCatalogue, AnOnHandCountPast16BitsIsRefused) {
    Catalogue c;
    setRow(c.grids.fgItems, 1, {"Screws", "Hardware", "$1.00", "$2.00", "32768", "$2.00", "0", "0", "0"});
    EXPECT_THROW(c.store.SaveCatalogue(), StoreError);
    EXPECT_FALSE(c.t.isFile("/OIInventoriedItems.txt"));
    c.grids.fgItems.SetTextMatrix(1, 4, QStringLiteral("32767"));
    c.store.SaveCatalogue();
    EXPECT_EQ(c.grids.fgItems.TextMatrix(1, 4), QStringLiteral("32767"));
}

TEST(SaveCatalogue, AnEmptyNumberCellIsRefused) {
    Catalogue c;
    setRow(c.grids.fgCustom, 1, {"Plenum", "$1.00", "$1.00", ""});
    EXPECT_THROW(c.store.SaveCatalogue(), StoreError);
    EXPECT_FALSE(c.t.isFile("/CustomItems.txt"));
}
