#pragma once

#include "ControlBinding.h"

class QLineEdit;

namespace ostrel::ui {

// A one-line text box: text, length limit, locked, selection; Change after each user edit.
// Text that arrives other than by a typed key (pasted, dropped) passes the key-press handler one
// character at a time, as if typed, and stops at the first character the handler refuses.
class LineEditBinding : public ControlBinding {
    Q_OBJECT
public:
    LineEditBinding(Binder& binder, QLineEdit* edit, TextBox& model);

protected:
    void pushState() override;
    void pull() override;

private:
    void edited(const QString& text);
    void judgeInsertedText(const QString& before, const QString& after);
    void pullSelection();
    QLineEdit* edit() const;

    TextBox& m_model;
    int m_syncedSelStart = 0;
    int m_syncedSelLength = 0;
    // Text set by an assistive tool changes the box without an edit signal: still the user's.
    bool m_changedWithoutEdit = false;
};

} // namespace ostrel::ui
