#pragma once

#include "InvoicePage.h"
#include "catalogue/CatalogueLists.h"
#include "controls/Controls.h"
#include "controls/Screen.h"
#include "printing/PrinterRoutines.h"
#include "store/Money.h"
#include "platform/ControlRegistry.h"

#include <QDate>
#include <QString>

#include <array>
#include <functional>

namespace ostrel {

class Session;

// The invoice as it is composed: a header, a body of up to 100 lines in fgInvoice, and the totals.
// The grid and the boxes are the only copy of the invoice until it is posted; leaving the screen
// loses everything but the next invoice number.
class frmInvoice : public Screen {
public:
    // Columns of fgInvoice.
    enum Column { kQuantity = 0, kDescription = 1, kServiceDate = 2, kUnitPrice = 3, kExtension = 4, kApplyTax = 5 };
    static constexpr int kGridRows = 101; // the heading and 100 lines
    static constexpr int kMaxLines = 100;
    // The kinds of cmdPost: services, inventoried items, custom items.
    static constexpr int kPostService = 0, kPostItem = 1, kPostCustom = 3;
    // Labor and the custom items share the tax flag of the custom items.
    static inline const QString kTrue = QStringLiteral("True");
    static inline const QString kFalse = QStringLiteral("False");

    frmInvoice(Session& session, CatalogueLists& lists);

    void Form_Activate() override;

    // Public routines.
    void ClearInvoice();
    // Draws the page of the invoice as it stands.
    void PrintInvoice();
    void ComputeTotals();
    void ComputeGrandTotal();
    // The posting steps, in their order, once the user has said the invoice printed correctly.
    // Stops at the first failure; what was written stays.
    void PostInvoice();
    // The page's contents from the screen, as PrintInvoice draws them.
    InvoicePageContents PageContents() const;

    // Events.
    void cmdInvoice_Click(int index);
    void cmdInvoiceContinue_Click();
    void cmdPrint_Click();
    void cmdPost_Click(int index);
    void cmdLabor_Click(int index);
    void cmdCancelPrint_Click();
    void cmdRedo_Click();
    void cmdExit_Click();
    void cmdReadyPrint_Click();
    void cmdPrepaid_Click(int index);
    void cmdResetDate_Click();
    void cboPrepaid_Click();
    void cboDescription_Click(int k);
    // Typing in a description list: completes the text from the list.
    void cboDescription_Change(int k);
    void cboDescription_KeyDown(int k, int keyCode);
    void cboPrice_LostFocus(int k);
    void lstCategories_Click();
    void txtUnits_KeyDown(TextBox& box);
    void txtUnits_KeyPress(TextBox& box, int& keyAscii);
    void txtUnits_LostFocus(TextBox& box);
    void txtHours_LostFocus(int i);
    void txtMisc_GotFocus();
    void txtMisc_KeyDown();
    void txtMisc_LostFocus();
    void txtInvoiceNo_LostFocus();
    void txtReference_LostFocus();
    // A key typed on the current cell of the grid (the Ascii code; 8 Backspace, 13 Enter).
    void fgInvoice_KeyPress(int keyAscii);
    void fgInvoice_Click();
    // The right button on the current row.
    void fgInvoice_RightClick();
    void mnuDeleteItem_Click();
    // Moves the current row up (-1) or down (+1).
    void UpDown1_Change(int direction);
    void DTPicker1_Change(const QDate& date);
    void mnuView_Click(MenuItem& entry);

    // Composition state.
    qint16 LineCount = 0;
    qint32 NextInvoiceNo = 0;
    Money SubTotal;
    Money TaxableTotal;
    Money Tax1;
    Money Tax2;
    Money AdditionalCharge;
    Money GrandTotal;
    std::array<Money, 3> LaborRate{};
    std::array<Money, 3> LaborCharge{};
    QString SlipName;
    QString Status;
    QDate SlipDate{1899, 12, 30}; // a date never set is day 0 of the old calendar
    qint16 SlipPointOfService = 0;
    qint16 Slots = 0;
    qint16 SlipStartRow = 0;
    QString AssignedTo;
    QString SlipComment;
    // Nothing sets it; kept so that a draft can be printed.
    bool DraftMode = false;
    QDate DTPicker1;
    // Set by a right click on a line: the view pops up mnupopup.
    bool popupMenuRequested = false;
    // The part of a description list's text that the completion added, for the view to select.
    int descriptionSelStart = 0;
    int descriptionSelLength = 0;

    // Header, fraSetup.
    Frame fraSetup;
    TextBox txtInvoiceNo, txtReference, txtAppointment;
    ControlArray<TextBox> txtShipto; // 6
    ComboBox cboAssignments;
    CheckBox ckExempt, ck2ndTax, ckApplyVolumeDiscount, ckPrepaid, ckFrom;
    Label lblAcctNo, lblAcct, lblInvoiceNo;
    ControlArray<Label> lblCustomer; // 0 to 12
    ControlArray<CommandButton> cmdInvoice;

    // The body.
    Grid fgInvoice;
    CommandButton cmdPrint, cmdExit, cmdRedo, cmdResetDate;
    CommandButton UpDown1;
    MenuItem mnupopup, mnuDeleteItem;

    // The add windows: the catalogue lists live in CatalogueLists.
    Frame fraItems, fraCItems, fraLabor, fraServices;
    TextBox txtUnits, txtCUnits;
    ControlArray<CommandButton> cmdPost;
    ControlArray<Label> Label4; // 42 "Item discount Price will be Applied"
    ControlArray<Label> lblLaborHeading;
    ControlArray<TextBox> txtHours;
    ControlArray<Label> lblLaborCharge; // 3 is the sum
    ControlArray<CommandButton> cmdLabor;

    // The print view and the totals.
    Frame fraPrintReady;
    TextBox txtTotal, txtTax, txtTax2, txtGrandTotal, txtMisc;
    ControlArray<Label> Label1; // 0 second tax caption, 2 first tax caption
    ControlArray<Label> Label2; // 6 perforated paper hint, 88 prepaid hint
    ComboBox cboTerms;
    CommandButton cmdInvoiceContinue, cmdCancelPrint, cmdReadyPrint;
    Frame fraPrePaid;
    TextBox txtPrepaid;
    ComboBox cboPrepaid;
    ControlArray<CommandButton> cmdPrepaid;
    ControlArray<Frame> fraInstructions;

    // Menus.
    MenuItem mnuSetup, mnuCreate, mnuPrint, mnuItems, mnuServices, mnuCItems, mnuLabor, mnuClose;

    ControlRegistry controls;
    CatalogueLists& lists() { return m_lists; }

private:
    void LoadSlip();
    void LoadInvoiceNo();
    void FillTerms();
    void SetUpLabor();
    void ClearLabor();
    void HideWindows();
    void OpenSetupView();
    void OpenCreationView();
    void OpenPrintView();
    void OpenAddWindow(Frame& frame, int panel);
    void ShowPanel(int panel);
    void ClearTotals();
    void AddLineRow(int row, const QString& quantity, const QString& description, const QString& date,
                    const QString& price, const QString& extension, const QString& taxed);
    void RemoveRow(int row);
    void ResetAfterPrint();
    void Cleanup();
    void UpdateStock();
    bool taxFlag(int kind) const;
    // The labor headings and rates as the catalogue screen shows them.
    struct LaborTexts {
        std::array<QString, 3> heading;
        std::array<QString, 3> rate;
    };
    LaborTexts laborTexts() const;
    void refuse(Control& control);
    void message(const QString& text, const QString& title = QString());

    Session& m_session;
    CatalogueLists& m_lists;
    PrinterRoutines m_printer;
    // The tax flag of the slip's lines: the services' flag, carried on to the sold items and from
    // one invoice to the next.
    QString m_slipTaxFlag = kFalse;
    bool m_completionPass = false;
};

} // namespace ostrel
