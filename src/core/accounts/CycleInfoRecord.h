#pragma once

#include "ReservedField.h"
#include "store/Record.h"

#include <array>

namespace ostrel {

// One record of /CycleInfo.txt, 69 bytes, one for each customer at the same record number.
// Reserved like the contract record: written with its defaults only.
class CycleInfoRecord {
public:
    static constexpr int kLength = 69;

    static constexpr std::array<ReservedField, 6> kLayout{{
        {0, 35, ReservedField::Kind::Text},
        {35, 8, ReservedField::Kind::Currency},
        {43, 2, ReservedField::Kind::Int16},
        {45, 20, ReservedField::Kind::Text},
        {65, 2, ReservedField::Kind::Int16},
        {67, 2, ReservedField::Kind::Int16},
    }};

    CycleInfoRecord() : m_record(kLength) {}
    // Throws StoreError when the record is not 69 bytes long.
    explicit CycleInfoRecord(Record record);

    void ResetToDefaults();

    const Record& record() const { return m_record; }
    Record& record() { return m_record; }
    const QByteArray& bytes() const { return m_record.bytes(); }
    bool operator==(const CycleInfoRecord& o) const { return m_record == o.m_record; }

private:
    Record m_record;
};

} // namespace ostrel
