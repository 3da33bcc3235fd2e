#pragma once

#include <QByteArray>
#include <QString>

namespace ostrel {

// Whole-file replacement that never leaves a moment without the file: the bytes go to a temporary
// file beside the target, are synced, and the temporary is renamed over the target, then the
// folder is synced. On any failure the target is as it was, the temporary is gone, and a
// StoreError names `name` (the data name the user knows).
void ReplaceFileWhole(const QString& path, const QString& name, const QByteArray& bytes);

// Renames one file over another in one step and syncs the folder; the target need not exist.
void MoveFileOver(const QString& fromPath, const QString& toPath, const QString& name);

// Syncs a file already on disk (a record file written in place) before a step that relies on it.
void SyncFile(const QString& path, const QString& name);

// True for a name that only an interrupted replacement leaves behind: a file name with one of the
// extensions the program saves, then a dot and six letters or digits ("Services.txt.uxrUim").
bool IsLeftoverTemporaryName(const QString& fileName);

} // namespace ostrel
