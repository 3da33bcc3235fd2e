#include "frmContract.h"

#include "RtfText.h"
#include "accounts/frmNewCustomer.h"
#include "catalogue/CatalogueFile.h"
#include "store/CurrencyText.h"
#include "catalogue/ServiceRecord.h"
#include "shell/Session.h"
#include "util/VbText.h"

namespace ostrel {

namespace {

const QString kManualNote = QStringLiteral(
    "NOTE: If you enter a term other than those available, you will need to enter it manually on the "
    "contract.");

// Joins the non-empty address lines of a name-and-address block with line ends.
QString joinLines(const QStringList& lines) {
    QStringList kept;
    for (const QString& l : lines)
        if (!vbTrim(l).isEmpty()) kept << vbTrim(l);
    return kept.join(u'\n');
}

// City, state and postal code on one line.
QString cityLine(const QString& city, const QString& state, const QString& postal) {
    QString line = vbTrim(city);
    if (!vbTrim(state).isEmpty()) line += (line.isEmpty() ? QString() : QStringLiteral(", ")) + vbTrim(state);
    if (!vbTrim(postal).isEmpty()) line += (line.isEmpty() ? QString() : QStringLiteral("  ")) + vbTrim(postal);
    return line;
}

} // namespace

QString frmContract::CurrencyForm(const QString& text) {
    if (const auto v = currencytext::parseCurrency(text)) return currencytext::format(*v);
    return text;
}

QString contractFileName(const QString& accountNumber) {
    return kContractsFolder + QStringLiteral("\\Contract - ") + accountNumber + QStringLiteral(".rtf");
}

frmContract::frmContract(Session& session) : Screen(QStringLiteral("frmContract")), m_session(session) {
    caption = QStringLiteral("Contract Creation Form");
    for (const QString& f : kFrequencies)
        lstFrequency.AddItem(f);
    for (const QString& d : kDurations)
        cboDuration.AddItem(d);
    ckRenew.caption = QStringLiteral("Automatically Renew at the end of the Duration");
    fraServices.caption = QStringLiteral("Create from Services");
    fraManual.caption = QStringLiteral("Create Manually");
    mnuServices.caption = QStringLiteral("Services List");
    mnuManual.caption = QStringLiteral("Manual Selection");
    cmdGeneric.caption = QStringLiteral("Build a New Contract");
    cmdAddServicetoBody.caption = QStringLiteral("Create Contract");
    Command2.caption = QStringLiteral("&Redo");
    cmdMenu.caption = QStringLiteral("Return to the &Menu");
    Label1[0].caption = QStringLiteral("Select Billing Frequency");
    Label1[1].caption = QStringLiteral("Select the Contract Duration");
    Label1[2].caption = kManualNote;
    Label1[3].caption = QStringLiteral("Enter a Service Description");
    Label1[4].caption = QStringLiteral("Enter the Price");
    Label1[5].caption = QStringLiteral("Use Microsoft Word or WordPad to alter or Print it.");
    Label1[6].caption = QStringLiteral("Customer");
    Label1[7].caption = QStringLiteral("Contractor");
    Label1[8].caption = QStringLiteral("Commencement Date");
    txtCustomerInfo.multiLine = true;
    txtCustomerInfo.locked = true;
    txtContractor.multiLine = true;
    txtContractor.locked = true;
    cmdAddServicetoBody.enabled = false;

    controls.add(QStringLiteral("lblCustomerName"), lblCustomerName);
    controls.add(QStringLiteral("lblCustomerTel"), lblCustomerTel);
    controls.add(QStringLiteral("txtCustomerInfo"), txtCustomerInfo);
    controls.add(QStringLiteral("txtContractor"), txtContractor);
    controls.add(QStringLiteral("lstFrequency"), lstFrequency);
    controls.add(QStringLiteral("cboDuration"), cboDuration);
    controls.add(QStringLiteral("Calendar1"), Calendar1);
    controls.add(QStringLiteral("ckRenew"), ckRenew);
    controls.add(QStringLiteral("fraServices"), fraServices);
    controls.add(QStringLiteral("cboServices"), cboServices);
    controls.add(QStringLiteral("cboPrices"), cboPrices);
    controls.add(QStringLiteral("fraManual"), fraManual);
    controls.add(QStringLiteral("txtService"), txtService);
    controls.add(QStringLiteral("txtPrice"), txtPrice);
    controls.add(QStringLiteral("mnuServices"), mnuServices);
    controls.add(QStringLiteral("mnuManual"), mnuManual);
    controls.add(QStringLiteral("cmdGeneric"), cmdGeneric);
    controls.add(QStringLiteral("cmdAddServicetoBody"), cmdAddServicetoBody);
    controls.add(QStringLiteral("Command2"), Command2);
    controls.add(QStringLiteral("cmdMenu"), cmdMenu);
    controls.add(QStringLiteral("Label1"), Label1);
}

void frmContract::Form_Activate() {
    EntryState();
}

void frmContract::Command2_Click() {
    EntryState();
}

void frmContract::EntryState() {
    setBody(QString());
    cmdAddServicetoBody.enabled = false;

    // The customer as the account screen shows it.
    if (auto* account = m_session.ScreenAs<frmNewCustomer>(ScreenId::frmNewCustomer)) {
        lblCustomerName.caption = vbTrim(account->txtCustomer[1].text);
        lblCustomerTel.caption = vbTrim(account->txtCustomer[6].text);
        const bool usa = account->UsaAddressMode;
        txtCustomerInfo.text = joinLines({account->txtCustomer[2].text, account->txtCustomer[3].text,
                                          cityLine(usa ? account->cboCity.text : account->txtAdd3.text,
                                                   usa ? account->cboStates.text : account->txtAdd4.text,
                                                   account->txtCustomer[5].text)});
    }
    const BusinessData& b = m_session.settings.business;
    txtContractor.text = joinLines(
        {b.companyName(), b.address1(), b.address2(), cityLine(b.city(), b.state(), b.postalCode())});

    lstFrequency.SetListIndex(-1);
    cboDuration.SetListIndex(-1);
    cboDuration.text.clear();
    Calendar1.value = m_session.today();
    ckRenew.value = 0;
    txtService.text.clear();
    txtPrice.text = currencytext::format(0);
    FillServices();
}

void frmContract::FillServices() {
    cboServices.Clear();
    cboPrices.Clear();
    const bool catalogue = m_session.disk.FileExists(ServiceRecord::kFileName);
    if (catalogue) {
        for (const ServiceRecord& s : ReadCatalogueFile<ServiceRecord>(m_session.disk)) {
            cboServices.AddItem(vbTrim(s.Description));
            cboPrices.AddItem(CurrencyForm(vbTrim(s.Charge)));
        }
        m_session.disk.CloseAllFiles();
    }
    fraServices.visible = catalogue;
    fraManual.visible = !catalogue;
    mnuServices.enabled = catalogue;
}

void frmContract::setBody(const QString& source) {
    txtBody = source;
    ++bodyRevision;
}

void frmContract::cmdMenu_Click() {
    Hide();
    m_session.ShowScreen(ScreenId::frmStartup);
}

void frmContract::mnuServices_Click() {
    if (!mnuServices.enabled) return;
    fraServices.visible = true;
    fraManual.visible = false;
}

void frmContract::mnuManual_Click() {
    fraServices.visible = false;
    fraManual.visible = true;
}

void frmContract::cboServices_Click() {
    cboPrices.SetListIndex(cboServices.listIndex);
}

void frmContract::cboPrices_Click() {
    cboServices.SetListIndex(cboPrices.listIndex);
}

void frmContract::txtPrice_GotFocus() {
    const auto v = currencytext::parseCurrency(txtPrice.text);
    if (v && *v == 0) txtPrice.text.clear();
}

void frmContract::txtPrice_LostFocus() {
    if (const auto v = currencytext::parseCurrency(txtPrice.text)) {
        txtPrice.text = currencytext::format(*v);
        return;
    }
    m_session.Beep();
    txtPrice.text = currencytext::format(0);
}

void frmContract::Calendar1_Change() {
    if (Calendar1.value < m_session.today())
        m_session.platform.dialogs.MsgBox(QStringLiteral("Your Calendar Selection is Invalid"));
}

QString frmContract::AccountNumber() const {
    if (auto* account = m_session.ScreenAs<frmNewCustomer>(ScreenId::frmNewCustomer))
        return vbTrim(account->txtCustomer[0].text);
    return QString();
}

} // namespace ostrel
