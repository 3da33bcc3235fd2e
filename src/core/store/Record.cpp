#include "Record.h"

#include "Cp1252.h"

#include <QtEndian>

#include <cmath>
#include <cstring>
#include <stdexcept>

namespace ostrel {

namespace {
const QDate kEpoch(1899, 12, 30);

template <typename T> T load(const QByteArray& b, int offset) {
    T v;
    std::memcpy(&v, b.constData() + offset, sizeof v);
    return qFromLittleEndian(v);
}
template <typename T> void store(QByteArray& b, int offset, T v) {
    v = qToLittleEndian(v);
    std::memcpy(b.data() + offset, &v, sizeof v);
}
} // namespace

void Record::check(int offset, int width) const {
    if (offset < 0 || width < 0 || offset + width > m_bytes.size())
        throw std::out_of_range("record field outside the record");
}

QString Record::text(int offset, int width) const {
    check(offset, width);
    return cp1252::decode(QByteArrayView(m_bytes).sliced(offset, width));
}

void Record::setText(int offset, int width, QStringView value) {
    check(offset, width);
    const QByteArray enc = cp1252::encode(value.left(width));
    std::memcpy(m_bytes.data() + offset, enc.constData(), static_cast<size_t>(enc.size()));
    std::memset(m_bytes.data() + offset + enc.size(), ' ', static_cast<size_t>(width - enc.size()));
}

qint16 Record::int16(int offset) const { check(offset, 2); return load<qint16>(m_bytes, offset); }
void Record::setInt16(int offset, qint16 v) { check(offset, 2); store(m_bytes, offset, v); }
qint32 Record::int32(int offset) const { check(offset, 4); return load<qint32>(m_bytes, offset); }
void Record::setInt32(int offset, qint32 v) { check(offset, 4); store(m_bytes, offset, v); }
qint64 Record::currency(int offset) const { check(offset, 8); return load<qint64>(m_bytes, offset); }
void Record::setCurrency(int offset, qint64 v) { check(offset, 8); store(m_bytes, offset, v); }

float Record::single(int offset) const {
    check(offset, 4);
    const quint32 bits = load<quint32>(m_bytes, offset);
    float f;
    std::memcpy(&f, &bits, 4);
    return f;
}
void Record::setSingle(int offset, float v) {
    check(offset, 4);
    quint32 bits;
    std::memcpy(&bits, &v, 4);
    store(m_bytes, offset, bits);
}
double Record::float64(int offset) const {
    check(offset, 8);
    const quint64 bits = load<quint64>(m_bytes, offset);
    double d;
    std::memcpy(&d, &bits, 8);
    return d;
}
void Record::setFloat64(int offset, double v) {
    check(offset, 8);
    quint64 bits;
    std::memcpy(&bits, &v, 8);
    store(m_bytes, offset, bits);
}
QDateTime Record::dateTime(int offset) const { return oledate::toDateTime(float64(offset)); }
void Record::setDateTime(int offset, const QDateTime& v) { setFloat64(offset, oledate::fromDateTime(v)); }

namespace oledate {

double fromDateTime(const QDateTime& dt) {
    const qint64 days = kEpoch.daysTo(dt.date());
    const double fraction = dt.time().msecsSinceStartOfDay() / 86400000.0;
    // Before the epoch the fraction counts away from zero, as the legacy format has it.
    return days >= 0 ? days + fraction : days - fraction;
}

QDateTime toDateTime(double value) {
    if (!std::isfinite(value) || std::fabs(value) > 3e6) return {};
    const double whole = std::trunc(value);
    const double fraction = std::fabs(value - whole);
    const QDate d = kEpoch.addDays(static_cast<qint64>(whole));
    const int ms = static_cast<int>(std::llround(fraction * 86400000.0));
    return QDateTime(d, QTime(0, 0)).addMSecs(ms);
}

} // namespace oledate
} // namespace ostrel
