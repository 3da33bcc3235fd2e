#pragma once

#include "platform/Browser.h"

#include <QStringList>

namespace ostrel::test {

// Records the links the program opens instead of starting a browser.
class FakeBrowser : public Browser {
public:
    bool Open(const QString& url) override {
        opened << url;
        return succeeds;
    }

    QStringList opened;
    bool succeeds = true;
};

} // namespace ostrel::test
