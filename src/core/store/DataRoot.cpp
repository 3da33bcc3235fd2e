#include "DataRoot.h"

#include "NativePath.h"
#include "StoreError.h"

#include <QDir>
#include <QVarLengthArray>

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
    if (::stat(nativePath(path).constData(), &st) != 0) return e;
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

namespace {

// Calls part(begin, length) for each non-empty part of a data name but ".". Throws, naming the
// name, at a part that would reach outside the root ("..", or one holding a NUL).
template <typename Part> void forEachPart(const QString& name, Part part) {
    const QChar* const text = name.constData();
    const qsizetype size = name.size();
    qsizetype start = 0;
    bool nul = false;
    for (qsizetype i = 0; i <= size; ++i) {
        if (i < size) {
            const char16_t c = text[i].unicode();
            if (c != u'/' && c != u'\\') {
                nul |= c == 0;
                continue;
            }
        }
        const QChar* const first = text + start;
        const qsizetype length = i - start;
        start = i + 1;
        if (length == 0 || (length == 1 && first[0] == u'.')) continue;
        if (nul || (length == 2 && first[0] == u'.' && first[1] == u'.'))
            throw StoreError(name, QStringLiteral("This name would reach outside the data folder."));
        part(first, length);
    }
}

// Case-folded for the look-up of names on disk. ASCII, nearly every name, folds to lower case;
// the rest takes Qt's full folding.
QString folded(QStringView name) {
    for (const QChar c : name)
        if (c.unicode() >= 0x80) return name.toString().toCaseFolded();
    QString out = name.toString();
    for (QChar& c : out)
        if (c >= u'A' && c <= u'Z') c = QChar(c.unicode() + (u'a' - u'A'));
    return out;
}

} // namespace

QStringList DataRoot::parts(const QString& name) {
    QStringList out;
    forEachPart(name, [&](const QChar* first, qsizetype length) { out.append(QString(first, length)); });
    return out;
}

const DataRoot::Listing& DataRoot::listing(const QString& directory) const {
    auto& slot = m_listings[directory];
    if (!slot) slot = std::make_shared<Listing>();
    struct stat st {};
    const QByteArray native = nativePath(directory);
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
            const QString n = pathFromNative(de->d_name);
            if (n == u"." || n == u"..") continue;
            slot->byFoldedName.insert(folded(n), n); // first spelling met wins
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
    if (::stat(nativePath(fullPath.left(cut)).constData(), &st) != 0) {
        l.valid = false;
        return;
    }
    l.modified = st.st_mtim;
    const QString name = fullPath.mid(cut + 1);
    if (created)
        l.byFoldedName.insert(folded(name), name);
    else if (l.byFoldedName.value(folded(name)) == name)
        l.byFoldedName.remove(folded(name));
}

QString DataRoot::spelledPath(const QString& name, qsizetype* partCount) const {
    // Most names come as "/part/part": they are checked in one pass and joined to the root whole.
    // Others (back slashes, doubled or trailing separators, "." parts) are put together part by part.
    qsizetype count = 0;
    qsizetype end = 0; // where the parts so far end, when each came right after one '/'
    bool asGiven = true;
    forEachPart(name, [&](const QChar* first, qsizetype length) {
        const qsizetype at = first - name.constData();
        asGiven = asGiven && at == end + 1 && name.at(end) == u'/';
        end = at + length;
        ++count;
    });
    if (partCount) *partCount = count;
    if (asGiven && end == name.size()) return count == 0 ? m_root : m_root + name;
    QString exact;
    exact.reserve(m_root.size() + name.size() + 1);
    exact += m_root;
    forEachPart(name, [&](const QChar* first, qsizetype length) {
        exact += u'/';
        exact.append(first, length);
    });
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
    QVarLengthArray<QStringView, 16> ps;
    forEachPart(name, [&](const QChar* first, qsizetype length) { ps.append(QStringView(first, length)); });
    // Not there as spelled: walk the parts and match each against its directory's listing. The
    // whole name as spelled is known to be missing, so it is not looked at again.
    QString path; // the disk's spelling of the parts walked so far
    path.reserve(exact.size() + 16);
    path += m_root;
    const auto missingWithRest = [&](qsizetype from) {
        for (qsizetype j = from; j < ps.size(); ++j) {
            path += u'/';
            path += ps[j];
        }
        Entry missing;
        missing.path = path;
        return missing;
    };
    bool asSpelled = true;
    for (qsizetype i = 0; i < ps.size(); ++i) {
        const bool last = i + 1 == ps.size();
        const qsizetype parent = path.size();
        path += u'/';
        path += ps[i];
        Entry step;
        if (!(last && asSpelled)) step = statPath(path);
        if (!step.exists()) {
            const Listing& l = listing(path.left(parent));
            const auto it = l.byFoldedName.constFind(folded(ps[i]));
            // Nothing of this name: the rest keeps the spelling it was given.
            if (it == l.byFoldedName.cend()) return missingWithRest(i + 1);
            path.truncate(parent + 1);
            path += *it;
            asSpelled = false;
            step = statPath(path);
        }
        if (last) return step;
        if (!step.isDirectory()) return missingWithRest(i + 1);
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
    DIR* d = ::opendir(nativePath(path).constData());
    if (!d) return false;
    while (dirent* de = ::readdir(d)) {
        const char* raw = de->d_name;
        if (raw[0] == '.' && (raw[1] == 0 || (raw[1] == '.' && raw[2] == 0))) continue;
        const QString n = pathFromNative(raw);
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
        const QString key = folded(n);
        if (!out.contains(key)) out.insert(key, Listed{n, kind});
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
