#include "TestDataRoot.h"
#include "catalogue/CatalogueStore.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {

QByteArray legacyBytes(const QString& name) {
    QFile f(ostrel::test::legacyFixture() + name);
    if (!f.open(QIODevice::ReadOnly)) ADD_FAILURE() << "cannot read the legacy " << name.toStdString();
    return f.readAll();
}

const QStringList kFiles = {"/Services.txt", "/OIInventoriedItems.txt", "/CustomItems.txt", "/Labor.txt"};

struct LegacyCatalogue {
    TestDataRoot t;
    CatalogueGrids grids;
    CatalogueLists lists;
    CatalogueStore store{t.disk(), grids, lists};
    // Copies, written fresh: the fixture itself is read-only.
    void copyIn() {
        for (const QString& f : kFiles)
            t.writeBytes(f, legacyBytes(f));
    }
};

} // namespace

TEST(LegacyCatalogue, LoadsServicesItemsAndCustomItemsAtTheirOffsets) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    LegacyCatalogue c;
    c.copyIn();
    c.store.LoadLabor();
    c.store.LoadCatalogue();

    const Grid& s = c.grids.fgServices;
    ASSERT_EQ(s.Rows(), 13);
    EXPECT_EQ(s.TextMatrix(1, 0), QStringLiteral("Diagnostic Check"));
    EXPECT_EQ(s.TextMatrix(1, 1), QStringLiteral("$65.00"));
    EXPECT_EQ(s.TextMatrix(1, 2), QStringLiteral("1:00"));
    EXPECT_EQ(s.TextMatrix(9, 0), QStringLiteral("Full System Install"));
    EXPECT_EQ(s.TextMatrix(9, 1), QStringLiteral("$1,850.00"));
    EXPECT_EQ(s.TextMatrix(9, 2), QStringLiteral("8:00"));
    EXPECT_EQ(c.lists.frmInvoice.cboDescription[0].ItemData(8), 1850);

    const Grid& i = c.grids.fgItems;
    ASSERT_EQ(i.Rows(), 22);
    const QStringList washable = {
        "Washable Filter 16x20", "Filters", "$164.63", "$329.26", "3", "$296.33", "5", "5", "5"};
    for (int col = 0; col < 9; ++col)
        EXPECT_EQ(i.TextMatrix(4, col), washable[col]) << col;
    EXPECT_EQ(c.grids.cboCategory.items,
              QStringList({"Filters", "Thermostats", "Parts", "Refrigerant", "Hardware"}));

    const Grid& cu = c.grids.fgCustom;
    ASSERT_EQ(cu.Rows(), 5);
    const QStringList transition = {"Custom Duct Transition", "$145.00", "$120.00", "3"};
    for (int col = 0; col < 4; ++col)
        EXPECT_EQ(cu.TextMatrix(1, col), transition[col]) << col;
    EXPECT_EQ(c.lists.frmCreate.cboItems.ListCount(), 21 + 4);

    EXPECT_EQ(c.grids.txtLabor[0].text, QStringLiteral("General Labor"));
    EXPECT_EQ(c.grids.txtLaborRate[1].text, QStringLiteral("$45.00"));
    EXPECT_TRUE(c.grids.cmdServices[16].visible);
}

TEST(LegacyCatalogue, SavingItUnchangedGivesTheSameBytes) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    LegacyCatalogue c;
    c.copyIn();
    c.store.LoadLabor();
    c.store.LoadCatalogue();
    c.store.SaveCatalogue();
    c.store.SaveLabor();
    for (const QString& f : kFiles)
        EXPECT_EQ(c.t.readBytes(f), legacyBytes(f)) << f.toStdString();
}

TEST(LegacyCatalogue, ATimeIndexOfZeroComesBackAsOneAndNothingElseChanges) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    LegacyCatalogue c;
    QByteArray services = legacyBytes("/Services.txt");
    ASSERT_GE(services.size(), 3 * 72);
    services[2 * 72 + 70] = 0; // the third service
    services[2 * 72 + 71] = 0;
    c.t.writeBytes("/Services.txt", services);
    c.store.LoadCatalogue();
    EXPECT_EQ(c.grids.fgServices.TextMatrix(3, 2), QStringLiteral("0:15"));
    c.store.SaveCatalogue();

    QByteArray expected = services;
    expected[2 * 72 + 70] = 1;
    EXPECT_EQ(c.t.readBytes("/Services.txt"), expected);
}
