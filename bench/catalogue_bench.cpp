// Loads and saves a catalogue at its largest: 255 records in each of the three files, every list
// filled. Prints the median of each step; the three loads together should stay under 30 ms.
#include "BenchUtil.h"
#include "catalogue/CatalogueStore.h"
#include "catalogue/CustomItemRecord.h"
#include "catalogue/InventoriedItemRecord.h"
#include "catalogue/ServiceRecord.h"
#include "catalogue/ServiceTimes.h"
#include "store/DataRoot.h"
#include "store/DiskRoutines.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <functional>

using namespace ostrel;

namespace {

constexpr int kRecords = 255;
constexpr int kRuns = 31;

template <typename R> void writeFile(const QString& path, const std::function<R(int)>& make) {
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) qFatal("cannot write %s", qPrintable(path));
    for (int i = 0; i < kRecords; ++i)
        f.write(make(i).toRecord().bytes());
}

void generate(const QString& root) {
    writeFile<ServiceRecord>(root + "/Services.txt", [](int i) {
        return ServiceRecord{QStringLiteral("Service number %1 with a longer name").arg(i),
                             QStringLiteral("$%1.00").arg(20 + i), static_cast<qint16>(i % kTimeListCount)};
    });
    writeFile<InventoriedItemRecord>(root + "/OIInventoriedItems.txt", [](int i) {
        InventoriedItemRecord r;
        r.Description = QStringLiteral("Inventoried item %1").arg(i);
        r.Category = QStringLiteral("Category %1").arg(i % 17);
        r.UnitCost = 10000LL * (i + 1);
        r.SellPrice = 15000LL * (i + 1);
        r.OnHand = static_cast<qint16>(i);
        r.DiscountPrice = 12000LL * (i + 1);
        r.DiscountQuantity = i % 3 == 0 ? 0 : 10;
        r.ReorderAmount = 12;
        r.ReorderAt = 2;
        return r;
    });
    writeFile<CustomItemRecord>(root + "/CustomItems.txt", [](int i) {
        // Descriptions out of order, so the sorted invoice list does real work.
        return CustomItemRecord{QStringLiteral("Custom %1").arg((i * 7919) % 1000), 25000LL * (i + 1),
                                20000LL * (i + 1), i % 2 == 0 ? 0 : 4};
    });
    QFile labor(root + "/Labor.txt");
    if (!labor.open(QIODevice::WriteOnly)) qFatal("cannot write Labor.txt");
    labor.write("\"General Labor\",\"$85.00\"\r\n\"Apprentice\",\"$45.00\"\r\n\"\",\"\"\r\n");
}

} // namespace

int main() {
    QTemporaryDir dir;
    if (!dir.isValid()) qFatal("no temporary folder");
    generate(dir.path());

    DataRoot root(dir.path());
    DiskRoutines disk(root);
    CatalogueGrids grids;
    CatalogueLists lists;
    CatalogueStore store(disk, grids, lists);

    const double loads = bench::medianMs(kRuns, [&] { store.LoadCatalogue(); });
    const double labor = bench::medianMs(kRuns, [&] { store.LoadLabor(); });
    // The save rewrites the three files and reloads them.
    const double saves = bench::medianMs(kRuns, [&] {
        store.SaveCatalogue();
        store.SaveLabor();
    });
    if (lists.frmCreate.cboItems.ListCount() != 2 * kRecords ||
        lists.frmCreate.lstServices.ListCount() != kRecords ||
        lists.frmInvoice.cboDescription[2].ListCount() != kRecords)
        qFatal("the lists were not filled");

    std::printf("catalogue_bench: %d records in each file, median of %d runs\n", kRecords, kRuns);
    bench::report("three loads: services, items, custom (target < 30 ms)", loads);
    bench::report("LoadLabor", labor);
    bench::report("SaveCatalogue (with its reloads) + SaveLabor", saves);
    return 0;
}
