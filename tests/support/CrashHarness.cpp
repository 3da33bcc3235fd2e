#include "CrashHarness.h"

#include "FaultyFileOps.h"
#include "store/DataRoot.h"
#include "store/SafeReplace.h"
#include "store/StoreError.h"

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>

#include <csignal>
#include <filesystem>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace ostrel::crash {

namespace fs = std::filesystem;

namespace {

void runSave(const SaveKind& kind, const QString& root) {
    DataRoot dataRoot(root);
    DiskRoutines disk(dataRoot);
    kind.save(disk);
    disk.CloseAllFiles();
}

void copyTree(const QString& from, const QString& to) {
    fs::remove_all(fs::path(to.toStdString()));
    fs::copy(fs::path(from.toStdString()), fs::path(to.toStdString()),
             fs::copy_options::recursive | fs::copy_options::copy_symlinks);
}

void note(Counts& c, const QString& problem) {
    if (c.problems.size() < 10) c.problems << problem;
}

} // namespace

Snapshot TakeSnapshot(const QString& root) {
    Snapshot s;
    QDirIterator it(root, QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        QFile f(path);
        if (f.open(QIODevice::ReadOnly)) s.insert(path.mid(root.size()), f.readAll());
    }
    return s;
}

Harness::Harness(SaveKind kind, const QString& workFolder) : m_kind(std::move(kind)), m_work(workFolder) {
    const QString old = m_work + QStringLiteral("/old");
    const QString fresh = m_work + QStringLiteral("/new");
    fs::remove_all(fs::path(old.toStdString()));
    QDir().mkpath(old);
    {
        DataRoot root(old);
        DiskRoutines disk(root);
        m_kind.prepare(disk);
        disk.CloseAllFiles();
    }
    m_old = TakeSnapshot(old);
    copyTree(old, fresh);
    runSave(m_kind, fresh);
    m_new = TakeSnapshot(fresh);
    m_saveMicros = timeOneSave();
}

int Harness::filesTouched() const {
    int n = 0;
    for (auto it = m_new.begin(); it != m_new.end(); ++it)
        if (!m_old.contains(it.key()) || m_old.value(it.key()) != it.value()) ++n;
    for (auto it = m_old.begin(); it != m_old.end(); ++it)
        if (!m_new.contains(it.key())) ++n;
    return n;
}

void Harness::restore(const QString& root) const { copyTree(m_work + QStringLiteral("/old"), root); }

qint64 Harness::timeOneSave() {
    const QString root = m_work + QStringLiteral("/run");
    qint64 best = -1;
    for (int i = 0; i < 3; ++i) {
        restore(root);
        QElapsedTimer t;
        t.start();
        const pid_t pid = ::fork();
        if (pid == 0) {
            try {
                runSave(m_kind, root);
            } catch (...) {
                ::_exit(1);
            }
            ::_exit(0);
        }
        int status = 0;
        ::waitpid(pid, &status, 0);
        const qint64 us = t.nsecsElapsed() / 1000;
        if (best < 0 || us < best) best = us;
    }
    return best;
}

void Harness::check(const QString& root, Counts& c) const {
    const Snapshot now = TakeSnapshot(root);
    QSet<QString> names;
    for (auto it = m_old.begin(); it != m_old.end(); ++it) names.insert(it.key());
    for (auto it = m_new.begin(); it != m_new.end(); ++it) names.insert(it.key());
    for (const QString& name : names) {
        ++c.filesChecked;
        const bool inOld = m_old.contains(name), inNew = m_new.contains(name);
        if (!now.contains(name)) {
            if (inOld && inNew) {
                ++c.missing;
                note(c, name + QStringLiteral(" is missing"));
            }
            continue;
        }
        const QByteArray& bytes = now[name];
        if ((inOld && bytes == m_old[name]) || (inNew && bytes == m_new[name])) continue;
        const auto length = m_kind.recordLengths.find(name);
        if (length != m_kind.recordLengths.end() && bytes.size() % length->second != 0) {
            ++c.cutShort;
            note(c, QStringLiteral("%1 is cut short (%2 bytes)").arg(name).arg(bytes.size()));
        } else {
            ++c.neither;
            note(c, QStringLiteral("%1 holds neither its old nor its new content (%2 bytes)").arg(name).arg(bytes.size()));
        }
    }
    for (auto it = now.begin(); it != now.end(); ++it)
        if (!names.contains(it.key())) ++c.leftovers;
}

Counts Harness::RunKills(int kills, quint32 seed) {
    Counts c;
    std::mt19937 random(seed);
    // Up to a fifth past the save's own time, so some kills land after it has finished.
    std::uniform_int_distribution<qint64> moment(0, m_saveMicros + m_saveMicros / 5);
    const QString root = m_work + QStringLiteral("/run");
    for (int i = 0; i < kills; ++i) {
        restore(root);
        const qint64 delay = moment(random);
        const pid_t pid = ::fork();
        if (pid == 0) {
            try {
                runSave(m_kind, root);
            } catch (...) {
                ::_exit(1);
            }
            ::_exit(0);
        }
        if (delay > 0) ::usleep(static_cast<useconds_t>(delay));
        ::kill(pid, SIGKILL);
        int status = 0;
        ::waitpid(pid, &status, 0);
        ++c.runs;
        if (WIFSIGNALED(status)) ++c.interrupted;
        check(root, c);
    }
    return c;
}

Counts Harness::RunFaults() {
    Counts c;
    const QString root = m_work + QStringLiteral("/run");
    for (auto kind : {FaultyFileOps::Kind::Write, FaultyFileOps::Kind::Fsync, FaultyFileOps::Kind::Rename,
                      FaultyFileOps::Kind::Unlink}) {
        for (int n = 1;; ++n) {
            restore(root);
            FaultyFileOps ops(kind, n);
            {
                FileOps::Scope scope(ops);
                try {
                    runSave(m_kind, root);
                } catch (const StoreError&) {
                    ++c.savesFailed;
                }
            }
            if (!ops.faulted()) break;
            ++c.runs;
            check(root, c);
            // A failed replacement removes its own temporary file.
            const Snapshot now = TakeSnapshot(root);
            for (auto it = now.begin(); it != now.end(); ++it)
                if (IsLeftoverTemporaryName(it.key().section(u'/', -1))) {
                    ++c.neither;
                    note(c, QStringLiteral("%1 left behind after a failed %2").arg(it.key(), FaultyFileOps::name(kind)));
                }
        }
    }
    return c;
}

} // namespace ostrel::crash
