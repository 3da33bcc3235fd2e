#pragma once

#include "AppointmentSlip.h"
#include "catalogue/CatalogueLists.h"
#include "controls/Controls.h"
#include "controls/PickerControls.h"
#include "controls/Screen.h"
#include "platform/ControlRegistry.h"
#include "store/Money.h"

#include <QDate>
#include <QString>
#include <QVector>

#include <vector>

namespace ostrel {

class Session;
class frmNewCustomer;

// The appointment creation screen: services, an additional service, comments and sales items for
// the customer chosen on the account screen, placed on one Point of Service's day grid and saved
// as a slip, scheduled or not. The screen is a stack of frames shown one step at a time.
class frmCreate : public Screen {
public:
    static constexpr int kServiceButtons = 16;
    static constexpr int kCustomerLabels = 8;
    static constexpr int kDayButtons = 4;

    // The buttons by index; the index carries the logic.
    enum Button {
        kMenu = 0,
        kCloseWithoutSaving = 1,
        kSchedule = 2,
        kClearAdded = 3,
        kSaveUnscheduled = 4,
        kCloseAddTo = 5,
        kCreateAppointment = 6,
        kClearComments = 7,
        kStartOverSummary = 8,
        kAddItem = 9,
        kCalculate = 10,
        kAddService = 11,
        kStartOverItems = 12,
        kScheduleForDate = 13,
        kDifferentDate = 14,
        kAllServicesSelected = 15,
    };

    explicit frmCreate(Session& session);

    // Runs once, the first time the screen comes up.
    void Load() override;
    // Each time the screen comes up: the slips, a new SlipId, the customer, the reset.
    void Form_Activate() override;

    // Shared routines.
    void LoadWorkorders();
    void ResetAppointment();
    void ClearStartOver();

    // Events.
    void cmdService_Click(int index);
    void cmdDay_Click(int index);
    void DTPicker1_Change();
    void lstAssignments_Click();
    void lstServices_Click();
    void lstCategories_Click();
    void cboItems_Click();
    void txtAdditional_Change();
    void txtCost_GotFocus();
    void txtCost_LostFocus();
    void txtCost_KeyPress(int& keyAscii);
    void fgDaySchedule_Click();
    // A right mouse click on a row of the services or items grid.
    void fgServices_RightClick();
    void fgItems_RightClick();
    void mnuCustomer_Click();
    void mnuServices_Click();
    void mnuItems_Click();
    void mnuAddto_Click();
    void mnuInstructions_Click();

    // Screen state, kept while the screen lives.
    qint16 PointOfService = 0; // 1-based; the selected entry of lstAssignments
    SlipCounter& Counter;      // the session's: the SlipId in force, read by the invoice too
    bool EventScheduled = false;
    qint16 Slots = 0; // only ever added to: the screen's creation is what starts it at 0
    quint8 StartRow = 0;
    bool ScheduledFlag = false;
    bool AdditionalFlag = false;
    Money TotalCost;

    // The check marks of the services list (a list with a check box before each service).
    bool ServiceChecked(int index) const { return m_serviceChecks.value(index, false); }
    void SetServiceChecked(int index, bool checked);

    // The SlipName of the appointment being built.
    QString CurrentSlipName() const;

    // Controls.
    Frame fraAccount, fraServices, fraAddTo, fraItems, fraSummary, fraSchedule, fraInstructions;
    ControlArray<Label> lblCustomer;
    Label lblAccount;
    ListBox lstAssignments;
    ListBox lstWorkorders; // hidden: the SlipName of every slip file
    // The catalogue's lists, filled by the catalogue loads.
    ListBox& lstServices;
    ComboBox& cboServicesCost;
    ComboBox& cboTime;
    ComboBox& cboItems;
    ComboBox& cboItemPrices;
    ListBox& lstCategories;
    Grid fgServices, fgItems, fgItemSummary, fgDaySchedule;
    ControlArray<CommandButton> cmdService;
    ControlArray<CommandButton> cmdDay;
    DatePicker DTPicker1;
    TextBox txtAdditional, txtCost, txtComments, txtQuantity, txtServicesSummary;
    ListBox lstTime;
    Label lblItemTotal, lblCost, lblTime;
    CheckBox ckPrintInvoice;
    MenuItem mnuToggle, mnuCustomer, mnuServices, mnuItems, mnuAddto, mnuInstructions;
    ControlArray<Label> lblInstructions;

    ControlRegistry controls;

private:
    // The date rule: the picker's date moved to a work day; a date before today only beeps.
    void SetPickerDate(const QDate& date);
    void RunDateRule();
    void AddService();
    void CloseAddTo();
    void CloseWithoutSaving();
    void ClearAddedService();
    void Calculate();
    void AddItem();
    void CreateAppointment();
    void ShowDaySchedule();
    void SelectDifferentDate();
    void SaveScheduled();
    void SaveUnscheduled();
    void ReturnToMenu();
    bool ConfirmStartOver();
    // The slip of the appointment on screen, written whole, then the counter moved on.
    void WriteAppointmentSlip(const QString& status, quint8 startRow);
    void WriteServices();
    void WriteSoldItems();
    void PaintServices(const QString& slipName);
    // Shows one of the four toggled frames (and hides the other three), or hides it.
    void ToggleFrame(Frame& frame);
    void RefuseClick(const QString& prompt, bool beepFirst);
    void Box(const QString& prompt);
    void Focus(Control& control);
    frmNewCustomer* accountScreen() const;
    QString zeroMoney() const;

    Session& m_session;
    bool m_loaded = false;
    QVector<bool> m_serviceChecks;
};

// The time of an appointment as the summary shows it: hours, then ":00", ":15", ":30" or ":45".
QString SlotsAsTime(int slots);

// A grid emptied to its heading row and one blank row.
void EmptyToOneBlankRow(Grid& grid);
// Removes one row below the heading, moving the rows under it up.
void RemoveGridRow(Grid& grid, int row);

} // namespace ostrel
