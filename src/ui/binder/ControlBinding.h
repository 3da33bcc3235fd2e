#pragma once

#include "controls/Controls.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>

class QKeyEvent;
class QLabel;
class QWidget;

namespace ostrel::ui {

class Binder;

// The handlers a screen gives for one control's events, named as the legacy events.
struct ControlHandlers {
    std::function<void()> click;
    std::function<void()> doubleClick;
    std::function<void()> change;
    std::function<void()> gotFocus;
    std::function<void()> lostFocus;
    std::function<void(int& keyAscii)> keyPress;
    std::function<void(int& keyCode, int shift)> keyDown;
    std::function<void(int& keyCode, int shift)> keyUp;
    std::function<void()> closeUp; // a date picker's drop-down closed on a date
};

// One widget joined to its control model. The kind-specific part pushes the model's state into the
// widget and pulls the user's edits back before an event's handler runs; this base does what every
// kind shares: enabled, visible, tooltip, accessible name, focus, mouse, focus and key events.
class ControlBinding : public QObject {
    Q_OBJECT
public:
    ControlBinding(Binder& binder, Control& model, QObject* target);
    ~ControlBinding() override;

    Control& model() const { return m_model; }
    QObject* target() const { return m_target.data(); }
    QWidget* widget() const;

    // Model -> widget.
    void push();
    // After every binding has pushed: read back what the widgets settled (radio exclusivity).
    virtual void settle() {}

    ControlHandlers handlers;

protected:
    virtual void pushState() = 0;
    // Widget -> model, for what the user can change.
    virtual void pull() {}
    // The caption that names the control to assistive tools; empty: the buddy label's text.
    virtual QString caption() const { return QString(); }

    // Runs a handler now, or after the current push when one is under way.
    void fire(const std::function<void()>& handler);
    // The signals of a widget also fire while the binder pushes; those are not the user's.
    static bool pushing();
    // Widgets with no click signal of their own report clicks from the mouse.
    void watchMouseClicks() { m_mouseClicks = true; }
    // Lists and grids report double clicks by their own signals.
    void ownDoubleClick() { m_ownDoubleClick = true; }
    // A window shows, hides and names itself in pushState; the shared part leaves it alone.
    void pushesOwnState() { m_ownState = true; }
    // A click signal that follows a double click belongs to it, as in the legacy event order.
    bool takeClickAfterDoubleClick();
    // True while a key the key-press handler let through is being typed into the widget.
    bool typing() const { return m_typing; }

    bool eventFilter(QObject* watched, QEvent* event) override;

    Binder& m_binder;

private:
    bool keyPress(QKeyEvent* key);
    QString accessibleText();

    Control& m_model;
    QPointer<QObject> m_target;
    QPointer<QLabel> m_buddy;
    bool m_mouseClicks = false;
    bool m_ownDoubleClick = false;
    bool m_ownState = false;
    bool m_afterDoubleClick = false;
    bool m_typing = false;
};

} // namespace ostrel::ui
