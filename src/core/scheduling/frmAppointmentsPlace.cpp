#include "frmAppointments.h"

#include "AppointmentSlip.h"
#include "DayScheduleStore.h"
#include "SlotFit.h"
#include "TimeGrid.h"
#include "shell/Session.h"
#include "util/VbText.h"

namespace ostrel {

namespace {

const QString kScheduledMarker = QStringLiteral("   ------Scheduled------");
const QString kItemsMarker = QStringLiteral("See Items Required List");
const QString kScheduleHere = QStringLiteral("Schedule Here - Click Re-Schedule");

constexpr int kNameField = 1;
constexpr int kTelephoneField = 7;

} // namespace

void frmAppointments::readSelectedHeader() {
    const AppointmentSlip slip = ReadSlipHeader(m_session.disk, selectedSlipName());
    m_pointOfService = slip.SlipPointOfService;
    m_slots = slip.Slots;
    m_startRow = slip.SlipStartRow;
}

void frmAppointments::fgAppointments_Click() {
    if (selectedSlipName().isEmpty()) return; // the heading, or an empty list
    cmdAppointments[m_routine].enabled = true;
    if (m_routine == kInvoice || m_routine == kDelete) return;
    const QString date = selectedCell(kDateColumn);
    setDayHeading(date);
    if (m_routine != kReschedule) return;
    const QString question = QStringLiteral("This will Delete Appointment ") + selectedSlipName() + u'\n' +
                             QStringLiteral("from ") + date + u'\n' + QStringLiteral("Then Select a new Date");
    if (m_session.platform.dialogs.MsgBox(question, vbYesNo + vbQuestion, QStringLiteral("Remove Appointment Slip")) !=
        vbYes)
        return;
    if (m_session.Guarded([&] { ClearRows(); })) fraSchedule.visible = true;
}

void frmAppointments::fgDaySchedule_Click() {
    const QString slipName = selectedSlipName();
    if (slipName.isEmpty()) return; // no slip in hand to place
    const int clicked = fgDaySchedule.row;
    if (!DaySchedule::isSlotRow(clicked)) return;
    m_session.Guarded([&] {
        if (m_routine == kSchedule) readSelectedHeader();
        m_targetRow = static_cast<quint8>(clicked);
        // A moved appointment also needs the row below its block free.
        const SlotFit fit = checkSlotFit(fgDaySchedule, m_targetRow, m_slots, FreeRowScan::BlockAndRowBelow);
        if (!fit.fits()) {
            refuse(fit.refusal);
            return;
        }
        if (m_routine == kReschedule) fgDaySchedule.SetTextMatrix(clicked, kSlotTextColumn, kScheduleHere);
        cmdAppointments[m_routine].enabled = true;
        const AppointmentSlip slip = ReadSlip(m_session.disk, slipName);
        m_customerFields = slip.Customer;
        m_commentLine = slip.SlipComment;
    });
}

void frmAppointments::PaintRows() {
    const QString slipName = selectedSlipName();
    int row = fgDaySchedule.row;
    const auto paint = [this](int r, const QString& text) {
        if (DaySchedule::isSlotRow(r)) fgDaySchedule.SetTextMatrix(r, kSlotTextColumn, text);
    };
    if (!slipName.isEmpty() && m_session.disk.FileExists(servicesFileName(slipName))) {
        const bool items = SoldItemsFileExists(m_session.disk, slipName);
        const QString customer = vbTrim(m_customerFields[kNameField]);
        int lastSlots = 0;
        // Every service starts on the same row, so the last one's name is what the first row shows.
        for (const SlipService& service : ReadServicesFile(m_session.disk, slipName)) {
            lastSlots = service.slots;
            paint(row, customer + u'-' + service.name);
            if (service.slots == 1) continue;
            paint(row + 1, QStringLiteral("Tel.  ") + m_customerFields[kTelephoneField]);
            paint(row + 1, items ? kItemsMarker : kScheduledMarker);
            if (service.slots == 2) continue;
            for (int j = 2; j <= m_slots - 1; ++j)
                paint(row + j, kScheduledMarker);
        }
        row += lastSlots;
    }
    m_session.disk.CloseAllFiles();
    cmdService.enabled = true;
}

void frmAppointments::SaveDay() {
    saveDaySchedule(m_session.disk, DTPicker1.value.year(), m_pointOfService, m_dayOfYear, fgDaySchedule);
}

void frmAppointments::cmdService_Click() {
    m_session.Guarded([&] {
        SaveDay();
        AppointmentSlip slip;
        slip.SlipName = selectedSlipName();
        if (slip.SlipName.isEmpty()) return;
        // Only the first character is read back, so a tenth Point of Service comes back as the first.
        m_pointOfService = slip.SlipName.left(1).toInt();
        slip.Status = slipstatus::Scheduled;
        slip.SlipDate = DTPicker1.value;
        slip.SlipPointOfService = static_cast<qint16>(m_pointOfService);
        slip.Slots = static_cast<qint16>(m_slots);
        slip.SlipStartRow = m_targetRow;
        // The table holds the last listed slip's fields, and the comments go by file position while
        // the grid counts listed slips: both as the routine has always stored them.
        slip.Customer = m_customerTable;
        slip.SlipComment = m_comments.value(fgAppointments.row);
        // The rewrite takes the old slip's place in one step.
        WriteSlip(m_session.disk, slip);
    });
    Reset();
}

void frmAppointments::ClearRows() {
    if (m_pointOfService != 0 &&
        dayScheduleExists(m_session.disk, DTPicker1.value.year(), m_pointOfService, m_dayOfYear))
        loadDaySchedule(m_session.disk, DTPicker1.value.year(), m_pointOfService, m_dayOfYear, fgDaySchedule);
    readSelectedHeader();
    for (int r = m_startRow; r <= m_startRow + m_slots - 1; ++r)
        if (DaySchedule::isSlotRow(r)) fgDaySchedule.SetTextMatrix(r, kSlotTextColumn, QString());
    SaveDay();
}

} // namespace ostrel
