#include "TestDataRoot.h"
#include "store/StoreError.h"

#include <gtest/gtest.h>

#include <utility>

using namespace ostrel;
using ostrel::test::TestDataRoot;

TEST(DataRoot, BothSeparatorsNameTheSameFile) {
    TestDataRoot t;
    t.writeBytes("/2026/DaySchedules1/17.txt", "x");
    EXPECT_TRUE(t.root().resolve(QStringLiteral("/2026\\DaySchedules1/17.txt")).isFile());
    EXPECT_TRUE(t.root().resolve(QStringLiteral("\\2026\\DaySchedules1\\17.txt")).isFile());
}

TEST(DataRoot, NamesMatchTheDiskWithoutRegardToCase) {
    // Plain ASCII, and names beyond it, which take full case folding.
    const std::pair<QString, QString> onDiskAndAsked[] = {
        {QStringLiteral("/AuxFiles/x"), QStringLiteral("/Auxfiles/X")},
        {QStringLiteral("/Zoë Ärzte/Ñame.txt"), QStringLiteral("/ZOË ärzte/ñAME.TXT")},
    };
    for (const auto& [onDisk, asked] : onDiskAndAsked) {
        TestDataRoot t;
        t.writeBytes(onDisk, "data");
        const auto e = t.root().resolve(asked);
        EXPECT_TRUE(e.isFile()) << asked.toStdString();
        EXPECT_EQ(e.path, t.full(onDisk));
    }
}

TEST(DataRoot, AWrittenFileIsFoundUnderAnotherCase) {
    TestDataRoot t;
    t.makeDir("/AuxFiles");
    TextWriter w;
    w.print("one");
    t.disk().ReplaceTextFile("/Auxfiles/x", w);
    EXPECT_EQ(t.disk().ReadTextFile("/AUXFILES/X").readLine(), "one");
    EXPECT_TRUE(t.isFile("/AuxFiles/x"));
}

TEST(DataRoot, AMissingPartKeepsTheSpellingItWasGiven) {
    TestDataRoot t;
    t.makeDir("/Appointments");
    const auto e = t.root().resolve(QStringLiteral("/appointments/1 - 324-1.txt"));
    EXPECT_FALSE(e.exists());
    EXPECT_EQ(e.path, t.full("/Appointments/1 - 324-1.txt"));
}

TEST(DataRoot, NoNameLeavesTheRoot) {
    TestDataRoot t;
    EXPECT_THROW(t.root().resolve(QStringLiteral("/../etc/passwd")), StoreError);
    EXPECT_THROW(t.root().resolve(QStringLiteral("/AuxFiles/..\\..\\x")), StoreError);
    EXPECT_THROW(t.disk().FileExists("/OIActiveAccounts/../../x.txt"), StoreError);
    // An absolute-looking name stays below the root.
    EXPECT_EQ(t.root().resolve(QStringLiteral("/etc/passwd")).path, t.full("/etc/passwd"));
    EXPECT_EQ(t.root().resolve(QStringLiteral("//etc//passwd")).path, t.full("/etc/passwd"));
}

TEST(DataRoot, ANulInANameIsRefused) {
    TestDataRoot t;
    EXPECT_THROW(t.root().resolve(QString("/AuxFiles/") + QChar(0)), StoreError);
}

TEST(DataRoot, ManyMissesInALargeFolderStayFast) {
    // Every miss consults the folder's listing; it must be read once, not once per miss.
    TestDataRoot t;
    t.makeDir("/AuxFiles");
    for (int i = 0; i < 2000; ++i) t.disk().MakeDirectoryIfAbsent(QString("/auxfiles/%1").arg(i));
    EXPECT_EQ(t.root().list("/AuxFiles").size(), 2000);
    EXPECT_FALSE(t.root().resolve(QStringLiteral("/AUXFILES/1999")).path.contains("AUXFILES"));
}

TEST(DataRoot, ANameMissingAsSpelledIsStillFoundUnderTheDisksSpelling) {
    TestDataRoot t;
    t.writeBytes("/AuxFiles/Data.txt", "x");
    const auto found = t.root().resolveNotAsSpelled(QStringLiteral("/auxfiles/DATA.TXT"));
    EXPECT_TRUE(found.isFile());
    EXPECT_EQ(found.path, t.full("/AuxFiles/Data.txt"));
    const auto missing = t.root().resolveNotAsSpelled(QStringLiteral("/auxfiles/Other.txt"));
    EXPECT_FALSE(missing.exists());
    EXPECT_EQ(missing.path, t.full("/AuxFiles/Other.txt"));
    EXPECT_EQ(t.root().spelledPath(QStringLiteral("\\auxfiles\\./Other.txt")), t.full("/auxfiles/Other.txt"));
    EXPECT_THROW(t.root().spelledPath(QStringLiteral("/AuxFiles/../../x")), StoreError);
}

TEST(DataRoot, NamesBeyondPlainAsciiAreReadAndListedWithoutRegardToCase) {
    TestDataRoot t;
    t.writeBytes(QStringLiteral("/Zoë Ärzte/Ñame.txt"), "x");
    EXPECT_EQ(t.disk().ReadTextFile(QStringLiteral("/zoë ÄRZTE/ñame.txt")).bytes(), QByteArray("x"));
    EXPECT_TRUE(t.root().entries(QStringLiteral("/")).contains(QStringLiteral("Zoë Ärzte").toCaseFolded()));
}

TEST(DataRoot, AMissingNameUnderAFileKeepsItsSpellingAndFindsNothing) {
    TestDataRoot t;
    t.writeBytes("/Backup", "a file, not a folder");
    const auto e = t.root().resolve(QStringLiteral("/backup/Holidays.txt"));
    EXPECT_FALSE(e.exists());
    EXPECT_EQ(e.path, t.full("/Backup/Holidays.txt"));
    EXPECT_FALSE(t.disk().ReadTextFileIfPresent("/Holidays.txt").has_value());
}

TEST(DataRoot, EveryWayOfWritingANameSpellsTheSamePath) {
    TestDataRoot t;
    const QString path = t.full("/Appointments/1 - 324-1.txt");
    for (const char* name : {"/Appointments/1 - 324-1.txt", "Appointments/1 - 324-1.txt", "\\Appointments\\1 - 324-1.txt",
                             "//Appointments//1 - 324-1.txt/", "/./Appointments/./1 - 324-1.txt", "/Appointments\\1 - 324-1.txt"}) {
        qsizetype parts = 0;
        EXPECT_EQ(t.root().spelledPath(QString::fromLatin1(name), &parts), path) << name;
        EXPECT_EQ(parts, 2) << name;
    }
    for (const char* name : {"", "/", "\\", "/./"}) {
        qsizetype parts = -1;
        EXPECT_EQ(t.root().spelledPath(QString::fromLatin1(name), &parts), t.root().root()) << name;
        EXPECT_EQ(parts, 0) << name;
    }
}
