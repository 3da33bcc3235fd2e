// The account boxes' keys and focus, the duplicate test, deletion and dialing.
#include "CustomerNames.h"
#include "frmNewCustomer.h"

#include "shell/KeyFilters.h"
#include "shell/Session.h"
#include "util/VbText.h"

namespace ostrel {

namespace {
bool namesAFile(int index) {
    return index == 0 || index == 6;
}
} // namespace

void frmNewCustomer::txtCustomer_GotFocus(int index) {
    // A box left holding a "Must ..." hint is emptied for typing.
    if ((index == 0 || index == 1 || index == 6) && txtCustomer[index].text.contains(QStringLiteral("Must")))
        txtCustomer[index].text.clear();
}

void frmNewCustomer::txtCustomer_KeyPress(int index, int& keyAscii) {
    const KeyFilterEnv env{m_session.platform.dialogs, m_session.settings.program.alarms()};
    TextBox& box = txtCustomer[index];
    keyAscii = QuoteKeyFilter(keyAscii, env, &box);
    if (namesAFile(index)) keyAscii = FileNameKeyFilter(keyAscii, box.text, env, &box);
}

void frmNewCustomer::txtCustomer_LostFocus(int index) {
    if (index != 0 || CurrentRecord == 0 || txtCustomer[0].text.isEmpty()) return;
    if (!m_store.FindAccountElsewhere(txtCustomer[0].text, CurrentRecord)) return;
    const MsgBoxResult answer = m_session.platform.dialogs.MsgBox(
        QStringLiteral("The Account Number is a duplicate") + u'\n' +
            QStringLiteral("Click Yes to Replace it") + u'\n' + QStringLiteral("Enter a different Number"),
        vbYesNo, QStringLiteral("Duplicate Account Number"));
    if (answer == vbYes) {
        txtCustomer[0].text.clear();
        Focus(txtCustomer[0]);
        m_session.disk.CloseAllFiles();
    }
}

void frmNewCustomer::mnuDelete_Click() {
    if (CustomerCount < 1) return;
    if (m_session.platform.dialogs.MsgBox(QStringLiteral("Delete this Customer"), vbYesNo) != vbYes) {
        Focus(txtCustomer[0]);
        return;
    }
    CustomerCount = m_store.DeleteCustomer(CurrentRecord, txtCustomer[0].text, CustomerCount);
    CurrentRecord = 1;
    FillLists();
    // Record 1 is shown, so that the next save does not write the deleted customer over it.
    if (m_store.CustomerCount() >= 1) {
        LoadAccount();
    } else {
        ClearBoxes();
        txtCustomer[11].text.clear();
    }
    Focus(txtCustomer[0]);
}

QString frmNewCustomer::DialName() const {
    const QString name = vbTrim(txtCustomer[1].text);
    if (!name.isEmpty()) return name;
    return ComposeName(cboTitle.text, txtCustomer[8].text, txtCustomer[9].text, txtCustomer[10].text);
}

void frmNewCustomer::Image1_Click(int index) {
    if (index != 1 || !Image1[1].enabled || !m_session.modem.detected || !m_session.dial) return;
    const QString phone = vbTrim(txtCustomer[6].text);
    const QString cell = vbTrim(txtCustomer[11].text);
    QString number;
    if (!phone.isEmpty() && !cell.isEmpty()) {
        const MsgBoxResult answer = m_session.platform.dialogs.MsgBox(
            QStringLiteral("Click YES to dial Phone,") + u'\n' + QStringLiteral("Click NO to dial Cell"),
            vbYesNo, QStringLiteral("Select Phone or Cell"));
        number = answer == vbYes ? phone : cell;
    } else if (!phone.isEmpty()) {
        number = phone;
    } else {
        number = cell; // or none: the dialer opens empty
    }
    m_session.dial(DialName(), number);
}

} // namespace ostrel
