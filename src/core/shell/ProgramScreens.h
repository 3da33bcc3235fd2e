#pragma once

namespace ostrel {

class Session;
class frmSetup;
class frmNewCustomer;
class frmServices;
class frmDialer;
class frmDisplay;
class frmContract;
class frmWorkSchedules;
class frmTerms;
class frmWorkOrders;
class frmInvoice;
class frmCreate;
class frmBlock;
class frmAppointments;

// The screens of this version beyond the welcome screen and the menu.
struct ProgramScreens {
    frmSetup& setup;
    frmNewCustomer& account;
    frmServices& services;
    frmDialer& dialer;
    frmDisplay& display;
    frmContract& contract;
    frmWorkSchedules& workSchedules;
    frmTerms& terms;
    frmWorkOrders& workOrders;
    frmInvoice& invoice;
    frmCreate& create;
    frmBlock& block;
    frmAppointments& appointments;
};

// Brings every screen into the session and connects the account screen to the dialer. Runs before
// Main, so that start-up fills the screens' Point of Service lists and runs their loads.
ProgramScreens AddProgramScreens(Session& session);

} // namespace ostrel
