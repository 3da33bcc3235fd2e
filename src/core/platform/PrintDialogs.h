#pragma once

#include "PageSurface.h"

namespace ostrel {

// The system's print dialog. The choice made there becomes the printer that the next job draws on.
class PrintDialogs {
public:
    virtual ~PrintDialogs() = default;

    // Shows the dialog: no page numbers, collate offered. Returns the printer chosen, ready for a
    // new job; it stays valid until the next call. Cancel throws PrintError with kCancelled, a
    // printer that cannot be used throws PrintError with another number.
    virtual PageSurface& ShowPrinterDialog() = 0;
};

} // namespace ostrel
