#pragma once

#include "store/Money.h"

#include <QByteArray>
#include <QDate>
#include <QString>
#include <QVector>

#include <optional>

#include <QtEndian>

#include <cmath>
#include <cstring>

namespace ostrel {

class DiskRoutines;
class Record;

// One sale in /AssociateJournal.txt, 115 bytes: written when an invoice is posted in the Associate
// Sales style, read back by the sales report.
struct AssociateJournalRecord {
    static constexpr int kLength = 115;
    static constexpr int kTransactionWidth = 30;
    static constexpr int kAccountWidth = 20;
    static constexpr int kAssociateWidth = 25;
    static constexpr int kTransactionOffset = 0;
    static constexpr int kAccountOffset = 30;
    static constexpr int kDateOffset = 50;
    static constexpr int kAssociateOffset = 58;
    static constexpr int kSubTotalOffset = 83;
    static constexpr int kTaxOffset = 91;
    static constexpr int kDiscountOffset = 99;
    static constexpr int kGrossOffset = 107;
    static inline const QString kFileName = QStringLiteral("/AssociateJournal.txt");

    QString Transaction; // the customer's name
    QString Account;     // the invoice number
    QDate JournalDate;   // the appointment's date
    QString Associate;   // the Point of Service the job was assigned to
    Money SubTotal;
    Money Tax;      // both taxes together
    Money Discount; // posting always writes 0
    Money Gross;    // the grand total

    // The day of a stored date, without the cost of a local date-time: the whole days since
    // 1899-12-30 (the time of day dropped), as the record's own date read counts them.
    static QDate DayOf(double storedDays) {
        if (!std::isfinite(storedDays) || std::fabs(storedDays) > 3e6) return {};
        return QDate::fromJulianDay(kEpochJulianDay + static_cast<qint64>(std::trunc(storedDays)));
    }
    static constexpr qint64 kEpochJulianDay = 2415019; // 1899-12-30

    Record toRecord() const;
    static AssociateJournalRecord fromRecord(const Record& record);

    bool operator==(const AssociateJournalRecord&) const = default;
};

// A journal's bytes read in place, for scans over many records: each field straight from the fixed
// bytes, meaning what fromRecord makes of it, without building a record or a text per field.
class AssociateJournalBytes {
public:
    AssociateJournalBytes() = default;
    // The records counted as the record files count them: a last record at least half there
    // counts, its missing bytes read as zeros.
    explicit AssociateJournalBytes(QByteArray bytes);

    qsizetype count() const { return m_count; }
    AssociateJournalRecord record(qsizetype i) const;
    QVector<AssociateJournalRecord> records() const;

    QString transaction(qsizetype i) const;
    QString account(qsizetype i) const;
    QDate journalDate(qsizetype i) const {
        const quint64 bits = qFromLittleEndian<quint64>(at(i) + AssociateJournalRecord::kDateOffset);
        double days;
        std::memcpy(&days, &bits, sizeof days);
        return AssociateJournalRecord::DayOf(days);
    }
    Money subTotal(qsizetype i) const { return money(i, AssociateJournalRecord::kSubTotalOffset); }
    Money tax(qsizetype i) const { return money(i, AssociateJournalRecord::kTaxOffset); }
    Money discount(qsizetype i) const { return money(i, AssociateJournalRecord::kDiscountOffset); }
    Money gross(qsizetype i) const { return money(i, AssociateJournalRecord::kGrossOffset); }

    // An associate's name as the field holds it, for associateIs; nothing when no field can hold
    // it (a character the code page lacks).
    static std::optional<QByteArray> AssociateKey(const QString& name);
    // The record's associate, blanks trimmed from both ends, is the name of `key`.
    bool associateIs(qsizetype i, const QByteArray& key) const;

private:
    const char* at(qsizetype i) const { return m_bytes.constData() + i * AssociateJournalRecord::kLength; }
    Money money(qsizetype i, int offset) const {
        return Money::fromTenThousandths(qFromLittleEndian<qint64>(at(i) + offset));
    }
    QByteArray m_bytes;
    qsizetype m_count = 0;
};

// Writes the record after the last one of the file; a missing file is created with it.
void AddJournalRecord(DiskRoutines& disk, const AssociateJournalRecord& record);

// Every record by number, from 1; a missing file holds none.
QVector<AssociateJournalRecord> ReadAssociateJournal(DiskRoutines& disk);

// The records of a journal's bytes, for callers that read the file once.
QVector<AssociateJournalRecord> AssociateJournalFromBytes(const QByteArray& bytes);

// The journal's bytes as they are on disk now; a missing file holds none.
AssociateJournalBytes ReadAssociateJournalBytes(DiskRoutines& disk);

} // namespace ostrel
