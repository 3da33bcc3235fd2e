#pragma once

#include "platform/Instance.h"

namespace ostrel::test {

// The single-copy guard with another copy running or not, as the test says.
class FakeInstance : public Instance {
public:
    bool otherCopyRunning = false;
    bool folderNotWritable = false;

    bool TryAcquire() override {
        ++attempts;
        if (otherCopyRunning || folderNotWritable) return false;
        held = true;
        return true;
    }
    void Release() override { held = false; }
    bool FolderNotWritable() const override { return folderNotWritable; }

    int attempts = 0;
    bool held = false;
};

} // namespace ostrel::test
