#pragma once

// What a person does to a widget, delivered as the window system would deliver it.
#include <QApplication>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

// Qt lets this one class mark an event as coming from the window system, as the test library does.
class QSpontaneKeyEvent {
public:
    static void setSpontaneous(QEvent* event) { event->setSpontaneous(); }
};

namespace ostrel::test {

inline void typeKey(QWidget* w, int qtKey, const QString& text, Qt::KeyboardModifiers mods = Qt::NoModifier) {
    QKeyEvent press(QEvent::KeyPress, qtKey, mods, text);
    QCoreApplication::sendEvent(w, &press);
    QKeyEvent release(QEvent::KeyRelease, qtKey, mods, text);
    QCoreApplication::sendEvent(w, &release);
}

inline void typeText(QWidget* w, const QString& text) {
    for (QChar c : text)
        typeKey(w, QChar(c).toUpper().unicode(), QString(c));
}

inline void focusOut(QWidget* w, Qt::FocusReason reason = Qt::TabFocusReason) {
    QFocusEvent e(QEvent::FocusOut, reason);
    QCoreApplication::sendEvent(w, &e);
}

inline void focusIn(QWidget* w, Qt::FocusReason reason = Qt::TabFocusReason) {
    QFocusEvent e(QEvent::FocusIn, reason);
    QCoreApplication::sendEvent(w, &e);
}

inline void mouse(QWidget* w, QEvent::Type type, QPoint at = QPoint(-1, -1)) {
    if (at.x() < 0) at = w->rect().center();
    QMouseEvent e(type, QPointF(at), QPointF(w->mapToGlobal(at)), Qt::LeftButton,
                  type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(w, &e);
}

inline void click(QWidget* w, QPoint at = QPoint(-1, -1)) {
    mouse(w, QEvent::MouseButtonPress, at);
    mouse(w, QEvent::MouseButtonRelease, at);
}

// Press, release, double click, release: the order a double click arrives in.
inline void doubleClick(QWidget* w, QPoint at = QPoint(-1, -1)) {
    click(w, at);
    mouse(w, QEvent::MouseButtonDblClick, at);
    mouse(w, QEvent::MouseButtonRelease, at);
}

// Lets queued work (events arising during a push) run.
inline void settle() {
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

} // namespace ostrel::test
