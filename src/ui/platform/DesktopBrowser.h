#pragma once

#include "platform/Browser.h"

namespace ostrel::ui {

// Opens links in the desktop's own browser.
class DesktopBrowser : public Browser {
public:
    bool Open(const QString& url) override;
};

} // namespace ostrel::ui
