#include "ShellRoutines.h"

#include "store/DiskRoutines.h"
#include "util/VbText.h"

namespace ostrel {

QDate DefaultCalendarDate(const QDateTime& now) {
    return now.time().hour() > 19 ? now.date().addDays(1) : now.date();
}

void CreateTeamDirectories(DiskRoutines& disk, const QString& yearText, int pointOfServiceCount) {
    const QString year = QStringLiteral("\\") + yearText;
    if (disk.DirectoryExists(year)) return;
    disk.MakeDirectoryIfAbsent(year);
    for (int i = 1; i <= pointOfServiceCount; ++i) disk.MakeDirectoryIfAbsent(year + QStringLiteral("\\Team#") + vbStr(i));
}

} // namespace ostrel
