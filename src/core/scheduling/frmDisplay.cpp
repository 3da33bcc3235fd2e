#include "frmDisplay.h"

#include "DayScheduleStore.h"
#include "TimeGrid.h"
#include "WorkDays.h"
#include "setup/PointOfServiceNames.h"
#include "shell/Session.h"

namespace ostrel {

namespace {
const QString kGroupNames[frmDisplay::kGroups] = {QStringLiteral("Points 1-4"), QStringLiteral("Points 5-8"),
                                                  QStringLiteral("Points 9-12")};
} // namespace

frmDisplay::frmDisplay(Session& session) : Screen(QStringLiteral("frmDisplay")), m_session(session) {
    caption = QStringLiteral("Work Schedules");
    for (int k = 1; k <= kGrids; ++k) {
        Grid& g = fgHours[k];
        g.SetCols(2);
        FillTimeLabels(g);
        g.SetTextMatrix(0, 0, QStringLiteral("Time"));
        g.SetTextMatrix(0, 1, QStringLiteral("Event"));
        g.colWidths = {700, 2400};
        lblTeam[k].caption.clear();
    }
    cmdMenu.caption = QStringLiteral("Return to &Menu");
    UpDown1.min = -1;
    UpDown1.max = 1;
    UpDown1.toolTip = QStringLiteral("A day back or on");
    lstTeams.toolTip = QStringLiteral("Select a group of four");
    lblDate.caption = QStringLiteral("Schedule Date");

    controls.add(QStringLiteral("fgHours"), fgHours);
    controls.add(QStringLiteral("lblTeam"), lblTeam);
    controls.add(QStringLiteral("lstTeams"), lstTeams);
    controls.add(QStringLiteral("DTPicker1"), DTPicker1);
    controls.add(QStringLiteral("UpDown1"), UpDown1);
    controls.add(QStringLiteral("cmdMenu"), cmdMenu);
    controls.add(QStringLiteral("lblDate"), lblDate);
}

void frmDisplay::Load() {
    m_loaded = true;
    if (!m_session.disk.FileExists(kServiceAreasFile)) {
        m_session.Beep();
        if (m_session.settings.program.prompts()) m_session.ShowMessage(QStringLiteral("No assignments Found"), QString());
        cmdMenu_Click();
    }
    for (auto& [k, g] : fgHours)
        FillTimeLabels(g);
}

void frmDisplay::Form_Activate() {
    if (!m_loaded) {
        Load();
        if (!isVisible()) return;
    }
    const QDate today = m_session.today();
    DTPicker1.value = today;
    PathYear = today.year();

    m_names.clear();
    m_session.Guarded([&] {
        const PointOfServiceNames table = LoadPointOfServiceNames(m_session.disk);
        m_names = table.names();
    });
    lstTeams.Clear();
    for (int i = 0; i < m_names.size(); ++i)
        if (i % kGrids == 0 && i / kGrids < kGroups) lstTeams.AddItem(kGroupNames[i / kGrids]);
    if (lstTeams.ListCount() > 0) {
        lstTeams.SetListIndex(0);
        lstTeams_Click();
    }
    ShowDay();
}

void frmDisplay::lstTeams_Click() {
    if (lstTeams.listIndex < 0) return;
    HighNumber = kGrids * (lstTeams.listIndex + 1);
    for (auto& [k, label] : lblTeam)
        label.caption.clear();
    for (auto& [k, g] : fgHours)
        ClearDaySchedule(g);
    for (int k = 1; k <= kGrids; ++k) {
        const int n = HighNumber - kGrids + k;
        if (n <= m_names.size()) lblTeam[k].caption = m_names.at(n - 1);
    }
    DateCheck();
}

void frmDisplay::DTPicker1_Change() {
    DateCheck();
}

void frmDisplay::UpDown1_Change() {
    const int step = UpDown1.value;
    UpDown1.value = 0;
    if (step == 0) return;
    DTPicker1.value = DTPicker1.value.addDays(step < 0 ? -1 : 1);
    DateCheck();
}

void frmDisplay::DateCheck() {
    const QDate today = m_session.today();
    if (DTPicker1.value < today) {
        m_session.Beep();
        if (m_session.settings.program.prompts())
            m_session.ShowMessage(QStringLiteral("Date selection cannot be before today"), QString());
        DTPicker1.value = today;
    }
    const int week = m_session.settings.program.WorkWeekCode;
    DTPicker1.value = SkipToWorkDay(DTPicker1.value, week);
    // The holiday test runs, but its date is not taken: a holiday stays on show.
    m_session.Guarded([&] { (void)SkipHolidays(m_session.disk, DTPicker1.value, week); });
    ShowDay(); // clears every slot row as it goes
}

void frmDisplay::ShowDay() {
    const int day = DTPicker1.value.dayOfYear();
    // Grid k shows the k-th Point of Service of the group; a grid with none is cleared.
    for (int k = 1; k <= kGrids; ++k) {
        Grid& g = fgHours[k];
        const int n = HighNumber - kGrids + k;
        if (n > m_names.size()) {
            for (int r = kFirstTimeSlot; r <= kLastTimeSlot; ++r)
                g.SetTextMatrix(r, kSlotTextColumn, QString());
            continue;
        }
        // A day without a file, or one that cannot be read, is an empty day, never the last one read.
        DaySchedule d;
        m_session.Guarded([&] { d = readDaySchedule(m_session.disk, PathYear, n, day); });
        // Line r goes to row r: row 0 stays empty, and line 48 has no row.
        g.SetTextMatrix(0, kSlotTextColumn, QString());
        for (int r = kFirstTimeSlot; r < kLastTimeSlot; ++r)
            g.SetTextMatrix(r, kSlotTextColumn, d.takeSlot(r));
        g.SetTextMatrix(kLastTimeSlot, kSlotTextColumn, QString());
    }
}

void frmDisplay::cmdMenu_Click() {
    Hide();
    m_session.ShowScreen(ScreenId::frmStartup);
}

} // namespace ostrel
