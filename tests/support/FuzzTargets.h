#pragma once

// One fuzz target per reader of a file format: each takes any bytes as the whole file, reads it the
// way the program does, and may only end normally or with a StoreError (a bad file). The fuzzing
// executables (built with a fuzzing engine when the compiler has one) and the corpus replay test
// share these.
//
// A new reader gets a line in the table of FuzzTargets.cpp and a folder of sample inputs under
// tests/fuzz/corpus/<target name>/.
#include <QByteArray>

#include <vector>

namespace ostrel::fuzz {

struct Target {
    const char* name;
    void (*run)(const QByteArray& bytes);
};

const std::vector<Target>& Targets();
// Runs the named target on the bytes; false when there is no such target.
bool Run(const char* name, const QByteArray& bytes);

} // namespace ostrel::fuzz
