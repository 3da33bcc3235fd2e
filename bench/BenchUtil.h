#pragma once

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace ostrel::bench {

// Runs `work` the given number of times (with `prepare` before each, untimed) and returns the
// median in milliseconds.
inline double medianMs(int runs, const std::function<void()>& work, const std::function<void()>& prepare = {}) {
    std::vector<double> ms;
    for (int i = 0; i < runs; ++i) {
        if (prepare) prepare();
        QElapsedTimer t;
        t.start();
        work();
        ms.push_back(t.nsecsElapsed() / 1e6);
    }
    std::sort(ms.begin(), ms.end());
    return ms[ms.size() / 2];
}

inline void report(const char* what, double ms) { std::printf("%-58s %10.2f ms\n", what, ms); }

} // namespace ostrel::bench
