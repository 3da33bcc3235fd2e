#include "FakeInstance.h"
#include "TestDataRoot.h"
#include "platform/LockFileInstance.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include <csignal>
#include <cstdlib>
#include <sys/stat.h>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

using namespace ostrel;

namespace {
const QString kProgram = QStringLiteral("OstrelAppointmentScheduler");
}

TEST(LockFileInstance, FirstCopyRunsAndLeavesItsLockInTheDataFolder) {
    test::TestDataRoot data;
    LockFileInstance instance(data.root(), kProgram);
    EXPECT_TRUE(instance.TryAcquire());
    EXPECT_TRUE(data.isFile(QStringLiteral("/.OstrelAppointmentScheduler.lock")));
    EXPECT_EQ(data.full(QStringLiteral("/.OstrelAppointmentScheduler.lock")), instance.lockFilePath());
}

TEST(LockFileInstance, SecondCopyOnTheSameFolderIsRefused) {
    test::TestDataRoot data;
    LockFileInstance first(data.root(), kProgram);
    LockFileInstance second(data.root(), kProgram);
    ASSERT_TRUE(first.TryAcquire());
    EXPECT_FALSE(second.TryAcquire());
    // Asking again changes nothing for either.
    EXPECT_TRUE(first.TryAcquire());
    EXPECT_FALSE(second.TryAcquire());
}

TEST(LockFileInstance, ReleasedLockLetsTheNextCopyIn) {
    test::TestDataRoot data;
    LockFileInstance first(data.root(), kProgram);
    LockFileInstance second(data.root(), kProgram);
    ASSERT_TRUE(first.TryAcquire());
    first.Release();
    EXPECT_FALSE(data.isFile(QStringLiteral("/.OstrelAppointmentScheduler.lock")));
    EXPECT_TRUE(second.TryAcquire());
}

TEST(LockFileInstance, CopiesOnDifferentFoldersDoNotMeet) {
    test::TestDataRoot one;
    test::TestDataRoot two;
    LockFileInstance a(one.root(), kProgram);
    LockFileInstance b(two.root(), kProgram);
    EXPECT_TRUE(a.TryAcquire());
    EXPECT_TRUE(b.TryAcquire());
}

TEST(LockFileInstance, LockLeftByACopyThatDiedDoesNotBlock) {
    test::TestDataRoot data;
    const pid_t child = ::fork();
    ASSERT_NE(-1, child);
    if (child == 0) {
        // The crashed copy: takes the lock and dies without releasing it.
        LockFileInstance dying(data.root(), kProgram);
        ::_exit(dying.TryAcquire() ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(child, ::waitpid(child, &status, 0));
    ASSERT_TRUE(WIFEXITED(status));
    ASSERT_EQ(0, WEXITSTATUS(status));
    ASSERT_TRUE(data.isFile(QStringLiteral("/.OstrelAppointmentScheduler.lock")));

    LockFileInstance next(data.root(), kProgram);
    EXPECT_TRUE(next.TryAcquire());
    LockFileInstance third(data.root(), kProgram);
    EXPECT_FALSE(third.TryAcquire());
}

TEST(LockFileInstance, LockFileIsFoundWhateverTheCaseOfTheFolderName) {
    test::TestDataRoot data;
    LockFileInstance a(data.root(), kProgram);
    ASSERT_TRUE(a.TryAcquire());
    // The name differs only in case: still the same data folder's lock, as every data name is.
    LockFileInstance b(data.root(), QStringLiteral("ostrelappointmentscheduler"));
    EXPECT_EQ(a.lockFilePath(), b.lockFilePath());
    EXPECT_FALSE(b.TryAcquire());
}

TEST(FakeInstance, RefusesWhenAnotherCopyIsSaidToRun) {
    test::FakeInstance instance;
    instance.otherCopyRunning = true;
    EXPECT_FALSE(instance.TryAcquire());
    EXPECT_FALSE(instance.held);
    instance.otherCopyRunning = false;
    EXPECT_TRUE(instance.TryAcquire());
    EXPECT_TRUE(instance.held);
    EXPECT_EQ(2, instance.attempts);
}

namespace {

const QString kLock = QStringLiteral("/.OstrelAppointmentScheduler.lock");

bool startsOn(test::TestDataRoot& data) {
    LockFileInstance instance(data.root(), kProgram);
    return instance.TryAcquire();
}

} // namespace

TEST(LockFileInstance, ALockNamingAnotherHostIsRecovered) {
    test::TestDataRoot data;
    data.writeBytes(kLock, QByteArray::number(::getpid()) + "\nOstrelAppointmentScheduler\nsome-other-machine\n");
    EXPECT_TRUE(startsOn(data));
}

TEST(LockFileInstance, AnEmptyLockFileIsRecovered) {
    test::TestDataRoot data;
    data.writeBytes(kLock, {});
    EXPECT_TRUE(startsOn(data));
}

TEST(LockFileInstance, AGarbageLockFileIsRecovered) {
    test::TestDataRoot data;
    data.writeBytes(kLock, QByteArray("\x01\xff garbage \x00\x02", 14));
    EXPECT_TRUE(startsOn(data));
}

TEST(LockFileInstance, ALockOlderThanTheMachinesStartIsRecovered) {
    test::TestDataRoot data;
    // It names this very process on this machine, which no copy started before the machine could be.
    data.writeBytes(kLock, QByteArray::number(::getpid()) + "\n\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    QFile f(data.full(kLock));
    ASSERT_TRUE(f.open(QIODevice::ReadWrite));
    ASSERT_TRUE(f.setFileTime(QDateTime::fromSecsSinceEpoch(86400), QFileDevice::FileModificationTime));
    f.close();
    EXPECT_TRUE(startsOn(data));
}

TEST(LockFileInstance, ALockHeldByALiveCopyInAnotherProcessRefuses) {
    test::TestDataRoot data;
    int ready[2];
    ASSERT_EQ(0, ::pipe(ready));
    const pid_t child = ::fork();
    ASSERT_NE(-1, child);
    if (child == 0) {
        LockFileInstance running(data.root(), kProgram);
        const char ok = running.TryAcquire() ? 'y' : 'n';
        (void)!::write(ready[1], &ok, 1);
        ::pause();
        ::_exit(0);
    }
    char ok = 0;
    ASSERT_EQ(1, ::read(ready[0], &ok, 1));
    ASSERT_EQ('y', ok);
    LockFileInstance second(data.root(), kProgram);
    EXPECT_FALSE(second.TryAcquire());
    EXPECT_FALSE(second.FolderNotWritable());
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    EXPECT_TRUE(second.TryAcquire()); // and once it has died, its lock is taken over
    ::close(ready[0]);
    ::close(ready[1]);
}

TEST(LockFileInstance, AFolderThatCannotBeWrittenIsToldApartFromASecondCopy) {
    test::TestDataRoot data;
    const QByteArray folder = QFile::encodeName(data.path());
    if (::geteuid() == 0) {
        // The owner of every folder: only an immutable folder refuses it.
        if (std::system(("chattr +i '" + folder + "' 2>/dev/null").constData()) != 0)
            GTEST_SKIP() << "cannot make a folder unwritable here";
    } else {
        ::chmod(folder.constData(), 0555);
    }
    LockFileInstance instance(data.root(), kProgram);
    const bool started = instance.TryAcquire();
    const bool unwritable = instance.FolderNotWritable();
    if (::geteuid() == 0) (void)!std::system(("chattr -i '" + folder + "'").constData());
    else ::chmod(folder.constData(), 0755);
    EXPECT_FALSE(started);
    EXPECT_TRUE(unwritable);
}
