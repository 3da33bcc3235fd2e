#pragma once

#include "Instance.h"

#include <QString>

#include <memory>

class QLockFile;

namespace ostrel {

class DataRoot;

// One copy per data folder, by a lock file in the folder. Only a lock a running copy on this
// machine holds refuses a start; one left by a copy that died, one from another machine, an empty
// or unreadable one, or one older than the machine's start is taken over.
class LockFileInstance : public Instance {
public:
    LockFileInstance(const DataRoot& root, const QString& programName);
    ~LockFileInstance() override;
    LockFileInstance(const LockFileInstance&) = delete;
    LockFileInstance& operator=(const LockFileInstance&) = delete;

    bool TryAcquire() override;
    void Release() override;
    bool FolderNotWritable() const override { return m_unwritable; }

    const QString& lockFilePath() const { return m_path; }
    static QString lockFileName(const QString& programName);

private:
    enum class Holder { Nobody, LiveCopy, Unknown };
    Holder heldBy() const;
    bool isStale() const;

    QString m_path;
    bool m_unwritable = false;
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace ostrel
