#include "LabelBinding.h"

#include <QLabel>

namespace ostrel::ui {

LabelBinding::LabelBinding(Binder& binder, QLabel* label, Label& model)
    : ControlBinding(binder, model, label), m_model(model) {
    // Captions are data: a "<" in a customer's name is not markup.
    label->setTextFormat(Qt::PlainText);
    watchMouseClicks();
}

void LabelBinding::pushState() {
    auto* l = qobject_cast<QLabel*>(target());
    if (l->text() != m_model.caption) l->setText(m_model.caption);
}

} // namespace ostrel::ui
