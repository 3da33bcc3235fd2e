#include "setup/PhoneSettings.h"
#include "TestDataRoot.h"
#include "store/StoreError.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

TEST(PhoneFiles, MissingFilesClearTheChainAndKeepTheProbedPort) {
    TestDataRoot t;
    PhoneSettings phone;
    phone.ModemPort = 4; // found by the probe
    phone.PhoneChained = true;
    LoadPhoneFiles(t.disk(), phone);
    EXPECT_FALSE(phone.PhoneChained);
    EXPECT_EQ(phone.ModemPort, 4);
    EXPECT_FALSE(phone.CallerIdOn);
}

TEST(PhoneFiles, StoredPortReplacesTheProbedOne) {
    TestDataRoot t;
    t.writeBytes("/Phone.txt", "#TRUE#\r\n3\r\n");
    t.writeBytes("/CallID.txt", "#TRUE#\r\n");
    PhoneSettings phone;
    phone.ModemPort = 4;
    LoadPhoneFiles(t.disk(), phone);
    EXPECT_TRUE(phone.PhoneChained);
    EXPECT_EQ(phone.ModemPort, 3);
    EXPECT_TRUE(phone.CallerIdOn);
}

TEST(PhoneFiles, SaveWritesOneStatementPerValue) {
    TestDataRoot t;
    PhoneSettings phone;
    phone.ModemPort = 3;
    SavePhoneFiles(t.disk(), phone, false);
    EXPECT_EQ(t.readBytes("/Phone.txt"), QByteArray("#FALSE#\r\n3\r\n"));
    EXPECT_EQ(t.readBytes("/CallID.txt"), QByteArray("#FALSE#\r\n"));
}

TEST(PhoneFiles, TickedPhoneBoxMakesTheChainTrue) {
    TestDataRoot t;
    PhoneSettings phone;
    phone.ModemPort = 16;
    SavePhoneFiles(t.disk(), phone, true);
    EXPECT_TRUE(phone.PhoneChained);
    EXPECT_EQ(t.readBytes("/Phone.txt"), QByteArray("#TRUE#\r\n16\r\n"));
}

TEST(PhoneFiles, UntickedPhoneBoxLeavesAStoredChainAsItWas) {
    TestDataRoot t;
    t.writeBytes("/Phone.txt", "#TRUE#\r\n2\r\n");
    PhoneSettings phone;
    LoadPhoneFiles(t.disk(), phone);
    SavePhoneFiles(t.disk(), phone, false);
    EXPECT_EQ(t.readBytes("/Phone.txt"), QByteArray("#TRUE#\r\n2\r\n"));
}

TEST(PhoneFiles, CallerIdIsWrittenAsReadNotFromTheBox) {
    TestDataRoot t;
    t.writeBytes("/CallID.txt", "#TRUE#\r\n");
    t.writeBytes("/Backup/CallID.txt", "#FALSE#\r\n");
    PhoneSettings phone;
    LoadPhoneFiles(t.disk(), phone);
    SavePhoneFiles(t.disk(), phone, false);
    EXPECT_EQ(t.readBytes("/CallID.txt"), QByteArray("#TRUE#\r\n"));
    EXPECT_FALSE(t.isFile("/Backup/CallID.txt"));
}

TEST(PhoneFiles, PhoneFileCutShortStopsTheLoadAndKeepsTheHeldValues) {
    TestDataRoot t;
    t.writeBytes("/Phone.txt", "#TRUE#\r\n");
    PhoneSettings phone;
    phone.ModemPort = 5;
    EXPECT_THROW(LoadPhoneFiles(t.disk(), phone), StoreError);
    EXPECT_EQ(phone.ModemPort, 5);
    EXPECT_FALSE(phone.PhoneChained);
}
