#!/usr/bin/env bash
# controleer_pakket.sh PACKAGE: unpacks the package for Linux into the suite of a demo club, in a
# folder with a name that is hard to quote, and sees that
# - the manual is whole and of this version;
# - the program is stripped, names no folder of the building machine and looks for no libraries in a
#   folder of its own; every library that it asks for comes from a package that Leesmij.txt names;
# - the user's menu gets an entry that is correct and from which the program starts, on a screen in
#   memory; it leaves its settings in its own folder, a newer package leaves them there, and the
#   entry goes away completely.
# Needs build/release/tools/maak_competitie.
set -euo pipefail
pakket=$(realpath "$1")
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
# shellcheck source=tools/pakketten.sh
source tools/pakketten.sh
# shellcheck source=packaging/bouwpaden.sh
source packaging/bouwpaden.sh
# shellcheck source=packaging/proef.sh
source packaging/proef.sh
# shellcheck source=tools/scherm.sh
source tools/scherm.sh

controleer_programma() {
  local kop pakketten pakket bibliotheek
  kop=$(readelf --dynamic --section-headers --wide "$map/Lauwerkrans.bin")
  ! grep -E 'RPATH|RUNPATH' <<<"$kop" || mislukt 'er is een map van bibliotheken genoemd'
  ! grep -E ' \.(symtab|debug_)' <<<"$kop" || mislukt 'het programma is niet uitgekleed'
  while read -r bibliotheek; do
    pakketten=$(dpkg-query --search "*/$bibliotheek" | sed -E 's/[:,].*//' | sort -u)
    for pakket in $pakketten; do
      ! grep -qw -- "$pakket" "$map/Leesmij.txt" || continue 2
    done
    mislukt "Leesmij.txt noemt geen pakket met $bibliotheek"
  done < <(sed -nE 's/.*\(NEEDED\).*\[(.*)\]/\1/p' <<<"$kop")
}

controleer_map() {
  local deel
  for deel in Lauwerkrans.bin installeer.sh; do
    [[ -x $map/$deel ]] || mislukt "$deel ontbreekt of is niet uit te voeren"
  done
  for deel in Leesmij.txt CHANGELOG.txt licenties/{qt6-base,gcc,LGPL-3,GPL-3}.txt; do
    [[ -s $map/$deel ]] || mislukt "$deel ontbreekt"
  done
  tools/handleiding.sh controleer "$versie" "$map/handleiding" || mislukt 'de handleiding deugt niet'
  ! grep '@' "$map/Leesmij.txt" || mislukt 'Leesmij.txt is niet ingevuld'
  ! tar -tzf "$pakket" | grep -v '^Lauwerkrans/' || mislukt 'het pakket raakt meer dan de eigen map'
}

# shellcheck disable=SC2317 # called by the trap
ruim_op() {
  stop "${programma_pid:-}"
  stop_scherm
  rm -rf -- "$werk"
}

controleer_snelkoppeling() {
  local maat
  "$map/installeer.sh" 2>"$werk/waarschuwing"
  [[ ! -s $werk/waarschuwing ]] || mislukt "een waarschuwing: $(<"$werk/waarschuwing")"
  desktop-file-validate "$snelkoppeling"
  for maat in 16 22 24 32 48 64 96 128 256; do
    file "$HOME/.local/share/icons/hicolor/${maat}x$maat/apps/lauwerkrans.png" |
      grep -q "PNG image data, $maat x $maat," || mislukt "geen pictogram van $maat pixels"
  done
}

# As the desktop does it, from a folder elsewhere; closed as by the user's own click.
start_en_sluit() {
  (cd / && QT_QPA_PLATFORM=xcb gio launch "$snelkoppeling") &>"$werk/programma.log" ||
    mislukt "starten uit het menu: $(<"$werk/programma.log")"
  wacht 'starten uit het menu' zoek_venster "$titel"
  programma_pid=$(zoek_venster "$titel" getwindowpid)
  [[ $(readlink "/proc/$programma_pid/exe") == "$map/Lauwerkrans.bin" ]] ||
    mislukt 'er is een ander programma gestart'
  # By this class the desktop knows whose window it is.
  xdotool search --class "^$(sed -n 's/^StartupWMClass=//p' "$snelkoppeling")\$" >/dev/null ||
    mislukt 'het venster heeft een andere naam dan in het menu'
  zoek_venster "$titel" windowactivate --sync
  sluit_programma "$programma_pid" "$map"
  programma_pid=''
}

controleer_bijwerken() {
  cp "$map/Lauwr.ini" "$werk/Lauwr.ini"
  rm "$map/Leesmij.txt"
  tar -xzf "$pakket" -C "$suite"
  [[ -s $map/Leesmij.txt ]] || mislukt 'een nieuwer pakket komt niet over het oude'
  cmp "$werk/Lauwr.ini" "$map/Lauwr.ini" || mislukt 'een nieuwer pakket raakt de instellingen'
}

controleer_verwijderen() {
  "$map/installeer.sh" --verwijder
  # Folders that any desktop has stay.
  [[ -z $(find "$HOME/.local" -type f) ]] || mislukt "na verwijderen blijft iets in $HOME/.local"
  [[ -x $map/Lauwerkrans.bin ]] || mislukt 'het programma zelf is weg'
}

installeer linux_proef
versie=$(versie_van_programma)
werk=$(mktemp -d)
trap ruim_op EXIT
# shellcheck disable=SC2016 # nothing of this is to be expanded
suite=$werk/'Café "De 100%" & $HOME `id` '"'t Hart"
map=$suite/Lauwerkrans
build/release/tools/maak_competitie demo "$suite"
tar -xzf "$pakket" -C "$suite"
controleer_map
controleer_programma
zonder_bouwpaden "$map"

export HOME=$werk/thuis XDG_RUNTIME_DIR=$werk
unset XDG_DATA_HOME WAYLAND_DISPLAY
snelkoppeling=$HOME/.local/share/applications/Lauwerkrans.desktop
mkdir "$HOME"
start_scherm "$werk"
controleer_snelkoppeling
start_en_sluit
controleer_bijwerken
controleer_verwijderen
echo 'Het pakket voor Linux doet wat het moet.'
