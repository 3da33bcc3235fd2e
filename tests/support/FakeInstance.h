#pragma once

#include "platform/Instance.h"

namespace ostrel::test {

// The single-copy guard with another copy running or not, as the test says.
class FakeInstance : public Instance {
public:
    bool otherCopyRunning = false;

    bool TryAcquire() override {
        ++attempts;
        if (otherCopyRunning) return false;
        held = true;
        return true;
    }
    void Release() override { held = false; }

    int attempts = 0;
    bool held = false;
};

} // namespace ostrel::test
