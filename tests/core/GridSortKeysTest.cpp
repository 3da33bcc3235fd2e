#include "controls/Controls.h"
#include "shell/GridSort.h"

#include <algorithm>

#include <gtest/gtest.h>

using namespace ostrel;

TEST(GridSortKeys, NumbersBeforeTextsNumbersByValueTextsWithoutCase) {
    Grid g;
    g.fixedRows = 1;
    g.SetCols(1);
    const QStringList cells = {"beta",  "10",   "Alpha", "9",     " 2 ", "1.5", "-3",  "1e2",
                               "inf",   "0010", "x9",    "1,000", "",    "n/a", "+4",  "Customer 12",
                               "0x10",  "12 3", "007",   "10.0",  "e",   "-",   "1e",  "999999999999999"};
    g.SetRows(static_cast<int>(cells.size()) + 1);
    for (int i = 0; i < cells.size(); ++i) g.SetTextMatrix(i + 1, 0, cells[i]);
    SortGridGeneric(g, 0, false);
    QStringList sorted;
    for (int r = 1; r < g.Rows(); ++r) sorted.append(g.TextMatrix(r, 0));
    // The order the number parser gives every cell: the sort reads a number wherever it reads one.
    QStringList expected = cells;
    std::stable_sort(expected.begin(), expected.end(), [](const QString& a, const QString& b) {
        bool okA = false, okB = false;
        const double x = a.trimmed().toDouble(&okA);
        const double y = b.trimmed().toDouble(&okB);
        if (okA && okB) return x < y;
        if (okA != okB) return okA;
        return QString::compare(a, b, Qt::CaseInsensitive) < 0;
    });
    EXPECT_EQ(sorted, expected);
    EXPECT_EQ(sorted.first(), "-3");
    EXPECT_EQ(sorted.indexOf("007"), sorted.indexOf("9") - 1) << sorted.join(" | ").toStdString();
}
