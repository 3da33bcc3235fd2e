#include "SystemClock.h"

namespace ostrel {

QDateTime SystemClock::now() const {
    return QDateTime::currentDateTime();
}

} // namespace ostrel
