#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "catalogue/CatalogueStore.h"
#include "catalogue/InventoriedItemRecord.h"
#include "catalogue/ServiceRecord.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {
constexpr int kCreateAppointment = 5;
constexpr int kCatalogue = 6;
} // namespace

TEST(CatalogueMenu, AfterTheLastServiceIsDeletedTheFileIsGoneAndTheMenuOffersTheCatalogueAgain) {
    TestDataRoot t;
    t.writeBytes("/Services.txt", ServiceRecord{"Diagnostic Check", "$65.00", 4}.toRecord().bytes());
    t.writeBytes("/Backup/Services.txt", ServiceRecord{"Diagnostic Check", "$65.00", 4}.toRecord().bytes());
    InventoriedItemRecord igniter;
    igniter.Description = "Igniter";
    igniter.Category = "Parts";
    t.writeBytes("/OIInventoriedItems.txt", igniter.toRecord().bytes());

    test::FakePlatform fake(t.path());
    Session session(t.path(), fake);
    CatalogueGrids grids;
    CatalogueLists lists;
    CatalogueStore store(session.disk, grids, lists);
    store.LoadCatalogue();

    session.startup().Form_Activate();
    ASSERT_TRUE(session.startup().optMainMenuSub[kCreateAppointment].value);
    EXPECT_TRUE(store.ServicesAndItemsExist());

    // The last service's row removed: only the heading row is left.
    grids.fgServices.SetRows(1);
    store.SaveCatalogue();

    EXPECT_FALSE(t.isFile("/Services.txt"));
    EXPECT_FALSE(t.isFile("/Backup/Services.txt"));
    EXPECT_TRUE(t.isFile("/OIInventoriedItems.txt"));
    EXPECT_FALSE(store.ServicesAndItemsExist());
    session.startup().Form_Activate();
    EXPECT_TRUE(session.startup().optMainMenuSub[kCatalogue].value);
    EXPECT_FALSE(session.startup().optMainMenuSub[kCreateAppointment].value);
}

TEST(CatalogueMenu, ALastServiceBlankedInItsRowAlsoLeavesNoFile) {
    TestDataRoot t;
    t.writeBytes("/Services.txt", ServiceRecord{"Diagnostic Check", "$65.00", 4}.toRecord().bytes());
    CatalogueGrids grids;
    CatalogueLists lists;
    CatalogueStore store(t.disk(), grids, lists);
    store.LoadCatalogue();
    for (int col = 0; col < 3; ++col)
        grids.fgServices.SetTextMatrix(1, col, QString());
    store.SaveCatalogue();
    EXPECT_FALSE(t.isFile("/Services.txt"));
    EXPECT_EQ(grids.fgServices.Rows(), 2);
}
