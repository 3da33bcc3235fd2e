#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <map>
#include <optional>

namespace ostrel {

// A colour as the legacy files hold it: 24 bits, red in the low byte. kNoColour: the default.
using Colour = quint32;
constexpr Colour kNoColour = 0xFFFFFFFFu;
inline Colour rgbColour(int r, int g, int b) { return Colour(r) | (Colour(g) << 8) | (Colour(b) << 16); }

// Plain models of the controls a screen shows. They hold state only; a screen's logic reads and
// writes them, and a view pushes them into widgets after each event.
struct Control {
    QString name; // objectName of the widget: the control name, with "(i)" for a member of an array
    bool enabled = true;
    bool visible = true;
    QString toolTip;
    bool focusRequested = false; // set by SetFocus, cleared by the view when it moves the focus
    void SetFocus() { focusRequested = true; }
};

struct Label : Control {
    QString caption;
};

struct CommandButton : Control {
    QString caption;
    bool isDefault = false;
    bool isCancel = false;
};

struct TextBox : Control {
    QString text;
    int maxLength = 0; // 0: no limit
    bool locked = false;
    bool multiLine = false;
    int selStart = 0;
    int selLength = 0;
};

struct CheckBox : Control {
    QString caption;
    int value = 0; // 0 unchecked, 1 checked, 2 grayed
    bool checked() const { return value == 1; }
};

struct OptionButton : Control {
    QString caption;
    bool value = false;
};

struct Frame : Control {
    QString caption;
};

struct Image : Control {
    QString picture; // resource or file path of the picture shown
};

struct MenuItem : Control {
    QString caption;
    bool checked = false;
};

// A list box or combo box: items with a 32-bit item value each, and the selected index (-1: none).
struct ListControl : Control {
    QStringList items;
    QVector<qint32> itemData;
    int listIndex = -1;
    QString text; // the edit text of a combo box, or the selected item's text
    bool sorted = false;

    int ListCount() const { return static_cast<int>(items.size()); }
    // Gives the index the item took (in a sorted list, after every entry that compares equal).
    int AddItem(const QString& item, int index = -1);
    void RemoveItem(int index);
    void Clear();
    QString List(int index) const { return items.value(index); }
    qint32 ItemData(int index) const { return itemData.value(index); }
    void SetItemData(int index, qint32 value);
    void SetListIndex(int index); // also sets text, as selecting an item does
};
using ListBox = ListControl;
using ComboBox = ListControl;

// A grid of text cells: fixed rows and columns, the current cell, per-cell colours.
//
// Rows can also be given on demand (SetRowSource): a long list built from a file need not hold a text
// per cell, only the way to make one. Such a row reads from its source until something writes to one
// of its cells; then the row is stored like any other, with the source's texts, and the write
// applies. Readers of TextMatrix see no difference.
struct Grid : Control {
    int fixedRows = 1;
    int fixedCols = 1;
    int row = 0;
    int col = 0;
    int topRow = 1;
    QVector<int> colWidths; // twips; empty: the view decides

    using RowText = std::function<QString(int row, int col)>;

    int Rows() const { return m_source ? m_source->first + m_source->count : static_cast<int>(m_cells.size()); }
    int Cols() const { return m_cols; }
    void SetRows(int rows);
    void SetCols(int cols);
    QString TextMatrix(int r, int c) const;
    void SetTextMatrix(int r, int c, const QString& text);
    void SetTextMatrix(int r, int c, QString&& text); // takes the text over, no copy
    Colour CellBackColor(int r, int c) const;
    void SetCellBackColor(int r, int c, const Colour& color);
    Colour CellForeColor(int r, int c) const;
    void SetCellForeColor(int r, int c, const Colour& color);
    void Clear(); // every cell's text and colour

    // The grid becomes `first + count` rows: those before `first` keep what they hold (blank when
    // new), the `count` after them read their text from `text` (default colours). A later SetRows
    // that shrinks keeps the rest on demand; one that adds rows, or SetCols, stores every row first.
    void SetRowSource(int first, int count, RowText text);
    bool HasRowSource() const { return m_source.has_value(); }

private:
    struct Cell {
        QString text;
        Colour back = kNoColour;
        Colour fore = kNoColour;
    };
    struct Source {
        int first = 0;
        int count = 0;
        RowText text; // empty: blank rows (after Clear)
        std::map<int, QVector<Cell>> written;
    };
    bool onDemand(int r) const { return m_source && r >= m_source->first; }
    void checkCell(int r, int c) const;
    // The stored cell, or null for an on-demand row nothing has written to.
    const Cell* storedCell(int r, int c) const;
    Cell& cellRef(int r, int c);
    static QVector<Cell> sourceRow(const Source& source, int r, int cols);
    void storeEveryRow();
    void resizeStored(int rows);
    QVector<QVector<Cell>> m_cells; // every row, or with a source the rows before it
    std::optional<Source> m_source;
    int m_cols = 0;
};

// A family of like controls that share one handler and differ by index. Indices need not start at
// 0 nor be contiguous.
template <typename T> class ControlArray {
public:
    T& operator[](int index) { return m_items[index]; }
    const T& operator[](int index) const { return m_items.at(index); }
    bool contains(int index) const { return m_items.count(index) != 0; }
    auto begin() { return m_items.begin(); }
    auto end() { return m_items.end(); }
    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }
    int size() const { return static_cast<int>(m_items.size()); }

private:
    std::map<int, T> m_items;
};

} // namespace ostrel
