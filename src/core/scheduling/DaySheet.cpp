#include "DaySheet.h"

#include "TimeGrid.h"
#include "platform/Dialogs.h"
#include "printing/PrinterRoutines.h"
#include "setup/SetupSettings.h"

namespace ostrel {

namespace {

constexpr double kRuleLeft = 1440;
constexpr double kRuleRight = 10800;
constexpr double kRuleGap = 50;
// The time labels end here, 1.4 inches in.
constexpr double kTimeLabelEnd = 2016;

void at(PrinterRoutines& printer, double x, const QString& text, bool nextLine) {
    printer.SetPosition(x, 0);
    if (nextLine)
        printer.Printer().Print(text);
    else
        printer.Printer().PrintContinue(text);
}

void rule(PageSurface& p) {
    p.Line(kRuleLeft, p.CurrentY, kRuleRight, p.CurrentY);
}

void spacedRule(PageSurface& p) {
    p.CurrentY += kRuleGap;
    rule(p);
    p.CurrentY += kRuleGap;
}

} // namespace

void PrintDaySheetHeading(PrinterRoutines& printer, const DaySheetContent& content, const SetupSettings& settings) {
    PageSurface& p = printer.Printer();
    const BusinessData& b = settings.business;
    printer.SetFont(15, true, false);
    p.FontName = kDaySheetFont;
    p.Print();
    at(printer, 1.0, QStringLiteral("APPOINTMENTS SCHEDULED FOR:"), true);
    at(printer, 1.0, content.date, false);
    at(printer, 5.0, b.companyName(), true);
    at(printer, 1.0, content.pointOfService, false);
    printer.SetFont(10, true, false);
    at(printer, 5.0, b.address1(), true);
    if (!b.address2().isEmpty()) at(printer, 5.0, b.address2(), true);
    if (!settings.isUsaStyle()) {
        at(printer, 5.0, b.city(), true);
        at(printer, 5.0, b.postalCode(), true);
    } else {
        at(printer, 5.0, b.city() + QStringLiteral(", ") + b.state() + QStringLiteral(". ") + b.postalCode(), true);
    }
    at(printer, 5.0, QStringLiteral("Tel No ") + b.telephone(), true);
    p.Print();
    at(printer, 1.0, QStringLiteral("START"), false);
    at(printer, 2.0, QStringLiteral("ACCOUNT"), false);
    at(printer, 4.75, QStringLiteral("SERVICE"), false);
    at(printer, 6.5, QStringLiteral("REMARKS"), true);
    rule(p);
    p.CurrentY += kRuleGap;
}

void PrintDaySheetBody(PrinterRoutines& printer, const DaySheetContent& content) {
    PageSurface& p = printer.Printer();
    const Grid& g = *content.schedule;
    for (int r = kFirstTimeSlot; r <= kLastTimeSlot; ++r) {
        const QString label = g.TextMatrix(r, 0);
        p.CurrentX = kTimeLabelEnd - p.TextWidth(label);
        p.PrintContinue(label);
        // An account is printed where it starts, so the first row's never is.
        if (r >= 2 && g.TextMatrix(r, 1) != g.TextMatrix(r - 1, 1)) at(printer, 2.0, g.TextMatrix(r, 1), false);
        at(printer, 4.75, g.TextMatrix(r, 2), true);
        if (r % 4 == 0) spacedRule(p);
        if (r == 24) spacedRule(p);
    }
}

PrintResult PrintDaySheet(PrinterRoutines& printer, const DaySheetContent& content, const SetupSettings& settings) {
    Dialogs& dialogs = printer.dialogs();
    auto failed = [&](int number) { return ReportPrintFailure(dialogs, number, true); };
    try {
        printer.ShowPrinterDialog();
        printer.InitPrinter(QStringLiteral("Portrait"), settings.colors.ckColor);
    } catch (const PrintError& e) {
        return failed(e.number());
    } catch (const std::exception&) {
        return failed(PrintError::kPrinterError);
    }
    for (;;) {
        try {
            PrintDaySheetHeading(printer, content, settings);
            PrintDaySheetBody(printer, content);
            printer.Printer().EndDoc();
        } catch (const PrintError& e) {
            return failed(e.number());
        } catch (const std::exception&) {
            return failed(PrintError::kPrinterError);
        }
        if (dialogs.MsgBox(kDaySheetQuestion, vbYesNo + vbQuestion, kDaySheetQuestionTitle) == vbYes)
            return PrintResult::Printed;
    }
}

} // namespace ostrel
