#pragma once

#include "controls/Controls.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace ostrel {

// The durations offered for an additional service: "0:00", "0:15" ... "7:45" (32 entries), the
// item value of entry k being k.
constexpr int kDurationEntries = 32;
void FillDurationList(ListControl& lstTime);

// A duration label as slots of 15 minutes. Only the first character is read as the hour, so
// "10:15" gives 5; catalogue durations are kept under ten hours.
qint16 ParseTimeLabel(const QString& text);

// The slots an appointment takes: the selected services' durations, plus, when an additional
// service was entered, the chosen duration's list position plus one ("0:00" still takes a slot).
int appointmentSlotCount(const QStringList& selectedServiceDurations,
                         std::optional<int> additionalServiceTimeIndex = std::nullopt);

} // namespace ostrel
