#include "WorkOrderDocuments.h"

#include "platform/PageSurface.h"
#include "printing/LetterheadRoutines.h"
#include "printing/PrinterRoutines.h"
#include "setup/SetupSettings.h"

namespace ostrel {

namespace {

constexpr double kPageWidth = 12240;
constexpr double kLeftRule = 360;
constexpr double kRightRule = 11880;

// A check box holds 0, 1 or 2; the return-parts text was meant to print when the box is ticked,
// but it is compared with the Boolean True value, so it never does. The text and the tick are
// kept for the day that comparison is changed.
constexpr int kBooleanTrue = -1;

// The work order body runs from 4.2 in, one row every 0.3 in, until a row reaches this height.
constexpr float kFirstBodyLine = 4.2f;
constexpr float kBodyStep = 0.3f;
constexpr double kBodyBottom = 11232;
constexpr double kPriceRightEdge = 11520;

// The pick list's rows stop here and go on over the page.
constexpr double kPicklistBottom = 12240;
constexpr double kQuantityRightEdge = 1296;
constexpr Colour kGreen = 65280;
constexpr Colour kCommentColour = 0xFF0000;

const QString kServedByLine = QStringLiteral("Service performed by: ______________________________________________");

void hline(PageSurface& p, double y) { p.Line(kLeftRule, y, kRightRule, y); }

void printAt(PrinterRoutines& printer, double x, double y, const QString& text) {
    printer.SetPosition(x, y);
    printer.Printer().Print(text);
}

void printCustomer(PrinterRoutines& printer, const WorkOrderContent& c) {
    const auto& k = c.customer;
    PrintAddressBlock(printer, k[0], k[1], k[2], k[3], k[4], k[5], 2.3, printer.settings().isUsaStyle());
}

// The three numbers at the head of the work order and the pick list.
void printNumbers(PrinterRoutines& printer, const QString& numberCaption, const WorkOrderContent& c) {
    printer.SetFont(10, true, false);
    printAt(printer, 5.0, 1.0, numberCaption + c.number);
    printAt(printer, 5.0, 0, QStringLiteral("Scheduled Date ") + c.date);
    printAt(printer, 5.0, 0, QStringLiteral("Customer AcctNo ") + c.account);
}

void workOrderHead(PrinterRoutines& printer, const WorkOrderContent& c) {
    PageSurface& p = printer.Printer();
    p.SetScaleWidth(kPageWidth);
    p.ForeColor = 0;
    // The body's italic is the body's own; every page head is upright.
    p.FontItalic = false;
    printer.SetPrintColor(false);
    hline(p, 5760);
    hline(p, 14400);
    p.Line(kLeftRule, 5760, kLeftRule, 14400);
    p.Line(kRightRule, 5760, kRightRule, 14400);
    PrintTitle(printer, QStringLiteral("Work Order"), 0.5, 26);
    PrintLogo(printer, 720);
    PrintLetterhead(printer, 0.75, 0.4, 12);
    printNumbers(printer, QStringLiteral("Work Order No "), c);
    printCustomer(printer, c);
    printer.SetFont(12, true, false);
    printer.SetPosition(0.5, 3.7);
    p.PrintContinue(QStringLiteral("Service"));
    printer.SetPosition(6.5, 0);
    p.PrintContinue(QStringLiteral("Time"));
    printer.SetPosition(7.5, 0);
    p.Print(QStringLiteral("Price"));
}

void workOrderLowerPart(PrinterRoutines& printer, const WorkOrderFixedPart& fixed) {
    PageSurface& p = printer.Printer();
    if (fixed.shopRepair) {
        if (fixed.ckInstructions == kBooleanTrue) {
            printer.SetFont(10, false, false);
            printer.PrintWrapped(720, 11664, 10368, 0, fixed.returnParts);
        }
        printer.SetFont(8, false, false);
        if (!fixed.disclaimer.isEmpty()) printer.PrintWrapped(720, 11880, 10368, 0, fixed.disclaimer);
        if (!fixed.terms.isEmpty()) printer.PrintWrapped(720, 12960, 10368, 0, fixed.terms);
    }
    printer.SetFont(10, true, false);
    printer.SetPrintColor(false);
    hline(p, 13320);
    p.ForeColor = 0;
    printAt(printer, 0.5, 9.35, QStringLiteral("Completion Comments:"));
    p.ForeColor = 0;
    hline(p, p.CurrentY + 288);
}

void workOrderBody(PrinterRoutines& printer, const WorkOrderContent& c) {
    PageSurface& p = printer.Printer();
    printer.SetFont(10, true, false);
    p.FontItalic = true;
    float line = kFirstBodyLine;
    for (const WorkOrderService& s : c.services) {
        printer.SetPosition(0.5, line);
        p.PrintContinue(QStringLiteral("_____   ") + s.name);
        printer.SetPosition(6.5, 0);
        p.PrintContinue(s.time);
        p.CurrentX = kPriceRightEdge - p.TextWidth(s.price);
        p.Print(s.price);
        line += kBodyStep;
        if (p.TextHeight(QStringLiteral("ABC")) + p.CurrentY >= kBodyBottom) {
            p.NewPage();
            workOrderHead(printer, c);
            line = kFirstBodyLine;
            printer.SetFont(10, false, false);
            p.FontItalic = true;
        }
    }
    p.FontItalic = false;
}

// Eight lines to write on, each a blank line down and ruled across the page.
void ruledLines(PageSurface& p) {
    for (int i = 0; i < 8; ++i) {
        p.Print();
        p.CurrentY += 72;
        p.ForeColor = 0;
        hline(p, p.CurrentY);
        p.CurrentY += 72;
    }
}

struct FillIn {
    const char* label;
    const char* blank;
    double stepAfter;
};

constexpr FillIn kFillIns[] = {
    {"Start Time:", "_______:_______", 144},      {"Completion Time:", "_______:_______", 144},
    {"Service Time:", "_______:_______", 288},    {"Starting Odometer:", "_______________", 144},
    {"Ending Odometer:", "_______________", 0},
};

void picklistHead(PrinterRoutines& printer, const WorkOrderContent& c) {
    PageSurface& p = printer.Printer();
    const SetupSettings& s = printer.settings();
    p.SetScaleWidth(kPageWidth);
    p.DrawWidth = 5;
    // The text colour of the borders box, which Setup leaves black; its chosen colour is the
    // box's background.
    p.ForeColor = 0;
    p.Line(kLeftRule, 504, kRightRule, 5040, true);
    for (double y : {5760.0, 6120.0, 14400.0})
        hline(p, y);
    printer.SetFont(14, true, false);
    if (s.colors.ckColor == 1) p.ForeColor = kGreen;
    printAt(printer, 1.3, 10.1, QStringLiteral("from ") + s.business.companyName());
    p.ForeColor = 0;
    for (double y : {13392.0, 13824.0})
        hline(p, y);
    for (double x : {kLeftRule, 1800.0, kRightRule, 3168.0, 7920.0, 10080.0})
        p.Line(x, 5760, x, 14400);
    p.Line(4680, 13392, 4680, 14400);
    PrintLogo(printer, 720);
    PrintLetterhead(printer, 0.75, 0.4, 12);

    printer.SetFont(24, true, false);
    printAt(printer, 5.0, 0.5, QStringLiteral("Picklist"));
    printNumbers(printer, QStringLiteral("For Work Order No "), c);
    printCustomer(printer, c);
    printer.SetPosition(0.6, 4.05);
    p.PrintContinue(QStringLiteral("QTY"));
    printer.SetPosition(1.4, 0);
    p.PrintContinue(QStringLiteral("PICKED"));
    printer.SetPosition(2.5, 0);
    p.Print(QStringLiteral("DESCRIPTION"));
    p.ForeColor = 0;
    printer.SetFont(10, false, false);
}

} // namespace

void PrintWorkOrder(PrinterRoutines& printer, const WorkOrderContent& content, const WorkOrderFixedPart& fixed) {
    workOrderHead(printer, content);
    workOrderLowerPart(printer, fixed);
    workOrderBody(printer, content);
    printer.Printer().EndDoc();
}

void PrintSummaryReport(PrinterRoutines& printer, const WorkOrderContent& content, const QString& today) {
    PageSurface& p = printer.Printer();
    p.SetScaleWidth(kPageWidth);
    PrintTitle(printer, QStringLiteral("Work Order Summary Report"), 0.5, 20);
    PrintLetterhead(printer, 0.75, 0.4, 12);
    printAt(printer, 5.0, 1.5, QStringLiteral("Date ") + today);
    printAt(printer, 5.0, 0, QStringLiteral("WO No. ") + content.number);
    p.Print();
    for (const FillIn& f : kFillIns) {
        printer.SetPosition(5.0, 0);
        p.PrintContinue(QString::fromLatin1(f.label));
        printer.SetPosition(6.5, 0);
        p.Print(QString::fromLatin1(f.blank));
        p.CurrentY += f.stepAfter;
    }
    printCustomer(printer, content);
    printAt(printer, 0.5, 4.3, QStringLiteral("List any Anomalies prior to Commencement"));
    ruledLines(p);
    p.Print();
    printAt(printer, 0.5, 0, QStringLiteral("List any Services not Performed and the Reason"));
    ruledLines(p);
    p.Print();
    p.Print();
    printAt(printer, 0.5, 0, kServedByLine);
    p.EndDoc();
}

void PrintPicklist(PrinterRoutines& printer, const WorkOrderContent& content) {
    PageSurface& p = printer.Printer();
    picklistHead(printer, content);
    if (!content.comment.isEmpty()) {
        printer.SetFont(12, true, false);
        printAt(printer, 5.0, 2.3, QStringLiteral("Customer Comments:"));
        p.ForeColor = kCommentColour;
        printer.SetFont(10, true, false);
        printer.PrintWrapped(7200, 3600, 4320, 0, content.comment);
        p.ForeColor = 0;
        printer.SetFont(10, false, false);
    }
    printer.SetPosition(0.75, 4.3);
    p.Print();
    for (const PicklistLine& row : content.picklist) {
        if (row.quantity == QLatin1String("0")) continue;
        if (p.TextHeight(row.quantity) + p.CurrentY >= kPicklistBottom) {
            p.NewPage();
            picklistHead(printer, content);
            printer.SetPosition(0.75, 4.3);
        }
        p.CurrentX = kQuantityRightEdge - p.TextWidth(row.quantity);
        p.PrintContinue(row.quantity);
        printer.SetPosition(2.5, 0);
        p.Print(row.description);
    }
    p.EndDoc();
}

} // namespace ostrel
