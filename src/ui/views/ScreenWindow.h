#pragma once

#include "binder/ScreenView.h"

#include <initializer_list>

class QHBoxLayout;
class QVBoxLayout;

namespace ostrel {
class Screen;
class Session;
}

namespace ostrel::ui {

// Makes a view's window follow its screen: the caption is the window title, and showing or hiding
// the screen shows or hides the window. A close by the window frame ends the program.
void FollowScreen(ScreenView& view, Screen& screen, Session& session);

// A window's outer layout, with a menu bar of plain entries, each named as its menu control.
QVBoxLayout* WindowWithMenuBar(QWidget* window, std::initializer_list<const char*> entries);
// The row under the menu bar that holds the window's body, with the margins the windows share.
QHBoxLayout* AddBodyRow(QVBoxLayout* outer);

} // namespace ostrel::ui
