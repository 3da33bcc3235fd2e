#include "AssociateJournal.h"

#include "store/Cp1252.h"
#include "store/DiskRoutines.h"
#include "store/Record.h"

#include <cmath>
#include <cstring>

namespace ostrel {

namespace {
constexpr int kTransaction = AssociateJournalRecord::kTransactionOffset;
constexpr int kAccount = AssociateJournalRecord::kAccountOffset;
constexpr int kDate = AssociateJournalRecord::kDateOffset;
constexpr int kAssociate = AssociateJournalRecord::kAssociateOffset;
constexpr int kSubTotal = AssociateJournalRecord::kSubTotalOffset;
constexpr int kTax = AssociateJournalRecord::kTaxOffset;
constexpr int kDiscount = AssociateJournalRecord::kDiscountOffset;
constexpr int kGross = AssociateJournalRecord::kGrossOffset;
} // namespace

Record AssociateJournalRecord::toRecord() const {
    Record r(kLength);
    r.setText(kTransaction, kTransactionWidth, Transaction);
    r.setText(kAccount, kAccountWidth, Account);
    r.setDate(kDate, JournalDate);
    r.setText(kAssociate, kAssociateWidth, Associate);
    r.setCurrency(kSubTotal, SubTotal.tenThousandths());
    r.setCurrency(kTax, Tax.tenThousandths());
    r.setCurrency(kDiscount, Discount.tenThousandths());
    r.setCurrency(kGross, Gross.tenThousandths());
    return r;
}

AssociateJournalRecord AssociateJournalRecord::fromRecord(const Record& r) {
    return AssociateJournalBytes(r.bytes()).record(0);
}

AssociateJournalBytes::AssociateJournalBytes(QByteArray bytes) : m_bytes(std::move(bytes)) {
    constexpr int len = AssociateJournalRecord::kLength;
    m_count = static_cast<qsizetype>(std::nearbyint(static_cast<double>(m_bytes.size()) / len));
    if (m_bytes.size() < m_count * len) m_bytes.resize(m_count * len, '\0');
}

AssociateJournalRecord AssociateJournalBytes::record(qsizetype i) const {
    AssociateJournalRecord j;
    j.Transaction = transaction(i);
    j.Account = account(i);
    j.JournalDate = journalDate(i);
    j.Associate = cp1252::decode(QByteArrayView(at(i) + kAssociate, AssociateJournalRecord::kAssociateWidth));
    j.SubTotal = subTotal(i);
    j.Tax = tax(i);
    j.Discount = discount(i);
    j.Gross = gross(i);
    return j;
}

QVector<AssociateJournalRecord> AssociateJournalBytes::records() const {
    QVector<AssociateJournalRecord> out;
    out.reserve(m_count);
    for (qsizetype i = 0; i < m_count; ++i) out.append(record(i));
    return out;
}

QString AssociateJournalBytes::transaction(qsizetype i) const {
    return cp1252::decode(QByteArrayView(at(i) + kTransaction, AssociateJournalRecord::kTransactionWidth));
}

QString AssociateJournalBytes::account(qsizetype i) const {
    return cp1252::decode(QByteArrayView(at(i) + kAccount, AssociateJournalRecord::kAccountWidth));
}

std::optional<QByteArray> AssociateJournalBytes::AssociateKey(const QString& name) {
    // Each byte of the code page reads as one character of its own, so a name matches a field's
    // bytes exactly when it matches their text.
    QByteArray key = cp1252::encode(name);
    if (cp1252::decode(key) != name) return std::nullopt;
    return key;
}

bool AssociateJournalBytes::associateIs(qsizetype i, const QByteArray& key) const {
    const char* field = at(i) + kAssociate;
    qsizetype from = 0;
    qsizetype to = AssociateJournalRecord::kAssociateWidth;
    while (from < to && field[from] == ' ') ++from;
    while (to > from && field[to - 1] == ' ') --to;
    return to - from == key.size() && std::memcmp(field + from, key.constData(), static_cast<size_t>(key.size())) == 0;
}

void AddJournalRecord(DiskRoutines& disk, const AssociateJournalRecord& record) {
    const int next = disk.FileRecordCount(AssociateJournalRecord::kFileName, AssociateJournalRecord::kLength) + 1;
    // Put in one step, so that a crash leaves the journal as it was or with the whole record.
    disk.PutRecords(AssociateJournalRecord::kFileName, AssociateJournalRecord::kLength, next, record.toRecord().bytes());
}

QVector<AssociateJournalRecord> AssociateJournalFromBytes(const QByteArray& bytes) {
    return AssociateJournalBytes(bytes).records();
}

AssociateJournalBytes ReadAssociateJournalBytes(DiskRoutines& disk) {
    const std::optional<TextReader> journal = disk.ReadTextFileIfPresent(AssociateJournalRecord::kFileName);
    return journal ? AssociateJournalBytes(journal->bytes()) : AssociateJournalBytes();
}

QVector<AssociateJournalRecord> ReadAssociateJournal(DiskRoutines& disk) {
    return ReadAssociateJournalBytes(disk).records();
}

} // namespace ostrel
