#include "ComboBoxBinding.h"

#include <QComboBox>
#include <QLineEdit>

namespace ostrel::ui {

ComboBoxBinding::ComboBoxBinding(Binder& binder, QComboBox* combo, ListControl& model)
    : ControlBinding(binder, model, combo), m_model(model) {
    combo->setInsertPolicy(QComboBox::NoInsert); // the list is the model's to change
    connect(combo, &QComboBox::activated, this, [this] {
        if (pushing()) return;
        pull();
        fire(handlers.click);
    });
    if (QLineEdit* edit = combo->lineEdit()) {
        connect(edit, &QLineEdit::textEdited, this, [this] {
            if (pushing()) return;
            pull();
            fire(handlers.change);
        });
    }
}

QComboBox* ComboBoxBinding::combo() const {
    return qobject_cast<QComboBox*>(target());
}

void ComboBoxBinding::pull() {
    QComboBox* c = combo();
    if (c->isEditable()) {
        m_model.text = c->currentText();
        // Typed text that is not an item leaves no item chosen.
        const int index = c->currentIndex();
        m_model.listIndex = index >= 0 && index < m_model.ListCount() && m_model.items[index] == m_model.text
                                ? index
                                : int(m_model.items.indexOf(m_model.text));
    } else {
        const int index = c->currentIndex();
        m_model.listIndex = index >= 0 && index < m_model.ListCount() ? index : -1;
        m_model.text = m_model.listIndex >= 0 ? m_model.items[m_model.listIndex] : QString();
    }
}

void ComboBoxBinding::pushState() {
    QComboBox* c = combo();
    bool same = c->count() == m_model.ListCount();
    for (int i = 0; same && i < c->count(); ++i)
        same = c->itemText(i) == m_model.items[i];
    if (!same) {
        c->clear();
        c->addItems(m_model.items);
    }
    const int index = m_model.listIndex < m_model.ListCount() ? m_model.listIndex : -1;
    if (c->currentIndex() != index) c->setCurrentIndex(index);
    if (c->isEditable() && c->currentText() != m_model.text) c->setEditText(m_model.text);
}

} // namespace ostrel::ui
