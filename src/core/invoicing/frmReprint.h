#pragma once

#include "controls/Controls.h"
#include "controls/PickerControls.h"
#include "controls/Screen.h"
#include "platform/ControlRegistry.h"
#include "printing/PrinterRoutines.h"

#include <QDate>
#include <QStringList>

namespace ostrel {

class Session;
struct InvoiceImage;
struct InvoicePageContents;

// The look-back at completed invoices: one row per image in /CompletedInvoices, the detail of one,
// its reprint, the invoices report and the deletion of old images. Nothing is changed on disk but
// by deletion and the invoice memo.
class frmReprint : public Screen {
public:
    // Columns of fgReceivables; the last is the hidden sort key of the date.
    enum Column { kInvoiceNumber = 0, kAccountNumber = 1, kAccountName = 2, kInvoiceDate = 3, kAmount = 4, kSortKey = 5 };

    explicit frmReprint(Session& session);

    // Each opening lists the images afresh; with none the screen closes again at once.
    void Form_Activate() override;

    void fgReceivables_Click();
    void cmdHide_Click();
    void cmdMemo_Click();
    void cmdPrint_Click();
    void cmdExit_Click();
    void cmdReport_Click();
    void cmdKill_Click();
    void DTPicker1_Change();
    void mnuSort_Click();
    void cmdMode_Click();

    Grid fgReceivables;
    Grid fgItems;
    Frame fraInvoice;
    // 19 creation date, 32 ship via, 33 ship date, 27 invoice no, 17 account, 9 reference;
    // 1 and 22 carry the names of the two taxes.
    ControlArray<Label> Label1;
    ControlArray<Label> lblBillTo;
    ControlArray<Label> lblShipTo;
    TextBox txtAttn;
    // 0 sub-total, 1 first tax, 9 second tax, 2 grand total, 4 shipping, 5 handling, 6 discount.
    ControlArray<Label> lblInvoice;
    TextBox txtMemo;
    CommandButton cmdHide;
    CommandButton cmdPrint;
    CommandButton cmdMemo;
    CommandButton cmdExit;
    CommandButton cmdReport;
    CommandButton cmdKill;
    DatePicker DTPicker1;
    MenuItem mnuSort;
    Frame fraSort;
    ControlArray<OptionButton> optCol;
    ControlArray<OptionButton> optSort;
    CommandButton cmdMode;

    ControlRegistry controls;

    // The images the last opening could not list, each as "name: problem".
    const QStringList& damagedImages() const { return m_damaged; }
    // The column and direction of the last sort.
    int sortColumn() const { return m_sortColumn; }
    bool sortDescending() const { return m_sortDescending; }

    // The hidden sort key of an invoice date: the year followed by the day of the year plus 100.
    static QString SortKey(QDate date);
    // The text a money field of the image shows: an amount in the money form, anything else as read.
    static QString MoneyText(const QString& field);
    // The page a reprint draws: the open detail view as it stands, with its ship-to block.
    InvoicePageContents ShownInvoicePage() const;

private:
    // False when there was nothing to list (the screen has closed).
    bool ListImages();
    void SortGrid();
    void ShowDetail(const InvoiceImage& image);
    void ReturnToMenu();
    void WriteMemo();
    void PrintShownInvoice();

    Session& m_session;
    PrinterRoutines m_printer;
    QStringList m_damaged;
    int m_sortColumn = kInvoiceNumber;
    bool m_sortDescending = false;
};

} // namespace ostrel
