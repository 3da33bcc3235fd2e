#pragma once

#include <QString>

namespace ostrel {

// Every screen of the program. A screen that is not built into this version is absent from the
// session, and asking for it says so instead of pretending.
enum class ScreenId {
    frmSplash,
    frmStartup,
    frmSetup,
    frmTerms,
    frmNewCustomer,
    frmContract,
    frmCreate,
    frmAppointments,
    frmServices,
    frmWorkOrders,
    frmInvoice,
    frmDialer,
    frmWorkSchedules,
    frmSales,
    frmBlock,
    frmDisplay,
    frmReprint,
};

QString screenTitle(ScreenId id); // what a user calls it: "Setup", "Account Records" ...

} // namespace ostrel
