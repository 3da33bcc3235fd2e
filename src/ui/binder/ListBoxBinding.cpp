#include "ListBoxBinding.h"

#include <QListWidget>

namespace ostrel::ui {

ListBoxBinding::ListBoxBinding(Binder& binder, QListWidget* list, ListControl& model)
    : ControlBinding(binder, model, list), m_model(model) {
    ownDoubleClick();
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setSortingEnabled(false); // the model keeps the order, sorted or not
    connect(list, &QListWidget::currentRowChanged, this, [this] {
        if (pushing()) return;
        pull();
        fire(handlers.click);
    });
    connect(list, &QListWidget::itemDoubleClicked, this, [this] {
        if (pushing()) return;
        pull();
        fire(handlers.doubleClick);
    });
}

QListWidget* ListBoxBinding::list() const {
    return qobject_cast<QListWidget*>(target());
}

void ListBoxBinding::pull() {
    QListWidget* l = list();
    const int row = l->currentRow();
    m_model.listIndex = row >= 0 && row < m_model.ListCount() ? row : -1;
    m_model.text = m_model.listIndex >= 0 ? m_model.items[m_model.listIndex] : QString();
}

void ListBoxBinding::pushState() {
    QListWidget* l = list();
    bool same = l->count() == m_model.ListCount();
    for (int i = 0; same && i < l->count(); ++i)
        same = l->item(i)->text() == m_model.items[i];
    if (!same) {
        l->clear();
        l->addItems(m_model.items);
    }
    const int index = m_model.listIndex < m_model.ListCount() ? m_model.listIndex : -1;
    if (l->currentRow() != index) {
        l->setCurrentRow(index);
        if (index < 0)
            l->clearSelection();
        else
            l->scrollToItem(l->item(index));
    }
}

} // namespace ostrel::ui
