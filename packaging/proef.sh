# shellcheck shell=bash
# What the trials of the packages do alike. Sourced; does nothing by itself.

# The main window's.
# shellcheck disable=SC2034 # for who sources this
titel='Bereken de Club- cq Lijnkampioenen van een parencompetitie.'

mislukt() {
  echo "Mislukt: $1" >&2
  exit 1
}

# wacht DOING COMMAND...: until the command succeeds, at most half a minute.
wacht() {
  local wat=$1 keer
  shift
  for ((keer = 0; keer < 300; ++keer)); do
    ! "$@" >/dev/null 2>&1 || return 0
    sleep 0.1
  done
  mislukt "$wat"
}

# zoek_venster TITLE [COMMAND...]: the windows on show with that title, or what xdotool's command says
# of them. Fails when there is none.
zoek_venster() { xdotool search --onlyvisible --name "^$1\$" "${@:2}"; }

# sluit_programma PID FOLDER: as the user does with the keyboard, once the main window has the focus.
# Back when the program has ended, with its settings in FOLDER, its own.
sluit_programma() {
  xdotool key alt+F4
  wacht 'sluiten' test ! -e "/proc/$1"
  [[ -s $2/Lauwr.ini ]] || mislukt 'de instellingen zijn niet bewaard'
}
