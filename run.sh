#!/usr/bin/env bash
# Builds the program, lays out a demo installation in build/demo/ and starts the program in it.
# Without a display: a tour of the same windows on a display of its own, which leaves pictures in
# build/demo/beelden/.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
# shellcheck source=tools/pakketten.sh
source tools/pakketten.sh
# shellcheck source=tools/scherm.sh
source tools/scherm.sh

release=$PWD/build/release
demo=$PWD/build/demo
programma=$demo/Lauwerkrans/Lauwerkrans.bin

heeft_scherm() { [[ -n ${DISPLAY:-} || -n ${WAYLAND_DISPLAY:-} ]]; }

installeer_nodige() {
  local -a groepen=(bouwen scherm)
  heeft_scherm || groepen+=(beelden)
  if [[ -z ${DISPLAY:-} && -n ${WAYLAND_DISPLAY:-} ]]; then groepen+=(wayland); fi
  installeer "${groepen[@]}"
}

bouw() {
  local -a doelen=(Lauwerkrans maak_competitie)
  heeft_scherm || doelen+=(rondleiding)
  configureer release >build/release.log || { cat build/release.log >&2; return 1; }
  cmake --build --preset release --target "${doelen[@]}"
}

# The demo is laid out anew when another generator made it or when it was made in another place
# (Mappen.ini holds whole paths). The mark is written last, so that half a demo never counts.
leg_demo_neer() {
  local generator=$release/tools/maak_competitie merk
  merk="$(cksum <"$generator") $demo"
  if [[ ! -f $demo.merk || $(<"$demo.merk") != "$merk" || ! -f $demo/Mappen.ini ]]; then
    rm -rf -- "$demo" "$demo.merk"
    mkdir -p "$demo"
    "$generator" demo "$demo"
    printf '%s\n' "$merk" >"$demo.merk"
  fi
  if [[ ! -f $programma || $release/Lauwerkrans/Lauwerkrans.bin -nt $programma ]]; then
    mkdir -p "$demo/Lauwerkrans"
    cp "$release/Lauwerkrans/Lauwerkrans.bin" "$programma.nieuw"
    mv -f "$programma.nieuw" "$programma" # also while the old one runs
  fi
}

# shellcheck disable=SC2317 # called by the trap
ruim_op() {
  stop "${tour_pid:-}"
  stop_scherm
  [[ -z ${werk:-} ]] || rm -rf -- "$werk"
}

leid_rond() {
  werk=$(mktemp -d)
  trap ruim_op EXIT
  trap 'exit 130' INT
  trap 'exit 143' TERM HUP
  start_scherm "$werk"
  rm -rf -- "$demo/beelden"
  mkdir -p "$demo/beelden"
  XDG_RUNTIME_DIR=$werk QT_QPA_PLATFORM=xcb \
    timeout 300 "$release/app/rondleiding" "$demo/Lauwerkrans" "$demo/beelden" \
    tests/gegevens/handleiding &
  tour_pid=$!
  wait "$tour_pid" # a signal ends a wait at once
  tour_pid=''
  echo "Er is geen scherm: het programma is rondgeleid op een scherm in het geheugen."
  echo "De beelden staan in $demo/beelden/:"
  ls -1 "$demo/beelden"
}

installeer_nodige
mkdir -p build
bouw
leg_demo_neer
if heeft_scherm; then
  exec "$programma"
fi
leid_rond
