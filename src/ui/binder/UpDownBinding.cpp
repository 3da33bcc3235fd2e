#include "UpDownBinding.h"

#include <QAbstractSlider>
#include <QSpinBox>

namespace ostrel::ui {

UpDownBinding::UpDownBinding(Binder& binder, QAbstractSlider* slider, UpDown& model)
    : ControlBinding(binder, model, slider), m_model(model) {
    connect(slider, &QAbstractSlider::valueChanged, this, [this] { changed(); });
}

UpDownBinding::UpDownBinding(Binder& binder, QSpinBox* spin, UpDown& model)
    : ControlBinding(binder, model, spin), m_model(model) {
    connect(spin, &QSpinBox::valueChanged, this, [this] { changed(); });
}

QAbstractSlider* UpDownBinding::slider() const { return qobject_cast<QAbstractSlider*>(target()); }
QSpinBox* UpDownBinding::spin() const { return qobject_cast<QSpinBox*>(target()); }

void UpDownBinding::changed() {
    if (pushing()) return;
    pull();
    fire(handlers.change);
}

void UpDownBinding::pull() { m_model.value = slider() ? slider()->value() : spin()->value(); }

void UpDownBinding::pushState() {
    if (QAbstractSlider* s = slider()) {
        if (s->minimum() != m_model.min || s->maximum() != m_model.max) s->setRange(m_model.min, m_model.max);
        if (s->value() != m_model.value) s->setValue(m_model.value);
    } else if (QSpinBox* b = spin()) {
        if (b->minimum() != m_model.min || b->maximum() != m_model.max) b->setRange(m_model.min, m_model.max);
        if (b->value() != m_model.value) b->setValue(m_model.value);
    }
}

} // namespace ostrel::ui
