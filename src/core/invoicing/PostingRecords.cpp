#include "PostingRecords.h"

#include "store/DiskRoutines.h"
#include "store/LocaleText.h"
#include "store/Money.h"
#include "store/StoreError.h"

#include <limits>

namespace ostrel {

const QString SoldItemRecord::kFileName = QStringLiteral("/SoldItems.txt");
const QString LedgerRecord::kPaymentFileName = QStringLiteral("/OAPaymentRecords.txt");
const QString TaxRecord::kFileName = QStringLiteral("/TaxRecords.txt");

Record SoldItemRecord::toRecord() const {
    Record r(kLength);
    r.setText(kDescriptionOffset, kDescriptionWidth, Description);
    r.setFloat64(kDateOffset, oledate::fromDate(SoldOn));
    r.setText(kInvoiceOffset, kInvoiceWidth, InvoiceNo);
    r.setInt16(kQuantityOffset, Quantity);
    return r;
}

SoldItemRecord SoldItemRecord::fromRecord(const Record& r) {
    SoldItemRecord s;
    s.Description = r.text(kDescriptionOffset, kDescriptionWidth);
    s.SoldOn = oledate::toDateTime(r.float64(kDateOffset)).date();
    s.InvoiceNo = r.text(kInvoiceOffset, kInvoiceWidth);
    s.Quantity = r.int16(kQuantityOffset);
    return s;
}

Record LedgerRecord::toRecord() const {
    Record r(kLength);
    r.setText(kNameOffset, kNameWidth, Name);
    r.setText(kAccountOffset, kAccountWidth, Account);
    r.setText(kDateOffset, kDateWidth, DateText);
    r.setText(kCommentOffset, kCommentWidth, Comment);
    r.setText(kAmountOffset, kAmountWidth, Amount);
    return r;
}

LedgerRecord LedgerRecord::fromRecord(const Record& r) {
    return {r.text(kNameOffset, kNameWidth), r.text(kAccountOffset, kAccountWidth), r.text(kDateOffset, kDateWidth),
            r.text(kCommentOffset, kCommentWidth), r.text(kAmountOffset, kAmountWidth)};
}

Record TaxRecord::toRecord() const {
    Record r(kLength);
    r.setText(kHeadingOffset, kHeadingWidth, Heading);
    r.setText(kDateOffset, kDateWidth, DateText);
    r.setText(kInvoiceOffset, kInvoiceWidth, InvoiceNo);
    r.setText(kAmountOffset, kAmountWidth, Amount);
    return r;
}

TaxRecord TaxRecord::fromRecord(const Record& r) {
    return {r.text(kHeadingOffset, kHeadingWidth), r.text(kDateOffset, kDateWidth),
            r.text(kInvoiceOffset, kInvoiceWidth), r.text(kAmountOffset, kAmountWidth)};
}

QString LedgerFileName(const QString& account) {
    return kLedgerFolder + u'/' + account.trimmed() + QStringLiteral(".txt");
}

namespace {

// The records go in behind the last one the count sees, the way a put at count + 1 would.
void appendRecords(DiskRoutines& disk, const QString& name, int length, const QByteArray& records) {
    const qint64 next = disk.FileRecordCount(name, static_cast<qint16>(length)) + 1;
    disk.PutRecords(name, length, next, records);
}

} // namespace

void AddLedgerEntry(DiskRoutines& disk, const QString& account, const QString& name, const QString& amount,
                    const QString& comment, const QDate& date, const QDate& today) {
    AddLedgerEntries(disk, account, {LedgerRecord{name, account, ShortDateText(date), comment, amount}}, today);
}

void AddLedgerEntries(DiskRoutines& disk, const QString& account, const QVector<LedgerRecord>& entries,
                      const QDate& today) {
    if (entries.isEmpty()) return;
    disk.MakeDirectoryIfAbsent(kLedgerFolder);
    const QString file = LedgerFileName(account);
    QByteArray records;
    if (!disk.FileExists(file))
        records += LedgerRecord{entries[0].Name, entries[0].Account, ShortDateText(today), kPreviousBalance,
                                FormatMoney(Money())}
                       .toRecord()
                       .bytes();
    for (const LedgerRecord& entry : entries)
        records += entry.toRecord().bytes();
    appendRecords(disk, file, LedgerRecord::kLength, records);
}

void AddPaymentRecord(DiskRoutines& disk, const QString& account, const QString& name, const QString& amount,
                      const QString& comment, const QDate& date) {
    appendRecords(disk, LedgerRecord::kPaymentFileName, LedgerRecord::kLength,
                  LedgerRecord{name, account, ShortDateText(date), comment, amount}.toRecord().bytes());
}

void AddTaxRecord(DiskRoutines& disk, const QString& heading, const QString& invoiceNo, const QDate& date,
                  Money amount) {
    appendRecords(disk, TaxRecord::kFileName, TaxRecord::kLength,
                  TaxRecord{heading, ShortDateText(date), invoiceNo, amount.plainText()}.toRecord().bytes());
}

void AddTaxRecords(DiskRoutines& disk, const QVector<std::pair<QString, Money>>& taxes, const QString& invoiceNo,
                   const QDate& date) {
    if (taxes.isEmpty()) return;
    // Each put rewrites the whole file, so the records go in together. Where the 16-bit count would
    // refuse a later record, they go one by one, so that refusal comes as it always did.
    const qint64 count = disk.FileRecordCount(TaxRecord::kFileName, TaxRecord::kLength);
    if (count + taxes.size() - 1 > std::numeric_limits<qint16>::max()) {
        for (const auto& [heading, amount] : taxes)
            AddTaxRecord(disk, heading, invoiceNo, date, amount);
        return;
    }
    QByteArray records;
    for (const auto& [heading, amount] : taxes)
        records += TaxRecord{heading, ShortDateText(date), invoiceNo, amount.plainText()}.toRecord().bytes();
    disk.PutRecords(TaxRecord::kFileName, TaxRecord::kLength, count + 1, records);
}

void AddSoldItems(DiskRoutines& disk, const QVector<SoldItemRecord>& items) {
    if (items.isEmpty()) return;
    QByteArray records;
    for (const SoldItemRecord& item : items)
        records += item.toRecord().bytes();
    // Counted by whole records, not by the 16-bit record count: the journal outgrows it.
    qint64 next = 1;
    if (disk.FileExists(SoldItemRecord::kFileName))
        next = disk.root().resolve(SoldItemRecord::kFileName).size / SoldItemRecord::kLength + 1;
    disk.PutRecords(SoldItemRecord::kFileName, SoldItemRecord::kLength, next, records);
}

QVector<Record> ReadAllRecords(DiskRoutines& disk, const QString& name, int recordLength) {
    QVector<Record> out;
    if (!disk.FileExists(name)) return out;
    const QByteArray bytes = disk.ReadTextFile(name).bytes();
    for (qsizetype at = 0; at + recordLength <= bytes.size(); at += recordLength)
        out.push_back(Record(bytes.mid(at, recordLength)));
    return out;
}

} // namespace ostrel
