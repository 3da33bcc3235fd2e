#pragma once

#include <QDir>
#include <QString>
#include <QWidget>

namespace ostrel::test {

// Saves a picture of a window when OSTREL_SCREENSHOTS names a folder, for a person to look at.
inline void saveShot(QWidget& w, const QString& name) {
    const QString dir = qEnvironmentVariable("OSTREL_SCREENSHOTS");
    if (dir.isEmpty()) return;
    QDir().mkpath(dir);
    w.grab().save(dir + u'/' + name + QStringLiteral(".png"));
}

} // namespace ostrel::test
