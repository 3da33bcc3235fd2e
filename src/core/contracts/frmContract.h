#pragma once

#include "ContractMerge.h"
#include "controls/Controls.h"
#include "controls/PickerControls.h"
#include "controls/Screen.h"
#include "platform/ControlRegistry.h"

#include <QString>

namespace ostrel {

class Session;

inline const QString kGenericContractFile = QStringLiteral("/GenericContract.rtf");
// The folder of the stored contracts, and one account's contract in it.
inline const QString kContractsFolder = QStringLiteral("\\Templates\\Contracts");
QString contractFileName(const QString& accountNumber); // "\Templates\Contracts\Contract - <acct>.rtf"

// The contract screen: the customer of the account screen, the owner's name and address, the
// billing frequency, the duration, the commencement date, renewal, and a service with its price,
// merged into the template and stored as one rich-text file per account.
class frmContract : public Screen {
public:
    static inline const QString kFrequencies[] = {QStringLiteral("Monthly"), QStringLiteral("Quarterly"),
                                                  QStringLiteral("Semi-Annually"), QStringLiteral("Annually")};
    static inline const QString kDurations[] = {QStringLiteral("1 Month"), QStringLiteral("3 Months"),
                                                QStringLiteral("6 Months"), QStringLiteral("1 Year")};

    // The document's paragraphs stand 1 inch from the left and 0.75 inch from the right.
    static constexpr int kBodyIndent = 1440;
    static constexpr int kBodyRightMargin = 1080;

    explicit frmContract(Session& session);

    // An amount in the currency form; a text that is no amount stays as typed.
    static QString CurrencyForm(const QString& text);

    // Each time the screen comes up it starts from the entry state for the account screen's customer.
    void Form_Activate() override;

    void cmdGeneric_Click();
    void cmdAddServicetoBody_Click();
    void Command2_Click();
    void cmdMenu_Click();
    void cboServices_Click();
    void cboPrices_Click();
    void txtPrice_GotFocus();
    void txtPrice_LostFocus();
    void Calendar1_Change();
    void mnuServices_Click();
    void mnuManual_Click();

    // The document in work, as rich-text source; the view shows it formatted. bodyRevision goes
    // up with every change, so a view knows when to show it again.
    QString txtBody;
    int bodyRevision = 0;

    Label lblCustomerName;
    Label lblCustomerTel;
    TextBox txtCustomerInfo;
    TextBox txtContractor;
    ListBox lstFrequency;
    ComboBox cboDuration;
    DatePicker Calendar1;
    CheckBox ckRenew;
    Frame fraServices;
    ComboBox cboServices;
    ComboBox cboPrices;
    Frame fraManual;
    TextBox txtService;
    TextBox txtPrice;
    MenuItem mnuServices;
    MenuItem mnuManual;
    CommandButton cmdGeneric;
    CommandButton cmdAddServicetoBody;
    CommandButton Command2;
    CommandButton cmdMenu;
    // 0 frequency, 1 duration, 2 the note under it, 3 service description, 4 price, 5 the document,
    // 6 customer, 7 contractor, 8 commencement date.
    ControlArray<Label> Label1;

    ControlRegistry controls;

private:
    void EntryState();
    void FillServices();
    void LoadTemplate();
    void setBody(const QString& source);
    ContractValues Values() const;
    QString AccountNumber() const;
    void ShowContractCreated(const QString& account);
    void ReportUnplaced(const MergeResult& result);

    Session& m_session;
};

} // namespace ostrel
