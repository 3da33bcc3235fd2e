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
    // A check box ticked or cleared by the user is a click on that item.
    connect(list, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
        if (pushing() || !m_model.checkBoxes) return;
        QListWidget* l = this->list();
        const int row = l->row(item);
        if (row >= 0 && l->currentRow() != row) {
            l->setCurrentRow(row); // runs the click of a new current row
            return;
        }
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
    if (m_model.checkBoxes)
        for (int i = 0; i < l->count() && i < m_model.ListCount(); ++i)
            m_model.SetSelected(i, l->item(i)->checkState() == Qt::Checked);
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
    if (m_model.checkBoxes) {
        for (int i = 0; i < l->count(); ++i) {
            QListWidgetItem* item = l->item(i);
            if (!(item->flags() & Qt::ItemIsUserCheckable)) item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
            const Qt::CheckState state = m_model.Selected(i) ? Qt::Checked : Qt::Unchecked;
            if (item->checkState() != state || !item->data(Qt::CheckStateRole).isValid()) item->setCheckState(state);
        }
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
