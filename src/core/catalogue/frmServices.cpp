#include "frmServices.h"

#include "ServiceTimes.h"
#include "shell/Session.h"

namespace ostrel {

namespace {

const char* const kTabCaptions[] = {"Services", "Inventoried Items", "Labor Rates", "Custom Items",
                                    "Instructions"};

const char* const kInstructions[] = {
    "CREATING SERVICES",
    "Click Add New, type the description and the charge, pick the time the service takes, then Save.",
    "Keep the description to 20 characters or Less",
    "The time sets how many rows of a Day Schedule an appointment for the service fills.",
    "INVENTORIED ITEMS",
    "Items you keep in stock: cost, selling price, quantity discount and reorder levels.",
    "The On-hand quantity will be decremented when an Invoice is created.",
    "CUSTOM ITEMS",
    "These items are not inventoried",
    "These items might be sub-assemblies you fabricate",
    "CREATING LABOR",
    "Up to three labor headings, each with its hourly rate.",
    "Can be Added when Printing an Invoice",
    "Services and items are written to the files when you return to the Menu, and when this screen closes.",
    ("Labor rates are written with Save Labor Rates, and when this screen closes (Files | Exit or the window's "
     "close button)."),
};

void setHeadings(Grid& g, std::initializer_list<const char*> headings) {
    // Every column is a data column; the heading row stays in sight as the grid scrolls.
    g.fixedCols = 0;
    g.topRow = 1;
    int c = 0;
    for (const char* h : headings)
        g.SetTextMatrix(0, c++, QString::fromLatin1(h));
}

// Buttons that need a selected row, or a save, before they mean anything.
constexpr int kOffUntilChosen[] = {2, 3, 9, 10, 19, 20};
constexpr int kClearPrices = 24;
constexpr int kNoDiscount = 25;

} // namespace

frmServices::frmServices(Session& session, CatalogueLists& lists)
    : Screen(QStringLiteral("frmServices")), m_session(session), m_store(session.disk, *this, lists) {
    caption = QStringLiteral("Services & Products Creation Screen");
    tabServices.name = QStringLiteral("tabServices");
    for (const char* c : kTabCaptions)
        tabServices.TabCaption.append(QString::fromLatin1(c));

    setHeadings(fgServices, {"Description", "Charge", "Time"});
    setHeadings(fgItems, {"Description", "Category", "Cost", "Price", "On Hand", "Discount Price",
                          "Discount Qty", "Reorder Units", "Reorder At"});
    setHeadings(fgCustom, {"Description", "Price", "Discount Price", "Discount Qty"});

    // Longer text would be cut when stored.
    txtDescription[0].maxLength = 60;
    txtDescription[1].maxLength = 50;
    txtDescription[2].maxLength = 50;
    for (int i = 0; i <= 4; ++i)
        txtCharge[i].maxLength = 18;
    ckClearItem.caption = QStringLiteral("Do not clear Category when Saving");
    Image1.toolTip = QStringLiteral("Toggles Tab  >");
    for (int i = 0; i < int(std::size(kInstructions)); ++i)
        lblInstructions[i].caption = QString::fromLatin1(kInstructions[i]);

    for (int i : kOffUntilChosen)
        cmdServices[i].enabled = false;
    cmdServices[kClearPrices].visible = false;
    cmdServices[kNoDiscount].visible = false;
    cmdServices[0].toolTip = QStringLiteral("Save and return to the Menu");

    controls.add(QStringLiteral("fgServices"), fgServices);
    controls.add(QStringLiteral("fgItems"), fgItems);
    controls.add(QStringLiteral("fgCustom"), fgCustom);
    controls.add(QStringLiteral("txtDescription"), txtDescription);
    controls.add(QStringLiteral("txtCharge"), txtCharge);
    controls.add(QStringLiteral("lstTime"), lstTime);
    controls.add(QStringLiteral("cboCategory"), cboCategory);
    controls.add(QStringLiteral("txtCost"), txtCost);
    controls.add(QStringLiteral("txtOnHand"), txtOnHand);
    controls.add(QStringLiteral("txtDiscountQty"), txtDiscountQty);
    controls.add(QStringLiteral("txtReorderAmount"), txtReorderAmount);
    controls.add(QStringLiteral("txtReorderAt"), txtReorderAt);
    controls.add(QStringLiteral("ckClearItem"), ckClearItem);
    controls.add(QStringLiteral("txtLabor"), txtLabor);
    controls.add(QStringLiteral("txtLaborRate"), txtLaborRate);
    controls.add(QStringLiteral("txtCustomDiscItems"), txtCustomDiscItems);
    controls.add(QStringLiteral("cmdServices"), cmdServices);
    controls.add(QStringLiteral("Image1"), Image1);
    controls.add(QStringLiteral("lblInstructions"), lblInstructions);
}

void frmServices::Load() {
    fgServices.topRow = 1;
    fgItems.topRow = 1;
    fgCustom.topRow = 1;
    FillTimeList(lstTime);
    m_laborUnread = !m_session.Guarded([&] { m_store.LoadLabor(); });
    m_catalogueUnread = !m_session.Guarded([&] { m_store.LoadCatalogue(); });
}

void frmServices::Form_Activate() {
    m_unloaded = false;
    LockEntries(0);
    LockEntries(1);
    LockEntries(2);
}

void frmServices::Form_Unload() {
    // The program's exit and a close by the window frame may both arrive for one closing.
    if (m_unloaded) return;
    m_unloaded = true;
    saveCatalogue();
    saveLabor();
}

bool frmServices::saveCatalogue() {
    if (m_catalogueUnread) {
        // Writing the grids now would replace files that were never read into them.
        m_session.ShowMessage(
            QStringLiteral("The catalogue files could not be read when the program started, so "
                           "they were left as they are and the changes made here were not saved."),
            QStringLiteral("Catalogue Not Saved"));
        return false;
    }
    return m_session.Guarded([&] { m_store.SaveCatalogue(); });
}

bool frmServices::saveLabor() {
    if (m_laborUnread) return false; // the boxes never held what the file holds
    return m_session.Guarded([&] { m_store.SaveLabor(); });
}

void frmServices::cmdServices_Click(int index) {
    switch (index) {
    case 0:
        ReturnToMenu();
        break;
    case 1:
        AddNew(kServicesTab);
        break;
    case 2:
        DeleteItem(kServicesTab);
        break;
    case 3:
        ModifyItem(kServicesTab);
        break;
    case 4:
        SaveService();
        break;
    case 5:
        ClearItem(kServicesTab);
        break;
    case 7:
        CancelEdit(kServicesTab);
        break;
    case 8:
        AddNew(kItemsTab);
        break;
    case 9:
        ModifyItem(kItemsTab);
        break;
    case 10:
        DeleteItem(kItemsTab);
        break;
    case 11:
        ClearItem(kItemsTab);
        break;
    case 12:
        CreateGeneralLabor();
        break;
    case 13:
        SaveSalesItem();
        break;
    case 14:
        CancelEdit(kItemsTab);
        break;
    case 15:
        ClearAllLabor();
        break;
    case 16:
        ReloadLabor();
        break;
    case 17:
        SaveLaborRates();
        break;
    case 18:
        AddNew(kCustomTab);
        break;
    case 19:
        ModifyItem(kCustomTab);
        break;
    case 20:
        DeleteItem(kCustomTab);
        break;
    case 21:
        ClearItem(kCustomTab);
        break;
    case 22:
        SaveCustomItem();
        break;
    case 23:
        CancelEdit(kCustomTab);
        break;
    case kClearPrices:
        ClearPrices();
        break;
    case kNoDiscount:
        NoDiscount();
        break;
    default:
        break;
    }
}

void frmServices::ReturnToMenu() {
    if (!saveCatalogue() && !m_catalogueUnread) return; // the failure was reported; stay and let it be fixed
    m_session.ShowScreen(ScreenId::frmStartup);
    Hide();
}

void frmServices::tabServices_Click(int /*previousTab*/) {
    EnterTab(tabServices.Tab);
}

void frmServices::SelectTab(int tab) {
    const int previous = tabServices.Tab;
    tabServices.SetTab(tab);
    tabServices_Click(previous);
}

void frmServices::Image1_Click() {
    SelectTab((tabServices.Tab + 1) % tabServices.Tabs());
}

void frmServices::EnterTab(int tab) {
    const bool priced = tab == kItemsTab || tab == kCustomTab;
    cmdServices[kClearPrices].visible = priced;
    cmdServices[kNoDiscount].visible = priced;
    switch (tab) {
    case kServicesTab:
        cmdServices[1].SetFocus();
        break;
    case kItemsTab:
        cmdServices[8].SetFocus();
        break;
    case kLaborTab:
        txtLabor[0].SetFocus();
        break;
    case kCustomTab:
        cmdServices[18].SetFocus();
        break;
    default:
        break;
    }
}

} // namespace ostrel
