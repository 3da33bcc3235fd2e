#include "ImageBinding.h"

#include <QLabel>
#include <QPixmap>

namespace ostrel::ui {

ImageBinding::ImageBinding(Binder& binder, QLabel* label, Image& model)
    : ControlBinding(binder, model, label), m_model(model) {
    watchMouseClicks();
}

void ImageBinding::pushState() {
    // Loading a picture is slow next to the rest of a push: only when the model names another.
    if (m_pushedOnce && m_shown == m_model.picture) return;
    m_pushedOnce = true;
    m_shown = m_model.picture;
    auto* l = qobject_cast<QLabel*>(target());
    if (m_model.picture.isEmpty())
        l->clear();
    else
        l->setPixmap(QPixmap(m_model.picture));
}

} // namespace ostrel::ui
