#include "CustomerStore.h"

#include "store/DiskRoutines.h"
#include "store/StoreError.h"

namespace ostrel {

const QString CustomerStore::kCustomerFile = QStringLiteral("/CustomerData.txt");
const QString CustomerStore::kContractFile = QStringLiteral("/ContractInfo.txt");
const QString CustomerStore::kCycleFile = QStringLiteral("/CycleInfo.txt");

namespace {

void requireStorable(const QString& name, int r) {
    // Record numbers are 16-bit in the files' own format: one more would not read back.
    if (r > CustomerStore::kMostCustomers)
        throw StoreError(name,
                         QStringLiteral("The customer files hold 32,767 customers, the most they may hold; "
                                        "customer %1 cannot be stored.")
                             .arg(r));
}

RandomFile& customerChannel(DiskRoutines& disk) {
    RandomFile& f = disk.Random(disk.PrimaryChannel);
    if (f.recordLength() != CustomerRecord::kLength)
        throw StoreError(f.name(),
                         QStringLiteral("The customer file is not the file open on the primary channel."));
    return f;
}

} // namespace

int CustomerStore::CustomerCount() {
    return m_disk.FileRecordCount(QStringLiteral("\\CustomerData.txt"), CustomerRecord::kLength);
}

RandomFile& CustomerStore::OpenCustomerFile() {
    return m_disk.OpenCustomerFile();
}

void CustomerStore::ReadCustomer(int r) {
    m_buffers.customer = CustomerRecord(customerChannel(m_disk).get(r));
}

void CustomerStore::WriteCustomer(int r) {
    RandomFile& f = customerChannel(m_disk);
    requireStorable(f.name(), r);
    f.put(r, m_buffers.customer.record());
}

void CustomerStore::ReadContract(int r) {
    RandomFile& f = m_disk.OpenContractFile();
    Record rec = f.get(r);
    m_disk.CloseAllFiles();
    m_buffers.contract = ContractInfoRecord(std::move(rec));
}

void CustomerStore::WriteContract(int r) {
    requireStorable(kContractFile, r);
    m_disk.OpenContractFile().put(r, m_buffers.contract.record());
    m_disk.CloseAllFiles();
}

void CustomerStore::ReadCycle(int r) {
    RandomFile& f = m_disk.OpenCycleFile();
    Record rec = f.get(r);
    m_disk.CloseAllFiles();
    m_buffers.cycle = CycleInfoRecord(std::move(rec));
}

void CustomerStore::WriteCycle(int r) {
    requireStorable(kCycleFile, r);
    m_disk.OpenCycleFile().put(r, m_buffers.cycle.record());
    m_disk.CloseAllFiles();
}

void CustomerStore::ResetCompanionBuffers(QDate today) {
    m_buffers.contract.ResetToDefaults(today);
    m_buffers.cycle.ResetToDefaults();
}

void CustomerStore::writeWhole(const QString& name, int recordLength, const QByteArray& bytes) {
    // The records go down in one write: a record per write would cost a system call each, and a
    // full file has 32,767 of them. The file must be new or empty.
    if (bytes.isEmpty()) {
        m_disk.OpenRandom(name, recordLength);
    } else {
        m_disk.OpenRandom(name, static_cast<int>(bytes.size())).put(1, Record(bytes));
    }
    m_disk.CloseAllFiles();
}

void CustomerStore::rebuildCompanion(const QString& name, int recordLength, const Record& defaults, int count,
                                     const QString& fileWord, const CustomerMessage& message) {
    if (!m_disk.FileExists(kCustomerFile)) {
        if (message)
            message(QStringLiteral("Your Customer Information File is missing") + u'\n' +
                        QStringLiteral("The %1 File can not be rebuilt").arg(fileWord),
                    QStringLiteral("No Customer File Found"));
        return;
    }
    requireStorable(name, count);
    QByteArray bytes;
    bytes.reserve(static_cast<qsizetype>(recordLength) * std::max(count, 0));
    for (int r = 1; r <= count; ++r)
        bytes += defaults.bytes();
    m_disk.CloseAllFiles();
    m_disk.ReplaceRecordFile(name, bytes);
}

void CustomerStore::RebuildContractFile(int count, const CustomerMessage& message) {
    rebuildCompanion(kContractFile, ContractInfoRecord::kLength, m_buffers.contract.record(), count,
                     QStringLiteral("Contract"), message);
}

void CustomerStore::RebuildCycleFile(int count, const CustomerMessage& message) {
    rebuildCompanion(kCycleFile, CycleInfoRecord::kLength, m_buffers.cycle.record(), count,
                     QStringLiteral("Cycle"), message);
}

void CustomerStore::RebuildMissingCompanions(int count, const CustomerMessage& message) {
    if (!m_disk.FileExists(kCustomerFile)) return;
    // The owner is told: a rebuilt file holds defaults where the lost one held what was entered.
    const auto told = [&](const QString& file) {
        if (message)
            message(QStringLiteral("The file %1 was missing, so it was made anew with the default entries for "
                                   "each of the %2 customers.")
                        .arg(file)
                        .arg(count),
                    QStringLiteral("Customer Files"));
    };
    if (!m_disk.FileExists(kContractFile)) {
        RebuildContractFile(count, message);
        if (m_disk.FileExists(kContractFile)) told(QStringLiteral("ContractInfo.txt"));
    }
    if (!m_disk.FileExists(kCycleFile)) {
        RebuildCycleFile(count, message);
        if (m_disk.FileExists(kCycleFile)) told(QStringLiteral("CycleInfo.txt"));
    }
}

void CustomerStore::SaveCustomerAt(int r, QDate today) {
    OpenCustomerFile();
    WriteCustomer(r);
    m_disk.CloseAllFiles();
    WriteContract(r);
    WriteCycle(r);
    ResetCompanionBuffers(today);
}

void CustomerStore::LoadCustomerAt(int r) {
    OpenCustomerFile();
    ReadCustomer(r);
    m_disk.CloseAllFiles();
    ReadContract(r);
    ReadCycle(r);
}

} // namespace ostrel
