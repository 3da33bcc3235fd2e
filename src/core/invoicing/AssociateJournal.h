#pragma once

#include <QDate>
#include <QString>
#include <QVector>

namespace ostrel {

class DiskRoutines;
class Record;

// One sale in /AssociateJournal.txt, 115 bytes: written when an invoice is posted in the Associate
// Sales style, read back by the sales report. Amounts are counts of ten-thousandths.
struct AssociateJournalRecord {
    static constexpr int kLength = 115;
    static constexpr int kTransactionWidth = 30;
    static constexpr int kAccountWidth = 20;
    static constexpr int kAssociateWidth = 25;
    static inline const QString kFileName = QStringLiteral("/AssociateJournal.txt");

    QString Transaction; // the customer's name
    QString Account;     // the invoice number
    QDate JournalDate;   // the appointment's date
    QString Associate;   // the Point of Service the job was assigned to
    qint64 SubTotal = 0;
    qint64 Tax = 0;      // both taxes together
    qint64 Discount = 0; // posting always writes 0
    qint64 Gross = 0;    // the grand total

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
