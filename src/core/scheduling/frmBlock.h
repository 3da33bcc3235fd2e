#pragma once

#include "controls/Controls.h"
#include "controls/PickerControls.h"
#include "controls/Screen.h"
#include "platform/ControlRegistry.h"

#include <QDate>
#include <QString>

#include <functional>

namespace ostrel {

class Session;

// Holiday and vacation days: a run of work days taken out of one Point of Service's schedule, or
// out of all of them, by filling every row of the day with the reason; or given back by deleting
// the day files. The blocked days are found again only by the first line of the day files.
class frmBlock : public Screen {
public:
    static constexpr int kMaxDays = 30;
    static inline const QString kNoEvents = QStringLiteral("No Events");

    explicit frmBlock(Session& session);

    // Fills the reasons and the time labels of the day grid.
    void Load() override;
    // Each time the screen comes up; the first time also loads it.
    void Form_Activate() override;

    void InitForm();
    // A day chosen on the month view; Calender already holds it.
    void Calender_DateClick();
    void optAction_Click(int index);
    void lstReason_Click();
    void sldTimeReq_Change();
    void txtTimeReq_Click();
    void cmdAccept_Click();
    void cmdCancel_Click() { InitForm(); }
    void cmdExit_Click();

    void cmdSearch_Click();
    void cmdClearGrid_Click();
    void cmdHideGrid_Click();
    void mnuBlocked_Click();
    void DTStart_CloseUp();
    void DTEnd_CloseUp();

    // Reserves or restores the run of days for every Point of Service, one after the other.
    void FindAllTeams();
    // The run of days for one Point of Service, its number as text ("3").
    void FindTeam(const QString& team);
    // The stricter guard that refuses a day holding anything: true when it refused, which ends the
    // run. Nothing calls it; it stays ready.
    bool CheckJulian(const QString& team);

    DatePicker Calender;
    ListBox lstAssignto;
    ControlArray<OptionButton> optAction;
    ComboBox lstReason;
    UpDown sldTimeReq;
    TextBox txtTimeReq;
    CommandButton cmdAccept, cmdCancel, cmdExit;
    Frame fraSchedule;
    Label lblSchedule; // the note over the day in question
    Grid fgDaySchedule;
    Frame fraBlockedDays;
    DatePicker DTStart, DTEnd;
    Grid fgBlocked;
    CommandButton cmdSearch, cmdClearGrid, cmdHideGrid;
    MenuItem mnuBlocked;
    // Captions beside the controls: 0 the Point of Service, 1 the reason, 2 the number of days,
    // 3 the first day, 4 and 5 the search dates.
    ControlArray<Label> lblCaption;

    ControlRegistry controls;

    // Told when a long run starts (true) and ends (false), for the wait cursor.
    std::function<void(bool busy)> waitCursor;

    // The first day of the run, kept while the run moves the calendar.
    QDate startDate() const { return m_startDate; }
    // "\2026\DaySchedules": the folder stem of the calendar's year, and the day of year as text.
    const QString& pathStem() const { return m_pathStem; }
    const QString& dayOfYearText() const { return m_dayOfYear; }

private:
    // The date click, for whatever date the calendar holds.
    void DateClick();
    void setDays(int days);
    int requestedDays() const;
    void setBusy(bool busy);
    void resetSearchDates();
    void invalidSearchDates();

    Session& m_session;
    bool m_loaded = false;
    QDate m_startDate;
    QString m_dayOfYear;
    QString m_pathStem;
};

} // namespace ostrel
