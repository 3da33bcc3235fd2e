#include "frmReprint.h"

#include "InvoiceImage.h"
#include "shell/Session.h"
#include "store/StoreError.h"
#include "util/VbText.h"

namespace ostrel {

namespace {

const QString kMemoFile = QStringLiteral("/InvoiceMemo.txt");

const QStringList kImageNotFound = {
    QStringLiteral("An Image does not exist for this Transaction"),
    QStringLiteral("It most likely is a result of"),
    QStringLiteral("a Service Attention Completion Posting"),
    QStringLiteral("or an E-Funds Received"),
    QStringLiteral("Shown for Reference Only"),
};

} // namespace

void frmReprint::fgReceivables_Click() {
    const int row = fgReceivables.row;
    if (row >= 1 && row < fgReceivables.Rows()) {
        const QString number = vbTrim(fgReceivables.TextMatrix(row, kInvoiceNumber));
        bool found = false;
        QString name;
        try {
            name = InvoiceImage::fileName(number);
            found = m_session.disk.FileExists(name);
        } catch (const StoreError&) {
            found = false; // a number that names no file in the folder has no image there
        }
        if (!found) {
            m_session.platform.dialogs.MsgBox(kImageNotFound.join(u'\n'), vbOKOnly,
                                              QStringLiteral("Invoice Image Not Found"));
        } else {
            m_session.Guarded([&] {
                TextReader reader = m_session.disk.ReadTextFile(name);
                const InvoiceImage image = ReadInvoiceImage(reader);
                Label1[19].caption = fgReceivables.TextMatrix(row, kInvoiceDate);
                ShowDetail(image);
            });
            m_session.disk.CloseAllFiles();
        }
    }
    // Whatever came of it, the body grid starts at its first line.
    fgItems.row = fgItems.Rows() > 1 ? 1 : 0;
    fgItems.topRow = 1;
}

void frmReprint::ShowDetail(const InvoiceImage& image) {
    for (int i = 0; i < 6; ++i) {
        lblBillTo[i].caption = image.billTo[i];
        lblShipTo[i].caption = image.shipTo[i];
    }
    Label1[32].caption = image.shipVia;
    Label1[33].caption = image.shipDate;
    Label1[27].caption = image.invoiceNoAgain;
    Label1[17].caption = image.accountNoAgain;
    Label1[9].caption = image.reference;
    txtAttn.text = image.attention;

    fgItems.SetRows(1);
    fgItems.SetRows(static_cast<int>(image.lines.size()) + 1);
    for (int r = 0; r < image.lines.size(); ++r)
        for (int c = 0; c < 5; ++c) fgItems.SetTextMatrix(r + 1, c, image.lines[r][c]);

    const int fieldOf[] = {0, 1, 9, 2, 4, 5, 6}; // lblInvoice index of each field of the last statement
    for (int f = 0; f < InvoiceImage::kTotalFields; ++f) lblInvoice[fieldOf[f]].caption = MoneyText(image.totals[f]);

    fraInvoice.caption = QStringLiteral("Details for Invoice ") + image.invoiceNoAgain;
    fraInvoice.visible = true;
    mnuSort.enabled = false;
}

void frmReprint::cmdMemo_Click() {
    txtMemo.text.clear();
    m_session.Guarded([&] { m_session.disk.DeleteDataFile(kMemoFile); });
}

void frmReprint::WriteMemo() {
    // The memo typed here stands on every later invoice until it is cleared.
    QString memo = txtMemo.text;
    memo.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\n', QStringLiteral("\r\n"));
    TextWriter w;
    w.print(memo);
    m_session.disk.ReplaceTextFile(kMemoFile, w);
}

void frmReprint::cmdPrint_Click() {
    if (!fraInvoice.visible) return;
    if (!txtMemo.text.isEmpty() && !m_session.Guarded([&] { WriteMemo(); })) return;
    PrintShownInvoice();
}

} // namespace ostrel
