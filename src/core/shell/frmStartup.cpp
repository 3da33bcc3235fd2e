#include "frmStartup.h"

#include "Session.h"
#include "setup/frmSetup.h"

namespace ostrel {

namespace {

struct Routine {
    const char* caption;
    const char* toolTip;
    ScreenId screen;
};

// By index, which is not the order on the screen.
constexpr Routine kRoutineTable[frmStartup::kRoutines] = {
    {"&Create a Service Contract", "Create/print a Service Contract", ScreenId::frmNewCustomer},
    {"Create / Modify &Terms and Disclaimers", "Create Terms and Disclaimer to Print on Work Orders", ScreenId::frmTerms},
    {" &Invoice a Completed Appointment", "Create an Invoice for Completed Appointment", ScreenId::frmAppointments},
    {"Schedule, &Reschedule or Delete an Appointment", "Schedule, Reschedule or Delete an Appointment",
     ScreenId::frmAppointments},
    {"Generate Sales &Report", "Print an Associate Sales Report", ScreenId::frmSales},
    {"Create an &Appointment ", "Select Customer and Schedule Appointment", ScreenId::frmNewCustomer},
    {"Create / Modify &Services Offered and Products Sold", "Add or Modify Services and Sales Items",
     ScreenId::frmServices},
    {"Create / Modify Account &Records", "Create New  Customers or Modify Customer Data", ScreenId::frmNewCustomer},
    {" &View / Print Day Schedules", "Print Appointments by Date and Point of Service", ScreenId::frmWorkSchedules},
    {" Print &Work Order(s)", "Print Work Orders by Date and Point of Service", ScreenId::frmWorkOrders},
    {"Schedule &Holidays, Vacations", "Prevent Work Scheduling on Holidays Vacations etc", ScreenId::frmBlock},
    {" View Schedules at a Glace", "A quick view of appointments by date", ScreenId::frmDisplay},
    {"Re&print Completed Invoices", "Print a copy of a completed invoice", ScreenId::frmReprint},
};

constexpr int kCreateAppointment = 5;
constexpr int kCatalogue = 6;
constexpr int kSalesReport = 4;

} // namespace

frmStartup::frmStartup(Session& session, SupplierLinks links)
    : Screen(QStringLiteral("frmStartup")), m_session(session), m_links(std::move(links)) {
    caption = QStringLiteral("Appointment Main Menu");
    const QStringList headings = {QStringLiteral("Ostrel Appointment Scheduler Routines"), QStringLiteral("File Routines"),
                                  QStringLiteral("Appointment Routines"), QStringLiteral(" Select Button then GOTO"),
                                  QStringLiteral(" Double Click Button OR")};
    for (int i = 0; i < headings.size(); ++i) lblHeading[i].caption = headings[i];
    for (int i = 0; i < kRoutines; ++i) {
        optMainMenuSub[i].caption = QString::fromLatin1(kRoutineTable[i].caption);
        optMainMenuSub[i].toolTip = QString::fromLatin1(kRoutineTable[i].toolTip);
    }
    cmdGoto.caption = QStringLiteral("Goto");
    cmdGoto.toolTip = QStringLiteral("Goto Selected Routine");
    Image1.picture = QStringLiteral(":/images/logo.png");
    Image1.toolTip = QStringLiteral("Click Me to GOTO Setup Screen");
    mnuFiles.caption = QStringLiteral(" Files");
    mnuCreate.caption = QStringLiteral("Create/Modify");
    mnuExit.caption = QStringLiteral("Exit");
    mnuOrder.caption = QStringLiteral("Order Forms");
    mnuDelexe.caption = QStringLiteral("Deluxe Business Forms");
    mnuDeluxe.caption = QStringLiteral("Checks, Envelopes");
    mnuSlips.caption = QStringLiteral("Deposit Slips");
    mnuPPaper.caption = QStringLiteral("Plain Paper");
    mnuPPPaper.caption = QStringLiteral("Perforated Paper");
    mnuGraytex.caption = QStringLiteral("Proposal Sets");
    mnuAddress.caption = QStringLiteral("Mailing Labels");
    mnuLabels.caption = QStringLiteral("Shipping Labels");

    controls.add(QStringLiteral("lblHeading"), lblHeading);
    controls.add(QStringLiteral("optMainMenuSub"), optMainMenuSub);
    controls.add(QStringLiteral("cmdGoto"), cmdGoto);
    controls.add(QStringLiteral("Image1"), Image1);
    for (auto [name, item] : {std::pair{"mnuFiles", &mnuFiles}, {"mnuCreate", &mnuCreate}, {"mnuExit", &mnuExit},
                              {"mnuOrder", &mnuOrder}, {"mnuDelexe", &mnuDelexe}, {"mnuDeluxe", &mnuDeluxe},
                              {"mnuSlips", &mnuSlips}, {"mnuPPaper", &mnuPPaper}, {"mnuPPPaper", &mnuPPPaper},
                              {"mnuGraytex", &mnuGraytex}, {"mnuAddress", &mnuAddress}, {"mnuLabels", &mnuLabels}})
        controls.add(QString::fromLatin1(name), *item);
}

ScreenId frmStartup::RoutineScreen(int index) { return kRoutineTable[index].screen; }

void frmStartup::Form_Activate() {
    m_session.Guarded([&] {
        // Both are tested, so each gets its restore from /Backup.
        const bool items = m_session.disk.FileExists(QStringLiteral("/OIInventoriedItems.txt"));
        const bool services = m_session.disk.FileExists(QStringLiteral("/Services.txt"));
        const int preselected = items && services ? kCreateAppointment : kCatalogue;
        for (auto& [index, option] : optMainMenuSub) option.value = index == preselected;
    });
    optMainMenuSub[kSalesReport].visible = m_session.settings.program.salesReportAvailable();
}

void frmStartup::Activate(int index) {
    m_session.SelectedRoutine = static_cast<qint16>(index);
    const ScreenId target = RoutineScreen(index);
    if (!m_session.HasScreen(target)) {
        m_session.ShowScreen(target); // tells the user this version lacks it; the menu stays
        return;
    }
    Hide();
    m_session.ShowScreen(target);
}

void frmStartup::optMainMenuSub_Click(int index) {
    for (auto& [i, option] : optMainMenuSub) option.value = i == index;
}

void frmStartup::optMainMenuSub_DblClick(int index) {
    optMainMenuSub_Click(index);
    Activate(index);
}

void frmStartup::cmdGoto_Click() {
    for (int i = 0; i < kRoutines; ++i) {
        if (optMainMenuSub[i].value) {
            Activate(i);
            return;
        }
    }
}

void frmStartup::mnuCreate_Click() {
    frmSetup* setup = m_session.ScreenAs<frmSetup>(ScreenId::frmSetup);
    if (!setup) {
        m_session.ShowScreen(ScreenId::frmSetup); // says the screen is not there
        return;
    }
    setup->ShowFromMenu();
    Hide();
}

void frmStartup::mnuExit_Click() { m_session.ExitProgram(); }

void frmStartup::askThenOpen(const QString& title, const QStringList& lines, const QString& url, int style) {
    if (m_session.platform.dialogs.MsgBox(lines.join(u'\n'), style, title) == vbYes) m_session.platform.browser.Open(url);
}

void frmStartup::mnuDeluxe_Click() { m_session.platform.browser.Open(m_links.checksEnvelopes); }
void frmStartup::mnuSlips_Click() { m_session.platform.browser.Open(m_links.depositSlips); }

void frmStartup::mnuPPaper_Click() {
    askThenOpen(QStringLiteral("Order Paper"),
                {QStringLiteral("Use Plain Paper for Reports (etc)"), QStringLiteral("Click Yes to connect to a Supplier")},
                m_links.plainPaper, vbYesNo + vbQuestion);
}

void frmStartup::mnuPPPaper_Click() {
    askThenOpen(QStringLiteral("Order Paper"),
                {QStringLiteral("Perforated Response Paper is used to create"),
                 QStringLiteral("Invoices with a remittance Slip"), QStringLiteral("Click Yes to connect to a Supplier")},
                m_links.perforatedPaper, vbYesNo + vbQuestion);
}

void frmStartup::mnuGraytex_Click() {
    askThenOpen(QStringLiteral("Order Graytex Forms"),
                {QStringLiteral("Graytex offers 2 and 3 part carbonless paper"),
                 QStringLiteral("Suitable for creating a Proposal Form on which"),
                 QStringLiteral("information can be hand written as well as printed"),
                 QStringLiteral("Connect to Graytex Now")},
                m_links.proposalSets, vbYesNo + vbQuestion);
}

void frmStartup::mnuAddress_Click() {
    askThenOpen(QStringLiteral("Order Paper"),
                {QStringLiteral("30 to a Page Mailing Labels"), QStringLiteral("Click Yes to connect to a Supplier")},
                m_links.mailingLabels, vbYesNo + vbQuestion);
}

void frmStartup::mnuLabels_Click() {
    askThenOpen(QStringLiteral("Order Labels"), {QStringLiteral("Click YES to Connect to a Supplier")},
                m_links.shippingLabels, vbYesNo + vbQuestion);
}

} // namespace ostrel
