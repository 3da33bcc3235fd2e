#include "frmSetup.h"

#include "PointOfServiceNames.h"
#include "shell/Session.h"

namespace ostrel {

void frmSetup::resetPointOfServiceButtons() {
    Label3[kPosTip].visible = optBusinessType[0].value;
    cmdSave.enabled = true;
    cmdChange[3].enabled = false;
    cmdDelete.enabled = false;
    focus(cboAssignments);
}

void frmSetup::cboAssignments_Click() {
    cmdSave.enabled = false;
    cmdChange[3].enabled = true;
    cmdDelete.enabled = true;
    m_rememberedIndex = cboAssignments.listIndex;
}

void frmSetup::cmdSave_Click() {
    const QString name = cboAssignments.text;
    if (name.isEmpty()) {
        m_session.Beep();
        m_session.platform.dialogs.MsgBox(QStringLiteral("Enter a Point of Service"));
        focus(cboAssignments);
        return;
    }
    // The limit comes before the duplicate test.
    if (cboAssignments.ListCount() >= PointOfServiceNames::kMaxNames) {
        m_session.Beep();
        m_session.platform.dialogs.MsgBox(QStringLiteral("MaxPOS Names Created"));
        return;
    }
    // Exact: "Crew one" and "Crew One " are names of their own.
    if (cboAssignments.items.contains(name)) {
        m_session.platform.dialogs.MsgBox(QStringLiteral("This Point of Service already Exists"));
        cboAssignments.text.clear();
        return;
    }
    cboAssignments.AddItem(name);
    cboAssignments.text.clear();
    savePointsOfService();
    focus(cboAssignments);
}

void frmSetup::cmdDelete_Click() {
    // A name chosen and then edited leaves no list index; the remembered one still names it.
    const int index = cboAssignments.listIndex >= 0 ? cboAssignments.listIndex : m_rememberedIndex;
    if (index < 0 || index >= cboAssignments.ListCount()) return;
    cboAssignments.RemoveItem(index);
    cmdDelete.enabled = false;
    savePointsOfService();
    focus(cboAssignments);
}

void frmSetup::cmdOops_Click() {
    tabInfo_Click(kPointsOfService);
}

void frmSetup::savePointsOfService() {
    SaveAssociates(m_session.disk, cboAssignments.items, m_session.pointOfServiceNames);
    // Refills every Point of Service list, this one included, and makes the new day folders.
    m_session.LoadServiceAreas();
}

} // namespace ostrel
