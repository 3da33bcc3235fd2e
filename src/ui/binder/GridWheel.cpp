#include "GridWheel.h"

#include "shell/GridRoutines.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>
#include <QWheelEvent>

#include <algorithm>

namespace ostrel::ui {

namespace {
constexpr int kNotch = 120; // one notch of a wheel, in eighths of a degree
}

GridWheel::GridWheel(QTableView* table) : QObject(table), m_table(table) {
    setObjectName(QStringLiteral("GridWheel"));
    table->viewport()->installEventFilter(this);
}

void InstallGridWheel(QTableView* table) {
    if (!table || table->findChild<GridWheel*>(QString(), Qt::FindDirectChildrenOnly)) return;
    new GridWheel(table);
}

bool GridWheel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Wheel || watched != m_table->viewport()) return false;
    const int dy = static_cast<QWheelEvent*>(event)->angleDelta().y();
    if (dy == 0) return false; // a sideways wheel scrolls sideways as ever
    // A turn back the other way starts a new notch.
    if ((dy > 0) != (m_pending > 0)) m_pending = 0;
    m_pending += dy;
    while (m_pending >= kNotch || m_pending <= -kNotch) {
        const int step = m_pending > 0 ? kNotch : -kNotch;
        m_pending -= step;
        page(step);
    }
    event->accept();
    return true;
}

void GridWheel::page(int rotation) {
    // Rows counted as the legacy grid counts them, from a heading row 0 above the first table row,
    // which is measured by the headings when they show and by the first row otherwise.
    const int offset = 1;
    const int tableRows = m_table->model() ? m_table->model()->rowCount() : 0;
    const int rows = tableRows + offset;
    const int headingHeight = m_table->horizontalHeader()->isVisible() ? m_table->horizontalHeader()->height()
                              : tableRows > 0                          ? m_table->rowHeight(0)
                                                                       : 0;
    QScrollBar* bar = m_table->verticalScrollBar();
    const int top = bar->value() + offset;
    const int target = WheelTopRow(top, rows, m_table->height(), headingHeight, rotation);
    bar->setValue(std::clamp(target - offset, bar->minimum(), bar->maximum()));
}

} // namespace ostrel::ui
