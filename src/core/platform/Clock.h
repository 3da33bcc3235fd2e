#pragma once

#include <QDate>
#include <QDateTime>
#include <QTime>

namespace ostrel {

// Today and the time of day. Rules turn on both (19:59 against 20:00, the first day of a year), so
// the logic reads them here and tests can set them.
class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const = 0;
    QDate today() const { return now().date(); }
    QTime timeOfDay() const { return now().time(); }
};

} // namespace ostrel
