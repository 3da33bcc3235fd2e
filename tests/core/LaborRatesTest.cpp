#include "TestDataRoot.h"
#include "catalogue/CatalogueStore.h"
#include "store/StoreError.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {
struct Labor {
    TestDataRoot t;
    CatalogueGrids grids;
    CatalogueLists lists;
    CatalogueStore store{t.disk(), grids, lists};
    QStringList headings() const {
        return {grids.txtLabor[0].text, grids.txtLabor[1].text, grids.txtLabor[2].text};
    }
    QStringList rates() const {
        return {grids.txtLaborRate[0].text, grids.txtLaborRate[1].text, grids.txtLaborRate[2].text};
    }
};
const QByteArray kLabor = "\"General Labor\",\"$85.00\"\r\n\"Apprentice\",\"$45.00\"\r\n\"\",\"\"\r\n";
} // namespace

TEST(LoadLabor, WithoutTheFileGeneralLaborIsInBoxZeroAndReloadFromFileIsHidden) {
    Labor l;
    l.store.LoadLabor();
    EXPECT_EQ(l.headings(), QStringList({"General Labor", "", ""}));
    EXPECT_EQ(l.rates(), QStringList({"$0.00", "$0.00", "$0.00"}));
    EXPECT_EQ(l.grids.cmdServices[16].caption, QStringLiteral("Reload from File"));
    EXPECT_FALSE(l.grids.cmdServices[16].visible);
    EXPECT_FALSE(l.t.isFile("/Labor.txt"));
}

TEST(LoadLabor, ReadsThreeRowsOfHeadingAndRateAndShowsReloadFromFile) {
    Labor l;
    l.t.writeBytes("/Labor.txt", kLabor);
    l.grids.cmdServices[16].visible = false;
    l.store.LoadLabor();
    EXPECT_EQ(l.headings(), QStringList({"General Labor", "Apprentice", ""}));
    EXPECT_EQ(l.rates(), QStringList({"$85.00", "$45.00", ""}));
    EXPECT_TRUE(l.grids.cmdServices[16].visible);
}

TEST(LoadLabor, AFileCutShortIsRefusedAndTheBoxesKeepTheirText) {
    Labor l;
    l.t.writeBytes("/Labor.txt", "\"General Labor\",\"$85.00\"\r\n\"Apprentice\"\r\n");
    l.grids.txtLabor[0].text = QStringLiteral("before");
    try {
        l.store.LoadLabor();
        FAIL() << "a short labor file loaded";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.file(), QStringLiteral("/Labor.txt"));
    }
    EXPECT_EQ(l.grids.txtLabor[0].text, QStringLiteral("before"));
    EXPECT_EQ(l.t.readBytes("/Labor.txt"), QByteArray("\"General Labor\",\"$85.00\"\r\n\"Apprentice\"\r\n"));
}

TEST(SaveLabor, WritesThreeQuotedLinesFromTheBoxes) {
    Labor l;
    l.grids.txtLabor[0].text = QStringLiteral("General Labor");
    l.grids.txtLaborRate[0].text = QStringLiteral("$85.00");
    l.grids.txtLabor[1].text = QStringLiteral("Apprentice");
    l.grids.txtLaborRate[1].text = QStringLiteral("$45.00");
    l.store.SaveLabor();
    EXPECT_EQ(l.t.readBytes("/Labor.txt"), kLabor);
}

TEST(SaveLabor, ReplacesTheFileAndDropsItsBackupCopy) {
    Labor l;
    l.t.writeBytes("/Labor.txt", "\"Old\",\"$1.00\"\r\n\"\",\"\"\r\n\"\",\"\"\r\n");
    l.t.writeBytes("/Backup/Labor.txt", "\"Old\",\"$1.00\"\r\n\"\",\"\"\r\n\"\",\"\"\r\n");
    l.store.LoadLabor();
    l.grids.txtLaborRate[0].text = QStringLiteral("$2.00");
    l.store.SaveLabor();
    EXPECT_EQ(l.t.readBytes("/Labor.txt"), QByteArray("\"Old\",\"$2.00\"\r\n\"\",\"\"\r\n\"\",\"\"\r\n"));
    EXPECT_FALSE(l.t.isFile("/Backup/Labor.txt"));
}

TEST(SaveLabor, TheDefaultsSavedReadBackAsTheyWere) {
    Labor l;
    l.store.LoadLabor();
    l.store.SaveLabor();
    EXPECT_EQ(l.t.readBytes("/Labor.txt"),
              QByteArray("\"General Labor\",\"$0.00\"\r\n\"\",\"$0.00\"\r\n\"\",\"$0.00\"\r\n"));
    Labor again;
    again.t.writeBytes("/Labor.txt", l.t.readBytes("/Labor.txt"));
    again.store.LoadLabor();
    EXPECT_EQ(again.headings(), l.headings());
    EXPECT_EQ(again.rates(), l.rates());
}
