#pragma once

#include "WorkOrderDocuments.h"
#include "controls/Controls.h"
#include "controls/Screen.h"
#include "platform/ControlRegistry.h"
#include "printing/PrinterRoutines.h"
#include "scheduling/AppointmentSlip.h"

#include <QDate>
#include <QString>

#include <vector>

namespace ostrel {

class Session;
class frmTerms;

// A slot count as a time text: whole hours, a colon and the quarter, "1:15" for 5.
QString BuildTime(int slots);

// The work order routine: finds the day's slips, shows an overview of all of them, adds services
// to one, prints its work order, summary report and pick list, purges expired slips and hands a
// slip over to the invoice. The screen is hidden, never destroyed, so its flags live for the run.
class frmWorkOrders : public Screen {
public:
    // The most slip files one listing takes in.
    static constexpr int kMostSlips = 255;

    frmWorkOrders(Session& session, frmTerms& terms, Grid& fgAddServices);

    void Form_Activate() override;

    void cmdWorkOrders_Click(int index);
    void optFindBy_Click(int index);
    void fgOverview_Click();
    // A click on an entry of the list selects it (the others stay as they are) and loads.
    void lstWorkorders_Click();
    // The box of an entry ticked or cleared: the selection changes and the selected entries load.
    void lstWorkorders_ItemCheck(int index, bool selected);
    // The list is one of boxes: each entry is selected on its own.
    bool EntrySelected(int index) const { return m_entrySelected.value(index, false); }
    void fgAddServices_Click();
    void fgAddServices_RightClick();
    void mnuInstructions_Click();
    void mnuOverview_Click();

    void LoadWorkorders();
    void Reset();
    // A custom disclaimer was found when the terms screen loaded: it is the one printed.
    void SelectDisclaimer(int index);
    // Setup's sample: a work order of today for account "12345678", number "WO # 12345".
    void PrintSampleWorkOrder();

    // What the three documents print for an entry of lstWorkorders.
    WorkOrderContent DocumentContent(const QString& slipName);
    WorkOrderFixedPart FixedPart() const;

    ControlArray<CommandButton> cmdWorkOrders; // 0 to 14
    ControlArray<OptionButton> optFindBy;      // 0 date, 1 Point of Service, 2 both
    ControlArray<OptionButton> optTerms;       // 0 generic, 1 custom
    ControlArray<OptionButton> optDisclaimer;  // 0 generic, 1 custom
    DatePicker DTPicker1;
    ListBox lstAssignments;
    ListBox lstWorkorders;
    Grid fgOverview;
    Grid fgServices;
    Grid& fgAddServices; // the catalogue fills it
    Grid fgItemsAdded;
    Grid fgPicklist;
    Frame fraOverview, fraDate, fraAssignmentList, fraAddServices, fraTerms, fraPicklist, fraTermsandDis,
        fraInstructions, fraWorkorders;
    CheckBox ckCompletion, ckPick, ckPrintInvoice, ckInstructions;
    ControlArray<Label> Label1; // 1 the invoice warning, 2 how to select
    ControlArray<Label> lblInstructions;
    ControlArray<Image> imgSave; // 0 save the added services, 1 load
    MenuItem mnuInstructions, mnuOverview;

    ControlRegistry controls;

    // The flags of the screen, all False at program start.
    bool ServicesAdded = false;
    bool OverviewBuilt = false;
    bool PurgeMode = false;

    // The slip last loaded.
    const AppointmentSlip& currentSlip() const { return m_slip; }
    PrinterRoutines& printer() { return m_printer; }

private:
    void returnToMenu();
    void loadCommand();
    void loadSelected();
    void addOtherServices();
    void saveAddedServices();
    void purgeExpired();
    void prepareWorkOrder();
    void printDocuments();
    void handOver();

    void addOverviewRow(const AppointmentSlip& slip);
    bool pointOfServiceSelected(int number) const;
    // The entries of lstWorkorders that are selected, in list order.
    QStringList selectedEntries() const;
    void clearEntries();
    void addEntry(const QString& slipName);
    void emptyGrid(Grid& grid);
    void appendRow(Grid& grid, const QStringList& cells);

    void printSummary();
    void printPicklist();
    void printWorkOrders();
    QString dateText(const QDate& date) const;

    Session& m_session;
    frmTerms& m_terms;
    QVector<bool> m_entrySelected; // beside lstWorkorders' entries
    PrinterRoutines m_printer;
    AppointmentSlip m_slip;
    // The row of fgAddServices a left click chose, for the right click that adds it.
    int m_addRow = 0;
};

} // namespace ostrel
