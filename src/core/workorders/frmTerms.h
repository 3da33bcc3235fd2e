#pragma once

#include "controls/Controls.h"
#include "controls/Screen.h"
#include "platform/ControlRegistry.h"

#include <QString>

#include <functional>

namespace ostrel {

class Session;

// The fixed texts that a work order prints when the owner keeps no text of his own.
extern const QString kGenericTerms;
extern const QString kGenericDisclaimer;

// The terms and disclaimer screen: the two generic texts, and a custom text for each that the owner
// writes, saves, reloads and deletes. It is loaded hidden at start-up, so that the work order screen
// can read the boxes at any time: what prints is the box, not the file.
class frmTerms : public Screen {
public:
    enum Button {
        kMenu = 0,
        kSaveTerms = 1,
        kSaveDisclaimer = 2,
        kClearTerms = 3,
        kClearDisclaimer = 4,
        kLoadTerms = 5,
        kLoadDisclaimer = 6,
        kDeleteTerms = 7,
        kDeleteDisclaimer = 8,
    };

    explicit frmTerms(Session& session);

    // Sets the generic texts, reads both files, and reports what was found; a custom disclaimer
    // also chooses itself on the work order screen.
    void Load() override;
    void Command1_Click(int index);

    const QString& customTerms() const { return Text1[0].text; }
    const QString& customDisclaimer() const { return Text1[1].text; }
    const QString& genericTerms() const { return Label1[1].caption; }
    const QString& genericDisclaimer() const { return Label1[0].caption; }

    ControlArray<CommandButton> Command1; // 0 to 8
    ControlArray<TextBox> Text1;          // 0 custom terms, 1 custom disclaimer
    ControlArray<Label> Label1;           // 0 generic disclaimer, 1 generic terms
    ControlArray<Label> lblCaption;       // headings of the four texts
    CheckBox ckTerms;
    CheckBox ckDisclaimer;

    ControlRegistry controls;

    // Told when the load finds a custom disclaimer: the work order screen then prints it.
    std::function<void()> customDisclaimerFound;

private:
    void loadCustom(int box, const QString& fileName);
    void saveCustom(int box, const QString& fileName);
    void clearBox(int box, const QString& name);
    void deleteFile(const QString& fileName);

    Session& m_session;
};

} // namespace ostrel
