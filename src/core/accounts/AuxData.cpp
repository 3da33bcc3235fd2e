#include "AuxData.h"

#include "AccountFileNames.h"

#include "store/DiskRoutines.h"
#include "store/StoreError.h"

namespace ostrel::AuxData {

QStringList ReadAuxHeadings(DiskRoutines& disk) {
    QStringList headings;
    if (!disk.FileExists(kHeadingsFile)) {
        for (int k = 0; k < kBoxes; ++k)
            headings << QString();
        return headings;
    }
    TextReader& in = disk.OpenForInput(kHeadingsFile);
    try {
        for (int k = 0; k < kBoxes; ++k)
            headings << in.readLine();
    } catch (const StoreError&) {
        disk.CloseAllFiles();
        throw StoreError(kHeadingsFile, QStringLiteral("The file holds fewer than six headings."));
    }
    disk.CloseAllFiles();
    return headings;
}

void SaveAuxHeadings(DiskRoutines& disk, const QStringList& headings) {
    TextWriter out;
    for (int k = 0; k < kBoxes; ++k)
        out.print(headings.value(k));
    disk.DeleteFileAndBackup(kHeadingsFile);
    disk.OpenForOutput(kHeadingsFile) = out;
    disk.CloseAllFiles();
}

QStringList LoadAuxData(DiskRoutines& disk, const QString& account) {
    QStringList boxes;
    // An account that cannot name a folder has no aux files: its boxes are empty.
    if (!AccountNamesAFile(account)) {
        for (int k = 0; k < kBoxes; ++k) boxes << QString();
        return boxes;
    }
    for (int k = 0; k < kBoxes; ++k) {
        QString box;
        const QString name = AuxDataFileName(account, k);
        if (disk.FileExists(name)) {
            TextReader& in = disk.OpenForInput(name);
            while (!in.atEnd())
                box += in.readString() + kLineBreak;
            disk.CloseAllFiles();
        }
        boxes << box;
    }
    return boxes;
}

void SaveAuxData(DiskRoutines& disk, const QString& account, const QStringList& boxes) {
    // Refuses an account that cannot name a folder before anything is touched. Each file is then
    // replaced in one step rather than deleted first.
    AuxDataFileName(account, 0);
    // A customer added in this run has no folders yet.
    disk.MakeDirectoryIfAbsent(QStringLiteral("/AuxFiles"));
    disk.MakeDirectoryIfAbsent(AuxFolderName(account));
    for (int k = 0; k < kBoxes; ++k) {
        disk.MakeDirectoryIfAbsent(AuxSubfolderName(account, k));
        disk.OpenForOutput(AuxDataFileName(account, k)).print(boxes.value(k));
        disk.CloseAllFiles();
    }
}

} // namespace ostrel::AuxData
