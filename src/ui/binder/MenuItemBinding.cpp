#include "MenuItemBinding.h"

#include <QAction>

namespace ostrel::ui {

MenuItemBinding::MenuItemBinding(Binder& binder, QAction* action, MenuItem& model)
    : ControlBinding(binder, model, action), m_model(model) {
    connect(action, &QAction::triggered, this, [this] {
        if (!pushing()) fire(handlers.click);
    });
}

void MenuItemBinding::pushState() {
    auto* a = qobject_cast<QAction*>(target());
    if (a->text() != m_model.caption) a->setText(m_model.caption);
    if (a->isEnabled() != m_model.enabled) a->setEnabled(m_model.enabled);
    if (a->isVisible() != m_model.visible) a->setVisible(m_model.visible);
    if (a->toolTip() != m_model.toolTip && !m_model.toolTip.isEmpty()) a->setToolTip(m_model.toolTip);
    if (m_model.checked && !a->isCheckable()) a->setCheckable(true);
    if (a->isChecked() != m_model.checked) a->setChecked(m_model.checked);
}

} // namespace ostrel::ui
