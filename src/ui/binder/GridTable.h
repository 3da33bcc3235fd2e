#pragma once

#include "controls/Controls.h"

class QTableView;

namespace ostrel::ui {

// What every grid's table shares, whether it holds its own items or reads a model.

// Cells change through the program only; one cell is chosen at a time; the wheel pages.
void PrepareGridTable(QTableView* table);
// The model's column widths, when they changed since `synced`; the fixed column's width is the
// row headings' width.
void PushGridColumnWidths(QTableView* table, const Grid& grid, QVector<int>& synced);
// Scrolls to the model's top row when it changed since `synced`.
void PushGridTopRow(QTableView* table, const Grid& grid, int& synced);

} // namespace ostrel::ui
