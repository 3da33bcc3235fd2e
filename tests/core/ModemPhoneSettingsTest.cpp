#include "FakePlatform.h"
#include "ScriptedSerialPort.h"
#include "TestDataRoot.h"
#include "platform/StoreErrorBox.h"
#include "setup/PhoneSettings.h"
#include "setup/frmSetup.h"
#include "shell/Session.h"
#include "telephony/LoadPhoneSettings.h"
#include "telephony/frmDialer.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::ScriptedDevice;
using ostrel::test::ScriptedSerialMachine;
using ostrel::test::ScriptedSerialPort;
using ostrel::test::TestDataRoot;

namespace {

// One start of the program over a data root, with the serial ports of a machine.
struct Start {
    Start(const TestDataRoot& t, ScriptedSerialMachine& machine)
        : port(machine), fake(t.path()), session(t.path(), fake) {
        dialer = &session.AddScreen(ScreenId::frmDialer, std::make_unique<frmDialer>(session, port));
    }
    PhoneControls load() { return LoadPhoneSettings(session, port); }

    ScriptedSerialPort port;
    FakePlatform fake;
    Session session;
    frmDialer* dialer = nullptr;
};

struct ModemPhoneSettings : ::testing::Test {
    TestDataRoot t;
    ScriptedSerialMachine machine;
};

} // namespace

TEST_F(ModemPhoneSettings, AModemFoundIsKeptOpenAndAskedToReportCallers) {
    machine.attach(3, ScriptedDevice::modem());
    Start s(t, machine);
    const PhoneControls c = s.load();
    EXPECT_TRUE(s.session.modem.detected);
    EXPECT_EQ(s.session.modem.foundPort, 3);
    EXPECT_EQ(s.session.modem.statusText, "Your Modem Comm Port Is 3.");
    EXPECT_EQ(s.session.settings.phone.ModemPort, 3);
    EXPECT_EQ(c.txtModemPort, "3");
    EXPECT_TRUE(c.phoneTabEnabled);
    EXPECT_TRUE(c.dialImageEnabled);
    EXPECT_TRUE(s.port.isOpen());
    EXPECT_EQ(s.port.port(), 3);
    EXPECT_EQ(machine.received(3), QList<QByteArray>({"AT\r", "AT#CID=1\r"}));
    s.fake.dialogs.verify();
}

TEST_F(ModemPhoneSettings, WithoutAModemTheLoadGoesOnQuietlyAndThePhoneTabIsDisabled) {
    t.writeBytes("/Phone.txt", "#TRUE#\r\n5\r\n");
    Start s(t, machine);
    const PhoneControls c = s.load();
    s.fake.dialogs.verify(); // no box: Setup opens as usual
    EXPECT_FALSE(s.session.modem.detected);
    EXPECT_EQ(s.session.modem.statusText, "Modem Not Detected Or In Use.");
    EXPECT_FALSE(c.phoneTabEnabled);
    EXPECT_FALSE(c.dialImageEnabled);
    EXPECT_FALSE(s.port.isOpen());
    // The files are still read after the probe.
    EXPECT_EQ(s.session.settings.phone.ModemPort, 5);
    EXPECT_TRUE(s.session.settings.phone.PhoneChained);
    EXPECT_TRUE(c.ckPhone);
}

TEST_F(ModemPhoneSettings, WithoutAModemSetupStillOpensWithItsPhoneTabDisabled) {
    Start s(t, machine);
    frmSetup& setup = s.session.AddScreen(ScreenId::frmSetup, std::make_unique<frmSetup>(s.session));
    LoadSetupSettings(s.session.disk, s.session.programName(), s.session.settings);
    s.load();
    setup.Load();
    ASSERT_TRUE(s.session.ShowScreen(ScreenId::frmSetup));
    EXPECT_TRUE(setup.isVisible());
    EXPECT_FALSE(setup.SSTab1.TabEnabled.value(frmSetup::kPhoneAndModem, true));
    EXPECT_TRUE(setup.SSTab1.TabEnabled.value(frmSetup::kPrinting, false));
    EXPECT_EQ(setup.ckCallerID.value, 1);
    EXPECT_TRUE(setup.lblCallid.visible);
    s.fake.dialogs.verify();
}

TEST_F(ModemPhoneSettings, WithAModemSetupShowsTheFoundPortOnItsEnabledPhoneTab) {
    machine.attach(4, ScriptedDevice::modem());
    t.writeBytes("/Phone.txt", "#TRUE#\r\n3\r\n");
    Start s(t, machine);
    frmSetup& setup = s.session.AddScreen(ScreenId::frmSetup, std::make_unique<frmSetup>(s.session));
    LoadSetupSettings(s.session.disk, s.session.programName(), s.session.settings);
    s.load();
    setup.Load();
    EXPECT_TRUE(setup.SSTab1.TabEnabled.value(frmSetup::kPhoneAndModem, false));
    EXPECT_EQ(setup.txtModemPort.text, "4");
    EXPECT_EQ(setup.ckPhone.value, 1);
}

TEST_F(ModemPhoneSettings, WithoutAModemTheDialerShowsTheProbesMessage) {
    Start s(t, machine);
    s.load();
    s.dialer->DialFor(QStringLiteral("Jane Roe"), QStringLiteral("217-555-0100"));
    EXPECT_EQ(s.dialer->Text1.text, "Modem Not Detected Or In Use.");
}

TEST_F(ModemPhoneSettings, WithoutAModemOrPhoneFileTheDaisyChainIsCleared) {
    Start s(t, machine);
    s.session.settings.phone.PhoneChained = true;
    const PhoneControls c = s.load();
    EXPECT_FALSE(s.session.settings.phone.PhoneChained);
    EXPECT_FALSE(c.ckPhone);
    EXPECT_EQ(s.session.settings.phone.ModemPort, 0);
    EXPECT_EQ(c.txtModemPort, "0");
}

TEST_F(ModemPhoneSettings, CallerIdNoteIsShownAndTickedWhateverTheFileHolds) {
    for (const QByteArray& stored : {QByteArray("#FALSE#\r\n"), QByteArray("#TRUE#\r\n")}) {
        for (bool withModem : {false, true}) {
            ScriptedSerialMachine m;
            if (withModem) m.attach(1, ScriptedDevice::modem());
            t.writeBytes("/CallID.txt", stored);
            Start s(t, m);
            const PhoneControls c = s.load();
            EXPECT_TRUE(c.lblCallidVisible) << stored.constData() << withModem;
            EXPECT_TRUE(c.ckCallerID) << stored.constData() << withModem;
            EXPECT_EQ(s.session.settings.phone.CallerIdOn, stored.startsWith("#TRUE#"));
        }
    }
}

TEST_F(ModemPhoneSettings, MovingTheModemLeavesPhoneFileAloneAndShowsTheProbesResult) {
    {
        machine.attach(3, ScriptedDevice::modem());
        Start first(t, machine);
        first.load();
        SavePhoneFiles(first.session.disk, first.session.settings.phone, false);
    }
    ASSERT_EQ(t.readBytes("/Phone.txt"), QByteArray("#FALSE#\r\n3\r\n"));

    ScriptedSerialMachine moved;
    moved.attach(4, ScriptedDevice::modem());
    Start next(t, moved);
    const PhoneControls c = next.load();
    EXPECT_EQ(t.readBytes("/Phone.txt"), QByteArray("#FALSE#\r\n3\r\n"));
    EXPECT_EQ(next.session.settings.phone.ModemPort, 3);
    EXPECT_EQ(next.session.modem.foundPort, 4);
    EXPECT_EQ(c.txtModemPort, "4");
    EXPECT_EQ(moved.received(4), QList<QByteArray>({"AT\r", "AT#CID=1\r"}));

    next.dialer->DialFor(QStringLiteral("Jane Roe"), QStringLiteral("555-0100"));
    EXPECT_EQ(next.dialer->Text1.text, "Your Modem Comm Port Is 4.");
    EXPECT_EQ(next.dialer->Label2[3].caption, "COM Port # 4");
    EXPECT_EQ(next.port.port(), 4);
}

TEST_F(ModemPhoneSettings, APhoneFileCutShortIsReportedAndTheProbeResultStays) {
    t.writeBytes("/Phone.txt", "#TRUE#\r\n");
    machine.attach(2, ScriptedDevice::modem());
    Start s(t, machine);
    s.load();
    EXPECT_BOX(s.fake.dialogs, kStoreErrorTitle,
               "The file ends before all of its data could be read.\n\nFile: /Phone.txt");
    EXPECT_TRUE(s.session.modem.detected);
    EXPECT_EQ(s.session.settings.phone.ModemPort, 2);
    EXPECT_EQ(t.readBytes("/Phone.txt"), QByteArray("#TRUE#\r\n"));
}

TEST_F(ModemPhoneSettings, LegacyPhoneFilesNameTheStoredPortOverTheFoundOne) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    for (const char* name : {"/Phone.txt", "/CallID.txt"}) {
        QFile f(ostrel::test::legacyFixture() + QString::fromLatin1(name));
        ASSERT_TRUE(f.open(QIODevice::ReadOnly));
        t.writeBytes(QString::fromLatin1(name), f.readAll());
    }
    machine.attach(2, ScriptedDevice::modem());
    Start s(t, machine);
    const PhoneControls c = s.load();
    EXPECT_EQ(s.session.settings.phone.ModemPort, 3);
    EXPECT_FALSE(s.session.settings.phone.PhoneChained);
    EXPECT_FALSE(s.session.settings.phone.CallerIdOn);
    EXPECT_EQ(c.txtModemPort, "2");
    EXPECT_TRUE(c.ckCallerID);

    // Saved back unchanged, both files keep their bytes.
    const QByteArray phone = t.readBytes("/Phone.txt");
    const QByteArray callId = t.readBytes("/CallID.txt");
    SavePhoneFiles(s.session.disk, s.session.settings.phone, false);
    EXPECT_EQ(t.readBytes("/Phone.txt"), phone);
    EXPECT_EQ(t.readBytes("/CallID.txt"), callId);
}
