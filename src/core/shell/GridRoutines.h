#pragma once

namespace ostrel {

struct Grid;

// Direction of MoveGridRow.
constexpr int kMoveRowDown = 0;
constexpr int kMoveRowUp = -1;

// Swaps the text of columns 0 to columns - 1 of the current row with its neighbour below
// (kMoveRowDown) or above (kMoveRowUp). Nothing moves when the current row is empty in column 0,
// when going up from row 1 (row 0 is the heading), when the row below is empty in column 0, or for
// any other direction. The current row stays where it was: the selection does not follow the text.
void MoveGridRow(Grid& grid, int direction, int columns);

// The top row after one step of the mouse wheel: a page of the rows that fit the grid's height,
// never fewer than ten. A positive rotation (away from the user) goes up, towards row 1; anything
// else goes down, at most to the last row. A heading row of no height leaves the top row as it is.
int WheelTopRow(int topRow, int rows, int gridHeight, int headingRowHeight, int rotation);

// The same applied to a grid model, whose top row it sets.
void ScrollGridByWheel(Grid& grid, int gridHeight, int headingRowHeight, int rotation);

} // namespace ostrel
