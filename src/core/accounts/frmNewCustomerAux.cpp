// The aux data frame: six free-text boxes per customer under six shared headings, and the big editor.
#include "AuxData.h"
#include "frmNewCustomer.h"

#include "shell/Session.h"
#include "util/VbText.h"

namespace ostrel {

QString frmNewCustomer::AuxAccount() const {
    return vbTrim(txtCustomer[0].text);
}

QStringList frmNewCustomer::AuxTexts() const {
    QStringList texts;
    for (int k = 0; k < kAuxBoxes; ++k)
        texts << txtAux[k].text;
    return texts;
}

void frmNewCustomer::LoadAuxData() {
    if (ckSaveAux.checked()) return; // the boxes are kept from one account to the next
    for (int k = 0; k < kAuxBoxes; ++k)
        txtAux[k].text.clear();
    const QStringList boxes = AuxData::LoadAuxData(m_session.disk, AuxAccount());
    for (int k = 0; k < kAuxBoxes; ++k)
        txtAux[k].text = boxes.value(k);
}

void frmNewCustomer::SaveAuxData() {
    AuxData::SaveAuxData(m_session.disk, AuxAccount(), AuxTexts());
}

void frmNewCustomer::SetAuxAccountLabel() {
    if (accountType() == kIndividual)
        lblAccount.caption = cboTitle.text + u' ' + txtCustomer[8].text + u' ' + txtCustomer[10].text;
    else
        lblAccount.caption = txtCustomer[1].text;
}

void frmNewCustomer::mnuAux_Click() {
    fraAux.visible = !fraAux.visible;
    if (fraAux.visible) SetAuxAccountLabel();
}

void frmNewCustomer::MoveAux(int step) {
    SaveAuxData();
    if (step > 0 && CurrentRecord < CustomerCount) ++CurrentRecord;
    if (step < 0 && CurrentRecord > 1) --CurrentRecord;
    LoadAccount();
    SetAuxAccountLabel();
}

void frmNewCustomer::cmdSaveAux_Click(int index) {
    switch (index) {
    case 0: {
        QStringList headings;
        for (int k = 0; k < kAuxBoxes; ++k)
            headings << txtHeading[k].text;
        AuxData::SaveAuxHeadings(m_session.disk, headings);
        break;
    }
    case 2:
        SaveAuxData();
        fraAux.visible = false;
        break;
    case 3:
        LoadAuxData();
        break;
    case 4:
        txtAux[CurrentAuxBox].text = txtBig.text;
        fraBig.visible = false;
        break;
    case 5:
        txtBig.text.clear();
        break;
    case 6:
        txtBig.text = txtAux[CurrentAuxBox].text;
        break;
    case 7:
        MoveAux(+1);
        break;
    case 8:
        MoveAux(-1);
        break;
    default:
        break;
    }
}

void frmNewCustomer::txtAux_DblClick(int index) {
    if (index < 0 || index >= kAuxBoxes) return;
    CurrentAuxBox = static_cast<qint16>(index);
    txtBig.text = txtAux[index].text;
    fraBig.visible = true;
    lblEditing.caption = QStringLiteral("Editing Data Box # ") + QString::number(index + 1) +
                         QStringLiteral(" - ") + txtHeading[index].text + QStringLiteral(" - for ") +
                         lblAccount.caption;
    Focus(txtBig);
}

void frmNewCustomer::txtHeading_DblClick(int index) {
    if (index >= 0 && index < kAuxBoxes) txtHeading[index].text.clear();
}

void frmNewCustomer::lblClear_Click(int index) {
    // The label says what a user expects of it.
    if (index >= 0 && index < kAuxBoxes) txtAux[index].text.clear();
}

} // namespace ostrel
