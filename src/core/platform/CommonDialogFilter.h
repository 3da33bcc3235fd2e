#pragma once

#include <QString>
#include <QStringList>

namespace ostrel {

// Turns a file filter of the legacy form "Pictures |(*.bmp;*.jpg)|All|*.*" into name filters a
// file dialog takes: "Pictures (*.bmp *.jpg)", "All (*)". "*.*" means every file, as the old
// dialog meant it, dotted or not.
QStringList NameFiltersFromCommonDialog(const QString& filter);

} // namespace ostrel
