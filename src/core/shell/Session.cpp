#include "Session.h"

#include "DataDirectories.h"
#include "ShellRoutines.h"
#include "controls/Controls.h"
#include "controls/Screen.h"
#include "frmSplash.h"
#include "frmStartup.h"
#include "platform/StoreErrorBox.h"
#include "scheduling/DaySchedulePurge.h"
#include "scheduling/DayScheduleStore.h"
#include "setup/RequiredFiles.h"
#include "store/StoreError.h"
#include "telephony/LoadPhoneSettings.h"

namespace ostrel {

namespace {
const QString kAllAssignments = QStringLiteral("All Assignments");
}

Session::Session(const QString& dataRoot, Platform& platform_)
    : root(dataRoot), disk(root), platform(platform_) {
    m_splash = std::make_unique<frmSplash>(*this);
    m_startup = std::make_unique<frmStartup>(*this);
    disk.SetDamageHooks([this](const QString& name, const QString& problem) { ShowMessage(DamagedFileMessage(name, problem), kDamagedFileTitle); },
                        [this](const QString& name, const QString& problem) {
                            return platform.dialogs.MsgBox(DamagedFileQuestion(name, problem), vbYesNo + vbExclamation + vbDefaultButton2,
                                                           kDamagedFileTitle) == vbYes;
                        });
}

Session::~Session() = default;

Session::StartResult Session::Main() {
    // 1. One copy per data folder; nothing has touched the disk yet.
    if (!platform.instance.TryAcquire()) {
        if (platform.instance.FolderNotWritable()) {
            ShowMessage(FolderNotWritableMessage(root.root()), platform.app.title());
            return StartResult::FolderNotWritable;
        }
        platform.dialogs.MsgBox(platform.app.title() + QStringLiteral(" is already Running!") + u'\n' +
                                    QStringLiteral("Look for it on the Task Bar"),
                                vbOKOnly);
        return StartResult::AnotherCopyRunning;
    }
    // 2. The data tree.
    Guarded([&] {
        const QStringList problems = PrepareDataDirectories(disk, today(), programName());
        if (!problems.isEmpty()) ShowMessage(problems.join(u'\n'), QStringLiteral("Customer Folders"));
    });
    // 3. The welcome screen.
    RegisterScreen(ScreenId::frmSplash, *m_splash);
    m_splash->Show();
    // 4. The settings and the modem, read as the Setup screen loads.
    Guarded([&] { LoadSetupSettings(disk, programName(), settings); });
    LoadPhoneSettings(*this, platform.serial);
    LoadScreen(ScreenId::frmTerms);
    LoadScreen(ScreenId::frmSetup);
    // 6. The Points of Service and their lists; the account screen is loaded with its list.
    LoadServiceAreas();
    LoadScreen(ScreenId::frmNewCustomer);
    // 7, 8. Day files of last year, then the past days of this one.
    const int count = pointOfServiceNames.UpperBound();
    Guarded([&] { PurgeLastYear(disk, today(), count); });
    Guarded([&] { PurgePastDays(disk, today(), today().dayOfYear(), count); });
    // 9. The main menu, loaded hidden, then the catalogue and the appointment routines.
    RegisterScreen(ScreenId::frmStartup, *m_startup);
    LoadScreen(ScreenId::frmServices);
    LoadScreen(ScreenId::frmAppointments);
    m_started = true;
    return StartResult::Running;
}

void Session::ExitProgram() {
    for (auto it = m_loadOrder.rbegin(); it != m_loadOrder.rend(); ++it) {
        Screen& screen = *m_screens.at(*it);
        Guarded([&] { screen.Form_Unload(); });
        screen.Hide();
    }
    m_ended = true;
    platform.instance.Release();
    if (endProcess) endProcess();
}

void Session::LoadServiceAreas() {
    for (ListControl* list : m_pointOfServiceLists)
        if (list) list->Clear();
    Guarded([&] { pointOfServiceNames = LoadPointOfServiceNames(disk); });
    if (!pointOfServiceNames.isPopulated()) return;
    for (int i = 1; i <= pointOfServiceNames.UpperBound(); ++i)
        for (ListControl* list : m_pointOfServiceLists)
            if (list) list->AddItem(pointOfServiceNames[i]);
    if (ListControl* block = m_pointOfServiceLists[static_cast<int>(PointOfServiceList::frmBlock)])
        block->AddItem(kAllAssignments);
    Guarded([&] { EnsureDayScheduleDirectories(disk, today(), pointOfServiceNames.UpperBound()); });
}

bool Session::RequiredFilesPresent() {
    bool present = false;
    Guarded([&] { present = ostrel::RequiredFilesPresent(disk, programName()); });
    return present;
}

void Session::CreateTeamDirectories(const QString& yearText) {
    ostrel::CreateTeamDirectories(disk, yearText, pointOfServiceNames.UpperBound());
}

QDate Session::DefaultCalendarDate() const { return ostrel::DefaultCalendarDate(platform.clock.now()); }

void Session::ShowMessage(const QString& prompt, const QString& title) {
    platform.dialogs.MsgBox(prompt, vbOKOnly, title);
}

void Session::Beep() {
    if (settings.program.alarms()) platform.dialogs.Beep();
}

void Session::ReportStoreError(const StoreError& error) {
    ShowStoreError(platform.dialogs, error, settings.program.alarms());
}

bool Session::Guarded(const std::function<void()>& step) {
    try {
        step();
        return true;
    } catch (const StoreError& e) {
        disk.CloseAllFiles();
        ReportStoreError(e);
        return false;
    }
}

void Session::RegisterScreen(ScreenId id, Screen& screen) {
    if (m_screens.emplace(id, &screen).second) m_loadOrder.push_back(id);
}

Screen* Session::FindScreen(ScreenId id) const {
    const auto it = m_screens.find(id);
    return it == m_screens.end() ? nullptr : it->second;
}

bool Session::ShowScreen(ScreenId id) {
    Screen* s = FindScreen(id);
    if (!s) {
        ShowMessage(QStringLiteral("The %1 screen is not part of this version of the program yet.").arg(screenTitle(id)),
                    QStringLiteral("Not Available"));
        return false;
    }
    s->Show();
    return true;
}

void Session::LoadScreen(ScreenId id) {
    if (Screen* s = FindScreen(id)) Guarded([&] { s->Load(); });
}

void Session::HideScreen(ScreenId id) {
    if (Screen* s = FindScreen(id)) s->Hide();
}

void Session::SetPointOfServiceList(PointOfServiceList owner, ListControl* list) {
    m_pointOfServiceLists[static_cast<int>(owner)] = list;
}

} // namespace ostrel
