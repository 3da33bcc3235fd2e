#pragma once

#include "CatalogueGrids.h"
#include "store/DiskRoutines.h"

namespace ostrel {

// /Labor.txt: three lines of heading and hourly rate, both as shown, in the order of the boxes.
extern const QString kLaborFileName;

// Fills txtLabor/txtLaborRate 0 to 2 from the file and shows "Reload from File"; without the file,
// "General Labor" and zero rates, and the button hidden. A file cut short is refused with a
// StoreError and the boxes keep what they held.
void LoadLabor(DiskRoutines& disk, CatalogueGrids& grids);
// Rewrites the file whole from the boxes; its backup copy goes with the old file.
void SaveLabor(DiskRoutines& disk, const CatalogueGrids& grids);

} // namespace ostrel
