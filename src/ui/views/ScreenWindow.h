#pragma once

#include "binder/ScreenView.h"

namespace ostrel {
class Screen;
class Session;
}

namespace ostrel::ui {

// Makes a view's window follow its screen: the caption is the window title, and showing or hiding
// the screen shows or hides the window. A close by the window frame ends the program.
void FollowScreen(ScreenView& view, Screen& screen, Session& session);

} // namespace ostrel::ui
