#pragma once

#include <QString>

namespace ostrel {

// What the program knows of itself: its name (the executable's file name without extension), the
// title its boxes carry, its version, and its folder, which is the data root.
class AppInfo {
public:
    explicit AppInfo(const QString& executablePath);
    AppInfo(const QString& executablePath, int major, int minor, int revision);

    // The running process's own executable.
    static AppInfo fromProcess();

    const QString& programName() const { return m_programName; }
    QString title() const { return m_title.isEmpty() ? m_programName : m_title; }
    void setTitle(const QString& title) { m_title = title; }
    const QString& path() const { return m_path; }
    // Not major()/minor(): glibc has macros of those names.
    int versionMajor() const { return m_major; }
    int versionMinor() const { return m_minor; }
    int versionRevision() const { return m_revision; }
    // "1.0.0": the three numbers joined by ".".
    QString version() const;

private:
    QString m_programName;
    QString m_title;
    QString m_path;
    int m_major;
    int m_minor;
    int m_revision;
};

} // namespace ostrel
