#pragma once

#include <QString>

namespace ostrel {

// Hands a link to the desktop's browser.
class Browser {
public:
    virtual ~Browser() = default;
    // False when no browser took the link.
    virtual bool Open(const QString& url) = 0;
};

} // namespace ostrel
