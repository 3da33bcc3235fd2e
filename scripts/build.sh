#!/usr/bin/env bash
# Configures and builds into the folder given (default build/); extra arguments go to CMake.
set -euo pipefail
here="$(cd "$(dirname "$0")/.." && pwd)"
dir="${1:-$here/build}"
# Clones in other folders share the compiler cache: paths are taken relative to the checkout.
export CCACHE_BASEDIR="$here" CCACHE_NOHASHDIR=true
shift || true
cmake -S "$here" -B "$dir" -G Ninja "$@" >/dev/null
cmake --build "$dir"
