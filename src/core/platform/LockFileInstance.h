#pragma once

#include "Instance.h"

#include <QString>

#include <memory>

class QLockFile;

namespace ostrel {

class DataRoot;

// One copy per data folder, by a lock file in the folder. A lock left behind by a copy that died
// is recognised by its process id and taken over.
class LockFileInstance : public Instance {
public:
    LockFileInstance(const DataRoot& root, const QString& programName);
    ~LockFileInstance() override;
    LockFileInstance(const LockFileInstance&) = delete;
    LockFileInstance& operator=(const LockFileInstance&) = delete;

    bool TryAcquire() override;
    void Release() override;

    const QString& lockFilePath() const { return m_path; }
    static QString lockFileName(const QString& programName);

private:
    QString m_path;
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace ostrel
