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
        CustomerRecord::kBusinessName, CustomerRecord::kAddress1,  CustomerRecord::kAddress2,
        CustomerRecord::kCity,         CustomerRecord::kState,     CustomerRecord::kAddress4,
        CustomerRecord::kTelephone,    CustomerRecord::kLastName,  CustomerRecord::kAccountNumber,
    };
    if (field < 0 || field >= static_cast<int>(fields.size())) return std::nullopt;
    return fields[static_cast<size_t>(field)];
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

QVector<CustomerSearchHit> CustomerStore::SearchCustomers(int field, const QString& text, bool listAll, int& found) {
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
        const bool hit = listAll || (chosen && scan.trimmedUpperContains(last->bytes().constData() + chosen->offset,
                                                                         chosen->width, needle));
        if (!hit) continue;
        const CustomerRecord customer(*last);
        hits.append(CustomerSearchHit{SearchResultName(customer), vbTrim(customer.Telephone()), r});
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
