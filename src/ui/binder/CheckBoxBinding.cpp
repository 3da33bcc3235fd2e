#include "CheckBoxBinding.h"

#include <QCheckBox>
#include <QTimer>

namespace ostrel::ui {

namespace {
Qt::CheckState toState(int value) {
    return value == 1 ? Qt::Checked : value == 2 ? Qt::PartiallyChecked : Qt::Unchecked;
}
int toValue(Qt::CheckState state) {
    return state == Qt::Checked ? 1 : state == Qt::PartiallyChecked ? 2 : 0;
}
} // namespace

CheckBoxBinding::CheckBoxBinding(Binder& binder, QCheckBox* box, CheckBox& model)
    : ControlBinding(binder, model, box), m_model(model) {
    // A mouse click or the space bar toggles, then clicks; an assistive tool's toggle action only
    // toggles. Either way the logic hears a Click once; the program's own pushes are not heard.
    connect(box, &QAbstractButton::toggled, this, [this] {
        if (pushing()) return;
        m_toggledWithoutClick = true;
        QTimer::singleShot(0, this, [this] {
            if (!m_toggledWithoutClick) return;
            m_toggledWithoutClick = false;
            pull();
            fire(handlers.click);
        });
    });
    connect(box, &QAbstractButton::clicked, this, [this] {
        if (pushing()) return;
        m_toggledWithoutClick = false;
        pull();
        if (takeClickAfterDoubleClick()) return;
        fire(handlers.click);
    });
}

void CheckBoxBinding::pushState() {
    auto* b = qobject_cast<QCheckBox*>(target());
    if (b->text() != m_model.caption) b->setText(m_model.caption);
    const Qt::CheckState state = toState(m_model.value);
    // Grayed is for the program to set; a user's click goes between clear and ticked.
    if (state == Qt::PartiallyChecked && !b->isTristate()) b->setTristate(true);
    if (state != Qt::PartiallyChecked && b->isTristate()) b->setTristate(false);
    if (b->checkState() != state) b->setCheckState(state);
}

void CheckBoxBinding::pull() {
    m_model.value = toValue(qobject_cast<QCheckBox*>(target())->checkState());
}

} // namespace ostrel::ui
