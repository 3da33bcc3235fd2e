#include "PointOfServiceNames.h"

#include "SettingsFieldReader.h"
#include "store/DiskRoutines.h"

namespace ostrel {

void PointOfServiceNames::reset(const QString& state, const QStringList& names) {
    m_entries = QStringList{state} + names;
}

QString JudgeServiceAreas(const QByteArray& bytes) {
    // Every name is written quoted on a line of its own: a file that stops inside a name, or after
    // a name without its line end, was cut short.
    TextReader in(bytes, kServiceAreasFile);
    while (!in.atEnd())
        if (in.readField().unterminated) return QStringLiteral("it ends inside a name: the file was cut short.");
    if (!bytes.isEmpty() && !bytes.endsWith('\n'))
        return QStringLiteral("its last name has no line end: the file was cut short.");
    return {};
}

PointOfServiceNames LoadPointOfServiceNames(DiskRoutines& disk) {
    PointOfServiceNames table;
    if (disk.DirectoryExists(kServiceAreasFile))
        disk.ReportDamage(kServiceAreasFile, QStringLiteral("a folder stands where this file belongs."));
    if (!disk.FileExists(kServiceAreasFile)) return table;
    TextReader file = disk.ReadTextFile(kServiceAreasFile);
    const QString damage = JudgeServiceAreas(file.bytes());
    if (!damage.isEmpty()) disk.ReportDamage(kServiceAreasFile, damage);
    SettingsFieldReader in(std::move(file));
    QStringList names;
    while (!in.atEnd())
        names.append(in.readString());
    table.reset(PointOfServiceNames::kPopulated, names);
    return table;
}

void SaveAssociates(DiskRoutines& disk, const QStringList& listEntries, PointOfServiceNames& table) {
    TextWriter out;
    for (const QString& name : listEntries)
        out.write({name});
    disk.ReplaceTextFile(kServiceAreasFile, out);
    table.reset(PointOfServiceNames::kPopulated, listEntries);
}

} // namespace ostrel
