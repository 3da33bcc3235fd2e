#include "Dialogs.h"

namespace ostrel {

MsgBoxResult Dialogs::MsgBox(const QString& prompt, int style, const QString& title) {
    return showMsgBox(MsgBoxRequest{prompt, style, title.isEmpty() ? programTitle() : title});
}

std::optional<QString> Dialogs::InputBox(const QString& prompt, const QString& title,
                                         const QString& defaultText) {
    return inputBox(prompt, title.isEmpty() ? programTitle() : title, defaultText);
}

} // namespace ostrel
