#include "ControlBinding.h"

#include "Binder.h"
#include "KeyCodes.h"
#include "Mnemonic.h"

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QWidget>

namespace ostrel::ui {

namespace {

// Focus that comes and goes with the window (a message box, another program) is not a move from
// one control to another, so it is no LostFocus or GotFocus.
bool movesBetweenControls(const QFocusEvent* e) {
    return e->reason() != Qt::ActiveWindowFocusReason && e->reason() != Qt::PopupFocusReason;
}

int qtKeyForCharacter(int code) {
    switch (code) {
    case 8:
        return Qt::Key_Backspace;
    case 13:
        return Qt::Key_Return;
    case 27:
        return Qt::Key_Escape;
    default:
        return QChar(code).toUpper().unicode();
    }
}

// Ctrl shortcuts (copy, paste, undo) act as on any desktop; the legacy key handlers see the
// printable characters and Backspace, Enter and Escape.
bool isHandlerKey(int code) {
    return code >= 32 || code == 8 || code == 13 || code == 27;
}

} // namespace

ControlBinding::ControlBinding(Binder& binder, Control& model, QObject* target)
    : m_binder(binder), m_model(model), m_target(target) {
    target->installEventFilter(this);
    if (auto* area = qobject_cast<QAbstractScrollArea*>(target)) area->viewport()->installEventFilter(this);
}

ControlBinding::~ControlBinding() = default;

QWidget* ControlBinding::widget() const {
    return qobject_cast<QWidget*>(m_target.data());
}

bool ControlBinding::pushing() {
    return Binder::syncing();
}

void ControlBinding::fire(const std::function<void()>& handler) {
    if (handler) m_binder.dispatch(handler);
}

bool ControlBinding::takeClickAfterDoubleClick() {
    const bool after = m_afterDoubleClick;
    m_afterDoubleClick = false;
    return after;
}

void ControlBinding::push() {
    if (!m_target) return;
    pushState();
    QWidget* w = widget();
    if (!w || m_ownState) return;
    // Only what the model itself disables or hides: a parent's state stays the parent's.
    if (w->testAttribute(Qt::WA_ForceDisabled) == m_model.enabled) w->setEnabled(m_model.enabled);
    if (w->isHidden() == m_model.visible) w->setVisible(m_model.visible);
    if (w->toolTip() != m_model.toolTip) w->setToolTip(m_model.toolTip);
    const QString name = accessibleText();
    if (!name.isEmpty() && w->accessibleName() != name) w->setAccessibleName(name);
    if (m_model.focusRequested) {
        m_model.focusRequested = false;
        Binder::requestFocus(w);
    }
}

QString ControlBinding::accessibleText() {
    QString text = StripMnemonic(caption());
    if (text.isEmpty()) {
        QWidget* w = widget();
        if (!m_buddy && w) {
            for (QLabel* label : w->window()->findChildren<QLabel*>()) {
                if (label->buddy() == w) {
                    m_buddy = label;
                    break;
                }
            }
        }
        if (m_buddy) text = StripMnemonic(m_buddy->text());
    }
    if (text.isEmpty()) text = m_model.toolTip;
    return text.trimmed();
}

bool ControlBinding::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::FocusIn:
        if (watched == m_target && movesBetweenControls(static_cast<QFocusEvent*>(event)))
            fire(handlers.gotFocus);
        break;
    case QEvent::FocusOut:
        if (watched == m_target && movesBetweenControls(static_cast<QFocusEvent*>(event))) {
            pull();
            Binder::FocusEventScope scope;
            fire(handlers.lostFocus);
        }
        break;
    case QEvent::KeyPress:
        if (watched == m_target && !m_typing) return keyPress(static_cast<QKeyEvent*>(event));
        break;
    case QEvent::KeyRelease:
        if (watched == m_target && handlers.keyUp) {
            auto* k = static_cast<QKeyEvent*>(event);
            int code = VbKeyCode(k->key());
            if (code != 0) {
                const int shift = VbShiftState(k->modifiers());
                pull();
                m_binder.run([&] { handlers.keyUp(code, shift); });
                if (code == 0) return true;
            }
        }
        break;
    case QEvent::MouseButtonRelease:
        if (m_mouseClicks && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
            if (takeClickAfterDoubleClick()) break;
            auto* w = qobject_cast<QWidget*>(watched);
            if (w && w->rect().contains(static_cast<QMouseEvent*>(event)->position().toPoint()))
                fire(handlers.click);
        }
        break;
    case QEvent::MouseButtonDblClick:
        if (!m_ownDoubleClick && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
            m_afterDoubleClick = true;
            pull();
            fire(handlers.doubleClick);
        }
        break;
    default:
        break;
    }
    return false;
}

bool ControlBinding::keyPress(QKeyEvent* key) {
    if (handlers.keyDown) {
        int code = VbKeyCode(key->key());
        if (code != 0) {
            const int shift = VbShiftState(key->modifiers());
            pull();
            m_binder.run([&] { handlers.keyDown(code, shift); });
            if (code == 0) return true;
        }
    }
    const QString text = key->text();
    if (!handlers.keyPress || text.isEmpty() || key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab ||
        !isHandlerKey(text.at(0).unicode()))
        return false;
    const int original = text.at(0).unicode();
    int ascii = original;
    pull();
    m_binder.run([&] { handlers.keyPress(ascii); });
    if (ascii == 0) return true; // the handler swallowed the key
    QWidget* w = widget();
    if (!w) return false;
    // Type the key (or the one the handler put in its place) now, knowing it is typed, not pasted.
    QKeyEvent typed(QEvent::KeyPress, ascii == original ? key->key() : qtKeyForCharacter(ascii),
                    key->modifiers(), ascii == original ? text : QString(QChar(ascii)), key->isAutoRepeat(),
                    key->count());
    typed.setAccepted(true);
    // A key the box does not want (Enter in a one-line box) travels on to its parents from here,
    // as the original would have.
    m_typing = true;
    QCoreApplication::sendEvent(w, &typed);
    m_typing = false;
    return true;
}

} // namespace ostrel::ui
