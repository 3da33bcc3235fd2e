#!/usr/bin/env bash
# Installs what building, running and testing need on Debian 12; does nothing when all is there.
set -euo pipefail
packages=(g++ cmake ninja-build ccache pkg-config qt6-base-dev qt6-base-dev-tools qt6-serialport-dev
          libgl-dev libgtest-dev libgmock-dev fonts-liberation2 fontconfig xvfb xauth socat poppler-utils
          unrtf)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0
echo "Installing: ${missing[*]}"
sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
