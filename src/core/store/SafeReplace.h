#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace ostrel {

// Whole-file replacement that never leaves a moment without the file: the bytes go to a temporary
// file beside the target, are synced, and the temporary is renamed over the target, then the
// folder is synced. On any failure the target is as it was, the temporary is gone, and a
// StoreError names `name` (the data name the user knows).
void ReplaceFileWhole(const QString& path, const QString& name, const QByteArray& bytes);

// Many files saved as one batch: while a batch is open on this thread, ReplaceFileWhole writes each
// file's temporary and leaves it beside its target; commit() then syncs them all with one wait,
// renames each over its target, and syncs the folder entries with one more wait. Each file still
// goes from its old bytes to its new ones in one step, and a crash leaves only temporaries that
// the next start removes. Until commit, readers see the old files, so a batch holds writes that no
// later step of the same batch reads back.
class ReplaceBatch {
public:
    ReplaceBatch();
    // Commits what is pending; a failure then is dropped (it comes while an error is on its way, or
    // after an explicit commit that already reported it).
    ~ReplaceBatch();
    ReplaceBatch(const ReplaceBatch&) = delete;
    ReplaceBatch& operator=(const ReplaceBatch&) = delete;

    // Puts every pending file in place. On a failure the files before it are new, the rest old,
    // every temporary is gone, and the StoreError names the file that failed.
    void commit();
    // The batch open on this thread, or none.
    static ReplaceBatch* current();

private:
    friend void ReplaceFileWhole(const QString&, const QString&, const QByteArray&);
    struct Pending {
        QByteArray temp;
        QByteArray target;
        QString name;
    };
    void add(Pending p);
    void discardFrom(std::size_t first);
    std::vector<Pending> m_pending;
    ReplaceBatch* m_outer;
};

// Renames one file over another in one step and syncs the folder; the target need not exist.
void MoveFileOver(const QString& fromPath, const QString& toPath, const QString& name);

// Syncs a file already on disk (a record file written in place) before a step that relies on it.
void SyncFile(const QString& path, const QString& name);

// True for a name that only an interrupted replacement leaves behind: a file name with one of the
// extensions the program saves, then a dot and six letters or digits ("Services.txt.uxrUim").
bool IsLeftoverTemporaryName(const QString& fileName);

} // namespace ostrel
