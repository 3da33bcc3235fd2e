#include "WindowBinding.h"

#include "Binder.h"

#include <QWidget>

namespace ostrel::ui {

WindowBinding::WindowBinding(Binder& binder, QWidget* window, Frame& form)
    : ControlBinding(binder, form, window), m_form(form) {
    pushesOwnState();
}

void WindowBinding::pushState() {
    QWidget* w = widget();
    if (w->windowTitle() != m_form.caption) w->setWindowTitle(m_form.caption);
    if (w->isEnabled() != m_form.enabled) w->setEnabled(m_form.enabled);
    if (m_form.visible && w->isHidden()) Binder::requestShow(w);
    if (!m_form.visible && !w->isHidden()) w->hide();
    if (w->toolTip() != m_form.toolTip) w->setToolTip(m_form.toolTip);
    if (m_form.focusRequested) {
        m_form.focusRequested = false;
        w->activateWindow();
    }
}

} // namespace ostrel::ui
