#pragma once

#include "ShipToBlock.h"

#include <QDate>
#include <QString>
#include <QVector>

#include <array>
#include <optional>

namespace ostrel {

class PrinterRoutines;

// Everything one printed invoice shows, as text. The invoice screen fills it from its controls for
// a first print; a reprint fills it from the stored image. Nothing else is read but the settings
// of the printer layer (letterhead, logo, colours) and three optional files: the narrative of the
// invoice number, /InvoiceMemo.txt and /StatementTerms.txt.
struct InvoicePageContents {
    using Line = std::array<QString, 6>; // quantity, description, service date, price, total, taxed

    QString invoiceNo;
    QString account;
    QString date; // as printed after "Date "
    QString reference;
    // Bill-to: name, street, second line, city, state, postal code.
    std::array<QString, 6> billTo;
    bool usaStyle = true;       // the address style of the account screen
    bool remittance = false;    // perforated paper with a slip to return
    bool draft = false;         // "DRAFT INVOICE", no totals
    QVector<Line> lines;        // the body, in order
    // Totals as they stand in their boxes; each is printed in the money form. `extra` and
    // `handling` are left out when empty.
    QString subTotal, tax, tax2, total, extra, handling;
    QString taxHeading1, taxHeading2;
    // A reprint adds where the goods went beside the bill-to address and leaves out the detach
    // text; a first print has no ship-to block.
    std::optional<ShipToBlock> shipTo;
    QDate today; // decides how the ship-to block words a shipping date
};

// The layout's fixed marks, in twips.
namespace invoicepage {
constexpr double kScaleWidth = 12240;
constexpr double kPageBottom = 11880; // the lowest top of a body line
constexpr double kMemoBottom = 13824; // the memo stops below this
constexpr double kQuantityRight = 1224;
constexpr double kDateCentre = 2520;
constexpr double kPriceRight = 9360;
constexpr double kTotalRight = 11520;
constexpr double kDescriptionWidth = 4248;
constexpr double kReferenceCentre = 1872;
inline const QString kNarrativeFolder = QStringLiteral("/OstrelInvoicer/Narratives/");
inline const QString kMemoFile = QStringLiteral("/InvoiceMemo.txt");
inline const QString kTermsFile = QStringLiteral("/StatementTerms.txt");
inline const QString kDetachText = QStringLiteral("Detach Here and Return Top Section");
inline const QString kAmountEnclosed = QStringLiteral("Amount Enclosed              _______________");
} // namespace invoicepage

// Draws the invoice on the chosen printer, over as many pages as the body needs, and ends the job.
// The printer has been set up (InitPrinter) by the print loop.
void PrintInvoicePage(PrinterRoutines& printer, const InvoicePageContents& invoice);

// The shop's standing note from /InvoiceMemo.txt, in blue from 1.3 in across and 8.6 in down, one
// wrapped string after the other. A memo too long for the page stops below 13824 twips and leaves
// the blue on; one that ends puts black back.
void PrintInvoiceMemo(PrinterRoutines& printer);

} // namespace ostrel
