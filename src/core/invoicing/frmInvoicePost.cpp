#include "frmInvoice.h"

#include "AssociateJournal.h"
#include "InvoiceImage.h"
#include "InvoiceNumber.h"
#include "PostingRecords.h"
#include "accounts/frmNewCustomer.h"
#include "catalogue/InventoriedItemRecord.h"
#include "catalogue/frmServices.h"
#include "printing/ConfirmedPrint.h"
#include "scheduling/AppointmentSlip.h"
#include "shell/Session.h"
#include "store/LocaleText.h"
#include "store/StoreError.h"

#include <cmath>
#include <optional>

namespace ostrel {

namespace {

const QString kHours = QStringLiteral("Hrs");

// A quantity that cannot be read as a number stops the posting the way a failed conversion does:
// through the print loop's error path.
struct PostingStopped {};

std::optional<double> numberOf(const QString& text) {
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    if (ok && std::isfinite(value)) return value;
    if (const auto money = Money::fromDisplayText(text)) return money->toDouble();
    return std::nullopt;
}

// A whole 16-bit number, rounded half to even the way the conversion rounds.
qint16 wholeQuantity(const QString& text) {
    const std::optional<double> value = numberOf(text);
    if (!value) throw PostingStopped{};
    const double whole = std::nearbyint(*value);
    if (whole < -32768 || whole > 32767) throw PostingStopped{};
    return static_cast<qint16>(whole);
}

} // namespace

void frmInvoice::LoadSlip() {
    DiskRoutines& disk = m_session.disk;
    m_session.Guarded([&] {
        SlipName = ReadFileToPrint(disk).value_or(QString());
        if (!disk.FileExists(appointmentFileName(SlipName))) return;
        const AppointmentSlip slip = ReadSlip(disk, SlipName);
        Status = slip.Status;
        SlipDate = slip.SlipDate;
        SlipName = slip.SlipName;
        SlipPointOfService = slip.SlipPointOfService;
        Slots = slip.Slots;
        SlipStartRow = slip.SlipStartRow;
        const QString account = slip.Customer[0].trimmed();
        for (int i = 0; i <= 5; ++i) {
            lblCustomer[i].caption = slip.Customer[i + 1].trimmed();
            lblCustomer[i + 6].caption = slip.Customer[i + 1].trimmed();
        }
        lblCustomer[12].caption = slip.Customer[7].trimmed();
        SlipComment = slip.SlipComment;

        lblAcctNo.caption = account;
        lblAcct.caption = account;
        const int assignment = SlipPointOfService - 1;
        AssignedTo = cboAssignments.List(assignment).trimmed();
        if (assignment >= 0 && assignment < cboAssignments.ListCount()) cboAssignments.SetListIndex(assignment);
        txtAppointment.text = SlipName;

        ClearInvoice();
        int row = 1;
        AdditionalCharge = Money();
        const ProgramSettings& program = m_session.settings.program;
        for (const SlipService& service : ReadServicesFile(disk, SlipName)) {
            if (row > kMaxLines) break;
            m_slipTaxFlag = program.taxServices() ? kTrue : kFalse;
            AddLineRow(row++, QStringLiteral("1"), service.name, ShortDateText(SlipDate), FormatMoney(service.cost),
                       FormatMoney(service.cost), m_slipTaxFlag);
        }
        for (const SlipSoldItem& item : ReadSoldItemsFile(disk, SlipName)) {
            if (row > kMaxLines) break;
            // The flag of the services goes on to the sold items unless sold items are taxed.
            if (program.taxSalesItems()) m_slipTaxFlag = kTrue;
            const double quantity = numberOf(item.quantity).value_or(0);
            const double price = numberOf(item.unitCost).value_or(0);
            AddLineRow(row++, item.quantity, item.description, QString(), FormatMoneyText(item.unitCost),
                       FormatMoney(Money::fromDouble(quantity * price)), m_slipTaxFlag);
        }
        LineCount = static_cast<qint16>(row - 1);
        ComputeTotals();
    });
}

InvoicePageContents frmInvoice::PageContents() const {
    InvoicePageContents page;
    page.invoiceNo = txtInvoiceNo.text;
    page.account = lblAcct.caption.trimmed();
    page.date = ShortDateText(m_session.today());
    page.reference = txtReference.text;
    for (int i = 0; i <= 5; ++i)
        page.billTo[i] = lblCustomer[i + 6].caption;
    const frmNewCustomer* account = m_session.ScreenAs<frmNewCustomer>(ScreenId::frmNewCustomer);
    page.usaStyle = account ? account->UsaAddressMode : m_session.settings.isUsaStyle();
    page.remittance = m_session.settings.program.optReturn;
    page.draft = DraftMode;
    for (int row = 1; row <= LineCount; ++row) {
        InvoicePageContents::Line line;
        for (int c = 0; c < 6; ++c)
            line[c] = fgInvoice.TextMatrix(row, c);
        page.lines.push_back(line);
    }
    page.subTotal = txtTotal.text;
    page.tax = txtTax.text;
    page.tax2 = txtTax2.text;
    page.total = txtGrandTotal.text;
    page.handling = txtMisc.text;
    page.taxHeading1 = m_session.settings.tax.cboTaxHeading1;
    page.taxHeading2 = m_session.settings.tax.cboTaxHeading2;
    return page;
}

void frmInvoice::PrintInvoice() {
    PrintInvoicePage(m_printer, PageContents());
    DraftMode = false;
}

void frmInvoice::cmdInvoiceContinue_Click() {
    if (LineCount == 0) {
        message(QStringLiteral("The Invoice contains no Items"), QStringLiteral("No Items Entered"));
        OpenCreationView();
        return;
    }
    ConfirmedPrint document;
    document.question = QStringLiteral("Was the Invoice Printed Correctly");
    document.retry = QStringLiteral("Would you like to Retry Printing this Invoice");
    document.draw = [this] { PrintInvoice(); };
    document.afterPrint = [this] { PostInvoice(); };
    PrintResult result = PrintResult::Failed;
    try {
        result = PrintAndConfirm(m_printer, document);
    } catch (const PostingStopped&) {
        m_session.platform.dialogs.MsgBox(kPrintErrorMessage, vbOKOnly, kPrintErrorTitle);
    } catch (const StoreError& e) {
        m_session.ReportStoreError(e);
    }
    DraftMode = false;
    if (result == PrintResult::Printed || result == PrintResult::NotPrinted) {
        Cleanup();
        return;
    }
    // Stopped: the invoice stays on the screen and must be finalized again.
    cmdInvoiceContinue.enabled = false;
}

void frmInvoice::PostInvoice() {
    DiskRoutines& disk = m_session.disk;
    const QDate today = m_session.today();
    const QString invoiceNo = txtInvoiceNo.text.trimmed();

    // 1. Sold items: each line whose description is a catalogue item, once per listing.
    QStringList catalogueItems = m_lists.frmCreate.cboItems.items;
    for (QString& entry : catalogueItems)
        entry = entry.trimmed();
    QVector<SoldItemRecord> sold;
    for (int row = 1; row <= LineCount; ++row) {
        const QString description = fgInvoice.TextMatrix(row, kDescription).trimmed();
        for (const QString& entry : catalogueItems) {
            if (entry != description) continue;
            sold.push_back({description, today, QString::number(NextInvoiceNo),
                            wholeQuantity(fgInvoice.TextMatrix(row, kQuantity))});
        }
    }
    AddSoldItems(disk, sold);

    // 2. The associate journal, kept in the Associate Sales style only.
    if (m_session.settings.program.optBusinessType(1)) {
        AssociateJournalRecord entry;
        entry.Transaction = lblCustomer[6].caption;
        entry.Account = invoiceNo;
        entry.JournalDate = SlipDate;
        entry.Associate = AssignedTo;
        entry.SubTotal = SubTotal;
        entry.Tax = Tax1 + Tax2;
        entry.Discount = Money();
        entry.Gross = GrandTotal;
        AddJournalRecord(disk, entry);
    }

    // 3 and 4. The customer's ledger, and a payment taken with the invoice.
    // Entries of one ledger go in together, so a crash leaves both or neither.
    const LedgerRecord charged{lblCustomer[6].caption, lblAcctNo.caption, ShortDateText(today), invoiceNo,
                               txtGrandTotal.text};
    if (!ckPrepaid.checked()) {
        AddLedgerEntries(disk, lblAcctNo.caption, {charged}, today);
    } else {
        const LedgerRecord paid{lblCustomer[0].caption, lblAcct.caption, ShortDateText(today),
                                QStringLiteral("Payment Received"), txtPrepaid.text};
        if (LedgerFileName(lblAcct.caption).compare(LedgerFileName(lblAcctNo.caption), Qt::CaseInsensitive) == 0) {
            AddLedgerEntries(disk, lblAcctNo.caption, {charged, paid}, today);
        } else {
            AddLedgerEntries(disk, lblAcctNo.caption, {charged}, today);
            AddLedgerEntries(disk, lblAcct.caption, {paid}, today);
        }
        AddPaymentRecord(disk, lblAcct.caption, lblCustomer[0].caption, txtGrandTotal.text, cboPrepaid.text, SlipDate);
    }

    // 5. The image of the whole invoice, replacing any of the same number.
    disk.CloseAllFiles();
    PostedInvoice posted;
    posted.invoiceNo = txtInvoiceNo.text;
    posted.accountNo = lblAcctNo.caption;
    for (int i = 0; i <= 5; ++i)
        posted.customer[i] = lblCustomer[i + 6].caption;
    posted.dateText = ShortDateText(today);
    posted.reference = txtReference.text;
    posted.attention = txtShipto[6].text;
    for (int row = 1; row <= LineCount; ++row) {
        InvoiceImage::BodyLine line;
        for (int c = 0; c < 6; ++c)
            line[c] = fgInvoice.TextMatrix(row, c);
        posted.lines.push_back(line);
    }
    posted.total = txtTotal.text;
    posted.tax = txtTax.text;
    posted.tax2 = txtTax2.text;
    posted.grandTotal = txtGrandTotal.text;
    posted.misc = txtMisc.text;
    WriteInvoiceImage(disk, MakeInvoiceImage(posted));

    // 6. Stock, by name.
    UpdateStock();

    // 7. Taxes.
    const TaxSettings& tax = m_session.settings.tax;
    QVector<std::pair<QString, Money>> taxes;
    if (Tax1 > Money()) taxes.append({tax.cboTaxHeading1, Tax1});
    if (Tax2 > Money()) taxes.append({tax.cboTaxHeading2, Tax2});
    AddTaxRecords(disk, taxes, txtInvoiceNo.text, today);

    // 8 and 9. The number stays in its box through the clearing.
    ClearInvoice();
    NextInvoiceNo = static_cast<qint32>(std::lround(numberOf(txtInvoiceNo.text).value_or(0))) + 1;
    SaveInvoiceNumber(disk, NextInvoiceNo);
}

void frmInvoice::UpdateStock() {
    DiskRoutines& disk = m_session.disk;
    const QString& file = InventoriedItemRecord::kFileName;
    if (!disk.FileExists(file)) return;
    const int count = disk.FileRecordCount(file, InventoriedItemRecord::kLength);
    QVector<Record> records = ReadAllRecords(disk, file, InventoriedItemRecord::kLength);
    if (records.size() > count) records.resize(count);
    // The names, read once: every line is looked up among all of them.
    QStringList names;
    names.reserve(records.size());
    for (const Record& r : records)
        names.append(r.text(InventoriedItemRecord::kDescriptionOffset, InventoriedItemRecord::kDescriptionWidth).trimmed());
    bool changed = false;
    // Whatever was taken off before a line that cannot be read stays taken off.
    auto writeBack = [&] {
        if (!changed) return;
        QByteArray bytes;
        for (const Record& r : records)
            bytes += r.bytes();
        disk.PutRecords(file, InventoriedItemRecord::kLength, 1, bytes);
    };
    for (int row = 1; row <= LineCount; ++row) {
        const QString quantityText = fgInvoice.TextMatrix(row, kQuantity);
        if (quantityText.contains(kHours)) continue;
        const std::optional<double> quantity = numberOf(quantityText);
        if (!quantity) {
            writeBack();
            throw PostingStopped{};
        }
        const QString name = fgInvoice.TextMatrix(row, kDescription).trimmed();
        for (qsizetype i = 0; i < records.size(); ++i) {
            if (names[i] != name) continue;
            Record& r = records[i];
            const float single = static_cast<float>(*quantity);
            double left = std::nearbyint(r.int16(InventoriedItemRecord::kOnHandOffset) - static_cast<double>(single));
            if (left < 0) {
                left = 0;
                message(QStringLiteral("Item ") + name + QStringLiteral(" may be low in Inventory"));
            }
            r.setInt16(InventoriedItemRecord::kOnHandOffset, static_cast<qint16>(std::min(left, 32767.0)));
            changed = true;
            break;
        }
    }
    writeBack();
    if (frmServices* services = m_session.ScreenAs<frmServices>(ScreenId::frmServices))
        services->store().LoadCatalogue();
}

void frmInvoice::Cleanup() {
    DiskRoutines& disk = m_session.disk;
    const QString question = QStringList{QStringLiteral("Would you like to DELETE the Appointment Files?"),
                                         QStringLiteral("This cannot be reversed, the Day Schedule is not DELETED"),
                                         QStringLiteral("You can DELETE these files manually via the Work Order Routine"),
                                         QString(),
                                         QStringLiteral("The Day Schedule is automatically DELETED"),
                                         QStringLiteral("The Day after it's Scheduled Date")}
                                 .join(u'\n');
    const MsgBoxResult answer =
        m_session.platform.dialogs.MsgBox(question, vbYesNo, QStringLiteral("Delete Appointment Records"));
    m_session.Guarded([&] {
        if (answer == vbYes) {
            DeleteAppointment(disk, SlipName + QStringLiteral(".txt"));
            disk.DeleteDataFile(QStringLiteral("/FileToPrint.txt"));
            return;
        }
        // The invoiced slip keeps eight customer fields from the name on: each stands one place
        // earlier than on a slip that is not invoiced, which its readers expect.
        Status = slipstatus::Invoiced;
        AppointmentSlip slip;
        slip.Status = Status;
        slip.SlipDate = SlipDate;
        slip.SlipName = txtAppointment.text.trimmed();
        slip.SlipPointOfService = SlipPointOfService;
        slip.Slots = Slots;
        slip.SlipStartRow = SlipStartRow;
        for (int i = 0; i <= 7; ++i)
            slip.Customer[i] = lblCustomer[i].caption;
        slip.SlipComment = SlipComment;
        RewriteInvoicedSlip(disk, SlipName, slip);
    });
    ckExempt.value = 0;
    ckApplyVolumeDiscount.value = 0;
    ckPrepaid.value = 0;
    fraPrePaid.visible = false;
    cmdExit_Click();
}

} // namespace ostrel
