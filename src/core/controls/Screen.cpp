#include "Screen.h"

namespace ostrel {

void Screen::setVisible(bool v) {
    if (m_visible == v) return;
    m_visible = v;
    if (visibilityChanged) visibilityChanged(*this);
}

void Screen::Show() {
    setVisible(true);
    Form_Activate();
    if (activated) activated(*this);
}

void Screen::Hide() { setVisible(false); }

} // namespace ostrel
