#pragma once

#include <QString>
#include <QStringList>

namespace ostrel {

class DiskRoutines;

// The Points of Service: a 0-based table whose entry 0 is the state word, "populated" when
// "/ServiceAreas.txt" existed at the last load and "empty" when it did not, and whose entries 1 up
// are the names in file order. A Point of Service's number is its position, which is also the digit
// of its DaySchedules folder: deleting a name moves the later ones down.
class PointOfServiceNames {
public:
    static inline const QString kPopulated = QStringLiteral("populated");
    static inline const QString kEmpty = QStringLiteral("empty");
    // The Setup screen refuses a ninth name.
    static constexpr int kMaxNames = 8;

    PointOfServiceNames() : m_entries{kEmpty} {}

    const QString& ServiceAreasState() const { return m_entries.front(); }
    bool isPopulated() const { return ServiceAreasState() == kPopulated; }
    // The count of names; 0 for an empty table.
    int UpperBound() const { return static_cast<int>(m_entries.size()) - 1; }
    // Entry i: 0 the state word, 1 up the names. Out of range gives an empty string.
    QString operator[](int i) const { return m_entries.value(i); }
    QStringList names() const { return m_entries.mid(1); }

    void reset(const QString& state, const QStringList& names);

private:
    QStringList m_entries;
};

inline const QString kServiceAreasFile = QStringLiteral("/ServiceAreas.txt");

// What is wrong with the bytes of a Points of Service file, or an empty text when nothing is.
QString JudgeServiceAreas(const QByteArray& bytes);

// The table as the file gives it: "empty" when the file is absent (after the restore attempt),
// otherwise "populated" and one name per statement until the end, so an empty file has no names.
// A damaged file is reported and kept from being saved over.

PointOfServiceNames LoadPointOfServiceNames(DiskRoutines& disk);

// Replaces the file (its backup goes too) with one statement per list entry, in list order, and
// puts the names into the table. An empty list leaves an empty file, which still counts as present.
void SaveAssociates(DiskRoutines& disk, const QStringList& listEntries, PointOfServiceNames& table);

} // namespace ostrel
