#include "KeyFilters.h"

#include "controls/Controls.h"
#include "platform/Dialogs.h"
#include "setup/NumericText.h"

namespace ostrel {

namespace {

const QString kDigits = QStringLiteral("0123456789");
const QString kCurrencyKeys = QStringLiteral("0123456789.");
// The characters a file name may not take, in the order they are tested.
const QString kFileNameKeys = QStringLiteral(",&.\\*/?");

bool isOneOf(int key, const QString& set) {
    return key > 0 && key <= 0xFFFF && set.contains(QChar(key));
}

int refuse(int key, const KeyFilterEnv& env, Control* box) {
    env.beep();
    env.dialogs.MsgBox(InvalidKeyPrompt(QChar(key)), vbOKOnly, kInvalidKeyTitle);
    if (box) box->SetFocus();
    return 0;
}

} // namespace

void KeyFilterEnv::beep() const {
    if (alarms) dialogs.Beep();
}

QString InvalidKeyPrompt(QChar character) {
    return QStringLiteral("This character, (") + character + QStringLiteral(") is invalid for this field");
}

int CurrencyKeyFilter(int key, const QString& text, const KeyFilterEnv& env) {
    // A value below one is typed with the point first, never with a leading zero.
    if (key == u'0' && text.isEmpty()) return 0;
    // Two decimals stand already; only the tail is looked at, wherever the caret is.
    if (text.size() >= 3 && text.contains(u'.') && text.at(text.size() - 3) == u'.') return 0;
    if (key == u'.' && text.contains(u'.')) {
        env.beep();
        return 0;
    }
    return isOneOf(key, kCurrencyKeys) ? key : 0;
}

int DigitsKeyFilter(int key, const KeyFilterEnv& env) {
    if (key == kKeyBackspace) return key;
    if (isOneOf(key, kDigits)) return key;
    env.beep();
    return 0;
}

int FileNameKeyFilter(int key, const QString& text, const KeyFilterEnv& env, Control* box) {
    if (key == kKeyBackspace) return key;
    // A number so far cannot name anything outside its folder yet; the key goes unchecked.
    if (IsNumericText(text)) return key;
    if (isOneOf(key, kFileNameKeys)) return refuse(key, env, box);
    return key;
}

int QuoteKeyFilter(int key, const KeyFilterEnv& env, Control* box) {
    if (key == kKeyBackspace) return key;
    if (key == kKeyDoubleQuote) return refuse(key, env, box);
    return key;
}

void ShowCalendarInvalid(Dialogs& dialogs) {
    dialogs.MsgBox(kCalendarInvalidPrompt, vbOKOnly);
}

} // namespace ostrel
