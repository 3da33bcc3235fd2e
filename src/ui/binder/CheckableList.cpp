#include "CheckableList.h"

#include "Binder.h"

#include <QAbstractItemModel>
#include <QListWidget>
#include <QSignalBlocker>
#include <QTimer>

namespace ostrel::ui {

CheckableList::CheckableList(QListWidget* list, Binder& binder, IsChecked checked, Changed changed)
    : QObject(list), m_list(list), m_binder(binder), m_checked(std::move(checked)), m_changed(std::move(changed)) {
    connect(list, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
        const int row = m_list->row(item);
        const bool ticked = item->checkState() == Qt::Checked;
        if (row < 0 || ticked == m_checked(row)) return;
        m_binder.run([this, row, ticked] { m_changed(row, ticked); });
        showSoon();
    });
    // The binder refills the list when its entries change: the new items get their boxes.
    connect(list->model(), &QAbstractItemModel::rowsInserted, this, [this] { showSoon(); });
    show();
}

void CheckableList::show() {
    const QSignalBlocker quiet(m_list);
    for (int i = 0; i < m_list->count(); ++i) {
        QListWidgetItem* item = m_list->item(i);
        if (!(item->flags() & Qt::ItemIsUserCheckable)) item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        const Qt::CheckState state = m_checked(i) ? Qt::Checked : Qt::Unchecked;
        if (!item->data(Qt::CheckStateRole).isValid() || item->checkState() != state) item->setCheckState(state);
    }
    m_list->viewport()->update();
}

void CheckableList::showSoon() {
    QTimer::singleShot(0, this, [this] { show(); });
}

} // namespace ostrel::ui
