#pragma once

#include "store/FileOps.h"

#include <cerrno>

namespace ostrel::crash {

// File operations that fail the n-th call of one kind with EIO (n from 1), and pass everything
// else to the system. A write or pwrite that fails writes nothing.
class FaultyFileOps : public FileOps {
public:
    enum class Kind { Write, Fsync, Rename, Unlink };
    FaultyFileOps(Kind kind, int failAt) : m_kind(kind), m_failAt(failAt) {}

    long long write(int fd, const char* data, long long size) override {
        return fail(Kind::Write) ? -1 : FileOps::write(fd, data, size);
    }
    long long pwrite(int fd, const char* data, long long size, long long offset) override {
        return fail(Kind::Write) ? -1 : FileOps::pwrite(fd, data, size, offset);
    }
    int fsync(int fd) override { return fail(Kind::Fsync) ? -1 : FileOps::fsync(fd); }
    int syncfs(int fd) override { return fail(Kind::Fsync) ? -1 : FileOps::syncfs(fd); }
    int rename(const QByteArray& from, const QByteArray& to) override {
        return fail(Kind::Rename) ? -1 : FileOps::rename(from, to);
    }
    int unlink(const QByteArray& path) override { return fail(Kind::Unlink) ? -1 : FileOps::unlink(path); }

    // Whether the call chosen to fail was reached.
    bool faulted() const { return m_seen >= m_failAt; }
    int calls() const { return m_seen; }

    static const char* name(Kind k) {
        switch (k) {
        case Kind::Write: return "write";
        case Kind::Fsync: return "fsync";
        case Kind::Rename: return "rename";
        case Kind::Unlink: return "unlink";
        }
        return "?";
    }

private:
    bool fail(Kind k);
    Kind m_kind;
    int m_failAt;
    int m_seen = 0;
};

inline bool FaultyFileOps::fail(Kind k) {
    if (k != m_kind) return false;
    if (++m_seen != m_failAt) return false;
    errno = EIO;
    return true;
}

} // namespace ostrel::crash
