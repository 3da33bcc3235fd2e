#include "views/DialerView.h"
#include "Screenshot.h"
#include "FakePlatform.h"
#include "ScriptedSerialPort.h"
#include "TestDataRoot.h"
#include "UiEvents.h"
#include "shell/Session.h"
#include "telephony/LoadPhoneSettings.h"
#include "telephony/frmDialer.h"

#include <QCheckBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using namespace ostrel::test;

using ostrel::test::saveShot;

namespace {

struct DialerViewFixture : ::testing::Test {
    DialerViewFixture() {
        machine.attach(3, ScriptedDevice::modem());
        LoadPhoneSettings(session, port);
        machine.settle();
        session.endProcess = [] {};
    }

    template <typename W> W* find(const QString& name) {
        W* w = view.findChild<W*>(name);
        EXPECT_NE(w, nullptr) << name.toStdString();
        return w;
    }
    void open() {
        dialer.DialFor(QStringLiteral("Jane Roe"), QStringLiteral("217-555-0100"));
        Binder::syncAll();
        settle();
    }

    TestDataRoot t;
    ScriptedSerialMachine machine;
    ScriptedSerialPort port{machine};
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmDialer& dialer = session.AddScreen(ScreenId::frmDialer, std::make_unique<frmDialer>(session, port));
    DialerView view{session, dialer};
};

} // namespace

TEST_F(DialerViewFixture, EveryControlHasItsWidget) {
    EXPECT_TRUE(view.binder().unboundControls().isEmpty())
        << view.binder().unboundControls().join(", ").toStdString();
}

TEST_F(DialerViewFixture, OpensModallyWithTheRecipientAndTheProbesResult) {
    t.writeBytes("/SpeedNumbers.txt", "Supply House\r\n217-555-0199\r\nDispatch Cell\r\n217-555-0177\r\n");
    open();
    EXPECT_TRUE(view.isVisible());
    EXPECT_EQ(view.windowModality(), Qt::ApplicationModal);
    EXPECT_EQ(view.windowTitle(), "Call ...............");
    EXPECT_EQ(find<QLabel>("lblName")->text(), "Jane Roe");
    EXPECT_EQ(find<QLabel>("lblNumber")->text(), "217-555-0100");
    EXPECT_EQ(find<QLabel>("lblStatus")->text(), "Ready to Dial......");
    EXPECT_EQ(find<QLineEdit>("Text1")->text(), "Your Modem Comm Port Is 3.");
    EXPECT_TRUE(find<QLineEdit>("Text1")->isReadOnly());
    EXPECT_EQ(find<QLabel>("Label2(3)")->text(), "COM Port # 3");
    EXPECT_FALSE(find<QGroupBox>("fraHelp")->isVisible());
    EXPECT_FALSE(find<QGroupBox>("fraSpeedDial")->isVisible());
    EXPECT_FALSE(find<QPushButton>("cmdCancel")->isEnabled());
    EXPECT_FALSE(find<QPushButton>("cmdSpeedDialer(2)")->isEnabled());
    EXPECT_EQ(find<QPushButton>("cmdDialer(1)")->accessibleName(), "Dispatch Cell");
    EXPECT_EQ(find<QLineEdit>("txtDialer(0)")->accessibleName(), "Name");
    saveShot(view, QStringLiteral("dialer-ready"));
}

TEST_F(DialerViewFixture, StoringASpeedDialEntryByClicksAndTyping) {
    open();
    click(find<QPushButton>("cmdDialer(0)"));
    settle();
    EXPECT_TRUE(find<QGroupBox>("fraSpeedDial")->isVisible());
    typeText(find<QLineEdit>("txtDialer(0)"), QStringLiteral("Supply House"));
    typeText(find<QLineEdit>("txtDialer(1)"), QStringLiteral("217-555-0199"));
    saveShot(view, QStringLiteral("dialer-new-entry"));
    click(find<QPushButton>("cmdSpeedDialer(0)"));
    settle();
    EXPECT_EQ(t.readBytes("/SpeedNumbers.txt"), QByteArray("Supply House\r\n217-555-0199\r\n"));
    EXPECT_FALSE(find<QGroupBox>("fraSpeedDial")->isVisible());
    EXPECT_EQ(find<QPushButton>("cmdDialer(0)")->accessibleName(), "Supply House");

    click(find<QPushButton>("cmdDialer(0)"));
    settle();
    EXPECT_EQ(find<QLabel>("lblName")->text(), "Supply House");
    EXPECT_TRUE(find<QPushButton>("cmdSpeedDialer(2)")->isEnabled());
    click(find<QPushButton>("cmdSpeedDialer(3)"));
    settle();
    EXPECT_EQ(find<QLabel>("lblName")->text(), "Jane Roe");
}

TEST_F(DialerViewFixture, HelpButtonShowsAndHidesTheHelp) {
    open();
    QPushButton* help = find<QPushButton>("cmdHelp");
    click(help);
    settle();
    EXPECT_TRUE(find<QGroupBox>("fraHelp")->isVisible());
    EXPECT_EQ(help->accessibleName(), "Hide Help");
    saveShot(view, QStringLiteral("dialer-help"));
    click(help);
    settle();
    EXPECT_FALSE(find<QGroupBox>("fraHelp")->isVisible());
    EXPECT_EQ(help->accessibleName(), "Show Help");
}

TEST_F(DialerViewFixture, PrefixBoxPutsTheOneDashInFrontOfTheNumber) {
    open();
    click(find<QCheckBox>("ckDial1"));
    settle();
    EXPECT_EQ(find<QLabel>("lblNumber")->text(), "1-217-555-0100");
    click(find<QCheckBox>("ckDial1"));
    settle();
    EXPECT_EQ(find<QLabel>("lblNumber")->text(), "217-555-0100");
}

TEST_F(DialerViewFixture, TheWindowShowsTheDialAndThenAsksForTheReceiver) {
    open();
    QStringList shown;
    machine.duringWait = [&](int) { shown << find<QLabel>("lblStatus")->text(); };
    click(find<QPushButton>("cmdNewDial"));
    settle();
    ASSERT_FALSE(shown.isEmpty());
    EXPECT_EQ(shown.first(), "Dialing..... 217-555-0100");
    EXPECT_EQ(find<QLabel>("lblStatus")->text(), "Pickup Receiver - Then Click Hangup");
    EXPECT_TRUE(find<QPushButton>("cmdCancel")->isEnabled());
    EXPECT_FALSE(find<QPushButton>("cmdNewDial")->isEnabled());
    EXPECT_TRUE(find<QLabel>("Image2")->isVisible());
    saveShot(view, QStringLiteral("dialer-pickup"));

    click(find<QPushButton>("cmdCancel"));
    settle();
    EXPECT_FALSE(view.isVisible());
    EXPECT_EQ(machine.received(3).last(), QByteArray("ATH\r"));
}

TEST_F(DialerViewFixture, DisconnectClickedWhileTheModemDialsEndsTheCall) {
    open();
    bool clicked = false;
    machine.duringWait = [&](int now) {
        if (now >= 1000 && !clicked) {
            clicked = true;
            click(find<QPushButton>("cmdHangup"));
        }
    };
    click(find<QPushButton>("cmdNewDial"));
    settle();
    EXPECT_TRUE(clicked);
    EXPECT_FALSE(view.isVisible());
    EXPECT_FALSE(port.isOpen());
    EXPECT_LT(machine.now(), ScriptedDevice().dialDelayMs);
}

TEST_F(DialerViewFixture, ATimedOutDialSaysSoOnScreen) {
    machine.line(3)->device.answersDial = false;
    open();
    click(find<QPushButton>("cmdNewDial"));
    settle();
    EXPECT_EQ(find<QLabel>("lblStatus")->text(), "No Reply from the Modem - Dialing Timed Out");
    EXPECT_TRUE(find<QPushButton>("cmdNewDial")->isEnabled());
    EXPECT_TRUE(view.isVisible());
    saveShot(view, QStringLiteral("dialer-timed-out"));
}
