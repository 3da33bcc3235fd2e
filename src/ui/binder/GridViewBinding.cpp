#include "GridViewBinding.h"
#include "GridGeometry.h"
#include "GridTable.h"

#include "platform/QtColour.h"

#include <QBrush>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>

namespace ostrel::ui {

GridTableModel::GridTableModel(Grid& grid, QObject* parent) : QAbstractTableModel(parent), m_grid(grid) {}

int GridTableModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : m_rows; }
int GridTableModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : m_cols; }

bool GridTableModel::fixed(int row, int col) const {
    return row + gridRowOffset(m_grid) < m_grid.fixedRows || col + gridColOffset(m_grid) < m_grid.fixedCols;
}

QVariant GridTableModel::data(const QModelIndex& index, int role) const {
    const int r = index.row() + gridRowOffset(m_grid);
    const int c = index.column() + gridColOffset(m_grid);
    // The grid may have changed since the view last heard of its shape.
    if (!index.isValid() || r >= m_grid.Rows() || c >= m_grid.Cols()) return {};
    switch (role) {
    case Qt::DisplayRole:
        return m_grid.TextMatrix(r, c);
    case Qt::BackgroundRole: {
        QColor back = toQColor(m_grid.CellBackColor(r, c));
        if (!back.isValid() && fixed(index.row(), index.column())) back = m_fixedBack;
        return back.isValid() ? QVariant(QBrush(back)) : QVariant();
    }
    case Qt::ForegroundRole: {
        const QColor fore = toQColor(m_grid.CellForeColor(r, c));
        return fore.isValid() ? QVariant(QBrush(fore)) : QVariant();
    }
    default:
        return {};
    }
}

QVariant GridTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role == Qt::DisplayRole) {
        if (orientation == Qt::Horizontal && gridRowOffset(m_grid) > 0) {
            const int c = section + gridColOffset(m_grid);
            return m_grid.Rows() > 0 && c < m_grid.Cols() ? QVariant(m_grid.TextMatrix(0, c)) : QVariant();
        }
        if (orientation == Qt::Vertical && gridColOffset(m_grid) > 0) {
            const int r = section + gridRowOffset(m_grid);
            return r < m_grid.Rows() && m_grid.Cols() > 0 ? QVariant(m_grid.TextMatrix(r, 0)) : QVariant();
        }
    }
    return QAbstractTableModel::headerData(section, orientation, role);
}

Qt::ItemFlags GridTableModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    return fixed(index.row(), index.column()) ? Qt::ItemIsEnabled : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

void GridTableModel::refresh() {
    const int rows = std::max(0, m_grid.Rows() - gridRowOffset(m_grid));
    const int cols = std::max(0, m_grid.Cols() - gridColOffset(m_grid));
    if (rows != m_rows || cols != m_cols) {
        beginResetModel();
        m_rows = rows;
        m_cols = cols;
        endResetModel();
        return;
    }
    if (rows > 0 && cols > 0) Q_EMIT dataChanged(index(0, 0), index(rows - 1, cols - 1));
    if (cols > 0) Q_EMIT headerDataChanged(Qt::Horizontal, 0, cols - 1);
    if (rows > 0 && gridColOffset(m_grid) > 0) Q_EMIT headerDataChanged(Qt::Vertical, 0, rows - 1);
}

GridViewBinding::GridViewBinding(Binder& binder, QTableView* table, Grid& model)
    : ControlBinding(binder, model, table), m_model(model), m_cells(new GridTableModel(model, table)) {
    ownDoubleClick();
    m_cells->setFixedBackground(table->palette().color(QPalette::Button));
    table->setModel(m_cells);
    PrepareGridTable(table);
    connect(table, &QTableView::clicked, this, [this] {
        if (pushing()) return;
        pull();
        fire(handlers.click);
    });
    connect(table, &QTableView::doubleClicked, this, [this] {
        if (pushing()) return;
        pull();
        fire(handlers.doubleClick);
    });
    connect(table->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        if (!pushing()) pull();
    });
    connect(table->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (!pushing()) pull();
    });
}

QTableView* GridViewBinding::table() const {
    return qobject_cast<QTableView*>(target());
}

void GridViewBinding::pull() {
    QTableView* t = table();
    const QModelIndex current = t->currentIndex();
    if (current.isValid()) {
        m_model.row = current.row() + gridRowOffset(m_model);
        m_model.col = current.column() + gridColOffset(m_model);
    }
    m_model.topRow = t->verticalScrollBar()->value() + gridRowOffset(m_model);
    m_syncedTopRow = m_model.topRow;
}

void GridViewBinding::pushState() {
    QTableView* t = table();
    const int ro = gridRowOffset(m_model);
    const int co = gridColOffset(m_model);
    t->horizontalHeader()->setVisible(ro > 0);
    t->verticalHeader()->setVisible(co > 0);
    m_cells->refresh();
    const int rows = m_cells->rowCount();
    const int cols = m_cells->columnCount();
    PushGridColumnWidths(t, m_model, m_syncedWidths);
    const int row = m_model.row - ro;
    const int col = m_model.col - co;
    if (row >= 0 && row < rows && col >= 0 && col < cols) {
        const QModelIndex want = m_cells->index(row, col);
        if (t->currentIndex() != want) t->setCurrentIndex(want);
    } else if (t->currentIndex().isValid() && m_model.row < ro) {
        t->setCurrentIndex(QModelIndex());
    }
    PushGridTopRow(t, m_model, m_syncedTopRow);
}

} // namespace ostrel::ui
