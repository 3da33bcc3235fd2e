#pragma once

#include "CustomerStore.h"
#include "controls/Controls.h"
#include "controls/Screen.h"
#include "platform/ControlRegistry.h"

#include <QString>
#include <QStringList>

namespace ostrel {

class Session;

// The account screen: one current customer at a time, whose boxes are the working copy. Every move
// to another customer saves the boxes first; the routines of the menu that need a customer pass
// through here and take the customer buffer with them.
class frmNewCustomer : public Screen {
public:
    static inline const QString kBusiness = QStringLiteral("Business");
    static inline const QString kIndividual = QStringLiteral("Individual");
    // txtCustomer has no box 4.
    static constexpr int kCustomerBoxes[] = {0, 1, 2, 3, 5, 6, 7, 8, 9, 10, 11};
    static constexpr int kSearchOptions = 9;
    static constexpr int kAuxBoxes = 6;
    // The columns of fgCustomersFound.
    static constexpr int kFoundName = 0;
    static constexpr int kFoundTelephone = 1;
    static constexpr int kFoundRecord = 2;

    frmNewCustomer(Session& session, CustomerBuffers& buffers);

    // What loading the screen does once: record 1, the titles, the state codes.
    void Load() override;
    void Form_Activate() override;

    // Shared routines.
    void LoadAccount();
    void SaveAccount();
    void NewAccount(const QString& telephone);
    void FillLists();

    // Events.
    void cmdAcctType_Click();
    void mnuAdd_Click();
    void cmdNew_Click() { mnuAdd_Click(); }
    void cmdCustomer_Click(int index);
    void cmdNav_Click(int index);
    void Command1_Click(int index);
    void cboAccounts_Click();
    void cboAccounts_Change();
    void cboAccounts_KeyDown(int& keyCode, int shift);
    void cboAccounts_LostFocus();
    void cmdStartSearch_Click();
    void cmdClearSearch_Click();
    void cmdHideSearch_Click();
    void optSearch_Click(int index);
    void mnuPrint_Click();
    void fgCustomersFound_Click();
    void mnuSelect_Click();
    void cmdRetry_Click();
    void txtCustomer_GotFocus(int index);
    void txtCustomer_LostFocus(int index);
    void txtCustomer_KeyPress(int index, int& keyAscii);
    void mnuDelete_Click();
    void Image1_Click(int index);
    void mnuAux_Click();
    void cmdSaveAux_Click(int index);
    void txtAux_DblClick(int index);
    void txtHeading_DblClick(int index);
    void lblClear_Click(int index);

    // Screen state.
    qint32 CurrentRecord = 1;
    qint32 CustomerCount = 0;
    bool SaveSucceeded = true;
    bool UsaAddressMode = true;
    bool CompletionGuard = false;
    qint16 CurrentAuxBox = 0;
    qint16 CustomerReserved = 0; // read with each customer and otherwise unused

    // The part of cboAccounts' text that the type-ahead selected, for the view to show selected.
    int cboAccountsSelStart = 0;
    int cboAccountsSelLength = 0;
    // Set by a click in the results grid: the view pops up mnupopup.
    bool popupMenuRequested = false;

    // Controls.
    ControlArray<TextBox> txtCustomer;
    ControlArray<Label> lblCustomer; // the caption beside each txtCustomer box
    ComboBox cboTitle, cboCity, cboStates, cboAssignments, cboAccounts;
    Label lblTitle, lblCity, lblState, lblAdd3, lblAdd4, lblAssignments;
    TextBox txtAdd3, txtAdd4;
    Label lbLType;
    CommandButton cmdAcctType;
    Frame fraUSAddress, fraIntAddress;
    ControlArray<CommandButton> cmdNav;
    ControlArray<CommandButton> Command1;
    ControlArray<CommandButton> cmdCustomer; // 0 Menu, 1 Select, 13 Cancel Add New
    CommandButton cmdNew;
    ControlArray<Image> Image1; // 1: dial the account's telephone or cell
    MenuItem mnuAdd, mnuDelete, mnuAux, mnuPrint;
    MenuItem mnupopup, mnuSelect;

    Frame fraSearch;
    Label lblSearchfor;
    TextBox txtSearchfor;
    ControlArray<OptionButton> optSearch;
    CommandButton cmdStartSearch, cmdClearSearch, cmdHideSearch;

    Frame fraCustomersFound;
    Grid fgCustomersFound;
    CommandButton cmdRetry;

    Frame fraAux;
    Label lblAccount, lblHeadings;
    ControlArray<TextBox> txtHeading;
    ControlArray<TextBox> txtAux;
    ControlArray<Label> lblClear;
    CheckBox ckSaveAux;
    ControlArray<CommandButton> cmdSaveAux;
    Frame fraBig;
    Label lblEditing;
    TextBox txtBig;

    ControlRegistry controls;

private:
    QString accountType() const { return lbLType.caption; }
    void ApplyLayout(const QString& type);
    void ShowPersonFields(bool shown);
    void ShowNameBox(bool shown);
    void ClearBoxes();
    void SetNavigationEnabled(bool enabled);
    void Focus(Control& control);
    void SetCombo(ComboBox& combo, const QString& text);
    void SelectAssignment(qint16 assigned);
    void FillBufferFromBoxes();
    void AddCityIfNew(const QString& city);
    void ShowFound(const QVector<CustomerSearchHit>& hits);
    bool ShowingAdd() const { return cmdCustomer[13].visible; }
    void CancelAdd();
    void LeaveForRoutine(int index);
    void SetAccountsText(const QString& text);
    void LoadAuxData();
    void SaveAuxData();
    QStringList AuxTexts() const;
    QString AuxAccount() const;
    void SetAuxAccountLabel();
    void MoveAux(int step);
    QString DialName() const;
    void Box(const QString& prompt, const QString& title = QString());

    Session& m_session;
    CustomerBuffers& m_buffers;
    CustomerStore m_store;
};

} // namespace ostrel
