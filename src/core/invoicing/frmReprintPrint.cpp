#include "frmReprint.h"

#include "ShipToBlock.h"
#include "printing/PrintFailure.h"
#include "shell/Session.h"

namespace ostrel {

void frmReprint::PrintShownInvoice() {
    try {
        m_printer.ShowPrinterDialog();
        m_printer.InitPrinter(QStringLiteral("Portrait"), m_session.settings.colors.ckColor);
        ShipToBlock shipTo;
        for (int i = 0; i < 6; ++i) shipTo.shipTo[i] = lblShipTo[i].caption.trimmed();
        shipTo.shipVia = Label1[32].caption;
        shipTo.shipDate = Label1[33].caption;
        shipTo.reference = Label1[9].caption;
        const bool narrative = m_session.disk.FileExists(QStringLiteral("/OstrelInvoicer/Narratives/") +
                                                         Label1[27].caption.trimmed() + QStringLiteral(".txt"));
        m_printer.Printer().SetScaleWidth(12240);
        m_printer.SetFont(10, true, false);
        PrintShipToBlock(m_printer, shipTo, m_session.today(), m_session.settings.isUsaStyle(), narrative);
        m_printer.Printer().EndDoc();
    } catch (const PrintError& e) {
        // The reprint does not tell a cancelled dialog from a failure.
        ReportPrintFailure(m_session.platform.dialogs, e.number(), false);
    } catch (const std::exception&) {
        ReportPrintFailure(m_session.platform.dialogs, PrintError::kPrinterError, false);
    }
}

} // namespace ostrel
