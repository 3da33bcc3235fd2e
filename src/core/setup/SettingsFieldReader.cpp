#include "SettingsFieldReader.h"

#include "store/StoreError.h"

#include <cmath>
#include <limits>

namespace ostrel {

TextField SettingsFieldReader::next() {
    ++m_field;
    return m_reader.readField();
}

double SettingsFieldReader::readInRange(double low, double high, const char* kind) {
    const TextField f = next();
    const double value = std::nearbyint(f.toNumber());
    if (!std::isfinite(value) || value < low || value > high)
        throw StoreError(m_reader.fileName(),
                         QStringLiteral("Field %1 holds \"%2\", which is out of range for %3.")
                             .arg(m_field)
                             .arg(f.toString(), QLatin1String(kind)));
    return value;
}

qint16 SettingsFieldReader::readInteger() {
    return static_cast<qint16>(readInRange(-32768, 32767, "a whole number from -32768 to 32767"));
}

quint8 SettingsFieldReader::readByte() {
    return static_cast<quint8>(readInRange(0, 255, "a number from 0 to 255"));
}

qint32 SettingsFieldReader::readLong() {
    return static_cast<qint32>(readInRange(-2147483648.0, 2147483647.0, "a 32-bit whole number"));
}

float SettingsFieldReader::readSingle() {
    const TextField f = next();
    const double value = f.toNumber();
    if (!std::isfinite(value) || std::fabs(value) > std::numeric_limits<float>::max())
        throw StoreError(
            m_reader.fileName(),
            QStringLiteral("Field %1 holds \"%2\", which is too large for a single-precision number.")
                .arg(m_field)
                .arg(f.toString()));
    return static_cast<float>(value);
}

} // namespace ostrel
