#pragma once

#include <QString>

namespace ostrel {

class PrinterRoutines;

// The pieces that the invoice, the work order and the reports share at the head of a page.

// The business's lines from BusinessData, each starting at x (inches), from y (inches) down: the
// name at `size` and bold (at 10 when longer than 25 characters), the address in the address style
// of the Setup screen, the telephone, the free line, the tax number and, when "/MyWebSite.txt"
// exists, its address.
void PrintLetterhead(PrinterRoutines& printer, double x, double y, double size);

// The document's title at x 5.0 in, wrapped in 2880 twips, bold, in the highlight colour, which
// stays; the font is left at size 10, bold.
void PrintTitle(PrinterRoutines& printer, const QString& text, double y, double size);

// The company logo at y (twips), at the width and height of the stored logo size. Its left edge is
// the one that centres the picture at its own size. No logo loaded draws nothing.
void PrintLogo(PrinterRoutines& printer, double y);

// A customer's address at x 1.0 in from y (inches), black: the name, the second line, the third
// when not empty; then in USA style one line "city, state zip", otherwise the city and the postal
// code on two lines with no state.
void PrintAddressBlock(PrinterRoutines& printer, const QString& name, const QString& line2,
                       const QString& line3, const QString& city, const QString& state, const QString& zip,
                       double y, bool usaStyle);

} // namespace ostrel
