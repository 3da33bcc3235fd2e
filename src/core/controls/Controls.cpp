#include "Controls.h"

#include <stdexcept>

namespace ostrel {

int ListControl::AddItem(const QString& item, int index) {
    if (index < 0 || index > items.size()) {
        if (sorted) {
            index = 0;
            while (index < items.size() && QString::compare(items[index], item, Qt::CaseInsensitive) <= 0) ++index;
        } else {
            index = static_cast<int>(items.size());
        }
    }
    items.insert(index, item);
    itemData.insert(index, 0);
    if (listIndex >= index) ++listIndex;
    return index;
}

void ListControl::RemoveItem(int index) {
    if (index < 0 || index >= items.size()) throw std::out_of_range("list index outside the list");
    items.removeAt(index);
    itemData.removeAt(index);
    if (listIndex == index) {
        listIndex = -1;
    } else if (listIndex > index) {
        --listIndex;
    }
}

void ListControl::Clear() {
    items.clear();
    itemData.clear();
    listIndex = -1;
    text.clear();
}

void ListControl::SetItemData(int index, qint32 value) {
    if (index < 0 || index >= itemData.size()) throw std::out_of_range("list index outside the list");
    itemData[index] = value;
}

void ListControl::SetListIndex(int index) {
    if (index < -1 || index >= items.size()) throw std::out_of_range("list index outside the list");
    listIndex = index;
    text = index >= 0 ? items[index] : QString();
}

void Grid::SetRows(int rows) {
    const int old = Rows();
    m_cells.resize(rows);
    for (int r = old; r < rows; ++r) m_cells[r].resize(m_cols);
    if (row >= rows) row = rows > 0 ? rows - 1 : 0;
}

void Grid::SetCols(int cols) {
    m_cols = cols;
    for (auto& r : m_cells) r.resize(cols);
    if (col >= cols) col = cols > 0 ? cols - 1 : 0;
}

const Grid::Cell* Grid::cell(int r, int c) const {
    if (r < 0 || r >= Rows() || c < 0 || c >= m_cols) return nullptr;
    return &m_cells[r][c];
}

Grid::Cell& Grid::cellRef(int r, int c) {
    if (r < 0 || r >= Rows() || c < 0 || c >= m_cols) throw std::out_of_range("grid cell outside the grid");
    return m_cells[r][c];
}

QString Grid::TextMatrix(int r, int c) const {
    const Cell* x = cell(r, c);
    if (!x) throw std::out_of_range("grid cell outside the grid");
    return x->text;
}

void Grid::SetTextMatrix(int r, int c, const QString& text) { cellRef(r, c).text = text; }
Colour Grid::CellBackColor(int r, int c) const {
    const Cell* x = cell(r, c);
    return x ? x->back : kNoColour;
}
void Grid::SetCellBackColor(int r, int c, const Colour& color) { cellRef(r, c).back = color; }
Colour Grid::CellForeColor(int r, int c) const {
    const Cell* x = cell(r, c);
    return x ? x->fore : kNoColour;
}
void Grid::SetCellForeColor(int r, int c, const Colour& color) { cellRef(r, c).fore = color; }

void Grid::Clear() {
    for (auto& r : m_cells)
        for (auto& c : r) c = Cell{};
}

} // namespace ostrel
