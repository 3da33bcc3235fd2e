#include "MultiLineBinding.h"

#include <QPlainTextEdit>
#include <QTextCursor>
#include <QTextEdit>

#include <algorithm>

namespace ostrel::ui {

namespace {

QString toWidget(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return text;
}

QString toModel(QString text) {
    text.replace(u'\n', QStringLiteral("\r\n"));
    return text;
}

// Positions in the model count each CR of a CR LF; the widget's do not.
int modelPosition(const QString& widgetText, int position) {
    return position + int(widgetText.left(position).count(u'\n'));
}

int widgetPosition(const QString& modelText, int position) {
    return position - int(modelText.left(position).count(QStringLiteral("\r\n")));
}

} // namespace

MultiLineBinding::MultiLineBinding(Binder& binder, QWidget* edit, TextBox& model)
    : ControlBinding(binder, model, edit), m_model(model) {
    if (auto* t = qobject_cast<QTextEdit*>(edit)) {
        t->setAcceptRichText(false);
        connect(t, &QTextEdit::textChanged, this, [this] { edited(); });
        connect(t, &QTextEdit::cursorPositionChanged, this, [this] {
            if (!pushing()) pullSelection();
        });
    } else if (auto* p = qobject_cast<QPlainTextEdit*>(edit)) {
        connect(p, &QPlainTextEdit::textChanged, this, [this] { edited(); });
        connect(p, &QPlainTextEdit::cursorPositionChanged, this, [this] {
            if (!pushing()) pullSelection();
        });
    }
}

QString MultiLineBinding::widgetText() const {
    if (auto* t = qobject_cast<QTextEdit*>(target())) return t->toPlainText();
    return qobject_cast<QPlainTextEdit*>(target())->toPlainText();
}

void MultiLineBinding::setWidgetText(const QString& text) {
    if (auto* t = qobject_cast<QTextEdit*>(target()))
        t->setPlainText(text);
    else
        qobject_cast<QPlainTextEdit*>(target())->setPlainText(text);
}

QTextCursor MultiLineBinding::cursor() const {
    if (auto* t = qobject_cast<QTextEdit*>(target())) return t->textCursor();
    return qobject_cast<QPlainTextEdit*>(target())->textCursor();
}

void MultiLineBinding::setCursor(const QTextCursor& c) {
    if (auto* t = qobject_cast<QTextEdit*>(target()))
        t->setTextCursor(c);
    else
        qobject_cast<QPlainTextEdit*>(target())->setTextCursor(c);
}

void MultiLineBinding::edited() {
    if (pushing()) return;
    QString text = widgetText();
    if (m_model.maxLength > 0 && toModel(text).size() > m_model.maxLength) {
        // Cut back to the limit, counted as the model counts.
        while (!text.isEmpty() && toModel(text).size() > m_model.maxLength)
            text.chop(1);
        const QSignalBlocker block(target());
        setWidgetText(text);
        QTextCursor c = cursor();
        c.movePosition(QTextCursor::End);
        setCursor(c);
    }
    m_model.text = toModel(text);
    pullSelection();
    fire(handlers.change);
}

void MultiLineBinding::pullSelection() {
    const QTextCursor c = cursor();
    const QString text = widgetText();
    const int start = modelPosition(text, c.selectionStart());
    m_model.selStart = start;
    m_model.selLength = modelPosition(text, c.selectionEnd()) - start;
    m_syncedSelStart = m_model.selStart;
    m_syncedSelLength = m_model.selLength;
}

void MultiLineBinding::pull() {
    m_model.text = toModel(widgetText());
    pullSelection();
}

void MultiLineBinding::pushState() {
    const QString shown = toWidget(m_model.text);
    if (widgetText() != shown) setWidgetText(shown);
    if (auto* t = qobject_cast<QTextEdit*>(target()); t && t->isReadOnly() != m_model.locked)
        t->setReadOnly(m_model.locked);
    if (auto* p = qobject_cast<QPlainTextEdit*>(target()); p && p->isReadOnly() != m_model.locked)
        p->setReadOnly(m_model.locked);
    if (m_model.selStart != m_syncedSelStart || m_model.selLength != m_syncedSelLength) {
        const int size = int(m_model.text.size());
        const int start = std::clamp(m_model.selStart, 0, size);
        const int end = std::clamp(m_model.selStart + m_model.selLength, start, size);
        QTextCursor c = cursor();
        c.setPosition(widgetPosition(m_model.text, start));
        c.setPosition(widgetPosition(m_model.text, end), QTextCursor::KeepAnchor);
        setCursor(c);
    }
    pullSelection();
}

} // namespace ostrel::ui
