#pragma once

namespace ostrel {

// Keeps two copies of the program off one data folder.
class Instance {
public:
    virtual ~Instance() = default;
    // True when this copy is now the only one; false when another copy is running.
    virtual bool TryAcquire() = 0;
    virtual void Release() = 0;
};

} // namespace ostrel
