#include "frmContract.h"

#include "RtfText.h"
#include "shell/Session.h"
#include "store/Cp1252.h"
#include "store/TextStatements.h"
#include "util/VbText.h"
#include "store/LocaleText.h"

namespace ostrel {

namespace {

QString shortDate(const QDate& d) {
    return ShortDateText(d);
}

} // namespace

void frmContract::cmdGeneric_Click() {
    const QString account = AccountNumber();
    if (m_session.disk.FileExists(contractFileName(account))) {
        const MsgBoxResult answer = m_session.platform.dialogs.MsgBox(
            QStringLiteral("A Contract Exists for this Account") + u'\n' +
                QStringLiteral("Click Yes to Delete it and create a new Contract"),
            vbYesNo, QStringLiteral("Replace Existing Contract"));
        // The old contract stays until the new one replaces it, so leaving now loses nothing.
        if (answer == vbNo) {
            cmdMenu_Click();
            return;
        }
    }
    if (!m_session.disk.FileExists(kGenericContractFile)) {
        m_session.Beep();
        m_session.platform.dialogs.MsgBox(QStringLiteral("The Generic Contract File could not be Found") + u'\n' +
                                          QStringLiteral("Contact Norlavex for a Replacement"));
        return;
    }
    LoadTemplate();
}

void frmContract::LoadTemplate() {
    cmdAddServicetoBody.enabled = true;
    Calendar1.value = m_session.today();
    const TextReader file = m_session.disk.ReadTextFile(kGenericContractFile);
    // The whole document takes the body margins.
    setBody(rtf::setParagraphMargins(cp1252::decode(file.bytes()), kBodyIndent, kBodyRightMargin));
}

ContractValues frmContract::Values() const {
    const bool fromServices = fraServices.visible;
    const QString cost = CurrencyForm(fromServices ? cboPrices.List(cboPrices.listIndex) : txtPrice.text);
    const QString service = fromServices ? cboServices.List(cboServices.listIndex) : txtService.text;
    const std::optional<QDate> ends = TerminationDate(Calendar1.value, cboDuration.listIndex);
    ContractValues v;
    v.serviceLine = service + QStringLiteral(" - ") + cost;
    v.fields = {
        {ContractField::ContractorName, m_session.settings.business.companyName()},
        {ContractField::UndersignedCustomer, lblCustomerName.caption},
        {ContractField::CreationDate, shortDate(m_session.today())},
        {ContractField::Terms, cboDuration.text},
        {ContractField::Commencing, shortDate(Calendar1.value)},
        {ContractField::Terminations, ends ? shortDate(*ends) : kOpenTerminationDate},
        {ContractField::Frequency, lstFrequency.List(lstFrequency.listIndex)},
        {ContractField::Cost, cost},
        {ContractField::Renews, ckRenew.checked() ? QStringLiteral("automatically Renew")
                                                  : QStringLiteral("not automatically Renew")},
        {ContractField::ContractorAddress, txtContractor.text},
        {ContractField::CustomerAddress, txtCustomerInfo.text},
    };
    return v;
}

void frmContract::cmdAddServicetoBody_Click() {
    if (!cmdAddServicetoBody.enabled) return;
    const QString account = AccountNumber();
    if (account.contains(u'/') || account.contains(u'\\')) {
        m_session.ShowMessage(QStringLiteral("The Account Number \"") + account +
                                  QStringLiteral("\" holds a separator, so it cannot name the contract's file.") +
                                  u'\n' + QStringLiteral("Nothing was saved."),
                              QStringLiteral("Contract Not Created"));
        return;
    }
    const MergeResult merged = MergeContract(txtBody, Values());
    if (!merged.ok) {
        ReportUnplaced(merged);
        return;
    }
    setBody(merged.source);
    cmdAddServicetoBody.enabled = false;
    m_session.disk.MakeDirectoryIfAbsent(QStringLiteral("\\Templates"));
    m_session.disk.MakeDirectoryIfAbsent(kContractsFolder);
    TextWriter out;
    out.print(txtBody.trimmed());
    m_session.disk.ReplaceTextFile(contractFileName(account), out);
    ShowContractCreated(account);
}

void frmContract::ReportUnplaced(const MergeResult& result) {
    const QString word = placeholderWord(*result.unplaced);
    m_session.ShowMessage(QStringLiteral("The value for ") + word + QStringLiteral(", \"") + result.unplacedValue +
                              QStringLiteral("\", holds the word ") + word +
                              QStringLiteral(" itself, so it cannot be placed in the Contract.") + u'\n' +
                              QStringLiteral("Change it and click Create Contract again. Nothing was saved."),
                          QStringLiteral("Contract Not Created"));
}

void frmContract::ShowContractCreated(const QString& account) {
    m_session.platform.dialogs.MsgBox(
        QStringLiteral("The Contract has been Created") + u'\n' +
            QStringLiteral("You can modify and Print it Using MicroSoft Word or WordPad") + u'\n' +
            QStringLiteral("It is named Contract - ") + account + QStringLiteral(".rtf and is Located in ") + u'\n' +
            QStringLiteral("Directory {Hard Drive}/Norlavex/Templates/Contracts") + u'\n' +
            QStringLiteral("Do not create another Contract for this Customer") + u'\n' +
            QStringLiteral("until you have printed this Contract"),
        vbOKOnly, QStringLiteral("Contract Created"));
}

} // namespace ostrel
