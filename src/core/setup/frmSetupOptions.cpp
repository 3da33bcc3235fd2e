#include "frmSetup.h"

#include "ReturnPartsInstructions.h"
#include "shell/Session.h"
#include "workorders/frmWorkOrders.h"

namespace ostrel {

void frmSetup::ckReturnParts_Click() {
    // The work order screen's instructions box follows this option, now and through the settings.
    storeOptions();
    if (auto* workOrders = m_session.ScreenAs<frmWorkOrders>(ScreenId::frmWorkOrders))
        workOrders->ckInstructions.value = ckReturnParts.value;
}

void frmSetup::cmdReturn_Click(int index) {
    if (index == 0) {
        SaveReturnPartsInstructions(m_session.disk, txtReturnParts.text);
    } else if (index == 1) {
        txtReturnParts.text = LoadReturnPartsInstructions(m_session.disk);
    }
    storeOptions();
}

void frmSetup::optMF_Click() {
    setWorkWeek(5);
}
void frmSetup::optMS_Click() {
    setWorkWeek(61);
}
void frmSetup::optSF_Click() {
    setWorkWeek(62);
}
void frmSetup::optSS_Click() {
    setWorkWeek(7);
}

void frmSetup::setWorkWeek(qint16 code) {
    optMF.value = code == 5;
    optMS.value = code == 61;
    optSF.value = code == 62;
    optSS.value = code == 7;
    storeOptions();
}

} // namespace ostrel
