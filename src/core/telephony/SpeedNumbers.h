#pragma once

#include <QString>

#include <array>

namespace ostrel {

class DiskRoutines;

inline const QString kSpeedNumbersFile = QStringLiteral("/SpeedNumbers.txt");

// The ten speed dial entries: a name and a number each, by button. "/SpeedNumbers.txt" holds them
// as plain lines, a name line then a number line per entry, in button order.
struct SpeedNumbers {
    static constexpr int kEntries = 10;
    std::array<QString, kEntries> names;
    std::array<QString, kEntries> numbers;

    void clear() {
        names.fill(QString());
        numbers.fill(QString());
    }
};

// Empties `entries`, then fills them from entry 0 with the pairs of the file, when there is one. A
// file of more than ten pairs, or one that ends after a name, stops the load with a StoreError once
// the entries before the fault are filled.
void LoadSpeedNumbers(DiskRoutines& disk, SpeedNumbers& entries);

// Rewrites the file with the entries whose name is not empty, in order, so gaps close up.
void SaveSpeedNumbers(DiskRoutines& disk, const SpeedNumbers& entries);

} // namespace ostrel
