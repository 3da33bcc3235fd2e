// The scans over the whole customer file: duplicate test, criteria search, list fill.
#include "CustomerNames.h"
#include "CustomerStore.h"
#include "FieldScan.h"

#include "store/DiskRoutines.h"
#include "util/VbText.h"

#include <array>
#include <optional>

namespace ostrel {

namespace {

std::optional<CustomerRecord::Field> searchedField(int field) {
    static constexpr std::array<CustomerRecord::Field, 9> fields{
        CustomerRecord::kBusinessName, CustomerRecord::kAddress1, CustomerRecord::kAddress2,
        CustomerRecord::kCity,         CustomerRecord::kState,    CustomerRecord::kAddress4,
        CustomerRecord::kTelephone,    CustomerRecord::kLastName, CustomerRecord::kAccountNumber,
    };
    if (field < 0 || field >= static_cast<int>(fields.size())) return std::nullopt;
    return fields[static_cast<size_t>(field)];
}

QString trimmed(const Record& record, CustomerRecord::Field f) {
    return FieldScan::trimmedText(record.bytes().constData() + f.offset, f.width);
}

// The grid's row for a hit, read straight from the bytes: a full file can give thousands of hits.
CustomerSearchHit searchHit(const Record& record, int recordNumber) {
    using C = CustomerRecord;
    const QString name = trimmed(record, C::kAccountType) == u"Business"
                             ? trimmed(record, C::kBusinessName)
                             : ComposeName(trimmed(record, C::kTitle), trimmed(record, C::kFirstName),
                                           trimmed(record, C::kMiddleInitial), trimmed(record, C::kLastName));
    return CustomerSearchHit{name, trimmed(record, C::kTelephone), recordNumber};
}

} // namespace

bool CustomerStore::FindAccountElsewhere(const QString& account, int current) {
    // No file means no other customer; opening would make an empty one.
    if (!m_disk.FileExists(kCustomerFile)) return false;
    const int count = CustomerCount();
    RandomFile& file = OpenCustomerFile();
    const auto [offset, width] = CustomerRecord::kAccountNumber;
    std::optional<Record> last;
    bool found = false;
    for (int r = 1; r <= count && !found; ++r) {
        if (r == current) continue;
        last = file.get(r);
        found = FieldScan::trimmedEquals(last->bytes().constData() + offset, width, account);
    }
    m_disk.CloseAllFiles();
    if (last) m_buffers.customer = CustomerRecord(std::move(*last));
    return found;
}

QVector<CustomerSearchHit> CustomerStore::SearchCustomers(int field, const QString& text, bool listAll,
                                                          int& found) {
    found = 0;
    QVector<CustomerSearchHit> hits;
    if (!m_disk.FileExists(kCustomerFile)) return hits;
    const int count = CustomerCount();
    RandomFile& file = OpenCustomerFile();
    const std::optional<CustomerRecord::Field> chosen = searchedField(field);
    const QString needle = FieldScan::upper(vbTrim(text));
    FieldScan scan;
    std::optional<Record> last;
    for (int r = 1; r <= count; ++r) {
        last = file.get(r);
        const bool hit =
            listAll || (chosen && scan.trimmedUpperContains(last->bytes().constData() + chosen->offset,
                                                            chosen->width, needle));
        if (hit) hits.append(searchHit(*last, r));
    }
    m_disk.CloseAllFiles();
    if (last) m_buffers.customer = CustomerRecord(std::move(*last));
    found = static_cast<int>(hits.size());
    return hits;
}

QVector<AccountListEntry> CustomerStore::ReadAccountList() {
    QVector<AccountListEntry> list;
    if (!m_disk.FileExists(kCustomerFile)) return list;
    const int count = CustomerCount();
    RandomFile& file = OpenCustomerFile();
    list.reserve(count);
    for (int r = 1; r <= count; ++r) {
        CustomerRecord customer(file.get(r));
        list.append(AccountListEntry{AccountListName(customer), vbTrim(customer.City()), r});
        if (r == count) m_buffers.customer = std::move(customer);
    }
    m_disk.CloseAllFiles();
    return list;
}

} // namespace ostrel
