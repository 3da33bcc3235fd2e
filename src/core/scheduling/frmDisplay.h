#pragma once

#include "controls/Controls.h"
#include "controls/PickerControls.h"
#include "controls/Screen.h"
#include "platform/ControlRegistry.h"

#include <QStringList>

#include <array>

namespace ostrel {

class Session;

// "Work Schedules": one date for four Points of Service side by side, read only. The groups of
// four are offered for the first twelve names; the day files are read from the year in which the
// screen came up.
class frmDisplay : public Screen {
public:
    static constexpr int kGrids = 4;
    static constexpr int kGroups = 3;

    explicit frmDisplay(Session& session);

    // On the first showing: without Points of Service there is nothing to show, and the screen
    // goes back to the menu. Then the time labels.
    void Load() override;
    // Each showing: today, the year of the day files, the groups, the first group's day.
    void Form_Activate() override;

    void lstTeams_Click();
    void DTPicker1_Change();
    // The arrows: UpDown1 holds 1 for a day on or -1 for a day back, and returns to 0.
    void UpDown1_Change();
    void cmdMenu_Click();

    ControlArray<Grid> fgHours;  // 1 to 4
    ControlArray<Label> lblTeam; // 1 to 4
    ListBox lstTeams;
    DatePicker DTPicker1;
    UpDown UpDown1;
    CommandButton cmdMenu;
    Label lblDate;

    ControlRegistry controls;

    // The day files' folder stem: the year of the day the screen came up.
    int PathYear = 0;
    // The highest Point of Service number of the group on show.
    int HighNumber = 4;

private:
    void DateCheck();
    void ShowDay();

    Session& m_session;
    QStringList m_names;
    bool m_loaded = false;
};

} // namespace ostrel
