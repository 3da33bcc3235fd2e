#pragma once

#include "store/Money.h"
#include "store/Record.h"

#include <QDate>
#include <QString>
#include <QVector>

#include <utility>

namespace ostrel {

class DiskRoutines;

// One line of /SoldItems.txt: a catalogue item that went out on an invoice.
struct SoldItemRecord {
    static constexpr int kLength = 90;
    static constexpr int kDescriptionOffset = 0, kDescriptionWidth = 60;
    static constexpr int kDateOffset = 60;
    static constexpr int kInvoiceOffset = 68, kInvoiceWidth = 20;
    static constexpr int kQuantityOffset = 88;
    static const QString kFileName;

    QString Description;
    QDate SoldOn;
    QString InvoiceNo;
    qint16 Quantity = 0;

    Record toRecord() const;
    static SoldItemRecord fromRecord(const Record& r);
};

// One entry of a customer's receivables ledger, /OIActiveAccounts/<account>.txt, and of
// /OAPaymentRecords.txt. The amount is the text shown on the screen, cut at ten characters.
struct LedgerRecord {
    static constexpr int kLength = 155;
    static constexpr int kNameOffset = 0, kNameWidth = 45;
    static constexpr int kAccountOffset = 45, kAccountWidth = 25;
    static constexpr int kDateOffset = 70, kDateWidth = 15;
    static constexpr int kCommentOffset = 85, kCommentWidth = 60;
    static constexpr int kAmountOffset = 145, kAmountWidth = 10;
    static const QString kPaymentFileName;

    QString Name;
    QString Account;
    QString DateText;
    QString Comment;
    QString Amount;

    Record toRecord() const;
    static LedgerRecord fromRecord(const Record& r);
};

// One tax collected on one invoice, /TaxRecords.txt. The amount is a plain number.
struct TaxRecord {
    static constexpr int kLength = 75;
    static constexpr int kHeadingOffset = 0, kHeadingWidth = 20;
    static constexpr int kDateOffset = 20, kDateWidth = 15;
    static constexpr int kInvoiceOffset = 35, kInvoiceWidth = 30;
    static constexpr int kAmountOffset = 65, kAmountWidth = 10;
    static const QString kFileName;

    QString Heading;
    QString DateText;
    QString InvoiceNo;
    QString Amount;

    Record toRecord() const;
    static TaxRecord fromRecord(const Record& r);
};

// "/OIActiveAccounts/<trimmed account>.txt".
QString LedgerFileName(const QString& account);
inline const QString kLedgerFolder = QStringLiteral("/OIActiveAccounts");
inline const QString kPreviousBalance = QStringLiteral("Previous Balance");

// Appends one entry to the account's ledger. A ledger that does not exist yet starts with a
// "Previous Balance" of nothing dated today; both records reach the disk together.
void AddLedgerEntry(DiskRoutines& disk, const QString& account, const QString& name, const QString& amount,
                    const QString& comment, const QDate& date, const QDate& today);
// Appends entries to one account's ledger in one step, so a crash leaves all of them or none. A
// ledger that does not exist yet starts with a "Previous Balance" of nothing dated today, under the
// first entry's name and account.
void AddLedgerEntries(DiskRoutines& disk, const QString& account, const QVector<LedgerRecord>& entries,
                      const QDate& today);
// Appends one entry to /OAPaymentRecords.txt.
void AddPaymentRecord(DiskRoutines& disk, const QString& account, const QString& name, const QString& amount,
                      const QString& comment, const QDate& date);
// Appends one tax record.
void AddTaxRecord(DiskRoutines& disk, const QString& heading, const QString& invoiceNo, const QDate& date,
                  Money amount);
// One tax record per (heading, amount), in order: the same bytes as one AddTaxRecord after the
// other, written in one step while the record count allows it.
void AddTaxRecords(DiskRoutines& disk, const QVector<std::pair<QString, Money>>& taxes, const QString& invoiceNo,
                   const QDate& date);
// Appends the sold items after the last whole record of /SoldItems.txt, all in one step.
void AddSoldItems(DiskRoutines& disk, const QVector<SoldItemRecord>& items);

// Every record of a fixed-record file, for the readers of the bookkeeping side and the tests.
QVector<Record> ReadAllRecords(DiskRoutines& disk, const QString& name, int recordLength);

} // namespace ostrel
