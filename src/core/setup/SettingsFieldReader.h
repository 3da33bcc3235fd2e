#pragma once

#include "store/TextStatements.h"

#include <QString>

namespace ostrel {

// Reads the fields of a settings file one after another into the kinds the files declare. A value
// that the declared kind cannot hold stops the load with a StoreError naming the file and the field,
// as the legacy runtime stopped with an overflow; a file cut short stops it the same way.
class SettingsFieldReader {
public:
    explicit SettingsFieldReader(TextReader reader) : m_reader(std::move(reader)) {}

    bool atEnd() const { return m_reader.atEnd(); }
    QString readString() { return next().toString(); }
    bool readBoolean() { return next().toBoolean(); }
    // Integer: 16 bits, rounded half to even.
    qint16 readInteger();
    // Byte: 0 to 255.
    quint8 readByte();
    // Long: 32 bits.
    qint32 readLong();
    // Single precision.
    float readSingle();

private:
    TextField next();
    double readInRange(double low, double high, const char* kind);

    TextReader m_reader;
    int m_field = 0;
};

} // namespace ostrel
