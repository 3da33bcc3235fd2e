#include "frmSetup.h"

#include "NumericText.h"
#include "ProgramSettings.h"
#include "SetupScreenCurrency.h"
#include "shell/Session.h"

namespace ostrel {

void frmSetup::cmdChange_Click(int index) {
    Dialogs& dialogs = m_session.platform.dialogs;
    switch (index) {
    case 0:
        if (const auto colour = dialogs.ChooseColour(txtBorders.BackColor)) txtBorders.BackColor = *colour;
        break;
    case 1:
        if (const auto colour = dialogs.ChooseColour(txtData.BackColor)) txtData.BackColor = *colour;
        break;
    case 2: {
        FontChoice current;
        current.name = lblFont.caption;
        if (const auto font = dialogs.ChooseFont(current); font && !font->name.isEmpty())
            lblFont.caption = font->name;
        break;
    }
    case 3: {
        // A rename: no duplicate test, so two equal names may stand.
        const int index3 = m_rememberedIndex;
        if (index3 < 0 || index3 >= cboAssignments.ListCount()) return;
        cboAssignments.items[index3] = cboAssignments.text;
        savePointsOfService();
        return;
    }
    default:
        return;
    }
    storeOptions();
}

void frmSetup::cmdGraduatedTax_Click(int index) {
    const QString& zero = ProgramSettings::kZeroCurrency;
    switch (index) {
    case 0:
        fraGraduated.visible = true;
        focus(txtGradulated[0]);
        break;
    case 1:
        for (int box = 0; box < 2; ++box) {
            TextBox& amount = txtGradulated[box];
            if (!IsNumericText(amount.text)) {
                m_session.Beep();
                amount.text = zero;
                focus(amount);
                storeOptions();
                return;
            }
            amount.text = SetupCurrencyForm(amount.text);
        }
        if (txtGradulated[0].text == zero) ckApplyGraduated.value = 0;
        fraGraduated.visible = false;
        break;
    case 2:
        txtGradulated[0].text = zero;
        txtGradulated[1].text = zero;
        focus(txtGradulated[0]);
        break;
    default:
        return;
    }
    storeOptions();
}

void frmSetup::txtGradulated_GotFocus(int index) {
    // Typing starts in an empty box rather than after "$0.00".
    if (txtGradulated[index].text == ProgramSettings::kZeroCurrency) txtGradulated[index].text.clear();
    storeOptions();
}

} // namespace ostrel
