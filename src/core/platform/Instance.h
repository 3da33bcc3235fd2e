#pragma once

namespace ostrel {

// Keeps two copies of the program off one data folder.
class Instance {
public:
    virtual ~Instance() = default;
    // True when this copy is now the only one; false when another copy is running.
    virtual bool TryAcquire() = 0;
    virtual void Release() = 0;
    // After a refusal: true when the data folder could not be written, so no lock could be made;
    // that is no sign of another copy.
    virtual bool FolderNotWritable() const { return false; }
};

} // namespace ostrel
