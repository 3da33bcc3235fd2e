#pragma once

#include <QObject>

class QTableView;

namespace ostrel::ui {

// Gives a grid the wheel of the legacy screens: one notch moves a page of the rows that fit the
// grid, never fewer than ten, instead of a few rows. Fine-grained wheels (touch pads) move a page
// per notch's worth of rotation.
class GridWheel : public QObject {
    Q_OBJECT
public:
    explicit GridWheel(QTableView* table);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void page(int rotation);
    QTableView* m_table;
    int m_pending = 0;
};

// Installs the wheel on the grid once; a second call does nothing.
void InstallGridWheel(QTableView* table);

} // namespace ostrel::ui
