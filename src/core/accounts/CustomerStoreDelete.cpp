// Deletion of one customer with the compaction of the three parallel files.
#include "AccountFileNames.h"
#include "CustomerStore.h"

#include "store/DiskRoutines.h"

namespace ostrel {

void CustomerStore::compact(const QString& scratch, const QString& target, int recordLength, int skip,
                            bool secondary) {
    const int count = m_disk.FileRecordCount(target, static_cast<qint16>(recordLength));
    m_disk.OpenRandom(scratch, recordLength); // its own channel, opened before the source as ever
    RandomFile& source = secondary ? m_disk.OpenRandomSecondary(target, recordLength)
                                   : m_disk.OpenRandom(target, recordLength);
    QByteArray copies;
    copies.reserve(static_cast<qsizetype>(recordLength) * count);
    for (int i = 1; i < count + 1; ++i)
        if (i != skip) copies += source.get(i).bytes();
    m_disk.CloseAllFiles();
    writeWhole(scratch, recordLength, copies);
    // The compacted copy takes the old file's place in one step: a crash or a failed step leaves
    // the old records or the new ones, never no file.
    m_disk.ReplaceWithFile(scratch, target);
}

int CustomerStore::DeleteCustomer(int r, const QString& accountBoxText, int customerCount) {
    const QString scratch = QStringLiteral("\\CUSTOMER.TMP");
    const QString temp = QStringLiteral("\\Temp.txt");

    m_disk.DeleteDataFile(scratch);
    // The open-account file goes with the customer; an account that cannot name a file has none.
    if (AccountNamesAFile(accountBoxText)) m_disk.DeleteFileAndBackup(ActiveAccountFileName(accountBoxText));

    compact(scratch, QStringLiteral("\\CustomerData.txt"), CustomerRecord::kLength, r, false);

    // A companion that is missing stays missing: the account screen rebuilds it in step with the
    // customers at its next activation, where an empty one made here would stay out of step.
    m_disk.DeleteDataFile(temp);
    if (m_disk.FileExists(QStringLiteral("\\CycleInfo.txt")))
        compact(temp, QStringLiteral("\\CycleInfo.txt"), CycleInfoRecord::kLength, r, true);
    m_disk.DeleteDataFile(temp);
    if (m_disk.FileExists(QStringLiteral("\\ContractInfo.txt")))
        compact(temp, QStringLiteral("\\ContractInfo.txt"), ContractInfoRecord::kLength, r, true);

    return customerCount > 1 ? customerCount - 1 : customerCount;
}

} // namespace ostrel
