#include "QtDialogs.h"

#include "QtColour.h"
#include "platform/CommonDialogFilter.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QPushButton>

namespace ostrel::ui {

namespace {

// The legacy texts break lines with CR LF; a Qt label wants LF alone.
QString plainLines(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(u'\r', u'\n');
    return text;
}

QMessageBox::Icon toIcon(MsgBoxIcon icon) {
    switch (icon) {
    case MsgBoxIcon::Critical:
        return QMessageBox::Critical;
    case MsgBoxIcon::Question:
        return QMessageBox::Question;
    case MsgBoxIcon::Exclamation:
        return QMessageBox::Warning;
    case MsgBoxIcon::Information:
        return QMessageBox::Information;
    case MsgBoxIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QWidget* dialogParent() {
    return QApplication::activeWindow();
}

} // namespace

QMessageBox::StandardButton QtDialogs::toStandardButton(MsgBoxResult result) {
    switch (result) {
    case vbOK:
        return QMessageBox::Ok;
    case vbCancel:
        return QMessageBox::Cancel;
    case vbAbort:
        return QMessageBox::Abort;
    case vbRetry:
        return QMessageBox::Retry;
    case vbIgnore:
        return QMessageBox::Ignore;
    case vbYes:
        return QMessageBox::Yes;
    case vbNo:
        return QMessageBox::No;
    }
    return QMessageBox::NoButton;
}

MsgBoxResult QtDialogs::fromStandardButton(QMessageBox::StandardButton button) {
    switch (button) {
    case QMessageBox::Cancel:
        return vbCancel;
    case QMessageBox::Abort:
        return vbAbort;
    case QMessageBox::Retry:
        return vbRetry;
    case QMessageBox::Ignore:
        return vbIgnore;
    case QMessageBox::Yes:
        return vbYes;
    case QMessageBox::No:
        return vbNo;
    default:
        return vbOK;
    }
}

void QtDialogs::prepare(QMessageBox& box, const MsgBoxRequest& request) {
    box.setWindowTitle(request.title);
    box.setTextFormat(Qt::PlainText);
    box.setText(plainLines(request.prompt));
    box.setIcon(toIcon(MsgBoxIconOf(request.style)));
    QMessageBox::StandardButtons buttons;
    for (MsgBoxResult b : MsgBoxButtons(request.style))
        buttons |= toStandardButton(b);
    box.setStandardButtons(buttons);
    box.setDefaultButton(toStandardButton(MsgBoxDefaultAnswer(request.style)));
    const QVector<MsgBoxResult> offered = MsgBoxButtons(request.style);
    // Escape answers Cancel where there is one; a lone OK is also what Escape means.
    if (offered.contains(vbCancel))
        box.setEscapeButton(QMessageBox::Cancel);
    else if (offered.size() == 1)
        box.setEscapeButton(QMessageBox::Ok);
}

MsgBoxResult QtDialogs::showMsgBox(const MsgBoxRequest& request) {
    QMessageBox box(dialogParent());
    prepare(box, request);
    box.setWindowModality(Qt::ApplicationModal);
    box.exec();
    QAbstractButton* clicked = box.clickedButton();
    if (!clicked) return MsgBoxDefaultAnswer(request.style);
    const auto standard = box.standardButton(clicked);
    const MsgBoxResult result = fromStandardButton(standard);
    // A box closed in a way that pressed none of its buttons counts as its default.
    return MsgBoxButtons(request.style).contains(result) ? result : MsgBoxDefaultAnswer(request.style);
}

void QtDialogs::beep() {
    QApplication::beep();
}

std::optional<QString> QtDialogs::openFileName(const OpenFileRequest& request) {
    const QString chosen =
        QFileDialog::getOpenFileName(dialogParent(), request.title, request.initialDir,
                                     NameFiltersFromCommonDialog(request.filter).join(QStringLiteral(";;")));
    if (chosen.isEmpty()) return std::nullopt;
    return chosen;
}

std::optional<Colour> QtDialogs::chooseColour(Colour initial, const QString& title) {
    const QColor start = initial == kNoColour ? QColor(Qt::white) : toQColor(initial);
    const QColor chosen = QColorDialog::getColor(start, dialogParent(), title);
    if (!chosen.isValid()) return std::nullopt;
    return fromQColor(chosen);
}

std::optional<FontChoice> QtDialogs::chooseFont(const FontChoice& initial, const QString& title) {
    QFont start(initial.name);
    if (initial.size > 0) start.setPointSizeF(initial.size);
    start.setBold(initial.bold);
    start.setItalic(initial.italic);
    start.setUnderline(initial.underline);
    bool ok = false;
    const QFont chosen = QFontDialog::getFont(&ok, start, dialogParent(), title);
    if (!ok) return std::nullopt;
    return FontChoice{chosen.family(), chosen.pointSizeF(), chosen.bold(), chosen.italic(),
                      chosen.underline()};
}

std::optional<QString> QtDialogs::inputBox(const QString& prompt, const QString& title,
                                           const QString& defaultText) {
    bool ok = false;
    const QString text =
        QInputDialog::getText(dialogParent(), title, plainLines(prompt), QLineEdit::Normal, defaultText, &ok);
    if (!ok) return std::nullopt;
    return text;
}

} // namespace ostrel::ui
