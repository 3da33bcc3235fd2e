#include "FrameBinding.h"

#include <QGroupBox>

namespace ostrel::ui {

FrameBinding::FrameBinding(Binder& binder, QWidget* frame, Frame& model)
    : ControlBinding(binder, model, frame), m_model(model) {
    watchMouseClicks();
}

void FrameBinding::pushState() {
    if (auto* g = qobject_cast<QGroupBox*>(target()); g && g->title() != m_model.caption)
        g->setTitle(m_model.caption);
}

} // namespace ostrel::ui
