#include "frmReprint.h"

#include "InvoiceImage.h"
#include "printing/GridReport.h"
#include "printing/PrintFailure.h"
#include "shell/Session.h"
#include "util/VbText.h"
#include "store/LocaleText.h"

namespace ostrel {

void frmReprint::cmdReport_Click() {
    try {
        m_printer.ShowPrinterDialog();
    } catch (const PrintError& e) {
        // This button does not tell Cancel from a failure.
        ReportPrintFailure(m_session.platform.dialogs, e.number(), false);
        return;
    }
    PrintGridReport(m_printer, QStringLiteral("Invoices Report"), fgReceivables);
}

void frmReprint::cmdKill_Click() {
    const QDate before = DTPicker1.value;
    const QString prompt = QStringLiteral("This will Delete All Invoices before ") + ShortDateText(before);
    if (m_session.platform.dialogs.MsgBox(prompt, vbYesNo, QStringLiteral("Delete Invoice Records")) == vbNo) return;
    m_session.Guarded([&] {
        DiskRoutines& disk = m_session.disk;
        for (int row = 1; row < fgReceivables.Rows(); ++row) {
            const QDate date = InvoiceImage::parseDate(fgReceivables.TextMatrix(row, kInvoiceDate));
            if (!date.isValid() || date >= before) continue;
            const QString number = vbTrim(fgReceivables.TextMatrix(row, kInvoiceNumber));
            const QString image = InvoiceImage::fileName(number);
            if (disk.FileExists(image)) disk.DeleteDataFile(image);
            disk.DeleteDataFile(QStringLiteral("/Backup/OstrelInvoicer/Narratives/") + number + QStringLiteral(".txt"));
            disk.DeleteDataFile(QStringLiteral("/OstrelInvoicer/Narratives/") + number + QStringLiteral(".txt"));
        }
    });
    ReturnToMenu();
}

} // namespace ostrel
