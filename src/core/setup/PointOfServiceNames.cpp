#include "PointOfServiceNames.h"

#include "SettingsFieldReader.h"
#include "store/DiskRoutines.h"

namespace ostrel {

void PointOfServiceNames::reset(const QString& state, const QStringList& names) {
    m_entries = QStringList{state} + names;
}

PointOfServiceNames LoadPointOfServiceNames(DiskRoutines& disk) {
    PointOfServiceNames table;
    if (!disk.FileExists(kServiceAreasFile)) return table;
    SettingsFieldReader in(disk.ReadTextFile(kServiceAreasFile));
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
