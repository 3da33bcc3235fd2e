// Placing the appointment on the day grid of its Point of Service.
#include "frmCreate.h"

#include "DayScheduleStore.h"
#include "SlotArithmetic.h"
#include "SlotFit.h"
#include "TimeGrid.h"
#include "shell/Session.h"
#include "util/VbText.h"
#include "store/LocaleText.h"

namespace ostrel {

namespace {
QString headingDate(const QDate& date) { return ShortDateText(date); }
} // namespace

void frmCreate::ShowDaySchedule() {
    fraSchedule.visible = true;
    // The day file of the chosen day, in the folder of this year whatever year the day is in.
    const int year = m_session.today().year();
    const int day = DTPicker1.value.dayOfYear();
    if (dayScheduleExists(m_session.disk, year, PointOfService, day))
        loadDaySchedule(m_session.disk, year, PointOfService, day, fgDaySchedule);
    m_session.disk.CloseAllFiles();
    fgDaySchedule.SetTextMatrix(0, kSlotTextColumn,
                                QStringLiteral("Scheduled Appointments for ") + headingDate(DTPicker1.value));
}

void frmCreate::SelectDifferentDate() {
    ClearDaySchedule(fgDaySchedule);
    EventScheduled = false;
    fraSchedule.visible = false;
}

void frmCreate::RefuseClick(const QString& prompt, bool beepFirst) {
    if (beepFirst) m_session.Beep();
    Box(prompt);
    if (!beepFirst) m_session.Beep();
}

void frmCreate::fgDaySchedule_Click() {
    if (EventScheduled) {
        RefuseClick(QStringLiteral("Event has already been Scheduled"), true);
        return;
    }
    if (Slots < 1) {
        RefuseClick(QStringLiteral("Select Services before Scheduling"), true);
        return;
    }
    const int start = fgDaySchedule.row;
    const SlotFit fit = checkSlotFit(fgDaySchedule, start, Slots, FreeRowScan::BlockOnly);
    if (!fit.fits()) {
        RefuseClick(fit.refusal, false);
        return;
    }
    if (!fgDaySchedule.TextMatrix(start, kSlotTextColumn).isEmpty()) {
        RefuseClick(QStringLiteral("An Event is Already Scheduled Here"), true);
        return;
    }
    StartRow = static_cast<quint8>(start);
    ScheduledFlag = true;
    // The Services file is written now, so it exists even if the appointment is never saved.
    WriteServices();
    PaintServices(CurrentSlipName());
    EventScheduled = true;
    cmdService[kSchedule].enabled = true;
}

void frmCreate::WriteServices() {
    std::vector<SlipService> services;
    for (int r = 1; r < fgServices.Rows(); ++r) {
        const QString name = fgServices.TextMatrix(r, 0);
        if (name.isEmpty()) continue;
        services.push_back({name, Money::fromDisplayText(fgServices.TextMatrix(r, 1)).value_or(Money()),
                            ParseTimeLabel(fgServices.TextMatrix(r, 2))});
    }
    if (!services.empty()) WriteServicesFile(m_session.disk, CurrentSlipName(), services);
    m_session.disk.CloseAllFiles();
}

void frmCreate::PaintServices(const QString& slipName) {
    const QString customer = vbTrim(lblCustomer[1].caption);
    const std::vector<SlipService> services = ReadServicesFile(m_session.disk, slipName);
    m_session.disk.CloseAllFiles();
    int p = StartRow;
    for (const SlipService& s : services) {
        if (p + s.slots > kLastTimeSlot) {
            Box(kNoTimeRemainingText);
            m_session.Beep();
            return;
        }
        if (s.slots == 1) {
            fgDaySchedule.SetTextMatrix(p, kSlotTextColumn, customer + u' ' + s.name);
            p += 1;
        } else {
            fgDaySchedule.SetTextMatrix(p, kSlotTextColumn, customer);
            for (int r = p + 1; r <= p + s.slots - 1; ++r)
                fgDaySchedule.SetTextMatrix(r, kSlotTextColumn, s.name);
            p += s.slots;
        }
    }
}

} // namespace ostrel
