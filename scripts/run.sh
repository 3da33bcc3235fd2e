#!/usr/bin/env bash
# Installs what is missing, builds, and starts the program from its runnable folder build/app/.
set -euo pipefail
here="$(cd "$(dirname "$0")/.." && pwd)"
bash "$here/scripts/install-deps.sh"
bash "$here/scripts/build.sh" "$here/build" -DCMAKE_BUILD_TYPE=RelWithDebInfo
exec "$here/build/app/OstrelAppointmentScheduler"
