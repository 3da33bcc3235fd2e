#pragma once

#include <QString>

namespace ostrel {

// One field of a reserved companion record: kept in step with the customer file and written with
// its defaults only, so all that matters is where it lies and what it is.
struct ReservedField {
    enum class Kind { Text, Currency, Date, Int16 };
    int offset;
    int width; // bytes
    Kind kind;
};

} // namespace ostrel
