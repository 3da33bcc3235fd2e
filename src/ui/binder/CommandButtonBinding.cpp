#include "CommandButtonBinding.h"

#include <QAbstractButton>
#include <QPushButton>

namespace ostrel::ui {

CommandButtonBinding::CommandButtonBinding(Binder& binder, QAbstractButton* button, CommandButton& model)
    : ControlBinding(binder, model, button), m_model(model) {
    connect(button, &QAbstractButton::clicked, this, [this] {
        if (pushing() || takeClickAfterDoubleClick()) return;
        fire(handlers.click);
    });
}

void CommandButtonBinding::pushState() {
    auto* b = qobject_cast<QAbstractButton*>(target());
    if (b->text() != m_model.caption) b->setText(m_model.caption);
    if (auto* p = qobject_cast<QPushButton*>(b); p && p->isDefault() != m_model.isDefault) p->setDefault(m_model.isDefault);
}

} // namespace ostrel::ui
