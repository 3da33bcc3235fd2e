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
    if (m_source) {
        if (rows <= m_source->first) {
            m_source.reset();
        } else if (rows <= m_source->first + m_source->count) {
            m_source->count = rows - m_source->first;
            m_source->written.erase(m_source->written.lower_bound(rows), m_source->written.end());
        } else {
            storeEveryRow();
        }
    }
    if (!m_source) resizeStored(rows);
    if (row >= rows) row = rows > 0 ? rows - 1 : 0;
}

void Grid::resizeStored(int rows) {
    const int old = static_cast<int>(m_cells.size());
    m_cells.resize(rows);
    for (int r = old; r < rows; ++r) m_cells[r].resize(m_cols);
}

void Grid::SetCols(int cols) {
    storeEveryRow();
    m_cols = cols;
    for (auto& r : m_cells) r.resize(cols);
    if (col >= cols) col = cols > 0 ? cols - 1 : 0;
}

void Grid::SetRowSource(int first, int count, RowText text) {
    if (first < 0 || count < 0) throw std::out_of_range("grid rows below zero");
    m_source.reset();
    resizeStored(first);
    m_source = Source{first, count, std::move(text), {}};
    const int rows = Rows();
    if (row >= rows) row = rows > 0 ? rows - 1 : 0;
}

QVector<Grid::Cell> Grid::sourceRow(const Source& source, int r, int cols) {
    QVector<Cell> cells(cols);
    if (source.text)
        for (int c = 0; c < cols; ++c) cells[c].text = source.text(r, c);
    return cells;
}

void Grid::storeEveryRow() {
    if (!m_source) return;
    Source source = std::move(*m_source);
    m_source.reset();
    m_cells.reserve(source.first + source.count);
    for (int r = source.first; r < source.first + source.count; ++r) {
        const auto w = source.written.find(r);
        m_cells.append(w != source.written.end() ? std::move(w->second) : sourceRow(source, r, m_cols));
    }
}

void Grid::checkCell(int r, int c) const {
    if (r < 0 || r >= Rows() || c < 0 || c >= m_cols) throw std::out_of_range("grid cell outside the grid");
}

const Grid::Cell* Grid::storedCell(int r, int c) const {
    if (!onDemand(r)) return &m_cells[r][c];
    const auto w = m_source->written.find(r);
    return w == m_source->written.end() ? nullptr : &w->second[c];
}

Grid::Cell& Grid::cellRef(int r, int c) {
    checkCell(r, c);
    if (!onDemand(r)) return m_cells[r][c];
    auto w = m_source->written.find(r);
    if (w == m_source->written.end()) w = m_source->written.emplace(r, sourceRow(*m_source, r, m_cols)).first;
    return w->second[c];
}

QString Grid::TextMatrix(int r, int c) const {
    checkCell(r, c);
    if (const Cell* x = storedCell(r, c)) return x->text;
    return m_source->text ? m_source->text(r, c) : QString();
}

void Grid::SetTextMatrix(int r, int c, const QString& text) { cellRef(r, c).text = text; }
void Grid::SetTextMatrix(int r, int c, QString&& text) { cellRef(r, c).text = std::move(text); }

Colour Grid::CellBackColor(int r, int c) const {
    if (r < 0 || r >= Rows() || c < 0 || c >= m_cols) return kNoColour;
    const Cell* x = storedCell(r, c);
    return x ? x->back : kNoColour;
}
void Grid::SetCellBackColor(int r, int c, const Colour& color) { cellRef(r, c).back = color; }

Colour Grid::CellForeColor(int r, int c) const {
    if (r < 0 || r >= Rows() || c < 0 || c >= m_cols) return kNoColour;
    const Cell* x = storedCell(r, c);
    return x ? x->fore : kNoColour;
}
void Grid::SetCellForeColor(int r, int c, const Colour& color) { cellRef(r, c).fore = color; }

void Grid::Clear() {
    for (auto& r : m_cells)
        for (auto& c : r) c = Cell{};
    if (m_source) {
        m_source->text = nullptr;
        m_source->written.clear();
    }
}

} // namespace ostrel
