#include "GridReport.h"

#include "LetterheadRoutines.h"
#include "PrinterRoutines.h"
#include "controls/Controls.h"
#include "platform/Clock.h"
#include "setup/SetupSettings.h"
#include "store/LocaleText.h"

namespace ostrel {

namespace {

// Where the amounts end, and the line the user writes a comment or action on.
constexpr double kAmountRightEdge = 10800;
const QString kCommentLine = QStringLiteral("_________________________________");

// Dates print in the short form of the United States.
QString shortDate(const QDate& date) {
    return ShortDateText(date);
}

void printHeading(PrinterRoutines& printer, const QString& title) {
    PageSurface& p = printer.Printer();
    printer.SetFont(14, true, false);
    p.CurrentX = (p.ScaleWidth() - p.TextWidth(title)) / 2;
    p.Print(title);
    printer.SetFont(10, false, false);

    PrintLetterhead(printer, 0.75, 0.4, 12);

    printer.SetPosition(7.0, 0.5);
    p.Print(shortDate(printer.clock().today()));

    printer.SetFont(0, true, false);
    printer.SetPosition(1.0, 1.75);
    p.PrintContinue(QStringLiteral("Invoice No."));
    printer.SetPosition(2.5, 0);
    p.PrintContinue(QStringLiteral("Invoice Date"));
    printer.SetPosition(3.5, 0);
    p.PrintContinue(QStringLiteral("Account Name"));
    p.CurrentX = kAmountRightEdge - p.TextWidth(QStringLiteral("Amount"));
    p.PrintContinue(QStringLiteral("Amount"));
    printer.SetPosition(8.0, 0);
    p.Print(QStringLiteral("Comment/Action"));
    printer.SetFont(0, false, false);
}

void printRow(PrinterRoutines& printer, const Grid& grid, int row) {
    PageSurface& p = printer.Printer();
    printer.SetPosition(1.0, 0);
    p.PrintContinue(grid.TextMatrix(row, 1));
    printer.SetPosition(2.5, 0);
    p.PrintContinue(grid.TextMatrix(row, 3));
    printer.SetPosition(3.5, 0);
    p.PrintContinue(grid.TextMatrix(row, 2));
    const QString amount = grid.TextMatrix(row, 4);
    p.CurrentX = kAmountRightEdge - p.TextWidth(amount);
    p.PrintContinue(amount);
    printer.SetPosition(8.0, 0);
    p.Print(kCommentLine);
}

} // namespace

PrintResult PrintGridReport(PrinterRoutines& printer, const QString& title, const Grid& grid,
                            [[maybe_unused]] int mode) {
    try {
        printer.ShowPrinterDialog();
        printer.InitPrinter(QStringLiteral("Landscape"), printer.settings().colors.ckColor);
        PageSurface& p = printer.Printer();
        printHeading(printer, title);
        printer.SetPosition(1.0, 2.0);
        for (int row = 1; row < grid.Rows(); ++row) {
            if (p.TextHeight(grid.TextMatrix(row, 1)) + p.CurrentY >= p.ScaleHeight()) {
                p.NewPage();
                printHeading(printer, title);
                printer.SetPosition(1.0, 2.0);
            }
            printRow(printer, grid, row);
        }
        p.EndDoc();
        return PrintResult::Printed;
    } catch (const PrintError& e) {
        return ReportPrintFailure(printer.dialogs(), e.number(), true);
    } catch (const std::exception&) {
        return ReportPrintFailure(printer.dialogs(), PrintError::kPrinterError, true);
    }
}

} // namespace ostrel
