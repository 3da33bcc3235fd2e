#pragma once

#include "ControlBinding.h"

#include <QVector>

class QTableWidget;
class QTableWidgetItem;

namespace ostrel::ui {

// A grid of text cells. The first fixed row of the model shows as the column headings and the first
// fixed column as the row headings, so they stay in sight when the grid scrolls; any further fixed
// rows or columns are gray cells that cannot be chosen. Model row r is table row r - 1 when the grid
// has fixed rows (the same for columns). Cell text and colours, the current cell, the top row and
// column widths (twips) are pushed; a user's click is pulled into row and col, then Click.
class GridBinding : public ControlBinding {
    Q_OBJECT
public:
    GridBinding(Binder& binder, QTableWidget* table, Grid& model);

protected:
    void pushState() override;
    void pull() override;

private:
    QTableWidget* table() const;
    int rowOffset() const;
    int colOffset() const;
    void pushItem(QTableWidgetItem* item, int r, int c, bool fixed);
    void pushHeaders();

    Grid& m_model;
    int m_syncedTopRow = -1;
    QVector<int> m_syncedWidths;
};

} // namespace ostrel::ui
