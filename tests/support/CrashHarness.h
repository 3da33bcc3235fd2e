#pragma once

// The crash harness: runs each kind of save in a child process, kills it with SIGKILL at a random
// moment, and checks that every file the save touches is there, whole, and equal to what it held
// before the save or to what the save writes; then makes each write, fsync and rename of the save
// fail in turn and checks the same.
//
// Adding a writer is a few lines. Write a function that returns a SaveKind:
//
//     SaveKind InvoicePostingKind() {
//         SaveKind k;
//         k.name = "invoice posting";
//         k.prepare = [](DiskRoutines& disk) { /* the data as before the save, by the project's writers */ };
//         k.save = [](DiskRoutines& disk) { /* the save itself, exactly as the screen calls it */ };
//         k.recordLengths = {{"/SomeRecords.txt", 120}}; // fixed-record files, to check their length
//         return k;
//     }
//
// and add it to the table in AllSaveKinds() (CrashSaveKinds.cpp). Both must be deterministic (the
// same bytes every run): use a fixed date, never the clock. Every file of the data tree is checked,
// so the kind names no files besides its record files.
#include "store/DiskRoutines.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <vector>

namespace ostrel::crash {

struct SaveKind {
    QString name;
    std::function<void(DiskRoutines&)> prepare;
    std::function<void(DiskRoutines&)> save;
    std::map<QString, int> recordLengths; // data name (as on disk, from the root) -> record length
};

std::vector<SaveKind> AllSaveKinds();

// Every regular file under a folder, by path relative to it ("/CustomerData.txt").
using Snapshot = QHash<QString, QByteArray>;
Snapshot TakeSnapshot(const QString& root);

struct Counts {
    int runs = 0;          // kills made, or faults injected
    int interrupted = 0;   // kills that landed before the save had finished
    int filesChecked = 0;  // file checks after those runs
    int missing = 0;       // a file that was there before and after the save, gone
    int cutShort = 0;      // a record file whose length is no multiple of its record length
    int neither = 0;       // a file equal to neither its old nor its new content
    int leftovers = 0;     // files that are in neither state (temporaries, scratch files)
    int savesFailed = 0;   // fault runs in which the save reported the failure
    QStringList problems;  // the first few problems, described
    bool clean() const { return missing == 0 && cutShort == 0 && neither == 0; }
};

class Harness {
public:
    // Builds the old and the new state of the kind under workFolder.
    Harness(SaveKind kind, const QString& workFolder);

    const SaveKind& kind() const { return m_kind; }
    // Microseconds one save takes in a child process (the kill moments are drawn up to a bit more).
    qint64 saveMicroseconds() const { return m_saveMicros; }
    int filesTouched() const;

    // `kills` runs, each killed at a random moment drawn with the seed.
    Counts RunKills(int kills, quint32 seed);
    // Each write, fsync and rename of the save made to fail in turn, until a run meets no fault.
    Counts RunFaults();

private:
    void restore(const QString& root) const;
    void check(const QString& root, Counts& counts) const;
    qint64 timeOneSave();

    SaveKind m_kind;
    QString m_work;
    Snapshot m_old;
    Snapshot m_new;
    qint64 m_saveMicros = 0;
};

} // namespace ostrel::crash
