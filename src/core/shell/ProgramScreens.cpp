#include "ProgramScreens.h"

#include "Session.h"
#include "accounts/frmNewCustomer.h"
#include "catalogue/frmServices.h"
#include "contracts/frmContract.h"
#include "invoicing/frmInvoice.h"
#include "invoicing/frmReprint.h"
#include "printing/frmSales.h"
#include "scheduling/frmCreate.h"
#include "scheduling/frmDisplay.h"
#include "scheduling/frmWorkSchedules.h"
#include "scheduling/frmAppointments.h"
#include "scheduling/frmBlock.h"
#include "setup/frmSetup.h"
#include "telephony/frmDialer.h"
#include "workorders/frmTerms.h"
#include "workorders/frmWorkOrders.h"

namespace ostrel {

ProgramScreens AddProgramScreens(Session& session) {
    auto& setup = session.AddScreen(ScreenId::frmSetup, std::make_unique<frmSetup>(session));
    auto& account =
        session.AddScreen(ScreenId::frmNewCustomer, std::make_unique<frmNewCustomer>(session, session.customer));
    auto& services =
        session.AddScreen(ScreenId::frmServices, std::make_unique<frmServices>(session, session.catalogueLists));
    // The dialer talks on the channel the start-up probe left open on the modem.
    auto& dialer = session.AddScreen(ScreenId::frmDialer, std::make_unique<frmDialer>(session, session.platform.serial));
    session.dial = [&dialer](const QString& name, const QString& number) { dialer.DialFor(name, number); };
    session.AddScreen(ScreenId::frmReprint, std::make_unique<frmReprint>(session));
    session.AddScreen(ScreenId::frmSales, std::make_unique<frmSales>(session));
    auto& display = session.AddScreen(ScreenId::frmDisplay, std::make_unique<frmDisplay>(session));
    auto& contract = session.AddScreen(ScreenId::frmContract, std::make_unique<frmContract>(session));
    auto& workSchedules = session.AddScreen(ScreenId::frmWorkSchedules, std::make_unique<frmWorkSchedules>(session));
    auto& terms = session.AddScreen(ScreenId::frmTerms, std::make_unique<frmTerms>(session));
    auto& workOrders = session.AddScreen(
        ScreenId::frmWorkOrders,
        std::make_unique<frmWorkOrders>(session, terms, session.catalogueLists.frmWorkOrders.fgAddServices));
    // A custom disclaimer found as the terms load at start-up is the one work orders print.
    terms.customDisclaimerFound = [&workOrders] { workOrders.SelectDisclaimer(1); };
    // The slips hand over through /FileToPrint.txt and open this screen.
    auto& invoice =
        session.AddScreen(ScreenId::frmInvoice, std::make_unique<frmInvoice>(session, session.catalogueLists));
    auto& create = session.AddScreen(ScreenId::frmCreate, std::make_unique<frmCreate>(session));
    auto& block = session.AddScreen(ScreenId::frmBlock, std::make_unique<frmBlock>(session));
    auto& appointments =
        session.AddScreen(ScreenId::frmAppointments, std::make_unique<frmAppointments>(session));
    return {setup,  account, services,  dialer,  display, contract, workSchedules,
            terms,  workOrders, invoice, create, block, appointments};
}

} // namespace ostrel
