#include "ScreenView.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QShowEvent>

namespace ostrel::ui {

ScreenView::ScreenView(Dialogs& dialogs, QWidget* parent)
    : QWidget(parent, Qt::Window), m_binder(dialogs, this) {}

void ScreenView::closeEvent(QCloseEvent* event) {
    event->accept();
    if (Frame* form = m_binder.form()) form->visible = false;
    // Only the window manager's close (the frame's button) is the user's; a close the program asks
    // for has no effect of its own.
    if (event->spontaneous() && m_exit) m_binder.dispatch(m_exit);
}

void ScreenView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!event->spontaneous() && m_activate) m_binder.dispatch(m_activate);
}

void ScreenView::keyPressEvent(QKeyEvent* event) {
    QAbstractButton* target = nullptr;
    if (event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier) {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            target = m_binder.defaultButton();
        if (event->key() == Qt::Key_Escape) target = m_binder.cancelButton();
    }
    if (target) {
        target->click();
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

} // namespace ostrel::ui
