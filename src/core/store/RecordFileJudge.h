#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

namespace ostrel {

// What a fixed-record file may hold, field by field, so that a damaged file is told apart from a
// sound one by one set of rules, whether the program reads it or the checker looks at it.
struct RecordField {
    enum class Kind { Text, Int16, Int32, Currency, Single, Double, Date };
    int offset = 0;
    int width = 0; // bytes
    Kind kind = Kind::Text;
    const char* label = ""; // what the owner calls it, for the message
    int low = -32768;       // the range an Int16 must lie in
    int high = 32767;
};

struct RecordFormat {
    QString name; // data name, "/Services.txt"
    int length = 0;
    QVector<RecordField> fields; // may be empty: only the length is judged
};

struct RecordFileVerdict {
    qint64 wholeRecords = 0;
    int partialBytes = 0;         // bytes of a last record that is not whole
    bool partialCounted = false;  // the record count (rounded, ties to even) includes it
    QStringList problems;         // what makes the file damaged
    QStringList notes;            // what is legal but worth saying (a short last record)
    bool damaged() const { return !problems.isEmpty(); }
};

// Judges the bytes of a record file: a last part that the record count rules do not count (less
// than half a record, or exactly half where the rounding drops it), and fields that cannot be what
// the format says (text holding control characters, a date that is no date, a number out of its
// range). A short last record that the count includes is legal; its missing bytes read as zeros. At most a few field problems are listed.
RecordFileVerdict JudgeRecordFile(const RecordFormat& format, const QByteArray& bytes);

// The sentence used for a damaged file, naming the file and its first problems.
QString DescribeDamage(const RecordFileVerdict& verdict);

} // namespace ostrel
