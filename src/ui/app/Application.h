#pragma once

#include "platform/AppInfo.h"
#include "platform/LockFileInstance.h"
#include "platform/SystemClock.h"
#include "platform/DesktopBrowser.h"
#include "platform/QtDialogs.h"
#include "platform/QtPrintDialogs.h"
#include "platform/QtSerialPort.h"
#include "store/DataRoot.h"
#include "shell/Session.h"

#include <memory>

namespace ostrel::ui {

class SplashView;
class StartupView;
class SetupView;
class NewCustomerView;
class ServicesView;
class DialerView;
class DisplayView;
class ContractView;
class WorkSchedulesView;
class ReprintView;
class SalesView;
class TermsView;
class WorkOrdersView;
class InvoiceView;
class CreateView;
class BlockView;
class AppointmentsView;

// What may stand in for the desktop's own clock and print dialog, so a whole day of the program
// can be run without a person: a fixed date, and every print into a file.
struct ApplicationOptions {
    Clock* clock = nullptr;                // the system clock when none
    QtPrintDialogs::Chooser choosePrinter; // Qt's print dialog when none
};

// The program on the desktop: the real platform, the session and one view per screen.
class Application {
public:
    // The data root is the folder of the executable named in `app`.
    explicit Application(AppInfo app, ApplicationOptions options = {});
    ~Application();

    // The start-up sequence; false when another copy runs and this one must end.
    bool start();

    Session& session() { return *m_session; }
    SplashView& splashView() { return *m_splash; }
    StartupView& startupView() { return *m_startup; }

private:
    AppInfo m_app;
    DataRoot m_lockRoot;
    QtDialogs m_dialogs;
    SystemClock m_clock;
    LockFileInstance m_instance;
    DesktopBrowser m_browser;
    QtSerialPort m_serial;
    QtPrintDialogs m_printDialogs;
    Platform m_platform;
    std::unique_ptr<Session> m_session;
    std::unique_ptr<SplashView> m_splash;
    std::unique_ptr<StartupView> m_startup;
    std::unique_ptr<SetupView> m_setup;
    std::unique_ptr<NewCustomerView> m_account;
    std::unique_ptr<ServicesView> m_services;
    std::unique_ptr<DialerView> m_dialer;
    std::unique_ptr<DisplayView> m_display;
    std::unique_ptr<ContractView> m_contract;
    std::unique_ptr<WorkSchedulesView> m_workSchedules;
    std::unique_ptr<ReprintView> m_reprint;
    std::unique_ptr<SalesView> m_sales;
    std::unique_ptr<TermsView> m_terms;
    std::unique_ptr<WorkOrdersView> m_workOrders;
    std::unique_ptr<InvoiceView> m_invoice;
    std::unique_ptr<CreateView> m_create;
    std::unique_ptr<BlockView> m_block;
    std::unique_ptr<AppointmentsView> m_appointments;
};

// The resources of the view library (pictures); a static library must ask for them.
void InitResources();

} // namespace ostrel::ui
