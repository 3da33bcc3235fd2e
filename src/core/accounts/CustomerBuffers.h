#pragma once

#include "ContractInfoRecord.h"
#include "CustomerRecord.h"
#include "CycleInfoRecord.h"

namespace ostrel {

// The one customer of the moment and its two companion records, owned by the session. Every read
// overwrites them and every write stores them whole, so a field nobody sets carries what the last
// read left: that is how the reserved 16-bit fields travel from one customer to the next.
struct CustomerBuffers {
    CustomerRecord customer;
    ContractInfoRecord contract;
    CycleInfoRecord cycle;
};

} // namespace ostrel
