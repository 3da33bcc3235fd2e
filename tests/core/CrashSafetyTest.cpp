#include "CrashHarness.h"
#include "FaultyFileOps.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cctype>

using namespace ostrel;
using namespace ostrel::crash;

namespace {

std::string describe(const Counts& c) {
    return QStringLiteral("runs %1, files checked %2, missing %3, cut short %4, neither %5: %6")
        .arg(c.runs)
        .arg(c.filesChecked)
        .arg(c.missing)
        .arg(c.cutShort)
        .arg(c.neither)
        .arg(c.problems.join(QStringLiteral("; ")))
        .toStdString();
}

class EverySave : public testing::TestWithParam<int> {};

std::string kindName(const testing::TestParamInfo<int>& info) {
    std::string s = AllSaveKinds().at(static_cast<size_t>(info.param)).name.toStdString();
    for (char& ch : s)
        if (!std::isalnum(static_cast<unsigned char>(ch))) ch = '_';
    return s;
}

} // namespace

TEST_P(EverySave, KilledAtRandomMomentsLeavesEveryFileOldOrNew) {
    QTemporaryDir work;
    Harness h(AllSaveKinds().at(static_cast<size_t>(GetParam())), work.path());
    ASSERT_GT(h.filesTouched(), 0) << "the save changes nothing, so the test could not fail";
    const Counts c = h.RunKills(12, 20261123u + static_cast<quint32>(GetParam()));
    EXPECT_EQ(c.runs, 12);
    EXPECT_TRUE(c.clean()) << describe(c);
}

TEST_P(EverySave, EachFailingWriteFsyncOrRenameLeavesEveryFileOldOrNew) {
    QTemporaryDir work;
    Harness h(AllSaveKinds().at(static_cast<size_t>(GetParam())), work.path());
    const Counts c = h.RunFaults();
    EXPECT_GT(c.runs, 0) << "the save met no fault, so the test could not fail";
    EXPECT_GT(c.savesFailed, 0);
    EXPECT_TRUE(c.clean()) << describe(c);
}

INSTANTIATE_TEST_SUITE_P(CrashSafety, EverySave,
                         testing::Range(0, static_cast<int>(AllSaveKinds().size())), kindName);

TEST(CrashSafety, TheHarnessCatchesASaveThatDeletesBeforeItWrites) {
    // A save that deletes its file and then writes it anew, as the old compaction did: the harness
    // must catch the moment when the file is gone or empty.
    SaveKind k;
    k.name = QStringLiteral("delete then write");
    k.prepare = [](DiskRoutines& disk) { disk.ReplaceRecordFile(QStringLiteral("/R.txt"), QByteArray(4000, 'a')); };
    k.save = [](DiskRoutines& disk) {
        disk.DeleteDataFile(QStringLiteral("/R.txt"));
        disk.OpenRandom(QStringLiteral("/R.txt"), 4000).put(1, Record(QByteArray(4000, 'b')));
    };
    k.recordLengths = {{QStringLiteral("/R.txt"), 4000}};
    QTemporaryDir work;
    Harness h(k, work.path());
    const Counts c = h.RunFaults();
    EXPECT_FALSE(c.clean()) << describe(c);
}
