#include "frmInvoice.h"

#include "setup/NumericText.h"
#include "shell/KeyFilters.h"
#include "shell/Session.h"
#include "store/LocaleText.h"

#include <cmath>

namespace ostrel {

namespace {

// A rate box is read by its leading number, so "8.25" and "8.25 %" are both 8.25.
double leadingNumber(const QString& text) {
    const QString t = text.trimmed();
    qsizetype end = 0;
    bool point = false;
    if (end < t.size() && (t[end] == u'-' || t[end] == u'+')) ++end;
    while (end < t.size() && (t[end].isDigit() || (t[end] == u'.' && !point))) {
        if (t[end] == u'.') point = true;
        ++end;
    }
    bool ok = false;
    const double value = t.left(end).toDouble(&ok);
    return ok ? value : 0;
}

Money rateOf(const QString& rate, Money amount) {
    return Money::fromDouble(leadingNumber(rate) * amount.toDouble() / 100);
}

Money moneyOf(const QString& text) {
    return Money::fromDisplayText(text).value_or(Money());
}

} // namespace

void frmInvoice::ComputeTotals() {
    Tax1 = Tax2 = SubTotal = TaxableTotal = Money();
    // The extensions are read back from their cells, each already rounded to the cent.
    for (int row = 1; row <= LineCount; ++row) {
        const Money extension = moneyOf(fgInvoice.TextMatrix(row, kExtension));
        SubTotal += extension;
        if (!ckExempt.checked() && fgInvoice.TextMatrix(row, kApplyTax) == kTrue) TaxableTotal += extension;
    }
    if (SubTotal <= Money()) return;
    txtTotal.text = FormatMoney(SubTotal);
    if (TaxableTotal == Money()) return;

    const TaxSettings& tax = m_session.settings.tax;
    const ProgramSettings& program = m_session.settings.program;
    if (!program.applyGraduated()) {
        Tax1 = rateOf(tax.cboRate1, TaxableTotal);
        if (ck2ndTax.checked()) Tax2 = rateOf(tax.cboRate2, TaxableTotal);
        return;
    }
    // Graduated: above the limit the higher rate on the whole amount and a flat surcharge; a total
    // at the limit stays on the lower level.
    const Money limit = moneyOf(program.txtGradulated[0]);
    if (TaxableTotal > limit) {
        Tax1 = rateOf(tax.cboRate2, TaxableTotal);
        Tax2 = moneyOf(program.txtGradulated[1]);
    } else {
        Tax1 = rateOf(tax.cboRate1, TaxableTotal);
    }
}

void frmInvoice::ComputeGrandTotal() {
    // The taxes keep their four decimals: the printed parts may differ from the printed total by a
    // cent, as they always have.
    GrandTotal = SubTotal + Tax1 + Tax2 + AdditionalCharge;
    txtGrandTotal.text = FormatMoney(GrandTotal);
    // The sub-total box is reshown as it stands: a sub-total of nothing leaves the last one.
    txtTotal.text = FormatMoneyText(txtTotal.text);
    txtTax.text = FormatMoney(Tax1);
    txtTax2.text = FormatMoney(Tax2);
}

void frmInvoice::txtMisc_GotFocus() {
    AdditionalCharge = Money();
    txtMisc.text = FormatMoney(Money());
}

void frmInvoice::txtMisc_KeyDown() {
    if (txtMisc.text == FormatMoney(Money())) txtMisc.text.clear();
}

void frmInvoice::txtMisc_LostFocus() {
    if (txtMisc.text.isEmpty() || txtMisc.text == FormatMoney(Money())) return;
    const std::optional<Money> charge = Money::fromDisplayText(txtMisc.text);
    if (!charge) {
        refuse(txtMisc);
        return;
    }
    // A negative charge is a credit. It is never taxed.
    AdditionalCharge = *charge;
    txtMisc.text = FormatMoney(AdditionalCharge);
    cmdInvoiceContinue.enabled = false;
    cmdInvoice[9].SetFocus();
}

void frmInvoice::txtUnits_KeyPress(TextBox& box, int& keyAscii) {
    if (keyAscii == kKeyBackspace) return;
    keyAscii = CurrencyKeyFilter(keyAscii, box.text,
                                 KeyFilterEnv{m_session.platform.dialogs, m_session.settings.program.alarms()});
}

void frmInvoice::txtUnits_KeyDown(TextBox& box) {
    if (box.text == QStringLiteral("0")) box.text.clear();
}

void frmInvoice::txtUnits_LostFocus(TextBox& box) {
    if (IsNumericText(box.text)) return;
    box.text = QStringLiteral("0");
    refuse(box);
}

void frmInvoice::txtHours_LostFocus(int i) {
    TextBox& hours = txtHours[i];
    if (hours.text.isEmpty()) return;
    if (!IsNumericText(hours.text)) {
        hours.text = QStringLiteral("0");
        refuse(hours);
        return;
    }
    LaborCharge[i] = Money::fromDouble(LaborRate[i].toDouble() * hours.text.toDouble());
    lblLaborCharge[i].caption = FormatMoney(LaborCharge[i]);
}

void frmInvoice::cmdLabor_Click(int index) {
    switch (index) {
    case 0:
        lblLaborCharge[3].caption = FormatMoney(LaborCharge[0] + LaborCharge[1] + LaborCharge[2]);
        cmdLabor[1].visible = true;
        cmdLabor[1].SetFocus();
        break;
    case 1: {
        const LaborTexts labor = laborTexts();
        for (int i = 0; i <= 2; ++i) {
            if (LaborCharge[i] == Money()) continue;
            if (LineCount >= kMaxLines) {
                // The grid has no row past the hundredth: the labor line is refused and the body
                // keeps every line it has.
                m_session.Beep();
                message(QStringLiteral("The Invoice is full") + QStringLiteral("\n\n") + labor.heading[i] +
                        QStringLiteral(" was not added: an invoice holds 100 lines at most."));
                break;
            }
            AddLineRow(LineCount + 1, txtHours[i].text + QStringLiteral(" Hrs"), labor.heading[i], QString(),
                       labor.rate[i], lblLaborCharge[i].caption, taxFlag(kPostCustom) ? kTrue : kFalse);
            ++LineCount;
            cmdPrint.enabled = true;
        }
        cmdLabor[1].visible = false;
        if (mnuServices.enabled) mnuView_Click(mnuServices);
        break;
    }
    case 2:
        for (int i = 0; i <= 2; ++i) {
            if (!lblLaborHeading[i].visible) continue;
            txtHours[i].text = QStringLiteral("0");
            lblLaborCharge[i].caption = FormatMoney(Money());
            LaborCharge[i] = Money();
        }
        lblLaborCharge[3].caption = FormatMoney(Money());
        break;
    default:
        break;
    }
}

} // namespace ostrel
