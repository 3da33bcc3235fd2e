// Kills every kind of save hundreds of times at random moments, then makes each of its writes,
// fsyncs, renames and unlinks fail in turn, and counts what was found on disk after each run.
//
//     ./build/bench/crash_harness [kills per kind, default 300] [seed]
//
// The kinds are those of the test suite's harness (tests/support/CrashSaveKinds.cpp); a new
// writer registered there is exercised here too. Exit status 1 when any file was missing, cut
// short or held neither its old nor its new content.
#include "CrashHarness.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <cstdio>

using namespace ostrel::crash;

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const int kills = argc > 1 ? std::atoi(argv[1]) : 300;
    const quint32 seed = argc > 2 ? static_cast<quint32>(std::strtoul(argv[2], nullptr, 10)) : 1u;
    bool clean = true;
    std::printf("%-36s %8s %8s %8s %8s %8s %8s %9s\n", "kind of save", "runs", "mid-save", "checked", "missing",
                "cut", "neither", "leftover");
    for (const SaveKind& kind : AllSaveKinds()) {
        QTemporaryDir work;
        Harness h(kind, work.path());
        const Counts k = h.RunKills(kills, seed);
        const Counts f = h.RunFaults();
        const auto row = [&](const char* how, const Counts& c) {
            std::printf("%-36s %8d %8d %8d %8d %8d %8d %9d\n",
                        (kind.name + QLatin1String(how)).toLocal8Bit().constData(), c.runs, c.interrupted,
                        c.filesChecked, c.missing, c.cutShort, c.neither, c.leftovers);
            for (const QString& p : c.problems) std::printf("    %s\n", p.toLocal8Bit().constData());
            clean = clean && c.clean();
        };
        std::printf("# %s: one save takes %lld us in a child, touches %d files\n", kind.name.toLocal8Bit().constData(),
                    static_cast<long long>(h.saveMicroseconds()), h.filesTouched());
        row(" (kills)", k);
        row(" (faults)", f);
        std::fflush(stdout);
    }
    return clean ? 0 : 1;
}
