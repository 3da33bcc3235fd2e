#pragma once

#include "binder/ScreenView.h"

#include <functional>

class QLabel;
class QTabWidget;

namespace ostrel {
class Session;
class frmSetup;
struct SetupTabStrip;
} // namespace ostrel

namespace ostrel::ui {

// The Setup screen: three tab strips over the business data, options, logo, Points of Service and
// operations. The strips, the up-downs, box widths, colour swatches and picture sizes are not among
// the binder's kinds; the view pushes them itself after each of its events and when shown.
class SetupView : public ScreenView {
    Q_OBJECT
public:
    SetupView(Session& session, frmSetup& screen);

    QTabWidget* tabStrip(const SetupTabStrip& strip) const;
    // Pushes what the binder does not: strips, sizes, colours.
    void pushExtras();

private:
    // A handler that also pushes the extras once the screen's event has run.
    std::function<void()> handler(std::function<void()> event);
    void wireTabStrip(SetupTabStrip& strip, std::function<void(int)> click);
    void wireUpDown(const QString& name, std::function<void()> up, std::function<void()> down);
    void wireEvents();
    void pushTabStrip(const SetupTabStrip& strip);
    void pushPictureSizes();

    frmSetup& m_screen;
    bool m_pushing = false;
};

} // namespace ostrel::ui
