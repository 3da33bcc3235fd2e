#include "ServiceTimes.h"

namespace ostrel {

namespace {
const QStringList& timeList() {
    static const QStringList list = [] {
        static const char* const kMinutes[] = {":00", ":15", ":30", ":45"};
        QStringList l;
        for (int i = 0; i < kTimeListCount; ++i)
            l << QString::number(i / 4) + QLatin1String(kMinutes[i % 4]);
        return l;
    }();
    return list;
}
} // namespace

QString TimeListEntry(int index) {
    return timeList().value(index);
}

QStringList BuildTimeList() {
    return timeList();
}

void FillTimeList(ListControl& lstTime) {
    lstTime.Clear();
    for (const QString& t : timeList())
        lstTime.AddItem(t);
}

qint16 TimeIndexOf(const QString& text) {
    const qsizetype i = timeList().indexOf(text);
    return static_cast<qint16>(i < 0 ? 0 : i);
}

} // namespace ostrel
