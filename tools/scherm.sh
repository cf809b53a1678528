# shellcheck shell=bash
# A screen in memory, for programs that need one. Sourced; it does nothing by itself.

# Ends a process that this shell started, and waits for it. Nothing for an empty number.
stop() {
  [[ -z $1 ]] || kill "$1" 2>/dev/null || true
  [[ -z $1 ]] || wait "$1" 2>/dev/null || true
}

# start_x FOLDER SIZE: starts an X server on a free display, of SIZE (1300x850) pixels. DISPLAY names
# it from then on; its files stand in the folder.
start_x() {
  local map=$1 maat=$2 nummer=''
  mkfifo "$map/nummer"
  Xvfb -displayfd 3 -screen 0 "${maat}x24" -dpi 96 3>"$map/nummer" 2>"$map/xvfb.log" &
  xvfb_pid=$!
  if ! read -r -t 60 nummer <"$map/nummer"; then
    echo "Xvfb start niet:" >&2
    cat "$map/xvfb.log" >&2
    return 1
  fi
  export DISPLAY=:$nummer
}

# start_scherm FOLDER: the same, with a window manager on it that is ready when this returns.
start_scherm() {
  local map=$1
  start_x "$map" 1600x1200 || return 1
  openbox --sm-disable --startup "touch '$map/klaar'" &>"$map/openbox.log" &
  openbox_pid=$!
  local keer
  for ((keer = 0; keer < 300; ++keer)); do
    [[ ! -e $map/klaar ]] || return 0
    kill -0 "$openbox_pid" 2>/dev/null || break
    sleep 0.1
  done
  echo "openbox start niet:" >&2
  cat "$map/openbox.log" >&2
  return 1
}

stop_scherm() {
  stop "${openbox_pid:-}"
  stop "${xvfb_pid:-}"
}
