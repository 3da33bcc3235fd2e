#pragma once

#include "controls/Controls.h"

namespace ostrel {

// The controls of frmServices that the catalogue routines fill and read. The three grids are the
// working copies of the catalogue files: the loads fill them, SaveCatalogue writes the files from
// them. Row 0 of each grid is its heading row.
struct CatalogueGrids {
    Grid fgServices; // 0 description, 1 charge, 2 time text
    Grid fgItems;    // 0 description, 1 category, 2 cost, 3 sell price, 4 on hand, 5 discount price,
                     // 6 discount quantity, 7 reorder amount, 8 reorder at
    Grid fgCustom;   // 0 description, 1 price, 2 discount price, 3 discount quantity
    ComboBox cboCategory;
    ListBox lstTime;                    // the 33 allotted times
    ControlArray<TextBox> txtLabor;     // headings 0 to 2
    ControlArray<TextBox> txtLaborRate; // hourly rates 0 to 2, as shown
    ControlArray<CommandButton> cmdServices;

    static constexpr int kReloadLabor = 16; // "Reload from File"

    CatalogueGrids();
};

} // namespace ostrel
