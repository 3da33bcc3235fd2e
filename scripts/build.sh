#!/usr/bin/env bash
# Configures and builds into the folder given (default build/); extra arguments go to CMake.
set -euo pipefail
here="$(cd "$(dirname "$0")/.." && pwd)"
dir="${1:-$here/build}"
shift || true
cmake -S "$here" -B "$dir" -G Ninja "$@" >/dev/null
cmake --build "$dir"
