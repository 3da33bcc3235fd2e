#pragma once

#include "DataRoot.h"
#include "RandomFile.h"
#include "TextStatements.h"

#include <QString>

#include <QHash>

#include <functional>
#include <map>
#include <memory>
#include <optional>

namespace ostrel {

// The routines through which the whole program reaches the disk. Names are data names: they start
// with a separator, "/" and "\" mean the same, and case does not matter.
//
// Files are opened on numbered channels; the last open stores its channel in PrimaryChannel or
// SecondaryChannel. Each routine ends with CloseAllFiles, so nothing stays open across events.
// Text written through an output channel reaches the disk when the channel closes, by a safe
// replace: a temporary file renamed over the old one.
class DiskRoutines {
public:
    static constexpr int kCustomerRecordLength = 328;
    static constexpr int kContractRecordLength = 386;
    static constexpr int kCycleRecordLength = 69;

    explicit DiskRoutines(const DataRoot& root) : m_root(root) {}
    ~DiskRoutines();
    DiskRoutines(const DiskRoutines&) = delete;
    DiskRoutines& operator=(const DiskRoutines&) = delete;

    const DataRoot& root() const { return m_root; }

    // True for a file (never a directory). An absent file that has a copy in /Backup is restored
    // from it first.
    bool FileExists(const QString& name);
    // Records in a file, by its length divided by the record length, rounded half to even.
    qint16 FileRecordCount(const QString& name, qint16 recordLength);

    TextReader& OpenForInput(const QString& name);
    TextWriter& OpenForOutput(const QString& name);
    // Closes every open file first.
    TextWriter& OpenForAppend(const QString& name);
    RandomFile& OpenRandom(const QString& name, int recordLength);
    RandomFile& OpenRandomSecondary(const QString& name, int recordLength);
    RandomFile& OpenCustomerFile() { return OpenRandom(QStringLiteral("/CustomerData.txt"), kCustomerRecordLength); }
    RandomFile& OpenCycleFile() { return OpenRandomSecondary(QStringLiteral("/CycleInfo.txt"), kCycleRecordLength); }
    RandomFile& OpenContractFile() {
        return OpenRandomSecondary(QStringLiteral("/ContractInfo.txt"), kContractRecordLength);
    }

    // Closes every open file, then deletes the file if there is one.
    void DeleteDataFile(const QString& name);
    void DeleteFileAndBackup(const QString& name);
    void MakeDirectoryIfAbsent(const QString& name);
    // Removes an empty directory; fails when it is absent or not empty.
    void RemoveDataDirectory(const QString& name);
    // Fails when the new name is taken or the old one is absent.
    void RenameDataFile(const QString& oldName, const QString& newName);
    // The scratch file takes the target's place in one step (the target's backup copy is dropped);
    // at no moment is there no target.
    void ReplaceWithFile(const QString& sourceName, const QString& targetName);
    // Copies a file over another (the target replaced safely).
    void CopyDataFile(const QString& sourceName, const QString& targetName);
    void CopyRelative(const QString& sourceName, const QString& targetName) { CopyDataFile(sourceName, targetName); }
    void CloseAllFiles();

    // The text writers' habit, made safe: the backup copy is deleted, and the file is replaced
    // whole or not at all.
    void ReplaceTextFile(const QString& name, const TextWriter& content);
    // The same for a file of fixed records written whole: its backup copy is dropped, and the file
    // is replaced in one step, so a crash leaves the old records or the new ones.
    void ReplaceRecordFile(const QString& name, const QByteArray& records);
    // Writes `records` (whole records) from record number `firstRecord` on, the way a put of each
    // would, but in one step: the file is rewritten beside itself and renamed over, so a crash
    // leaves it as it was or with every new record. A file that is absent is created; its backup
    // copy is left alone.
    void PutRecords(const QString& name, int recordLength, qint64 firstRecord, const QByteArray& records);
    // The whole file for the field and line reads; throws when it is absent.
    TextReader ReadTextFile(const QString& name);
    // The same, or nothing when the file is absent (a copy in /Backup is restored first, as
    // FileExists does): one look at the disk where FileExists and ReadTextFile take two.
    std::optional<TextReader> ReadTextFileIfPresent(const QString& name);
    // The whole file at a path a directory listing gave (DataRoot::files): no look-up of the
    // name; `name` is the data name messages give. Throws when no file is there.
    TextReader ReadTextFileAt(const QString& path, const QString& name);

    // A file found damaged when it was read. The owner is told once a run (through the report
    // hook), and nothing writes over the file or deletes it in this run unless the owner, asked
    // through the overwrite hook, agrees; without that hook every such write is refused.
    using DamageReport = std::function<void(const QString& name, const QString& problem)>;
    using OverwriteQuestion = std::function<bool(const QString& name, const QString& problem)>;
    void SetDamageHooks(DamageReport report, OverwriteQuestion ask);
    void ReportDamage(const QString& name, const QString& problem);
    bool IsDamaged(const QString& name) const;

    bool DirectoryExists(const QString& name) const { return m_root.resolve(name).isDirectory(); }
    bool PathIsFile(const QString& name) const { return m_root.resolve(name).isFile(); }

    // Channels.
    int FreeFile() const;
    bool IsOpen(int channel) const { return m_channels.count(channel) != 0; }
    int OpenChannelCount() const { return static_cast<int>(m_channels.size()); }
    TextReader& Input(int channel);
    TextWriter& Output(int channel);
    RandomFile& Random(int channel);
    void Close(int channel);

    qint16 PrimaryChannel = 0;
    qint16 SecondaryChannel = 0;

private:
    struct Channel {
        enum class Mode { Input, Output, Append, Random } mode = Mode::Input;
        QString name;
        DataRoot::Entry target;
        TextReader reader;
        TextWriter writer;
        std::unique_ptr<RandomFile> random;
    };
    Channel& channel(int number, const char* kind);
    int openChannel(std::unique_ptr<Channel> ch);
    void commit(Channel& ch);
    std::optional<TextReader> readIfFile(const QString& name);
    // Copies the file's /Backup copy into its place; false when there is none.
    bool restoreFromBackup(const QString& name);
    void writeWhole(const DataRoot::Entry& target, const QString& name, const QByteArray& bytes);
    DataRoot::Entry writableTarget(const QString& name) const;
    // Throws unless the file at this path may be written over (see ReportDamage).
    void mayWriteOver(const QString& path, const QString& name);

    const DataRoot& m_root;
    std::map<int, std::unique_ptr<Channel>> m_channels;
    QHash<QString, QString> m_damaged; // full path -> what is wrong
    DamageReport m_reportDamage;
    OverwriteQuestion m_askOverwrite;
};

} // namespace ostrel
