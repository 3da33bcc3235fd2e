#include "platform/MsgBoxStyle.h"

#include <gtest/gtest.h>

using namespace ostrel;

TEST(MsgBoxStyle, ResultsHaveTheLegacyNumbers) {
    EXPECT_EQ(1, vbOK);
    EXPECT_EQ(2, vbCancel);
    EXPECT_EQ(3, vbAbort);
    EXPECT_EQ(4, vbRetry);
    EXPECT_EQ(5, vbIgnore);
    EXPECT_EQ(6, vbYes);
    EXPECT_EQ(7, vbNo);
}

TEST(MsgBoxStyle, EachButtonSetOffersItsButtonsInOrder) {
    EXPECT_EQ((QVector<MsgBoxResult>{vbOK}), MsgBoxButtons(vbOKOnly));
    EXPECT_EQ((QVector<MsgBoxResult>{vbOK, vbCancel}), MsgBoxButtons(vbOKCancel));
    EXPECT_EQ((QVector<MsgBoxResult>{vbAbort, vbRetry, vbIgnore}), MsgBoxButtons(vbAbortRetryIgnore));
    EXPECT_EQ((QVector<MsgBoxResult>{vbYes, vbNo, vbCancel}), MsgBoxButtons(vbYesNoCancel));
    EXPECT_EQ((QVector<MsgBoxResult>{vbYes, vbNo}), MsgBoxButtons(vbYesNo));
    EXPECT_EQ((QVector<MsgBoxResult>{vbRetry, vbCancel}), MsgBoxButtons(vbRetryCancel));
}

TEST(MsgBoxStyle, IconAndDefaultPartsDoNotChangeTheButtons) {
    EXPECT_EQ((QVector<MsgBoxResult>{vbYes, vbNo}), MsgBoxButtons(vbYesNo + vbQuestion + vbDefaultButton2));
    EXPECT_EQ(MsgBoxIcon::Question, MsgBoxIconOf(vbYesNo + vbQuestion + vbDefaultButton2));
    EXPECT_EQ(MsgBoxIcon::Critical, MsgBoxIconOf(vbOKOnly + vbCritical));
    EXPECT_EQ(MsgBoxIcon::Exclamation, MsgBoxIconOf(vbExclamation));
    EXPECT_EQ(MsgBoxIcon::Information, MsgBoxIconOf(vbInformation));
    EXPECT_EQ(MsgBoxIcon::None, MsgBoxIconOf(vbYesNo));
}

TEST(MsgBoxStyle, DefaultAnswerFollowsTheDefaultButtonPart) {
    EXPECT_EQ(vbYes, MsgBoxDefaultAnswer(vbYesNo));
    EXPECT_EQ(vbNo, MsgBoxDefaultAnswer(vbYesNo + vbDefaultButton2));
    EXPECT_EQ(vbCancel, MsgBoxDefaultAnswer(vbYesNoCancel + vbDefaultButton3));
    // A default past the last button falls back to the first.
    EXPECT_EQ(vbOK, MsgBoxDefaultAnswer(vbOKOnly + vbDefaultButton2));
}

TEST(MsgBoxStyle, ButtonsReadAsWords) {
    EXPECT_EQ(QStringLiteral("Abort Retry Ignore"), MsgBoxButtonsText(vbAbortRetryIgnore + vbCritical));
    EXPECT_EQ(QStringLiteral("No"), MsgBoxResultText(vbNo));
}
