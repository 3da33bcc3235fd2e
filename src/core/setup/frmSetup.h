#pragma once

#include "SetupScreenControls.h"
#include "controls/Controls.h"
#include "controls/Screen.h"
#include "platform/ControlRegistry.h"

#include <QString>

namespace ostrel {

class Session;

// The Setup screen: the owner's business data, the program's options, taxes, print look, logo,
// Points of Service and modem. Its controls are the option set the rest of the program reads, so
// every event keeps the session's settings current; leaving through cmdQuit writes them to disk.
class frmSetup : public Screen {
public:
    // The pages of tabInfo.
    enum InfoTab { kBusinessInfo, kSetupHelp, kOptions, kLogo, kPointsOfService, kOperations };
    // The pages of SSTab2 and SSTab1.
    enum OptionsTab { kWorkOrders, kInvoiceOptions, kWorkDayScheduling };
    enum OperationsTab { kPrinting, kTaxation, kPhoneAndModem, kAssistance };
    // Fixed labels of Label3, by index.
    enum Label3Index {
        kAssociateNote = 0,
        kNoBusinessOptions = 1,
        kClearBusinessCaption = 2,
        kReloadBusinessCaption = 3,
        kHighlightNote = 4,
        kCopiesCaption = 5,
        kComPortCaption = 6,
        kInternationalNote = 7,
        kBordersCaption = 8,
        kDataCaption = 9,
        kPosTip = 10,
        kFontCaption = 11,
        kHeadingCaption = 12,
        kRateCaption = 13,
        kPosHowTo = 14,
    };

    explicit frmSetup(Session& session);

    // Fills every control from the session's settings and modem status; run once the start-up
    // loads are done.
    void Load() override;
    // The main menu's Create/Modify: the help page and the work-day page set, then the screen shown.
    void ShowFromMenu();
    void Form_Activate() override;

    // Tab strips. A click names the page chosen.
    void tabInfo_Click(int tab);
    void SSTab2_Click(int tab);
    void SSTab1_Click(int tab);
    // Image1(0), (1), (3) step through tabInfo, SSTab2 and SSTab1.
    void Image1_Click(int index);

    // Business Info.
    void cmdQuit_Click();
    void cmdAddress_Click();
    void Image4_Click();
    void Image5_Click();
    void optBusinessType_Click(int index);

    // Options.
    void ckReturnParts_Click();
    void cmdReturn_Click(int index);
    void optMF_Click();
    void optMS_Click();
    void optSF_Click();
    void optSS_Click();
    // Any option whose only action is to hold its new value (check boxes, the remittance options,
    // the typed rates and headings, copies, the graduated amounts, the return-parts text).
    void OptionChanged();

    // Logo.
    void cmdLogo_Click(int index);
    void UpDown1_UpClick();
    void UpDown1_DownClick();
    void UpDown2_UpClick();
    void UpDown2_DownClick();

    // Points of Service; cmdChange(3) is among cmdChange_Click.
    void cboAssignments_Click();
    void cmdSave_Click();
    void cmdDelete_Click();
    void cmdOops_Click();

    // Operations.
    void cmdChange_Click(int index);
    void cmdGraduatedTax_Click(int index);
    void txtGradulated_GotFocus(int index);

    SetupTabStrip tabInfo, SSTab2, SSTab1;
    CommandButton cmdQuit;

    // Business Info.
    ControlArray<SetupTextBox> txtBusiness; // 0 to 8
    ControlArray<Label> lblAddress;         // 0 to 8, beside the boxes
    Label lblPostal;
    CommandButton cmdAddress;
    ControlArray<OptionButton> optBusinessType;
    Image Image4, Image5;
    ControlArray<Image> Image1; // 0, 1, 3
    ControlArray<Label> Label3;

    // Setup Help.
    Label lblHelp;

    // Options: Work Orders, Invoice Options, Work DayScheduling.
    Frame fraWorkOrders;
    CheckBox ckEstimate, ckTerms, ckReturnParts;
    TextBox txtReturnParts;
    ControlArray<CommandButton> cmdReturn;
    CheckBox ckShipping, ckMisc, ckManualInvoiceNo;
    Frame fraWDOptions;
    OptionButton optMF, optMS, optSF, optSS;

    // Logo.
    SetupImage Image2, Image3;
    ControlArray<CommandButton> cmdLogo; // 0, 1, 2, 5
    SetupUpDown UpDown1, UpDown2;
    ControlArray<Label> Label2; // 0, 1 notes; 2 the company name above the sample; 3, 4 the sizes

    // Points of Service.
    ComboBox cboAssignments;
    CommandButton cmdSave, cmdDelete, cmdOops;

    // Operations: Printing.
    OptionButton optPlain, optReturn;
    CheckBox ckColor;
    SetupTextBox txtBorders, txtData;
    Label lblFont;
    ComboBox cboCopies;
    ControlArray<CommandButton> cmdChange; // 0 to 3; 3 lies on the Points of Service page

    // Operations: Taxation.
    ComboBox cboRate1, cboTaxHeading1, cboRate2, cboTaxHeading2;
    CheckBox ckApply1stTax, ckApply2ndTax;
    CheckBox ckSalesItems, ckServices, ckLabor, ckCustom, ckApplyGraduated;
    ControlArray<CommandButton> cmdGraduatedTax; // 0 to 2
    Frame fraGraduated;
    ControlArray<TextBox> txtGradulated; // 0 the primary limit, 1 the surcharge
    ControlArray<Label> lblGraduated;    // the frame's words

    // Operations: Phone and Modem, Assistance.
    TextBox txtModemPort;
    CheckBox ckPhone, ckCallerID;
    Label lblCallid;
    CheckBox ckPrompts, ckAlarms;

    ControlRegistry controls;

    static const QString kCaption;
    static const QString kLogoFilter;

private:
    void buildCaptions();
    void registerControls();
    void fillFromSettings();
    // The controls of the style a caption of cmdAddress names: the toggle's effect.
    void applyAddressStyle(const QString& style);
    // fraWorkOrders and its note follow the business style.
    void showBusinessStyle();
    void resetPointOfServiceButtons();
    void setWorkWeek(qint16 code);
    void showLogo();
    void updateLogoSizeLabels();
    void stepLogoSize(float& value, bool up);
    void savePointsOfService();
    // Copies every option control into the session's settings.
    void storeOptions();
    // Moves the focus to one control only.
    void focus(Control& control);

    Session& m_session;
    int m_rememberedIndex = -1;
};

} // namespace ostrel
