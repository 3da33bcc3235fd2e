#include "frmBlock.h"

#include "DayScheduleStore.h"
#include "TimeGrid.h"
#include "WorkDays.h"
#include "shell/Session.h"
#include "store/SafeReplace.h"
#include "util/VbText.h"

namespace ostrel {

void frmBlock::cmdAccept_Click() {
    m_startDate = Calender.value;
    DateClick();
    const QString action = optAction[1].value ? QStringLiteral("Clear Previous Blocked Days")
                                              : QStringLiteral("Prevent Work Scheduling");
    const QString question = QStringLiteral("You have Selected to") + u'\n' + action + u'\n' + QStringLiteral("of ") +
                             QString::number(requestedDays()) + QStringLiteral(" Consecutive WORKDAYS") + u'\n' +
                             QStringLiteral("Starting on ") + vbDate(Calender.value) + u'\n' + QStringLiteral("for ") +
                             lstAssignto.text;
    if (m_session.platform.dialogs.MsgBox(question, vbYesNo + vbQuestion, QStringLiteral("Action Selection")) != vbYes) {
        cmdCancel_Click();
        return;
    }
    // A month of days for every Point of Service is hundreds of day files: they are saved as one
    // batch, each file still replaced in one step.
    ReplaceBatch batch;
    const int all = m_session.pointOfServiceNames.UpperBound();
    if (lstAssignto.listIndex == all) {
        FindAllTeams();
    } else if (lstAssignto.listIndex >= 0) { // else nothing to act on: no Point of Service is set up
        setBusy(true);
        m_session.Guarded([&] { FindTeam(QString::number(lstAssignto.listIndex + 1)); });
        setBusy(false);
    }
    m_session.Guarded([&] { batch.commit(); });
}

void frmBlock::FindAllTeams() {
    setBusy(true);
    const int count = m_session.pointOfServiceNames.UpperBound();
    for (int n = 1; n <= count; ++n)
        if (!m_session.Guarded([&] { FindTeam(QString::number(n)); })) break;
    setBusy(false);
}

void frmBlock::FindTeam(const QString& team) {
    const int pointOfService = team.trimmed().toInt();
    const int days = requestedDays();
    const int workWeek = m_session.settings.program.WorkWeekCode;
    if (!m_startDate.isValid()) m_startDate = Calender.value;
    // However the run ends, the calendar goes back to the day it started on.
    struct Restore {
        frmBlock& frm;
        ~Restore() { frm.Calender.value = frm.m_startDate; }
    } restore{*this};
    for (int i = 0; i < days; ++i) {
        DateClick();
        const QDate day = Calender.value;
        const int year = day.year();
        const int dayOfYear = day.dayOfYear();
        bool act = true;
        if (dayScheduleExists(m_session.disk, year, pointOfService, dayOfYear)) {
            // What is done so far is on disk before the program waits on the owner.
            if (ReplaceBatch* batch = ReplaceBatch::current()) batch->commit();
            fraSchedule.visible = true;
            loadDaySchedule(m_session.disk, year, pointOfService, dayOfYear, fgDaySchedule);
            const QString question = QStringLiteral("Events are Scheduled for ") + vbDate(day) + u'\n' +
                                     QStringLiteral("Do you want to DELETE these Events)");
            if (m_session.platform.dialogs.MsgBox(question, vbYesNo + vbQuestion, QStringLiteral("Verify Change")) !=
                vbYes) {
                fraSchedule.visible = false;
                act = false;
            }
        }
        if (act) {
            if (optAction[1].value) {
                m_session.disk.DeleteDataFile(daySchedulePath(year, pointOfService, dayOfYear));
            } else {
                for (int r = kFirstTimeSlot; r <= kLastTimeSlot; ++r)
                    fgDaySchedule.SetTextMatrix(r, kSlotTextColumn, lstReason.text);
                saveDaySchedule(m_session.disk, year, pointOfService, dayOfYear, fgDaySchedule);
            }
        }
        m_session.disk.CloseAllFiles();
        // Work days, not calendar days, make the run; a holiday is a day of it like any other.
        Calender.value = SkipToWorkDay(Calender.value.addDays(1), workWeek);
    }
}

bool frmBlock::CheckJulian(const QString& team) {
    const QString name = m_pathStem + team + QStringLiteral("\\") + m_dayOfYear + QStringLiteral(".txt");
    if (!m_session.disk.FileExists(name)) {
        m_session.disk.CloseAllFiles();
        return false;
    }
    const QString text = QStringLiteral("An Event Exists at ") + m_session.pointOfServiceNames[team.toInt()] +
                         QStringLiteral(" on ") + vbDate(Calender.value) + u' ' +
                         QStringLiteral("Use the Reschedule Routine to") + u' ' +
                         QStringLiteral("Delete or Rechedule this Attention") + u'\n' +
                         QStringLiteral("This Request will be aborted.");
    m_session.platform.dialogs.MsgBox(text, vbOKOnly + vbCritical, QStringLiteral("Can't Block or UnBlock This Time"));
    cmdCancel_Click();
    return true;
}

} // namespace ostrel
