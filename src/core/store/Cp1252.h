#pragma once

#include <QByteArray>
#include <QString>

namespace ostrel::cp1252 {

// Bytes on disk are Windows-1252. The five bytes that code page leaves undefined map to the C1
// controls of the same value, so every byte sequence reads and writes back unchanged.
QString decode(QByteArrayView bytes);
QByteArray encode(QStringView text);
char encodeChar(QChar c);

} // namespace ostrel::cp1252
