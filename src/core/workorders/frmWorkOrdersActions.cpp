#include "frmWorkOrders.h"

#include "frmTerms.h"
#include "printing/ConfirmedPrint.h"
#include "scheduling/SlotArithmetic.h"
#include "shell/Session.h"
#include "store/Money.h"
#include "util/VbText.h"

#include <cmath>

namespace ostrel {

namespace {

// Columns of the two service grids.
enum ServicesColumn { kName, kTime, kPrice, kSlots };
enum AddedColumn { kAddedName, kAddedPrice, kAddedSlots };

const QString kWorkOrderCancelled = QStringLiteral("The Work Order will not be Printed");
const QString kPicklistCancelled = QStringLiteral("The Picklist will not be Printed");

} // namespace

// Adding services.

void frmWorkOrders::fgAddServices_Click() { m_addRow = fgAddServices.row; }

void frmWorkOrders::fgAddServices_RightClick() {
    const int r = m_addRow;
    if (r < 1 || r >= fgAddServices.Rows()) return;
    const QString name = fgAddServices.TextMatrix(r, 0);
    if (name.isEmpty()) return;
    for (int row = 1; row < fgServices.Rows(); ++row) {
        if (fgServices.TextMatrix(row, kName) != name) continue;
        m_session.Beep();
        const MsgBoxResult answer = m_session.platform.dialogs.MsgBox(
            name + QStringLiteral(" already exists") + u'\n' +
                QStringLiteral("Click YES to add another entry of this Service"),
            vbYesNo + vbQuestion, QStringLiteral("Accept Entry"));
        if (answer == vbNo) return;
        break;
    }
    ServicesAdded = true;
    const QString time = fgAddServices.TextMatrix(r, 1);
    const QString price = fgAddServices.TextMatrix(r, 2);
    const QString slots = QString::number(ParseTimeLabel(time));
    appendRow(fgServices, {name, time, price, slots});
    appendRow(fgItemsAdded, {name, price, slots});
}

void frmWorkOrders::saveAddedServices() {
    imgSave[0].enabled = false;
    cmdWorkOrders[4].enabled = false;
    const QStringList entries = selectedEntries();
    if (!entries.isEmpty()) {
        const QString name = entries.first();
        // An added service's price goes to the file as a whole number, and its slot count where a
        // reader takes the cost back: the order and the rounding are the file's as it has always been.
        if (m_session.disk.FileExists(servicesFileName(name))) {
            std::vector<SlipService> added;
            for (int r = 1; r < fgItemsAdded.Rows(); ++r) {
                const QString price = fgItemsAdded.TextMatrix(r, kAddedPrice);
                if (price.isEmpty()) continue;
                const Money amount = Money::fromDisplayText(price).value_or(Money());
                const qint64 whole = static_cast<qint64>(std::nearbyint(amount.toDouble()));
                added.push_back({fgItemsAdded.TextMatrix(r, kAddedName), Money::fromWhole(whole),
                                 static_cast<qint16>(fgItemsAdded.TextMatrix(r, kAddedSlots).toInt())});
            }
            AppendServicesFile(m_session.disk, name, added);
        }
        AppointmentSlip slip = ReadSlip(m_session.disk, name);
        int slots = 0;
        for (int r = 1; r < fgServices.Rows(); ++r)
            slots += fgServices.TextMatrix(r, kSlots).toInt();
        slip.Slots = static_cast<qint16>(slots);
        WriteSlip(m_session.disk, slip);
    }
    ServicesAdded = false;
    emptyGrid(fgServices);
    emptyGrid(fgItemsAdded);
    returnToMenu();
}

// Purge.

void frmWorkOrders::purgeExpired() {
    Dialogs& d = m_session.platform.dialogs;
    const QDate today = m_session.today();
    if (d.MsgBox(QStringLiteral("This will Delete all Appointments") + u'\n' + QStringLiteral("Created before ") +
                     dateText(today) + u'\n' + QStringLiteral("They cannot be retrieved"),
                 vbYesNo + vbQuestion, QStringLiteral("Delete Old Appointments")) != vbYes)
        return;
    if (d.MsgBox(QStringLiteral("Are you Sure?"), vbYesNo + vbQuestion, QStringLiteral("Delete Verification")) != vbYes)
        return;
    clearEntries();
    PurgeMode = true;
    LoadWorkorders();
    for (const QString& name : lstWorkorders.items) {
        const AppointmentSlip slip = ReadSlipHeader(m_session.disk, name);
        if (slip.SlipDate < today) DeleteSlipFilesByNumber(m_session.disk, name);
    }
    Reset();
}

// Hand-over to the invoice.

void frmWorkOrders::handOver() {
    WriteFileToPrint(m_session.disk, m_slip.SlipName);
    m_session.disk.CloseAllFiles();
    if (!m_session.HasScreen(ScreenId::frmInvoice)) {
        m_session.ShowScreen(ScreenId::frmInvoice); // says the screen is not there; this one stays
        return;
    }
    Hide();
    m_session.ShowScreen(ScreenId::frmInvoice);
}

// Printing.

WorkOrderFixedPart frmWorkOrders::FixedPart() const {
    WorkOrderFixedPart f;
    f.shopRepair = !m_session.settings.program.optBusinessType(1);
    f.ckInstructions = ckInstructions.value;
    f.returnParts = m_session.settings.txtReturnParts;
    if (optDisclaimer[1].value)
        f.disclaimer = m_terms.customDisclaimer();
    else if (optDisclaimer[0].value)
        f.disclaimer = m_terms.genericDisclaimer();
    if (optTerms[1].value)
        f.terms = m_terms.customTerms();
    else if (optTerms[0].value)
        f.terms = m_terms.genericTerms();
    return f;
}

WorkOrderContent frmWorkOrders::DocumentContent(const QString& slipName) {
    WorkOrderContent c;
    c.number = slipName;
    // The number, date and account are the entry's own; the customer, comment and lists are what
    // the screen shows.
    const AppointmentSlip entry = slipName == m_slip.SlipName ? m_slip : ReadSlipHeader(m_session.disk, slipName);
    c.date = dateText(entry.SlipDate);
    c.account = vbTrim(entry.Customer[0]);
    for (int i = 0; i < 6; ++i)
        c.customer[i] = vbTrim(m_slip.Customer[i + 1]);
    c.comment = m_slip.SlipComment;
    for (int r = 1; r < fgServices.Rows(); ++r)
        c.services.push_back({fgServices.TextMatrix(r, kName), fgServices.TextMatrix(r, kTime),
                              fgServices.TextMatrix(r, kPrice)});
    for (int r = 1; r < fgPicklist.Rows(); ++r)
        c.picklist.push_back({fgPicklist.TextMatrix(r, 0), fgPicklist.TextMatrix(r, 1)});
    return c;
}

void frmWorkOrders::printDocuments() {
    fraTerms.visible = false;
    if (ckCompletion.checked()) printSummary();
    if (ckPick.checked()) printPicklist();
    printWorkOrders();
    if (ckPrintInvoice.checked())
        handOver();
    else
        Reset();
}

void frmWorkOrders::printSummary() {
    const QStringList entries = selectedEntries();
    if (entries.isEmpty()) return;
    try {
        m_printer.ShowPrinterDialog();
        m_printer.InitPrinter(QStringLiteral("Portrait"), m_session.settings.colors.ckColor);
        PrintSummaryReport(m_printer, DocumentContent(entries.first()), dateText(m_session.today()));
    } catch (const PrintError& e) {
        ReportPrintFailure(m_session.platform.dialogs, e.number(), false);
    } catch (const std::exception&) {
        ReportPrintFailure(m_session.platform.dialogs, PrintError::kPrinterError, false);
    }
}

void frmWorkOrders::printPicklist() {
    ConfirmedPrint doc;
    doc.question = QStringLiteral("Was the Picklist printed Correctly?");
    doc.questionTitle = QStringLiteral("Print Confirmation");
    doc.retry = QStringLiteral("Would you like to reprint it?");
    doc.retryTitle = QStringLiteral("Reprint Confirmation");
    doc.cancelledMessage = kPicklistCancelled;
    const WorkOrderContent content = DocumentContent(m_slip.SlipName);
    doc.draw = [this, content] { PrintPicklist(m_printer, content); };
    PrintAndConfirm(m_printer, doc);
}

void frmWorkOrders::printWorkOrders() {
    const QStringList entries = selectedEntries();
    if (entries.isEmpty()) return;
    Dialogs& d = m_session.platform.dialogs;
    try {
        m_printer.ShowPrinterDialog();
    } catch (const PrintError& e) {
        ReportPrintFailure(d, e.number(), true, kWorkOrderCancelled);
        return;
    }
    const WorkOrderFixedPart fixed = FixedPart();
    for (const QString& name : entries) {
        const WorkOrderContent content = DocumentContent(name);
        for (;;) {
            try {
                m_printer.InitPrinter(QStringLiteral("Portrait"), m_session.settings.colors.ckColor);
                PrintWorkOrder(m_printer, content, fixed);
            } catch (const PrintError& e) {
                ReportPrintFailure(d, e.number(), false);
                return;
            } catch (const std::exception&) {
                ReportPrintFailure(d, PrintError::kPrinterError, false);
                return;
            }
            if (d.MsgBox(QStringLiteral("Was the Work Order Printed Correctly"), vbYesNo + vbQuestion,
                         kPrintConfirmationTitle) != vbNo)
                break;
            if (d.MsgBox(QStringLiteral("Would you like to Reprint this Work Order"), vbYesNo + vbQuestion,
                         kPrintRetryTitle) != vbYes)
                break;
        }
    }
}

void frmWorkOrders::PrintSampleWorkOrder() {
    WorkOrderContent c;
    c.number = QStringLiteral("WO # 12345");
    c.date = dateText(m_session.today());
    c.account = QStringLiteral("12345678");
    try {
        m_printer.ShowPrinterDialog();
        m_printer.InitPrinter(QStringLiteral("Portrait"), m_session.settings.colors.ckColor);
        PrintWorkOrder(m_printer, c, FixedPart());
    } catch (const PrintError& e) {
        ReportPrintFailure(m_session.platform.dialogs, e.number(), true, kWorkOrderCancelled);
    } catch (const std::exception&) {
        ReportPrintFailure(m_session.platform.dialogs, PrintError::kPrinterError, false);
    }
}

} // namespace ostrel
