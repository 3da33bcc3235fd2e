#pragma once

#include <QString>

namespace ostrel {

class DiskRoutines;

// "/MyWebSite.txt": an optional, hand-made file of one string that the letterhead prints below the
// business lines. No screen writes it.
inline const QString kWebSiteFile = QStringLiteral("/MyWebSite.txt");

// The address, or an empty string when the file is missing or holds nothing.
QString LoadWebSiteAddress(DiskRoutines& disk);

} // namespace ostrel
