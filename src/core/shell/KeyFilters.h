#pragma once

#include <QString>

namespace ostrel {

class Dialogs;
struct Control;

// Key codes the filters know by number.
constexpr int kKeyBackspace = 8;
constexpr int kKeyDoubleQuote = 34;

// What a filter reports through: the message box and bell, and whether the alarm option lets the
// bell sound.
struct KeyFilterEnv {
    Dialogs& dialogs;
    bool alarms = true;
    void beep() const;
};

// Each filter decides one keystroke from the key and the box's text so far: it returns the key to
// keep, or 0 to swallow it. Account numbers become file names and the text files delimit with the
// double quote, which is what the filters keep out.

// Money boxes: digits and one point, no leading zero, at most two decimals (judged at the tail of
// the text only). A second point beeps; every other refusal is silent. Backspace is refused too:
// the caller lets it through before asking.
int CurrencyKeyFilter(int key, const QString& text, const KeyFilterEnv& env);

// Digits only; Backspace passes; anything else beeps.
int DigitsKeyFilter(int key, const KeyFilterEnv& env);

// Keeps "," "&" "." "\" "*" "/" "?" out of a box whose text names a file, unless the text so far
// reads as a number. A refusal beeps, shows the "Invalid Key entry" box and asks for the focus back
// in `box` (when given).
int FileNameKeyFilter(int key, const QString& text, const KeyFilterEnv& env, Control* box = nullptr);

// Keeps the double quote out, with the same beep, box and focus.
int QuoteKeyFilter(int key, const KeyFilterEnv& env, Control* box = nullptr);

// The box a filter shows for a refused character.
QString InvalidKeyPrompt(QChar character);
inline const QString kInvalidKeyTitle = QStringLiteral("Invalid Key entry");

// The warning for a date the calendar may not give.
void ShowCalendarInvalid(Dialogs& dialogs);
inline const QString kCalendarInvalidPrompt = QStringLiteral("Your Calendar Selection is Invalid");

} // namespace ostrel
