#include "DataDirectories.h"

#include "RecordFormats.h"
#include "store/DiskRoutines.h"
#include "store/SafeReplace.h"
#include "store/StoreError.h"
#include "util/VbText.h"

#include <QRegularExpression>

namespace ostrel {

namespace {

constexpr int kAuxFolders = 6;

// The repair of one customer's tree: its folder and AuxFile0 to AuxFile5. The folder listings are
// read once for all customers, so a tree that is already complete costs one directory read.
class AuxTreeRepair {
public:
    explicit AuxTreeRepair(DiskRoutines& disk)
        : m_disk(disk), m_auxFiles(disk.root().entries(QStringLiteral("/AuxFiles"))),
          m_backupAuxFiles(disk.root().entries(QStringLiteral("/Backup/AuxFiles"))) {}

    void repair(const QString& account) {
        // The legacy test looks for a *file* named after the account (spelled "/Auxfiles/"), and
        // repairs the tree only when there is none; a folder never satisfies it.
        if (fileStandsInTheWay(account)) return;
        const QString folder = account.isEmpty() ? QStringLiteral("/AuxFiles") : QStringLiteral("/AuxFiles/") + account;
        QHash<QString, DataRoot::Listed> inside;
        const auto listed = account.isEmpty() ? DataRoot::Listed{QStringLiteral("AuxFiles"), DataRoot::Kind::Directory}
                                              : m_auxFiles.value(account.toCaseFolded());
        if (listed.kind == DataRoot::Kind::Directory) {
            inside = account.isEmpty() ? m_auxFiles : m_disk.root().entries(folder);
        } else {
            m_disk.MakeDirectoryIfAbsent(folder);
            m_auxFiles.insert(account.toCaseFolded(), DataRoot::Listed{account, DataRoot::Kind::Directory});
        }
        for (int k = 0; k < kAuxFolders; ++k) {
            const QString sub = QStringLiteral("AuxFile%1").arg(k);
            if (inside.value(sub.toCaseFolded()).kind == DataRoot::Kind::Directory) continue;
            m_disk.MakeDirectoryIfAbsent(folder + u'/' + sub);
            if (account.isEmpty()) m_auxFiles.insert(sub.toCaseFolded(), DataRoot::Listed{sub, DataRoot::Kind::Directory});
        }
    }

private:
    bool fileStandsInTheWay(const QString& account) {
        if (account.isEmpty()) return false;
        const QString folded = account.toCaseFolded();
        if (m_auxFiles.value(folded).kind == DataRoot::Kind::File) return true;
        if (m_backupAuxFiles.value(folded).kind != DataRoot::Kind::File) return false;
        return m_disk.FileExists(QStringLiteral("/Auxfiles/") + account); // restores it from /Backup
    }

    DiskRoutines& m_disk;
    QHash<QString, DataRoot::Listed> m_auxFiles;
    QHash<QString, DataRoot::Listed> m_backupAuxFiles;
};

QString accountProblem(const QString& account, int recordNumber) {
    return QStringLiteral("Customer record %1: the account number \"%2\" cannot name a folder, so its AuxFiles "
                          "folders were not made.")
        .arg(recordNumber)
        .arg(QString(account).replace(QChar(0), u' ').trimmed());
}

void removeLeftoversIn(DiskRoutines& disk, const QString& folder) {
    for (const DataRoot::Listed& e : disk.root().entries(folder))
        if (e.kind == DataRoot::Kind::File && IsLeftoverTemporaryName(e.name)) disk.DeleteDataFile(folder + u'/' + e.name);
}

} // namespace

void RemoveLeftoverTemporaries(DiskRoutines& disk) {
    // The folders the program saves into: the root, each folder in it, and each folder of a year's
    // folder (the day files). The customers' AuxFiles trees are too many to walk at every start.
    removeLeftoversIn(disk, QStringLiteral("/"));
    static const QRegularExpression year(QStringLiteral("^[0-9]{4}$"));
    for (const DataRoot::Listed& e : disk.root().entries(QStringLiteral("/"))) {
        if (e.kind != DataRoot::Kind::Directory || e.name.compare(QLatin1String("AuxFiles"), Qt::CaseInsensitive) == 0)
            continue;
        const QString folder = u'/' + e.name;
        removeLeftoversIn(disk, folder);
        if (!year.match(e.name).hasMatch()) continue;
        for (const DataRoot::Listed& inner : disk.root().entries(folder))
            if (inner.kind == DataRoot::Kind::Directory) removeLeftoversIn(disk, folder + u'/' + inner.name);
    }
}

QStringList PrepareDataDirectories(DiskRoutines& disk, QDate today, const QString& programName) {
    QStringList problems;
    try {
        RemoveLeftoverTemporaries(disk);
    } catch (const StoreError& e) {
        problems << e.userMessage();
    }
    disk.MakeDirectoryIfAbsent(u'/' + QString::number(today.year()).rightJustified(4, u'0'));
    // The program's own folder is never used again. Here the executable has no extension, so it
    // stands in the data root under that very name; it is left alone rather than being in the way.
    const QString programFolder = u'/' + programName;
    if (!disk.root().resolve(programFolder).isFile()) disk.MakeDirectoryIfAbsent(programFolder);
    for (const char* name : {"/Templates", "/OIActiveAccounts", "/Backup", "\\Backup\\OIActiveAccounts",
                             "\\Backup\\Assignments", "/AuxFiles"})
        disk.MakeDirectoryIfAbsent(QString::fromLatin1(name));

    const QString customers = QStringLiteral("/CustomerData.txt");
    CheckRecordFileOnRead(disk, customers);
    if (disk.FileExists(customers) && disk.FileRecordCount(customers, DiskRoutines::kCustomerRecordLength) >= 1) {
        RandomFile& file = disk.OpenCustomerFile();
        AuxTreeRepair repair(disk);
        const int count = file.recordCount();
        for (int r = 1; r <= count; ++r) {
            const QString account = vbTrim(file.get(r).text(0, 20));
            const QStringList parts = [&]() -> QStringList {
                try {
                    return DataRoot::parts(QStringLiteral("/AuxFiles/") + account);
                } catch (const StoreError&) {
                    return {};
                }
            }();
            if (parts.size() != (account.isEmpty() ? 1 : 2) || (!account.isEmpty() && parts[1] != account)) {
                problems << accountProblem(account, r);
                continue;
            }
            try {
                repair.repair(account);
            } catch (const StoreError& e) {
                problems << e.userMessage();
            }
        }
        disk.CloseAllFiles();
    }

    for (const char* name : {"/Appointments", "/SoldItems", "/Services"})
        disk.MakeDirectoryIfAbsent(QString::fromLatin1(name));
    return problems;
}

} // namespace ostrel
