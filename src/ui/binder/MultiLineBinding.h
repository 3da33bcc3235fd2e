#pragma once

#include "ControlBinding.h"

class QTextCursor;

namespace ostrel::ui {

// A multi-line text box (QTextEdit or QPlainTextEdit) as plain text. Lines end in CR LF in the
// model, as the legacy boxes held them, and in LF in the widget. A length limit cuts what the user
// types beyond it.
class MultiLineBinding : public ControlBinding {
    Q_OBJECT
public:
    MultiLineBinding(Binder& binder, QWidget* edit, TextBox& model);

protected:
    void pushState() override;
    void pull() override;

private:
    QString widgetText() const;
    void setWidgetText(const QString& text);
    QTextCursor cursor() const;
    void setCursor(const QTextCursor& cursor);
    void edited();
    void pullSelection();

    TextBox& m_model;
    int m_syncedSelStart = 0;
    int m_syncedSelLength = 0;
};

} // namespace ostrel::ui
