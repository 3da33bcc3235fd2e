#include "FakePlatform.h"
#include "ScriptedSerialPort.h"
#include "TestDataRoot.h"
#include "platform/StoreErrorBox.h"
#include "shell/Session.h"
#include "telephony/LoadPhoneSettings.h"
#include "telephony/SpeedNumbers.h"
#include "telephony/frmDialer.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::test;

namespace {

QByteArray lines(std::initializer_list<const char*> list) {
    QByteArray out;
    for (const char* l : list)
        out += QByteArray(l) + "\r\n";
    return out;
}

QByteArray tenEntries() {
    QByteArray out;
    for (int i = 0; i < 10; ++i)
        out += QStringLiteral("Name %1\r\n555-010%1\r\n").arg(i).toLatin1();
    return out;
}

// A started program whose modem answers on port 3, with the dialer among its screens.
struct DialerSpeedDial : ::testing::Test {
    DialerSpeedDial() {
        machine.attach(3, ScriptedDevice::modem());
        LoadPhoneSettings(session, port);
        machine.settle(); // the user opens the dialer well after start-up
    }
    void open() { dialer.DialFor(QStringLiteral("Jane Roe"), QStringLiteral("217-555-0100")); }

    TestDataRoot t;
    ScriptedSerialMachine machine;
    ScriptedSerialPort port{machine};
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmDialer& dialer = session.AddScreen(ScreenId::frmDialer, std::make_unique<frmDialer>(session, port));
};

} // namespace

TEST_F(DialerSpeedDial, TenFilledEntriesLoadOntoTheTenButtons) {
    t.writeBytes("/SpeedNumbers.txt", tenEntries());
    open();
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(dialer.cmdDialer[i].caption, QStringLiteral("Name %1").arg(i));
        EXPECT_EQ(dialer.speedNumbers().numbers[i], QStringLiteral("555-010%1").arg(i));
    }
    fake.dialogs.verify();
}

TEST_F(DialerSpeedDial, TheFileIsRewrittenWithoutGaps) {
    t.writeBytes("/SpeedNumbers.txt", tenEntries());
    open();
    dialer.cmdDialer_Click(4);
    fake.dialogs.expect("Delete Speed Dial", "This will delete SpeedDial entry  Name 4\nAre you Sure",
                        vbYesNo, vbYes);
    dialer.cmdSpeedDialer_Click(2);
    fake.dialogs.verify();
    QByteArray expected;
    for (int i : {0, 1, 2, 3, 5, 6, 7, 8, 9})
        expected += QStringLiteral("Name %1\r\n555-010%1\r\n").arg(i).toLatin1();
    EXPECT_EQ(t.readBytes("/SpeedNumbers.txt"), expected);
    EXPECT_EQ(dialer.cmdDialer[4].caption, "Name 5");
    EXPECT_EQ(dialer.cmdDialer[8].caption, "Name 9");
    EXPECT_EQ(dialer.cmdDialer[9].caption, "");
}

TEST_F(DialerSpeedDial, AnEntryStoredOnALaterButtonMovesUpOnTheNextLoad) {
    t.writeBytes("/SpeedNumbers.txt", lines({"Supply House", "217-555-0199"}));
    open();
    dialer.cmdDialer_Click(6);
    dialer.txtDialer[0].text = QStringLiteral("Parts Desk");
    dialer.txtDialer[1].text = QStringLiteral("217-555-0150");
    dialer.cmdSpeedDialer_Click(0);
    EXPECT_EQ(t.readBytes("/SpeedNumbers.txt"),
              lines({"Supply House", "217-555-0199", "Parts Desk", "217-555-0150"}));
    EXPECT_EQ(dialer.cmdDialer[6].caption, "Parts Desk");

    dialer.cmdHangup_Click();
    open();
    EXPECT_EQ(dialer.cmdDialer[1].caption, "Parts Desk");
    EXPECT_EQ(dialer.cmdDialer[6].caption, "");
}

TEST_F(DialerSpeedDial, AnEleventhPairStopsTheLoadWithAMessageAfterTheFirstTen) {
    t.writeBytes("/SpeedNumbers.txt", tenEntries() + lines({"Extra", "555-0111"}));
    open();
    EXPECT_BOX(fake.dialogs, kStoreErrorTitle,
               "The file holds more than 10 speed dial entries; only the first 10 were loaded.\n\nFile: "
               "/SpeedNumbers.txt");
    EXPECT_EQ(dialer.cmdDialer[9].caption, "Name 9");
    EXPECT_TRUE(dialer.isVisible());
}

TEST_F(DialerSpeedDial, ANameWithoutItsNumberStopsTheLoad) {
    t.writeBytes("/SpeedNumbers.txt", lines({"Supply House", "217-555-0199", "Dispatch Cell"}));
    open();
    EXPECT_BOX(fake.dialogs, kStoreErrorTitle,
               "The last speed dial entry has a name but no number.\n\nFile: /SpeedNumbers.txt");
    EXPECT_EQ(dialer.cmdDialer[0].caption, "Supply House");
    EXPECT_EQ(dialer.cmdDialer[1].caption, "");
}

TEST_F(DialerSpeedDial, WithoutTheFileEveryButtonIsEmpty) {
    open();
    for (int i = 0; i < 10; ++i)
        EXPECT_TRUE(dialer.cmdDialer[i].caption.isEmpty());
    EXPECT_FALSE(t.isFile("/SpeedNumbers.txt"));
}

TEST_F(DialerSpeedDial, UntickingThePrefixOnANumberWithoutItChangesNothing) {
    open();
    dialer.ckDial1.value = 1;
    dialer.ckDial1_Click();
    EXPECT_EQ(dialer.lblNumber.caption, "1-217-555-0100");
    dialer.lblNumber.caption = QStringLiteral("217-555-0199");
    dialer.ckDial1.value = 0;
    dialer.ckDial1_Click();
    EXPECT_EQ(dialer.lblNumber.caption, "217-555-0199");
}

TEST_F(DialerSpeedDial, UntickingThePrefixTakesOffTheOneDash) {
    open();
    dialer.ckDial1.value = 1;
    dialer.ckDial1_Click();
    dialer.ckDial1.value = 0;
    dialer.ckDial1_Click();
    EXPECT_EQ(dialer.lblNumber.caption, "217-555-0100");
}

TEST_F(DialerSpeedDial, TickingThePrefixTwiceOverAddsItAgain) {
    dialer.DialFor(QStringLiteral("Jane Roe"), QStringLiteral("1-217-555-0100"));
    dialer.ckDial1.value = 1;
    dialer.ckDial1_Click();
    EXPECT_EQ(dialer.lblNumber.caption, "1-1-217-555-0100");
}

TEST_F(DialerSpeedDial, LoadCurrentPlayerWithNoRecipientStoresAnEmptyNameThatTheSaveDrops) {
    t.writeBytes("/SpeedNumbers.txt", lines({"Supply House", "217-555-0199"}));
    dialer.DialFor(QString(), QString());
    dialer.cmdDialer_Click(3);
    ASSERT_TRUE(dialer.fraSpeedDial.visible);
    dialer.cmdSpeedDialer_Click(4);
    EXPECT_EQ(dialer.speedNumbers().names[3], "");
    EXPECT_FALSE(dialer.fraSpeedDial.visible);
    EXPECT_EQ(t.readBytes("/SpeedNumbers.txt"), lines({"Supply House", "217-555-0199"}));

    dialer.cmdDialer_Click(5);
    dialer.txtDialer[0].text = QStringLiteral("Dispatch Cell");
    dialer.txtDialer[1].text = QStringLiteral("217-555-0177");
    dialer.cmdSpeedDialer_Click(0);
    EXPECT_EQ(t.readBytes("/SpeedNumbers.txt"),
              lines({"Supply House", "217-555-0199", "Dispatch Cell", "217-555-0177"}));
}

TEST_F(DialerSpeedDial, LoadCurrentPlayerStoresTheRecipientInTheSelectedEntry) {
    open();
    dialer.cmdDialer_Click(0);
    dialer.cmdSpeedDialer_Click(4);
    EXPECT_EQ(t.readBytes("/SpeedNumbers.txt"), lines({"Jane Roe", "217-555-0100"}));
    EXPECT_EQ(dialer.cmdDialer[0].caption, "Jane Roe");
    EXPECT_TRUE(dialer.txtDialer[0].text.isEmpty());
    EXPECT_TRUE(dialer.txtDialer[1].text.isEmpty());
}

TEST_F(DialerSpeedDial, DeletingEntryZeroOfThreeMovesTheOthersDown) {
    t.writeBytes("/SpeedNumbers.txt", lines({"Supply House", "217-555-0199", "Dispatch Cell", "217-555-0177",
                                             "Parts Desk", "217-555-0150"}));
    open();
    dialer.cmdDialer_Click(0);
    EXPECT_TRUE(dialer.cmdSpeedDialer[2].enabled);
    fake.dialogs.expect("Delete Speed Dial", "This will delete SpeedDial entry  Supply House\nAre you Sure",
                        vbYesNo, vbYes);
    dialer.cmdSpeedDialer_Click(2);
    fake.dialogs.verify();
    EXPECT_EQ(dialer.cmdDialer[0].caption, "Dispatch Cell");
    EXPECT_EQ(dialer.cmdDialer[1].caption, "Parts Desk");
    EXPECT_EQ(dialer.cmdDialer[2].caption, "");
    EXPECT_EQ(dialer.speedNumbers().numbers[0], "217-555-0177");
    EXPECT_EQ(t.readBytes("/SpeedNumbers.txt"),
              lines({"Dispatch Cell", "217-555-0177", "Parts Desk", "217-555-0150"}));
}

TEST_F(DialerSpeedDial, AnsweringNoToTheDeleteKeepsTheEntryAndDisablesDelete) {
    const QByteArray file = lines({"Supply House", "217-555-0199"});
    t.writeBytes("/SpeedNumbers.txt", file);
    open();
    dialer.cmdDialer_Click(0);
    fake.dialogs.expect("Delete Speed Dial", "This will delete SpeedDial entry  Supply House\nAre you Sure",
                        vbYesNo, vbNo);
    dialer.cmdSpeedDialer_Click(2);
    fake.dialogs.verify();
    EXPECT_FALSE(dialer.cmdSpeedDialer[2].enabled);
    EXPECT_EQ(t.readBytes("/SpeedNumbers.txt"), file);
    EXPECT_EQ(dialer.cmdDialer[0].caption, "Supply House");
}

TEST_F(DialerSpeedDial, SelectingAFilledEntryMakesItTheRecipientAndRestoreBringsBackTheCustomer) {
    t.writeBytes("/SpeedNumbers.txt", lines({"Supply House", "217-555-0199"}));
    open();
    dialer.cmdDialer_Click(0);
    EXPECT_EQ(dialer.lblName.caption, "Supply House");
    EXPECT_EQ(dialer.lblNumber.caption, "217-555-0199");
    EXPECT_TRUE(dialer.cmdSpeedDialer[2].enabled);
    EXPECT_FALSE(dialer.fraSpeedDial.visible);
    dialer.cmdSpeedDialer_Click(3);
    EXPECT_EQ(dialer.lblName.caption, "Jane Roe");
    EXPECT_EQ(dialer.lblNumber.caption, "217-555-0100");
}

TEST_F(DialerSpeedDial, RestoreBringsBackWhatWasShownBeforeTheLastSelection) {
    t.writeBytes("/SpeedNumbers.txt",
                 lines({"Supply House", "217-555-0199", "Dispatch Cell", "217-555-0177"}));
    open();
    dialer.cmdDialer_Click(0);
    dialer.cmdDialer_Click(1);
    dialer.cmdSpeedDialer_Click(3);
    EXPECT_EQ(dialer.lblName.caption, "Supply House");
    EXPECT_EQ(dialer.lblNumber.caption, "217-555-0199");
}

TEST_F(DialerSpeedDial, SelectingAnEmptyEntryOpensTheEntryFrameAndCancelClosesIt) {
    open();
    dialer.cmdDialer_Click(2);
    EXPECT_TRUE(dialer.fraSpeedDial.visible);
    EXPECT_TRUE(dialer.txtDialer[0].focusRequested);
    EXPECT_FALSE(dialer.cmdSpeedDialer[2].enabled);
    EXPECT_EQ(dialer.lblName.caption, "Jane Roe");
    dialer.txtDialer[0].text = QStringLiteral("Half typed");
    dialer.txtDialer[1].text = QStringLiteral("555");
    dialer.cmdSpeedDialer_Click(1);
    EXPECT_FALSE(dialer.fraSpeedDial.visible);
    EXPECT_TRUE(dialer.txtDialer[0].text.isEmpty());
    EXPECT_TRUE(dialer.txtDialer[1].text.isEmpty());
    EXPECT_FALSE(t.isFile("/SpeedNumbers.txt"));
}

TEST_F(DialerSpeedDial, LegacySpeedNumbersLoadAndSaveBackByteForByte) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    QFile f(legacyFixture() + QStringLiteral("/SpeedNumbers.txt"));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray bytes = f.readAll();
    t.writeBytes("/SpeedNumbers.txt", bytes);
    SpeedNumbers entries;
    LoadSpeedNumbers(t.disk(), entries);
    EXPECT_EQ(entries.names[0], "Supply House");
    EXPECT_EQ(entries.numbers[0], "217-555-0199");
    EXPECT_EQ(entries.names[1], "Dispatch Cell");
    EXPECT_EQ(entries.numbers[1], "217-555-0177");
    EXPECT_TRUE(entries.names[2].isEmpty());
    SaveSpeedNumbers(t.disk(), entries);
    EXPECT_EQ(t.readBytes("/SpeedNumbers.txt"), bytes);
}
