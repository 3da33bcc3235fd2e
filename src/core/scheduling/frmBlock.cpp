#include "frmBlock.h"

#include "DayScheduleStore.h"
#include "TimeGrid.h"
#include "WorkDays.h"
#include "shell/Session.h"

namespace ostrel {

namespace {

const char* const kReasons[] = {"Vacation", "Holiday", "Personal Day", "Sick Day"};

const char* const kCaptions[] = {"Assignment", "Reason", "Number of Days", "First Day", "From", "To"};

} // namespace

frmBlock::frmBlock(Session& session) : Screen(QStringLiteral("frmBlock")), m_session(session) {
    caption = QStringLiteral("Holiday and Vacation Days");
    optAction[0].caption = QStringLiteral("Reserve Days (Prevents work Scheduling)");
    optAction[1].caption = QStringLiteral("Restore Days (Clears previous Blocks)");
    sldTimeReq.min = 1;
    sldTimeReq.max = kMaxDays;
    sldTimeReq.value = 1;
    txtTimeReq.text = QStringLiteral("1");
    txtTimeReq.locked = true; // the number changes by the up-down control and by a click
    cmdAccept.caption = QStringLiteral("&Accept");
    cmdCancel.caption = QStringLiteral("&Cancel");
    cmdExit.caption = QStringLiteral("&Menu");
    fraSchedule.caption = QStringLiteral("Day Schedule");
    fraSchedule.visible = false;
    lblSchedule.caption = QStringLiteral("These Events will be overwritten if you selected Reserve Days or the Day "
                                         "Schedule will be  DELETED if you selected Restore Days");
    fraBlockedDays.caption = QStringLiteral("Blocked Days");
    fraBlockedDays.visible = false;
    fgBlocked.fixedCols = 0;
    fgBlocked.SetCols(3);
    fgBlocked.SetRows(2);
    fgBlocked.SetTextMatrix(0, 0, QStringLiteral("Team"));
    fgBlocked.SetTextMatrix(0, 1, QStringLiteral("Date"));
    fgBlocked.SetTextMatrix(0, 2, QStringLiteral("Reason"));
    cmdSearch.caption = QStringLiteral("&Load Grid");
    cmdClearGrid.caption = QStringLiteral("&Clear Grid");
    cmdHideGrid.caption = QStringLiteral("&Hide Grid");
    mnuBlocked.caption = QStringLiteral("Toggle Blocked Days Grid");
    for (int i = 0; i < int(std::size(kCaptions)); ++i)
        lblCaption[i].caption = QString::fromLatin1(kCaptions[i]);
    FillTimeLabels(fgDaySchedule);
    fgDaySchedule.SetTextMatrix(0, kTimeLabelColumn, QStringLiteral("Time"));
    fgDaySchedule.SetTextMatrix(0, kSlotTextColumn, QStringLiteral("Events"));

    controls.add(QStringLiteral("Calender"), Calender);
    controls.add(QStringLiteral("lstAssignto"), lstAssignto);
    controls.add(QStringLiteral("optAction"), optAction);
    controls.add(QStringLiteral("lstReason"), lstReason);
    controls.add(QStringLiteral("sldTimeReq"), sldTimeReq);
    controls.add(QStringLiteral("txtTimeReq"), txtTimeReq);
    controls.add(QStringLiteral("cmdAccept"), cmdAccept);
    controls.add(QStringLiteral("cmdCancel"), cmdCancel);
    controls.add(QStringLiteral("cmdExit"), cmdExit);
    controls.add(QStringLiteral("fraSchedule"), fraSchedule);
    controls.add(QStringLiteral("lblSchedule"), lblSchedule);
    controls.add(QStringLiteral("fgDaySchedule"), fgDaySchedule);
    controls.add(QStringLiteral("fraBlockedDays"), fraBlockedDays);
    controls.add(QStringLiteral("DTStart"), DTStart);
    controls.add(QStringLiteral("DTEnd"), DTEnd);
    controls.add(QStringLiteral("fgBlocked"), fgBlocked);
    controls.add(QStringLiteral("cmdSearch"), cmdSearch);
    controls.add(QStringLiteral("cmdClearGrid"), cmdClearGrid);
    controls.add(QStringLiteral("cmdHideGrid"), cmdHideGrid);
    controls.add(QStringLiteral("mnuBlocked"), mnuBlocked);
    controls.add(QStringLiteral("lblCaption"), lblCaption);

    session.SetPointOfServiceList(PointOfServiceList::frmBlock, &lstAssignto);
}

void frmBlock::Load() {
    m_loaded = true;
    lstReason.Clear();
    for (const char* reason : kReasons)
        lstReason.AddItem(QString::fromLatin1(reason));
    FillTimeLabels(fgDaySchedule);
}

void frmBlock::Form_Activate() {
    if (!m_loaded) Load();
    InitForm();
}

void frmBlock::InitForm() {
    lstReason.SetListIndex(0);
    lstAssignto.SetListIndex(0);
    Calender.value = SkipToWorkDay(m_session.DefaultCalendarDate(), m_session.settings.program.WorkWeekCode);
    optAction[0].value = true;
    optAction[1].value = false;
    lstReason.enabled = true;
    setDays(1);
    resetSearchDates();
    fraBlockedDays.visible = false;
    fraSchedule.visible = false;
}

void frmBlock::Calender_DateClick() { DateClick(); }

void frmBlock::DateClick() {
    const QDate today = m_session.today();
    if (Calender.value < today) {
        Calender.value = m_session.DefaultCalendarDate();
        return;
    }
    Calender.value = SkipToWorkDay(Calender.value, m_session.settings.program.WorkWeekCode);
    const int year = Calender.value.year();
    if (year > today.year()) m_session.CreateTeamDirectories(QString::number(year));
    m_pathStem = QStringLiteral("\\") + QString::number(year) + QStringLiteral("\\DaySchedules");
    m_dayOfYear = QString::number(Calender.value.dayOfYear());
    cmdAccept.SetFocus();
}

void frmBlock::optAction_Click(int index) {
    for (auto& [i, option] : optAction)
        option.value = i == index;
    if (index == 1) {
        lstReason.listIndex = -1;
        lstReason.text = kNoEvents;
        lstReason.enabled = false;
    } else {
        lstReason.SetListIndex(0);
        lstReason.enabled = true;
    }
}

void frmBlock::lstReason_Click() { cmdAccept.SetFocus(); }

void frmBlock::sldTimeReq_Change() {
    // The box is the control's buddy and always shows its number.
    txtTimeReq.text = QString::number(sldTimeReq.value);
    cmdAccept.SetFocus();
}

void frmBlock::txtTimeReq_Click() {
    const int days = requestedDays();
    if (days > 0 && days < kMaxDays) setDays(days + 1);
}

void frmBlock::setDays(int days) {
    sldTimeReq.SetValue(days);
    txtTimeReq.text = QString::number(days);
}

int frmBlock::requestedDays() const { return txtTimeReq.text.trimmed().toInt(); }

void frmBlock::cmdExit_Click() {
    Hide();
    m_session.ShowScreen(ScreenId::frmStartup);
}

void frmBlock::setBusy(bool busy) {
    if (waitCursor) waitCursor(busy);
}

} // namespace ostrel
