#include "frmWorkSchedules.h"

#include "DaySheet.h"
#include "TimeGrid.h"
#include "WorkDays.h"
#include "shell/Session.h"
#include "store/LocaleText.h"

namespace ostrel {

frmWorkSchedules::frmWorkSchedules(Session& session)
    : Screen(QStringLiteral("frmWorkSchedules")), m_session(session),
      m_printer(session, session.platform.printDialogs) {
    caption = QStringLiteral("Print Work Schedules");
    fgSchedule.SetCols(3);
    FillTimeLabels(fgSchedule);
    fgSchedule.SetTextMatrix(0, kTime, QStringLiteral("Time"));
    fgSchedule.SetTextMatrix(0, kAccount, QStringLiteral("Acct Name"));
    fgSchedule.SetTextMatrix(0, kService, QStringLiteral("Service"));
    fgSchedule.colWidths = {700, 3000, 3400};

    fgOverview.fixedCols = 0;
    fgOverview.SetCols(4);
    fgOverview.SetRows(1);
    const char* const heads[] = {"Scheduled", "Account No", "Customer", "Service Point"};
    for (int c = 0; c < 4; ++c)
        fgOverview.SetTextMatrix(0, c, QString::fromLatin1(heads[c]));
    fgOverview.colWidths = {1300, 1500, 2800, 2000};

    fraOverview.caption = QStringLiteral("Scheduled Appointments");
    cmdWorkSchedules[kMenu].caption = QStringLiteral("Menu");
    cmdWorkSchedules[kLoadDay].caption = QStringLiteral("Load");
    cmdWorkSchedules[kPrint].caption = QStringLiteral("Print");
    cmdWorkSchedules[kLoadOverview].caption = QStringLiteral("Load");
    cmdWorkSchedules[kLoadDay].toolTip = QStringLiteral("Load the day of the chosen date and Point of Service");
    cmdWorkSchedules[kLoadOverview].toolTip = QStringLiteral("List the appointments from Start to End");
    cmdWorkSchedules[kLoadDay].enabled = false;
    cmdWorkSchedules[kPrint].enabled = false;
    mnuToggle.caption = QStringLiteral("Toggle Grids");
    lstWorkorders.visible = false;
    lblFound.visible = false;
    shpFound.visible = false;
    Label1[0].caption = QStringLiteral("Select Work Area");
    Label1[1].caption = QStringLiteral("Start");
    Label1[2].caption = QStringLiteral("End");
    Label1[3].caption = QStringLiteral("Schedule Date");

    m_session.SetPointOfServiceList(PointOfServiceList::frmWorkSchedules, &lstAssociates);

    controls.add(QStringLiteral("DTPicker1"), DTPicker1);
    controls.add(QStringLiteral("lstAssociates"), lstAssociates);
    controls.add(QStringLiteral("fgSchedule"), fgSchedule);
    controls.add(QStringLiteral("lstWorkorders"), lstWorkorders);
    controls.add(QStringLiteral("lblFound"), lblFound);
    controls.add(QStringLiteral("shpFound"), shpFound);
    controls.add(QStringLiteral("fraOverview"), fraOverview);
    controls.add(QStringLiteral("DTStart"), DTStart);
    controls.add(QStringLiteral("DTEnd"), DTEnd);
    controls.add(QStringLiteral("fgOverview"), fgOverview);
    controls.add(QStringLiteral("cmdWorkSchedules"), cmdWorkSchedules);
    controls.add(QStringLiteral("mnuToggle"), mnuToggle);
    controls.add(QStringLiteral("Label1"), Label1);
}

void frmWorkSchedules::Form_Activate() {
    Label1[0].caption = m_session.settings.program.optBusinessType(1) ? QStringLiteral("Select Associate")
                                                                      : QStringLiteral("Select Work Area");
    const QDate today = m_session.today();
    DTPicker1.minDate = today;
    DTStart.minDate = today;
    DTEnd.minDate = today;
    ClearSchedule();
    cmdWorkSchedules[kPrint].enabled = false;
    cmdWorkSchedules[kLoadDay].enabled = lstAssociates.listIndex >= 0;
    ListSlipFilesOnce();
    // The holiday test of today is made and then overwritten: a holiday makes no difference here.
    const int week = m_session.settings.program.WorkWeekCode;
    DTPicker1.value = SkipToWorkDay(today, week);
    DTStart.value = DTPicker1.value;
    DTEnd.value = DTStart.value.addDays(6);
    fraOverview.visible = true;
    fgSchedule.visible = false;
    LoadOverview();
}

void frmWorkSchedules::ClearSchedule() {
    for (int r = kFirstTimeSlot; r <= kLastTimeSlot; ++r) {
        fgSchedule.SetTextMatrix(r, kAccount, QString());
        fgSchedule.SetTextMatrix(r, kService, QString());
    }
}

void frmWorkSchedules::cmdWorkSchedules_Click(int index) {
    switch (index) {
    case kMenu:
        Hide();
        m_session.ShowScreen(ScreenId::frmStartup);
        break;
    case kLoadDay:
        LoadDay();
        break;
    case kPrint:
        PrintSchedule();
        break;
    case kLoadOverview:
        LoadOverview();
        break;
    default:
        break;
    }
}

void frmWorkSchedules::mnuToggle_Click() {
    fraOverview.visible = !fraOverview.visible;
    fgSchedule.visible = !fraOverview.visible;
}

void frmWorkSchedules::DTPicker1_Change() {
    shpFound.visible = false;
    lblFound.visible = false;
    const QDate today = m_session.today();
    if (DTPicker1.value < today) {
        DTPicker1.value = today;
        m_session.Beep();
        return;
    }
    if (lstAssociates.listIndex >= 0) cmdWorkSchedules[kLoadDay].enabled = true;
}

void frmWorkSchedules::lstAssociates_Click() {
    cmdWorkSchedules[kLoadDay].enabled = true;
    shpFound.visible = false;
    lblFound.visible = false;
}

void frmWorkSchedules::DTStart_Change() {
    const int week = m_session.settings.program.WorkWeekCode;
    m_session.Guarded([&] { DTStart.value = SkipHolidays(m_session.disk, DTStart.value, week); });
    DTStart.value = SkipToWorkDay(DTStart.value, week);
    DTEnd.value = DTStart.value.addDays(7);
}

void frmWorkSchedules::DTEnd_Change() {
    if (DTEnd.value < DTStart.value) {
        m_session.Beep();
        DTEnd.value = DTStart.value.addDays(7);
    }
    const int week = m_session.settings.program.WorkWeekCode;
    m_session.Guarded([&] { DTEnd.value = SkipHolidays(m_session.disk, DTEnd.value, week); });
    DTEnd.value = SkipToWorkDay(DTEnd.value, week);
}

void frmWorkSchedules::fgOverview_Click() {
    const int row = fgOverview.row;
    if (row < 1 || row >= fgOverview.Rows() || row > m_overviewDates.size()) return;
    DTPicker1.value = m_overviewDates.at(row - 1);
    const QString point = fgOverview.TextMatrix(row, kServicePoint);
    for (int i = 0; i < lstAssociates.ListCount(); ++i) {
        if (lstAssociates.List(i) == point) {
            lstAssociates.SetListIndex(i);
            lstAssociates_Click();
            fraOverview.visible = false;
            cmdWorkSchedules_Click(kLoadDay);
            return;
        }
    }
}

void frmWorkSchedules::fgSchedule_RightClick() {
    const int row = fgSchedule.row;
    if (row < 1 || row >= fgSchedule.Rows()) return;
    if (!fgSchedule.TextMatrix(row, kAccount).startsWith(QLatin1String("Tel"))) return;
    // The dialer takes the row's columns 2 and 0, as the schedule always handed them over.
    if (m_session.dial) m_session.dial(fgSchedule.TextMatrix(row, kService), fgSchedule.TextMatrix(row, kTime));
}

void frmWorkSchedules::ShowFound(bool found) {
    FoundColour = found ? kFoundGreen : kNotFoundRed;
    lblFound.caption = found ? kAppointmentsFound : kNoAppointmentsFound;
    lblFound.visible = true;
    shpFound.visible = true;
}

void frmWorkSchedules::PrintSchedule() {
    cmdWorkSchedules[kLoadDay].enabled = false;
    cmdWorkSchedules[kPrint].enabled = false;
    DaySheetContent content;
    content.date = ShortDateText(DTPicker1.value);
    content.pointOfService = lstAssociates.List(lstAssociates.listIndex);
    content.schedule = &fgSchedule;
    if (PrintDaySheet(m_printer, content, m_session.settings) == PrintResult::Printed) ClearSchedule();
}

} // namespace ostrel
