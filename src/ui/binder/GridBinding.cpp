#include "GridBinding.h"
#include "GridGeometry.h"
#include "GridTable.h"

#include "platform/QtColour.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTableWidget>

namespace ostrel::ui {

namespace {

void setColour(QTableWidgetItem* item, int role, const QColor& colour) {
    const QVariant now = item->data(role);
    if (!colour.isValid()) {
        if (now.isValid()) item->setData(role, QVariant());
    } else if (!now.isValid() || now.value<QBrush>().color() != colour) {
        item->setData(role, QBrush(colour));
    }
}

} // namespace

GridBinding::GridBinding(Binder& binder, QTableWidget* table, Grid& model)
    : ControlBinding(binder, model, table), m_model(model) {
    ownDoubleClick();
    PrepareGridTable(table);
    connect(table, &QTableWidget::cellClicked, this, [this] {
        if (pushing()) return;
        pull();
        fire(handlers.click);
    });
    connect(table, &QTableWidget::cellDoubleClicked, this, [this] {
        if (pushing()) return;
        pull();
        fire(handlers.doubleClick);
    });
    connect(table, &QTableWidget::currentCellChanged, this, [this] {
        if (!pushing()) pull();
    });
    connect(table->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (!pushing()) pull();
    });
}

int GridBinding::rowOffset() const { return gridRowOffset(m_model); }
int GridBinding::colOffset() const { return gridColOffset(m_model); }

QTableWidget* GridBinding::table() const {
    return qobject_cast<QTableWidget*>(target());
}

void GridBinding::pull() {
    QTableWidget* t = table();
    if (t->currentRow() >= 0 && t->currentColumn() >= 0) {
        m_model.row = t->currentRow() + rowOffset();
        m_model.col = t->currentColumn() + colOffset();
    }
    m_model.topRow = t->verticalScrollBar()->value() + rowOffset();
    m_syncedTopRow = m_model.topRow;
}

void GridBinding::pushItem(QTableWidgetItem* item, int r, int c, bool fixed) {
    const QString text = m_model.TextMatrix(r, c);
    if (item->text() != text) item->setText(text);
    QColor back = toQColor(m_model.CellBackColor(r, c));
    if (!back.isValid() && fixed) back = table()->palette().color(QPalette::Button);
    setColour(item, Qt::BackgroundRole, back);
    setColour(item, Qt::ForegroundRole, toQColor(m_model.CellForeColor(r, c)));
    const Qt::ItemFlags flags = fixed ? Qt::ItemIsEnabled : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (item->flags() != flags) item->setFlags(flags);
}

void GridBinding::pushHeaders() {
    QTableWidget* t = table();
    const int ro = rowOffset();
    const int co = colOffset();
    t->horizontalHeader()->setVisible(ro > 0);
    t->verticalHeader()->setVisible(co > 0);
    if (ro > 0) {
        for (int c = co; c < m_model.Cols(); ++c) {
            QTableWidgetItem* h = t->horizontalHeaderItem(c - co);
            if (!h) t->setHorizontalHeaderItem(c - co, h = new QTableWidgetItem);
            if (h->text() != m_model.TextMatrix(0, c)) h->setText(m_model.TextMatrix(0, c));
        }
    }
    if (co > 0) {
        for (int r = ro; r < m_model.Rows(); ++r) {
            QTableWidgetItem* h = t->verticalHeaderItem(r - ro);
            if (!h) t->setVerticalHeaderItem(r - ro, h = new QTableWidgetItem);
            if (h->text() != m_model.TextMatrix(r, 0)) h->setText(m_model.TextMatrix(r, 0));
        }
    }
}

void GridBinding::pushState() {
    QTableWidget* t = table();
    const int ro = rowOffset();
    const int co = colOffset();
    const int rows = std::max(0, m_model.Rows() - ro);
    const int cols = std::max(0, m_model.Cols() - co);
    if (t->rowCount() != rows) t->setRowCount(rows);
    if (t->columnCount() != cols) t->setColumnCount(cols);
    if (m_model.Rows() > 0 && m_model.Cols() > 0) pushHeaders();
    for (int r = ro; r < m_model.Rows(); ++r) {
        for (int c = co; c < m_model.Cols(); ++c) {
            QTableWidgetItem* item = t->item(r - ro, c - co);
            if (!item) t->setItem(r - ro, c - co, item = new QTableWidgetItem);
            pushItem(item, r, c, r < m_model.fixedRows || c < m_model.fixedCols);
        }
    }
    PushGridColumnWidths(t, m_model, m_syncedWidths);
    const int row = m_model.row - ro;
    const int col = m_model.col - co;
    if (row >= 0 && row < rows && col >= 0 && col < cols) {
        if (t->currentRow() != row || t->currentColumn() != col) t->setCurrentCell(row, col);
    } else if (t->currentRow() >= 0 && m_model.row < ro) {
        t->setCurrentCell(-1, -1);
    }
    PushGridTopRow(t, m_model, m_syncedTopRow);
}

} // namespace ostrel::ui
