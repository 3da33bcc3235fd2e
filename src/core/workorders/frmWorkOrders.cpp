#include "frmWorkOrders.h"

#include "frmTerms.h"
#include "scheduling/WorkDays.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"
#include "store/LocaleText.h"

namespace ostrel {

namespace {

const char* const kCaptions[] = {"&Menu",
                                 "Load  Appointment(s)",
                                 "&Print Documents",
                                 "&Save Work Order with Added Services",
                                 "&Click when Completed",
                                 "&Load",
                                 "&Add Other Service(s)",
                                 "Print Invoice Now",
                                 "Purge &Expired WO's",
                                 "P&repare Work Order",
                                 "&Start Over",
                                 "&Exit Parts Screen",
                                 "View Parts Pick List",
                                 "Exit Screen (no print)",
                                 "Exit &Overview Screen"};

const char* const kSteps[] = {
    "1. Choose how to find the Work Orders: by Date, by Point of Service, or both",
    "2. Click Load  Appointment(s), or click an appointment in the Overview",
    "3. Click an Appointment in the list to Select It",
    "4. Add Other Service(s) if needed, then Save the Work Order",
    "5. Click Prepare Work Order, tick the documents to print, then Print Documents",
    "6. Print Invoice Now hands the appointment to the Invoice screen",
};

// Buttons that mean nothing until a slip is found or loaded.
constexpr int kOffUntilLoaded[] = {3, 6, 7, 8, 9};

void headings(Grid& g, std::initializer_list<const char*> texts) {
    g.fixedCols = 0;
    g.SetCols(static_cast<int>(texts.size()));
    g.SetRows(1);
    int c = 0;
    for (const char* t : texts)
        g.SetTextMatrix(0, c++, QString::fromLatin1(t));
}

} // namespace

QString BuildTime(int slots) {
    static const char* const kQuarters[] = {":00", ":15", ":30", ":45"};
    return QString::number(slots / 4) + QLatin1String(kQuarters[slots % 4]);
}

frmWorkOrders::frmWorkOrders(Session& session, frmTerms& terms, Grid& addServices)
    : Screen(QStringLiteral("frmWorkOrders")), fgAddServices(addServices), m_session(session), m_terms(terms),
      m_printer(session, session.platform.printDialogs) {
    caption = QStringLiteral("Work Orders");
    for (int i = 0; i < int(std::size(kCaptions)); ++i)
        cmdWorkOrders[i].caption = QString::fromLatin1(kCaptions[i]);
    optFindBy[0].caption = QStringLiteral("by Date Only");
    optFindBy[1].caption = QStringLiteral("by Point of Service Only");
    optFindBy[2].caption = QStringLiteral("by Date and Point of Service");
    optFindBy[0].value = true;
    optTerms[0].caption = QStringLiteral("Generic Terms");
    optTerms[1].caption = QStringLiteral("Custom Terms");
    optTerms[0].value = true;
    optDisclaimer[0].caption = QStringLiteral("Generic Disclaimer");
    optDisclaimer[1].caption = QStringLiteral("Custom Disclaimer");
    optDisclaimer[0].value = true;

    headings(fgOverview, {"Appt No.", "Date", "Acct No.", "Customer", "Point of Service", "No.", "Status"});
    fgOverview.SetRows(2);
    headings(fgServices, {"Service", "Time", "Price", "Slots"});
    headings(fgItemsAdded, {"Service", "Price", "Slots"});
    headings(fgPicklist, {"Qty", "Description"});

    fraOverview.caption = QStringLiteral("Overview of Appointments");
    fraDate.caption = QStringLiteral("Date");
    fraAssignmentList.caption = QStringLiteral("Point of Service");
    fraAddServices.caption = QStringLiteral("Services that can be added");
    fraTerms.caption = QStringLiteral("Print Instructions");
    fraPicklist.caption = QStringLiteral("Parts Required for This Appointment");
    fraTermsandDis.caption = QStringLiteral("Terms and Disclaimer");
    fraInstructions.caption = QStringLiteral("Instructions");
    fraWorkorders.caption = QStringLiteral("Services for this WO");
    // One step at a time: the overview comes up when a load finds slips, the rest when asked for.
    for (Frame* f : {&fraOverview, &fraInstructions, &fraAddServices, &fraTerms, &fraPicklist})
        f->visible = false;
    ckCompletion.caption = QStringLiteral("Completion Summary Report");
    ckPick.caption = QStringLiteral("Parts Pick List");
    ckPrintInvoice.caption = QStringLiteral("Print Invoice Now");
    ckInstructions.caption = QStringLiteral("Print Return Parts Instructions");
    ckCompletion.value = 1;
    Label1[1].caption = QStringLiteral("Once Printed, the Invoice can not be reprinted");
    Label1[2].caption = QStringLiteral("Click in Appointment Box [    ] to Select It");
    Label1[2].visible = false;
    for (int i = 0; i < int(std::size(kSteps)); ++i)
        lblInstructions[i].caption = QString::fromLatin1(kSteps[i]);
    imgSave[0].toolTip = QStringLiteral("Save Work Order with Added Services");
    imgSave[1].toolTip = QStringLiteral("Load Appointment(s)");
    mnuInstructions.caption = QStringLiteral("&Instructions");
    mnuOverview.caption = QStringLiteral("Toggle Overview");
    for (int i : kOffUntilLoaded)
        cmdWorkOrders[i].enabled = false;
    for (int i : {4, 12})
        cmdWorkOrders[i].enabled = false;

    controls.add(QStringLiteral("cmdWorkOrders"), cmdWorkOrders);
    controls.add(QStringLiteral("optFindBy"), optFindBy);
    controls.add(QStringLiteral("optTerms"), optTerms);
    controls.add(QStringLiteral("optDisclaimer"), optDisclaimer);
    controls.add(QStringLiteral("DTPicker1"), DTPicker1);
    controls.add(QStringLiteral("lstAssignments"), lstAssignments);
    controls.add(QStringLiteral("lstWorkorders"), lstWorkorders);
    controls.add(QStringLiteral("fgOverview"), fgOverview);
    controls.add(QStringLiteral("fgServices"), fgServices);
    controls.add(QStringLiteral("fgAddServices"), fgAddServices);
    controls.add(QStringLiteral("fgItemsAdded"), fgItemsAdded);
    controls.add(QStringLiteral("fgPicklist"), fgPicklist);
    for (auto [name, frame] : {std::pair{"fraOverview", &fraOverview}, {"fraDate", &fraDate},
                               {"fraAssignmentList", &fraAssignmentList}, {"fraAddServices", &fraAddServices},
                               {"fraTerms", &fraTerms}, {"fraPicklist", &fraPicklist},
                               {"fraTermsandDis", &fraTermsandDis}, {"fraInstructions", &fraInstructions},
                               {"fraWorkorders", &fraWorkorders}})
        controls.add(QString::fromLatin1(name), *frame);
    controls.add(QStringLiteral("ckCompletion"), ckCompletion);
    controls.add(QStringLiteral("ckPick"), ckPick);
    controls.add(QStringLiteral("ckPrintInvoice"), ckPrintInvoice);
    controls.add(QStringLiteral("ckInstructions"), ckInstructions);
    controls.add(QStringLiteral("Label1"), Label1);
    controls.add(QStringLiteral("lblInstructions"), lblInstructions);
    controls.add(QStringLiteral("imgSave"), imgSave);
    controls.add(QStringLiteral("mnuInstructions"), mnuInstructions);
    controls.add(QStringLiteral("mnuOverview"), mnuOverview);

    m_session.SetPointOfServiceList(PointOfServiceList::frmWorkOrders, &lstAssignments);
}

void frmWorkOrders::Form_Activate() {
    DTPicker1.value = SkipToWorkDay(m_session.today(), m_session.settings.program.WorkWeekCode);
    Reset();
    emptyGrid(fgOverview);
    fgOverview.SetRows(2);
    OverviewBuilt = false;
    m_session.Guarded([&] { LoadWorkorders(); });
}

void frmWorkOrders::Reset() {
    for (Frame* f : {&fraTerms, &fraAddServices, &fraDate, &fraAssignmentList, &fraPicklist})
        f->visible = false;
    clearEntries();
    // Through the option that shows the list to the one that shows the date.
    optFindBy_Click(1);
    optFindBy_Click(0);
    for (int i : kOffUntilLoaded)
        cmdWorkOrders[i].enabled = false;
    imgSave[0].enabled = false;
    emptyGrid(fgServices);
    emptyGrid(fgItemsAdded);
    const ProgramSettings& program = m_session.settings.program;
    if (!program.isShopRepair()) {
        fraTermsandDis.visible = false;
    } else {
        fraTermsandDis.visible = true;
        optTerms[1].enabled = !m_terms.customTerms().isEmpty();
        optDisclaimer[1].enabled = !m_terms.customDisclaimer().isEmpty();
    }
    if (program.printReturnParts()) ckInstructions.value = 1;
}

void frmWorkOrders::SelectDisclaimer(int index) {
    for (auto& [i, option] : optDisclaimer)
        option.value = i == index;
}

void frmWorkOrders::optFindBy_Click(int index) {
    for (auto& [i, option] : optFindBy)
        option.value = i == index;
    fraDate.visible = index == 0 || index == 2;
    fraAssignmentList.visible = index == 1 || index == 2;
}

void frmWorkOrders::mnuInstructions_Click() { fraInstructions.visible = !fraInstructions.visible; }

void frmWorkOrders::mnuOverview_Click() {
    fraOverview.visible = !fraOverview.visible;
    if (fraOverview.visible) fraInstructions.visible = false;
}

void frmWorkOrders::cmdWorkOrders_Click(int index) {
    switch (index) {
    case 0: returnToMenu(); return;
    case 1: loadCommand(); return;
    case 2: printDocuments(); return;
    case 3: saveAddedServices(); return;
    case 4:
        fraAddServices.visible = false;
        if (ServicesAdded) {
            cmdWorkOrders[3].enabled = true;
            imgSave[0].enabled = true;
        }
        return;
    case 5: loadSelected(); return;
    case 6: addOtherServices(); return;
    case 7: handOver(); return;
    case 8: purgeExpired(); return;
    case 9: prepareWorkOrder(); return;
    case 10: Reset(); return;
    case 11: fraPicklist.visible = false; return;
    case 12: fraPicklist.visible = true; return;
    case 13: fraTerms.visible = false; return;
    case 14: fraOverview.visible = false; return;
    default: return;
    }
}

void frmWorkOrders::returnToMenu() {
    emptyGrid(fgServices);
    emptyGrid(fgItemsAdded);
    cmdWorkOrders[7].enabled = false;
    Hide();
    m_session.startup().Show();
}

void frmWorkOrders::addOtherServices() {
    if (m_session.settings.program.prompts())
        m_session.platform.dialogs.MsgBox(
            QStringLiteral("ONLY add Services to Appointments if Time Scheduling is NOT a Factor") + u'\n' +
                QStringLiteral("Added Services will NOT appear in Day Schedules, do this ONLY if you plan to") +
                u'\n' + QStringLiteral("PRINT a Work Order Now"),
            vbOKOnly);
    fraAddServices.visible = true;
    fraPicklist.visible = false;
    fraTerms.visible = false;
    cmdWorkOrders[4].enabled = true;
}

void frmWorkOrders::prepareWorkOrder() {
    if (selectedEntries().isEmpty()) {
        m_session.platform.dialogs.MsgBox(QStringLiteral("Select Work Order(s) to Print from the List Above"));
        return;
    }
    fraTerms.visible = true;
}

void frmWorkOrders::emptyGrid(Grid& grid) {
    grid.SetRows(1);
    grid.row = 0;
}

void frmWorkOrders::appendRow(Grid& grid, const QStringList& cells) {
    const int r = grid.Rows();
    grid.SetRows(r + 1);
    for (int c = 0; c < cells.size(); ++c)
        grid.SetTextMatrix(r, c, cells[c]);
}

QString frmWorkOrders::dateText(const QDate& date) const { return ShortDateText(date); }

} // namespace ostrel
