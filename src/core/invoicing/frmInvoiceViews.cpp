#include "frmInvoice.h"

#include "catalogue/frmServices.h"
#include "shell/Session.h"
#include "store/LocaleText.h"

namespace ostrel {

namespace {

const QStringList kTerms = {
    QStringLiteral("Payment due in Full upon Receipt"),    QStringLiteral("Payment due in Full within 10 Days"),
    QStringLiteral("Payment due in Full within 15 Days"),  QStringLiteral("Payment due in Full within 30 Days"),
    QStringLiteral("Discount 1% in 10 days, Net 15 days"), QStringLiteral("Discount 2% in 10 days, Net 15 days"),
    QStringLiteral("Discount 1% in 10 days, Net 20 days"), QStringLiteral("Discount 2% in 10 days, Net 20 days"),
    QStringLiteral("Discount 1% in 10 days, Net 30 days"), QStringLiteral("Discount 2% in 10 days, Net 30 days"),
    QStringLiteral(" A Discount has been Applied")};

const QString kTermsFile = QStringLiteral("/StatementTerms.txt");

} // namespace

void frmInvoice::HideWindows() {
    for (Frame* f : {&fraItems, &fraCItems, &fraLabor, &fraServices, &fraSetup, &fraPrintReady})
        f->visible = false;
}

void frmInvoice::ShowPanel(int panel) {
    for (auto& [index, frame] : fraInstructions)
        frame.visible = index == panel;
}

void frmInvoice::OpenSetupView() {
    HideWindows();
    fraSetup.visible = true;
    ShowPanel(0);
}

// The creation view is the body alone, with its instructions.
void frmInvoice::OpenCreationView() {
    HideWindows();
    ShowPanel(1);
}

void frmInvoice::OpenPrintView() {
    HideWindows();
    fraPrintReady.visible = true;
    ShowPanel(2);
    ComputeTotals();
}

void frmInvoice::OpenAddWindow(Frame& frame, int panel) {
    HideWindows();
    frame.visible = true;
    ShowPanel(panel);
    txtUnits.text.clear();
    txtCUnits.text.clear();
    for (int k = 0; k <= 2; ++k) {
        m_lists.frmInvoice.cboDescription[k].SetListIndex(-1);
        m_lists.frmInvoice.cboDescription[k].text.clear();
        m_lists.frmInvoice.cboPrice[k].SetListIndex(-1);
        m_lists.frmInvoice.cboPrice[k].text.clear();
    }
    Label4[42].visible = false;
}

void frmInvoice::mnuView_Click(MenuItem& entry) {
    if (&entry == &mnuSetup) {
        OpenSetupView();
    } else if (&entry == &mnuCreate) {
        OpenCreationView();
    } else if (&entry == &mnuPrint) {
        cmdPrint_Click();
    } else if (&entry == &mnuItems) {
        OpenAddWindow(fraItems, 6);
        m_lists.frmInvoice.cboDescription[1].SetFocus();
    } else if (&entry == &mnuServices) {
        OpenAddWindow(fraServices, 9);
        m_lists.frmInvoice.cboDescription[0].SetFocus();
    } else if (&entry == &mnuCItems) {
        OpenAddWindow(fraCItems, 11);
        m_lists.frmInvoice.cboDescription[2].SetFocus();
    } else if (&entry == &mnuLabor) {
        OpenAddWindow(fraLabor, 8);
        ClearLabor();
        for (int i = 0; i <= 2; ++i)
            if (txtHours[i].visible) {
                txtHours[i].SetFocus();
                break;
            }
    } else if (&entry == &mnuClose) {
        HideWindows();
        ShowPanel(-1);
    }
}

void frmInvoice::FillTerms() {
    cboTerms.Clear();
    for (const QString& t : kTerms)
        cboTerms.AddItem(t);
    cboTerms.SetListIndex(0);
    DiskRoutines& disk = m_session.disk;
    m_session.Guarded([&] {
        if (!disk.FileExists(kTermsFile)) return;
        TextReader file = disk.ReadTextFile(kTermsFile);
        if (file.atEnd()) return;
        const QString saved = file.readLine();
        cboTerms.SetListIndex(static_cast<int>(cboTerms.items.indexOf(saved)));
        cboTerms.text = saved;
    });
}

void frmInvoice::cmdReadyPrint_Click() {
    m_session.Guarded([&] {
        TextWriter w;
        w.print(cboTerms.text);
        m_session.disk.ReplaceTextFile(kTermsFile, w);
    });
}

// The three labor categories of the catalogue, each shown only when it has a heading.
void frmInvoice::SetUpLabor() {
    const frmServices* services = m_session.ScreenAs<frmServices>(ScreenId::frmServices);
    Money rates;
    for (int i = 0; i <= 2; ++i) {
        const QString heading = services ? services->txtLabor[i].text : QString();
        const QString rate = services ? services->txtLaborRate[i].text : QString();
        const bool shown = !heading.isEmpty();
        lblLaborHeading[i].visible = txtHours[i].visible = lblLaborCharge[i].visible = shown;
        LaborRate[i] = Money();
        if (!shown) continue;
        lblLaborHeading[i].caption = heading + QStringLiteral(" at ") + rate + QStringLiteral(" per Hour");
        LaborRate[i] = Money::fromDisplayText(rate).value_or(Money());
        rates += LaborRate[i];
    }
    mnuLabor.enabled = rates != Money();
}

void frmInvoice::ClearLabor() {
    for (int i = 0; i <= 2; ++i) {
        txtHours[i].text.clear();
        LaborCharge[i] = Money();
        lblLaborCharge[i].caption = FormatMoney(Money());
    }
    lblLaborCharge[3].caption = FormatMoney(Money());
    cmdLabor[1].visible = false;
}

void frmInvoice::cmdInvoice_Click(int index) {
    switch (index) {
    case 0: {
        bool numeric = false;
        const qint32 typed = txtInvoiceNo.text.trimmed().toInt(&numeric);
        if (numeric) NextInvoiceNo = typed;
        if (txtInvoiceNo.text.isEmpty()) {
            message(QStringLiteral("You have not entered an Invoice Number"));
            OpenCreationView();
            txtInvoiceNo.SetFocus();
            return;
        }
        if (txtReference.text.isEmpty())
            txtReference.text = QStringLiteral("Prepared ") + ShortDateText(m_session.today());
        OpenCreationView();
        if (!fgInvoice.TextMatrix(1, 1).isEmpty()) {
            cmdPrint.visible = true;
            cmdPrint.enabled = true;
        }
        break;
    }
    case 1:
        Hide();
        m_session.ShowScreen(ScreenId::frmStartup);
        break;
    case 2:
        txtInvoiceNo.text = QString::number(NextInvoiceNo);
        break;
    case 3:
        ShowPanel(5);
        break;
    case 4:
        AdditionalCharge = Money();
        txtMisc.text = FormatMoney(Money());
        [[fallthrough]];
    case 5:
        cmdInvoiceContinue.enabled = false;
        cmdInvoice[9].SetFocus();
        break;
    case 7:
        ShowPanel(2);
        break;
    case 8:
        ShowPanel(4);
        break;
    case 10:
        ShowPanel(5);
        break;
    case 9:
        ComputeTotals();
        ComputeGrandTotal();
        cmdInvoiceContinue.enabled = true;
        if (ckPrepaid.checked()) {
            txtPrepaid.text = txtGrandTotal.text;
            fraPrePaid.visible = true;
            cboPrepaid.SetListIndex(-1);
            cboPrepaid.text.clear();
            cboPrepaid.SetFocus();
        }
        break;
    default:
        break;
    }
}

void frmInvoice::cmdPrint_Click() {
    const bool perforated = m_session.settings.program.optReturn;
    Label2[6].visible = perforated;
    fraPrintReady.caption =
        perforated ? QStringLiteral("Insert Perforated Response Paper") : QStringLiteral("Insert Standard Paper");
    OpenPrintView();
}

void frmInvoice::txtInvoiceNo_LostFocus() {
    if (!txtInvoiceNo.text.isEmpty()) return;
    message(QStringLiteral("Enter an Invoice Number"));
    if (txtInvoiceNo.visible) txtInvoiceNo.SetFocus();
}

void frmInvoice::txtReference_LostFocus() {
    if (txtReference.text.isEmpty())
        txtReference.text = QStringLiteral("Prepared ") + ShortDateText(m_session.today());
}

void frmInvoice::cmdCancelPrint_Click() {
    ClearTotals();
    AdditionalCharge = Money();
    OpenCreationView();
}

void frmInvoice::cmdRedo_Click() {
    if (fraPrintReady.visible) fraPrintReady.visible = false;
    ClearInvoice();
}

void frmInvoice::cmdExit_Click() {
    ClearInvoice();
    txtInvoiceNo.text.clear();
    Hide();
    m_session.ShowScreen(ScreenId::frmStartup);
}

void frmInvoice::cboPrepaid_Click() {
    const int i = cboPrepaid.listIndex;
    if (i == 0 || i == 1) {
        Label2[88].visible = true;
        cboPrepaid.SetFocus();
    }
}

void frmInvoice::cmdPrepaid_Click(int index) {
    if (index == 0) {
        cmdInvoiceContinue_Click();
        return;
    }
    fraPrePaid.visible = false;
    // The answer is compared with a value no button gives, so the box stays ticked either way;
    // the user unticks it in the setup view.
    const MsgBoxResult answer = m_session.platform.dialogs.MsgBox(
        QStringLiteral("Click YES to Cancel Prepaid Posting"), vbYesNo, QStringLiteral("Cancel PrePaid"));
    if (static_cast<int>(answer) == -1) ckPrepaid.value = 0;
}

} // namespace ostrel
