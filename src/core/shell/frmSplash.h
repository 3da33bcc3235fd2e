#pragma once

#include "controls/Controls.h"
#include "controls/Screen.h"
#include "platform/ControlRegistry.h"

namespace ostrel {

class Session;

// The welcome screen: product, version and Continue; on a first run, the welcome frame that sends
// the owner to Setup through the logo.
class frmSplash : public Screen {
public:
    explicit frmSplash(Session& session);

    void cmdContinue_Click();
    void Image1_Click(int index);

    Label lblProduct;
    Label lblVersion;
    CommandButton cmdContinue;
    Frame fraWelcome;
    ControlArray<Label> lblWelcome;
    ControlArray<Image> Image1; // 0 on the screen, 1 the logo in the welcome frame

    ControlRegistry controls;

    static const QStringList kWelcomeTexts;

private:
    void setWelcomeShown(bool shown);
    void leave();
    Session& m_session;
};

} // namespace ostrel
