#include "DataRoot.h"

#include "StoreError.h"

#include <QDir>
#include <QFile>

#include <algorithm>

#include <dirent.h>
#include <sys/stat.h>

namespace ostrel {

struct DataRoot::Listing {
    timespec modified{};
    bool valid = false;
    QHash<QString, QString> byFoldedName; // case-folded name -> name on disk
};

namespace {

DataRoot::Entry statPath(const QString& path) {
    DataRoot::Entry e;
    e.path = path;
    struct stat st {};
    if (::stat(QFile::encodeName(path).constData(), &st) != 0) return e;
    e.size = st.st_size;
    e.kind = S_ISREG(st.st_mode)   ? DataRoot::Kind::File
             : S_ISDIR(st.st_mode) ? DataRoot::Kind::Directory
                                   : DataRoot::Kind::Other;
    return e;
}

bool sameTime(const timespec& a, const timespec& b) { return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec; }

} // namespace

DataRoot::DataRoot(const QString& rootDirectory)
    : m_root(QDir::cleanPath(QDir(rootDirectory).absolutePath())) {}

DataRoot::~DataRoot() = default;

QStringList DataRoot::parts(const QString& name) {
    QStringList out;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= name.size(); ++i) {
        if (i < name.size() && name[i] != u'/' && name[i] != u'\\') continue;
        const QStringView part = QStringView(name).mid(start, i - start);
        start = i + 1;
        if (part.isEmpty() || part == u".") continue;
        if (part == u".." || part.contains(QChar(0)))
            throw StoreError(name, QStringLiteral("This name would reach outside the data folder."));
        out.append(part.toString());
    }
    return out;
}

const DataRoot::Listing& DataRoot::listing(const QString& directory) const {
    auto& slot = m_listings[directory];
    if (!slot) slot = std::make_shared<Listing>();
    struct stat st {};
    const QByteArray native = QFile::encodeName(directory);
    if (::stat(native.constData(), &st) != 0) {
        slot->valid = false;
        slot->byFoldedName.clear();
        return *slot;
    }
    if (slot->valid && sameTime(slot->modified, st.st_mtim)) return *slot;
    slot->byFoldedName.clear();
    slot->modified = st.st_mtim;
    slot->valid = true;
    if (DIR* d = ::opendir(native.constData())) {
        while (dirent* de = ::readdir(d)) {
            const QString n = QFile::decodeName(de->d_name);
            if (n == u"." || n == u"..") continue;
            slot->byFoldedName.insert(n.toCaseFolded(), n); // first spelling met wins
        }
        ::closedir(d);
    }
    return *slot;
}

void DataRoot::noteChange(const QString& fullPath, bool created) const {
    m_listings.remove(fullPath); // a removed or replaced directory of its own
    const qsizetype cut = fullPath.lastIndexOf(u'/');
    if (cut <= 0) return;
    const auto it = m_listings.constFind(fullPath.left(cut));
    if (it == m_listings.cend() || !(*it)->valid) return;
    Listing& l = **it;
    struct stat st {};
    if (::stat(QFile::encodeName(fullPath.left(cut)).constData(), &st) != 0) {
        l.valid = false;
        return;
    }
    l.modified = st.st_mtim;
    const QString name = fullPath.mid(cut + 1);
    if (created)
        l.byFoldedName.insert(name.toCaseFolded(), name);
    else if (l.byFoldedName.value(name.toCaseFolded()) == name)
        l.byFoldedName.remove(name.toCaseFolded());
}

QString DataRoot::spelledPath(const QString& name, qsizetype* partCount) const {
    // The name as spelled, put together in one pass: most names are found so, and every read and
    // write comes here. The parts are split out only for the walk of resolve.
    QString exact;
    exact.reserve(m_root.size() + name.size() + 1);
    exact += m_root;
    qsizetype count = 0;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= name.size(); ++i) {
        if (i < name.size() && name[i] != u'/' && name[i] != u'\\') continue;
        const QStringView part = QStringView(name).mid(start, i - start);
        start = i + 1;
        if (part.isEmpty() || part == u".") continue;
        if (part == u".." || part.contains(QChar(0))) (void)parts(name); // throws, naming the name
        exact += u'/';
        exact += part;
        ++count;
    }
    if (partCount) *partCount = count;
    return exact;
}

DataRoot::Entry DataRoot::resolve(const QString& name) const {
    qsizetype partCount = 0;
    const QString exact = spelledPath(name, &partCount);
    Entry e = statPath(exact);
    if (e.exists() || partCount == 0) return e;
    return walk(name, exact);
}

DataRoot::Entry DataRoot::resolveNotAsSpelled(const QString& name) const {
    qsizetype partCount = 0;
    const QString exact = spelledPath(name, &partCount);
    return partCount == 0 ? statPath(exact) : walk(name, exact);
}

DataRoot::Entry DataRoot::walk(const QString& name, const QString& exact) const {
    const QStringList ps = parts(name);
    // Not there as spelled: walk the parts and match each against its directory's listing. The
    // whole name as spelled is known to be missing, so it is not looked at again.
    QString current = m_root;
    for (qsizetype i = 0; i < ps.size(); ++i) {
        const QString& p = ps[i];
        QString candidate = current + u'/' + p;
        Entry step;
        if (candidate != exact) step = statPath(candidate);
        if (!step.exists()) {
            const Listing& l = listing(current);
            const auto it = l.byFoldedName.constFind(p.toCaseFolded());
            if (it == l.byFoldedName.cend()) {
                // Nothing of this name: the rest keeps the spelling it was given.
                for (qsizetype j = i + 1; j < ps.size(); ++j) candidate += u'/' + ps[j];
                Entry missing;
                missing.path = candidate;
                return missing;
            }
            candidate = current + u'/' + *it;
            step = statPath(candidate);
        }
        if (i + 1 == ps.size()) return step;
        if (!step.isDirectory()) {
            for (qsizetype j = i + 1; j < ps.size(); ++j) candidate += u'/' + ps[j];
            Entry missing;
            missing.path = candidate;
            return missing;
        }
        current = candidate;
    }
    return Entry{exact};
}

QStringList DataRoot::list(const QString& name) const {
    const Entry e = resolve(name);
    if (!e.isDirectory()) return {};
    return QDir(e.path).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDir::Name);
}

} // namespace ostrel

namespace ostrel {

namespace {

// Each entry of a directory but "." and "..", with its kind; symbolic links are followed.
template <typename Visit> bool forEachEntry(const QString& path, Visit visit) {
    DIR* d = ::opendir(QFile::encodeName(path).constData());
    if (!d) return false;
    while (dirent* de = ::readdir(d)) {
        const char* raw = de->d_name;
        if (raw[0] == '.' && (raw[1] == 0 || (raw[1] == '.' && raw[2] == 0))) continue;
        const QString n = QFile::decodeName(raw);
        DataRoot::Kind kind = DataRoot::Kind::Other;
        switch (de->d_type) {
        case DT_REG: kind = DataRoot::Kind::File; break;
        case DT_DIR: kind = DataRoot::Kind::Directory; break;
        case DT_UNKNOWN:
        case DT_LNK: kind = statPath(path + u'/' + n).kind; break;
        default: break;
        }
        visit(n, kind);
    }
    ::closedir(d);
    return true;
}

} // namespace

QHash<QString, DataRoot::Listed> DataRoot::entries(const QString& name) const {
    QHash<QString, Listed> out;
    const Entry e = resolve(name);
    if (!e.isDirectory()) return out;
    forEachEntry(e.path, [&](const QString& n, Kind kind) {
        const QString folded = n.toCaseFolded();
        if (!out.contains(folded)) out.insert(folded, Listed{n, kind});
    });
    return out;
}

QVector<DataRoot::ListedFile> DataRoot::files(const QString& name) const {
    QVector<ListedFile> out;
    const Entry e = resolve(name);
    if (!e.isDirectory()) return out;
    forEachEntry(e.path, [&](const QString& n, Kind kind) {
        if (kind == Kind::File) out.append(ListedFile{n, e.path + u'/' + n});
    });
    std::sort(out.begin(), out.end(), [](const ListedFile& a, const ListedFile& b) { return a.name < b.name; });
    return out;
}

} // namespace ostrel
