#pragma once

#include <QByteArray>
#include <QString>

namespace ostrel {

// Paths to and from the bytes the system calls take. Data names are almost always plain ASCII,
// which is the same bytes in every encoding; anything else goes through Qt's file name codec.
// Every open, stat and listing of the store comes through here, so the common case is kept cheap.
QByteArray nativePath(const QString& path);
QString pathFromNative(const char* bytes);

} // namespace ostrel
