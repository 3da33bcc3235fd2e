#include "ContractInfoRecord.h"

#include "store/StoreError.h"

namespace ostrel {

ContractInfoRecord::ContractInfoRecord(Record record) : m_record(std::move(record)) {
    if (m_record.length() != kLength)
        throw StoreError(QString(), QStringLiteral("A contract record must be %1 bytes long, not %2.")
                                        .arg(kLength)
                                        .arg(m_record.length()));
}

QString WeekdayName(QDate day) {
    // Fixed English names: the file format does not follow the desktop's language.
    static const char* const names[] = {"Monday", "Tuesday",  "Wednesday", "Thursday",
                                        "Friday", "Saturday", "Sunday"};
    const int d = day.dayOfWeek();
    return d >= 1 && d <= 7 ? QString::fromLatin1(names[d - 1]) : QString();
}

void ContractInfoRecord::ResetToDefaults(QDate today) {
    Record& r = m_record;
    r.setText(0, 35, u"None Selected");
    r.setText(35, 15, u"None");
    r.setCurrency(50, 0);
    r.setText(58, 9, WeekdayName(today));
    r.setText(67, 40, u"None Selected");
    r.setDate(107, today);
    r.setDate(115, today);
    r.setInt16(123, 0);
    r.setInt16(125, -1);
    r.setInt16(127, 0);
    r.setText(129, 20, u"None");
    for (const auto& [offset, width] : {std::pair{149, 20},
                                        {169, 30},
                                        {234, 25},
                                        {259, 20},
                                        {279, 2},
                                        {281, 10},
                                        {291, 13},
                                        {304, 30},
                                        {336, 50}})
        r.setText(offset, width, u"");
    r.setInt16(334, 0);
}

} // namespace ostrel
