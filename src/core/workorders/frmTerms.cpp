#include "frmTerms.h"

#include "TermsFiles.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

namespace ostrel {

const QString kGenericTerms = QStringLiteral(
    "All material is guaranteed to be as specified, and the work to be performed in accordance with the "
    "drawings and specifications submitted for above work and completed in substantial workmanlike manner");

const QString kGenericDisclaimer = QStringLiteral(
    "Any alteration or deviation from above specifications involving extra costs, will be executed only upon "
    "written orders, and will become an extra charge over and above the Proposed Price. All agreements "
    "contingent upon strikes, accidents or delays beyond our control. Owner to carry fire, tornado and other "
    "necessary insurance upon above work. Workmen's Compensation and Public Liability Insurance on above work "
    "to be provided by: __________________________");

namespace {

const char* const kCaptions[] = {"Menu",
                                 "Save Terms",
                                 "Save Disclaimer",
                                 "Clear Custom Terms",
                                 "Clear Custom Disclaimer",
                                 "Load Custom Terms",
                                 "Load Custom Disclaimer",
                                 "Delete Custom Terms",
                                 "Delete Custom Disclaimer"};

const char* const kHeadings[] = {"Generic Terms", "Generic Disclaimer", "Custom Terms", "Custom Disclaimer"};

} // namespace

frmTerms::frmTerms(Session& session) : Screen(QStringLiteral("frmTerms")), m_session(session) {
    caption = QStringLiteral("Custom Terms and Disclaimer Creation Screen");
    for (int i = 0; i < int(std::size(kCaptions)); ++i)
        Command1[i].caption = QString::fromLatin1(kCaptions[i]);
    for (int i = 0; i < int(std::size(kHeadings)); ++i)
        lblCaption[i].caption = QString::fromLatin1(kHeadings[i]);
    Text1[0].multiLine = true;
    Text1[1].multiLine = true;
    Label1[0].caption.clear();
    Label1[1].caption.clear();
    ckTerms.caption = QStringLiteral("Use Custom Terms");
    ckDisclaimer.caption = QStringLiteral("Use Custom Disclaimer");
    // They report what the load found; the owner does not tick them.
    ckTerms.enabled = false;
    ckDisclaimer.enabled = false;

    controls.add(QStringLiteral("Command1"), Command1);
    controls.add(QStringLiteral("Text1"), Text1);
    controls.add(QStringLiteral("Label1"), Label1);
    controls.add(QStringLiteral("lblCaption"), lblCaption);
    controls.add(QStringLiteral("ckTerms"), ckTerms);
    controls.add(QStringLiteral("ckDisclaimer"), ckDisclaimer);
}

void frmTerms::Load() {
    Label1[1].caption = kGenericTerms;
    Label1[0].caption = kGenericDisclaimer;
    // Each file is read on its own, so a damaged one does not keep the other out.
    m_session.Guarded([&] { Command1_Click(kLoadTerms); });
    m_session.Guarded([&] { Command1_Click(kLoadDisclaimer); });
    ckTerms.value = Text1[0].text.isEmpty() ? 0 : 1;
    if (!Text1[1].text.isEmpty()) {
        ckDisclaimer.value = 1;
        if (customDisclaimerFound) customDisclaimerFound();
    }
}

void frmTerms::Command1_Click(int index) {
    switch (index) {
    case kMenu:
        Hide();
        m_session.startup().Show();
        return;
    case kSaveTerms: saveCustom(0, kCustomTermsFile); return;
    case kSaveDisclaimer: saveCustom(1, kCustomDisclaimerFile); return;
    case kClearTerms: clearBox(0, QStringLiteral("Custom Terms")); return;
    case kClearDisclaimer: clearBox(1, QStringLiteral("Custom Disclaimer")); return;
    case kLoadTerms: loadCustom(0, kCustomTermsFile); return;
    case kLoadDisclaimer: loadCustom(1, kCustomDisclaimerFile); return;
    case kDeleteTerms: deleteFile(kCustomTermsFile); return;
    case kDeleteDisclaimer: deleteFile(kCustomDisclaimerFile); return;
    default: return;
    }
}

void frmTerms::loadCustom(int box, const QString& fileName) {
    if (!m_session.disk.FileExists(fileName)) return;
    Text1[box].text = ReadCustomText(m_session.disk, fileName);
}

void frmTerms::saveCustom(int box, const QString& fileName) {
    SaveCustomText(m_session.disk, fileName, Text1[box].text);
}

void frmTerms::clearBox(int box, const QString& name) {
    Text1[box].text.clear();
    m_session.ShowMessage(QStringLiteral("The ") + name + QStringLiteral(" input box has been Cleared") + u'\n' +
                              QStringLiteral("The file ") + name + QStringLiteral(" has not been Deleted"),
                          QStringLiteral("Input Box Cleared"));
}

void frmTerms::deleteFile(const QString& fileName) {
    m_session.disk.DeleteDataFile(fileName);
}

} // namespace ostrel
