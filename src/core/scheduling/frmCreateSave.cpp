// Saving the appointment, scheduled or not, and leaving the screen.
#include "frmCreate.h"

#include "DayScheduleStore.h"
#include "TimeGrid.h"
#include "shell/Session.h"

namespace ostrel {

void frmCreate::WriteAppointmentSlip(const QString& status, quint8 startRow) {
    if (Counter.SlipId.isEmpty()) LoadWorkSlipCounter(m_session.disk, m_session.today(), lstAssignments.ListCount(), Counter);
    if (txtComments.text.isEmpty()) txtComments.text = kNoCustomerInstructions;
    AppointmentSlip slip;
    slip.Status = status;
    slip.SlipDate = DTPicker1.value;
    slip.SlipName = CurrentSlipName();
    slip.SlipPointOfService = PointOfService;
    slip.Slots = Slots;
    slip.SlipStartRow = startRow;
    for (int i = 0; i < kCustomerLabels; ++i)
        slip.Customer[i] = lblCustomer[i].caption;
    slip.SlipComment = txtComments.text;
    WriteSlip(m_session.disk, slip);
    UpcountSlipCounter(m_session.disk, Counter);
    m_session.disk.CloseAllFiles();
}

void frmCreate::WriteSoldItems() {
    // The first row decides: no quantity there, no file.
    if (fgItemSummary.Rows() < 2 || fgItemSummary.TextMatrix(1, 0).isEmpty()) return;
    std::vector<SlipSoldItem> items;
    for (int r = 1; r < fgItemSummary.Rows(); ++r) {
        if (fgItemSummary.TextMatrix(r, 0).isEmpty()) continue;
        items.push_back({fgItemSummary.TextMatrix(r, 0), fgItemSummary.TextMatrix(r, 1), fgItemSummary.TextMatrix(r, 2)});
    }
    WriteSoldItemsFile(m_session.disk, CurrentSlipName(), items);
    m_session.disk.CloseAllFiles();
}

void frmCreate::SaveScheduled() {
    ScheduledFlag = true;
    WriteAppointmentSlip(slipstatus::Scheduled, StartRow);
    fraSummary.visible = false;
    fraSchedule.visible = false;
    WriteSoldItems();
    // The day file goes in this year's folder, whatever year the chosen day is in.
    saveDaySchedule(m_session.disk, m_session.today().year(), PointOfService, DTPicker1.value.dayOfYear(),
                    fgDaySchedule);
    m_session.disk.CloseAllFiles();
    ClearDaySchedule(fgDaySchedule);
    txtServicesSummary.text.clear();
    cmdService[kSchedule].enabled = false;
    EventScheduled = true;

    if (ckPrintInvoice.checked()) {
        WriteFileToPrint(m_session.disk, CurrentSlipName());
        m_session.disk.CloseAllFiles();
        // Without an invoice screen in this version the user is told so and goes back to the menu.
        if (!m_session.HasScreen(ScreenId::frmInvoice)) {
            m_session.ShowScreen(ScreenId::frmInvoice);
            ReturnToMenu();
            return;
        }
        Hide();
        m_session.ShowScreen(ScreenId::frmInvoice);
        return;
    }
    ReturnToMenu();
}

void frmCreate::SaveUnscheduled() {
    ScheduledFlag = false;
    WriteAppointmentSlip(slipstatus::Unscheduled, 0);
    WriteServices();
    WriteSoldItems();
    ReturnToMenu();
}

void frmCreate::ReturnToMenu() {
    fraSchedule.visible = false;
    fraSummary.visible = false;
    fraAccount.visible = false;
    Hide();
    m_session.ShowScreen(ScreenId::frmStartup);
}

bool frmCreate::ConfirmStartOver() {
    Dialogs& d = m_session.platform.dialogs;
    if (d.MsgBox(QStringLiteral("This will Remove this Appointment Data"), vbYesNo,
                 QStringLiteral("Delete Appointment")) != vbYes)
        return false;
    return d.MsgBox(QStringLiteral("Are You Sure?"), vbYesNo, QStringLiteral("Confirm Delete Appointment")) == vbYes;
}

void frmCreate::ClearStartOver() {
    if (!ConfirmStartOver()) return;
    CloseWithoutSaving();
    ClearAddedService();
    ResetAppointment();
    lstAssignments.enabled = true;
    TotalCost = Money();
    txtCost.text = FormatMoney(TotalCost);
}

} // namespace ostrel
