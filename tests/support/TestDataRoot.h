#pragma once

#include "store/DataRoot.h"
#include "store/DiskRoutines.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ostrel::test {

// A fresh, empty data root in a temporary folder, with raw file helpers that bypass the store so
// tests can state exact bytes.
class TestDataRoot {
public:
    TestDataRoot();
    const QString& path() const { return m_path; }
    DataRoot& root() { return *m_root; }
    DiskRoutines& disk() { return *m_disk; }

    QString full(const QString& relative) const { return m_path + relative; }
    void writeBytes(const QString& relative, const QByteArray& bytes) const;
    QByteArray readBytes(const QString& relative) const;
    void makeDir(const QString& relative) const;
    // Copies every file and folder under `tree` into the root, as an owner copies a data folder.
    void copyTree(const QString& tree) const;
    bool isFile(const QString& relative) const;
    bool isDir(const QString& relative) const;

private:
    QTemporaryDir m_dir;
    QString m_path;
    std::unique_ptr<DataRoot> m_root;
    std::unique_ptr<DiskRoutines> m_disk;
};

// The legacy shop tree kept beside the project, or an empty string when it is absent.
QString legacyFixture();

} // namespace ostrel::test

#define OSTREL_REQUIRE_LEGACY_FIXTURE()                                                                 \
    do {                                                                                                 \
        if (::ostrel::test::legacyFixture().isEmpty()) GTEST_SKIP() << "legacy shop fixture not present"; \
    } while (0)
