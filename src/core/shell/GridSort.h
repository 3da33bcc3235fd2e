#pragma once

namespace ostrel {

struct Grid;

// The grid's generic sort of the rows below the fixed ones by one column: two texts that are both
// numbers compare as numbers, a number goes before a text, and texts compare without regard to
// case. Rows that compare equal keep their order. Every column of a row moves with it.
void SortGridGeneric(Grid& grid, int column, bool descending);

} // namespace ostrel
