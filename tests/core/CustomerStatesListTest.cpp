#include "TestDataRoot.h"
#include "accounts/StatesList.h"
#include "store/StoreError.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {
QByteArray statesFile(int count) {
    QByteArray b;
    for (int i = 0; i < count; ++i) {
        if (i) b += ',';
        b += "\"S" + QByteArray::number(i) + "\"";
    }
    return b + "\r\n";
}
} // namespace

TEST(StatesList, AbsentFileGivesAnEmptyList) {
    TestDataRoot t;
    EXPECT_TRUE(ReadStatesList(t.disk()).isEmpty());
}

TEST(StatesList, ReadsExactlyFiftyFieldsInOrder) {
    TestDataRoot t;
    t.writeBytes("/StatesList.txt", statesFile(52));
    const QStringList states = ReadStatesList(t.disk());
    ASSERT_EQ(states.size(), 50);
    EXPECT_EQ(states.first(), "S0");
    EXPECT_EQ(states.last(), "S49");
    EXPECT_EQ(t.disk().OpenChannelCount(), 0);
}

TEST(StatesList, FieldsMayStandOnSeveralLines) {
    TestDataRoot t;
    QByteArray b;
    for (int i = 0; i < 50; ++i)
        b += "\"X" + QByteArray::number(i) + "\"\r\n";
    t.writeBytes("/StatesList.txt", b);
    EXPECT_EQ(ReadStatesList(t.disk()).at(49), "X49");
}

TEST(StatesList, FewerThanFiftyFieldsStopWithAMessageNamingTheFile) {
    TestDataRoot t;
    t.writeBytes("/StatesList.txt", statesFile(49));
    try {
        ReadStatesList(t.disk());
        FAIL() << "a short list was accepted";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.file(), "/StatesList.txt");
        EXPECT_TRUE(e.problem().contains("49"));
    }
    EXPECT_EQ(t.disk().OpenChannelCount(), 0);
}
