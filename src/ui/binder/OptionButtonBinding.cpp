#include "OptionButtonBinding.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QTimer>

namespace ostrel::ui {

OptionButtonBinding::OptionButtonBinding(Binder& binder, QRadioButton* button, OptionButton& model)
    : ControlBinding(binder, model, button), m_model(model) {
    // Both the chosen button and the one it clears report; each keeps its own model current. Also
    // during a push: a sibling cleared by the one just pushed must not be pushed back on.
    connect(button, &QAbstractButton::toggled, this, [this](bool on) {
        pull();
        if (!on || pushing()) return;
        m_chosenWithoutClick = true;
        QTimer::singleShot(0, this, [this] {
            if (!m_chosenWithoutClick) return;
            m_chosenWithoutClick = false;
            fire(handlers.click);
        });
    });
    connect(button, &QAbstractButton::clicked, this, [this] {
        m_chosenWithoutClick = false;
        if (pushing() || takeClickAfterDoubleClick()) return;
        fire(handlers.click);
    });
}

void OptionButtonBinding::pushState() {
    auto* b = qobject_cast<QRadioButton*>(target());
    if (b->text() != m_model.caption) b->setText(m_model.caption);
    if (b->isChecked() == m_model.value) return;
    if (m_model.value) {
        b->setChecked(true);
        return;
    }
    // An exclusive set will not let its chosen button go; the program may clear it all the same.
    QButtonGroup* group = b->group();
    const bool groupExclusive = group && group->exclusive();
    const bool autoExclusive = b->autoExclusive();
    if (groupExclusive) group->setExclusive(false);
    b->setAutoExclusive(false);
    b->setChecked(false);
    b->setAutoExclusive(autoExclusive);
    if (groupExclusive) group->setExclusive(true);
}

void OptionButtonBinding::pull() {
    m_model.value = qobject_cast<QRadioButton*>(target())->isChecked();
}

} // namespace ostrel::ui
