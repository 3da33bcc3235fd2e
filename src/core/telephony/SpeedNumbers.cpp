#include "SpeedNumbers.h"

#include "store/DiskRoutines.h"
#include "store/StoreError.h"

namespace ostrel {

void LoadSpeedNumbers(DiskRoutines& disk, SpeedNumbers& entries) {
    entries.clear();
    if (!disk.FileExists(kSpeedNumbersFile)) return;
    TextReader in = disk.ReadTextFile(kSpeedNumbersFile);
    for (int i = 0; !in.atEnd(); ++i) {
        if (i == SpeedNumbers::kEntries)
            throw StoreError(
                kSpeedNumbersFile,
                QStringLiteral("The file holds more than %1 speed dial entries; only the first %1 "
                               "were loaded.")
                    .arg(SpeedNumbers::kEntries));
        const QString name = in.readLine();
        if (in.atEnd())
            throw StoreError(kSpeedNumbersFile,
                             QStringLiteral("The last speed dial entry has a name but no number."));
        entries.names[i] = name;
        entries.numbers[i] = in.readLine();
    }
}

void SaveSpeedNumbers(DiskRoutines& disk, const SpeedNumbers& entries) {
    TextWriter out;
    for (int i = 0; i < SpeedNumbers::kEntries; ++i) {
        if (entries.names[i].isEmpty()) continue;
        out.print(entries.names[i]);
        out.print(entries.numbers[i]);
    }
    disk.ReplaceTextFile(kSpeedNumbersFile, out);
}

} // namespace ostrel
