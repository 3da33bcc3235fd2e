#include "frmSplash.h"

#include "Session.h"

namespace ostrel {

const QStringList frmSplash::kWelcomeTexts = {
    QStringLiteral("It has a series of File Folders where information the program requires is stored."),
    QStringLiteral("The Setup Screen will be displayed when you click our LOGO."),
    QStringLiteral("Enter the information for each Folder."),
    QStringLiteral("When you're completed, click on the Menu Button. That's it!"),
    QStringLiteral("The program will start.(Unless you forgot something)"),
    QStringLiteral("You may return to the Setup Screen at any time and make changes by Selecting Files | Create/Modify "
                   "from the Main Menu Screen."),
    QStringLiteral("If you see this screen after initial Setup, one of your files is missing."),
    QStringLiteral("An unsuccessful attempt was made to restore it from the Backup Folder. You need to recreate it."),
};

frmSplash::frmSplash(Session& session) : Screen(QStringLiteral("frmSplash")), m_session(session) {
    caption = QStringLiteral("Ostrel Appointment Scheduler");
    lblProduct.caption = QStringLiteral("Ostrel Appointment Scheduler");
    lblVersion.caption = QStringLiteral("Version ") + session.platform.app.version();
    cmdContinue.caption = QStringLiteral("Continue");
    cmdContinue.toolTip = QStringLiteral("Starts the Program");
    fraWelcome.caption = QStringLiteral("Welcome to Norlavex's Ostrel App.exe");
    fraWelcome.visible = false;
    for (int i = 0; i < kWelcomeTexts.size(); ++i) lblWelcome[i].caption = kWelcomeTexts[i];
    Image1[0].picture = QStringLiteral(":/images/logo.png");
    Image1[1].picture = QStringLiteral(":/images/logo.png");
    Image1[1].toolTip = QStringLiteral("Click our LOGO to open the Setup Screen");

    controls.add(QStringLiteral("lblProduct"), lblProduct);
    controls.add(QStringLiteral("lblVersion"), lblVersion);
    controls.add(QStringLiteral("cmdContinue"), cmdContinue);
    controls.add(QStringLiteral("fraWelcome"), fraWelcome);
    controls.add(QStringLiteral("lblWelcome"), lblWelcome);
    controls.add(QStringLiteral("Image1"), Image1);
}

void frmSplash::cmdContinue_Click() {
    // The modem probe lets events through while the screens are still loading: a click then
    // would reach a screen not there yet.
    if (!m_session.hasStarted()) return;
    if (m_session.RequiredFilesPresent()) {
        // The welcome screen stays unless another window takes its place.
        if (m_session.ShowScreen(ScreenId::frmStartup)) Hide();
        return;
    }
    setWelcomeShown(true);
}

void frmSplash::setWelcomeShown(bool shown) {
    // The frame takes the place of everything else on the screen.
    lblProduct.visible = !shown;
    lblVersion.visible = !shown;
    cmdContinue.visible = !shown;
    Image1[0].visible = !shown;
    fraWelcome.visible = shown;
}

void frmSplash::Image1_Click(int index) {
    if (!m_session.hasStarted()) return;
    if (index == 1) setWelcomeShown(false);
    if (m_session.ShowScreen(ScreenId::frmSetup)) Hide();
}

} // namespace ostrel
