#pragma once

#include <QDate>
#include <QString>

#include <array>

namespace ostrel {

class PrinterRoutines;

// What a reprint adds beside the bill-to address: where the goods went and, for images that name a
// carrier, the reference, the carrier and the shipping date on one line above the body.
struct ShipToBlock {
    std::array<QString, 6> shipTo; // name, street, second line, city, state, postal code
    QString shipVia;               // "None" in every image this program writes
    QString shipDate;              // short date text
    QString reference;
};

// Prints nothing when the first five lines are all empty. The carrier line sits lower when the
// invoice has a narrative. `today` decides between a scheduled and a past shipment.
void PrintShipToBlock(PrinterRoutines& printer, const ShipToBlock& block, QDate today, bool usaStyle,
                      bool narrativeLayout);

} // namespace ostrel
