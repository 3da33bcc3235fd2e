// frmServices: the money and quantity boxes, and the labor rates tab.
#include "store/CurrencyText.h"
#include "frmServices.h"
#include "shell/KeyFilters.h"
#include "shell/Session.h"

namespace ostrel {

namespace {
QString zeroMoney() {
    return currencytext::format(0);
}
} // namespace

void frmServices::emptyZeroMoney(TextBox& box) {
    // Typing then starts clean.
    if (box.text == zeroMoney()) box.text.clear();
}

void frmServices::emptyZeroQuantity(TextBox& box) {
    if (box.text == QLatin1String("0")) box.text.clear();
}

int frmServices::currencyKey(const TextBox& box, int key) {
    if (key == 8) return key;
    return CurrencyKeyFilter(key, box.text,
                             KeyFilterEnv{m_session.platform.dialogs, m_session.settings.program.alarms()});
}

void frmServices::txtCharge_GotFocus(int index) {
    emptyZeroMoney(txtCharge[index]);
}

void frmServices::txtCharge_KeyPress(int index, int& keyAscii) {
    keyAscii = currencyKey(txtCharge[index], keyAscii);
}

void frmServices::txtCharge_LostFocus(int index) {
    TextBox& box = txtCharge[index];
    const std::optional<qint64> value = currencytext::parseCurrency(box.text);
    switch (index) {
    case 0:
    case 1:
        if (!value) {
            m_session.Beep();
            box.text = zeroMoney();
        } else {
            box.text = currencytext::format(*value);
        }
        break;
    case 2:
        if (!value) {
            // The discount price defaults to the normal price.
            m_session.Beep();
            box.text = currencytext::format(currencytext::parseCurrency(txtCharge[1].text).value_or(0));
        } else {
            box.text = currencytext::format(*value);
        }
        break;
    default:
        break;
    }
}

void frmServices::txtCost_GotFocus() {
    emptyZeroMoney(txtCost);
}

void frmServices::txtCost_KeyPress(int& keyAscii) {
    keyAscii = currencyKey(txtCost, keyAscii);
}

void frmServices::txtCost_LostFocus() {
    if (const std::optional<qint64> v = currencytext::parseCurrency(txtCost.text))
        txtCost.text = currencytext::format(*v);
}

void frmServices::txtLaborRate_GotFocus(int index) {
    emptyZeroMoney(txtLaborRate[index]);
}

void frmServices::txtLaborRate_KeyPress(int index, int& keyAscii) {
    keyAscii = currencyKey(txtLaborRate[index], keyAscii);
}

void frmServices::txtLaborRate_LostFocus(int index) {
    TextBox& box = txtLaborRate[index];
    if (box.text.isEmpty()) {
        m_session.platform.dialogs.MsgBox(QStringLiteral("Labor Rate must be greater than Zero"));
        box.SetFocus();
        return;
    }
    if (const std::optional<qint64> v = currencytext::parseCurrency(box.text))
        box.text = currencytext::format(*v);
}

void frmServices::txtDiscountQty_LostFocus() {
    if (txtDiscountQty.text.isEmpty()) txtDiscountQty.text = QStringLiteral("0");
}

void frmServices::ClearPrices() {
    if (tabServices.Tab == kItemsTab) {
        txtCost.text.clear();
        txtCharge[1].text.clear();
        txtCharge[2].text.clear();
    } else if (tabServices.Tab == kCustomTab) {
        txtCharge[3].text.clear();
        txtCharge[4].text.clear();
    }
}

void frmServices::NoDiscount() {
    if (tabServices.Tab == kItemsTab) {
        txtDiscountQty.text = QStringLiteral("0");
        txtCharge[2].text = zeroMoney();
    } else if (tabServices.Tab == kCustomTab) {
        txtCustomDiscItems.text = QStringLiteral("0");
        txtCharge[4].text = zeroMoney();
    }
}

void frmServices::CreateGeneralLabor() {
    for (int i = 0; i <= 2; ++i) {
        txtLabor[i].text.clear();
        txtLaborRate[i].text.clear();
    }
    txtLabor[0].text = QStringLiteral("General Labor");
    txtLaborRate[0].SetFocus();
}

void frmServices::ClearAllLabor() {
    for (int i = 0; i <= 2; ++i) {
        txtLabor[i].text.clear();
        txtLaborRate[i].text.clear();
    }
    txtLabor[0].SetFocus();
}

void frmServices::ReloadLabor() {
    if (m_session.Guarded([&] { m_store.LoadLabor(); })) m_laborUnread = false;
}

void frmServices::SaveLaborRates() {
    // Pressed by the user, the boxes are what the file is to hold, whatever the start-up read.
    m_laborUnread = false;
    if (!saveLabor()) return;
    SelectTab(kServicesTab);
}

} // namespace ostrel
