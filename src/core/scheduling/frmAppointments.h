#pragma once

#include "controls/Controls.h"
#include "controls/PickerControls.h"
#include "controls/Screen.h"
#include "platform/ControlRegistry.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <array>

namespace ostrel {

class Session;

// The appointment routines: schedule a saved slip, move a scheduled one, hand one to invoicing,
// delete one. The slips are listed from /Appointments with the routine's filter; a date and a row
// of the day grid place the slip, and the save writes the day and the slip.
class frmAppointments : public Screen {
public:
    enum Routine { kSchedule = 0, kReschedule = 1, kInvoice = 2, kDelete = 3 };
    enum Button { kCmdSchedule = 0, kCmdReschedule = 1, kCmdInvoice = 2, kCmdDelete = 3, kCmdMenu = 4 };
    enum Column { kDateColumn = 0, kCustomerColumn = 1, kSlipNameColumn = 2, kStatusColumn = 3, kSortColumn = 4 };
    // The slip file table's counter held a byte: no more slips than this are listed.
    static constexpr int kMaxSlipFiles = 254;

    explicit frmAppointments(Session& session);

    // Start-up loads the screen hidden: the time labels and an empty day.
    void Load() override;
    // Each time the screen comes up it resets; from the menu's invoicing entry it also chooses the
    // invoicing routine.
    void Form_Activate() override;

    void optRoutine_Click(int index);
    void fgAppointments_Click();
    void DTPicker1_Change();
    void DTPicker1_CloseUp();
    void lstAssignments_Click();
    void fgDaySchedule_Click();
    void cmdAppointments_Click(int index);
    void cmdService_Click();

    // Lists the slips that routine i works on.
    void LoadAppointments(int routine);
    // Empties the slip's rows on the day of the picker and saves that day.
    void ClearRows();

    ControlArray<OptionButton> optRoutine;
    ControlArray<CommandButton> cmdAppointments;
    CommandButton cmdService;
    ControlArray<Label> lblRoutine;
    Grid fgAppointments;
    Grid fgDaySchedule;
    ListBox lstAssignments;
    Frame fraCalendar;
    DatePicker DTPicker1;
    Frame fraSchedule;
    // Captions over the slips, the Point of Service list and the routines.
    ControlArray<Label> lblCaption;

    ControlRegistry controls;

    // Screen state, named as the routines know it.
    int routine() const { return m_routine; }
    int pointOfService() const { return m_pointOfService; }
    int dayOfYear() const { return m_dayOfYear; }
    int slots() const { return m_slots; }
    int targetRow() const { return m_targetRow; }
    const QStringList& slipFiles() const { return m_slipFiles; }
    const QStringList& comments() const { return m_comments; }
    const std::array<QString, 8>& customerTable() const { return m_customerTable; }
    const std::array<QString, 8>& customerFields() const { return m_customerFields; }

private:
    void Reset();
    // The selected slip in fgAppointments: its SlipName, or empty when no slip row is chosen.
    QString selectedSlipName() const;
    QString selectedCell(int column) const;
    // Reads the selected slip's Point of Service, slot count and start row into the screen state.
    void readSelectedHeader();
    void PaintRows();
    void SaveDay();
    void CreateInvoice();
    void DeleteSlip();
    void ReturnToMenu();
    void setDayHeading(const QString& dateText);
    void emptySlipGrid();
    void refuse(const QString& message);
    QStringList listSlipFiles();

    Session& m_session;
    int m_routine = 0;
    int m_pointOfService = 0;
    int m_dayOfYear = 0;
    int m_slots = 0;
    int m_startRow = 0;
    quint8 m_targetRow = 0;
    QStringList m_slipFiles;
    QStringList m_statuses;
    QStringList m_comments; // by file position; entry 0 stands for no file
    std::array<QString, 8> m_customerTable;
    std::array<QString, 8> m_customerFields;
    QString m_commentLine;
};

} // namespace ostrel
