#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test: once as built, once under the address and
# undefined-behaviour sanitizers.
set -euo pipefail
here="$(cd "$(dirname "$0")/.." && pwd)"
bash "$here/scripts/install-deps.sh"
export QT_QPA_PLATFORM=offscreen
jobs=$(nproc)

bash "$here/scripts/build.sh" "$here/build" -DCMAKE_BUILD_TYPE=RelWithDebInfo
ctest --test-dir "$here/build" --output-on-failure -j "$jobs"

bash "$here/scripts/build.sh" "$here/build-sanitize" -DCMAKE_BUILD_TYPE=Debug -DOSTREL_SANITIZE=ON -DOSTREL_BUILD_BENCH=OFF
ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1 \
  ctest --test-dir "$here/build-sanitize" --output-on-failure -j "$jobs"
