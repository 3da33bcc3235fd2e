#include "FakePlatform.h"
#include "ScriptedSerialPort.h"
#include "TestDataRoot.h"
#include "shell/Session.h"
#include "telephony/LoadPhoneSettings.h"
#include "telephony/frmDialer.h"

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::test;

namespace {

// A started program with the dialer among its screens; the modem sits on port 3 unless a test says
// otherwise before start().
struct DialerCall : ::testing::Test {
    static constexpr int kPort = 3;

    void start(ScriptedDevice modem = ScriptedDevice::modem()) {
        machine.attach(kPort, modem);
        LoadPhoneSettings(session, port);
        machine.settle(); // the user opens the dialer well after start-up
    }
    void open() { dialer.DialFor(QStringLiteral("Jane Roe"), QStringLiteral("217-555-0100")); }
    QByteArray lastCommand() const {
        const QList<QByteArray> all = machine.received(kPort);
        return all.isEmpty() ? QByteArray() : all.last();
    }

    TestDataRoot t;
    ScriptedSerialMachine machine;
    ScriptedSerialPort port{machine};
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmDialer& dialer = session.AddScreen(ScreenId::frmDialer, std::make_unique<frmDialer>(session, port));
};

} // namespace

TEST_F(DialerCall, CaptionsAreThoseOfTheScreen) {
    EXPECT_EQ(dialer.caption, "Call ...............");
    EXPECT_EQ(dialer.cmdNewDial.caption, "&Dial");
    EXPECT_EQ(dialer.cmdCancel.caption, "Pick up the receiver then &Click to Talk");
    EXPECT_EQ(dialer.cmdHangup.caption, "D&isconnect/Cancel");
    EXPECT_EQ(dialer.cmdSpeedDialer[0].caption, "&Save");
    EXPECT_EQ(dialer.cmdSpeedDialer[1].caption, "Ca&ncel");
    EXPECT_EQ(dialer.cmdSpeedDialer[2].caption, "Delete Selected Speed Dial &No");
    EXPECT_EQ(dialer.cmdSpeedDialer[3].caption, "&Restore Original Call Recipient");
    EXPECT_EQ(dialer.cmdSpeedDialer[4].caption, "&Load Current Player");
    EXPECT_EQ(dialer.cmdHelp.caption, "Show Help");
    EXPECT_EQ(dialer.ckDial1.caption, "Dial a Prefix  1-");
    EXPECT_EQ(dialer.ckDial1.toolTip, "Click for Long Distance Calls");
    EXPECT_EQ(dialer.lblName.toolTip, "Customer that you are Calling");
    EXPECT_EQ(dialer.cmdDialer.size(), 10);
}

TEST_F(DialerCall, DialForFillsTheRecipientShowsTheScreenAndOpensThePort) {
    start();
    port.close();
    open();
    EXPECT_TRUE(dialer.isVisible());
    EXPECT_EQ(dialer.lblName.caption, "Jane Roe");
    EXPECT_EQ(dialer.lblNumber.caption, "217-555-0100");
    EXPECT_TRUE(port.isOpen());
    EXPECT_EQ(port.port(), kPort);
    EXPECT_EQ(dialer.Text1.text, "Your Modem Comm Port Is 3.");
    EXPECT_EQ(dialer.Label2[3].caption, "COM Port # 3");
}

TEST_F(DialerCall, ActivationSetsTheReadyState) {
    start();
    dialer.CancelRequested = true;
    dialer.fraHelp.visible = true;
    open();
    EXPECT_FALSE(dialer.fraHelp.visible);
    EXPECT_FALSE(dialer.cmdSpeedDialer[2].enabled);
    EXPECT_TRUE(dialer.cmdNewDial.enabled);
    EXPECT_FALSE(dialer.cmdCancel.enabled);
    EXPECT_EQ(dialer.lblStatus.caption, "Ready to Dial......");
    EXPECT_FALSE(dialer.CancelRequested);
}

TEST_F(DialerCall, HelpButtonTogglesTheHelpAndItsCaption) {
    start();
    open();
    dialer.cmdHelp_Click();
    EXPECT_TRUE(dialer.fraHelp.visible);
    EXPECT_EQ(dialer.cmdHelp.caption, "Hide Help");
    dialer.cmdHelp_Click();
    EXPECT_FALSE(dialer.fraHelp.visible);
    EXPECT_EQ(dialer.cmdHelp.caption, "Show Help");
}

TEST_F(DialerCall, DialSendsTheNumberWithASemicolonAndWaitsForOk) {
    start();
    open();
    QStringList seen;
    dialer.showProgress = [&] { seen << dialer.lblStatus.caption; };
    machine.duringWait = [&](int) { seen << dialer.lblStatus.caption; };
    dialer.cmdNewDial_Click();
    EXPECT_EQ(lastCommand(), QByteArray("ATDT217-555-0100;\r"));
    ASSERT_FALSE(seen.isEmpty());
    EXPECT_EQ(seen.first(), "Dialing..... 217-555-0100");
    EXPECT_EQ(seen.last(), "Dialing..... 217-555-0100");
    EXPECT_EQ(dialer.lblStatus.caption, "Pickup Receiver - Then Click Hangup");
    EXPECT_TRUE(dialer.ModemReply.contains("OK"));
    EXPECT_FALSE(dialer.cmdNewDial.enabled);
    EXPECT_TRUE(dialer.cmdCancel.enabled);
    EXPECT_TRUE(dialer.cmdCancel.focusRequested);
    EXPECT_TRUE(dialer.Image2.visible);
    EXPECT_EQ(dialer.callState(), frmDialer::CallState::WaitingForPickup);
    EXPECT_GE(machine.now(), ScriptedDevice().dialDelayMs);
}

TEST_F(DialerCall, OldInputIsDroppedBeforeDialing) {
    start();
    open();
    port.write("AT\r"); // an answer left over from before
    machine.settle();
    ASSERT_GT(port.bytesWaiting(), 0);
    dialer.dialTimeLimitMs = 1000;
    machine.line(kPort)->device.answersDial = false; // the dial itself never gets an answer
    dialer.cmdNewDial_Click();
    EXPECT_EQ(dialer.lblStatus.caption, "No Reply from the Modem - Dialing Timed Out");
    EXPECT_FALSE(dialer.ModemReply.contains("OK"));
}

TEST_F(DialerCall, ThePrefixIsDialled) {
    start();
    open();
    dialer.ckDial1.value = 1;
    dialer.ckDial1_Click();
    dialer.cmdNewDial_Click();
    EXPECT_EQ(lastCommand(), QByteArray("ATDT1-217-555-0100;\r"));
}

TEST_F(DialerCall, TalkButtonHangsUpTheModemClosesThePortAndPutsTheScreenAway) {
    start();
    open();
    dialer.ckDial1.value = 1;
    dialer.ckDial1_Click();
    dialer.cmdNewDial_Click();
    ASSERT_EQ(dialer.callState(), frmDialer::CallState::WaitingForPickup);
    dialer.cmdCancel_Click();
    EXPECT_EQ(lastCommand(), QByteArray("ATH\r"));
    EXPECT_FALSE(port.isOpen());
    EXPECT_FALSE(dialer.isVisible());
    EXPECT_FALSE(dialer.CancelRequested);
    EXPECT_FALSE(dialer.Image2.visible);
    EXPECT_EQ(dialer.callState(), frmDialer::CallState::Ready);
    EXPECT_EQ(dialer.lblStatus.caption, "Ready to Dial......");
    // As first loaded.
    EXPECT_EQ(dialer.ckDial1.value, 0);
    EXPECT_TRUE(dialer.lblName.caption.isEmpty());
    EXPECT_TRUE(dialer.lblNumber.caption.isEmpty());
}

TEST_F(DialerCall, TheNextOpeningOpensThePortAgain) {
    start();
    open();
    dialer.cmdHangup_Click();
    ASSERT_FALSE(port.isOpen());
    const int opensBefore = machine.opens(kPort);
    dialer.DialFor(QStringLiteral("John Doe"), QStringLiteral("555-0199"));
    EXPECT_TRUE(port.isOpen());
    EXPECT_EQ(machine.opens(kPort), opensBefore + 1);
    EXPECT_EQ(dialer.Text1.text, "Your Modem Comm Port Is 3.");
    dialer.cmdNewDial_Click();
    EXPECT_EQ(dialer.lblStatus.caption, "Pickup Receiver - Then Click Hangup");
}

TEST_F(DialerCall, DisconnectWhileDialingEndsTheWaitAndTheCall) {
    start();
    open();
    machine.duringWait = [&](int now) {
        if (now >= 1000 && dialer.callState() == frmDialer::CallState::Dialing) dialer.cmdHangup_Click();
    };
    dialer.cmdNewDial_Click();
    EXPECT_LT(machine.now(), ScriptedDevice().dialDelayMs);
    EXPECT_EQ(lastCommand(), QByteArray("ATH\r"));
    EXPECT_FALSE(port.isOpen());
    EXPECT_FALSE(dialer.isVisible());
    EXPECT_EQ(dialer.lblStatus.caption, "Ready to Dial......");
}

TEST_F(DialerCall, AModemThatNeverAnswersTimesOutAndSaysSo) {
    ScriptedDevice silentDial = ScriptedDevice::modem();
    silentDial.answersDial = false;
    start(silentDial);
    open();
    dialer.cmdNewDial_Click();
    EXPECT_EQ(dialer.lblStatus.caption, "No Reply from the Modem - Dialing Timed Out");
    EXPECT_GE(machine.now(), frmDialer::kDialTimeLimitMs);
    EXPECT_LT(machine.now(), frmDialer::kDialTimeLimitMs + 1000);
    EXPECT_EQ(lastCommand(), QByteArray("ATH\r"));
    // Ready for another try, the screen and port still there.
    EXPECT_TRUE(dialer.cmdNewDial.enabled);
    EXPECT_FALSE(dialer.cmdCancel.enabled);
    EXPECT_FALSE(dialer.Image2.visible);
    EXPECT_TRUE(dialer.isVisible());
    EXPECT_TRUE(port.isOpen());
    EXPECT_EQ(dialer.callState(), frmDialer::CallState::Ready);
}

TEST_F(DialerCall, AnAnswerWithoutOkIsTreatedLikeSilence) {
    ScriptedDevice noTone = ScriptedDevice::modem();
    noTone.dialReply = "\r\nNO DIALTONE\r\n";
    noTone.dialDelayMs = 500;
    start(noTone);
    open();
    dialer.cmdNewDial_Click();
    EXPECT_TRUE(dialer.ModemReply.contains("NO DIALTONE"));
    EXPECT_EQ(dialer.lblStatus.caption, "No Reply from the Modem - Dialing Timed Out");
    EXPECT_GE(machine.now(), frmDialer::kDialTimeLimitMs);
}

TEST_F(DialerCall, AnOkArrivingInPiecesIsStillSeen) {
    ScriptedDevice modem = ScriptedDevice::modem();
    modem.answersDial = false;
    start(modem);
    open();
    int pieces = 0;
    machine.duringWait = [&](int now) {
        ScriptedSerialMachine::Line* l = machine.line(kPort);
        if (now >= 1000 && pieces == 0) {
            l->pending.emplace(now + 10, QByteArray("\r\nO"));
            ++pieces;
        } else if (now >= 2000 && pieces == 1) {
            l->pending.emplace(now + 10, QByteArray("K\r\n"));
            ++pieces;
        }
    };
    dialer.cmdNewDial_Click();
    EXPECT_EQ(pieces, 2);
    EXPECT_EQ(dialer.lblStatus.caption, "Pickup Receiver - Then Click Hangup");
}

TEST_F(DialerCall, ClosingTheScreenWhileDialingEndsTheCall) {
    start();
    open();
    machine.duringWait = [&](int now) {
        if (now >= 500) dialer.Hide();
    };
    dialer.cmdNewDial_Click();
    EXPECT_EQ(lastCommand(), QByteArray("ATH\r"));
    EXPECT_FALSE(port.isOpen());
    EXPECT_LT(machine.now(), ScriptedDevice().dialDelayMs);
}

TEST_F(DialerCall, WithoutAModemDialSaysSoAtOnce) {
    start();
    machine.detach(kPort);
    port.close();
    open();
    dialer.cmdNewDial_Click();
    EXPECT_EQ(dialer.lblStatus.caption, "Modem Not Detected Or In Use.");
    EXPECT_TRUE(dialer.cmdNewDial.enabled);
    EXPECT_EQ(machine.waits().size(), 1); // the probe's only: no wait for a dial
}
