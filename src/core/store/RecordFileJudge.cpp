#include "RecordFileJudge.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace ostrel {

namespace {

constexpr int kMostFieldProblems = 3;
// 9999-12-31 in days from 1899-12-30, and 0100-01-01: the dates the format can name.
constexpr double kLastDate = 2958465.0;
constexpr double kFirstDate = -657434.0;

bool isText(const char* p, int width) {
    for (int i = 0; i < width; ++i) {
        const auto c = static_cast<unsigned char>(p[i]);
        // A field never written is binary zero; blanks pad the rest. Control characters never
        // come from a keyboard.
        if (c != 0 && (c < 0x20 || c == 0x7F)) return false;
    }
    return true;
}

template <typename T> T read(const char* p) {
    T v;
    std::memcpy(&v, p, sizeof v);
    return qFromLittleEndian(v);
}

QString fieldProblem(const RecordField& f, const char* p) {
    switch (f.kind) {
    case RecordField::Kind::Text:
        return isText(p, f.width) ? QString() : QStringLiteral("holds characters that are not text");
    case RecordField::Kind::Int16: {
        const qint16 v = read<qint16>(p);
        if (v < f.low || v > f.high)
            return QStringLiteral("holds %1, outside %2 to %3").arg(v).arg(f.low).arg(f.high);
        return {};
    }
    case RecordField::Kind::Int32:
    case RecordField::Kind::Currency:
        return {};
    case RecordField::Kind::Single: {
        float v;
        std::memcpy(&v, p, sizeof v);
        return std::isfinite(v) ? QString() : QStringLiteral("holds no number");
    }
    case RecordField::Kind::Double:
    case RecordField::Kind::Date: {
        const quint64 bits = read<quint64>(p);
        double v;
        std::memcpy(&v, &bits, sizeof v);
        if (!std::isfinite(v)) return QStringLiteral("holds no number");
        if (f.kind == RecordField::Kind::Date && (v < kFirstDate || v > kLastDate))
            return QStringLiteral("holds no date");
        return {};
    }
    }
    return {};
}

} // namespace

RecordFileVerdict JudgeRecordFile(const RecordFormat& format, const QByteArray& bytes) {
    RecordFileVerdict v;
    const int length = format.length;
    if (length <= 0) return v;
    v.wholeRecords = bytes.size() / length;
    v.partialBytes = static_cast<int>(bytes.size() % length);
    // The record count rounds the length to whole records, ties to even: that, and nothing else,
    // decides whether a short last record is read.
    v.partialCounted =
        v.partialBytes > 0 && std::nearbyint(static_cast<double>(bytes.size()) / length) > static_cast<double>(v.wholeRecords);
    if (v.partialBytes > 0) {
        if (v.partialCounted) {
            v.notes << QStringLiteral("its last record is short (%1 of %2 bytes); it is read with the rest as blanks")
                           .arg(v.partialBytes)
                           .arg(length);
        } else {
            v.problems << QStringLiteral("it is %1 bytes long, which is %2 whole records of %3 bytes and %4 bytes "
                                         "more that are no record: the file was cut short or added to")
                              .arg(bytes.size())
                              .arg(v.wholeRecords)
                              .arg(length)
                              .arg(v.partialBytes);
        }
    }
    const qint64 judged = v.wholeRecords + (v.partialCounted ? 1 : 0);
    int fieldProblems = 0;
    QByteArray record(length, '\0');
    for (qint64 r = 0; r < judged && fieldProblems < kMostFieldProblems; ++r) {
        const qint64 at = r * length;
        const qint64 n = std::min<qint64>(length, bytes.size() - at);
        record.fill('\0');
        std::memcpy(record.data(), bytes.constData() + at, static_cast<size_t>(n));
        for (const RecordField& f : format.fields) {
            const QString why = fieldProblem(f, record.constData() + f.offset);
            if (why.isEmpty()) continue;
            v.problems << QStringLiteral("record %1: the %2 %3").arg(r + 1).arg(QLatin1String(f.label), why);
            if (++fieldProblems >= kMostFieldProblems) break;
        }
    }
    return v;
}

QString DescribeDamage(const RecordFileVerdict& verdict) { return verdict.problems.join(QStringLiteral("; ")) + u'.'; }

} // namespace ostrel
