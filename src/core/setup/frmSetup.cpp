#include "frmSetup.h"

#include "SetupSettings.h"
#include "shell/Session.h"

namespace ostrel {

namespace {
// Pictures of the clickable images, from the widget library's own set.
const QString kStepPicture = QStringLiteral(":/qt-project.org/styles/commonstyle/images/right-32.png");
const QString kClearPicture =
    QStringLiteral(":/qt-project.org/styles/commonstyle/images/standardbutton-clear-32.png");
const QString kReloadPicture = QStringLiteral(":/qt-project.org/styles/commonstyle/images/refresh-32.png");
} // namespace

const QString frmSetup::kCaption = QStringLiteral("Appointment Scheduker Setup");
const QString frmSetup::kLogoFilter =
    QStringLiteral("Pictures |(*.bmp;*.BMP;*.ico;*.ICO; *.cur; *.CUR;*jpg;*JPG; *.EMF)|All|*.*");

frmSetup::frmSetup(Session& session) : Screen(QStringLiteral("frmSetup")), m_session(session) {
    caption = kCaption;
    buildCaptions();
    registerControls();
    m_session.SetPointOfServiceList(PointOfServiceList::frmSetup, &cboAssignments);
}

void frmSetup::buildCaptions() {
    tabInfo.SetCaptions({QStringLiteral("Business Info"), QStringLiteral("Setup Help"),
                         QStringLiteral("Options"), QStringLiteral("Logo"),
                         QStringLiteral("Points of Service"), QStringLiteral("Operations")});
    SSTab2.SetCaptions({QStringLiteral("Work Orders"), QStringLiteral("Invoice Options"),
                        QStringLiteral("Work DayScheduling")});
    SSTab1.SetCaptions({QStringLiteral("Printing"), QStringLiteral("Taxation"),
                        QStringLiteral("Phone and Modem"), QStringLiteral("Assistance")});
    cmdQuit.caption = QStringLiteral("&Save Settings / Return to Menu");

    const QStringList addressLabels = {QStringLiteral("Company Name"),  QStringLiteral("Address 1"),
                                       QStringLiteral("Address 2"),     QStringLiteral("City"),
                                       QStringLiteral("State"),         QStringLiteral("Postal Zip Code"),
                                       QStringLiteral("Telephone"),     QStringLiteral("Fax No,email or Web"),
                                       QStringLiteral("FEIN, VAT, ABN")};
    for (int i = 0; i < addressLabels.size(); ++i) {
        lblAddress[i].caption = addressLabels[i];
        txtBusiness[i].Width = 5385;
    }
    txtBusiness[5].maxLength = 10;
    txtBusiness[5].Width = 1500;
    txtBusiness[6].maxLength = 12;
    txtBusiness[6].Width = 1800;
    txtBusiness[8].toolTip = QStringLiteral("Example : ABN - 123456789");
    lblPostal.caption = QStringLiteral("Postal Code is Mandatory");
    cmdAddress.caption = kUsaStyleAddress;
    optBusinessType[0].caption = QStringLiteral("Shop/Repair Oriented");
    optBusinessType[1].caption = QStringLiteral("Associate Sales Oriented");
    Image4.picture = kClearPicture;
    Image4.toolTip = QStringLiteral("Clear All business Data");
    Image5.picture = kReloadPicture;
    Image5.toolTip = QStringLiteral("Reload Business Data");
    for (int i : {0, 1, 3}) {
        Image1[i].picture = kStepPicture;
        Image1[i].toolTip = QStringLiteral("Toggles Sub Tabs  >");
    }
    Label3[kAssociateNote].caption =
        QStringLiteral("(Associate Style records Sales activities by Associate)");
    Label3[kNoBusinessOptions].caption =
        QStringLiteral("There are No Business Options when you select Associate Sales Oriented Type");
    Label3[kNoBusinessOptions].visible = false;
    Label3[kClearBusinessCaption].caption = QStringLiteral("Clear All business Data");
    Label3[kReloadBusinessCaption].caption = QStringLiteral("Reload Business Data");
    Label3[kHighlightNote].caption =
        QStringLiteral("Headings, totals etc are printed in highlighting colors");
    Label3[kCopiesCaption].caption = QStringLiteral("Print Copies");
    Label3[kComPortCaption].caption = QStringLiteral("COM Port #");
    Label3[kInternationalNote].caption = QStringLiteral("International Users only");
    Label3[kBordersCaption].caption = QStringLiteral("Borders and Lines Color");
    Label3[kDataCaption].caption = QStringLiteral("Printed Data Color");
    Label3[kPosTip].caption = QStringLiteral("TIP: Create POS Titles rather than names of Individuals.");
    Label3[kFontCaption].caption = QStringLiteral("Screen and Printer Font");
    Label3[kHeadingCaption].caption = QStringLiteral("Tax Heading");
    Label3[kRateCaption].caption = QStringLiteral("Tax Rate %");
    Label3[kPosHowTo].caption = QStringLiteral(
        "Type a name and click Add. To rename or delete one, choose it in the list first. At most 8 names.");

    lblHelp.caption = QStringLiteral(
        "Business Info: your company's name and telephone are required; the address prints on invoices and "
        "work orders. The address button switches between USA and International addresses.\n\n"
        "Options: what work orders print, the items typically added to invoices, and the days of the week "
        "on which appointments may be scheduled.\n\n"
        "Logo: find your logo picture, store it, and set the size it prints at.\n\n"
        "Points of Service: the crews, work areas or sales associates (up to 8) whose days are scheduled. "
        "Each keeps its place in the list: deleting one moves the ones after it up.\n\n"
        "Operations: printing colours and font, taxes, the modem, and the prompts and alarms.\n\n"
        "Click \"Save Settings / Return to Menu\" when you are done: every setting is saved then.");

    fraWorkOrders.caption = QStringLiteral("Work Order Options");
    ckEstimate.caption = QStringLiteral("Print Estimate Disclaimer on Work Orders");
    ckTerms.caption = QStringLiteral("Print Terms on Work Orders");
    ckReturnParts.caption = QStringLiteral("Print Return Parts Instructions on Work Order");
    txtReturnParts.multiLine = true;
    cmdReturn[0].caption = QStringLiteral("Save &Instructions");
    cmdReturn[1].caption = QStringLiteral("&Re-Load Instructions");
    ckShipping.caption = QStringLiteral("Shipping and Handling");
    ckMisc.caption = QStringLiteral("Misc Charges or Credits");
    ckManualInvoiceNo.caption = QStringLiteral("Program   =          110-1 Manual      =       100001");
    fraWDOptions.caption = QStringLiteral("Work Days");
    optMF.caption = QStringLiteral("Monday thru Friday");
    optMS.caption = QStringLiteral("Monday thru Saturday");
    optSF.caption = QStringLiteral("Sunday thru Friday");
    optSS.caption = QStringLiteral("Sunday thru Saturday");

    Image2.Width = Image2.Height = 1440;
    Image3.Width = Image3.Height = 1440;
    cmdLogo[0].caption = QStringLiteral("Find");
    cmdLogo[1].caption = QStringLiteral("&Store");
    cmdLogo[1].enabled = false;
    cmdLogo[2].caption = QStringLiteral("&Clear");
    cmdLogo[5].caption = QStringLiteral("Print Sample Document");
    UpDown1.toolTip = QStringLiteral("Logo Height");
    UpDown2.toolTip = QStringLiteral("Logo Width");
    Label2[0].caption = QStringLiteral("BEFORE SELECTING YOUR LOGO: COPY THE FILE INTO YOUR NORLAVEX FOLDER");
    Label2[1].caption = QStringLiteral("Settings are saved upon exiting.");
    Label2[2].caption.clear();
    updateLogoSizeLabels();

    cmdSave.caption = QStringLiteral("Add");
    cmdChange[3].caption = QStringLiteral("Change");
    cmdDelete.caption = QStringLiteral("Delete");
    cmdOops.caption = QStringLiteral("Oops - Do Over");
    Label3[kPosTip].visible = false;

    optPlain.caption = QStringLiteral("No Remittance Slip");
    optReturn.caption = QStringLiteral("Print Remittance Slip ");
    ckColor.caption = QStringLiteral("Print");
    txtBorders.locked = true;
    txtData.locked = true;
    for (int i = 0; i < 3; ++i)
        cmdChange[i].caption = QStringLiteral("Change");
    for (int copies = 1; copies <= 5; ++copies)
        cboCopies.AddItem(QString::number(copies));

    cboRate1.items = TaxRateChoices();
    cboRate2.items = TaxRateChoices();
    cboTaxHeading1.items = TaxHeadingChoices();
    cboTaxHeading2.items = TaxHeadingChoices();
    for (ComboBox* box : {&cboRate1, &cboRate2, &cboTaxHeading1, &cboTaxHeading2})
        box->itemData = QVector<qint32>(box->items.size(), 0);
    cboRate1.SetListIndex(0);
    cboRate2.SetListIndex(0);
    ckApply1stTax.caption = QStringLiteral("Apply 1st Tax");
    ckApply2ndTax.caption = QStringLiteral("Apply 2nd Tax");
    ckSalesItems.caption = QStringLiteral("Tax Sales Items");
    ckServices.caption = QStringLiteral("Tax Services");
    ckLabor.caption = QStringLiteral("Tax Labor");
    ckCustom.caption = QStringLiteral("Tax Custom Sales  Items");
    ckApplyGraduated.caption = QStringLiteral("Apply Graduated Tax Scheme");
    ckApplyGraduated.toolTip = QStringLiteral("A specialized Tax System used in some countries");
    cmdGraduatedTax[0].caption = QStringLiteral("View/Create a Graduated Tax Scheme");
    cmdGraduatedTax[1].caption = QStringLiteral("Save Graduated Tax Scheme and Close Window");
    cmdGraduatedTax[2].caption = QStringLiteral("Clear/Redo");
    fraGraduated.caption = QStringLiteral("Graduated Tax Scheme");
    fraGraduated.visible = false;
    txtGradulated[0].toolTip = QStringLiteral("Max amount of primary rate");
    txtGradulated[1].toolTip = QStringLiteral("Flat surcharge when 1st total is exceeded");
    const QStringList graduatedWords = {
        QStringLiteral("Apply Primary Tax Rate to all Sales up to  a Total of:"),
        QStringLiteral("when Primary Amount is exceeded"),
        QStringLiteral("Apply Secondary Tax Rate when exceeded"), QStringLiteral("Apply a Surcharge of:")};
    for (int i = 0; i < graduatedWords.size(); ++i)
        lblGraduated[i].caption = graduatedWords[i];

    txtModemPort.locked = true;
    ckPhone.caption = QStringLiteral("A Phone is Daisy-Chained  downstream from the Computer");
    ckCallerID.caption = QStringLiteral("Using Caller ID");
    ckCallerID.toolTip = QStringLiteral("Modem MUST support this feature");
    lblCallid.caption =
        QStringLiteral("Modem Supports Caller ID  Check with your Phone Co for support for this feature");
    ckPrompts.caption = QStringLiteral("Show Prompts and Confirmations");
    ckAlarms.caption = QStringLiteral("Sound Alarm on Errors");
}

void frmSetup::registerControls() {
    auto name = [](const char* n) { return QString::fromLatin1(n); };
    controls.add(name("cmdQuit"), cmdQuit);
    controls.add(name("txtBusiness"), txtBusiness);
    controls.add(name("lblAddress"), lblAddress);
    controls.add(name("lblPostal"), lblPostal);
    controls.add(name("cmdAddress"), cmdAddress);
    controls.add(name("optBusinessType"), optBusinessType);
    controls.add(name("Image4"), Image4);
    controls.add(name("Image5"), Image5);
    controls.add(name("Image1"), Image1);
    controls.add(name("Label3"), Label3);
    controls.add(name("lblHelp"), lblHelp);
    controls.add(name("fraWorkOrders"), fraWorkOrders);
    controls.add(name("ckEstimate"), ckEstimate);
    controls.add(name("ckTerms"), ckTerms);
    controls.add(name("ckReturnParts"), ckReturnParts);
    controls.add(name("txtReturnParts"), txtReturnParts);
    controls.add(name("cmdReturn"), cmdReturn);
    controls.add(name("ckShipping"), ckShipping);
    controls.add(name("ckMisc"), ckMisc);
    controls.add(name("ckManualInvoiceNo"), ckManualInvoiceNo);
    controls.add(name("fraWDOptions"), fraWDOptions);
    controls.add(name("optMF"), optMF);
    controls.add(name("optMS"), optMS);
    controls.add(name("optSF"), optSF);
    controls.add(name("optSS"), optSS);
    controls.add(name("Image2"), Image2);
    controls.add(name("Image3"), Image3);
    controls.add(name("cmdLogo"), cmdLogo);
    controls.add(name("Label2"), Label2);
    controls.add(name("cboAssignments"), cboAssignments);
    controls.add(name("cmdSave"), cmdSave);
    controls.add(name("cmdDelete"), cmdDelete);
    controls.add(name("cmdOops"), cmdOops);
    controls.add(name("optPlain"), optPlain);
    controls.add(name("optReturn"), optReturn);
    controls.add(name("ckColor"), ckColor);
    controls.add(name("txtBorders"), txtBorders);
    controls.add(name("txtData"), txtData);
    controls.add(name("lblFont"), lblFont);
    controls.add(name("cboCopies"), cboCopies);
    controls.add(name("cmdChange"), cmdChange);
    controls.add(name("cboRate1"), cboRate1);
    controls.add(name("cboTaxHeading1"), cboTaxHeading1);
    controls.add(name("cboRate2"), cboRate2);
    controls.add(name("cboTaxHeading2"), cboTaxHeading2);
    controls.add(name("ckApply1stTax"), ckApply1stTax);
    controls.add(name("ckApply2ndTax"), ckApply2ndTax);
    controls.add(name("ckSalesItems"), ckSalesItems);
    controls.add(name("ckServices"), ckServices);
    controls.add(name("ckLabor"), ckLabor);
    controls.add(name("ckCustom"), ckCustom);
    controls.add(name("ckApplyGraduated"), ckApplyGraduated);
    controls.add(name("cmdGraduatedTax"), cmdGraduatedTax);
    controls.add(name("fraGraduated"), fraGraduated);
    controls.add(name("txtGradulated"), txtGradulated);
    controls.add(name("lblGraduated"), lblGraduated);
    controls.add(name("txtModemPort"), txtModemPort);
    controls.add(name("ckPhone"), ckPhone);
    controls.add(name("ckCallerID"), ckCallerID);
    controls.add(name("lblCallid"), lblCallid);
    controls.add(name("ckPrompts"), ckPrompts);
    controls.add(name("ckAlarms"), ckAlarms);
    // The three strips and the two up-downs are not among the registry's kinds; the view joins them
    // by these names itself.
    tabInfo.name = name("tabInfo");
    SSTab2.name = name("SSTab2");
    SSTab1.name = name("SSTab1");
    UpDown1.name = name("UpDown1");
    UpDown2.name = name("UpDown2");
}

void frmSetup::Load() {
    fillFromSettings();
    tabInfo.Tab = kBusinessInfo;
    SSTab2.Tab = kWorkOrders;
    SSTab1.Tab = kPrinting;
}

void frmSetup::ShowFromMenu() {
    tabInfo.Tab = kSetupHelp;
    SSTab2.Tab = kWorkDayScheduling;
    Show();
}

void frmSetup::Form_Activate() {
    // The address style is decided again from the boxes as they stand, then toggled once.
    BusinessData shown;
    for (int i = 0; i < BusinessData::kCount; ++i)
        shown.txtBusiness[i] = txtBusiness[i].text;
    cmdAddress.caption = AddressCaptionByTests(shown, cmdAddress.caption);
    cmdAddress_Click();
    tabInfo.Tab = kBusinessInfo;
    SSTab1.Tab = kPrinting;
    focus(txtBusiness[0]);
}

void frmSetup::tabInfo_Click(int tab) {
    if (tab < 0 || tab >= tabInfo.Tabs()) return;
    tabInfo.Tab = tab;
    if (tab == kPointsOfService) resetPointOfServiceButtons();
}

void frmSetup::SSTab2_Click(int tab) {
    if (tab >= 0 && tab < SSTab2.Tabs()) SSTab2.Tab = tab;
}

void frmSetup::SSTab1_Click(int tab) {
    if (tab >= 0 && tab < SSTab1.Tabs() && SSTab1.TabEnabled.value(tab)) SSTab1.Tab = tab;
}

void frmSetup::Image1_Click(int index) {
    if (index == 0) tabInfo_Click(tabInfo.NextTab());
    if (index == 1) SSTab2_Click(SSTab2.NextTab());
    if (index == 3) SSTab1_Click(SSTab1.NextTab());
}

void frmSetup::cmdQuit_Click() {
    if (txtBusiness[0].text.isEmpty() || txtBusiness[6].text.isEmpty()) {
        m_session.platform.dialogs.MsgBox(QStringLiteral("Name and Telephone are Required"), vbOKOnly,
                                          QStringLiteral("Missing Name or Telphone"));
        // The first box lies on the first page; show it so the focus can reach it.
        tabInfo.Tab = kBusinessInfo;
        focus(txtBusiness[0]);
        return;
    }
    storeOptions();
    BusinessBoxes boxes;
    for (int i = 0; i < BusinessData::kCount; ++i)
        boxes[i] = txtBusiness[i].text;
    SaveSetupSettings(m_session.disk, m_session.programName(), m_session.settings, boxes, ckPhone.checked());
    Hide();
    m_session.ShowScreen(ScreenId::frmStartup);
}

void frmSetup::OptionChanged() {
    storeOptions();
}

void frmSetup::focus(Control& control) {
    for (const auto& entry : controls.entries())
        AsControl(entry).focusRequested = false;
    control.SetFocus();
}

} // namespace ostrel
