#include "ScreenId.h"

namespace ostrel {

QString screenTitle(ScreenId id) {
    switch (id) {
    case ScreenId::frmSplash: return QStringLiteral("Welcome");
    case ScreenId::frmStartup: return QStringLiteral("Main Menu");
    case ScreenId::frmSetup: return QStringLiteral("Setup");
    case ScreenId::frmTerms: return QStringLiteral("Terms and Disclaimers");
    case ScreenId::frmNewCustomer: return QStringLiteral("Account Records");
    case ScreenId::frmContract: return QStringLiteral("Service Contract");
    case ScreenId::frmCreate: return QStringLiteral("Create an Appointment");
    case ScreenId::frmAppointments: return QStringLiteral("Appointment Routines");
    case ScreenId::frmServices: return QStringLiteral("Services and Products");
    case ScreenId::frmWorkOrders: return QStringLiteral("Work Orders");
    case ScreenId::frmInvoice: return QStringLiteral("Invoice");
    case ScreenId::frmDialer: return QStringLiteral("Speed Dialer");
    case ScreenId::frmWorkSchedules: return QStringLiteral("Day Schedules");
    case ScreenId::frmSales: return QStringLiteral("Sales Report");
    case ScreenId::frmBlock: return QStringLiteral("Holidays and Vacations");
    case ScreenId::frmDisplay: return QStringLiteral("Schedules at a Glance");
    case ScreenId::frmReprint: return QStringLiteral("Reprint Invoices");
    }
    return {};
}

} // namespace ostrel
