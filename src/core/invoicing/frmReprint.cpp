#include "frmReprint.h"

#include "InvoiceImage.h"
#include "shell/GridSort.h"
#include "shell/Session.h"
#include "store/Money.h"
#include "store/StoreError.h"
#include "util/VbText.h"

namespace ostrel {

namespace {

const QString kFolder = QStringLiteral("/CompletedInvoices");

void setHeadings(Grid& g, std::initializer_list<const char*> headings) {
    g.fixedRows = 1;
    g.fixedCols = 0;
    g.SetCols(static_cast<int>(headings.size()));
    g.SetRows(1);
    int c = 0;
    for (const char* h : headings) g.SetTextMatrix(0, c++, QString::fromLatin1(h));
}

bool isImageName(const QString& name) {
    return name.endsWith(QStringLiteral(".txt"), Qt::CaseInsensitive) && name.size() > 4;
}

} // namespace

frmReprint::frmReprint(Session& session)
    : Screen(QStringLiteral("frmReprint")), m_session(session), m_printer(session, session.platform.printDialogs) {
    caption = QStringLiteral("Completed Invoices Details and Reprint Routine");

    setHeadings(fgReceivables, {"Invoice Number", "Account Number", "Account Name", "Invoice Date", "Amount", "Sort"});
    fgReceivables.toolTip = QStringLiteral("Displays all Completed Invoices");
    // The sort key is for the program only.
    fgReceivables.colWidths = {1800, 1800, 3000, 1400, 1400, 0};
    setHeadings(fgItems, {"Units", "Description", "Date", "Unit Cost", "Extension"});
    fgItems.toolTip = QStringLiteral("Body of the Selected Invoice");
    fgItems.colWidths = {900, 3600, 1200, 1200, 1200};

    fraInvoice.caption = QStringLiteral("Invoice Details");
    fraInvoice.visible = false;
    for (int i : {19, 32, 33, 27, 17, 9, 1, 22}) Label1[i].caption.clear();
    for (int i = 0; i < 6; ++i) {
        lblBillTo[i].caption.clear();
        lblShipTo[i].caption.clear();
    }
    for (int i : {0, 1, 9, 2, 4, 5, 6}) lblInvoice[i].caption.clear();
    txtMemo.multiLine = true;

    cmdHide.caption = QStringLiteral("Re-&Select");
    cmdPrint.caption = QStringLiteral("&RePrint");
    cmdMemo.caption = QStringLiteral("Clear&M&emo");
    cmdExit.caption = QStringLiteral("&Menu");
    cmdReport.caption = QStringLiteral("Print&Report");
    cmdKill.caption = QStringLiteral("Delete");
    DTPicker1.toolTip = QStringLiteral("Invoices prior to this date will be deleted");
    mnuSort.caption = QStringLiteral("Toggle Sort Column");
    fraSort.caption = QStringLiteral("Sort Option");
    fraSort.visible = false;
    optCol[0].caption = QStringLiteral("Invoice Number");
    optCol[1].caption = QStringLiteral("Invoice Date");
    optCol[2].caption = QStringLiteral("Account Name");
    optSort[0].caption = QStringLiteral("Asending Order");
    optSort[1].caption = QStringLiteral("Desending Order");
    cmdMode.caption = QStringLiteral("Sort Grid");

    controls.add(QStringLiteral("fgReceivables"), fgReceivables);
    controls.add(QStringLiteral("fgItems"), fgItems);
    controls.add(QStringLiteral("fraInvoice"), fraInvoice);
    controls.add(QStringLiteral("Label1"), Label1);
    controls.add(QStringLiteral("lblBillTo"), lblBillTo);
    controls.add(QStringLiteral("lblShipTo"), lblShipTo);
    controls.add(QStringLiteral("txtAttn"), txtAttn);
    controls.add(QStringLiteral("lblInvoice"), lblInvoice);
    controls.add(QStringLiteral("txtMemo"), txtMemo);
    controls.add(QStringLiteral("cmdHide"), cmdHide);
    controls.add(QStringLiteral("cmdPrint"), cmdPrint);
    controls.add(QStringLiteral("cmdMemo"), cmdMemo);
    controls.add(QStringLiteral("cmdExit"), cmdExit);
    controls.add(QStringLiteral("cmdReport"), cmdReport);
    controls.add(QStringLiteral("cmdKill"), cmdKill);
    controls.add(QStringLiteral("DTPicker1"), DTPicker1);
    controls.add(QStringLiteral("mnuSort"), mnuSort);
    controls.add(QStringLiteral("fraSort"), fraSort);
    controls.add(QStringLiteral("optCol"), optCol);
    controls.add(QStringLiteral("optSort"), optSort);
    controls.add(QStringLiteral("cmdMode"), cmdMode);
}

QString frmReprint::SortKey(QDate date) {
    return QString::number(date.year()) + QString::number(date.dayOfYear() + 100);
}

QString frmReprint::MoneyText(const QString& field) {
    const auto amount = Money::fromDisplayText(field);
    return amount ? FormatMoney(*amount) : field;
}

void frmReprint::Form_Activate() {
    const QDate today = m_session.today();
    DTPicker1.value = today.addDays(1);
    Label1[1].caption = m_session.settings.tax.cboTaxHeading1;
    Label1[22].caption = m_session.settings.tax.cboTaxHeading2;
    // The state is a field of its own only in the USA style.
    const bool usa = m_session.settings.isUsaStyle();
    lblBillTo[5].visible = usa;
    lblShipTo[5].visible = usa;
    fraInvoice.visible = false;
    fgReceivables.visible = true;
    fraSort.visible = false;
    mnuSort.enabled = true;
    fgItems.SetRows(1);
    ListImages();
}

bool frmReprint::ListImages() {
    m_damaged.clear();
    QVector<DataRoot::ListedFile> images = m_session.root.files(kFolder);
    images.removeIf([](const DataRoot::ListedFile& f) { return !isImageName(f.name); });
    if (images.isEmpty()) {
        m_session.ShowMessage(QStringLiteral("No Completed Invoices Exist"), QString());
        ReturnToMenu();
        return false;
    }

    fgReceivables.SetRows(static_cast<int>(images.size()) + 1);
    int row = 1;
    for (const DataRoot::ListedFile& image : images) {
        const QString name = kFolder + u'/' + image.name;
        try {
            TextReader reader = m_session.disk.ReadTextFileAt(image.path, name);
            const InvoiceImage head = ReadInvoiceImageHead(reader);
            const QDate date = InvoiceImage::parseDate(head.dateText);
            if (!date.isValid())
                throw StoreError(name, QStringLiteral("The fourth line, \"%1\", is not a date.").arg(head.dateText));
            fgReceivables.SetTextMatrix(row, kInvoiceNumber, head.invoiceNo);
            fgReceivables.SetTextMatrix(row, kAccountNumber, head.accountNo);
            fgReceivables.SetTextMatrix(row, kAccountName, head.customerName);
            fgReceivables.SetTextMatrix(row, kInvoiceDate, head.dateText);
            fgReceivables.SetTextMatrix(row, kAmount, head.grandTotalText);
            fgReceivables.SetTextMatrix(row, kSortKey, SortKey(date));
            ++row;
        } catch (const StoreError& e) {
            m_damaged.append(name + QStringLiteral(": ") + e.problem());
        }
    }
    fgReceivables.SetRows(row);
    m_session.disk.CloseAllFiles();
    if (!m_damaged.isEmpty()) {
        // A damaged image is left where it is; the others are listed.
        m_session.ShowMessage(QStringLiteral("These invoice images could not be read and are not listed:\n\n") +
                                  m_damaged.join(u'\n'),
                              QStringLiteral("Damaged Invoice Images"));
    }
    m_sortColumn = kInvoiceNumber;
    m_sortDescending = false;
    SortGrid();
    fgReceivables.row = fgReceivables.Rows() > 1 ? 1 : 0;
    return true;
}

void frmReprint::SortGrid() {
    SortGridGeneric(fgReceivables, m_sortColumn, m_sortDescending);
}

void frmReprint::mnuSort_Click() {
    fraSort.visible = true;
}

void frmReprint::cmdMode_Click() {
    if (optCol[0].value) m_sortColumn = kInvoiceNumber;
    else if (optCol[1].value) m_sortColumn = kSortKey;
    else if (optCol[2].value) m_sortColumn = kAccountName;
    if (optSort[0].value) m_sortDescending = false;
    else if (optSort[1].value) m_sortDescending = true;
    SortGrid();
    fraSort.visible = false;
}

void frmReprint::cmdHide_Click() {
    fgReceivables.visible = true;
    fraInvoice.visible = false;
    mnuSort.enabled = true;
}

void frmReprint::DTPicker1_Change() {
    const QDate today = m_session.today();
    if (DTPicker1.value > today) DTPicker1.value = today;
}

void frmReprint::cmdExit_Click() {
    ReturnToMenu();
}

void frmReprint::ReturnToMenu() {
    m_session.disk.CloseAllFiles();
    m_session.ShowScreen(ScreenId::frmStartup);
    Hide();
}

} // namespace ostrel
