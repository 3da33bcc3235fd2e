#pragma once

#include "PrintFailure.h"

#include <QString>

namespace ostrel {

class PrinterRoutines;
struct Grid;

// Lists the rows of an invoice grid in landscape, without a confirmation question: a heading on
// every page (title, letterhead, today's date, the column heads) and one line per row below it.
// The row prints columns 1, 3, 2 and 4 under heads that name the invoice number first, so with the
// grid whose column 1 is the account that is what stands under "Invoice No.". `mode` is not used.
PrintResult PrintGridReport(PrinterRoutines& printer, const QString& title, const Grid& grid, int mode = 0);

} // namespace ostrel
