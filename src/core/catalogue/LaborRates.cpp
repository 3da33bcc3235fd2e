#include "LaborRates.h"

#include "store/CurrencyText.h"

#include <array>

namespace ostrel {

const QString kLaborFileName = QStringLiteral("/Labor.txt");

void LoadLabor(DiskRoutines& disk, CatalogueGrids& grids) {
    CommandButton& reload = grids.cmdServices[CatalogueGrids::kReloadLabor];
    if (!disk.FileExists(kLaborFileName)) {
        for (int i = 0; i <= 2; ++i) {
            grids.txtLabor[i].text = i == 0 ? QStringLiteral("General Labor") : QString();
            grids.txtLaborRate[i].text = currencytext::format(0);
        }
        reload.visible = false;
        return;
    }
    TextReader in = disk.ReadTextFile(kLaborFileName);
    // Read all six fields before touching a box, so that a short file changes nothing.
    std::array<QString, 6> fields;
    for (QString& f : fields)
        f = in.readString();
    for (int i = 0; i <= 2; ++i) {
        grids.txtLabor[i].text = fields[2 * i];
        grids.txtLaborRate[i].text = fields[2 * i + 1];
    }
    reload.visible = true;
}

void SaveLabor(DiskRoutines& disk, const CatalogueGrids& grids) {
    TextWriter out;
    for (int i = 0; i <= 2; ++i)
        out.write({grids.txtLabor[i].text, grids.txtLaborRate[i].text});
    disk.ReplaceTextFile(kLaborFileName, out);
}

} // namespace ostrel
