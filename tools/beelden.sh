#!/usr/bin/env bash
# Makes pictures of every window at 100, 200 and 300 % and in high contrast, in build/beelden; with
# a display or without. With names (beelden.sh 200): only those.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=tools/pakketten.sh
source tools/pakketten.sh

(($#)) || set -- 100 200 300 hoog-contrast
for naam in "$@"; do
  [[ $naam =~ ^([123]00|hoog-contrast)$ ]] || {
    echo 'Gebruik: beelden.sh [100] [200] [300] [hoog-contrast]' >&2
    exit 2
  }
done

installeer bouwen scherm
configureer release
cmake --build --preset release --target rondleiding maak_competitie
werk=$(mktemp -d)
trap 'rm -rf -- "$werk"' EXIT

# scherm SCALE: a screen of 1920 x 1080 at that scale; the platform's own is 800 x 800 pixels.
scherm() {
  printf '{"screens": [{"name": "scherm", "x": 0, "y": 0, "width": %d, "height": %d,
    "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]}\n' $((1920 * $1)) $((1080 * $1)) \
    >"$werk/scherm.json"
}

# beelden FOLDER SCALE [high contrast]
beelden() {
  local uit=build/beelden/$1 schaal=$2
  shift 2
  rm -rf -- "$uit" "$werk/demo"
  mkdir -p "$uit"
  scherm "$schaal"
  build/release/tools/maak_competitie demo "$werk/demo"
  mkdir -p "$werk/demo/Lauwerkrans"
  QT_QPA_PLATFORM=offscreen:configfile=$werk/scherm.json QT_SCALE_FACTOR=$schaal \
    build/release/app/rondleiding "$werk/demo/Lauwerkrans" "$uit" tests/gegevens/handleiding "$@"
  echo "$uit: $(find "$uit" -name '*.png' | wc -l) beelden"
}

for naam in "$@"; do
  if [[ $naam == hoog-contrast ]]; then
    beelden "$naam" 1 "$naam"
  else
    beelden "$naam" "${naam%00}"
  fi
done
