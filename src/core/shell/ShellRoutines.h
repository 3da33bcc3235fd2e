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

// What the owner is told when a file is found damaged as it is read, and asked before a save
// would write over it.
inline const QString kDamagedFileTitle = QStringLiteral("Damaged File");
QString DamagedFileMessage(const QString& name, const QString& problem);
QString DamagedFileQuestion(const QString& name, const QString& problem);

// What start-up says when the data folder cannot be written: which folder, and what to do.
QString FolderNotWritableMessage(const QString& folder);

} // namespace ostrel
