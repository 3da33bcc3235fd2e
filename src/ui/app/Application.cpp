#include "Application.h"

#include "views/SplashView.h"
#include "views/StartupView.h"

#include <QApplication>
#include <QFileInfo>

static void initUiResources() { Q_INIT_RESOURCE(ui); }

namespace ostrel::ui {

void InitResources() { initUiResources(); }

Application::Application(AppInfo app)
    : m_app(std::move(app)), m_lockRoot(QFileInfo(m_app.path()).absolutePath()), m_dialogs(m_app),
      m_instance(m_lockRoot, m_app.programName()),
      m_platform{m_dialogs, m_clock, m_instance, m_browser, m_app} {
    InitResources();
    m_session = std::make_unique<Session>(m_lockRoot.root(), m_platform);
    m_session->endProcess = [] { QCoreApplication::quit(); };
    Binder::setAlarmSwitch([this] { return m_session->settings.program.alarms(); });
    m_splash = std::make_unique<SplashView>(*m_session, m_session->splash());
    m_startup = std::make_unique<StartupView>(*m_session, m_session->startup());
}

Application::~Application() = default;

bool Application::start() { return m_session->Main() == Session::StartResult::Running; }

} // namespace ostrel::ui
