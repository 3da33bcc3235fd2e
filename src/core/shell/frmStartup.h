#pragma once

#include "ScreenId.h"
#include "SupplierLinks.h"
#include "controls/Controls.h"
#include "controls/Screen.h"
#include "platform/ControlRegistry.h"

namespace ostrel {

class Session;

// The main menu: thirteen routines, one preselected, entered by double click or Goto; the Files
// menu and the supplies-ordering links.
class frmStartup : public Screen {
public:
    static constexpr int kRoutines = 13;

    explicit frmStartup(Session& session, SupplierLinks links = SupplierLinks::configured());

    void Form_Activate() override;
    // The thirteen routines are one set whichever box they stand in: choosing one clears the rest.
    void optMainMenuSub_Click(int index);
    void optMainMenuSub_DblClick(int index);
    void cmdGoto_Click();
    void mnuCreate_Click();
    void mnuExit_Click();
    void Image1_Click() { mnuCreate_Click(); }
    void mnuDeluxe_Click();
    void mnuSlips_Click();
    void mnuPPaper_Click();
    void mnuPPPaper_Click();
    void mnuGraytex_Click();
    void mnuAddress_Click();
    void mnuLabels_Click();

    // The screen each routine opens.
    static ScreenId RoutineScreen(int index);

    ControlArray<Label> lblHeading;
    ControlArray<OptionButton> optMainMenuSub;
    CommandButton cmdGoto;
    Image Image1;
    MenuItem mnuFiles, mnuCreate, mnuExit;
    MenuItem mnuOrder, mnuDelexe, mnuDeluxe, mnuSlips, mnuPPaper, mnuPPPaper, mnuGraytex, mnuAddress, mnuLabels;

    ControlRegistry controls;

private:
    void Activate(int index);
    void askThenOpen(const QString& title, const QStringList& lines, const QString& url, int style);
    Session& m_session;
    SupplierLinks m_links;
};

} // namespace ostrel
