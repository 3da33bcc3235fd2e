#pragma once

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QString>

namespace ostrel {

// One record of a fixed-record file. Fields are read and written at their offsets, little endian,
// and every byte a caller does not touch keeps the value it was read with.
class Record {
public:
    explicit Record(int length = 0) : m_bytes(length, '\0') {}
    explicit Record(QByteArray bytes) : m_bytes(std::move(bytes)) {}

    int length() const { return static_cast<int>(m_bytes.size()); }
    const QByteArray& bytes() const { return m_bytes; }
    QByteArray& bytes() { return m_bytes; }

    // Fixed string: blank-padded on the right, cut to the width. A field never written reads as
    // NUL characters.
    QString text(int offset, int width) const;
    void setText(int offset, int width, QStringView value);

    qint16 int16(int offset) const;
    void setInt16(int offset, qint16 v);
    qint32 int32(int offset) const;
    void setInt32(int offset, qint32 v);
    qint64 currency(int offset) const; // ten-thousandths
    void setCurrency(int offset, qint64 tenThousandths);
    float single(int offset) const;
    void setSingle(int offset, float v);
    double float64(int offset) const;
    void setFloat64(int offset, double v);
    QDateTime dateTime(int offset) const;
    void setDateTime(int offset, const QDateTime& v);
    QDate date(int offset) const { return dateTime(offset).date(); }
    void setDate(int offset, QDate d) { setDateTime(offset, QDateTime(d, QTime(0, 0))); }

    bool operator==(const Record& o) const { return m_bytes == o.m_bytes; }

private:
    void check(int offset, int width) const;
    QByteArray m_bytes;
};

// Dates as the legacy files store them: days counted from 1899-12-30, the time of day as the fraction.
namespace oledate {
double fromDateTime(const QDateTime& dt);
QDateTime toDateTime(double days);
inline double fromDate(QDate d) { return fromDateTime(QDateTime(d, QTime(0, 0))); }
} // namespace oledate

} // namespace ostrel
