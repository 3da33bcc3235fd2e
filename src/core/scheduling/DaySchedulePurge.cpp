#include "DaySchedulePurge.h"

#include "DayScheduleStore.h"
#include "store/DiskRoutines.h"
#include "store/StoreError.h"

#include <optional>

namespace ostrel {

namespace {

const QString kLastPurgedFile = QStringLiteral("/LastPurged.txt");
constexpr int kMostDaysInYear = 366;

// The day d of a file named "<d>.txt" in any case, d unpadded; 0 for any other name.
int dayOfFileName(const QString& fileName) {
    if (!fileName.endsWith(QLatin1String(".txt"), Qt::CaseInsensitive)) return 0;
    const QStringView digits = QStringView(fileName).chopped(4);
    if (digits.isEmpty() || digits.size() > 3 || digits.front() == u'0') return 0;
    for (const QChar c : digits)
        if (c < u'0' || c > u'9') return 0;
    return digits.toInt();
}

// Deletes the day files of one DaySchedules folder whose day passes the test. The folder is
// listed once rather than probed for every day of the year: start-up runs this over up to eight
// folders of 366 names each.
template <typename Sweep> void deleteDayFiles(DiskRoutines& disk, const QString& directory, Sweep sweep) {
    const DataRoot::Entry dir = disk.root().resolve(directory);
    if (!dir.isDirectory()) return;
    // The folder's name as the disk spells it, so each delete finds its file at the first look.
    const QString onDisk = dir.path.mid(disk.root().root().size());
    for (const QString& fileName : disk.root().list(directory)) {
        const int day = dayOfFileName(fileName);
        if (day > 0 && sweep(day)) disk.DeleteDataFile(onDisk + u'/' + fileName);
    }
}

} // namespace

int purgeYearLength(int year) {
    return year % 4 == 0 ? 366 : 365;
}

void PurgeLastYear(DiskRoutines& disk, const QDate& today, int pointOfServiceCount) {
    const int lastYear = today.year() - 1;
    if (!disk.DirectoryExists(yearDirectory(lastYear))) return;
    std::optional<StoreError> firstFailure;
    for (int n = 1; n <= pointOfServiceCount; ++n) {
        const QString directory = dayScheduleDirectory(lastYear, n);
        deleteDayFiles(disk, directory, [](int day) { return day <= kMostDaysInYear; });
        if (!disk.DirectoryExists(directory)) continue;
        try {
            disk.RemoveDataDirectory(directory);
        } catch (const StoreError& e) {
            if (!firstFailure) firstFailure = e;
        }
    }
    disk.CloseAllFiles();
    if (firstFailure) throw *firstFailure;
}

void PurgePastDays(DiskRoutines& disk, const QDate& date, int dayOfYear, int pointOfServiceCount) {
    const int yearLength = purgeYearLength(date.year());
    qint64 startDay = 1;
    if (disk.FileExists(kLastPurgedFile)) {
        TextReader reader = disk.ReadTextFile(kLastPurgedFile);
        startDay = reader.readInteger(-32768, 32767); // an Integer in the file's own format
    }
    disk.ReplaceTextFile(kLastPurgedFile, TextWriter().writeNumber(dayOfYear));
    for (int n = 1; n <= pointOfServiceCount; ++n) {
        deleteDayFiles(disk, dayScheduleDirectory(date.year(), n),
                       [&](int day) { return day >= startDay && day <= yearLength && day < dayOfYear; });
    }
    disk.CloseAllFiles();
}

} // namespace ostrel
