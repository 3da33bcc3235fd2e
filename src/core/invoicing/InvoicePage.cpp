#include "InvoicePage.h"

#include "platform/PageSurface.h"
#include "printing/LetterheadRoutines.h"
#include "printing/PrinterRoutines.h"
#include "setup/SetupSettings.h"
#include "store/DiskRoutines.h"
#include "store/Money.h"

namespace ostrel {

using namespace invoicepage;

namespace {

constexpr Colour kMemoBlue = 16711680;
constexpr Colour kTotalRed = 255;

// One print job of an invoice: the layout flag and the counters live as long as the drawing.
class InvoicePagePrinter {
public:
    InvoicePagePrinter(PrinterRoutines& printer, const InvoicePageContents& invoice)
        : m_printer(printer), m_p(printer.Printer()), m_invoice(invoice) {}

    void PrintInvoice() {
        InvoiceFrame(m_invoice.draft ? QStringLiteral("DRAFT INVOICE") : QStringLiteral("INVOICE"), 0.4);
        PrintHeaderBlock();
        if (m_invoice.remittance && !m_invoice.shipTo) {
            m_printer.SetFont(6, true, false);
            m_printer.SetPosition(3.0, 3.6);
            m_p.Print(kDetachText);
            m_printer.SetFont(10, false, false);
        }
        PrintBillTo();
        if (m_invoice.shipTo) {
            PrintShipToBlock(m_printer, *m_invoice.shipTo, m_invoice.today, m_invoice.usaStyle, m_narrative);
            m_p.Print(QString());
        }
        PrintBody();
        if (!m_invoice.draft) PrintTotals();
        m_p.EndDoc();
    }

private:
    // The new page's frame, title, logo and letterhead.
    void InvoiceFrame(const QString& title, double y) {
        m_p.SetScaleWidth(kScaleWidth);
        m_narrative = m_printer.disk().FileExists(kNarrativeFolder + m_invoice.invoiceNo + QStringLiteral(".txt"));
        m_printer.SetPrintColor(false);
        DrawRules();
        m_printer.SetPrintColor(true);
        PrintTitle(m_printer, title, 0.5, 20);
        PrintLogo(m_printer, 720);
        PrintLetterhead(m_printer, 0.75, y, 12);
    }

    void DrawRules() {
        m_p.DrawWidth = 6;
        // The frame takes the text colour of the border colour's box, which no setting changes:
        // the ruling stays black whatever the print colours are.
        m_p.ForeColor = 0;
        const double b = m_narrative ? 5 : 4;
        const double t = b * 1440;
        m_p.Line(360, 504, 11880, 5040, true);
        for (double y : {b * 1440, (b + 0.25) * 1440, (b + 0.5) * 1440, (b + 0.75) * 1440, 12240.0, 13680.0, 14400.0})
            m_p.Line(360, y, 11880, y);
        for (double y : {12600.0, 12960.0, 13320.0, 13680.0, 14040.0})
            m_p.Line(7920, y, 11880, y);
        m_p.Line(360, t, 360, 14400);
        m_p.Line(1800, t + 720, 1800, 14400);
        m_p.Line(7920, t, 7920, 14400);
        m_p.Line(10080, t + 720, 10080, 14400);
        m_p.Line(11880, t, 11880, 14400);
        m_p.Line(3240, t, 3240, 12240);
    }

    void PrintHeaderBlock() {
        m_printer.SetPrintColor(true);
        m_printer.SetFont(10, true, false);
        m_printer.SetPosition(5.0, 0.9);
        m_p.Print(QStringLiteral("Date ") + m_invoice.date);
        printAt5(QStringLiteral("INVOICE NO: ") + m_invoice.invoiceNo);
        if (m_invoice.remittance) printAt5(kAmountEnclosed);
        printAt5(QStringLiteral("Acct: ") + m_invoice.account);
        printAt5(QStringLiteral("Page ") + QString::number(m_p.Page()));

        m_printer.SetPosition(0.9, m_narrative ? 5.05 : 4.05);
        m_p.Print(QStringLiteral("Reference"));
        m_printer.SetPosition(0, m_narrative ? 5.35 : 4.35);
        m_p.CurrentX = kReferenceCentre - m_p.TextWidth(m_invoice.reference) / 2;
        m_p.Print(m_invoice.reference);

        PrintInvoiceMemo(m_printer);
        PrintColumnHeads();
    }

    void printAt5(const QString& text) {
        m_printer.SetPosition(5.0, 0);
        m_p.Print(text);
    }

    void PrintColumnHeads() {
        m_printer.SetPrintColor(true);
        m_printer.SetPosition(0.6, m_narrative ? 5.55 : 4.55);
        m_p.PrintContinue(QStringLiteral("QTY"));
        m_printer.SetPosition(1.5, 0);
        m_p.PrintContinue(QStringLiteral("DATE"));
        m_printer.SetPosition(3.1, 0);
        m_p.PrintContinue(QStringLiteral("DESCRIPTION"));
        m_printer.SetPosition(6.1, 0);
        m_p.PrintContinue(QStringLiteral("PRICE"));
        m_printer.SetPosition(7.5, 0);
        m_p.Print(QStringLiteral("TOTAL"));
    }

    void PrintBillTo() {
        const auto& a = m_invoice.billTo;
        PrintAddressBlock(m_printer, a[0], a[1], a[2], a[3], a[4], a[5], 2.3, m_invoice.usaStyle);
    }

    void PrintBody() {
        m_printer.SetPosition(0.75, 4.9);
        for (const InvoicePageContents::Line& line : m_invoice.lines) {
            if (m_p.TextHeight(line[1]) + m_p.CurrentY >= kPageBottom) NewInvoicePage();
            m_printer.SetPrintColor(true);
            m_p.CurrentX = kQuantityRight - m_p.TextWidth(line[0]);
            m_p.PrintContinue(line[0]);
            m_p.CurrentX = kDateCentre - m_p.TextWidth(line[2]) / 2;
            m_p.PrintContinue(line[2]);
            m_p.CurrentX = kPriceRight - m_p.TextWidth(line[3]);
            m_p.PrintContinue(line[3]);
            m_p.CurrentX = kTotalRight - m_p.TextWidth(line[4]);
            m_p.PrintContinue(line[4]);
            m_printer.SetPosition(2.3, 0);
            m_printer.PrintWrapped(m_p.CurrentX, m_p.CurrentY, kDescriptionWidth, 0, line[1]);
            // Measured with the row just drawn, so a body that ends at the bottom gets a page of
            // its own for the totals.
            if (m_p.TextHeight(line[1]) + m_p.CurrentY >= kPageBottom) NewInvoicePage();
        }
        if (m_p.CurrentY >= kPageBottom) NewInvoicePage();
        m_p.ForeColor = 0;
    }

    void NewInvoicePage() {
        m_p.NewPage();
        InvoiceFrame(QStringLiteral("INVOICE"), 0.4);
        PrintColumnHeads();
        PrintHeaderBlock();
        PrintBillTo();
        m_printer.SetPosition(0.75, m_narrative ? 5.9 : 4.9);
    }

    void PrintTotals() {
        const QString headings[6] = {QStringLiteral("Sub-Total"), m_invoice.taxHeading1, m_invoice.taxHeading2,
                                     QString(), QStringLiteral("Handling"), QStringLiteral("Total")};
        m_printer.SetFont(10, true, false);
        m_p.CurrentX = 8280;
        for (int i = 1; i <= 6; ++i) {
            m_printer.SetPosition(5.6, rowY(i));
            m_p.Print(headings[i - 1]);
        }
        m_p.FontSize = 10;

        m_printer.SetPrintColor(false);
        m_printer.SetFont(10, true, false);
        m_printer.SetPrintColor(true);
        printValue(1, m_invoice.subTotal);
        printValue(2, m_invoice.tax);
        printValue(3, m_invoice.tax2);
        if (!m_invoice.extra.isEmpty()) printValue(4, m_invoice.extra);
        if (!m_invoice.handling.isEmpty()) printValue(5, m_invoice.handling);
        if (m_printer.settings().colors.ckColor == 1) m_p.ForeColor = kTotalRed;
        m_printer.SetFont(12, true, false);
        printValue(6, m_invoice.total);

        // Only the terms saved as the default reach the page.
        DiskRoutines& disk = m_printer.disk();
        QString terms;
        if (disk.FileExists(kTermsFile)) {
            TextReader file = disk.ReadTextFile(kTermsFile);
            if (!file.atEnd()) terms = file.readLine();
        }
        m_printer.SetPosition(1.3, 0);
        m_p.Print(terms);
    }

    static double rowY(int i) { return 8.55 + 0.25 * (i - 1); }

    void printValue(int row, const QString& value) {
        const QString shown = FormatMoneyText(value);
        m_printer.SetPosition(0, rowY(row));
        m_p.CurrentX = kTotalRight - m_p.TextWidth(shown);
        m_p.Print(shown);
    }

    PrinterRoutines& m_printer;
    PageSurface& m_p;
    const InvoicePageContents& m_invoice;
    bool m_narrative = false;
};

} // namespace

void PrintInvoiceMemo(PrinterRoutines& printer) {
    DiskRoutines& disk = printer.disk();
    if (!disk.FileExists(kMemoFile)) return;
    PageSurface& p = printer.Printer();
    p.ForeColor = kMemoBlue;
    printer.SetPosition(1.3, 8.6);
    TextReader memo = disk.ReadTextFile(kMemoFile);
    while (!memo.atEnd()) {
        if (p.CurrentY > kMemoBottom) return;
        const QString line = memo.readString();
        printer.PrintWrapped(1872, p.CurrentY, 5904, 720, line);
    }
    p.ForeColor = 0;
}

void PrintInvoicePage(PrinterRoutines& printer, const InvoicePageContents& invoice) {
    InvoicePagePrinter(printer, invoice).PrintInvoice();
}

} // namespace ostrel
