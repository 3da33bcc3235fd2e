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

QString FolderNotWritableMessage(const QString& folder) {
    return QStringLiteral("The program keeps its files in its own folder, and it cannot write there:") + u'\n' + folder +
           u'\n' + u'\n' +
           QStringLiteral("Give your user permission to change that folder, or copy the whole folder to one you may "
                          "change (such as your home folder) and start the program from the copy.");
}

namespace {
QString shownName(const QString& name) {
    QString n = name;
    n.replace(u'\\', u'/');
    return n.startsWith(u'/') ? n.mid(1) : n;
}
} // namespace

QString DamagedFileMessage(const QString& name, const QString& problem) {
    return QStringLiteral("The file %1 is damaged: %2").arg(shownName(name), problem) + u'\n' + u'\n' +
           QStringLiteral("What could be read is shown. The file will be left as it is unless you choose to save "
                          "over it when you are asked.");
}

QString DamagedFileQuestion(const QString& name, const QString& problem) {
    return QStringLiteral("The file %1 was found damaged when it was read: %2").arg(shownName(name), problem) + u'\n' +
           u'\n' +
           QStringLiteral("Saving now replaces it with what the program holds, and whatever could not be read is "
                          "lost for good. Choose No to leave the file as it is.") +
           u'\n' + u'\n' + QStringLiteral("Replace the damaged file?");
}

} // namespace ostrel
