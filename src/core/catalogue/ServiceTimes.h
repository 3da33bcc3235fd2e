#pragma once

#include "controls/Controls.h"

#include <QString>
#include <QStringList>

namespace ostrel {

// The allotted times of a service, never stored: entry i is i div 4 hours and (i mod 4) * 15
// minutes, "0:00" to "8:00". A service's TimeIndex is a position in this list and so also its
// length in 15-minute slots.
constexpr int kTimeListCount = 33;

// The entry at index, or an empty text outside the list.
QString TimeListEntry(int index);
QStringList BuildTimeList();
void FillTimeList(ListControl& lstTime);
// The position of the first entry equal to text; 0 when none is.
qint16 TimeIndexOf(const QString& text);

} // namespace ostrel
