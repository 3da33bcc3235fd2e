#include "GridTable.h"
#include "GridGeometry.h"
#include "GridWheel.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>

#include <algorithm>

namespace ostrel::ui {

void PrepareGridTable(QTableView* table) {
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setSelectionBehavior(QAbstractItemView::SelectItems);
    table->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    table->setSortingEnabled(false);
    InstallGridWheel(table);
}

void PushGridColumnWidths(QTableView* table, const Grid& grid, QVector<int>& synced) {
    if (grid.colWidths == synced) return;
    synced = grid.colWidths;
    const int co = gridColOffset(grid);
    for (int c = 0; c < grid.colWidths.size() && c < grid.Cols(); ++c) {
        const int px = twipsToPixels(grid.colWidths[c], table);
        if (c < co)
            table->verticalHeader()->setFixedWidth(px);
        else
            table->setColumnWidth(c - co, px);
    }
}

void PushGridTopRow(QTableView* table, const Grid& grid, int& synced) {
    if (grid.topRow == synced) return;
    synced = grid.topRow;
    table->verticalScrollBar()->setValue(std::max(0, grid.topRow - gridRowOffset(grid)));
}

} // namespace ostrel::ui
