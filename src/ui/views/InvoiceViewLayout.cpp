#include "InvoiceViewLayout.h"

#include "NamedWidgets.h"
#include "invoicing/frmInvoice.h"
#include "store/LocaleText.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace ostrel::ui {

namespace {

QPushButton* button(const QString& name, QWidget* parent) {
    auto* b = named<QPushButton>(name, parent);
    b->setMinimumWidth(110);
    return b;
}

QLineEdit* edit(const QString& name, QWidget* parent, int width = 0) {
    auto* e = named<QLineEdit>(name, parent);
    if (width > 0) e->setMaximumWidth(width);
    return e;
}

QComboBox* combo(const QString& name, QWidget* parent, bool editable = true) {
    auto* c = named<QComboBox>(name, parent);
    c->setEditable(editable);
    c->setMinimumWidth(140);
    return c;
}

void addRow(QFormLayout* form, const QString& caption, QWidget* box) {
    auto* l = new QLabel(caption, box->parentWidget());
    l->setBuddy(box);
    form->addRow(l, box);
}

const char* instructionsText(int panel) {
    switch (panel) {
    case 0:
        return "Check the invoice number, enter a reference and the options of this invoice, then press "
               "Continue to work on the body.";
    case 1:
        return "Add lines from the Add to Invoice menu: inventoried items, services, custom items and labor. "
               "Type in the Quantity and Unit Price cells and press Enter to work a line out; click Apply "
               "Tax to change a line's tax; right-click a line to delete it.";
    case 2:
        return "Press Finalize Invoice to compute the totals, then Print Invoice. Load the paper named "
               "above the totals.";
    case 4:
        return "Volume pricing: with Apply Item Volume Pricing ticked, an item picked from the list takes "
               "its discount price once the units reach its discount quantity.";
    case 5:
        return "Invoice help: the invoice is composed here and printed on Letter paper. Once you say it "
               "printed correctly it is posted to the journals, the customer's ledger and the stock.";
    case 6:
        return "Pick a category, then an item; enter the units and press Post to Invoice.";
    case 8:
        return "Enter the hours of each category, press Tabulate, then Post to Invoice.";
    case 9:
        return "Pick a service or type one with its price, set the service date, then Post to Invoice.";
    case 11:
        return "Pick a custom item, enter the units and press Post to Invoice.";
    default:
        return "";
    }
}

QGroupBox* setupFrame(QWidget* w) {
    auto* box = named<QGroupBox>(QStringLiteral("fraSetup"), w);
    auto* grid = new QGridLayout(box);
    auto* left = new QFormLayout;
    auto* invoiceNo = edit(QStringLiteral("txtInvoiceNo"), box, 160);
    auto* next = named<QLabel>(QStringLiteral("lblInvoiceNo"), box);
    next->setBuddy(invoiceNo);
    left->addRow(next, invoiceNo);
    addRow(left, QStringLiteral("Reference"), edit(QStringLiteral("txtReference"), box));
    addRow(left, QStringLiteral("To the Attn of"), edit(element("txtShipto", 6), box));
    addRow(left, QStringLiteral("Appointment No."), edit(QStringLiteral("txtAppointment"), box, 160));
    addRow(left, QStringLiteral("POS Assignment"), combo(QStringLiteral("cboAssignments"), box, false));
    auto* account = named<QLabel>(QStringLiteral("lblAcctNo"), box);
    account->setAccessibleName(QStringLiteral("Account number"));
    left->addRow(new QLabel(QStringLiteral("Account"), box), account);
    grid->addLayout(left, 0, 0);

    auto* customer = new QVBoxLayout;
    auto* heading = new QLabel(QStringLiteral("Bill To"), box);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    customer->addWidget(heading);
    for (int i = 6; i <= 12; ++i) {
        auto* l = named<QLabel>(element("lblCustomer", i), box);
        l->setAccessibleName(QStringLiteral("Customer line %1").arg(i - 5));
        customer->addWidget(l);
    }
    // The first block and the account copy are kept by the screen, hidden; they have no place here.
    for (int i = 0; i <= 5; ++i) named<QLabel>(element("lblCustomer", i), box);
    named<QLabel>(QStringLiteral("lblAcct"), box);
    customer->addStretch(1);
    grid->addLayout(customer, 0, 1);

    auto* options = new QVBoxLayout;
    for (const char* n : {"ckExempt", "ck2ndTax", "ckApplyVolumeDiscount", "ckPrepaid", "ckFrom"})
        options->addWidget(named<QCheckBox>(QLatin1String(n), box));
    options->addStretch(1);
    auto* row = new QHBoxLayout;
    row->addWidget(button(element("cmdInvoice", 0), box));
    row->addWidget(button(element("cmdInvoice", 2), box));
    options->addLayout(row);
    grid->addLayout(options, 0, 2);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 2);
    return box;
}

QGroupBox* itemsFrame(QWidget* w) {
    auto* box = named<QGroupBox>(QStringLiteral("fraItems"), w);
    auto* row = new QHBoxLayout(box);
    auto* categories = named<QListWidget>(QStringLiteral("lstCategories"), box);
    categories->setMaximumWidth(180);
    categories->setAccessibleName(QStringLiteral("Categories"));
    row->addWidget(categories);
    auto* form = new QFormLayout;
    addRow(form, QStringLiteral("Item"), combo(element("cboDescription", 1), box));
    addRow(form, QStringLiteral("Price"), combo(element("cboPrice", 1), box));
    addRow(form, QStringLiteral("Units"), edit(QStringLiteral("txtUnits"), box, 100));
    form->addRow(QString(), named<QLabel>(element("Label4", 42), box));
    row->addLayout(form, 1);
    row->addWidget(button(element("cmdPost", 1), box), 0, Qt::AlignBottom);
    return box;
}

QGroupBox* customFrame(QWidget* w) {
    auto* box = named<QGroupBox>(QStringLiteral("fraCItems"), w);
    auto* row = new QHBoxLayout(box);
    auto* form = new QFormLayout;
    addRow(form, QStringLiteral("Custom Item"), combo(element("cboDescription", 2), box));
    addRow(form, QStringLiteral("Price"), combo(element("cboPrice", 2), box));
    addRow(form, QStringLiteral("Units"), edit(QStringLiteral("txtCUnits"), box, 100));
    row->addLayout(form, 1);
    row->addWidget(button(element("cmdPost", 3), box), 0, Qt::AlignBottom);
    return box;
}

QGroupBox* servicesFrame(QWidget* w) {
    auto* box = named<QGroupBox>(QStringLiteral("fraServices"), w);
    auto* row = new QHBoxLayout(box);
    auto* form = new QFormLayout;
    addRow(form, QStringLiteral("Service"), combo(element("cboDescription", 0), box));
    addRow(form, QStringLiteral("Price"), combo(element("cboPrice", 0), box));
    auto* date = named<QDateEdit>(QStringLiteral("DTPicker1"), box);
    date->setCalendarPopup(true);
    date->setDisplayFormat(kShortDateFormat);
    addRow(form, QStringLiteral("Service Date"), date);
    row->addLayout(form, 1);
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(button(QStringLiteral("cmdResetDate"), box));
    buttons->addWidget(button(element("cmdPost", 0), box));
    row->addLayout(buttons);
    return box;
}

QGroupBox* laborFrame(QWidget* w) {
    auto* box = named<QGroupBox>(QStringLiteral("fraLabor"), w);
    auto* grid = new QGridLayout(box);
    grid->addWidget(new QLabel(QStringLiteral("Hours"), box), 0, 1);
    grid->addWidget(new QLabel(QStringLiteral("Charge"), box), 0, 2);
    for (int i = 0; i <= 2; ++i) {
        auto* hours = edit(element("txtHours", i), box, 90);
        auto* heading = named<QLabel>(element("lblLaborHeading", i), box);
        heading->setBuddy(hours);
        grid->addWidget(heading, i + 1, 0);
        grid->addWidget(hours, i + 1, 1);
        auto* charge = named<QLabel>(element("lblLaborCharge", i), box);
        charge->setAccessibleName(QStringLiteral("Labor charge %1").arg(i + 1));
        grid->addWidget(charge, i + 1, 2);
    }
    auto* total = named<QLabel>(element("lblLaborCharge", 3), box);
    total->setAccessibleName(QStringLiteral("Labor total"));
    grid->addWidget(new QLabel(QStringLiteral("Total Labor"), box), 4, 0);
    grid->addWidget(total, 4, 2);
    auto* buttons = new QVBoxLayout;
    for (int i = 0; i <= 2; ++i)
        buttons->addWidget(button(element("cmdLabor", i), box));
    grid->addLayout(buttons, 0, 3, 5, 1);
    grid->setColumnStretch(0, 1);
    return box;
}

QGroupBox* printFrame(QWidget* w) {
    auto* box = named<QGroupBox>(QStringLiteral("fraPrintReady"), w);
    auto* row = new QHBoxLayout(box);
    auto* left = new QVBoxLayout;
    auto* hint = named<QLabel>(element("Label2", 6), box);
    hint->setWordWrap(true);
    left->addWidget(hint);
    auto* terms = new QFormLayout;
    addRow(terms, QStringLiteral("Terms"), combo(QStringLiteral("cboTerms"), box));
    left->addLayout(terms);
    left->addWidget(button(QStringLiteral("cmdReadyPrint"), box));
    for (int i : {7, 8, 10, 3})
        left->addWidget(button(element("cmdInvoice", i), box));
    left->addStretch(1);
    row->addLayout(left, 1);

    auto* totals = new QFormLayout;
    addRow(totals, QStringLiteral("Sub-Total"), edit(QStringLiteral("txtTotal"), box, 140));
    auto* tax = edit(QStringLiteral("txtTax"), box, 140);
    auto* taxCaption = named<QLabel>(element("Label1", 2), box);
    taxCaption->setBuddy(tax);
    totals->addRow(taxCaption, tax);
    auto* tax2 = edit(QStringLiteral("txtTax2"), box, 140);
    auto* tax2Caption = named<QLabel>(element("Label1", 0), box);
    tax2Caption->setBuddy(tax2);
    totals->addRow(tax2Caption, tax2);
    addRow(totals, QStringLiteral("Handling"), edit(QStringLiteral("txtMisc"), box, 140));
    addRow(totals, QStringLiteral("Total"), edit(QStringLiteral("txtGrandTotal"), box, 140));
    for (const char* n : {"txtTotal", "txtTax", "txtTax2", "txtGrandTotal"})
        box->findChild<QLineEdit*>(QLatin1String(n))->setReadOnly(true);
    row->addLayout(totals);

    auto* buttons = new QVBoxLayout;
    buttons->addWidget(button(element("cmdInvoice", 9), box));
    buttons->addWidget(button(element("cmdInvoice", 5), box));
    buttons->addWidget(button(element("cmdInvoice", 4), box));
    buttons->addWidget(button(QStringLiteral("cmdCancelPrint"), box));
    auto* print = button(QStringLiteral("cmdInvoiceContinue"), box);
    QFont f = print->font();
    f.setBold(true);
    print->setFont(f);
    print->setMinimumHeight(34);
    buttons->addWidget(print);
    buttons->addStretch(1);
    row->addLayout(buttons);
    return box;
}

QGroupBox* prepaidFrame(QWidget* w) {
    auto* box = named<QGroupBox>(QStringLiteral("fraPrePaid"), w);
    auto* form = new QFormLayout(box);
    addRow(form, QStringLiteral("Amount Paid"), edit(QStringLiteral("txtPrepaid"), box, 140));
    addRow(form, QStringLiteral("Paid by"), combo(QStringLiteral("cboPrepaid"), box));
    form->addRow(QString(), named<QLabel>(element("Label2", 88), box));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(button(element("cmdPrepaid", 0), box));
    buttons->addWidget(button(element("cmdPrepaid", 1), box));
    form->addRow(buttons);
    return box;
}

} // namespace

QMenu* BuildInvoiceWidgets(QWidget* w, const frmInvoice& screen) {
    auto* outer = new QVBoxLayout(w);
    outer->setContentsMargins(0, 0, 0, 8);
    auto* bar = new QMenuBar(w);
    QMenu* open = bar->addMenu(QStringLiteral("&Open Windows"));
    for (const char* n : {"mnuSetup", "mnuCreate", "mnuPrint"})
        open->addAction(namedAction(n, open));
    QMenu* add = bar->addMenu(QStringLiteral("&Add to Invoice"));
    for (const char* n : {"mnuItems", "mnuServices", "mnuCItems", "mnuLabor"})
        add->addAction(namedAction(n, add));
    bar->addAction(namedAction("mnuClose", bar));
    outer->setMenuBar(bar);

    auto* body = new QVBoxLayout;
    body->setContentsMargins(12, 8, 12, 0);
    outer->addLayout(body, 1);
    body->addWidget(setupFrame(w));

    auto* middle = new QHBoxLayout;
    auto* grid = named<QTableWidget>(QStringLiteral("fgInvoice"), w);
    grid->setAccessibleName(QStringLiteral("Invoice body"));
    grid->setContextMenuPolicy(Qt::CustomContextMenu);
    grid->horizontalHeader()->setStretchLastSection(false);
    grid->setMinimumHeight(220);
    middle->addWidget(grid, 1);
    auto* side = new QVBoxLayout;
    auto* up = button(QStringLiteral("UpDown1"), w);
    up->setText(QStringLiteral("Move Up"));
    side->addWidget(up);
    auto* down = named<QPushButton>(QStringLiteral("UpDown1Down"), w);
    down->setText(QStringLiteral("Move Down"));
    down->setAccessibleName(QStringLiteral("Move Item down in grid"));
    side->addWidget(down);
    side->addSpacing(12);
    for (const char* n : {"cmdPrint", "cmdRedo", "cmdExit"})
        side->addWidget(button(QLatin1String(n), w));
    side->addWidget(button(element("cmdInvoice", 1), w));
    side->addStretch(1);
    middle->addLayout(side);
    body->addLayout(middle, 1);

    for (QGroupBox* frame : {itemsFrame(w), servicesFrame(w), customFrame(w), laborFrame(w), printFrame(w),
                             prepaidFrame(w)})
        body->addWidget(frame);
    for (const auto& [panel, model] : screen.fraInstructions) {
        auto* frame = named<QGroupBox>(element("fraInstructions", panel), w);
        auto* l = new QLabel(QLatin1String(instructionsText(panel)), frame);
        l->setWordWrap(true);
        (new QVBoxLayout(frame))->addWidget(l);
        body->addWidget(frame);
    }

    auto* popup = new QMenu(w);
    popup->setObjectName(QStringLiteral("mnupopupMenu"));
    popup->menuAction()->setObjectName(QStringLiteral("mnupopup"));
    popup->addAction(namedAction("mnuDeleteItem", popup));
    return popup;
}

} // namespace ostrel::ui
