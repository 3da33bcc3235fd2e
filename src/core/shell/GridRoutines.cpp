#include "GridRoutines.h"

#include "controls/Controls.h"

#include <QStringList>

#include <algorithm>

namespace ostrel {

namespace {

constexpr int kLeastWheelPage = 10;

QStringList rowText(const Grid& grid, int row, int columns) {
    QStringList text;
    for (int c = 0; c < columns; ++c)
        text << grid.TextMatrix(row, c);
    return text;
}

void setRowText(Grid& grid, int row, const QStringList& text) {
    for (int c = 0; c < text.size(); ++c)
        grid.SetTextMatrix(row, c, text[c]);
}

} // namespace

void MoveGridRow(Grid& grid, int direction, int columns) {
    const int r = grid.row;
    if (columns <= 0 || r < 0 || r >= grid.Rows()) return;
    if (grid.TextMatrix(r, 0).isEmpty()) return;
    const QStringList moving = rowText(grid, r, columns);
    int neighbour = 0;
    if (direction == kMoveRowUp) {
        if (r == 1) return; // row 0 is the heading
        neighbour = r - 1;
    } else if (direction == kMoveRowDown) {
        neighbour = r + 1;
        if (neighbour >= grid.Rows() || grid.TextMatrix(neighbour, 0).isEmpty()) return;
    } else {
        return;
    }
    if (neighbour < 0) return;
    const QStringList other = rowText(grid, neighbour, columns);
    setRowText(grid, neighbour, moving);
    setRowText(grid, r, other);
}

int WheelTopRow(int topRow, int rows, int gridHeight, int headingRowHeight, int rotation) {
    if (headingRowHeight <= 0 || rows <= 1) return topRow; // nothing to measure a page by, or to show
    const int lines = std::max(gridHeight / headingRowHeight, kLeastWheelPage);
    if (rotation > 0) return std::max(topRow - lines, 1);
    return std::min(topRow + lines, rows - 1);
}

void ScrollGridByWheel(Grid& grid, int gridHeight, int headingRowHeight, int rotation) {
    grid.topRow = WheelTopRow(grid.topRow, grid.Rows(), gridHeight, headingRowHeight, rotation);
}

} // namespace ostrel
