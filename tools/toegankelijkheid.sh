#!/usr/bin/env bash
# What a screen reader is told by the real program: starts the demo on a screen in memory with a
# session bus of its own, works through the assistive interface and prints the main window as it is
# read. With a FILE that list is written there too. Not 0 when something is missing.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=tools/pakketten.sh
source tools/pakketten.sh
# shellcheck source=tools/scherm.sh
source tools/scherm.sh

werk=$(mktemp -d)
# shellcheck disable=SC2317 # called by the trap
ruim_op() {
  stop_scherm
  rm -rf -- "$werk"
}
trap ruim_op EXIT

bouw() {
  installeer bouwen scherm beelden toegankelijkheid
  mkdir -p build
  configureer release >build/release.log || { cat build/release.log >&2; return 1; }
  cmake --build --preset release --target Lauwerkrans maak_competitie
}

leg_demo_neer() {
  build/release/tools/maak_competitie demo "$werk/club"
  mkdir "$werk/club/Lauwerkrans"
  cp build/release/Lauwerkrans/Lauwerkrans.bin "$werk/club/Lauwerkrans/"
}

bouw
leg_demo_neer
start_scherm "$werk"
mkdir -m 700 "$werk/runtime"
# Nothing of the user's own session takes part. The buses chatter; that is shown only on failure.
env -u WAYLAND_DISPLAY -u DBUS_SESSION_BUS_ADDRESS -u AT_SPI_BUS_ADDRESS \
  HOME="$werk" XDG_RUNTIME_DIR="$werk/runtime" QT_QPA_PLATFORM=xcb \
  QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 timeout 120 dbus-run-session -- \
  /usr/bin/python3 tools/toegankelijkheid.py "$werk/club/Lauwerkrans/Lauwerkrans.bin" "$@" \
  2>"$werk/stderr" || { cat "$werk/stderr" >&2; exit 1; }
