#pragma once

#include "MsgBoxStyle.h"
#include "controls/Controls.h"

#include <QString>

#include <optional>

namespace ostrel {

// One message box as the logic asks for it. An empty title stands for the program's own title.
struct MsgBoxRequest {
    QString prompt;
    int style = vbOKOnly;
    QString title;
};

// A file to open. The filter keeps the legacy form "Description|patterns|Description|patterns";
// the initial folder is a full path, or empty for the dialog's own choice.
struct OpenFileRequest {
    QString title;
    QString filter;
    QString initialDir;
};

struct FontChoice {
    QString name;
    double size = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool operator==(const FontChoice&) const = default;
};

// The modal dialogs the logic uses: the message box, the bell, and the common dialogs. Every common
// dialog can be cancelled, which the answer tells as an empty optional.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    // Shows the box and waits for the answer. A box without a title carries the program's title.
    MsgBoxResult MsgBox(const QString& prompt, int style = vbOKOnly, const QString& title = QString());
    // The system bell. Callers decide whether the alarm option lets it sound.
    void Beep() { beep(); }

    std::optional<QString> OpenFileName(const OpenFileRequest& request) { return openFileName(request); }
    // Colours are 24-bit with red in the low byte, as the settings files keep them.
    std::optional<Colour> ChooseColour(Colour initial, const QString& title = QString()) {
        return chooseColour(initial, title);
    }
    std::optional<FontChoice> ChooseFont(const FontChoice& initial, const QString& title = QString()) {
        return chooseFont(initial, title);
    }
    // The typed text, or nothing when the user cancels. An empty title means the program's title.
    std::optional<QString> InputBox(const QString& prompt, const QString& title = QString(),
                                    const QString& defaultText = QString());

    // The title of a box that names none.
    virtual QString programTitle() const = 0;

protected:
    // The request arrives with its title already resolved.
    virtual MsgBoxResult showMsgBox(const MsgBoxRequest& request) = 0;
    virtual void beep() = 0;
    virtual std::optional<QString> openFileName(const OpenFileRequest& request) = 0;
    virtual std::optional<Colour> chooseColour(Colour initial, const QString& title) = 0;
    virtual std::optional<FontChoice> chooseFont(const FontChoice& initial, const QString& title) = 0;
    virtual std::optional<QString> inputBox(const QString& prompt, const QString& title,
                                            const QString& defaultText) = 0;
};

} // namespace ostrel
