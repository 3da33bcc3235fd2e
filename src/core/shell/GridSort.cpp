#include "GridSort.h"

#include "controls/Controls.h"

#include <algorithm>
#include <optional>

namespace ostrel {

namespace {

struct Key {
    std::optional<double> number;
    QString text;
};

// True when the text cannot be a number: it holds a plain character no number form uses. Sorting a
// long list by names then skips the number parser for each.
bool plainlyText(QStringView t) {
    for (const QChar ch : t) {
        const char16_t u = ch.unicode();
        if (u >= 0x80) return false; // left to the parser
        if ((u >= u'0' && u <= u'9') || QStringView(u" .,+-eEiInNfFaAtTyYxXpP").contains(ch)) continue;
        return true;
    }
    return t.isEmpty();
}

Key keyOf(const QString& cell) {
    Key k;
    const QStringView t = QStringView(cell).trimmed();
    // Whole numbers of up to 15 digits are exact doubles, as the parser would give them.
    if (!t.isEmpty() && t.size() <= 15 && std::all_of(t.begin(), t.end(), [](QChar c) { return c >= u'0' && c <= u'9'; })) {
        qint64 n = 0;
        for (const QChar c : t) n = n * 10 + (c.unicode() - u'0');
        k.number = static_cast<double>(n);
        return k;
    }
    bool ok = false;
    const double d = plainlyText(t) ? 0 : t.toDouble(&ok);
    if (ok) k.number = d;
    else k.text = cell;
    return k;
}

// Negative, zero or positive as a is before, level with or after b.
int compareKeys(const Key& a, const Key& b) {
    if (a.number && b.number) return *a.number < *b.number ? -1 : (*a.number > *b.number ? 1 : 0);
    if (a.number) return -1;
    if (b.number) return 1;
    return QString::compare(a.text, b.text, Qt::CaseInsensitive);
}

} // namespace

void SortGridGeneric(Grid& grid, int column, bool descending) {
    const int first = grid.fixedRows;
    const int rows = grid.Rows();
    const int cols = grid.Cols();
    if (rows - first < 2 || column < 0 || column >= cols) return;

    struct Row {
        Key key;
        QStringList cells;
    };
    std::vector<Row> data;
    data.reserve(static_cast<size_t>(rows - first));
    for (int r = first; r < rows; ++r) {
        Row row;
        for (int c = 0; c < cols; ++c) row.cells.append(grid.TextMatrix(r, c));
        row.key = keyOf(row.cells[column]);
        data.push_back(std::move(row));
    }
    std::stable_sort(data.begin(), data.end(), [descending](const Row& a, const Row& b) {
        const int c = compareKeys(a.key, b.key);
        return descending ? c > 0 : c < 0;
    });
    for (int r = first; r < rows; ++r)
        for (int c = 0; c < cols; ++c) grid.SetTextMatrix(r, c, data[static_cast<size_t>(r - first)].cells[c]);
}

} // namespace ostrel
