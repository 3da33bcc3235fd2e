#include "frmSales.h"

#include "invoicing/AssociateJournal.h"
#include "shell/Session.h"
#include "store/Record.h"
#include "store/LocaleText.h"

#include <cmath>

namespace ostrel {

namespace {

const QString kTempFile = QStringLiteral("/TempFile.txt");
const QString kJournalBackup = QStringLiteral("/Backup/AssociateJournal.txt");

// The bytes of a record file read as the record files count them: a last record at least half there
// counts whole, its missing bytes zero.
QByteArray wholeRecords(const QByteArray& bytes, int length) {
    const auto count = static_cast<qsizetype>(std::nearbyint(static_cast<double>(bytes.size()) / length));
    QByteArray out = bytes.left(count * length);
    out.resize(count * length, '\0');
    return out;
}

} // namespace

void frmSales::DeleteStrayTempFile() {
    // The scratch name was formed without a separator: "TempFile.txt" straight after the data
    // folder's own path, which is a file beside the folder, and "BackupTempFile.txt" inside it for
    // its backup. Only the one inside the data folder is ours to delete; /TempFile.txt itself is not
    // this name and stays.
    m_session.disk.DeleteDataFile(QStringLiteral("/BackupTempFile.txt"));
}

void frmSales::DeleteRecords() {
    DiskRoutines& disk = m_session.disk;
    const QString& journal = AssociateJournalRecord::kFileName;
    if (!disk.FileExists(journal)) return;
    DeleteStrayTempFile();

    Dialogs& dialogs = m_session.platform.dialogs;
    const QString range = QStringLiteral("This will delete all Sales Records \nfrom ") +
                          ShortDateText(m_start) + QStringLiteral(" to ") + ShortDateText(m_end);
    if (dialogs.MsgBox(range, vbYesNo, QStringLiteral("Delete Sales Records")) != vbYes) return;
    if (dialogs.MsgBox(QStringLiteral("Are you Sure?"), vbYesNo, QStringLiteral("Delete Verification")) != vbYes)
        return;

    constexpr int len = AssociateJournalRecord::kLength;
    const QByteArray records = wholeRecords(disk.ReadTextFile(journal).bytes(), len);
    // The kept records, for every associate: only the dates decide.
    QByteArray kept;
    kept.reserve(records.size());
    Record r(len);
    for (qsizetype offset = 0; offset < records.size(); offset += len) {
        r.bytes() = records.mid(offset, len);
        const QDate date = AssociateJournalRecord::DayOf(r.float64(AssociateJournalRecord::kDateOffset));
        if (date < m_start || date > m_end) kept += r.bytes();
    }

    // The scratch file is not emptied first: the kept records go over its first ones, and whatever
    // it held beyond them stays behind them.
    QByteArray scratch = disk.FileExists(kTempFile) ? disk.ReadTextFile(kTempFile).bytes() : QByteArray();
    if (scratch.size() < kept.size()) scratch.resize(kept.size());
    scratch.replace(0, kept.size(), kept);
    disk.ReplaceRecordFile(kTempFile, scratch);

    // The scratch file takes the journal's place in one step, so the journal is never missing or
    // cut short, whenever the program stops.
    disk.ReplaceRecordFile(journal, scratch);
    disk.DeleteDataFile(kTempFile);
    disk.MakeDirectoryIfAbsent(QStringLiteral("/Backup"));
    disk.CopyRelative(journal, kJournalBackup);
    DeleteStrayTempFile();
    disk.CloseAllFiles();
    LoadGrid();
}

} // namespace ostrel
