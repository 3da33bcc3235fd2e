#pragma once

#include <QByteArray>

namespace ostrel {

// The file system calls through which every save reaches the disk. The store uses the one in
// place (the system's by default); tests and the crash harness put in one that fails a chosen
// call, so every step of a save can be made to fail in turn.
class FileOps {
public:
    virtual ~FileOps() = default;

    // Each returns what the system call returns and leaves errno set on failure.
    virtual int open(const QByteArray& path, int flags, int mode);
    virtual long long write(int fd, const char* data, long long size);
    virtual long long pwrite(int fd, const char* data, long long size, long long offset);
    virtual int fsync(int fd);
    // Syncs the whole file system that holds fd: one wait for many files written together.
    virtual int syncfs(int fd);
    virtual int close(int fd);
    virtual int rename(const QByteArray& from, const QByteArray& to);
    virtual int unlink(const QByteArray& path);

    // The implementation in use.
    static FileOps& current();

    // Puts ops in place until the scope ends.
    class Scope {
    public:
        explicit Scope(FileOps& ops);
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        FileOps* m_previous;
    };
};

} // namespace ostrel
