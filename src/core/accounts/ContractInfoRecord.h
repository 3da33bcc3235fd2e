#pragma once

#include "ReservedField.h"
#include "store/Record.h"

#include <QDate>

#include <array>

namespace ostrel {

// One record of /ContractInfo.txt, 386 bytes, one for each customer at the same record number.
// Reserved for recurring contracts: nothing shows or uses its fields.
class ContractInfoRecord {
public:
    static constexpr int kLength = 386;
    // The text at this offset is never set: it keeps whatever the buffer last read.
    static constexpr int kNeverSetOffset = 199;

    static constexpr std::array<ReservedField, 22> kLayout{{
        {0, 35, ReservedField::Kind::Text},     {35, 15, ReservedField::Kind::Text},
        {50, 8, ReservedField::Kind::Currency}, {58, 9, ReservedField::Kind::Text},
        {67, 40, ReservedField::Kind::Text},    {107, 8, ReservedField::Kind::Date},
        {115, 8, ReservedField::Kind::Date},    {123, 2, ReservedField::Kind::Int16},
        {125, 2, ReservedField::Kind::Int16},   {127, 2, ReservedField::Kind::Int16},
        {129, 20, ReservedField::Kind::Text},   {149, 20, ReservedField::Kind::Text},
        {169, 30, ReservedField::Kind::Text},   {199, 35, ReservedField::Kind::Text},
        {234, 25, ReservedField::Kind::Text},   {259, 20, ReservedField::Kind::Text},
        {279, 2, ReservedField::Kind::Text},    {281, 10, ReservedField::Kind::Text},
        {291, 13, ReservedField::Kind::Text},   {304, 30, ReservedField::Kind::Text},
        {334, 2, ReservedField::Kind::Int16},   {336, 50, ReservedField::Kind::Text},
    }};

    ContractInfoRecord() : m_record(kLength) {}
    // Throws StoreError when the record is not 386 bytes long.
    explicit ContractInfoRecord(Record record);

    // The defaults every new or rebuilt record carries; the weekday and dates are today's.
    void ResetToDefaults(QDate today);

    const Record& record() const { return m_record; }
    Record& record() { return m_record; }
    const QByteArray& bytes() const { return m_record.bytes(); }
    bool operator==(const ContractInfoRecord& o) const { return m_record == o.m_record; }

private:
    Record m_record;
};

// The weekday's full English name, as the contract record stores it.
QString WeekdayName(QDate day);

} // namespace ostrel
