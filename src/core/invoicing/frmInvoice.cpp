#include "frmInvoice.h"

#include "InvoiceNumber.h"
#include "shell/Session.h"
#include "store/LocaleText.h"
#include "store/Money.h"

namespace ostrel {

namespace {

const QStringList kHeadings = {QStringLiteral("Quantity"),   QStringLiteral("Item Description"),
                               QStringLiteral("Service Date"), QStringLiteral("Unit Price"),
                               QStringLiteral("Extension"),  QStringLiteral("Apply Tax")};

// The instruction panels: setup, creation, print, discount, help, items, labor, services, custom.
constexpr int kPanels[] = {0, 1, 2, 4, 5, 6, 8, 9, 11};

} // namespace

frmInvoice::frmInvoice(Session& session, CatalogueLists& lists)
    : Screen(QStringLiteral("frmInvoice")), m_session(session), m_lists(lists),
      m_printer(session, session.platform.printDialogs) {
    caption = QStringLiteral("Invoice Creation");

    fraSetup.caption = QStringLiteral("Invoice Setup");
    txtInvoiceNo.toolTip = QStringLiteral("You may enter a different Invoice No or use the Next Generated Number");
    txtReference.toolTip = QStringLiteral("Enter a Reference (PO, etc)");
    txtShipto[6].toolTip = QStringLiteral("To the Attn of:");
    txtAppointment.toolTip = QStringLiteral("Appointment No.");
    cboAssignments.toolTip = QStringLiteral("POS Assignment");
    ckExempt.caption = QStringLiteral("Account is Tax Exempt");
    ck2ndTax.caption = QStringLiteral("Apply 2nd Tax Rate");
    ckApplyVolumeDiscount.caption = QStringLiteral("Apply Item Volume Pricing");
    ckPrepaid.caption = QStringLiteral("Invoice is Pre-Paid");
    ckFrom.caption = QStringLiteral("Print From Line Here");
    lblInvoiceNo.caption = QStringLiteral("Next Invoice No");
    // The first block of the customer and the account's copy are held for posting, never shown.
    for (int i = 0; i <= 12; ++i)
        lblCustomer[i].visible = i > 5;
    lblAcct.visible = false;

    const std::pair<int, const char*> invoiceButtons[] = {
        {0, "Continue............."},      {1, "&Menu"},
        {2, "Reload Next Invoice No"},     {3, "?"},
        {4, "Reset Additional Charge"},    {5, "Change Totals"},
        {7, "Show Printing Instructions"}, {8, "Show Discount Instructions"},
        {9, "&Finalize Invoice"},          {10, "Show Invoice Help"}};
    for (const auto& [index, text] : invoiceButtons)
        cmdInvoice[index].caption = QString::fromLatin1(text);

    fgInvoice.SetCols(6);
    fgInvoice.SetRows(kGridRows);
    fgInvoice.fixedCols = 0;
    for (int c = 0; c < 6; ++c)
        fgInvoice.SetTextMatrix(0, c, kHeadings[c]);
    fgInvoice.colWidths = {1000, 4200, 1300, 1300, 1300, 1000};
    cmdPrint.caption = QStringLiteral("Continue...........");
    cmdExit.caption = QStringLiteral("Return to &Menu");
    cmdRedo.caption = QStringLiteral("&ReDo");
    cmdResetDate.caption = QStringLiteral("Clear Date");
    UpDown1.caption = QStringLiteral("Move Up");
    UpDown1.toolTip = QStringLiteral("Move Items up or down in grid");
    mnupopup.caption = QStringLiteral("popup");
    mnupopup.visible = false;
    mnuDeleteItem.caption = QStringLiteral("Delete Item");

    fraItems.caption = QStringLiteral("Add Inventoried Items");
    fraCItems.caption = QStringLiteral("Add Custom Items");
    fraLabor.caption = QStringLiteral("Add Labor");
    fraServices.caption = QStringLiteral("Add Services");
    cmdPost[kPostService].caption = QStringLiteral("Post to Invoice");
    cmdPost[kPostItem].caption = QStringLiteral("Post to Invoice");
    cmdPost[kPostCustom].caption = QStringLiteral("Post to Invoice");
    Label4[42].caption = QStringLiteral("Item discount Price will be Applied");
    Label4[42].visible = false;
    for (int i = 0; i <= 2; ++i) {
        lblLaborHeading[i];
        txtHours[i];
        lblLaborCharge[i];
    }
    lblLaborCharge[3].caption = FormatMoney(Money());
    cmdLabor[0].caption = QStringLiteral("Tabulate");
    cmdLabor[1].caption = QStringLiteral("Post to Invoice");
    cmdLabor[1].visible = false;
    cmdLabor[2].caption = QStringLiteral("Clear/Redo");

    fraPrintReady.caption = QStringLiteral("Insert Standard Paper");
    Label1[0].caption = QStringLiteral("2nd Tax ");
    Label1[2].caption = QStringLiteral("Sales Tax");
    Label2[6].caption = QStringLiteral("Load the perforated paper with the remittance section at the top");
    Label2[6].visible = false;
    Label2[88].caption = QStringLiteral("Enter the Check # or Credit Card #");
    Label2[88].visible = false;
    cmdInvoiceContinue.caption = QStringLiteral("&Print Invoice");
    cmdInvoiceContinue.enabled = false;
    cmdCancelPrint.caption = QStringLiteral("Clear Totals/Addons - Redo");
    cmdReadyPrint.caption = QStringLiteral("Save as Invoice Default Terms");
    fraPrePaid.caption = QStringLiteral("Pre-Paid Invoice");
    fraPrePaid.visible = false;
    for (const char* way : {"Check # ", "Credit Card # ", "Cash"})
        cboPrepaid.AddItem(QString::fromLatin1(way));
    cmdPrepaid[0].caption = QStringLiteral("Accept/Continue");
    cmdPrepaid[1].caption = QStringLiteral("Cancel");
    for (int panel : kPanels) {
        fraInstructions[panel].caption = QStringLiteral("Instructions");
        fraInstructions[panel].visible = false;
    }

    mnuSetup.caption = QStringLiteral("Invoice &Setup");
    mnuCreate.caption = QStringLiteral("&Create Invoice");
    mnuPrint.caption = QStringLiteral("&Print Invoice");
    mnuItems.caption = QStringLiteral("Inventoried &Items");
    mnuServices.caption = QStringLiteral("&Services");
    mnuCItems.caption = QStringLiteral("C&ustom Items");
    mnuLabor.caption = QStringLiteral("&Labor");
    mnuClose.caption = QStringLiteral("Close All Sub-Windows");

    for (Frame* f : {&fraItems, &fraCItems, &fraLabor, &fraServices, &fraPrintReady})
        f->visible = false;
    ClearTotals();

    // Names, in the order of the screen.
    auto& r = controls;
    r.add(QStringLiteral("fraSetup"), fraSetup);
    r.add(QStringLiteral("txtInvoiceNo"), txtInvoiceNo);
    r.add(QStringLiteral("txtReference"), txtReference);
    r.add(QStringLiteral("txtShipto"), txtShipto);
    r.add(QStringLiteral("txtAppointment"), txtAppointment);
    r.add(QStringLiteral("cboAssignments"), cboAssignments);
    r.add(QStringLiteral("ckExempt"), ckExempt);
    r.add(QStringLiteral("ck2ndTax"), ck2ndTax);
    r.add(QStringLiteral("ckApplyVolumeDiscount"), ckApplyVolumeDiscount);
    r.add(QStringLiteral("ckPrepaid"), ckPrepaid);
    r.add(QStringLiteral("ckFrom"), ckFrom);
    r.add(QStringLiteral("lblAcctNo"), lblAcctNo);
    r.add(QStringLiteral("lblAcct"), lblAcct);
    r.add(QStringLiteral("lblInvoiceNo"), lblInvoiceNo);
    r.add(QStringLiteral("lblCustomer"), lblCustomer);
    r.add(QStringLiteral("cmdInvoice"), cmdInvoice);
    r.add(QStringLiteral("fgInvoice"), fgInvoice);
    r.add(QStringLiteral("cmdPrint"), cmdPrint);
    r.add(QStringLiteral("cmdExit"), cmdExit);
    r.add(QStringLiteral("cmdRedo"), cmdRedo);
    r.add(QStringLiteral("cmdResetDate"), cmdResetDate);
    r.add(QStringLiteral("UpDown1"), UpDown1);
    r.add(QStringLiteral("mnupopup"), mnupopup);
    r.add(QStringLiteral("mnuDeleteItem"), mnuDeleteItem);
    r.add(QStringLiteral("fraItems"), fraItems);
    r.add(QStringLiteral("fraCItems"), fraCItems);
    r.add(QStringLiteral("fraLabor"), fraLabor);
    r.add(QStringLiteral("fraServices"), fraServices);
    r.add(QStringLiteral("cboDescription"), lists.frmInvoice.cboDescription);
    r.add(QStringLiteral("cboPrice"), lists.frmInvoice.cboPrice);
    r.add(QStringLiteral("lstCategories"), lists.frmInvoice.lstCategories);
    r.add(QStringLiteral("txtUnits"), txtUnits);
    r.add(QStringLiteral("txtCUnits"), txtCUnits);
    r.add(QStringLiteral("cmdPost"), cmdPost);
    r.add(QStringLiteral("Label4"), Label4);
    r.add(QStringLiteral("lblLaborHeading"), lblLaborHeading);
    r.add(QStringLiteral("txtHours"), txtHours);
    r.add(QStringLiteral("lblLaborCharge"), lblLaborCharge);
    r.add(QStringLiteral("cmdLabor"), cmdLabor);
    r.add(QStringLiteral("fraPrintReady"), fraPrintReady);
    r.add(QStringLiteral("txtTotal"), txtTotal);
    r.add(QStringLiteral("txtTax"), txtTax);
    r.add(QStringLiteral("txtTax2"), txtTax2);
    r.add(QStringLiteral("txtGrandTotal"), txtGrandTotal);
    r.add(QStringLiteral("txtMisc"), txtMisc);
    r.add(QStringLiteral("Label1"), Label1);
    r.add(QStringLiteral("Label2"), Label2);
    r.add(QStringLiteral("cboTerms"), cboTerms);
    r.add(QStringLiteral("cmdInvoiceContinue"), cmdInvoiceContinue);
    r.add(QStringLiteral("cmdCancelPrint"), cmdCancelPrint);
    r.add(QStringLiteral("cmdReadyPrint"), cmdReadyPrint);
    r.add(QStringLiteral("fraPrePaid"), fraPrePaid);
    r.add(QStringLiteral("txtPrepaid"), txtPrepaid);
    r.add(QStringLiteral("cboPrepaid"), cboPrepaid);
    r.add(QStringLiteral("cmdPrepaid"), cmdPrepaid);
    r.add(QStringLiteral("fraInstructions"), fraInstructions);
    r.add(QStringLiteral("mnuSetup"), mnuSetup);
    r.add(QStringLiteral("mnuCreate"), mnuCreate);
    r.add(QStringLiteral("mnuPrint"), mnuPrint);
    r.add(QStringLiteral("mnuItems"), mnuItems);
    r.add(QStringLiteral("mnuServices"), mnuServices);
    r.add(QStringLiteral("mnuCItems"), mnuCItems);
    r.add(QStringLiteral("mnuLabor"), mnuLabor);
    r.add(QStringLiteral("mnuClose"), mnuClose);

    session.SetPointOfServiceList(PointOfServiceList::frmInvoice, &cboAssignments);
}

void frmInvoice::Form_Activate() {
    DraftMode = false;
    if (m_session.disk.FileExists(QStringLiteral("/FileToPrint.txt"))) LoadSlip();

    DiskRoutines& disk = m_session.disk;
    mnuServices.enabled = disk.FileExists(QStringLiteral("/Services.txt"));
    mnuItems.enabled = disk.FileExists(QStringLiteral("/OIInventoriedItems.txt"));
    mnuCItems.enabled = disk.FileExists(QStringLiteral("/CustomItems.txt"));

    cmdInvoice[0].caption = QStringLiteral("Continue......");
    cmdInvoice[0].toolTip = QStringLiteral("Create this Invoice");
    cmdInvoice[2].visible = true;
    lblInvoiceNo.visible = true;
    LoadInvoiceNo();
    DTPicker1 = m_session.today();
    AdditionalCharge = Money();

    const ProgramSettings& program = m_session.settings.program;
    const TaxSettings& tax = m_session.settings.tax;
    ck2ndTax.visible = program.applySecondTax();
    ck2ndTax.value = program.applySecondTax() ? 1 : 0;
    ClearLabor();
    FillTerms();
    Label1[2].caption = tax.cboTaxHeading1;
    if (program.applyGraduated())
        Label1[0].caption = QStringLiteral("Tax Surcharge");
    else if (program.applySecondTax())
        Label1[0].caption = tax.cboTaxHeading2;
    SetUpLabor();

    cmdInvoiceContinue.enabled = false;
    OpenSetupView();
}

void frmInvoice::LoadInvoiceNo() {
    m_session.Guarded([&] {
        NextInvoiceNo = LoadInvoiceNumber(m_session.disk, m_session.today());
        txtInvoiceNo.text = QString::number(NextInvoiceNo);
    });
}

void frmInvoice::ClearInvoice() {
    fgInvoice.Clear();
    fgInvoice.SetRows(kGridRows);
    for (int c = 0; c < 6; ++c)
        fgInvoice.SetTextMatrix(0, c, kHeadings[c]);
    LineCount = 0;
    AdditionalCharge = Money();
    ClearLabor();
    txtUnits.text.clear();
    txtReference.text.clear();
    ClearTotals();
    DTPicker1 = m_session.today();
}

void frmInvoice::ClearTotals() {
    SubTotal = TaxableTotal = Tax1 = Tax2 = GrandTotal = Money();
    for (TextBox* box : {&txtTotal, &txtTax, &txtTax2, &txtGrandTotal, &txtMisc})
        box->text = FormatMoney(Money());
}

void frmInvoice::refuse(Control& control) {
    m_session.Beep();
    control.SetFocus();
}

void frmInvoice::message(const QString& text, const QString& title) {
    m_session.platform.dialogs.MsgBox(text, vbOKOnly, title);
}

} // namespace ostrel
