#include "TestDataRoot.h"
#include "setup/ReturnPartsInstructions.h"
#include "setup/WebSiteAddress.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

TEST(ReturnPartsInstructions, MissingFileGivesAnEmptyText) {
    TestDataRoot t;
    EXPECT_EQ(LoadReturnPartsInstructions(t.disk()), QString());
}

TEST(ReturnPartsInstructions, SaveWritesTheWholeTextAsOneStringWithItsLineEnds) {
    TestDataRoot t;
    SaveReturnPartsInstructions(t.disk(), "Bring back\r\nthe old part");
    EXPECT_EQ(t.readBytes("/ReturnPartsInstructions.txt"), QByteArray("\"Bring back\r\nthe old part\"\r\n"));
}

TEST(ReturnPartsInstructions, LoadAppendsALineEndAfterEachField) {
    TestDataRoot t;
    t.writeBytes("/ReturnPartsInstructions.txt", "\"One\"\r\n\"Two\",\"Three\"\r\n");
    EXPECT_EQ(LoadReturnPartsInstructions(t.disk()), "One\r\nTwo\r\nThree\r\n");
}

TEST(ReturnPartsInstructions, EachSaveAndLoadRoundAddsOneLineEnd) {
    TestDataRoot t;
    SaveReturnPartsInstructions(t.disk(), "Keep parts");
    QString text = LoadReturnPartsInstructions(t.disk());
    EXPECT_EQ(text, "Keep parts\r\n");
    SaveReturnPartsInstructions(t.disk(), text);
    EXPECT_EQ(t.readBytes("/ReturnPartsInstructions.txt"), QByteArray("\"Keep parts\r\n\"\r\n"));
    text = LoadReturnPartsInstructions(t.disk());
    EXPECT_EQ(text, "Keep parts\r\n\r\n");
    SaveReturnPartsInstructions(t.disk(), text);
    EXPECT_EQ(t.readBytes("/ReturnPartsInstructions.txt"), QByteArray("\"Keep parts\r\n\r\n\"\r\n"));
}

TEST(WebSiteAddress, MissingFilePrintsNoLine) {
    TestDataRoot t;
    EXPECT_TRUE(LoadWebSiteAddress(t.disk()).isEmpty());
    EXPECT_FALSE(t.isFile("/MyWebSite.txt"));
}

TEST(WebSiteAddress, ReadsTheOneString) {
    TestDataRoot t;
    t.writeBytes("/MyWebSite.txt", "\"www.prairiecomfort.example\"\r\n");
    EXPECT_EQ(LoadWebSiteAddress(t.disk()), "www.prairiecomfort.example");
    EXPECT_EQ(t.readBytes("/MyWebSite.txt"), QByteArray("\"www.prairiecomfort.example\"\r\n"));
}

TEST(WebSiteAddress, EmptyHandMadeFileGivesNoAddress) {
    TestDataRoot t;
    t.writeBytes("/MyWebSite.txt", {});
    EXPECT_TRUE(LoadWebSiteAddress(t.disk()).isEmpty());
}
