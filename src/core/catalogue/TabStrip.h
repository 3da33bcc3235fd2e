#pragma once

#include "controls/Controls.h"

#include <QStringList>

#include <functional>

namespace ostrel {

// A tab strip: the captions of its tabs and the one shown. The view follows Tab through
// tabChanged when the program moves it, and writes Tab itself when the user picks a tab.
struct TabStrip : Control {
    QStringList TabCaption;
    int Tab = 0;

    int Tabs() const { return static_cast<int>(TabCaption.size()); }
    // Moves to a tab as the program does; the view is told.
    void SetTab(int tab);

    std::function<void(int tab)> tabChanged;
};

} // namespace ostrel
