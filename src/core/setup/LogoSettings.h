#pragma once

#include <QString>

namespace ostrel {

class DiskRoutines;

// The printed logo's size in twips: one statement of two single-precision numbers, width first.
struct LogoSettings {
    static constexpr float kDefaultSize = 1440;
    // The range the Setup screen steps through.
    static constexpr float kMinimumSize = 360;
    static constexpr float kMaximumSize = 1800;

    float width = kDefaultSize;
    float height = kDefaultSize;
};

inline const QString kLogoSettingsFile = QStringLiteral("/LogoSettings.txt");

// Reads both values when the file exists (true). When it is missing both become 1440 and the size
// is saved, which writes nothing while no picture is loaded (false).
bool LoadLogoSettings(DiskRoutines& disk, LogoSettings& size, bool pictureLoaded);

// Replaces the file while a picture is loaded; otherwise writes nothing.
void SaveLogoSettings(DiskRoutines& disk, const LogoSettings& size, bool pictureLoaded);

} // namespace ostrel
