#pragma once

#include "Clock.h"

namespace ostrel {

// The machine's local clock: the only reader of the system time in the core.
class SystemClock : public Clock {
public:
    QDateTime now() const override;
};

} // namespace ostrel
