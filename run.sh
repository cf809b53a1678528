#!/usr/bin/env bash
# Builds the program, lays out a demo installation in build/demo/ and starts the program in it.
# Without a display: a tour of the same windows on a display of its own, which leaves pictures in
# build/demo/beelden/.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
# shellcheck source=tools/pakketten.sh
source tools/pakketten.sh

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
  local pid
  for pid in "${tour_pid:-}" "${openbox_pid:-}" "${xvfb_pid:-}"; do
    [[ -z $pid ]] || kill "$pid" 2>/dev/null || true
    [[ -z $pid ]] || wait "$pid" 2>/dev/null || true
  done
  [[ -z ${werk:-} ]] || rm -rf -- "$werk"
}

# Starts an X server on a free display, and a window manager on it that is ready when this returns.
start_scherm() {
  local nummer=''
  mkfifo "$werk/nummer"
  Xvfb -displayfd 3 -screen 0 1600x1200x24 -dpi 96 3>"$werk/nummer" 2>"$werk/xvfb.log" &
  xvfb_pid=$!
  if ! read -r -t 60 nummer <"$werk/nummer"; then
    echo "Xvfb start niet:" >&2
    cat "$werk/xvfb.log" >&2
    return 1
  fi
  export DISPLAY=:$nummer
  openbox --sm-disable --startup "touch '$werk/klaar'" &>"$werk/openbox.log" &
  openbox_pid=$!
  local keer
  for ((keer = 0; keer < 300; ++keer)); do
    [[ ! -e $werk/klaar ]] || return 0
    kill -0 "$openbox_pid" 2>/dev/null || break
    sleep 0.1
  done
  echo "openbox start niet:" >&2
  cat "$werk/openbox.log" >&2
  return 1
}

leid_rond() {
  werk=$(mktemp -d)
  trap ruim_op EXIT
  trap 'exit 130' INT
  trap 'exit 143' TERM HUP
  start_scherm
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
