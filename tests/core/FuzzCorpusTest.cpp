// Every reader of a file format, fed the saved fuzzing inputs (among them the numbers no number type
// can hold): each input is read to the end or refused as a bad file, never anything else. Under the
// sanitizers this also proves no input reaches undefined behaviour.
#include "FuzzTargets.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace ostrel;

TEST(FuzzCorpus, EveryReaderTakesEverySavedInputOrRefusesItAsABadFile) {
    const QDir corpus(QStringLiteral(OSTREL_FUZZ_CORPUS));
    ASSERT_TRUE(corpus.exists()) << OSTREL_FUZZ_CORPUS;
    int inputs = 0;
    for (const fuzz::Target& target : fuzz::Targets()) {
        const QDir dir(corpus.filePath(QString::fromLatin1(target.name)));
        const QStringList files = dir.entryList(QDir::Files, QDir::Name);
        EXPECT_FALSE(files.isEmpty()) << "no saved inputs for " << target.name;
        for (const QString& name : files) {
            QFile f(dir.filePath(name));
            ASSERT_TRUE(f.open(QIODevice::ReadOnly));
            const QByteArray bytes = f.readAll();
            try {
                target.run(bytes);
            } catch (const std::exception& e) {
                ADD_FAILURE() << target.name << "/" << name.toStdString() << ": " << e.what();
            }
            ++inputs;
        }
    }
    EXPECT_GT(inputs, 30);
}

TEST(FuzzCorpus, EverySavedInputFolderBelongsToATarget) {
    const QDir corpus(QStringLiteral(OSTREL_FUZZ_CORPUS));
    for (const QString& folder : corpus.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        EXPECT_TRUE(std::any_of(fuzz::Targets().begin(), fuzz::Targets().end(),
                                [&](const fuzz::Target& t) { return folder == QLatin1String(t.name); }))
            << folder.toStdString();
}
