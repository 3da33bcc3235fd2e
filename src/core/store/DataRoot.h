#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

namespace ostrel {

// The one place where a data name ("/AuxFiles\\123/AuxFile0") becomes a file system path.
// Both separators are accepted, each part is matched against the disk without regard to case,
// and no name can reach outside the root.
class DataRoot {
public:
    enum class Kind { Missing, File, Directory, Other };

    struct Entry {
        QString path; // full path, with the disk's spelling of every part that exists
        Kind kind = Kind::Missing;
        qint64 size = 0;
        bool isFile() const { return kind == Kind::File; }
        bool isDirectory() const { return kind == Kind::Directory; }
        bool exists() const { return kind != Kind::Missing; }
    };

    explicit DataRoot(const QString& rootDirectory);
    ~DataRoot();
    DataRoot(const DataRoot&) = delete;
    DataRoot& operator=(const DataRoot&) = delete;

    const QString& root() const { return m_root; }

    // Splits a data name into its parts; throws StoreError for a part that would leave the root.
    static QStringList parts(const QString& name);

    // The entry a data name stands for. Throws StoreError for a name that would leave the root.
    Entry resolve(const QString& name) const;
    QString path(const QString& name) const { return resolve(name).path; }
    // The same for a name already found missing as spelled (a failed open of spelledPath): the
    // disk is searched for another spelling of it without looking at that path again.
    Entry resolveNotAsSpelled(const QString& name) const;
    // The path of a data name as spelled, without looking at the disk: where the name stands on a
    // disk that spells it the same. Throws StoreError for a name that would leave the root.
    QString spelledPath(const QString& name, qsizetype* partCount = nullptr) const;

    // Keep the case-insensitive look-up current when this program adds or removes an entry, without
    // listing a large directory again.
    void noteCreated(const QString& fullPath) const { noteChange(fullPath, true); }
    void noteRemoved(const QString& fullPath) const { noteChange(fullPath, false); }

    // The names in a directory, as on disk (empty when it is not a directory).
    QStringList list(const QString& name) const;

    // A directory's entries with their kinds, keyed by case-folded name: one read of the directory
    // for callers that test many names in it.
    struct Listed {
        QString name;
        Kind kind = Kind::Missing;
    };
    QHash<QString, Listed> entries(const QString& name) const;

    // The files of a directory (no folders), sorted by name as list() sorts, each with its full
    // path: one read of the directory and no look-up per file, for callers that read every file
    // of a large one.
    struct ListedFile {
        QString name;
        QString path;
    };
    QVector<ListedFile> files(const QString& name) const;

private:
    struct Listing;
    const Listing& listing(const QString& directory) const;
    Entry walk(const QString& name, const QString& exact) const;
    void noteChange(const QString& fullPath, bool created) const;

    QString m_root;
    mutable QHash<QString, std::shared_ptr<Listing>> m_listings;
};

} // namespace ostrel
