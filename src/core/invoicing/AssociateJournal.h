#pragma once

#include "store/Money.h"

#include <QDate>
#include <QString>
#include <QVector>

#include <cmath>

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
    static constexpr int kDateOffset = 50;
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
        return QDate(1899, 12, 30).addDays(static_cast<qint64>(std::trunc(storedDays)));
    }

    Record toRecord() const;
    static AssociateJournalRecord fromRecord(const Record& record);

    bool operator==(const AssociateJournalRecord&) const = default;
};

// Writes the record after the last one of the file; a missing file is created with it.
void AddJournalRecord(DiskRoutines& disk, const AssociateJournalRecord& record);

// Every record by number, from 1; a missing file holds none.
QVector<AssociateJournalRecord> ReadAssociateJournal(DiskRoutines& disk);

// The records of a journal's bytes, for callers that read the file once.
QVector<AssociateJournalRecord> AssociateJournalFromBytes(const QByteArray& bytes);

} // namespace ostrel
