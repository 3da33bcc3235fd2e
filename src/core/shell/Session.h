#pragma once

#include "ScreenId.h"
#include "accounts/CustomerBuffers.h"
#include "catalogue/CatalogueLists.h"
#include "controls/Screen.h"
#include "platform/Platform.h"
#include "scheduling/AppointmentSlip.h"
#include "setup/PointOfServiceNames.h"
#include "setup/SetupSettings.h"
#include "store/DataRoot.h"
#include "store/DiskRoutines.h"
#include "telephony/ModemStatus.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <map>
#include <memory>

namespace ostrel {

class StoreError;
struct ListControl;
class frmSplash;
class frmStartup;

// The screens whose Point of Service list start-up and Setup fill, in the order they are filled.
enum class PointOfServiceList {
    frmSetup,
    frmInvoice,
    frmNewCustomer,
    frmCreate,
    frmWorkOrders,
    frmWorkSchedules,
    frmSales,
    frmBlock,
    frmAppointments,
};
constexpr int kPointOfServiceLists = 9;

// One run of the program: the data root, the outside world, the shared objects every screen reads,
// and the screens, created once and shown and hidden.
class Session {
public:
    Session(const QString& dataRoot, Platform& platform);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    enum class StartResult { Running, AnotherCopyRunning, FolderNotWritable };
    // The start-up sequence. Ends with the welcome screen shown, or refuses a second copy.
    StartResult Main();
    // Unloads and hides every screen, last first, and ends the process.
    void ExitProgram();
    bool hasEnded() const { return m_ended; }
    // True once Main has loaded every screen; until then the welcome screen's controls do nothing.
    bool hasStarted() const { return m_started; }

    void LoadServiceAreas();
    bool RequiredFilesPresent();
    void CreateTeamDirectories(const QString& yearText);
    QDate DefaultCalendarDate() const;
    // An OK box with the two texts.
    void ShowMessage(const QString& prompt, const QString& title);
    // The bell, when the alarm option is on.
    void Beep();
    // Reports a routine that stopped on a disk failure.
    void ReportStoreError(const StoreError& error);
    // Runs one step of work; a disk failure is reported and the program goes on.
    bool Guarded(const std::function<void()>& step);

    // Screens.
    // Takes a screen into the session for the rest of the run and registers it.
    template <typename T> T& AddScreen(ScreenId id, std::unique_ptr<T> screen) {
        T& s = *screen;
        m_owned.push_back(std::move(screen));
        RegisterScreen(id, s);
        return s;
    }
    // The screen of that id as its own class; null when absent or of another class.
    template <typename T> T* ScreenAs(ScreenId id) const { return dynamic_cast<T*>(FindScreen(id)); }
    void RegisterScreen(ScreenId id, Screen& screen);
    Screen* FindScreen(ScreenId id) const;
    bool HasScreen(ScreenId id) const { return FindScreen(id) != nullptr; }
    // Shows the screen; when this version has not got it, says so and returns false.
    bool ShowScreen(ScreenId id);
    void HideScreen(ScreenId id);
    // Runs the screen's load, when the program has the screen.
    void LoadScreen(ScreenId id);
    void SetPointOfServiceList(PointOfServiceList owner, ListControl* list);

    const QString& programName() const { return platform.app.programName(); }
    QDate today() const { return platform.clock.today(); }

    DataRoot root;
    DiskRoutines disk;
    Platform& platform;

    // Shared state read by every screen.
    SetupSettings settings;
    PointOfServiceNames pointOfServiceNames;
    qint16 SelectedRoutine = 0;
    ModemStatus modem;
    // The one customer buffer and its two companions.
    CustomerBuffers customer;
    // The catalogue's lists on the other screens, filled only by the catalogue loads.
    CatalogueLists catalogueLists;
    // The slip numbering and the SlipId in force, read by appointment creation and the invoice.
    SlipCounter slipCounter;
    // Opens the speed dialer for a person and number; unset while no dialer is part of the program.
    std::function<void(const QString& name, const QString& number)> dial;

    // Set by the view layer: what ends the process once every screen is hidden.
    std::function<void()> endProcess;

    frmSplash& splash() { return *m_splash; }
    frmStartup& startup() { return *m_startup; }

private:
    std::map<ScreenId, Screen*> m_screens;
    std::vector<ScreenId> m_loadOrder;
    std::array<ListControl*, kPointOfServiceLists> m_pointOfServiceLists{};
    std::vector<std::unique_ptr<Screen>> m_owned;
    std::unique_ptr<frmSplash> m_splash;
    std::unique_ptr<frmStartup> m_startup;
    bool m_ended = false;
    bool m_started = false;
};

} // namespace ostrel
