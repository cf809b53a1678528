#!/usr/bin/env bash
# Makes pictures of every window at 100, 200 and 300 % and in high contrast, in build/beelden; with
# a display or without.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=tools/pakketten.sh
source tools/pakketten.sh

installeer bouwen scherm
configureer release
cmake --build --preset release --target rondleiding maak_competitie
werk=$(mktemp -d)
trap 'rm -rf -- "$werk"' EXIT

# beelden FOLDER SCALE [high contrast]
beelden() {
  local uit=build/beelden/$1 schaal=$2
  shift 2
  rm -rf -- "$uit" "$werk/demo"
  mkdir -p "$uit"
  build/release/tools/maak_competitie demo "$werk/demo"
  mkdir -p "$werk/demo/Lauwerkrans"
  QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=$schaal \
    build/release/app/rondleiding "$werk/demo/Lauwerkrans" "$uit" tests/gegevens/handleiding "$@"
  echo "$uit: $(find "$uit" -name '*.png' | wc -l) beelden"
}

beelden 100 1
beelden 200 2
beelden 300 3
beelden hoog-contrast 1 hoog-contrast
