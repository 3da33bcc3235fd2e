// Finding a customer: the name list with its type-ahead, the criteria search, the complete list.
#include "frmNewCustomer.h"

#include "shell/Session.h"
#include "util/VbText.h"

namespace ostrel {

namespace {
constexpr int kKeyDelete = 46;
constexpr int kKeyBack = 8;
// The complete list names no field: it takes every record.
constexpr int kCompleteListField = 10;
} // namespace

void frmNewCustomer::Command1_Click(int index) {
    m_session.disk.CloseAllFiles();
    cboAccounts.visible = false;
    switch (index) {
    case 0:
        SaveAccount();
        if (!SaveSucceeded) return;
        fraCustomersFound.visible = false;
        fraSearch.visible = true;
        txtSearchfor.text.clear();
        Focus(txtSearchfor);
        break;
    case 1:
        if (cboAccounts.ListCount() == 0) return;
        fraSearch.visible = false;
        cboAccounts.visible = true;
        ShowNameBox(false);
        ShowPersonFields(false);
        fraCustomersFound.visible = false;
        cboAccounts.text.clear();
        cboAccounts.listIndex = -1;
        Focus(cboAccounts);
        break;
    case 2:
        fraSearch.visible = false;
        fraCustomersFound.visible = false;
        ApplyLayout(accountType());
        break;
    case 3:
        fraSearch.visible = false;
        mnuPrint_Click();
        break;
    default:
        break;
    }
}

void frmNewCustomer::cboAccounts_Click() {
    cboAccounts.visible = false;
    if (cboAccounts.listIndex < 0 || cboAccounts.listIndex >= cboAccounts.ListCount()) return;
    CurrentRecord = cboAccounts.ItemData(cboAccounts.listIndex);
    LoadAccount();
}

void frmNewCustomer::SetAccountsText(const QString& text) {
    cboAccounts.text = text;
    cboAccounts_Change(); // a change of the text is a Change event, as a typed one is
}

void frmNewCustomer::cboAccounts_Change() {
    if (CompletionGuard) {
        CompletionGuard = false;
        return;
    }
    const QString typed = cboAccounts.text;
    cboAccountsSelStart = static_cast<int>(typed.size());
    cboAccountsSelLength = 0;
    if (typed.isEmpty()) return;
    for (const QString& entry : cboAccounts.items) {
        if (!entry.startsWith(typed, Qt::CaseInsensitive)) continue;
        if (entry.size() > typed.size()) {
            CompletionGuard = true;
            const QString tail = entry.mid(typed.size());
            SetAccountsText(typed + tail);
            cboAccountsSelStart = static_cast<int>(typed.size());
            cboAccountsSelLength = static_cast<int>(tail.size());
        }
        return;
    }
}

void frmNewCustomer::cboAccounts_KeyDown(int& keyCode, int /*shift*/) {
    // Deleting must not be undone by the completion of what is left.
    if (keyCode == kKeyDelete || keyCode == kKeyBack) CompletionGuard = true;
}

void frmNewCustomer::cboAccounts_LostFocus() {
    if (cboAccounts.text.isEmpty()) return;
    const QString wanted = vbTrim(cboAccounts.text).toUpper();
    for (int i = 0; i < cboAccounts.ListCount(); ++i) {
        if (vbTrim(cboAccounts.List(i)).toUpper() != wanted) continue;
        cboAccounts.SetListIndex(i);
        cboAccounts.visible = false;
        CurrentRecord = cboAccounts.ItemData(i);
        LoadAccount();
        return;
    }
}

void frmNewCustomer::cmdStartSearch_Click() {
    if (txtSearchfor.text.isEmpty()) {
        Box(QStringLiteral("You must enter some criteria data for the Search"));
        return;
    }
    int field = -1;
    for (int i = 0; i < kSearchOptions && field < 0; ++i)
        if (optSearch[i].value) field = i;
    int found = 0;
    const QVector<CustomerSearchHit> hits =
        m_store.SearchCustomers(field, vbTrim(txtSearchfor.text).toUpper(), false, found);
    ShowFound(hits);
    if (found == 0) {
        Box(QStringLiteral("No Customer Record meets this Criteria"), QStringLiteral("Customer not Found"));
        return;
    }
    if (found == 1) {
        CurrentRecord = fgCustomersFound.TextMatrix(1, kFoundRecord).toInt();
        fraCustomersFound.visible = false;
        LoadAccount();
    } else {
        fraCustomersFound.caption = QStringLiteral("Customers Search by Name Results");
        fraCustomersFound.visible = true;
    }
    fraSearch.visible = false;
}

void frmNewCustomer::ShowFound(const QVector<CustomerSearchHit>& hits) {
    Grid& g = fgCustomersFound;
    g.Clear();
    g.SetCols(3);
    g.SetRows(static_cast<int>(hits.size()) + 1);
    g.SetTextMatrix(0, kFoundName, QStringLiteral("Name"));
    g.SetTextMatrix(0, kFoundTelephone, QStringLiteral("Telephone"));
    g.SetTextMatrix(0, kFoundRecord, QStringLiteral("Record"));
    for (int i = 0; i < hits.size(); ++i) {
        g.SetTextMatrix(i + 1, kFoundName, hits[i].name);
        g.SetTextMatrix(i + 1, kFoundTelephone, hits[i].telephone);
        g.SetTextMatrix(i + 1, kFoundRecord, QString::number(hits[i].recordNumber));
    }
    g.row = hits.isEmpty() ? 0 : 1;
    g.col = 0;
    g.topRow = 1;
}

void frmNewCustomer::optSearch_Click(int /*index*/) {
    txtSearchfor.text.clear();
    Focus(txtSearchfor);
}

void frmNewCustomer::cmdClearSearch_Click() {
    txtSearchfor.text.clear();
    Focus(txtSearchfor);
}

void frmNewCustomer::cmdHideSearch_Click() {
    fraSearch.visible = false;
    fraCustomersFound.visible = false;
}

void frmNewCustomer::mnuPrint_Click() {
    if (fraCustomersFound.visible) {
        mnuPrint.caption = QStringLiteral("View Customer List");
        fraCustomersFound.visible = false;
        return;
    }
    if (!m_session.disk.FileExists(CustomerStore::kCustomerFile)) {
        m_session.Beep();
        return;
    }
    mnuPrint.caption = QStringLiteral("Close Customer List");
    fraCustomersFound.caption = QStringLiteral("Complete Customer List");
    fraCustomersFound.visible = true;
    int found = 0;
    ShowFound(m_store.SearchCustomers(kCompleteListField, QString(), true, found));
}

void frmNewCustomer::fgCustomersFound_Click() {
    popupMenuRequested = true;
}

void frmNewCustomer::mnuSelect_Click() {
    const Grid& g = fgCustomersFound;
    if (g.row < 1 || g.row >= g.Rows()) return; // the heading row names no customer
    bool ok = false;
    const int record = g.TextMatrix(g.row, kFoundRecord).toInt(&ok);
    if (!ok) return;
    CurrentRecord = record;
    LoadAccount();
    fraCustomersFound.visible = false;
}

void frmNewCustomer::cmdRetry_Click() {
    fraCustomersFound.visible = false;
}

} // namespace ostrel
