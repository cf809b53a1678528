# shellcheck shell=bash
# Windows programs on this machine: one wine server for a whole run, in a folder of its own, so that
# a program starts in a fiftieth of a second. Sourced; does nothing by itself.

# begin_wine FOLDER [DLL FOLDER...]: FOLDER holds what Windows remembers; it is made when missing.
begin_wine() {
  mkdir -p "$1"
  WINEPREFIX=$(realpath "$1")
  export WINEPREFIX WINEDEBUG=-all
  shift
  local map
  WINEPATH=''
  for map in "$@"; do
    WINEPATH+=${WINEPATH:+;}$(windows_pad "$map")
  done
  export WINEPATH
  # wine takes the code page from the locale and keeps Qt's own variables from its programs, but
  # for those that begin with WINE. The platform "offscreen" has no letters but those of a folder.
  export LC_ALL=C.UTF-8
  export WINEQT_QPA_PLATFORM=offscreen WINEQT_FORCE_STDERR_LOGGING=1
  WINEQT_QPA_FONTDIR=$(windows_pad /usr/share/fonts/truetype/liberation)
  export WINEQT_QPA_FONTDIR
  wineserver -p
  wine cmd /c exit </dev/null >/dev/null 2>&1
}

eind_wine() { wineserver -k || true; }

# The path as Windows programs know it: the root of this machine is the drive Z:.
windows_pad() {
  local pad=Z:$1
  printf '%s' "${pad//\//\\}"
}
