#pragma once

#include "ControlBinding.h"

#include <QAbstractTableModel>
#include <QColor>
#include <QVector>

class QTableView;

namespace ostrel::ui {

// The cells of a grid model as an item model: a view asks for the cells it shows and nothing else,
// so a grid of many thousand rows (given on demand by its source) costs what one screenful does.
class GridTableModel : public QAbstractTableModel {
    Q_OBJECT
public:
    GridTableModel(Grid& grid, QObject* parent);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    // Takes the grid's present shape and tells the views that any cell may have changed.
    void refresh();
    // The background of the fixed cells below the headings.
    void setFixedBackground(const QColor& colour) { m_fixedBack = colour; }

private:
    bool fixed(int row, int col) const;
    Grid& m_grid;
    int m_rows = 0;
    int m_cols = 0;
    QColor m_fixedBack;
};

// A grid shown by a table view over GridTableModel; what it pushes and pulls is what GridBinding
// does for a table widget: cells, colours, the current cell, the top row and column widths, and a
// user's click pulled into row and col, then Click.
class GridViewBinding : public ControlBinding {
    Q_OBJECT
public:
    GridViewBinding(Binder& binder, QTableView* table, Grid& model);

protected:
    void pushState() override;
    void pull() override;

private:
    QTableView* table() const;

    Grid& m_model;
    GridTableModel* m_cells;
    int m_syncedTopRow = -1;
    QVector<int> m_syncedWidths;
};

} // namespace ostrel::ui
