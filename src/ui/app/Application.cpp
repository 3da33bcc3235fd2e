#include "Application.h"

#include "invoicing/frmReprint.h"
#include "printing/frmSales.h"
#include "shell/ProgramScreens.h"
#include "views/ContractView.h"
#include "views/CreateView.h"
#include "views/AppointmentsView.h"
#include "views/BlockView.h"
#include "views/DialerView.h"
#include "views/DisplayView.h"
#include "views/InvoiceView.h"
#include "views/NewCustomerView.h"
#include "views/ReprintView.h"
#include "views/SalesView.h"
#include "views/ServicesView.h"
#include "views/SetupView.h"
#include "views/SplashView.h"
#include "views/StartupView.h"
#include "views/WorkSchedulesView.h"
#include "views/TermsView.h"
#include "views/WorkOrdersView.h"

#include <QApplication>
#include <QFileInfo>
#include <QIcon>

static void initUiResources() { Q_INIT_RESOURCE(ui); }

namespace ostrel::ui {

void InitResources() { initUiResources(); }

Application::Application(AppInfo app, ApplicationOptions options)
    : m_app(std::move(app)), m_lockRoot(m_app.path()), m_dialogs(m_app),
      m_instance(m_lockRoot, m_app.programName()),
      m_printDialogs(options.choosePrinter ? std::move(options.choosePrinter)
                                           : QtPrintDialogs::Chooser(&QtPrintDialogs::ExecPrintDialog)),
      m_platform{m_dialogs,  options.clock ? *options.clock : m_clock, m_instance, m_browser, m_app, m_serial,
                 m_printDialogs} {
    InitResources();
    // Every window shows the program's icon; the desktop entry of an installed copy shows the same.
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/images/icon.png")));
    QGuiApplication::setDesktopFileName(QStringLiteral("ostrel-appointment-scheduler"));
    m_session = std::make_unique<Session>(m_lockRoot.root(), m_platform);
    m_session->endProcess = [] { QCoreApplication::quit(); };
    Binder::setAlarmSwitch([this] { return m_session->settings.program.alarms(); });
    m_splash = std::make_unique<SplashView>(*m_session, m_session->splash());
    m_startup = std::make_unique<StartupView>(*m_session, m_session->startup());
    const ProgramScreens screens = AddProgramScreens(*m_session);
    m_setup = std::make_unique<SetupView>(*m_session, screens.setup);
    m_account = std::make_unique<NewCustomerView>(*m_session, screens.account);
    m_services = std::make_unique<ServicesView>(*m_session, screens.services);
    m_dialer = std::make_unique<DialerView>(*m_session, screens.dialer);
    m_display = std::make_unique<DisplayView>(*m_session, screens.display);
    m_contract = std::make_unique<ContractView>(*m_session, screens.contract);
    m_workSchedules = std::make_unique<WorkSchedulesView>(*m_session, screens.workSchedules);
    if (auto* reprint = m_session->ScreenAs<frmReprint>(ScreenId::frmReprint))
        m_reprint = std::make_unique<ReprintView>(*m_session, *reprint);
    if (auto* sales = m_session->ScreenAs<frmSales>(ScreenId::frmSales))
        m_sales = std::make_unique<SalesView>(*m_session, *sales);
    m_terms = std::make_unique<TermsView>(*m_session, screens.terms);
    m_workOrders = std::make_unique<WorkOrdersView>(*m_session, screens.workOrders);
    m_invoice = std::make_unique<InvoiceView>(*m_session, screens.invoice);
    m_create = std::make_unique<CreateView>(*m_session, screens.create);
    m_block = std::make_unique<BlockView>(*m_session, screens.block);
    m_appointments = std::make_unique<AppointmentsView>(*m_session, screens.appointments);
}

Application::~Application() {
    // The bell's switch reads this session's settings: it goes with them.
    Binder::setAlarmSwitch({});
}

bool Application::start() { return m_session->Main() == Session::StartResult::Running; }

} // namespace ostrel::ui
