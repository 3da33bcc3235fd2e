#include "frmCreate.h"

#include "SlotArithmetic.h"
#include "TimeGrid.h"
#include "WorkDays.h"
#include "accounts/CustomerNames.h"
#include "accounts/frmNewCustomer.h"
#include "shell/Session.h"
#include "util/VbText.h"

namespace ostrel {

namespace {

// By index; the blanks are part of the captions.
const char* const kServiceCaptions[frmCreate::kServiceButtons] = {
    "Menu",
    "Close Without Saving",
    "Schedule Appointment    Save Day Schedule",
    "Clear Added Service / Redo",
    "Save Unscheduled Appointment ",
    "                 Close Window                     Add to Appointment",
    "Create Appointment",
    "Clear Customer Comments",
    "Clear - Start Over",
    "Add Item to Appointment",
    "Calculate",
    "Add Service to Appointment",
    "Clear - Start Over",
    "Schedule Appointment for This Date",
    "Select a Different Date",
    "All Services have been Selected",
};

const char* const kDayCaptions[frmCreate::kDayButtons] = {"<", ">", "<<", ">>"};

// How a person works through the screen, shown by "Toggle Instructions".
const char* const kInstructions[] = {
    "CREATING AN APPOINTMENT",
    "1. Check a service in the Services list, then click \"Add Service to Appointment\". Repeat for "
    "each service.",
    "2. For work that is not in the list, use the menu \"Toggle Grids\", \"Add To Appointment\": type the "
    "service, its price and choose its time. Customer comments go in the same frame.",
    "3. To sell items, click a category, choose the item, type the quantity, click \"Calculate\" and "
    "\"Add Item to Appointment\".",
    "4. Click \"Create Appointment\" to see the summary, the total time and the total cost.",
    "5. Choose the date, then click \"Schedule Appointment for This Date\" to open the day schedule.",
    "6. Click the row of the starting time. The appointment is painted on the free rows below it.",
    "7. Click \"Schedule Appointment    Save Day Schedule\" to save, or \"Save Unscheduled Appointment\" "
    "to keep the appointment without a time.",
    "RIGHT CLICK",
    "A right click on a row of the services or the items added removes that row.",
};

QString fieldText(const QString& field) {
    const QString t = vbTrim(field);
    const qsizetype nul = t.indexOf(QChar(u'\0'));
    return nul < 0 ? t : t.left(nul);
}

} // namespace

QString SlotsAsTime(int slots) {
    static const char* const quarters[] = {":00", ":15", ":30", ":45"};
    return QString::number(slots / 4) + QLatin1String(quarters[((slots % 4) + 4) % 4]);
}

void EmptyToOneBlankRow(Grid& grid) {
    grid.SetRows(grid.fixedRows);
    grid.SetRows(grid.fixedRows + 1);
    grid.row = grid.fixedRows;
}

void RemoveGridRow(Grid& grid, int row) {
    if (row < grid.fixedRows || row >= grid.Rows()) return;
    for (int r = row; r + 1 < grid.Rows(); ++r)
        for (int c = 0; c < grid.Cols(); ++c)
            grid.SetTextMatrix(r, c, grid.TextMatrix(r + 1, c));
    grid.SetRows(grid.Rows() - 1);
}

frmCreate::frmCreate(Session& session)
    : Screen(QStringLiteral("frmCreate")), Counter(session.slipCounter), lstServices(session.catalogueLists.frmCreate.lstServices),
      cboServicesCost(session.catalogueLists.frmCreate.cboServicesCost),
      cboTime(session.catalogueLists.frmCreate.cboTime), cboItems(session.catalogueLists.frmCreate.cboItems),
      cboItemPrices(session.catalogueLists.frmCreate.cboItemPrices),
      lstCategories(session.catalogueLists.frmCreate.lstCategories), m_session(session) {
    caption = QStringLiteral("Appointment Creation");

    fraAccount.caption = QStringLiteral("Customer");
    fraServices.caption = QStringLiteral("Services Added");
    fraAddTo.caption = QStringLiteral("Add To Appointment");
    fraItems.caption = QStringLiteral("Sales Items added");
    fraSummary.caption = QStringLiteral("Appointment Summary");
    fraSchedule.caption = QStringLiteral("Day Schedule");
    fraInstructions.caption = QStringLiteral("Instructions");
    for (Frame* f : {&fraServices, &fraAddTo, &fraItems, &fraSummary, &fraSchedule, &fraInstructions})
        f->visible = false;

    for (int i = 0; i < kCustomerLabels; ++i)
        lblCustomer[i];
    lstWorkorders.visible = false;
    cboServicesCost.visible = false;
    cboTime.visible = false;
    cboItemPrices.enabled = false; // follows cboItems

    const auto setupGrid = [](Grid& g, std::initializer_list<const char*> headings) {
        g.fixedCols = 0;
        g.SetCols(static_cast<int>(headings.size()));
        g.SetRows(2);
        int c = 0;
        for (const char* h : headings)
            g.SetTextMatrix(0, c++, QString::fromLatin1(h));
        g.row = 1;
    };
    setupGrid(fgServices, {"Service", "Cost", "Time"});
    setupGrid(fgItems, {"Qty", "Name", "Cost", "Total"});
    setupGrid(fgItemSummary, {"Quantity", "Description", "Unit Cost", "Total"});
    FillTimeLabels(fgDaySchedule);
    fgDaySchedule.SetTextMatrix(0, kTimeLabelColumn, QStringLiteral("Time"));
    fgDaySchedule.SetTextMatrix(0, kSlotTextColumn, QStringLiteral("Scheduled Appointments"));
    fgDaySchedule.colWidths = {900, 4200};

    for (int i = 0; i < kServiceButtons; ++i)
        cmdService[i].caption = QString::fromLatin1(kServiceCaptions[i]);
    cmdService[kSchedule].enabled = false;
    cmdService[kClearAdded].enabled = false;
    cmdService[kAddService].enabled = false;
    for (int i = 0; i < kDayButtons; ++i)
        cmdDay[i].caption = QString::fromLatin1(kDayCaptions[i]);
    cmdDay[2].toolTip = QStringLiteral("- 1 Week");

    txtComments.multiLine = true;
    txtServicesSummary.multiLine = true;
    txtServicesSummary.locked = true;
    ckPrintInvoice.caption = QStringLiteral("Print Invoice AFTER Saving Day Schdule");

    mnuToggle.caption = QStringLiteral("Toggle Grids");
    mnuCustomer.caption = QStringLiteral("Toggle Customer Info");
    mnuServices.caption = QStringLiteral("Services Added");
    mnuItems.caption = QStringLiteral("Sales Items added");
    mnuAddto.caption = QStringLiteral("Add To Appointment");
    mnuInstructions.caption = QStringLiteral("Toggle Instructions");

    int k = 0;
    for (const char* line : kInstructions)
        lblInstructions[k++].caption = QString::fromUtf8(line);

    for (auto [name, frame] : {std::pair{"fraAccount", &fraAccount},
                               {"fraServices", &fraServices},
                               {"fraAddTo", &fraAddTo},
                               {"fraItems", &fraItems},
                               {"fraSummary", &fraSummary},
                               {"fraSchedule", &fraSchedule},
                               {"fraInstructions", &fraInstructions}})
        controls.add(QString::fromLatin1(name), *frame);
    controls.add(QStringLiteral("lblCustomer"), lblCustomer);
    for (auto [name, label] : {std::pair{"lblAccount", &lblAccount},
                               {"lblItemTotal", &lblItemTotal},
                               {"lblCost", &lblCost},
                               {"lblTime", &lblTime}})
        controls.add(QString::fromLatin1(name), *label);
    for (auto [name, list] : {std::pair{"lstAssignments", &lstAssignments},
                              {"lstWorkorders", &lstWorkorders},
                              {"lstServices", &lstServices},
                              {"cboServicesCost", &cboServicesCost},
                              {"cboTime", &cboTime},
                              {"cboItems", &cboItems},
                              {"cboItemPrices", &cboItemPrices},
                              {"lstCategories", &lstCategories},
                              {"lstTime", &lstTime}})
        controls.add(QString::fromLatin1(name), *list);
    for (auto [name, grid] : {std::pair{"fgServices", &fgServices},
                              {"fgItems", &fgItems},
                              {"fgItemSummary", &fgItemSummary},
                              {"fgDaySchedule", &fgDaySchedule}})
        controls.add(QString::fromLatin1(name), *grid);
    controls.add(QStringLiteral("cmdService"), cmdService);
    controls.add(QStringLiteral("cmdDay"), cmdDay);
    controls.add(QStringLiteral("DTPicker1"), DTPicker1);
    for (auto [name, box] : {std::pair{"txtAdditional", &txtAdditional},
                             {"txtCost", &txtCost},
                             {"txtComments", &txtComments},
                             {"txtQuantity", &txtQuantity},
                             {"txtServicesSummary", &txtServicesSummary}})
        controls.add(QString::fromLatin1(name), *box);
    controls.add(QStringLiteral("ckPrintInvoice"), ckPrintInvoice);
    for (auto [name, item] : {std::pair{"mnuToggle", &mnuToggle},
                              {"mnuCustomer", &mnuCustomer},
                              {"mnuServices", &mnuServices},
                              {"mnuItems", &mnuItems},
                              {"mnuAddto", &mnuAddto},
                              {"mnuInstructions", &mnuInstructions}})
        controls.add(QString::fromLatin1(name), *item);
    controls.add(QStringLiteral("lblInstructions"), lblInstructions);

    session.SetPointOfServiceList(PointOfServiceList::frmCreate, &lstAssignments);
}

void frmCreate::Load() {
    m_loaded = true;
    FillTimeLabels(fgDaySchedule);
    ClearDaySchedule(fgDaySchedule);
    FillDurationList(lstTime);
    DTPicker1.minDate = m_session.today();
    EmptyToOneBlankRow(fgItems);
    EmptyToOneBlankRow(fgServices);
}

void frmCreate::Form_Activate() {
    if (!m_loaded) Load();
    // 1. The slips on disk and a new SlipId.
    LoadWorkorders();
    LoadWorkSlipCounter(m_session.disk, m_session.today(), lstAssignments.ListCount(), Counter);
    m_session.disk.CloseAllFiles();

    // 2. The customer of the shared buffer.
    const CustomerRecord& c = m_session.customer.customer;
    QString name = fieldText(c.BusinessName());
    if (name.isEmpty()) name = fieldText(ComposeName(c));
    const QString fields[kCustomerLabels] = {fieldText(c.AccountNumber()), name,
                                             fieldText(c.Address1()),      fieldText(c.Address2()),
                                             fieldText(c.ServiceCity()),   fieldText(c.State()),
                                             fieldText(c.PostalCode()),    fieldText(c.Telephone())};
    for (int i = 0; i < kCustomerLabels; ++i)
        lblCustomer[i].caption = fields[i];

    // 3. The customer's stored assignment, until the list below says otherwise.
    PointOfService = std::max<qint16>(c.AssignedPointOfService(), 0);
    if (const frmNewCustomer* account = accountScreen()) lblAccount.caption = account->lblAccount.caption;

    // 4.
    ResetAppointment();
}

void frmCreate::LoadWorkorders() {
    lstWorkorders.Clear();
    for (const QString& name : ListSlipFiles(m_session.disk))
        lstWorkorders.AddItem(name);
}

void frmCreate::ResetAppointment() {
    EmptyToOneBlankRow(fgItems);
    EmptyToOneBlankRow(fgServices);
    EmptyToOneBlankRow(fgItemSummary);
    m_serviceChecks.clear();
    ClearDaySchedule(fgDaySchedule);
    cmdService[kAddService].enabled = false;
    lstAssignments.enabled = true;
    mnuAddto.enabled = true;
    AdditionalFlag = false;
    EventScheduled = false;
    fraItems.visible = false;
    fraServices.visible = false;
    fraSchedule.visible = false;
    fraSummary.visible = false;
    DeleteSlipFilesByNumber(m_session.disk, PointOfService);
    txtServicesSummary.text.clear();
    cboItems.Clear();
    lblTime.caption.clear();
    TotalCost = Money();
    lblItemTotal.caption = zeroMoney();
    lblCost.caption = zeroMoney();
    txtCost.text = zeroMoney();
    SetPickerDate(m_session.today());
    const frmNewCustomer* account = accountScreen();
    const int position = account ? account->cboAssignments.listIndex : -1;
    if (position >= 0 && position < lstAssignments.ListCount()) {
        lstAssignments.SetListIndex(position);
        lstAssignments_Click(); // selecting an entry is a click on it
    }
}

void frmCreate::lstAssignments_Click() {
    if (lstAssignments.listIndex >= 0) PointOfService = static_cast<qint16>(lstAssignments.listIndex + 1);
}

void frmCreate::SetServiceChecked(int index, bool checked) {
    if (index < 0 || index >= lstServices.ListCount()) return;
    if (m_serviceChecks.size() < lstServices.ListCount()) m_serviceChecks.resize(lstServices.ListCount(), false);
    m_serviceChecks[index] = checked;
}

QString frmCreate::CurrentSlipName() const { return SlipName(PointOfService, Counter.SlipId); }

// The date rule.

void frmCreate::SetPickerDate(const QDate& date) {
    // The picker offers nothing before its earliest date.
    DTPicker1.value = DTPicker1.minDate.isValid() && date < DTPicker1.minDate ? DTPicker1.minDate : date;
    RunDateRule();
}

void frmCreate::RunDateRule() {
    DTPicker1.value = SkipToWorkDay(DTPicker1.value, m_session.settings.program.WorkWeekCode);
    if (DTPicker1.value < m_session.today()) m_session.Beep();
}

void frmCreate::DTPicker1_Change() { RunDateRule(); }

void frmCreate::cmdDay_Click(int index) {
    const QDate date = DTPicker1.value;
    switch (index) {
    case 0:
        if (date > m_session.today()) SetPickerDate(date.addDays(-1));
        else RunDateRule();
        break;
    case 1: SetPickerDate(date.addDays(1)); break;
    case 2: SetPickerDate(m_session.today()); break;
    case 3: SetPickerDate(date.addDays(7)); break;
    default: break;
    }
}

// The menus.

void frmCreate::ToggleFrame(Frame& frame) {
    const bool show = !frame.visible;
    for (Frame* f : {&fraAccount, &fraServices, &fraItems, &fraAddTo})
        f->visible = false;
    frame.visible = show;
}

void frmCreate::mnuCustomer_Click() { ToggleFrame(fraAccount); }
void frmCreate::mnuServices_Click() { ToggleFrame(fraServices); }
void frmCreate::mnuItems_Click() { ToggleFrame(fraItems); }
void frmCreate::mnuAddto_Click() {
    ToggleFrame(fraAddTo);
    if (fraAddTo.visible) Focus(txtAdditional);
}
void frmCreate::mnuInstructions_Click() { fraInstructions.visible = !fraInstructions.visible; }

// Small helpers.

frmNewCustomer* frmCreate::accountScreen() const {
    return m_session.ScreenAs<frmNewCustomer>(ScreenId::frmNewCustomer);
}

QString frmCreate::zeroMoney() const { return FormatMoney(Money()); }

void frmCreate::Box(const QString& prompt) { m_session.platform.dialogs.MsgBox(prompt, vbOKOnly); }

void frmCreate::Focus(Control& control) {
    for (const auto& entry : controls.entries())
        AsControl(entry).focusRequested = false;
    control.SetFocus();
}

} // namespace ostrel
