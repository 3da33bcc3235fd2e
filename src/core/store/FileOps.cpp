#include "FileOps.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace ostrel {

namespace {
FileOps& systemOps() {
    static FileOps ops;
    return ops;
}
FileOps* g_current = nullptr;
} // namespace

int FileOps::open(const QByteArray& path, int flags, int mode) {
    int fd;
    do fd = ::open(path.constData(), flags | O_CLOEXEC, mode);
    while (fd < 0 && errno == EINTR);
    return fd;
}

long long FileOps::write(int fd, const char* data, long long size) {
    long long done = 0;
    while (done < size) {
        const ssize_t n = ::write(fd, data + done, static_cast<size_t>(size - done));
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return n < 0 ? -1 : done;
        done += n;
    }
    return done;
}

long long FileOps::pwrite(int fd, const char* data, long long size, long long offset) {
    long long done = 0;
    while (done < size) {
        const ssize_t n = ::pwrite(fd, data + done, static_cast<size_t>(size - done), offset + done);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return n < 0 ? -1 : done;
        done += n;
    }
    return done;
}

int FileOps::fsync(int fd) { return ::fsync(fd); }
int FileOps::syncfs(int fd) { return ::syncfs(fd); }
int FileOps::close(int fd) { return ::close(fd); }
int FileOps::rename(const QByteArray& from, const QByteArray& to) { return ::rename(from.constData(), to.constData()); }
int FileOps::unlink(const QByteArray& path) { return ::unlink(path.constData()); }

FileOps& FileOps::current() { return g_current ? *g_current : systemOps(); }

FileOps::Scope::Scope(FileOps& ops) : m_previous(g_current) { g_current = &ops; }
FileOps::Scope::~Scope() { g_current = m_previous; }

} // namespace ostrel
