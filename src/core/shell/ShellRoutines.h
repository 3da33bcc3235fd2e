#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

namespace ostrel {

class DiskRoutines;

// Today, or tomorrow once the hour is past 19: the change comes at 20:00.
QDate DefaultCalendarDate(const QDateTime& now);

// Makes "\<year>" and its "Team# <n>" folders for a later year, unless the year folder is there.
void CreateTeamDirectories(DiskRoutines& disk, const QString& yearText, int pointOfServiceCount);

} // namespace ostrel
