#include "frmAppointments.h"

#include "AppointmentSlip.h"
#include "shell/Session.h"

namespace ostrel {

void frmAppointments::CreateInvoice() {
    const QString slipName = selectedSlipName();
    if (slipName.isEmpty()) return;
    WriteFileToPrint(m_session.disk, slipName);
    if (!m_session.HasScreen(ScreenId::frmInvoice)) {
        m_session.ShowScreen(ScreenId::frmInvoice); // says this version lacks it; the list stays
        return;
    }
    Hide();
    m_session.ShowScreen(ScreenId::frmInvoice);
}

void frmAppointments::DeleteSlip() {
    const QString slipName = selectedSlipName();
    if (slipName.isEmpty()) return;
    const QString date = selectedCell(kDateColumn);
    Dialogs& dialogs = m_session.platform.dialogs;
    bool askSlip = true;
    if (selectedCell(kStatusColumn) == slipstatus::Scheduled) {
        askSlip = dialogs.MsgBox(QStringLiteral("This will Delete Appointment ") + slipName + QStringLiteral(" from ") +
                                     date + QStringLiteral(" Day Schedule"),
                                 vbYesNo + vbQuestion, QStringLiteral("Appointment Deletion")) == vbYes &&
                  dialogs.MsgBox(QStringLiteral("Are you Sure?"), vbYesNo + vbQuestion,
                                 QStringLiteral("Confirm Deletion")) == vbYes;
        if (askSlip) {
            ClearRows();
            dialogs.MsgBox(QStringLiteral("The Appointment has been Removed from ") + date + u'\n' +
                           QStringLiteral("Now DELETE the Appointment Slip"));
        }
    }
    if (askSlip && dialogs.MsgBox(QStringLiteral("Delete the Appointment Slip?"), vbYesNo + vbQuestion,
                                  QStringLiteral("Confirm Deletion")) == vbYes) {
        DeleteAppointment(m_session.disk, slipName + QStringLiteral(".txt"));
        optRoutine_Click(kDelete);
    }
    cmdAppointments[kCmdDelete].enabled = false;
}

} // namespace ostrel
