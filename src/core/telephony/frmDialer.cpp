#include "frmDialer.h"

#include "ModemProbe.h"
#include "platform/SerialPort.h"
#include "shell/Session.h"

#include <algorithm>

namespace ostrel {

namespace {
const QString kShowHelp = QStringLiteral("Show Help");
const QString kHideHelp = QStringLiteral("Hide Help");
const QString kLongDistancePrefix = QStringLiteral("1-");

enum SpeedDialerButton { Save = 0, CancelEntry = 1, DeleteEntry = 2, RestoreRecipient = 3, LoadCurrent = 4 };
} // namespace

frmDialer::frmDialer(Session& session, SerialPort& port)
    : Screen(QStringLiteral("frmDialer")), m_session(session), m_port(port) {
    caption = QStringLiteral("Call ...............");
    for (int i = 0; i < SpeedNumbers::kEntries; ++i)
        cmdDialer[i];
    for (int i = 0; i <= LoadCurrent; ++i)
        cmdSpeedDialer[i];
    for (int i = 0; i <= 4; ++i)
        Label2[i];
    txtDialer[0];
    txtDialer[1];
    LoadState();

    controls.add(QStringLiteral("lblName"), lblName);
    controls.add(QStringLiteral("lblNumber"), lblNumber);
    controls.add(QStringLiteral("lblStatus"), lblStatus);
    controls.add(QStringLiteral("lblHelp"), lblHelp);
    controls.add(QStringLiteral("Label2"), Label2);
    controls.add(QStringLiteral("Text1"), Text1);
    controls.add(QStringLiteral("txtDialer"), txtDialer);
    controls.add(QStringLiteral("cmdNewDial"), cmdNewDial);
    controls.add(QStringLiteral("cmdCancel"), cmdCancel);
    controls.add(QStringLiteral("cmdHangup"), cmdHangup);
    controls.add(QStringLiteral("cmdHelp"), cmdHelp);
    controls.add(QStringLiteral("cmdDialer"), cmdDialer);
    controls.add(QStringLiteral("cmdSpeedDialer"), cmdSpeedDialer);
    controls.add(QStringLiteral("ckDial1"), ckDial1);
    controls.add(QStringLiteral("fraSpeedDial"), fraSpeedDial);
    controls.add(QStringLiteral("fraHelp"), fraHelp);
    controls.add(QStringLiteral("Image2"), Image2);
}

// The screen as it is when first loaded; a call's end brings it back to this.
void frmDialer::LoadState() {
    lblName.caption.clear();
    lblName.toolTip = QStringLiteral("Customer that you are Calling");
    lblNumber.caption.clear();
    lblNumber.toolTip = QStringLiteral("Number that will be Dialled");
    lblStatus.caption = kReadyToDial;
    lblHelp.caption =
        QStringLiteral("Daisy-Chain a Telephone downstream from your Computers Modem") + u'\n' + u'\n' +
        QStringLiteral("1. Click Dial. The modem dials the number shown above.") + u'\n' +
        QStringLiteral(
            "2. When the status line asks for it, pick up the telephone receiver, then click the button "
            "to talk. The modem lets go of the line and the call is yours.") +
        u'\n' + QStringLiteral("3. Disconnect/Cancel hangs up the modem at any time.") + u'\n' + u'\n' +
        QStringLiteral("Speed Dial: click an empty button to store a name and number in it; click a filled "
                       "button to make it the number to call.");
    Label2[0].caption = QStringLiteral("Speed Dial Numbers");
    Label2[1].caption = QStringLiteral("Name");
    Label2[2].caption = QStringLiteral("Number");
    Label2[3].caption.clear();
    Label2[4].caption = QStringLiteral("Customer that you are Calling");
    Text1.text.clear();
    Text1.locked = true;
    Text1.toolTip = QStringLiteral("Modem");
    for (auto& [i, box] : txtDialer)
        box.text.clear();
    cmdNewDial.caption = QStringLiteral("&Dial");
    cmdCancel.caption = QStringLiteral("Pick up the receiver then &Click to Talk");
    cmdHangup.caption = QStringLiteral("D&isconnect/Cancel");
    cmdHelp.caption = kShowHelp;
    cmdSpeedDialer[Save].caption = QStringLiteral("&Save");
    cmdSpeedDialer[CancelEntry].caption = QStringLiteral("Ca&ncel");
    cmdSpeedDialer[DeleteEntry].caption = QStringLiteral("Delete Selected Speed Dial &No");
    cmdSpeedDialer[RestoreRecipient].caption = QStringLiteral("&Restore Original Call Recipient");
    cmdSpeedDialer[LoadCurrent].caption = QStringLiteral("&Load Current Player");
    for (auto& [i, button] : cmdDialer) {
        button.caption.clear();
        button.toolTip =
            QStringLiteral("Speed Dial %1: Click to Call, or to Store a Number when Empty").arg(i + 1);
    }
    ckDial1.caption = QStringLiteral("Dial a Prefix  1-");
    ckDial1.toolTip = QStringLiteral("Click for Long Distance Calls");
    ckDial1.value = 0;
    fraSpeedDial.caption = QStringLiteral("Speed Dial Entry");
    fraSpeedDial.visible = false;
    fraHelp.caption = QStringLiteral("Help");
    fraHelp.visible = false;
    Image2.visible = false;
    Image2.toolTip = QStringLiteral("Call in Progress");
    m_entries.clear();
    m_selected = 0;
    m_rememberedName.clear();
    m_rememberedNumber.clear();
    ModemReply.clear();
    ReadyState();
}

void frmDialer::ReadyState() {
    cmdSpeedDialer[DeleteEntry].enabled = false;
    cmdNewDial.enabled = true;
    cmdCancel.enabled = false;
    lblStatus.caption = kReadyToDial;
    CancelRequested = false;
    m_state = CallState::Ready;
}

void frmDialer::DialFor(const QString& name, const QString& number) {
    lblName.caption = name;
    lblNumber.caption = number;
    m_rememberedName = name;
    m_rememberedNumber = number;
    Show();
}

void frmDialer::Form_Activate() {
    fraHelp.visible = false;
    cmdHelp.caption = kShowHelp;
    ReadyState();
    Text1.text = m_session.modem.statusText;
    Label2[3].caption = ModemPortCaption(m_session.modem.foundPort);
    // The port the probe found, which is what Setup shows; a failure leaves it closed.
    if (!m_port.isOpen()) m_port.open(m_session.modem.foundPort);
    m_session.Guarded([&] { LoadSpeedDialEntries(); });
}

void frmDialer::LoadSpeedDialEntries() {
    // The captions follow whatever was read, also when the file stops the load part way.
    struct Captions {
        frmDialer& frm;
        ~Captions() {
            for (int i = 0; i < SpeedNumbers::kEntries; ++i)
                frm.cmdDialer[i].caption = frm.m_entries.names[i];
        }
    } captions{*this};
    LoadSpeedNumbers(m_session.disk, m_entries);
}

void frmDialer::SaveSpeedDialEntries() {
    SaveSpeedNumbers(m_session.disk, m_entries);
}

void frmDialer::ckDial1_Click() {
    if (ckDial1.checked())
        lblNumber.caption = kLongDistancePrefix + lblNumber.caption;
    else if (lblNumber.caption.startsWith(kLongDistancePrefix))
        lblNumber.caption.remove(0, kLongDistancePrefix.size());
}

void frmDialer::cmdDialer_Click(int index) {
    m_selected = index;
    m_rememberedName = lblName.caption;
    m_rememberedNumber = lblNumber.caption;
    cmdSpeedDialer[DeleteEntry].enabled = false;
    if (cmdDialer[index].caption.isEmpty()) {
        fraSpeedDial.visible = true;
        txtDialer[0].SetFocus();
    } else {
        lblName.caption = m_entries.names[index];
        lblNumber.caption = m_entries.numbers[index];
        cmdSpeedDialer[DeleteEntry].enabled = true;
    }
}

void frmDialer::cmdSpeedDialer_Click(int index) {
    switch (index) {
    case Save:
        m_entries.names[m_selected] = txtDialer[0].text;
        m_entries.numbers[m_selected] = txtDialer[1].text;
        // The button shows what it now holds, so it can be dialled at once.
        cmdDialer[m_selected].caption = m_entries.names[m_selected];
        // Keep the typed entry on screen when it could not be written.
        if (!m_session.Guarded([&] { SaveSpeedDialEntries(); })) return;
        cmdSpeedDialer_Click(CancelEntry);
        break;
    case CancelEntry:
        txtDialer[0].text.clear();
        txtDialer[1].text.clear();
        fraSpeedDial.visible = false;
        break;
    case DeleteEntry:
        DeleteSelectedEntry();
        break;
    case RestoreRecipient:
        lblName.caption = m_rememberedName;
        lblNumber.caption = m_rememberedNumber;
        break;
    case LoadCurrent:
        txtDialer[0].text = lblName.caption;
        txtDialer[1].text = lblNumber.caption;
        cmdSpeedDialer_Click(Save);
        break;
    default:
        break;
    }
}

void frmDialer::DeleteSelectedEntry() {
    const QString prompt = QStringLiteral("This will delete SpeedDial entry  ") +
                           m_entries.names[m_selected] + u'\n' + QStringLiteral("Are you Sure");
    if (m_session.platform.dialogs.MsgBox(prompt, vbYesNo, QStringLiteral("Delete Speed Dial")) != vbYes) {
        cmdSpeedDialer[DeleteEntry].enabled = false;
        return;
    }
    m_entries.names[m_selected].clear();
    m_entries.numbers[m_selected].clear();
    // Reloading closes up the gap the deleted entry left.
    m_session.Guarded([&] {
        SaveSpeedDialEntries();
        LoadSpeedDialEntries();
    });
}

void frmDialer::cmdHelp_Click() {
    fraHelp.visible = !fraHelp.visible;
    cmdHelp.caption = fraHelp.visible ? kHideHelp : kShowHelp;
}

void frmDialer::cmdNewDial_Click() {
    if (m_state != CallState::Ready) return;
    cmdNewDial.enabled = false;
    const QString number = lblNumber.caption;
    lblStatus.caption = kDialing + number;
    if (!m_port.isOpen()) {
        // Nothing to dial with: say so at once rather than wait out the time limit.
        ReadyState();
        lblStatus.caption = kModemNotDetected;
        return;
    }
    m_port.clearInput();
    ModemReply.clear();
    // The semicolon keeps the modem in command mode once it has dialled, so the telephone can take
    // the call over.
    m_port.write(HayesCommand(QStringLiteral("ATDT") + number + u';'));
    m_state = CallState::Dialing;
    Image2.visible = true;
    const quint64 call = ++m_call;
    if (showProgress) showProgress();

    int waited = 0;
    for (;;) {
        waited += std::max(1, m_port.wait(kDialPollMs));
        if (call != m_call) return; // ended while events ran
        if (!isVisible()) {
            EndCall();
            return;
        }
        if (m_port.bytesWaiting() >= kModemAnswerBytes) {
            ModemReply += QString::fromLatin1(m_port.readAll());
            if (ModemReply.contains(QLatin1String("OK"))) break;
        }
        if (CancelRequested) {
            EndCall();
            return;
        }
        if (waited >= dialTimeLimitMs) {
            // Hang up whatever the modem is doing; the screen stays so the user can read why.
            m_port.write(HayesCommand(QStringLiteral("ATH")));
            ++m_call;
            ReadyState();
            Image2.visible = false;
            lblStatus.caption = kDialTimedOut;
            return;
        }
    }
    m_state = CallState::WaitingForPickup;
    lblStatus.caption = kPickupReceiver;
    cmdCancel.enabled = true;
    cmdCancel.SetFocus();
}

void frmDialer::cmdCancel_Click() {
    CancelRequested = true;
    EndCall();
}

void frmDialer::cmdHangup_Click() {
    EndCall();
}

void frmDialer::EndCall() {
    ++m_call;
    CancelRequested = false;
    ReadyState();
    m_port.write(HayesCommand(QStringLiteral("ATH")));
    m_port.close();
    Image2.visible = false;
    // The screen goes as if unloaded: the next opening starts afresh and opens the port again.
    LoadState();
    Hide();
}

} // namespace ostrel
