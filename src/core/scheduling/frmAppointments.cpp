#include "frmAppointments.h"

#include "DayScheduleStore.h"
#include "TimeGrid.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"
#include "util/VbText.h"

namespace ostrel {

namespace {

struct RoutineText {
    const char* caption;
    const char* toolTip;
    const char* instruction;
};

constexpr RoutineText kRoutines[] = {
    {"Schedule an Appointment", "Schedule a previously created appointment",
     "Select an Appointment, choose a Date, click the starting Time, then click Schedule"},
    {"Re-Schedule an Appointment", "Re-schedule a previously scheduled appointment",
     "Select a Scheduled Appointment, choose a new Date, click the starting Time, then click Re-Schedule"},
    {"Invoice an Appointment", "Create an invoice for a completed appointment",
     "Select a Completed Appointment, then click Create Invoice"},
    {"Delete an Appointment", "DELETE AN APPOINTMENT", "Select an Appointment, then click Delete"},
};

const char* const kButtons[] = {"S&chedule", "&Re-Schedule", "&Create Invoice", "&Delete", "&Menu"};

const char* const kHeadings[] = {"Scheduled", "Account", "Appt No.", "Status", "Sort"};

const char* const kCaptions[] = {"Appointments", "Point of Service", "Routines"};

// The menu entry that opens this screen on its invoicing routine.
constexpr int kInvoiceMenuEntry = 2;

} // namespace

frmAppointments::frmAppointments(Session& session) : Screen(QStringLiteral("frmAppointments")), m_session(session) {
    caption = QStringLiteral("Appointments");
    for (int i = 0; i < 4; ++i) {
        optRoutine[i].caption = QString::fromLatin1(kRoutines[i].caption);
        optRoutine[i].toolTip = QString::fromLatin1(kRoutines[i].toolTip);
        lblRoutine[i].caption = QString::fromLatin1(kRoutines[i].instruction);
        lblRoutine[i].visible = false;
    }
    for (int i = 0; i < 5; ++i) {
        cmdAppointments[i].caption = QString::fromLatin1(kButtons[i]);
        cmdAppointments[i].enabled = i == kCmdMenu;
    }
    cmdService.caption = QStringLiteral("Schedule Service    Save Day Schedule");
    cmdService.enabled = false;
    for (int i = 0; i < int(std::size(kCaptions)); ++i)
        lblCaption[i].caption = QString::fromLatin1(kCaptions[i]);

    fgAppointments.fixedCols = 0;
    fgAppointments.SetCols(5);
    fgAppointments.SetRows(1);
    for (int c = 0; c < 5; ++c)
        fgAppointments.SetTextMatrix(0, c, QString::fromLatin1(kHeadings[c]));
    FillTimeLabels(fgDaySchedule);
    fgDaySchedule.SetTextMatrix(0, kTimeLabelColumn, QStringLiteral("Time"));
    fgDaySchedule.SetTextMatrix(0, kSlotTextColumn, QStringLiteral("Scheduled Appointments"));
    fraCalendar.caption = QStringLiteral("Select a Date");
    fraCalendar.visible = false;
    fraSchedule.caption = QStringLiteral("Day Schedule");

    controls.add(QStringLiteral("optRoutine"), optRoutine);
    controls.add(QStringLiteral("cmdAppointments"), cmdAppointments);
    controls.add(QStringLiteral("cmdService"), cmdService);
    controls.add(QStringLiteral("lblRoutine"), lblRoutine);
    controls.add(QStringLiteral("fgAppointments"), fgAppointments);
    controls.add(QStringLiteral("fgDaySchedule"), fgDaySchedule);
    controls.add(QStringLiteral("lstAssignments"), lstAssignments);
    controls.add(QStringLiteral("fraCalendar"), fraCalendar);
    controls.add(QStringLiteral("DTPicker1"), DTPicker1);
    controls.add(QStringLiteral("fraSchedule"), fraSchedule);
    controls.add(QStringLiteral("lblCaption"), lblCaption);

    session.SetPointOfServiceList(PointOfServiceList::frmAppointments, &lstAssignments);
}

void frmAppointments::Load() {
    FillTimeLabels(fgDaySchedule);
    ClearDaySchedule(fgDaySchedule);
}

void frmAppointments::Form_Activate() {
    Reset();
    if (m_session.startup().optMainMenuSub.contains(kInvoiceMenuEntry) &&
        m_session.startup().optMainMenuSub[kInvoiceMenuEntry].value)
        optRoutine_Click(kInvoice);
}

void frmAppointments::Reset() {
    DTPicker1.value = m_session.today().addDays(-1);
    m_dayOfYear = DTPicker1.value.dayOfYear();
    fraCalendar.visible = false;
    for (auto& [i, option] : optRoutine)
        option.value = false;
    emptySlipGrid();
    ClearDaySchedule(fgDaySchedule);
    cmdService.enabled = false;
}

void frmAppointments::emptySlipGrid() {
    fgAppointments.SetRows(1);
    fgAppointments.row = 0;
}

void frmAppointments::optRoutine_Click(int index) {
    if (lstAssignments.listIndex < 0 && lstAssignments.ListCount() > 0) {
        lstAssignments.SetListIndex(0);
        lstAssignments_Click(); // selecting an entry is a click on it
    }
    ClearDaySchedule(fgDaySchedule);
    fgAppointments.SetTextMatrix(0, kDateColumn,
                                 index == kSchedule ? QStringLiteral("Created On") : QStringLiteral("Scheduled"));
    m_routine = index;
    m_session.Guarded([&] { LoadAppointments(index); });
    // Cleared again, so the same routine can be chosen twice running.
    for (auto& [i, option] : optRoutine)
        option.value = false;
}

void frmAppointments::lstAssignments_Click() { m_pointOfService = lstAssignments.listIndex + 1; }

void frmAppointments::DTPicker1_Change() {
    ClearDaySchedule(fgDaySchedule);
    m_dayOfYear = DTPicker1.value.dayOfYear();
    m_session.Guarded([&] {
        if (m_pointOfService != 0 &&
            dayScheduleExists(m_session.disk, DTPicker1.value.year(), m_pointOfService, m_dayOfYear))
            loadDaySchedule(m_session.disk, DTPicker1.value.year(), m_pointOfService, m_dayOfYear, fgDaySchedule);
    });
    setDayHeading(vbDate(DTPicker1.value));
}

void frmAppointments::DTPicker1_CloseUp() { m_dayOfYear = DTPicker1.value.dayOfYear(); }

void frmAppointments::setDayHeading(const QString& dateText) {
    fgDaySchedule.SetTextMatrix(0, kSlotTextColumn, QStringLiteral("Scheduled Appointments for ") + dateText);
}

void frmAppointments::cmdAppointments_Click(int index) {
    switch (index) {
    case kCmdSchedule:
    case kCmdReschedule:
        m_session.Guarded([&] { PaintRows(); });
        break;
    case kCmdInvoice:
        m_session.Guarded([&] { CreateInvoice(); });
        break;
    case kCmdDelete:
        m_session.Guarded([&] { DeleteSlip(); });
        break;
    case kCmdMenu:
        ReturnToMenu();
        break;
    default:
        break;
    }
}

void frmAppointments::ReturnToMenu() {
    emptySlipGrid();
    m_session.ShowScreen(ScreenId::frmStartup);
    Hide();
}

void frmAppointments::refuse(const QString& message) {
    m_session.platform.dialogs.MsgBox(message);
    m_session.Beep();
}

QString frmAppointments::selectedCell(int column) const {
    const int r = fgAppointments.row;
    if (r < 1 || r >= fgAppointments.Rows()) return QString();
    return fgAppointments.TextMatrix(r, column);
}

QString frmAppointments::selectedSlipName() const { return selectedCell(kSlipNameColumn); }

} // namespace ostrel
