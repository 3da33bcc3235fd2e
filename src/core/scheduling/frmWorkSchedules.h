#pragma once

#include "controls/Controls.h"
#include "controls/PickerControls.h"
#include "controls/Screen.h"
#include "platform/ControlRegistry.h"
#include "printing/PrinterRoutines.h"

#include <QDate>
#include <QStringList>
#include <QVector>

namespace ostrel {

class Session;
struct AppointmentSlip;

inline const QString kAppointmentsFound = QStringLiteral("Appiontments Found");
inline const QString kNoAppointmentsFound = QStringLiteral(" No Appiontments Found");
inline const QString kScheduledMarker = QStringLiteral("   ------Scheduled------");
inline const QString kSeeItemsRequired = QStringLiteral("See Items Required List");

// "Print Work Schedules": the slips of a date range across every Point of Service, and the day of
// one Point of Service with its slips painted in, printed as the day sheet. Writes nothing.
class frmWorkSchedules : public Screen {
public:
    // The columns of fgSchedule and fgOverview.
    enum { kTime = 0, kAccount = 1, kService = 2 };
    enum { kScheduled = 0, kAccountNo = 1, kCustomer = 2, kServicePoint = 3 };
    // The button indices.
    enum { kMenu = 0, kLoadDay = 1, kPrint = 2, kLoadOverview = 3 };
    // The colours of the found mark.
    static constexpr Colour kFoundGreen = 0x00C000;
    static constexpr Colour kNotFoundRed = 0x0000FF;

    explicit frmWorkSchedules(Session& session);

    void Form_Activate() override;

    void cmdWorkSchedules_Click(int index);
    void DTPicker1_Change();
    void DTStart_Change();
    void DTEnd_Change();
    void lstAssociates_Click();
    void fgOverview_Click();
    // A right button released over the grid, on the row now current.
    void fgSchedule_RightClick();
    void mnuToggle_Click();

    // The overview of the slips dated within the range; every status counts.
    void LoadOverview();
    // The slips of the picker's date and the chosen Point of Service, into lstWorkorders.
    void LoadWorkorders();

    DatePicker DTPicker1;
    ListBox lstAssociates;
    Grid fgSchedule;
    ListBox lstWorkorders;
    Label lblFound;
    Label shpFound;
    Frame fraOverview;
    DatePicker DTStart;
    DatePicker DTEnd;
    Grid fgOverview;
    ControlArray<CommandButton> cmdWorkSchedules;
    MenuItem mnuToggle;
    // 0 the Point of Service list, 1 start, 2 end, 3 the day's date.
    ControlArray<Label> Label1;

    ControlRegistry controls;

    // The found mark's colour: green when slips were found, red when none.
    Colour FoundColour = kFoundGreen;
    // The slip files of the folder, as the screen listed them when it came up.
    QStringList SlipFiles;

private:
    void ListSlipFilesOnce();
    void LoadDay();
    void PaintSlip(const AppointmentSlip& slip);
    void ClearSchedule();
    void PrintSchedule();
    void ShowFound(bool found);
    // Reads one slip for a list; a slip that cannot be read is noted and skipped.
    bool readHeader(const QString& name, AppointmentSlip& slip, QStringList& unreadable);
    void reportUnreadable(const QStringList& names);

    Session& m_session;
    PrinterRoutines m_printer;
    QVector<QDate> m_overviewDates;
};

} // namespace ostrel
