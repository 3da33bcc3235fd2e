#pragma once

#include <QAction>
#include <QLabel>
#include <QString>
#include <QWidget>

namespace ostrel::ui {

// Every widget of a view carries its control's name, so tests and the binder find it by name.
template <typename W> W* named(const QString& name, QWidget* parent) {
    auto* w = new W(parent);
    w->setObjectName(name);
    return w;
}

// The name of one element of a control array: "cmdNav(3)".
inline QString element(const char* base, int index) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(base)).arg(index);
}

// A menu entry named as its menu control.
inline QAction* namedAction(const QString& name, QObject* parent) {
    auto* a = new QAction(parent);
    a->setObjectName(name);
    return a;
}
inline QAction* namedAction(const char* name, QObject* parent) { return namedAction(QString::fromLatin1(name), parent); }

// A caption, tied to the box it names so that its access key reaches the box.
inline QLabel* label(const QString& name, QWidget* parent, QWidget* buddy = nullptr) {
    auto* l = named<QLabel>(name, parent);
    if (buddy) l->setBuddy(buddy);
    return l;
}

} // namespace ostrel::ui
