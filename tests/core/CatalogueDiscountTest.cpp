#include "TestDataRoot.h"
#include "catalogue/CatalogueStore.h"
#include "store/CurrencyText.h"
#include "catalogue/CustomItemRecord.h"
#include "catalogue/InventoriedItemRecord.h"
#include "catalogue/VolumePrice.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {

InventoriedItemRecord item(const char* description, qint64 sell, qint64 discountPrice,
                           qint32 discountQuantity) {
    InventoriedItemRecord i;
    i.Description = description;
    i.Category = "Parts";
    i.SellPrice = sell;
    i.DiscountPrice = discountPrice;
    i.DiscountQuantity = discountQuantity;
    return i;
}

struct LoadedItems {
    TestDataRoot t;
    CatalogueGrids grids;
    CatalogueLists lists;
    CatalogueStore store{t.disk(), grids, lists};
    LoadedItems() {
        t.writeBytes("/OIInventoriedItems.txt", item("No Volume Price", 100000, 50000, 0).toRecord().bytes() +
                                                    item("Bulk Filter", 100000, 80000, 5).toRecord().bytes());
        t.writeBytes("/CustomItems.txt", CustomItemRecord{"Plenum", 3000000, 2500000, 0}.toRecord().bytes() +
                                             CustomItemRecord{"Box", 900000, 700000, 3}.toRecord().bytes());
        store.LoadCatalogue();
    }
    qint64 itemPrice(int listIndex, double units) const {
        const qint64 price = *currencytext::parseCurrency(lists.frmInvoice.cboPrice[1].List(listIndex));
        return VolumePrice(lists.ItemDiscountPrice, lists.ItemDiscountQuantity, listIndex, units, price);
    }
};

} // namespace

TEST(VolumePricing, AnItemWithDiscountQuantityZeroNeverGetsTheDiscountPrice) {
    LoadedItems c;
    for (double units : {0.0, 1.0, 5.0, 1000.0, 1e9})
        EXPECT_EQ(c.itemPrice(0, units), 100000) << units;
}

TEST(VolumePricing, TheDiscountPriceAppliesFromTheDiscountQuantityUp) {
    LoadedItems c;
    EXPECT_EQ(c.itemPrice(1, 4.0), 100000);
    EXPECT_EQ(c.itemPrice(1, 4.5), 100000);
    EXPECT_EQ(c.itemPrice(1, 5.0), 80000);
    EXPECT_EQ(c.itemPrice(1, 60.0), 80000);
}

TEST(VolumePricing, APriceTypedByHandGetsNoDiscount) {
    LoadedItems c;
    EXPECT_EQ(VolumePrice(c.lists.ItemDiscountPrice, c.lists.ItemDiscountQuantity, -1, 100.0, 123400),
              123400);
}

TEST(VolumePricing, CustomItemsUseTheirOwnTables) {
    LoadedItems c;
    const auto& p = c.lists.CustomDiscountPrice;
    const auto& q = c.lists.CustomDiscountQuantity;
    EXPECT_EQ(VolumePrice(p, q, 0, 50.0, 3000000), 3000000);
    EXPECT_EQ(VolumePrice(p, q, 1, 2.0, 900000), 900000);
    EXPECT_EQ(VolumePrice(p, q, 1, 3.0, 900000), 700000);
}
