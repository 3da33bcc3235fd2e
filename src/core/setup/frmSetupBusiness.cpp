#include "frmSetup.h"

#include "SetupSettings.h"
#include "shell/Session.h"

namespace ostrel {

void frmSetup::cmdAddress_Click() {
    // The caption names the style the click goes to.
    applyAddressStyle(ToggledAddressCaption(cmdAddress.caption));
}

void frmSetup::applyAddressStyle(const QString& style) {
    const bool usa = IsUsaStyle(style);
    cmdAddress.caption = usa ? kUsaStyleAddress : kInternationalStyleAddress;
    // The account screen and the printed matter read the style from here.
    m_session.settings.cmdAddressCaption = cmdAddress.caption;
    lblPostal.visible = usa;
    lblAddress[3].caption = usa ? QStringLiteral("City") : QStringLiteral("Address 3");
    lblAddress[4].caption = usa ? QStringLiteral("State") : QStringLiteral("Address 4");
    lblAddress[5].visible = usa;
    SetupTextBox& postal = txtBusiness[5];
    if (usa) {
        postal.text = m_session.settings.business.postalCode();
        postal.enabled = true;
        if (postal.enabled) focus(postal);
    } else {
        postal.text.clear();
        postal.enabled = false;
    }
    txtBusiness[4].Width = usa ? 390 : 5385;
    txtBusiness[4].maxLength = usa ? 2 : 55;
    txtBusiness[3].Width = usa ? 3150 : 5385;
}

void frmSetup::Image4_Click() {
    const MsgBoxResult answer =
        m_session.platform.dialogs.MsgBox(QStringLiteral("Do you want to reset (clear)all Business Data?"),
                                          vbYesNo + vbQuestion, QStringLiteral("Reset Business Data"));
    if (answer != vbYes) return;
    for (int i = 0; i < BusinessData::kCount; ++i)
        txtBusiness[i].text.clear();
    focus(txtBusiness[0]);
}

void frmSetup::Image5_Click() {
    SetupSettings& s = m_session.settings;
    LoadBusinessData(m_session.disk, s.business);
    BusinessBoxes boxes;
    for (int i = 0; i < BusinessData::kCount; ++i)
        boxes[i] = txtBusiness[i].text;
    FillBusinessBoxes(s.business, boxes);
    for (int i = 0; i < BusinessData::kCount; ++i)
        txtBusiness[i].text = boxes[i];
}

void frmSetup::optBusinessType_Click(int index) {
    optBusinessType[0].value = index == 0;
    optBusinessType[1].value = index == 1;
    if (index == 0) {
        ckEstimate.value = 1;
        ckReturnParts.value = 1;
    }
    // The main menu offers the sales report by this choice when it is next shown.
    storeOptions();
    showBusinessStyle();
}

void frmSetup::showBusinessStyle() {
    const bool shopRepair = optBusinessType[0].value;
    fraWorkOrders.visible = shopRepair;
    Label3[kNoBusinessOptions].visible = !shopRepair;
}

} // namespace ostrel
