#include "NativePath.h"

#include <QFile>

#include <cstring>

namespace ostrel {

QByteArray nativePath(const QString& path) {
    const qsizetype n = path.size();
    const QChar* from = path.constData();
    QByteArray out(n, Qt::Uninitialized);
    char* to = out.data();
    for (qsizetype i = 0; i < n; ++i) {
        if (from[i].unicode() >= 0x80) return QFile::encodeName(path);
        to[i] = static_cast<char>(from[i].unicode());
    }
    return out;
}

QString pathFromNative(const char* bytes) {
    const size_t n = std::strlen(bytes);
    for (size_t i = 0; i < n; ++i)
        if (static_cast<unsigned char>(bytes[i]) >= 0x80) return QFile::decodeName(bytes);
    return QString::fromLatin1(bytes, static_cast<qsizetype>(n));
}

} // namespace ostrel
