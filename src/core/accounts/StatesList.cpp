#include "StatesList.h"

#include "store/DiskRoutines.h"
#include "store/StoreError.h"

namespace ostrel {

QStringList ReadStatesList(DiskRoutines& disk) {
    static const QString name = QStringLiteral("/StatesList.txt");
    constexpr int kStates = 50;
    QStringList states;
    if (!disk.FileExists(name)) return states;
    TextReader& in = disk.OpenForInput(name);
    try {
        for (int i = 0; i < kStates; ++i)
            states << in.readString();
    } catch (const StoreError&) {
        disk.CloseAllFiles();
        throw StoreError(
            name, QStringLiteral("The list holds %1 state codes where 50 are needed.").arg(states.size()));
    }
    disk.CloseAllFiles();
    return states;
}

} // namespace ostrel
