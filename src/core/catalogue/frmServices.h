#pragma once

#include "CatalogueGrids.h"
#include "CatalogueLists.h"
#include "CatalogueStore.h"
#include "TabStrip.h"
#include "controls/Controls.h"
#include "controls/Screen.h"
#include "platform/ControlRegistry.h"

#include <optional>

namespace ostrel {

class Session;

// The catalogue screen: services, inventoried items, labor rates and custom items on five tabs.
// Each grid is the working copy of its file; the Save buttons change only the grids, and the files
// are written at Menu, at a delete and when the screen closes. Its loads also fill the catalogue
// lists of the other screens.
class frmServices : public Screen, public CatalogueGrids {
public:
    enum TabIndex { kServicesTab = 0, kItemsTab = 1, kLaborTab = 2, kCustomTab = 3, kInstructionsTab = 4 };

    frmServices(Session& session, CatalogueLists& lists);

    // Start-up: the time list, the labor rates and the catalogue, which also fills the other
    // screens' lists. A file that cannot be read is reported, and is then never written over by
    // this run.
    void Load() override;
    // Each activation locks the entry boxes of the three item tabs.
    void Form_Activate() override;
    // Any closing of the screen: the catalogue files and the labor rates are written, once.
    void Form_Unload() override;

    void cmdServices_Click(int index);
    void fgServices_Click();
    void fgItems_Click();
    void fgCustom_Click();
    // The user picked a tab; Tab already holds the new one.
    void tabServices_Click(int previousTab);
    // Moves to a tab as the program does, which runs the tab's Click.
    void SelectTab(int tab);
    void Image1_Click();

    void txtCharge_GotFocus(int index);
    void txtCharge_LostFocus(int index);
    void txtCharge_KeyPress(int index, int& keyAscii);
    void txtCost_GotFocus();
    void txtCost_LostFocus();
    void txtCost_KeyPress(int& keyAscii);
    void txtLaborRate_GotFocus(int index);
    void txtLaborRate_LostFocus(int index);
    void txtLaborRate_KeyPress(int index, int& keyAscii);
    void txtOnHand_GotFocus() { emptyZeroQuantity(txtOnHand); }
    void txtDiscountQty_GotFocus() { emptyZeroQuantity(txtDiscountQty); }
    void txtDiscountQty_LostFocus();
    void txtReorderAmount_GotFocus() { emptyZeroQuantity(txtReorderAmount); }
    void txtReorderAt_GotFocus() { emptyZeroQuantity(txtReorderAt); }

    // The rest of the controls; the grids, lstTime, cboCategory, the labor boxes and cmdServices
    // come with CatalogueGrids.
    TabStrip tabServices;
    ControlArray<TextBox> txtDescription; // 0 service, 1 inventoried item, 2 custom item
    // 0 service charge, 1 sell price, 2 discount price, 3 custom price, 4 custom discount price
    ControlArray<TextBox> txtCharge;
    TextBox txtCost;
    TextBox txtOnHand;
    TextBox txtDiscountQty;
    TextBox txtReorderAmount;
    TextBox txtReorderAt;
    TextBox txtCustomDiscItems;
    CheckBox ckClearItem;
    Image Image1;
    ControlArray<Label> lblInstructions;

    // True while the entry boxes change the selected row rather than describe a new one.
    bool EditingExisting = false;

    ControlRegistry controls;

    CatalogueStore& store() { return m_store; }

private:
    // The three entry sets that lock and unlock together: 0 services, 1 inventoried items,
    // 2 custom items.
    void LockEntries(int set);
    void UnlockEntries(int set);
    void setEntriesEnabled(int set, bool enabled);
    void ClearEntryBoxes(int tab);

    void AddNew(int tab);
    void ModifyItem(int tab);
    void SaveService();
    void SaveSalesItem();
    void SaveCustomItem();
    void CancelEdit(int tab);
    void ClearItem(int tab);
    void DeleteItem(int tab);
    void CreateGeneralLabor();
    void ClearAllLabor();
    void ReloadLabor();
    void SaveLaborRates();
    void ClearPrices();
    void NoDiscount();
    void ReturnToMenu();
    void EnterTab(int tab);

    // A refused entry: the bell (when the alarms are on) and the focus back in the box.
    void refuse(TextBox& box);
    void emptyZeroQuantity(TextBox& box);
    void emptyZeroMoney(TextBox& box);
    int currencyKey(const TextBox& box, int key);
    // An amount, refused when it is not one. Nothing when refused.
    std::optional<qint64> amountOf(TextBox& box);
    // A whole number within the field's range, refused otherwise. Nothing when refused.
    std::optional<qint64> quantityOf(TextBox& box, qint64 low, qint64 high);
    // The row a save fills: the selected one when editing, else a new one at the end (or the one
    // blank row of an empty grid). -1 when the file could hold no more records.
    int rowToFill(Grid& grid, const QString& fileName);
    Grid& gridOf(int tab);
    // The files are written only when the catalogue could be read at start-up.
    bool saveCatalogue();
    bool saveLabor();

    Session& m_session;
    CatalogueStore m_store;
    bool m_catalogueUnread = false;
    bool m_laborUnread = false;
    bool m_unloaded = false;
};

} // namespace ostrel
