#include "MsgBoxStyle.h"

#include <QString>
#include <QStringList>

namespace ostrel {

namespace {
constexpr int kButtonSetMask = 0x0F;
constexpr int kIconMask = 0x70;
constexpr int kDefaultButtonMask = 0x300;
} // namespace

QVector<MsgBoxResult> MsgBoxButtons(int style) {
    switch (style & kButtonSetMask) {
    case vbOKCancel:
        return {vbOK, vbCancel};
    case vbAbortRetryIgnore:
        return {vbAbort, vbRetry, vbIgnore};
    case vbYesNoCancel:
        return {vbYes, vbNo, vbCancel};
    case vbYesNo:
        return {vbYes, vbNo};
    case vbRetryCancel:
        return {vbRetry, vbCancel};
    default:
        return {vbOK};
    }
}

MsgBoxIcon MsgBoxIconOf(int style) {
    switch (style & kIconMask) {
    case vbCritical:
        return MsgBoxIcon::Critical;
    case vbQuestion:
        return MsgBoxIcon::Question;
    case vbExclamation:
        return MsgBoxIcon::Exclamation;
    case vbInformation:
        return MsgBoxIcon::Information;
    default:
        return MsgBoxIcon::None;
    }
}

MsgBoxResult MsgBoxDefaultAnswer(int style) {
    const QVector<MsgBoxResult> buttons = MsgBoxButtons(style);
    const int wanted = (style & kDefaultButtonMask) >> 8; // 0, 1 or 2
    return wanted < buttons.size() ? buttons[wanted] : buttons.first();
}

QString MsgBoxResultText(MsgBoxResult result) {
    switch (result) {
    case vbOK:
        return QStringLiteral("OK");
    case vbCancel:
        return QStringLiteral("Cancel");
    case vbAbort:
        return QStringLiteral("Abort");
    case vbRetry:
        return QStringLiteral("Retry");
    case vbIgnore:
        return QStringLiteral("Ignore");
    case vbYes:
        return QStringLiteral("Yes");
    case vbNo:
        return QStringLiteral("No");
    }
    return QStringLiteral("answer %1").arg(int(result));
}

QString MsgBoxButtonsText(int style) {
    QStringList names;
    for (MsgBoxResult b : MsgBoxButtons(style))
        names << MsgBoxResultText(b);
    return names.join(u' ');
}

} // namespace ostrel
