#include "SlotArithmetic.h"

namespace ostrel {

void FillDurationList(ListControl& lstTime) {
    static const char* const quarters[] = {":00", ":15", ":30", ":45"};
    lstTime.Clear();
    for (int k = 0; k < kDurationEntries; ++k) {
        lstTime.AddItem(QString::number(k / 4) + QLatin1String(quarters[k % 4]));
        lstTime.SetItemData(lstTime.ListCount() - 1, k);
    }
}

qint16 ParseTimeLabel(const QString& text) {
    qint16 slots = 0;
    const QString minutes = text.right(3);
    if (minutes == u":15")
        slots = 1;
    else if (minutes == u":30")
        slots = 2;
    else if (minutes == u":45")
        slots = 3;
    if (text.left(2) == u"0:") return slots;
    // The first character as a number; anything but a digit counts as 0.
    const QChar hour = text.isEmpty() ? QChar() : text.front();
    const int hourValue = (hour >= u'0' && hour <= u'9') ? hour.unicode() - u'0' : 0;
    return static_cast<qint16>(slots + 4 * hourValue);
}

int appointmentSlotCount(const QStringList& selectedServiceDurations,
                         std::optional<int> additionalServiceTimeIndex) {
    int slots = 0;
    for (const QString& d : selectedServiceDurations)
        slots += ParseTimeLabel(d);
    if (additionalServiceTimeIndex) slots += *additionalServiceTimeIndex + 1;
    return slots;
}

} // namespace ostrel
