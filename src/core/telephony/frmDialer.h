#pragma once

#include "SpeedNumbers.h"
#include "controls/Controls.h"
#include "controls/Screen.h"
#include "platform/ControlRegistry.h"

#include <QString>

#include <functional>

namespace ostrel {

class Session;
class SerialPort;

// The speed dialer: dials the recipient through the modem and hands the call to the telephone on the
// same line. Ten speed dial entries are kept in "/SpeedNumbers.txt". Ending a call closes the port
// and puts the screen back as it was first loaded, hidden.
class frmDialer : public Screen {
public:
    // How long the dial waits for the modem's "OK" before it gives up and hangs up.
    static constexpr int kDialTimeLimitMs = 30000;
    // The pause between two looks at the modem's answer; events run meanwhile.
    static constexpr int kDialPollMs = 50;

    frmDialer(Session& session, SerialPort& port);

    // Opens the dialer for a person and number, as the account and schedule screens do: the two
    // become the recipient, which "Restore Original Call Recipient" brings back, and the screen is
    // shown (which opens the modem's port and loads the speed dial entries).
    void DialFor(const QString& name, const QString& number);

    void Form_Activate() override;
    void cmdNewDial_Click();
    void cmdCancel_Click();
    void cmdHangup_Click();
    void cmdDialer_Click(int index);
    void cmdSpeedDialer_Click(int index);
    void cmdHelp_Click();
    void ckDial1_Click();

    enum class CallState { Ready, Dialing, WaitingForPickup };
    CallState callState() const { return m_state; }
    int selectedEntry() const { return m_selected; }
    const SpeedNumbers& speedNumbers() const { return m_entries; }

    Label lblName, lblNumber, lblStatus, lblHelp;
    ControlArray<Label> Label2;
    TextBox Text1;
    ControlArray<TextBox> txtDialer;
    CommandButton cmdNewDial, cmdCancel, cmdHangup, cmdHelp;
    ControlArray<CommandButton> cmdDialer;
    ControlArray<CommandButton> cmdSpeedDialer;
    CheckBox ckDial1;
    Frame fraSpeedDial, fraHelp;
    Image Image2;

    bool CancelRequested = false;
    QString ModemReply;

    // The dial's time limit; tests shorten it.
    int dialTimeLimitMs = kDialTimeLimitMs;
    // Set by the view: shows the models' state on screen while the dial waits.
    std::function<void()> showProgress;

    ControlRegistry controls;

private:
    void LoadState();
    void ReadyState();
    void EndCall();
    void LoadSpeedDialEntries();
    void SaveSpeedDialEntries();
    void DeleteSelectedEntry();

    Session& m_session;
    SerialPort& m_port;
    SpeedNumbers m_entries;
    int m_selected = 0;
    QString m_rememberedName;
    QString m_rememberedNumber;
    CallState m_state = CallState::Ready;
    // Counts calls, so a dial that waits can tell that its call was ended meanwhile.
    quint64 m_call = 0;
};

// The texts the dialer shows on its status line.
inline const QString kReadyToDial = QStringLiteral("Ready to Dial......");
inline const QString kDialing = QStringLiteral("Dialing..... ");
inline const QString kPickupReceiver = QStringLiteral("Pickup Receiver - Then Click Hangup");
inline const QString kDialTimedOut = QStringLiteral("No Reply from the Modem - Dialing Timed Out");

} // namespace ostrel
