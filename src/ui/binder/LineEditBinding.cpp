#include "LineEditBinding.h"

#include "Binder.h"

#include <QLineEdit>
#include <QTimer>

#include <algorithm>

namespace ostrel::ui {

LineEditBinding::LineEditBinding(Binder& binder, QLineEdit* edit, TextBox& model)
    : ControlBinding(binder, model, edit), m_model(model) {
    watchMouseClicks(); // a box may act on a click (one that counts up, say)
    connect(edit, &QLineEdit::textEdited, this, [this](const QString& text) {
        m_changedWithoutEdit = false;
        if (!pushing()) edited(text);
    });
    connect(edit, &QLineEdit::textChanged, this, [this] {
        if (pushing()) return;
        m_changedWithoutEdit = true;
        QTimer::singleShot(0, this, [this] {
            if (!m_changedWithoutEdit) return;
            m_changedWithoutEdit = false;
            if (this->edit() && this->edit()->text() != m_model.text) edited(this->edit()->text());
        });
    });
    connect(edit, &QLineEdit::cursorPositionChanged, this, [this] {
        if (!pushing()) pullSelection();
    });
    connect(edit, &QLineEdit::selectionChanged, this, [this] {
        if (!pushing()) pullSelection();
    });
}

QLineEdit* LineEditBinding::edit() const {
    return qobject_cast<QLineEdit*>(target());
}

void LineEditBinding::edited(const QString& text) {
    const QString before = m_model.text;
    if (handlers.keyPress && !typing()) {
        judgeInsertedText(before, text);
    } else {
        m_model.text = text;
        pullSelection();
    }
    fire(handlers.change);
}

void LineEditBinding::judgeInsertedText(const QString& before, const QString& after) {
    qsizetype prefix = 0;
    while (prefix < before.size() && prefix < after.size() && before[prefix] == after[prefix])
        ++prefix;
    qsizetype suffix = 0;
    while (suffix < before.size() - prefix && suffix < after.size() - prefix &&
           before[before.size() - 1 - suffix] == after[after.size() - 1 - suffix])
        ++suffix;
    const QString inserted = after.mid(prefix, after.size() - prefix - suffix);
    // What the edit removed (the text pasted over) goes as a Backspace would, without judging.
    QString text = before.left(prefix) + before.right(suffix);
    qsizetype at = prefix;
    for (QChar c : inserted) {
        m_model.text = text;
        m_model.selStart = int(at);
        m_model.selLength = 0;
        int key = c.unicode();
        m_binder.run([&] { handlers.keyPress(key); });
        if (key == 0) break;
        text.insert(at, QChar(key));
        ++at;
    }
    m_model.text = text;
    m_model.selStart = int(at);
    m_model.selLength = 0;
    QLineEdit* e = edit();
    if (e->text() != text) {
        Binder::syncAll(); // shows the judged text and puts the caret after the last character kept
    }
}

void LineEditBinding::pullSelection() {
    QLineEdit* e = edit();
    m_model.selStart = e->hasSelectedText() ? e->selectionStart() : e->cursorPosition();
    m_model.selLength = int(e->selectedText().size());
    m_syncedSelStart = m_model.selStart;
    m_syncedSelLength = m_model.selLength;
}

void LineEditBinding::pull() {
    m_model.text = edit()->text();
    pullSelection();
}

void LineEditBinding::pushState() {
    QLineEdit* e = edit();
    if (e->text() != m_model.text) e->setText(m_model.text);
    const int maxLength = m_model.maxLength > 0 ? m_model.maxLength : 32767;
    if (e->maxLength() != maxLength) e->setMaxLength(maxLength);
    if (e->isReadOnly() != m_model.locked) e->setReadOnly(m_model.locked);
    // The selection is pushed only when the program moved it; otherwise the caret stays where the
    // user or the text change left it.
    if (m_model.selStart != m_syncedSelStart || m_model.selLength != m_syncedSelLength) {
        const int size = int(e->text().size());
        const int start = std::clamp(m_model.selStart, 0, size);
        const int length = std::clamp(m_model.selLength, 0, size - start);
        if (length > 0)
            e->setSelection(start, length);
        else
            e->setCursorPosition(start);
    }
    m_model.selStart = e->hasSelectedText() ? e->selectionStart() : e->cursorPosition();
    m_model.selLength = int(e->selectedText().size());
    m_syncedSelStart = m_model.selStart;
    m_syncedSelLength = m_model.selLength;
}

} // namespace ostrel::ui
