#include "telephony/ModemProbe.h"
#include "ScriptedSerialPort.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::ScriptedDevice;
using ostrel::test::ScriptedSerialMachine;
using ostrel::test::ScriptedSerialPort;

namespace {

using Kind = ScriptedDevice::Kind;

struct ModemProbe : ::testing::Test {
    ScriptedSerialMachine machine;
    ScriptedSerialPort port{machine};
};

} // namespace

TEST_F(ModemProbe, FindsAModemOnTheSixteenthPort) {
    for (int i = 1; i <= 15; ++i)
        machine.attach(i, ScriptedDevice::of(Kind::Silent));
    machine.attach(16, ScriptedDevice::modem());
    EXPECT_EQ(ProbeModem(port), 16);
    EXPECT_EQ(machine.received(16), QList<QByteArray>({"AT\r"}));
}

TEST_F(ModemProbe, DoesNotLookPastTheSixteenthPort) {
    machine.attach(17, ScriptedDevice::modem());
    EXPECT_EQ(ProbeModem(port), 0);
    EXPECT_TRUE(machine.received(17).isEmpty());
    EXPECT_EQ(machine.opens(17), 0);
}

TEST_F(ModemProbe, APortThatEchoesOneByteDoesNotCount) {
    machine.attach(2, ScriptedDevice::of(Kind::EchoOneByte));
    EXPECT_EQ(ProbeModem(port), 0);
    EXPECT_EQ(machine.received(2), QList<QByteArray>({"AT\r"}));

    machine.attach(5, ScriptedDevice::modem());
    EXPECT_EQ(ProbeModem(port), 5);
}

TEST_F(ModemProbe, TheLowestAnsweringPortWins) {
    machine.attach(9, ScriptedDevice::modem());
    machine.attach(4, ScriptedDevice::modem());
    EXPECT_EQ(ProbeModem(port), 4);
}

TEST_F(ModemProbe, AllPortsShareOneShortWait) {
    for (int i = 1; i <= 16; ++i)
        machine.attach(i, ScriptedDevice::of(Kind::Silent));
    EXPECT_EQ(ProbeModem(port), 0);
    EXPECT_EQ(machine.waits(), QList<int>({kProbeWaitMs}));
    for (int i = 1; i <= 16; ++i)
        EXPECT_EQ(machine.received(i), QList<QByteArray>({"AT\r"})) << i;
}

TEST_F(ModemProbe, AModemSlowerThanTheWaitCountsAsNone) {
    ScriptedDevice slow = ScriptedDevice::modem();
    slow.replyDelayMs = kProbeWaitMs + 100;
    machine.attach(3, slow);
    EXPECT_EQ(ProbeModem(port), 0);
}

TEST_F(ModemProbe, APortInUseGivesNoAnswerAndNoMessage) {
    machine.attach(1, ScriptedDevice::of(Kind::InUse));
    machine.attach(6, ScriptedDevice::modem());
    EXPECT_EQ(ProbeModem(port), 6);
    EXPECT_EQ(machine.opens(1), 0);
}

TEST_F(ModemProbe, WithoutAnyPortThereIsNothingToWaitFor) {
    EXPECT_EQ(ProbeModem(port), 0);
    EXPECT_TRUE(machine.waits().isEmpty());
}

TEST_F(ModemProbe, ClosesEveryPortItOpened) {
    machine.attach(2, ScriptedDevice::of(Kind::Silent));
    machine.attach(7, ScriptedDevice::modem());
    ASSERT_EQ(ProbeModem(port), 7);
    EXPECT_FALSE(machine.isOpen(2));
    EXPECT_FALSE(machine.isOpen(7));
    EXPECT_FALSE(port.isOpen());
}

TEST_F(ModemProbe, CallerIdRequestLeavesThePortOpenWithItsOldInputDropped) {
    machine.attach(7, ScriptedDevice::modem());
    ASSERT_TRUE(port.open(7));
    port.write("AT\r");
    port.wait(100);
    ASSERT_GT(port.bytesWaiting(), 0);
    RequestCallerId(port, 7);
    EXPECT_TRUE(port.isOpen());
    EXPECT_EQ(port.bytesWaiting(), 0);
    EXPECT_EQ(machine.received(7), QList<QByteArray>({"AT\r", "AT#CID=1\r"}));
}

TEST_F(ModemProbe, CallerIdRequestOpensAClosedPort) {
    machine.attach(3, ScriptedDevice::modem());
    RequestCallerId(port, 3);
    EXPECT_TRUE(machine.isOpen(3));
    EXPECT_EQ(port.port(), 3);
    EXPECT_EQ(machine.received(3), QList<QByteArray>({"AT#CID=1\r"}));
}

TEST_F(ModemProbe, CallerIdRequestOnAPortThatWillNotOpenSendsNothing) {
    machine.attach(3, ScriptedDevice::of(Kind::InUse));
    RequestCallerId(port, 3);
    EXPECT_FALSE(port.isOpen());
    EXPECT_TRUE(machine.received(3).isEmpty());
}

TEST(ModemTexts, PortMessageAndCaption) {
    EXPECT_EQ(ModemPortMessage(3), "Your Modem Comm Port Is 3.");
    EXPECT_EQ(ModemPortCaption(16), "COM Port # 16");
    EXPECT_EQ(kModemNotDetected, "Modem Not Detected Or In Use.");
    EXPECT_EQ(HayesCommand("ATH"), QByteArray("ATH\r"));
}
