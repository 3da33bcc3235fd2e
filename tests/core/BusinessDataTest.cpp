#include "setup/BusinessData.h"
#include "TestDataRoot.h"
#include "store/StoreError.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {
BusinessBoxes sampleBoxes() {
    return {QString("Ace Repair"),
            QString("12 Main St"),
            QString(""),
            QString("Dayton"),
            QString("OH"),
            QString("45402"),
            QString("937-555-0100"),
            QString("Fax 937-555-0101"),
            QString("FEIN 12-3456789")};
}
} // namespace

TEST(BusinessData, MissingFileLoadsNothingAndKeepsTheHeldStrings) {
    TestDataRoot t;
    BusinessData data;
    data.txtBusiness[0] = "Held";
    EXPECT_FALSE(LoadBusinessData(t.disk(), data));
    EXPECT_EQ(data.companyName(), "Held");
    EXPECT_FALSE(t.isFile("/MyBusinessData.txt"));
}

TEST(BusinessData, SaveWritesNineQuotedStringsInOneStatement) {
    TestDataRoot t;
    BusinessData data;
    SaveBusiness(t.disk(), data, sampleBoxes());
    EXPECT_EQ(t.readBytes("/MyBusinessData.txt"),
              QByteArray("\"Ace Repair\",\"12 Main St\",\"\",\"Dayton\",\"OH\",\"45402\",\"937-555-0100\","
                         "\"Fax 937-555-0101\",\"FEIN 12-3456789\"\r\n"));
    EXPECT_EQ(data.taxRegistration(), "FEIN 12-3456789");
    EXPECT_EQ(data.telephone(), "937-555-0100");
}

TEST(BusinessData, LoadReadsAllNineStringsInOrder) {
    TestDataRoot t;
    t.writeBytes("/mybusinessdata.TXT", "\"N\",\"A1\",\"A2\",\"C\",\"S\",\"Z\",\"T\",\"F\",\"V\"\r\n");
    BusinessData data;
    ASSERT_TRUE(LoadBusinessData(t.disk(), data));
    EXPECT_EQ(data.companyName(), "N");
    EXPECT_EQ(data.address1(), "A1");
    EXPECT_EQ(data.address2(), "A2");
    EXPECT_EQ(data.city(), "C");
    EXPECT_EQ(data.state(), "S");
    EXPECT_EQ(data.postalCode(), "Z");
    EXPECT_EQ(data.telephone(), "T");
    EXPECT_EQ(data.furtherInfo(), "F");
    EXPECT_EQ(data.taxRegistration(), "V");
}

TEST(BusinessData, NinthStringIsReadButNotShownSoTheNextSaveWritesItsEmptyBox) {
    TestDataRoot t;
    BusinessData typed;
    SaveBusiness(t.disk(), typed, sampleBoxes());

    BusinessData data;
    ASSERT_TRUE(LoadBusinessData(t.disk(), data));
    EXPECT_EQ(data.taxRegistration(), "FEIN 12-3456789"); // what the letterhead prints until a save

    BusinessBoxes boxes; // the Setup screen's boxes at start-up
    FillBusinessBoxes(data, boxes);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(boxes[i], data.txtBusiness[i]) << i;
    EXPECT_TRUE(boxes[8].isEmpty());

    SaveBusiness(t.disk(), data, boxes);
    EXPECT_TRUE(data.taxRegistration().isEmpty());
    EXPECT_EQ(t.readBytes("/MyBusinessData.txt"),
              QByteArray("\"Ace Repair\",\"12 Main St\",\"\",\"Dayton\",\"OH\",\"45402\",\"937-555-0100\","
                         "\"Fax 937-555-0101\",\"\"\r\n"));
}

TEST(BusinessData, ReloadLeavesTheNinthBoxAsTyped) {
    TestDataRoot t;
    BusinessData data;
    SaveBusiness(t.disk(), data, sampleBoxes());
    BusinessBoxes boxes;
    boxes[8] = "VAT 99";
    LoadBusinessData(t.disk(), data);
    FillBusinessBoxes(data, boxes);
    EXPECT_EQ(boxes[0], "Ace Repair");
    EXPECT_EQ(boxes[8], "VAT 99");
    SaveBusiness(t.disk(), data, boxes);
    EXPECT_TRUE(t.readBytes("/MyBusinessData.txt").endsWith(",\"VAT 99\"\r\n"));
}

TEST(BusinessData, FileCutShortStopsTheLoadAndChangesNothing) {
    TestDataRoot t;
    t.writeBytes("/MyBusinessData.txt", "\"N\",\"A1\",\"A2\"\r\n");
    BusinessData data;
    data.txtBusiness[0] = "Before";
    try {
        LoadBusinessData(t.disk(), data);
        FAIL() << "a short file must stop the load";
    } catch (const StoreError& e) {
        EXPECT_TRUE(e.file().contains("MyBusinessData.txt"));
    }
    EXPECT_EQ(data.companyName(), "Before");
    EXPECT_EQ(t.readBytes("/MyBusinessData.txt"), QByteArray("\"N\",\"A1\",\"A2\"\r\n"));
}

TEST(BusinessData, LoadRestoresTheFileFromItsBackupCopy) {
    TestDataRoot t;
    t.writeBytes("/Backup/MyBusinessData.txt", "\"B\",\"\",\"\",\"\",\"\",\"\",\"1\",\"\",\"\"\r\n");
    BusinessData data;
    ASSERT_TRUE(LoadBusinessData(t.disk(), data));
    EXPECT_EQ(data.companyName(), "B");
    EXPECT_TRUE(t.isFile("/MyBusinessData.txt"));
}

TEST(BusinessData, SaveDeletesTheBackupCopy) {
    TestDataRoot t;
    t.writeBytes("/Backup/MyBusinessData.txt", "old");
    BusinessData data;
    SaveBusiness(t.disk(), data, sampleBoxes());
    EXPECT_FALSE(t.isFile("/Backup/MyBusinessData.txt"));
    EXPECT_TRUE(t.isFile("/MyBusinessData.txt"));
}
