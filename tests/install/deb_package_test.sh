#!/usr/bin/env bash
# Builds the Debian package from the install rules, unpacks it into a scratch root and starts the
# launcher there offscreen on an empty home folder: the program must come up and stay up, running
# from the owner's own folder, with the desktop entry and the icon installed.
set -euo pipefail
build="$1"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
(cd "$build" && cpack -G DEB -B "$scratch/pkg" >/dev/null)
deb=$(ls "$scratch"/pkg/*.deb)
# Read whole first: grep -q would end the pipe early and pipefail take the broken pipe for a failure.
info=$(dpkg-deb --info "$deb")
grep -q "Depends: .*libqt6widgets6" <<<"$info" || { echo "no Qt dependency in $deb"; exit 1; }
dpkg -x "$deb" "$scratch/root"
root="$scratch/root"
for f in usr/bin/ostrel-appointment-scheduler usr/lib/ostrel-appointment-scheduler/OstrelAppointmentScheduler \
         usr/share/ostrel-appointment-scheduler/data/StatesList.txt \
         usr/share/ostrel-appointment-scheduler/data/GenericContract.rtf \
         usr/share/applications/ostrel-appointment-scheduler.desktop \
         usr/share/icons/hicolor/256x256/apps/ostrel-appointment-scheduler.png; do
  [ -e "$root/$f" ] || { echo "missing from the package: $f"; exit 1; }
done
grep -q '^Exec=ostrel-appointment-scheduler$' "$root/usr/share/applications/ostrel-appointment-scheduler.desktop"
grep -q '^Icon=ostrel-appointment-scheduler$' "$root/usr/share/applications/ostrel-appointment-scheduler.desktop"
[ -d "$root/usr/share/ostrel-appointment-scheduler/data/CompletedInvoices" ]

mkdir "$scratch/home"
status=0
HOME="$scratch/home" QT_QPA_PLATFORM=offscreen timeout 10 "$root/usr/bin/ostrel-appointment-scheduler" || status=$?
# Still running when the time ran out: it started and waits for its owner.
[ "$status" -eq 124 ] || { echo "the program ended by itself with status $status"; exit 1; }
folder="$scratch/home/OstrelAppointmentScheduler"
[ -x "$folder/OstrelAppointmentScheduler" ] || { echo "no runnable copy in the owner's folder"; exit 1; }
[ -f "$folder/StatesList.txt" ] || { echo "no data tree in the owner's folder"; exit 1; }
[ -d "$folder/$(date +%Y)" ] || { echo "the program did not start on the owner's folder"; exit 1; }
echo "package $(basename "$deb") installs and starts"
