#pragma once

#include <QVector>

namespace ostrel {

// The style of a message box as the legacy calls write it: one button set, plus an icon, plus the
// default button, added together (vbYesNo + vbQuestion + vbDefaultButton2).
enum MsgBoxStyle : int {
    vbOKOnly = 0,
    vbOKCancel = 1,
    vbAbortRetryIgnore = 2,
    vbYesNoCancel = 3,
    vbYesNo = 4,
    vbRetryCancel = 5,

    vbCritical = 16,
    vbQuestion = 32,
    vbExclamation = 48,
    vbInformation = 64,

    vbDefaultButton1 = 0,
    vbDefaultButton2 = 256,
    vbDefaultButton3 = 512,
};

// The button the user pressed.
enum MsgBoxResult : int {
    vbOK = 1,
    vbCancel = 2,
    vbAbort = 3,
    vbRetry = 4,
    vbIgnore = 5,
    vbYes = 6,
    vbNo = 7
};

enum class MsgBoxIcon { None, Critical, Question, Exclamation, Information };

// The buttons a style offers, left to right. An unknown button set counts as OK only.
QVector<MsgBoxResult> MsgBoxButtons(int style);
MsgBoxIcon MsgBoxIconOf(int style);
// The button that Enter presses: the one the default-button part names, or the first when the set
// has fewer buttons.
MsgBoxResult MsgBoxDefaultAnswer(int style);
// "OK", "Yes No" and so on: for messages about boxes.
QString MsgBoxButtonsText(int style);
QString MsgBoxResultText(MsgBoxResult result);

} // namespace ostrel
