#include "CycleInfoRecord.h"

#include "store/StoreError.h"

namespace ostrel {

CycleInfoRecord::CycleInfoRecord(Record record) : m_record(std::move(record)) {
    if (m_record.length() != kLength)
        throw StoreError(QString(), QStringLiteral("A cycle record must be %1 bytes long, not %2.")
                                        .arg(kLength)
                                        .arg(m_record.length()));
}

void CycleInfoRecord::ResetToDefaults() {
    m_record.setText(0, 35, u"None");
    m_record.setCurrency(35, 0);
    m_record.setInt16(43, 0);
    m_record.setText(45, 20, u"");
    m_record.setInt16(65, 0);
    m_record.setInt16(67, -1);
}

} // namespace ostrel
