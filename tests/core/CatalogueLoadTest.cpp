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

InventoriedItemRecord item(const QString& description, const QString& category, qint64 sell,
                           qint64 discountPrice = 0, qint32 discountQuantity = 0) {
    InventoriedItemRecord i;
    i.Description = description;
    i.Category = category;
    i.UnitCost = sell / 2;
    i.SellPrice = sell;
    i.OnHand = 7;
    i.DiscountPrice = discountPrice;
    i.DiscountQuantity = discountQuantity;
    i.ReorderAmount = 10;
    i.ReorderAt = 2;
    return i;
}

struct Catalogue {
    TestDataRoot t;
    CatalogueGrids grids;
    CatalogueLists lists;
    CatalogueStore store{t.disk(), grids, lists};
    CatalogueLists::InvoiceLists& invoice = lists.frmInvoice;
    CatalogueLists::CreateLists& create = lists.frmCreate;
};

QStringList column(const Grid& g, int col) {
    QStringList out;
    for (int r = 1; r < g.Rows(); ++r)
        out << g.TextMatrix(r, col);
    return out;
}

} // namespace

TEST(LoadServices, FillsTheGridAndEveryServiceListInFileOrder) {
    Catalogue c;
    c.t.writeBytes("/Services.txt", fileOf<ServiceRecord>({{"Duct Cleaning", "$249.00", 16},
                                                           {"  Filter Change", "$25.00", 1},
                                                           {"Full System Install", "$1,850.00", 32}}));
    ASSERT_TRUE(c.store.LoadServices());

    const Grid& g = c.grids.fgServices;
    ASSERT_EQ(g.Rows(), 4);
    EXPECT_EQ(column(g, 0), QStringList({"Duct Cleaning", "Filter Change", "Full System Install"}));
    EXPECT_EQ(column(g, 1), QStringList({"$249.00", "$25.00", "$1,850.00"}));
    EXPECT_EQ(column(g, 2), QStringList({"4:00", "0:15", "8:00"}));

    EXPECT_EQ(c.invoice.cboDescription[0].items, column(g, 0));
    EXPECT_EQ(c.invoice.cboPrice[0].items, column(g, 1));
    EXPECT_EQ(c.create.lstServices.items, column(g, 0));
    EXPECT_EQ(c.create.cboServicesCost.items, column(g, 1));
    EXPECT_EQ(c.create.cboTime.items, column(g, 2));

    const Grid& add = c.lists.frmWorkOrders.fgAddServices;
    ASSERT_EQ(add.Rows(), 4);
    EXPECT_EQ(column(add, 0), column(g, 0));
    EXPECT_EQ(column(add, 1), column(g, 2));
    EXPECT_EQ(column(add, 2), column(g, 1));
}

TEST(LoadServices, InvoiceDescriptionCarriesTheChargeAsAWholeNumber) {
    Catalogue c;
    c.t.writeBytes("/Services.txt", fileOf<ServiceRecord>({{"A", "$1,850.00", 4},
                                                           {"B", "$12.50", 4},
                                                           {"C", "$13.50", 4},
                                                           {"D", "$0.00", 4},
                                                           {"E", "call us", 4}}));
    ASSERT_TRUE(c.store.LoadServices());
    EXPECT_EQ(c.invoice.cboDescription[0].itemData, QVector<qint32>({1850, 12, 14, 0, 0}));
}

TEST(LoadServices, ReloadingReplacesTheListsInsteadOfAddingToThem) {
    Catalogue c;
    c.t.writeBytes("/Services.txt", fileOf<ServiceRecord>({{"A", "$1.00", 4}, {"B", "$2.00", 4}}));
    ASSERT_TRUE(c.store.LoadServices());
    c.t.writeBytes("/Services.txt", fileOf<ServiceRecord>({{"C", "$3.00", 8}}));
    ASSERT_TRUE(c.store.LoadServices());
    EXPECT_EQ(c.grids.fgServices.Rows(), 2);
    EXPECT_EQ(c.invoice.cboDescription[0].items, QStringList({"C"}));
    EXPECT_EQ(c.create.lstServices.items, QStringList({"C"}));
    EXPECT_EQ(c.create.cboTime.items, QStringList({"2:00"}));
    EXPECT_EQ(c.lists.frmWorkOrders.fgAddServices.Rows(), 2);
}

TEST(LoadServices, AbsentFileChangesNothingAndMakesNoFile) {
    Catalogue c;
    c.create.lstServices.AddItem(QStringLiteral("kept"));
    EXPECT_FALSE(c.store.LoadServices());
    EXPECT_EQ(c.create.lstServices.items, QStringList({"kept"}));
    EXPECT_EQ(c.grids.fgServices.Rows(), 2);
    EXPECT_FALSE(c.t.isFile("/Services.txt"));
}

TEST(LoadServices, ComesBackFromTheBackupCopyWhenTheFileIsAbsent) {
    Catalogue c;
    c.t.writeBytes("/Backup/Services.txt", fileOf<ServiceRecord>({{"Restored", "$5.00", 2}}));
    ASSERT_TRUE(c.store.LoadServices());
    EXPECT_EQ(c.create.lstServices.items, QStringList({"Restored"}));
    EXPECT_TRUE(c.t.isFile("/Services.txt"));
}

TEST(LoadServices, TimeIndexOutsideTheTimeListShowsNoTime) {
    Catalogue c;
    c.t.writeBytes("/Services.txt", fileOf<ServiceRecord>({{"Long", "$1.00", 40}, {"Odd", "$1.00", -3}}));
    ASSERT_TRUE(c.store.LoadServices());
    EXPECT_EQ(column(c.grids.fgServices, 2), QStringList({"", ""}));
}

TEST(LoadInventoriedItems, FillsTheNineColumnsWithAmountsInCurrencyForm) {
    Catalogue c;
    InventoriedItemRecord i = item("Capacitor 45/5", "Parts", 1178400, 1060000, 10);
    i.UnitCost = 589200;
    i.OnHand = -4;
    i.ReorderAmount = 12;
    i.ReorderAt = 3;
    c.t.writeBytes("/OIInventoriedItems.txt", fileOf<InventoriedItemRecord>({i}));
    ASSERT_TRUE(c.store.LoadInventoriedItems());
    const Grid& g = c.grids.fgItems;
    ASSERT_EQ(g.Rows(), 2);
    const QStringList expected = {"Capacitor 45/5", "Parts", "$58.92", "$117.84", "-4",
                                  "$106.00",        "10",    "12",     "3"};
    for (int col = 0; col < 9; ++col)
        EXPECT_EQ(g.TextMatrix(1, col), expected[col]) << col;
}

TEST(LoadInventoriedItems, FillsTheItemListsAndDiscountTablesInRecordOrder) {
    Catalogue c;
    c.t.writeBytes("/OIInventoriedItems.txt",
                   fileOf<InventoriedItemRecord>({item("Igniter", "Parts", 248000, 220000, 5),
                                                  item("Blower Motor", "Parts", 1100000),
                                                  item("Air Filter", "Filters", 95000, 80000, 12)}));
    ASSERT_TRUE(c.store.LoadInventoriedItems());
    EXPECT_EQ(c.invoice.cboDescription[1].items, QStringList({"Igniter", "Blower Motor", "Air Filter"}));
    EXPECT_EQ(c.invoice.cboDescription[1].itemData, QVector<qint32>({0, 1, 2}));
    EXPECT_EQ(c.invoice.cboPrice[1].items, QStringList({"$24.80", "$110.00", "$9.50"}));
    EXPECT_EQ(c.create.cboItems.items, c.invoice.cboDescription[1].items);
    EXPECT_EQ(c.create.cboItemPrices.items, c.invoice.cboPrice[1].items);
    EXPECT_EQ(c.lists.ItemDiscountPrice, QVector<qint64>({0, 220000, 0, 80000}));
    EXPECT_EQ(c.lists.ItemDiscountQuantity, QVector<qint32>({0, 5, 0, 12}));
}

TEST(LoadInventoriedItems, CategoriesAreTheDistinctTrimmedValuesInOrderOfFirstAppearance) {
    Catalogue c;
    c.t.writeBytes(
        "/OIInventoriedItems.txt",
        fileOf<InventoriedItemRecord>({item("a", "Filters", 1), item("b", "  Parts", 1),
                                       item("c", "Filters", 1), item("d", "", 1), item("e", "Parts", 1),
                                       item("f", "parts", 1), item("g", "Hardware", 1)}));
    ASSERT_TRUE(c.store.LoadInventoriedItems());
    const QStringList categories = {"Filters", "Parts", "parts", "Hardware"};
    EXPECT_EQ(c.grids.cboCategory.items, categories);
    EXPECT_EQ(c.invoice.lstCategories.items, QStringList({"All"}) + categories);
    EXPECT_EQ(c.create.lstCategories.items, categories);
    EXPECT_EQ(c.grids.fgItems.TextMatrix(2, 1), QStringLiteral("Parts"));
}

TEST(LoadInventoriedItems, ReloadingRebuildsTheCategoriesWithAllOnlyOnce) {
    Catalogue c;
    c.t.writeBytes("/OIInventoriedItems.txt", fileOf<InventoriedItemRecord>({item("a", "Filters", 1)}));
    ASSERT_TRUE(c.store.LoadInventoriedItems());
    c.t.writeBytes("/OIInventoriedItems.txt",
                   fileOf<InventoriedItemRecord>({item("b", "Parts", 1), item("c", "Hardware", 1)}));
    ASSERT_TRUE(c.store.LoadInventoriedItems());
    EXPECT_EQ(c.grids.cboCategory.items, QStringList({"Parts", "Hardware"}));
    EXPECT_EQ(c.invoice.lstCategories.items, QStringList({"All", "Parts", "Hardware"}));
    EXPECT_EQ(c.create.lstCategories.items, QStringList({"Parts", "Hardware"}));
    EXPECT_EQ(c.create.cboItems.items, QStringList({"b", "c"}));
    EXPECT_EQ(c.lists.ItemDiscountQuantity.size(), 3);
}

TEST(LoadCustomItems, AppendsAfterTheInventoriedItemsOnTheAppointmentScreen) {
    Catalogue c;
    c.t.writeBytes("/OIInventoriedItems.txt",
                   fileOf<InventoriedItemRecord>({item("Igniter", "Parts", 248000)}));
    c.t.writeBytes("/CustomItems.txt", fileOf<CustomItemRecord>({{"Return Air Box", 950000, 850000, 2},
                                                                 {"Fabricated Plenum", 3100000, 0, 0}}));
    c.store.LoadCatalogue();
    EXPECT_EQ(c.create.cboItems.items, QStringList({"Igniter", "Return Air Box", "Fabricated Plenum"}));
    EXPECT_EQ(c.create.cboItemPrices.items, QStringList({"$24.80", "$95.00", "$310.00"}));
}

TEST(LoadCustomItems, FillsTheGridAndTheInvoiceListsWithASortedDescriptionList) {
    Catalogue c;
    c.t.writeBytes("/CustomItems.txt", fileOf<CustomItemRecord>({{"Return Air Box", 950000, 850000, 2},
                                                                 {"Fabricated Plenum", 3100000, 0, 0},
                                                                 {"Line Set Cover Kit", 599000, 0, 0}}));
    ASSERT_TRUE(c.store.LoadCustomItems());
    const Grid& g = c.grids.fgCustom;
    ASSERT_EQ(g.Rows(), 4);
    EXPECT_EQ(g.TextMatrix(1, 0), QStringLiteral("Return Air Box"));
    EXPECT_EQ(g.TextMatrix(1, 1), QStringLiteral("$95.00"));
    EXPECT_EQ(g.TextMatrix(1, 2), QStringLiteral("$85.00"));
    EXPECT_EQ(g.TextMatrix(1, 3), QStringLiteral("2"));

    EXPECT_EQ(c.invoice.cboPrice[2].items, QStringList({"$95.00", "$310.00", "$59.90"}));
    EXPECT_EQ(c.invoice.cboDescription[2].items,
              QStringList({"Fabricated Plenum", "Line Set Cover Kit", "Return Air Box"}));
    // Each description leads to its own price.
    EXPECT_EQ(c.invoice.cboDescription[2].itemData, QVector<qint32>({1, 2, 0}));
    EXPECT_EQ(c.lists.CustomDiscountPrice, QVector<qint64>({0, 850000, 0, 0}));
    EXPECT_EQ(c.lists.CustomDiscountQuantity, QVector<qint32>({0, 2, 0, 0}));
}

TEST(LoadCustomItems, ReloadingThemAloneDoesNotListThemTwice) {
    Catalogue c;
    c.t.writeBytes("/OIInventoriedItems.txt",
                   fileOf<InventoriedItemRecord>({item("Igniter", "Parts", 248000)}));
    c.t.writeBytes("/CustomItems.txt", fileOf<CustomItemRecord>({{"Return Air Box", 950000, 0, 0}}));
    c.store.LoadCatalogue();
    c.t.writeBytes("/CustomItems.txt", fileOf<CustomItemRecord>({{"Plenum", 100000, 0, 0}}));
    ASSERT_TRUE(c.store.LoadCustomItems());
    EXPECT_EQ(c.create.cboItems.items, QStringList({"Igniter", "Plenum"}));
    EXPECT_EQ(c.create.cboItemPrices.items, QStringList({"$24.80", "$10.00"}));
    EXPECT_EQ(c.invoice.cboDescription[2].items, QStringList({"Plenum"}));
}

TEST(CatalogueLimit, AFileOf255RecordsLoads) {
    Catalogue c;
    QVector<ServiceRecord> services;
    for (int i = 0; i < 255; ++i)
        services.append({QStringLiteral("S%1").arg(i), "$1.00", 4});
    c.t.writeBytes("/Services.txt", fileOf(services));
    ASSERT_TRUE(c.store.LoadServices());
    EXPECT_EQ(c.create.lstServices.ListCount(), 255);
    EXPECT_EQ(c.grids.fgServices.Rows(), 256);
}

TEST(CatalogueLimit, AFileOf256RecordsIsRefusedByNameAndNothingChanges) {
    Catalogue c;
    QVector<InventoriedItemRecord> items;
    for (int i = 0; i < 256; ++i)
        items.append(item(QStringLiteral("I%1").arg(i), "Parts", 10000));
    const QByteArray bytes = fileOf(items);
    c.t.writeBytes("/OIInventoriedItems.txt", bytes);
    c.create.cboItems.AddItem(QStringLiteral("kept"));
    try {
        c.store.LoadInventoriedItems();
        FAIL() << "a file of 256 records loaded";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.file(), QStringLiteral("/OIInventoriedItems.txt"));
        EXPECT_TRUE(e.problem().contains(QStringLiteral("256"))) << e.problem().toStdString();
        EXPECT_TRUE(e.problem().contains(QStringLiteral("255"))) << e.problem().toStdString();
    }
    EXPECT_EQ(c.create.cboItems.items, QStringList({"kept"}));
    EXPECT_EQ(c.invoice.lstCategories.items, QStringList({"All"}));
    EXPECT_EQ(c.grids.fgItems.Rows(), 2);
    EXPECT_EQ(c.t.readBytes("/OIInventoriedItems.txt"), bytes);
    EXPECT_EQ(c.t.disk().OpenChannelCount(), 0);
}

TEST(AddCategory, AddsANewCategoryTrimmedToAllThreeLists) {
    Catalogue c;
    c.store.AddCategory(QStringLiteral("  Filters "));
    EXPECT_EQ(c.grids.cboCategory.items, QStringList({"Filters"}));
    EXPECT_EQ(c.invoice.lstCategories.items, QStringList({"All", "Filters"}));
    EXPECT_EQ(c.create.lstCategories.items, QStringList({"Filters"}));
}

TEST(AddCategory, IgnoresAnEmptyNameAndOneAlreadyListed) {
    Catalogue c;
    c.store.AddCategory(QStringLiteral("Parts"));
    c.store.AddCategory(QString());
    c.store.AddCategory(QStringLiteral("Parts"));
    EXPECT_EQ(c.grids.cboCategory.items, QStringList({"Parts"}));
    EXPECT_EQ(c.invoice.lstCategories.items, QStringList({"All", "Parts"}));
}

TEST(AddCategory, ComparesTheNameAsGivenSoCaseAndBlanksMakeANewEntry) {
    Catalogue c;
    c.store.AddCategory(QStringLiteral("Parts"));
    c.store.AddCategory(QStringLiteral("parts"));
    c.store.AddCategory(QStringLiteral("Parts "));
    EXPECT_EQ(c.grids.cboCategory.items, QStringList({"Parts", "parts", "Parts"}));
}
