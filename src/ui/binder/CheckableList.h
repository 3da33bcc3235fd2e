#pragma once

#include <QObject>

#include <functional>

class QListWidget;

namespace ostrel::ui {

class Binder;

// A list shown as boxes whose ticks the screen keeps, beside the list control the binder keeps:
// a box ticked or cleared by the user reaches the screen through `changed`, run as an event of
// the binder, and the boxes show what `checked` says after each change of the list.
class CheckableList : public QObject {
public:
    using IsChecked = std::function<bool(int row)>;
    using Changed = std::function<void(int row, bool checked)>;

    CheckableList(QListWidget* list, Binder& binder, IsChecked checked, Changed changed);

    // The boxes as the screen has them now.
    void show();
    // The same, once the event under way has been handled.
    void showSoon();

private:
    QListWidget* m_list;
    Binder& m_binder;
    IsChecked m_checked;
    Changed m_changed;
};

} // namespace ostrel::ui
