#include "frmSales.h"

#include "LetterheadRoutines.h"
#include "PrintFailure.h"
#include "shell/Session.h"
#include "store/LocaleText.h"

namespace ostrel {

namespace {

const QString kTitle = QStringLiteral("General Sales Report");

// The rule under the column heads and under the rows runs past the right edge of a portrait sheet,
// as it always has.
constexpr double kRuleLeft = 720;
constexpr double kRuleRight = 13680;

struct MoneyHead {
    const char* text;
    double x; // inches
};
constexpr MoneyHead kMoneyHeads[] = {{"SubTotal", 4.1}, {"Discount", 5.2}, {"Tax", 6.4}, {"Total", 7.35}};

QString shortDate(QDate d) {
    return ShortDateText(d);
}

} // namespace

void frmSales::PrintReport() {
    try {
        m_printer.ShowPrinterDialog();
        m_printer.InitPrinter(QStringLiteral("Portrait"), m_session.settings.colors.ckColor);
        PageSurface& p = m_printer.Printer();
        p.SetScaleWidth(12240);

        // Where each money column ends: under the right end of its head, as the head prints.
        double rightEdge[4] = {};
        auto printHead = [&] {
            m_printer.SetFont(14, true, false);
            p.CurrentX = (p.ScaleWidth() - p.TextWidth(kTitle)) / 2;
            p.Print(kTitle);
            m_printer.SetFont(8, true, false);
            const QString range = QStringLiteral("from ") + shortDate(m_start) + QStringLiteral(" to ") + shortDate(m_end);
            p.CurrentX = (p.ScaleWidth() - p.TextWidth(range)) / 2;
            p.Print(range);
            m_printer.SetFont(10, false, false);
            PrintLetterhead(m_printer, 0.75, 0.55, 12);
            m_printer.SetFont(10, false, false);
            m_printer.SetPosition(7.0, 0.5);
            p.Print(shortDate(m_session.today()));

            m_printer.SetFont(10, true, false);
            m_printer.SetPosition(0.75, 1.5);
            p.Print(QStringLiteral("Sales Report for ") + cboAssociates.text);

            m_printer.SetFont(10, true, false);
            m_printer.SetPosition(1.0, 2.0);
            p.PrintContinue(QStringLiteral("Transaction"));
            m_printer.SetPosition(2.0, 0);
            p.PrintContinue(QStringLiteral("Account"));
            for (int i = 0; i < 4; ++i) {
                const QString head = QString::fromLatin1(kMoneyHeads[i].text);
                m_printer.SetPosition(kMoneyHeads[i].x, 0);
                rightEdge[i] = p.CurrentX + p.TextWidth(head);
                if (i < 3) p.PrintContinue(head);
                else p.Print(head);
            }
            p.CurrentY += 100;
            p.Line(kRuleLeft, p.CurrentY, kRuleRight, p.CurrentY);
            m_printer.SetFont(10, false, false);
            m_printer.SetPosition(0, 2.5);
        };

        printHead();
        for (int row = 1; row < fgSales.Rows(); ++row) {
            m_printer.SetFont(10, false, false);
            if (p.TextHeight(fgSales.TextMatrix(row, kDate)) + p.CurrentY >= p.ScaleHeight()) {
                p.NewPage();
                printHead();
            }
            m_printer.SetPosition(1.0, 0);
            p.PrintContinue(fgSales.TextMatrix(row, kTransaction));
            m_printer.SetPosition(2.0, 0);
            p.PrintContinue(fgSales.TextMatrix(row, kAccount));
            m_printer.SetFont(8, false, false);
            for (int i = 0; i < 4; ++i) {
                const QString value = fgSales.TextMatrix(row, kSubTotal + i);
                p.CurrentX = rightEdge[i] - p.TextWidth(value);
                if (i < 3) p.PrintContinue(value);
                else p.Print(value);
            }
        }

        m_printer.SetFont(10, false, false);
        p.Print();
        p.CurrentY += 100;
        p.Line(kRuleLeft, p.CurrentY, kRuleRight, p.CurrentY);
        p.Print();
        p.Print();
        const std::pair<const char*, Money> lines[] = {
            {"Goods Sub Total", m_totals.subTotal},
            {"Discounts Taken", m_totals.discount},
            {"Tax Collected", m_totals.tax},
            {"Sales Total(before Discounts)", m_totals.gross},
        };
        for (const auto& [label, amount] : lines) {
            m_printer.SetPosition(4.5, 0);
            p.PrintContinue(QString::fromLatin1(label));
            const QString value = FormatMoney(amount);
            p.CurrentX = rightEdge[3] - p.TextWidth(value);
            p.Print(value);
        }
        p.EndDoc();
    } catch (const PrintError& e) {
        ReportPrintFailure(m_session.platform.dialogs, e.number(), true);
    } catch (const std::exception&) {
        ReportPrintFailure(m_session.platform.dialogs, PrintError::kPrinterError, true);
    }
}

} // namespace ostrel
