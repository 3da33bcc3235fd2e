#include "frmNewCustomer.h"

#include "AuxData.h"
#include "CustomerNames.h"
#include "StatesList.h"
#include "shell/RecordFormats.h"
#include "shell/Session.h"
#include "util/VbText.h"

#include <QSet>

#include <algorithm>
#include <numeric>

namespace ostrel {

namespace {

const QString kPhoneTip = QStringLiteral("Enter telephone Number with Area Code FIRST (as AAA-EEE-NNNN)");

struct Caption {
    int index;
    const char* caption;
    const char* toolTip;
};

constexpr Caption kNavButtons[] = {
    {0, "|<<", "Selects 1st Customer Record"},   {1, "<", "Selects Previous Customer Record"},
    {2, ">", "Selects Next Customer Record"},    {3, ">>|", "Selects Last Customer Record"},
    {4, ">", "Goes  1/4 into Customer Records"}, {5, ">>>", "Goes 3/4 into Customer Record"},
    {6, ">>", "Goes 1/2 into Customer Records"},
};

constexpr Caption kFindButtons[] = {
    {0, "&Search by Criteria, such as Street Address", ""},
    {1, "&Find Account in Name List Alphbetically", ""},
    {2, "Select from &Account List", ""},
    {3, "&Locate Account in Name List ", ""},
};

constexpr Caption kSearchOptionCaptions[] = {
    {0, "by Business Name", ""},     {1, "by Address #1", ""}, {2, "by Address #2", ""},
    {3, "by City or (Addr #3)", ""}, {4, "by State", ""},      {5, "by Zip Code (or Addr #4)", ""},
    {6, "by Telephone Number", ""},  {7, "by Last Name", ""},  {8, "by Account Number", ""},
};

constexpr Caption kAuxButtons[] = {
    {0, "Save &Headings", ""},
    {2, "Close Screen", ""},
    {3, "Reload Aux Data", ""},
    {4, "Hi&de", ""},
    {5, "Clear", ""},
    {6, "Oops, Reload", ""},
    {7, "&Show Next Account", ""},
    {8, "Show &Previous Account", ""},
};

// The captions beside the boxes.
constexpr Caption kBoxCaptions[] = {
    {0, "Account No", ""}, {1, "Name", ""},       {2, "Address1", ""}, {3, "Address2", ""},
    {5, "Postal", ""},     {6, "Telephone", ""},  {7, "Email", ""},    {8, "First Name", ""},
    {9, "Initial", ""},    {10, "Last Name", ""}, {11, "Cell", ""},
};

template <typename T, size_t N> void applyCaptions(ControlArray<T>& controls, const Caption (&table)[N]) {
    for (const Caption& c : table) {
        controls[c.index].caption = QString::fromLatin1(c.caption);
        controls[c.index].toolTip = QString::fromLatin1(c.toolTip);
    }
}

// What a box shows of a field: trimmed, and, as a text box holds no NUL, only up to the first one
// (a field never written is all NULs).
QString boxText(const QString& field) {
    const QString t = vbTrim(field);
    const qsizetype nul = t.indexOf(QChar(u'\0'));
    return nul < 0 ? t : t.left(nul);
}

} // namespace

frmNewCustomer::frmNewCustomer(Session& session, CustomerBuffers& buffers)
    : Screen(QStringLiteral("frmNewCustomer")), m_session(session), m_buffers(buffers),
      m_store(session.disk, buffers) {
    caption = QStringLiteral("Managing Accounts");

    for (int i : kCustomerBoxes) {
        txtCustomer[i];
        lblCustomer[i];
    }
    applyCaptions(lblCustomer, kBoxCaptions);
    txtCustomer[1].toolTip = QStringLiteral("Displays Business Accts");
    txtCustomer[3].toolTip = QStringLiteral("Enter a Sub-divsion, PO Box, etc");
    txtCustomer[5].toolTip = QStringLiteral("Enter Zipcode here");
    txtCustomer[6].toolTip = kPhoneTip;
    txtCustomer[11].toolTip = kPhoneTip;
    cboCity.toolTip = QStringLiteral("Shows Service City List that you Created during Setup");
    cboAccounts.sorted = true;
    cboAccounts.visible = false;
    lblTitle.caption = QStringLiteral("Title");
    lblCity.caption = QStringLiteral("City");
    lblState.caption = QStringLiteral("State");
    lblAdd3.caption = QStringLiteral("Address 3");
    lblAdd4.caption = QStringLiteral("Address 4");
    lblAssignments.caption = QStringLiteral("Point of Service");
    lbLType.caption = kBusiness;
    cmdAcctType.caption = QStringLiteral("Toggle Type");
    fraIntAddress.visible = false;

    applyCaptions(cmdNav, kNavButtons);
    applyCaptions(Command1, kFindButtons);
    cmdCustomer[0].caption = QStringLiteral("&Menu");
    cmdCustomer[1].caption = QStringLiteral("Select this &Account and Start  Routine");
    cmdCustomer[13].caption = QStringLiteral("Cancel Add &New");
    cmdCustomer[13].visible = false;
    cmdNew.caption = QStringLiteral("Add New Customer");
    Image1[1].toolTip = QStringLiteral("Call Account Phone or Cell");
    mnuAdd.caption = QStringLiteral("Add New");
    mnuDelete.caption = QStringLiteral("Delete Current");
    mnuAux.caption = QStringLiteral("Toggle Data Screen");
    mnuPrint.caption = QStringLiteral("View Customer List");
    mnupopup.visible = false; // a pop-up menu, never on the menu bar
    mnuSelect.caption = QStringLiteral("Load Customer");

    fraSearch.visible = false;
    lblSearchfor.caption = QStringLiteral("Search for");
    applyCaptions(optSearch, kSearchOptionCaptions);
    optSearch[0].value = true;
    cmdStartSearch.caption = QStringLiteral("Search");
    cmdClearSearch.caption = QStringLiteral("Clear");
    cmdHideSearch.caption = QStringLiteral("Hide");

    fraCustomersFound.visible = false;
    fraCustomersFound.caption = QStringLiteral("Customers Search by Name Results");
    fgCustomersFound.fixedCols = 0;
    fgCustomersFound.SetCols(3);
    fgCustomersFound.SetRows(1);
    fgCustomersFound.colWidths = {5400, 1900, 900};
    cmdRetry.caption = QStringLiteral("Hide");

    fraAux.visible = false;
    fraAux.caption = QStringLiteral("Data for ");
    lblHeadings.caption = QStringLiteral("Headings apply to all Accounts");
    for (int k = 0; k < kAuxBoxes; ++k) {
        txtHeading[k];
        txtAux[k].multiLine = true;
        lblClear[k].caption = QStringLiteral("<Clear");
        lblClear[k].toolTip = QStringLiteral("Clears the Aux Data Box");
    }
    ckSaveAux.caption = QStringLiteral("RETAIN Aux Data between Accounts");
    applyCaptions(cmdSaveAux, kAuxButtons);
    fraBig.visible = false;
    txtBig.multiLine = true;

    controls.add(QStringLiteral("txtCustomer"), txtCustomer);
    controls.add(QStringLiteral("lblCustomer"), lblCustomer);
    for (auto [name, combo] : {std::pair{"cboTitle", &cboTitle},
                               {"cboCity", &cboCity},
                               {"cboStates", &cboStates},
                               {"cboAssignments", &cboAssignments},
                               {"cboAccounts", &cboAccounts}})
        controls.add(QString::fromLatin1(name), *combo);
    for (auto [name, label] : {std::pair{"lblTitle", &lblTitle},
                               {"lblCity", &lblCity},
                               {"lblState", &lblState},
                               {"lblAdd3", &lblAdd3},
                               {"lblAdd4", &lblAdd4},
                               {"lblAssignments", &lblAssignments},
                               {"lbLType", &lbLType},
                               {"lblSearchfor", &lblSearchfor},
                               {"lblAccount", &lblAccount},
                               {"lblHeadings", &lblHeadings},
                               {"lblEditing", &lblEditing}})
        controls.add(QString::fromLatin1(name), *label);
    for (auto [name, box] : {std::pair{"txtAdd3", &txtAdd3},
                             {"txtAdd4", &txtAdd4},
                             {"txtSearchfor", &txtSearchfor},
                             {"txtBig", &txtBig}})
        controls.add(QString::fromLatin1(name), *box);
    for (auto [name, button] : {std::pair{"cmdAcctType", &cmdAcctType},
                                {"cmdNew", &cmdNew},
                                {"cmdStartSearch", &cmdStartSearch},
                                {"cmdClearSearch", &cmdClearSearch},
                                {"cmdHideSearch", &cmdHideSearch},
                                {"cmdRetry", &cmdRetry}})
        controls.add(QString::fromLatin1(name), *button);
    for (auto [name, frame] : {std::pair{"fraUSAddress", &fraUSAddress},
                               {"fraIntAddress", &fraIntAddress},
                               {"fraSearch", &fraSearch},
                               {"fraCustomersFound", &fraCustomersFound},
                               {"fraAux", &fraAux},
                               {"fraBig", &fraBig}})
        controls.add(QString::fromLatin1(name), *frame);
    for (auto [name, item] : {std::pair{"mnuAdd", &mnuAdd},
                              {"mnuDelete", &mnuDelete},
                              {"mnuAux", &mnuAux},
                              {"mnuPrint", &mnuPrint},
                              {"mnupopup", &mnupopup},
                              {"mnuSelect", &mnuSelect}})
        controls.add(QString::fromLatin1(name), *item);
    controls.add(QStringLiteral("cmdNav"), cmdNav);
    controls.add(QStringLiteral("Command1"), Command1);
    controls.add(QStringLiteral("cmdCustomer"), cmdCustomer);
    controls.add(QStringLiteral("Image1"), Image1);
    controls.add(QStringLiteral("optSearch"), optSearch);
    controls.add(QStringLiteral("fgCustomersFound"), fgCustomersFound);
    controls.add(QStringLiteral("txtHeading"), txtHeading);
    controls.add(QStringLiteral("txtAux"), txtAux);
    controls.add(QStringLiteral("lblClear"), lblClear);
    controls.add(QStringLiteral("ckSaveAux"), ckSaveAux);
    controls.add(QStringLiteral("cmdSaveAux"), cmdSaveAux);

    session.SetPointOfServiceList(PointOfServiceList::frmNewCustomer, &cboAssignments);
}

void frmNewCustomer::Load() {
    CurrentRecord = 1;
    cboTitle.Clear();
    for (const char* t : {"Mr/Mrs", "Mr.", "Mrs", "Ms", "Miss"})
        cboTitle.AddItem(QString::fromLatin1(t));
    if (m_session.disk.FileExists(QStringLiteral("/StatesList.txt"))) {
        const QStringList states = ReadStatesList(m_session.disk);
        cboStates.Clear();
        for (const QString& s : states)
            cboStates.AddItem(s);
    }
}

void frmNewCustomer::Form_Activate() {
    // The wheel of every grid pages by itself, so the results grid needs no hook of its own here.
    m_store.ResetCompanionBuffers(m_session.today());
    if (m_session.disk.FileExists(AuxData::kHeadingsFile)) {
        const QStringList headings = AuxData::ReadAuxHeadings(m_session.disk);
        for (int k = 0; k < kAuxBoxes; ++k)
            txtHeading[k].text = headings.value(k);
    }
    switch (m_session.SelectedRoutine) {
    case 0:
        caption = QStringLiteral("Creating a Contract");
        break;
    case 5:
        caption = QStringLiteral("Creating an Appointment");
        break;
    case 7:
        caption = QStringLiteral("Managing Accounts");
        break;
    default:
        break;
    }
    lbLType.caption = kBusiness;
    cmdAcctType_Click(); // the screen starts in the Individual layout

    UsaAddressMode = m_session.settings.isUsaStyle();
    fraUSAddress.visible = UsaAddressMode;
    fraIntAddress.visible = !UsaAddressMode;
    Image1[1].enabled = m_session.modem.detected && static_cast<bool>(m_session.dial);

    ClearBoxes();
    // Damaged customer files are reported and kept from being saved over; what can be read is shown.
    for (const QString& name : {CustomerStore::kCustomerFile, CustomerStore::kContractFile, CustomerStore::kCycleFile})
        CheckRecordFileOnRead(m_session.disk, name);
    if (m_session.disk.FileExists(CustomerStore::kCustomerFile)) {
        SetNavigationEnabled(true);
        CustomerCount = m_store.CustomerCount();
        FillLists();
        m_store.RebuildMissingCompanions(CustomerCount, [this](const QString& prompt, const QString& title) {
            m_session.ShowMessage(prompt, title);
        });
        LoadAccount();
    } else {
        SetNavigationEnabled(false);
        Box(QStringLiteral("Your Customer File is Empty") + u'\n' +
                QStringLiteral("Create your First Customer Now"),
            QStringLiteral("Create Customers"));
        mnuDelete.enabled = false;
        ClearBoxes();
        cboCity.text = m_session.settings.business.city();
    }
    Focus(txtCustomer[0]);
}

void frmNewCustomer::SetNavigationEnabled(bool enabled) {
    for (auto& [i, b] : cmdNav)
        b.enabled = enabled;
    for (int i = 0; i <= 2; ++i)
        Command1[i].enabled = enabled;
}

void frmNewCustomer::FillLists() {
    cboAccounts.Clear();
    cboCity.Clear();
    const QVector<AccountListEntry> entries = m_store.ReadAccountList();
    QSet<QString> cities;
    for (const AccountListEntry& e : entries) {
        if (!cities.contains(e.city)) {
            cities.insert(e.city);
            cboCity.AddItem(e.city);
        }
    }
    // The sorted list takes each entry after those that sort before or equal to it; sorting once
    // gives the same order without inserting one by one.
    QVector<int> order(entries.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
        return QString::compare(entries[a].listName, entries[b].listName, Qt::CaseInsensitive) < 0;
    });
    cboAccounts.items.reserve(entries.size());
    cboAccounts.itemData.reserve(entries.size());
    for (int i : order) {
        cboAccounts.items.append(entries[i].listName);
        cboAccounts.itemData.append(entries[i].recordNumber);
    }
}

void frmNewCustomer::ClearBoxes() {
    // Box 11 is not among them: the cell box keeps its text until a customer is loaded.
    for (int i : kCustomerBoxes)
        if (i <= 10) txtCustomer[i].text.clear();
    cboCity.text.clear();
    cboCity.listIndex = -1;
    txtAdd3.text.clear();
    txtAdd4.text.clear();
}

void frmNewCustomer::Focus(Control& control) {
    for (const auto& entry : controls.entries())
        AsControl(entry).focusRequested = false;
    control.SetFocus();
}

void frmNewCustomer::SetCombo(ComboBox& combo, const QString& text) {
    combo.listIndex = static_cast<int>(combo.items.indexOf(text));
    combo.text = text;
}

void frmNewCustomer::SelectAssignment(qint16 assigned) {
    const int last = cboAssignments.ListCount() - 1;
    if (assigned > last) assigned = 0;
    const int index = assigned > -1 ? assigned : 0;
    // No Points of Service: nothing to select.
    if (index < cboAssignments.ListCount())
        cboAssignments.SetListIndex(index);
    else
        cboAssignments.SetListIndex(-1);
}

void frmNewCustomer::LoadAccount() {
    if (CurrentRecord < 1) return;
    ClearBoxes();
    m_store.OpenCustomerFile();
    m_store.ReadCustomer(CurrentRecord);
    m_session.disk.CloseAllFiles();
    const CustomerRecord& c = m_buffers.customer;
    ApplyLayout(c.IsBusiness() ? kBusiness : kIndividual);
    txtCustomer[0].text = boxText(c.AccountNumber());
    txtCustomer[1].text = boxText(c.BusinessName());
    txtCustomer[2].text = boxText(c.Address1());
    txtCustomer[3].text = boxText(c.Address2());
    txtCustomer[5].text = boxText(c.PostalCode());
    if (txtCustomer[5].text.isEmpty()) txtCustomer[5].text = boxText(c.Address4());
    txtCustomer[6].text = boxText(c.Telephone());
    txtCustomer[7].text = boxText(c.Email());
    txtCustomer[8].text = boxText(c.FirstName());
    txtCustomer[9].text = boxText(c.MiddleInitial());
    txtCustomer[10].text = boxText(c.LastName());
    txtCustomer[11].text = boxText(c.CellPhone());
    SetCombo(cboTitle, boxText(c.Title()));
    SetCombo(cboCity, boxText(c.City()));
    SetCombo(cboStates, boxText(c.State()));
    txtAdd3.text = boxText(c.City());
    txtAdd4.text = boxText(c.Address4());
    CustomerReserved = c.CustomerReserved();
    SelectAssignment(c.AssignedPointOfService());
    if (txtCustomer[0].text.isEmpty())
        Focus(txtCustomer[0]);
    else
        Focus(cmdCustomer[1]);
    if (txtCustomer[1].text.isEmpty()) txtCustomer[1].text = boxText(ComposeName(c));
    // An account number that cannot name a folder leaves the aux boxes empty, not the customer unshown.
    const int record = CurrentRecord;
    m_session.Guarded([this] { LoadAuxData(); });
    m_store.ReadContract(record);
    m_store.ReadCycle(record);
}

void frmNewCustomer::ShowNameBox(bool shown) {
    // Its caption, "Name", stays: it stands beside whichever form of the name is shown.
    txtCustomer[1].visible = shown;
}

void frmNewCustomer::ShowPersonFields(bool shown) {
    for (int i : {8, 9, 10}) {
        txtCustomer[i].visible = shown;
        lblCustomer[i].visible = shown;
    }
    cboTitle.visible = shown;
    lblTitle.visible = shown;
}

void frmNewCustomer::ApplyLayout(const QString& type) {
    QString name;
    if (type == kIndividual) {
        name = boxText(ComposeName(m_buffers.customer));
        ShowNameBox(false);
        ShowPersonFields(true);
        lbLType.caption = kIndividual;
    } else {
        name = boxText(m_buffers.customer.BusinessName());
        ShowNameBox(true);
        ShowPersonFields(false);
        lbLType.caption = kBusiness;
    }
    fraAux.caption = QStringLiteral("Data for ") + name;
}

void frmNewCustomer::cmdAcctType_Click() {
    cboAccounts.visible = false;
    ApplyLayout(lbLType.caption == kIndividual ? kBusiness : kIndividual);
}

void frmNewCustomer::Box(const QString& prompt, const QString& title) {
    m_session.platform.dialogs.MsgBox(prompt, vbOKOnly, title);
}

} // namespace ostrel
