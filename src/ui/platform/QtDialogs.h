#pragma once

#include "platform/AppInfo.h"
#include "platform/Dialogs.h"

#include <QMessageBox>

namespace ostrel::ui {

// The dialogs on the desktop: Qt's message box, bell and common dialogs, each modal over the active
// window. Boxes without a title carry the program's title as it stands when they are shown.
class QtDialogs : public Dialogs {
public:
    explicit QtDialogs(const AppInfo& app) : m_app(app) {}

    QString programTitle() const override { return m_app.title(); }

    // The Qt button for a legacy answer and back.
    static QMessageBox::StandardButton toStandardButton(MsgBoxResult result);
    static MsgBoxResult fromStandardButton(QMessageBox::StandardButton button);
    // Builds the box a request asks for, unshown (so a test can look at it).
    static void prepare(QMessageBox& box, const MsgBoxRequest& request);

protected:
    MsgBoxResult showMsgBox(const MsgBoxRequest& request) override;
    void beep() override;
    std::optional<QString> openFileName(const OpenFileRequest& request) override;
    std::optional<Colour> chooseColour(Colour initial, const QString& title) override;
    std::optional<FontChoice> chooseFont(const FontChoice& initial, const QString& title) override;
    std::optional<QString> inputBox(const QString& prompt, const QString& title,
                                    const QString& defaultText) override;

private:
    const AppInfo& m_app;
};

} // namespace ostrel::ui
