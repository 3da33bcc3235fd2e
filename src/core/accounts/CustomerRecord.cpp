#include "CustomerRecord.h"

#include "store/StoreError.h"
#include "util/VbText.h"

namespace ostrel {

namespace {
Record checkedLength(Record record, int length, const char* what) {
    if (record.length() != length)
        throw StoreError(QString(), QStringLiteral("A %1 record must be %2 bytes long, not %3.")
                                        .arg(QLatin1String(what))
                                        .arg(length)
                                        .arg(record.length()));
    return record;
}
} // namespace

CustomerRecord::CustomerRecord(Record record)
    : m_record(checkedLength(std::move(record), kLength, "customer")) {}

bool CustomerRecord::IsBusiness() const {
    return vbTrim(AccountType()) == u"Business";
}

void CustomerRecord::ClearForNewAccount() {
    for (const Field f : {kBusinessName, kFirstName, kMiddleInitial, kLastName, kAddress1, kAddress2, kCity,
                          kState, kAddress4, kTelephone, kEmail, kAccountNumber, kCellPhone, kTitle})
        setText(f, u"");
    SetAccountType(u"Business");
    SetCustomerReserved(0);
}

} // namespace ostrel
