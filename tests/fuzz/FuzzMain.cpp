// The fuzzing entry of one reader, chosen when built (OSTREL_FUZZ_TARGET): a build with a fuzzing
// engine links one executable per target. Run it on its corpus folder:
//     ./build-fuzz/tests/fuzz_statements tests/fuzz/corpus/statements
#include "FuzzTargets.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    ostrel::fuzz::Run(OSTREL_FUZZ_TARGET, QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    return 0;
}
