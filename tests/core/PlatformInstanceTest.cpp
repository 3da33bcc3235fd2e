#include "FakeInstance.h"
#include "TestDataRoot.h"
#include "platform/LockFileInstance.h"

#include <QFileInfo>

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
