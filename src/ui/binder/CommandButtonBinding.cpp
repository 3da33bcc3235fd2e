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
    // The default mark moves when the model's changes, so a view's own setDefault stands otherwise.
    if (auto* p = qobject_cast<QPushButton*>(b); p && m_model.isDefault != m_syncedDefault) {
        p->setDefault(m_model.isDefault);
        m_syncedDefault = m_model.isDefault;
    }
}

} // namespace ostrel::ui
