// frmServices: adding, changing, saving and deleting the rows of the three grids.
#include "CatalogueFile.h"
#include "store/CurrencyText.h"
#include "CustomItemRecord.h"
#include "InventoriedItemRecord.h"
#include "ServiceRecord.h"
#include "frmServices.h"
#include "platform/Dialogs.h"
#include "shell/Session.h"

#include <limits>

namespace ostrel {

namespace {

struct TabButtons {
    int del;
    int modify;
};

TabButtons buttonsOf(int tab) {
    switch (tab) {
    case frmServices::kItemsTab:
        return {10, 9};
    case frmServices::kCustomTab:
        return {20, 19};
    default:
        return {2, 3};
    }
}

// The entry set of a tab, which is also the index of its description box.
int entrySetOf(int tab) {
    return tab == frmServices::kServicesTab ? 0 : tab == frmServices::kItemsTab ? 1 : 2;
}

void removeRow(Grid& g, int row) {
    for (int r = row; r + 1 < g.Rows(); ++r)
        for (int c = 0; c < g.Cols(); ++c)
            g.SetTextMatrix(r, c, g.TextMatrix(r + 1, c));
    g.SetRows(g.Rows() - 1);
}

void blankRow(Grid& g, int row) {
    for (int c = 0; c < g.Cols(); ++c)
        g.SetTextMatrix(row, c, QString());
}

const QString& fileOf(int tab) {
    switch (tab) {
    case frmServices::kItemsTab:
        return InventoriedItemRecord::kFileName;
    case frmServices::kCustomTab:
        return CustomItemRecord::kFileName;
    default:
        return ServiceRecord::kFileName;
    }
}

constexpr qint64 kShortMax = std::numeric_limits<qint16>::max();
constexpr qint64 kShortMin = std::numeric_limits<qint16>::min();
constexpr qint64 kLongMax = std::numeric_limits<qint32>::max();
constexpr qint64 kLongMin = std::numeric_limits<qint32>::min();

} // namespace

Grid& frmServices::gridOf(int tab) {
    switch (tab) {
    case kItemsTab:
        return fgItems;
    case kCustomTab:
        return fgCustom;
    default:
        return fgServices;
    }
}

void frmServices::setEntriesEnabled(int set, bool enabled) {
    switch (set) {
    case 0:
        cmdServices[4].enabled = enabled;
        txtCharge[0].enabled = enabled;
        txtDescription[0].enabled = enabled;
        break;
    case 1:
        cmdServices[13].enabled = enabled;
        txtCharge[1].enabled = enabled;
        txtCharge[2].enabled = enabled;
        txtDescription[1].enabled = enabled;
        break;
    case 2:
        cmdServices[22].enabled = enabled;
        txtCharge[3].enabled = enabled;
        txtCharge[4].enabled = enabled;
        txtDescription[2].enabled = enabled;
        break;
    default:
        break;
    }
}

void frmServices::LockEntries(int set) {
    setEntriesEnabled(set, false);
}

void frmServices::UnlockEntries(int set) {
    setEntriesEnabled(set, true);
}

void frmServices::ClearEntryBoxes(int tab) {
    if (txtCharge.contains(tab)) txtCharge[tab].text.clear();
    switch (tab) {
    case kServicesTab:
        lstTime.SetListIndex(-1);
        txtDescription[0].text.clear();
        txtCharge[0].text.clear();
        break;
    case kItemsTab:
        txtDescription[1].text.clear();
        txtOnHand.text.clear();
        txtDiscountQty.text.clear();
        txtReorderAmount.text.clear();
        txtReorderAt.text.clear();
        break;
    case kCustomTab:
        txtDescription[2].text.clear();
        txtCharge[3].text.clear();
        txtCharge[4].text.clear();
        txtCustomDiscItems.text.clear();
        break;
    default:
        break;
    }
}

void frmServices::refuse(TextBox& box) {
    m_session.Beep();
    box.SetFocus();
}

std::optional<qint64> frmServices::amountOf(TextBox& box) {
    const std::optional<qint64> v = currencytext::parseCurrency(box.text);
    if (!v) refuse(box);
    return v;
}

std::optional<qint64> frmServices::quantityOf(TextBox& box, qint64 low, qint64 high) {
    const std::optional<qint64> v = currencytext::parseWhole(box.text);
    if (!v || *v < low || *v > high) {
        refuse(box);
        return std::nullopt;
    }
    return v;
}

int frmServices::rowToFill(Grid& g, const QString& fileName) {
    if (EditingExisting && g.row >= 1 && g.row < g.Rows()) return g.row;
    // The one blank row of an empty grid takes the first entry: a blank first row would keep the
    // whole grid from being written.
    if (g.Rows() == 2 && g.TextMatrix(1, 0).isEmpty()) return 1;
    if (!m_session.Guarded([&] { CheckCatalogueCount(fileName, g.Rows()); })) return -1;
    g.SetRows(g.Rows() + 1);
    return g.Rows() - 1;
}

void frmServices::AddNew(int tab) {
    EditingExisting = false;
    UnlockEntries(entrySetOf(tab));
    ClearEntryBoxes(tab);
    if (tab == kItemsTab) cmdServices[11].enabled = true;
    txtDescription[entrySetOf(tab)].SetFocus();
}

void frmServices::fgServices_Click() {
    // Modify comes on only after a save on this tab.
    if (fgServices.row > 0) cmdServices[2].enabled = true;
}

void frmServices::fgItems_Click() {
    if (fgItems.row > 0) {
        cmdServices[10].enabled = true;
        cmdServices[9].enabled = true;
    }
}

void frmServices::fgCustom_Click() {
    if (fgCustom.row > 0) {
        cmdServices[20].enabled = true;
        cmdServices[19].enabled = true;
    }
}

void frmServices::ModifyItem(int tab) {
    Grid& g = gridOf(tab);
    const int r = g.row;
    if (r < 1 || r >= g.Rows()) return;
    g.enabled = false;
    UnlockEntries(entrySetOf(tab));
    EditingExisting = true;
    switch (tab) {
    case kServicesTab:
        txtDescription[0].text = g.TextMatrix(r, 0);
        txtCharge[0].text = g.TextMatrix(r, 1);
        lstTime.SetListIndex(int(lstTime.items.indexOf(g.TextMatrix(r, 2))));
        break;
    case kItemsTab:
        txtDescription[1].text = g.TextMatrix(r, 0);
        if (cboCategory.text.isEmpty() || !ckClearItem.checked()) {
            const QString category = g.TextMatrix(r, 1);
            cboCategory.listIndex = int(cboCategory.items.indexOf(category));
            cboCategory.text = category;
        }
        txtCost.text = g.TextMatrix(r, 2);
        txtCharge[1].text = g.TextMatrix(r, 3);
        txtOnHand.text = g.TextMatrix(r, 4);
        txtCharge[2].text = g.TextMatrix(r, 5);
        txtDiscountQty.text = g.TextMatrix(r, 6);
        txtReorderAmount.text = g.TextMatrix(r, 7);
        txtReorderAt.text = g.TextMatrix(r, 8);
        cmdServices[11].enabled = true;
        break;
    case kCustomTab:
        txtDescription[2].text = g.TextMatrix(r, 0);
        txtCharge[3].text = g.TextMatrix(r, 1);
        txtCharge[4].text = g.TextMatrix(r, 2);
        txtCustomDiscItems.text = g.TextMatrix(r, 3);
        break;
    default:
        break;
    }
    txtDescription[entrySetOf(tab)].SetFocus();
}

void frmServices::SaveService() {
    TextBox& description = txtDescription[0];
    TextBox& charge = txtCharge[0];
    if (description.text.isEmpty()) {
        description.SetFocus();
        m_session.Beep();
        return;
    }
    if (charge.text.isEmpty()) {
        refuse(charge);
        return;
    }
    const std::optional<qint64> amount = amountOf(charge);
    if (!amount) return;
    const int r = rowToFill(fgServices, ServiceRecord::kFileName);
    if (r < 0) return;
    fgServices.enabled = true;
    fgServices.SetTextMatrix(r, 0, description.text);
    fgServices.SetTextMatrix(r, 1, currencytext::format(*amount));
    fgServices.SetTextMatrix(r, 2, lstTime.List(lstTime.listIndex));
    fgServices.row = r;
    ClearEntryBoxes(kServicesTab);
    LockEntries(0);
    cmdServices[3].enabled = true;
    EditingExisting = false;
}

void frmServices::SaveSalesItem() {
    TextBox& description = txtDescription[1];
    if (description.text.isEmpty()) {
        description.SetFocus();
        m_session.Beep();
        return;
    }
    for (int i : {1, 2}) {
        if (txtCharge[i].text.isEmpty()) {
            refuse(txtCharge[i]);
            return;
        }
    }
    if (!currencytext::parseWhole(txtOnHand.text)) {
        m_session.Beep();
        txtOnHand.text = QStringLiteral("0");
        return;
    }
    if (txtCost.text.isEmpty()) txtCost.text = currencytext::format(0);
    for (TextBox* box : {&txtReorderAmount, &txtReorderAt, &txtDiscountQty})
        if (box->text.isEmpty()) box->text = QStringLiteral("0");

    const std::optional<qint64> cost = amountOf(txtCost);
    if (!cost) return;
    const std::optional<qint64> price = amountOf(txtCharge[1]);
    if (!price) return;
    const std::optional<qint64> discountPrice = amountOf(txtCharge[2]);
    if (!discountPrice) return;
    const std::optional<qint64> onHand = quantityOf(txtOnHand, kShortMin, kShortMax);
    if (!onHand) return;
    const std::optional<qint64> discountQty = quantityOf(txtDiscountQty, kLongMin, kLongMax);
    if (!discountQty) return;
    const std::optional<qint64> reorderAmount = quantityOf(txtReorderAmount, kShortMin, kShortMax);
    if (!reorderAmount) return;
    const std::optional<qint64> reorderAt = quantityOf(txtReorderAt, kShortMin, kShortMax);
    if (!reorderAt) return;

    const int r = rowToFill(fgItems, InventoriedItemRecord::kFileName);
    if (r < 0) return;
    fgItems.enabled = true;
    m_store.AddCategory(cboCategory.text);
    const QString cells[] = {description.text,
                             cboCategory.text,
                             currencytext::format(*cost),
                             currencytext::format(*price),
                             QString::number(*onHand),
                             currencytext::format(*discountPrice),
                             QString::number(*discountQty),
                             QString::number(*reorderAmount),
                             QString::number(*reorderAt)};
    for (int c = 0; c < 9; ++c)
        fgItems.SetTextMatrix(r, c, cells[c]);
    fgItems.row = r;

    ClearEntryBoxes(kItemsTab);
    if (!ckClearItem.checked()) cboCategory.SetListIndex(-1);
    txtCost.text.clear();
    txtCharge[1].text = currencytext::format(0);
    txtCharge[2].text = currencytext::format(0);
    LockEntries(1);
    cmdServices[11].enabled = false;
    EditingExisting = false;
}

void frmServices::SaveCustomItem() {
    TextBox& description = txtDescription[2];
    if (description.text.isEmpty()) {
        description.SetFocus();
        m_session.Beep();
        return;
    }
    for (int i : {3, 4}) {
        if (txtCharge[i].text.isEmpty()) {
            refuse(txtCharge[i]);
            return;
        }
    }
    if (txtCustomDiscItems.text.isEmpty()) txtCustomDiscItems.text = QStringLiteral("0");
    const std::optional<qint64> price = amountOf(txtCharge[3]);
    if (!price) return;
    const std::optional<qint64> discountPrice = amountOf(txtCharge[4]);
    if (!discountPrice) return;
    const std::optional<qint64> discountQty = quantityOf(txtCustomDiscItems, kLongMin, kLongMax);
    if (!discountQty) return;

    const int r = rowToFill(fgCustom, CustomItemRecord::kFileName);
    if (r < 0) return;
    fgCustom.enabled = true;
    fgCustom.SetTextMatrix(r, 0, description.text);
    fgCustom.SetTextMatrix(r, 1, currencytext::format(*price));
    fgCustom.SetTextMatrix(r, 2, currencytext::format(*discountPrice));
    fgCustom.SetTextMatrix(r, 3, QString::number(*discountQty));
    fgCustom.row = r;
    ClearEntryBoxes(kCustomTab);
    LockEntries(2);
    EditingExisting = false;
}

void frmServices::CancelEdit(int tab) {
    gridOf(tab).enabled = true;
    LockEntries(entrySetOf(tab));
    ClearEntryBoxes(tab);
    EditingExisting = false;
}

void frmServices::ClearItem(int tab) {
    ClearEntryBoxes(tab);
    if (tab == kServicesTab) txtDescription[0].SetFocus();
}

void frmServices::DeleteItem(int tab) {
    Grid& g = gridOf(tab);
    const int del = buttonsOf(tab).del;
    if (g.row < 1 || g.row >= g.Rows()) {
        cmdServices[del].enabled = false;
        return;
    }
    QString title = QStringLiteral("Delete Sales Item");
    QString prompt;
    switch (tab) {
    case kServicesTab:
        title = QStringLiteral("Delete Service Item");
        prompt = QStringLiteral("This will DELETE the Selected Service");
        break;
    case kItemsTab:
        prompt = QStringLiteral("This will DELETE the Selected Sales Item");
        break;
    default:
        prompt = QStringLiteral("This will DELETE the Selected Custom Item");
        break;
    }
    if (m_session.platform.dialogs.MsgBox(prompt, vbYesNo + vbQuestion, title) == vbYes) {
        if (g.Rows() == 2 && g.row == 1) {
            // The last row goes with its file; the grid keeps its one blank row.
            if (!m_catalogueUnread)
                m_session.Guarded([&] { m_session.disk.DeleteFileAndBackup(fileOf(tab)); });
            blankRow(g, 1);
            g.SetRows(2);
            g.row = 0;
        } else {
            removeRow(g, g.row);
            saveCatalogue();
        }
    }
    cmdServices[del].enabled = false;
}

} // namespace ostrel
