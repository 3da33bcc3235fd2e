#include "frmReprint.h"

#include "InvoicePage.h"
#include "frmInvoice.h"
#include "printing/PrintFailure.h"
#include "shell/ScreenId.h"
#include "shell/Session.h"

namespace ostrel {

InvoicePageContents frmReprint::ShownInvoicePage() const {
    InvoicePageContents page;
    page.invoiceNo = Label1[27].caption;
    page.account = Label1[17].caption;
    page.date = Label1[19].caption;
    page.reference = Label1[9].caption;
    for (int i = 0; i < 6; ++i) page.billTo[i] = lblBillTo[i].caption;
    page.usaStyle = m_session.settings.isUsaStyle();
    page.remittance = m_session.settings.program.optReturn;
    for (int r = 1; r < fgItems.Rows(); ++r) {
        InvoicePageContents::Line line;
        for (int c = 0; c < 5; ++c) line[c] = fgItems.TextMatrix(r, c);
        page.lines.append(line);
    }
    page.subTotal = lblInvoice[0].caption;
    page.tax = lblInvoice[1].caption;
    page.tax2 = lblInvoice[9].caption;
    page.total = lblInvoice[2].caption;
    page.extra = lblInvoice[4].caption;
    page.handling = lblInvoice[5].caption;
    page.taxHeading1 = Label1[1].caption;
    page.taxHeading2 = Label1[22].caption;

    ShipToBlock shipTo;
    for (int i = 0; i < 6; ++i) shipTo.shipTo[i] = lblShipTo[i].caption.trimmed();
    shipTo.shipVia = Label1[32].caption;
    shipTo.shipDate = Label1[33].caption;
    shipTo.reference = Label1[9].caption;
    page.shipTo = shipTo;
    page.today = m_session.today();
    return page;
}

void frmReprint::PrintShownInvoice() {
    try {
        m_printer.ShowPrinterDialog();
        m_printer.InitPrinter(QStringLiteral("Portrait"), m_session.settings.colors.ckColor);
        // The attention line is handed to the invoice screen's box and goes no further.
        if (auto* invoice = m_session.ScreenAs<frmInvoice>(ScreenId::frmInvoice))
            invoice->txtShipto[6].text = txtAttn.text;
        PrintInvoicePage(m_printer, ShownInvoicePage());
    } catch (const PrintError& e) {
        // The reprint does not tell a cancelled dialog from a failure.
        ReportPrintFailure(m_session.platform.dialogs, e.number(), false);
    } catch (const std::exception&) {
        ReportPrintFailure(m_session.platform.dialogs, PrintError::kPrinterError, false);
    }
}

} // namespace ostrel
