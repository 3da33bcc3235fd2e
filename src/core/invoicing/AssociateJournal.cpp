#include "AssociateJournal.h"

#include "store/DiskRoutines.h"
#include "store/Record.h"

#include <cmath>
#include <cstring>

namespace ostrel {

namespace {
constexpr int kTransaction = 0;
constexpr int kAccount = 30;
constexpr int kDate = AssociateJournalRecord::kDateOffset;
constexpr int kAssociate = 58;
constexpr int kSubTotal = 83;
constexpr int kTax = 91;
constexpr int kDiscount = 99;
constexpr int kGross = 107;
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
    AssociateJournalRecord j;
    j.Transaction = r.text(kTransaction, kTransactionWidth);
    j.Account = r.text(kAccount, kAccountWidth);
    j.JournalDate = DayOf(r.float64(kDate));
    j.Associate = r.text(kAssociate, kAssociateWidth);
    j.SubTotal = Money::fromTenThousandths(r.currency(kSubTotal));
    j.Tax = Money::fromTenThousandths(r.currency(kTax));
    j.Discount = Money::fromTenThousandths(r.currency(kDiscount));
    j.Gross = Money::fromTenThousandths(r.currency(kGross));
    return j;
}

void AddJournalRecord(DiskRoutines& disk, const AssociateJournalRecord& record) {
    const int next = disk.FileRecordCount(AssociateJournalRecord::kFileName, AssociateJournalRecord::kLength) + 1;
    // Put in one step, so that a crash leaves the journal as it was or with the whole record.
    disk.PutRecords(AssociateJournalRecord::kFileName, AssociateJournalRecord::kLength, next, record.toRecord().bytes());
}

QVector<AssociateJournalRecord> AssociateJournalFromBytes(const QByteArray& bytes) {
    constexpr int len = AssociateJournalRecord::kLength;
    // The count as the record files count: a last record at least half there counts, its missing
    // bytes read as zeros.
    const auto count = static_cast<qsizetype>(std::nearbyint(static_cast<double>(bytes.size()) / len));
    QVector<AssociateJournalRecord> out;
    out.reserve(count);
    Record r(len);
    for (qsizetype i = 0; i < count; ++i) {
        const qsizetype offset = i * len;
        const qsizetype n = std::min<qsizetype>(len, bytes.size() - offset);
        std::memset(r.bytes().data(), 0, len);
        std::memcpy(r.bytes().data(), bytes.constData() + offset, static_cast<size_t>(n));
        out.append(AssociateJournalRecord::fromRecord(r));
    }
    return out;
}

QVector<AssociateJournalRecord> ReadAssociateJournal(DiskRoutines& disk) {
    if (!disk.FileExists(AssociateJournalRecord::kFileName)) return {};
    return AssociateJournalFromBytes(disk.ReadTextFile(AssociateJournalRecord::kFileName).bytes());
}

} // namespace ostrel
