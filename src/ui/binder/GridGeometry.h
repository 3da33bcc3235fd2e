#pragma once

#include "controls/Controls.h"

#include <QWidget>

namespace ostrel::ui {

// How a grid model lies on a table: its first fixed row shows as the column headings and its first
// fixed column as the row headings, so model row r is table row r - 1 when there are fixed rows
// (the same for columns).
inline int gridRowOffset(const Grid& g) { return g.fixedRows > 0 ? 1 : 0; }
inline int gridColOffset(const Grid& g) { return g.fixedCols > 0 ? 1 : 0; }

inline int twipsToPixels(int twips, const QWidget* w) { return twips * w->logicalDpiX() / 1440; }

} // namespace ostrel::ui
