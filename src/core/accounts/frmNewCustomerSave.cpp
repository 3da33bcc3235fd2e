// Saving the boxes, adding a customer, and every move that saves first.
#include "CustomerNames.h"
#include "frmNewCustomer.h"

#include "shell/Session.h"
#include "util/VbText.h"

#include <algorithm>
#include <optional>

namespace ostrel {

void frmNewCustomer::SaveAccount() {
    SaveSucceeded = true;
    bool refused = false;
    if (accountType() == kBusiness && txtCustomer[1].text.isEmpty()) {
        txtCustomer[1].text = ComposeName(m_buffers.customer);
        Box(QStringLiteral("An Attempt was make to") + u'\n' + QStringLiteral("convert an Individual Name") +
            u'\n' + QStringLiteral("to a Business Name"));
        Focus(txtCustomer[1]);
        refused = true;
    } else if (accountType() == kIndividual &&
               (txtCustomer[8].text.isEmpty() || txtCustomer[10].text.isEmpty())) {
        Focus(txtCustomer[8]);
        refused = true;
    }
    if (refused) {
        Box(QStringLiteral("Enter Account Data or") + u'\n' +
            QStringLiteral(" Click Cancel AddNew if Visible"));
        SaveSucceeded = false;
        return;
    }
    if (txtCustomer[0].text.isEmpty()) {
        if (txtCustomer[6].text.isEmpty()) {
            // Nothing is saved, yet the save counts as done: the move that asked goes on.
            Box(QStringLiteral("The Telephone Number cannot be blank"), QStringLiteral("No number"));
            Focus(txtCustomer[6]);
            return;
        }
        txtCustomer[0].text = vbTrim(txtCustomer[6].text);
        Box(QStringLiteral("Telephone Number will be used as Acct No."),
            QStringLiteral("Account not Entered"));
    }
    FillBufferFromBoxes();
    m_store.SaveCustomerAt(CurrentRecord, m_session.today());
    // The count follows the file once a record is written there, so an Add after a first customer
    // on an empty file numbers the next one 2 instead of writing over the first.
    CustomerCount = std::max(CustomerCount, CurrentRecord);
    AddCityIfNew(vbTrim(m_buffers.customer.City()));
    for (MenuItem* m : {&mnuDelete, &mnuAux, &mnuAdd})
        m->enabled = true;
    for (auto& [i, b] : cmdNav)
        b.enabled = true;
    for (auto& [i, b] : Command1)
        b.enabled = true;
}

void frmNewCustomer::FillBufferFromBoxes() {
    CustomerRecord& c = m_buffers.customer;
    c.SetAccountNumber(vbTrim(txtCustomer[0].text));
    c.SetBusinessName(vbTrim(txtCustomer[1].text));
    c.SetAddress1(vbTrim(txtCustomer[2].text));
    c.SetAddress2(vbTrim(txtCustomer[3].text));
    c.SetServiceCity(vbTrim(cboCity.text));
    c.SetPostalCode(txtCustomer[5].text);
    c.SetTelephone(vbTrim(txtCustomer[6].text));
    c.SetEmail(vbTrim(txtCustomer[7].text));
    c.SetFirstName(vbTrim(txtCustomer[8].text));
    c.SetMiddleInitial(vbTrim(txtCustomer[9].text));
    c.SetLastName(vbTrim(txtCustomer[10].text));
    c.SetCellPhone(vbTrim(txtCustomer[11].text));
    c.SetTitle(vbTrim(cboTitle.text));
    c.SetAccountType(vbTrim(lbLType.caption));
    if (UsaAddressMode) {
        c.SetCity(vbTrim(cboCity.text));
        c.SetState(vbTrim(cboStates.text));
        c.SetAddress4(vbTrim(txtCustomer[5].text));
    } else {
        c.SetCity(vbTrim(txtAdd3.text));
        c.SetState(u"");
        c.SetAddress4(vbTrim(txtAdd4.text));
    }
}

void frmNewCustomer::AddCityIfNew(const QString& city) {
    for (const QString& entry : cboCity.items)
        if (vbTrim(entry) == city) return;
    cboCity.AddItem(city);
}

void frmNewCustomer::NewAccount(const QString& telephone) {
    if (txtCustomer[0].text.isEmpty()) {
        m_session.Beep();
        if (m_session.settings.program.prompts()) Box(QStringLiteral("Enter an Account Number"));
        return;
    }
    SaveAccount();
    ++CustomerCount;
    CurrentRecord = CustomerCount;
    m_buffers.customer.ClearForNewAccount();
    ClearBoxes();
    txtCustomer[6].text = telephone;
    caption = QStringLiteral("Account Information for Customer No ") + QString::number(CurrentRecord);
}

void frmNewCustomer::mnuAdd_Click() {
    cmdCustomer[13].visible = true;
    NewAccount(QString());
    fraSearch.visible = false;
    fraCustomersFound.visible = false;
    mnuAux.enabled = false;
    mnuDelete.enabled = false;
    mnuAdd.enabled = false;
}

void frmNewCustomer::CancelAdd() {
    --CustomerCount;
    CurrentRecord = 1;
    cmdCustomer[13].visible = false;
    LoadAccount();
    mnuAdd.enabled = true;
    mnuAux.enabled = true;
    mnuDelete.enabled = true;
}

void frmNewCustomer::cmdCustomer_Click(int index) {
    m_session.disk.CloseAllFiles();
    if (index == 13) {
        CancelAdd();
        return;
    }
    if (index != 0 && index != 1) return;
    if (ShowingAdd()) CancelAdd(); // an Add still open is dropped; record 1 is loaded
    SaveAccount();
    if (!SaveSucceeded) return;
    LeaveForRoutine(index);
}

void frmNewCustomer::LeaveForRoutine(int index) {
    if (index == 0) {
        Hide();
        m_session.ShowScreen(ScreenId::frmStartup);
        return;
    }
    std::optional<ScreenId> next;
    if (m_session.SelectedRoutine == 0) next = ScreenId::frmContract;
    if (m_session.SelectedRoutine == 5) next = ScreenId::frmCreate;
    // A routine screen this version lacks is named to the user, who stays with the customer.
    if (next && !m_session.HasScreen(*next)) {
        m_session.ShowScreen(*next);
        return;
    }
    Hide();
    if (next) m_session.ShowScreen(*next);
}

void frmNewCustomer::cmdNav_Click(int index) {
    SaveAccount();
    if (!SaveSucceeded) return;
    const int quarter = CustomerCount / 4;
    switch (index) {
    case 0:
        CurrentRecord = 1;
        break;
    case 1:
        CurrentRecord = std::max(CurrentRecord - 1, 1);
        break;
    case 2:
        CurrentRecord = CurrentRecord >= CustomerCount ? 1 : CurrentRecord + 1;
        break;
    case 3:
        CurrentRecord = CustomerCount;
        break;
    case 4:
    case 5:
    case 6:
        if (CustomerCount < 4) return;
        CurrentRecord = index == 4 ? quarter : index == 5 ? quarter * 3 : quarter * 2;
        break;
    default:
        return;
    }
    LoadAccount();
}

} // namespace ostrel
