#pragma once

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <utility>
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

// The medians of two pieces of work timed in turn, run by run, so that both meet the same state of
// the machine (a ratio of two medians taken minutes apart says more about the machine than the code).
inline std::pair<double, double> pairedMediansMs(int runs, const std::function<void()>& first,
                                                 const std::function<void()>& second) {
    std::vector<double> a, b;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer t;
        t.start();
        first();
        a.push_back(t.nsecsElapsed() / 1e6);
        t.restart();
        second();
        b.push_back(t.nsecsElapsed() / 1e6);
    }
    std::sort(a.begin(), a.end());
    std::sort(b.begin(), b.end());
    return {a[a.size() / 2], b[b.size() / 2]};
}

inline void report(const char* what, double ms) { std::printf("%-58s %10.2f ms\n", what, ms); }

} // namespace ostrel::bench
