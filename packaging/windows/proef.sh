#!/usr/bin/env bash
# The packages as a user meets them, under wine on a screen in memory. The demo is started as it is
# unpacked, and the program of the ordinary ZIP in the demo's suite. The installer installs into that
# suite; its program starts, calculates, exports, is refused a second time, is closed by an upgrade, and
# is taken away again, without and with what is the user's own. Needs what bouw.sh made. Pictures of the
# steps stay in build/windows/beelden/.
#
# proef.sh [FOLDER]: FOLDER holds what the tour of run.sh left on Linux; the lists of the two systems
# are compared byte by byte.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
# shellcheck source=tools/pakketten.sh
source tools/pakketten.sh
# shellcheck source=packaging/windows/wine.sh
source packaging/windows/wine.sh
# shellcheck source=packaging/proef.sh
source packaging/proef.sh
# shellcheck source=tools/scherm.sh
source tools/scherm.sh

linux=${1:+$(realpath "$1")}
uit=$PWD/build/windows
pakketten=$PWD/build/pakketten
beelden=$uit/beelden
suite=$uit/proef/Lauwerkrans-demo
map=$suite/Lauwerkrans
lijsten=$map/Lauwerkrans
sleutel='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Lauwerkrans'
beeld=0

niet() { ! "$@"; }

# foto NAME: the next picture of the screen.
foto() { import -window root "$beelden/$((++beeld))-$1.png"; }

# One wine desktop for all, so that the windows see each other and have title bars.
start() { wine explorer /desktop=proef,1300x850 "$@" </dev/null >/dev/null 2>&1 & }

# start_programma DOING: from its own folder, as Windows does at a double click or from the start menu.
start_programma() {
  (cd "$map" && start Lauwerkrans.exe)
  wacht "$1" zoek_venster "$titel"
  sleep 1 # until it is drawn
}

# klik X Y: in pixels of the screen. The main window and a preview open in its middle.
klik() {
  xdotool mousemove "$1" "$2" click 1
  sleep 0.5
}

# probeer_zip NAME: starts the program that was unpacked from NAME, closes it, and takes its folder
# away.
probeer_zip() {
  start_programma "starten uit $1.zip"
  foto "$1"
  sluit_programma "$(zoek_venster "$titel" getwindowpid)" "$map"
  rm -r "$map"
}

# zelfde KIND: CSV or HTML.
zelfde() {
  cmp "$lijsten/Lauwr__LijnABC.$1" "$linux/13-voorbeeld-per-lijn.$1" ||
    mislukt "de $1-lijst is niet gelijk aan die van Linux"
}

wacht_verwijderd() {
  wacht 'verwijderen' niet test -e "$map/verwijderen.exe"
  wacht 'het opruimen van de sleutel' niet wine reg query "$sleutel"
  [[ -z $(find "$WINEPREFIX/drive_c/users" -name 'Lauwerkrans*.lnk') ]] ||
    mislukt 'de snelkoppeling bleef'
}

# shellcheck disable=SC2317 # called by the trap
ruim_op() {
  local status=$?
  ((status == 0)) || foto mislukt || true
  eind_wine
  stop_scherm
}

installeer windows windows_proef scherm
installateur=$(find "$pakketten" -name '*-installeren.exe')
zip=$(find "$pakketten" -name '*-windows.zip')
demo=$(find "$pakketten" -name '*-windows-demo.zip')
rm -rf -- "$uit/proef" "$uit/wine_proef" "$beelden"
mkdir -p "$uit/proef" "$beelden"

trap stop_scherm EXIT
start_x "$uit/proef" 1300x850
begin_wine "$uit/wine_proef"
trap ruim_op EXIT
unset WINEQT_QPA_PLATFORM # the real one
for letters in Arial Tahoma 'Segoe UI' 'MS Shell Dlg' 'MS Shell Dlg 2' 'Microsoft Sans Serif'; do
  wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "$letters" /d 'Liberation Sans' /f \
    </dev/null >/dev/null
done
eind_wine # they count from the next start
wineserver --wait
wineserver -p

unzip -q "$demo" -d "$uit/proef"
probeer_zip windows-demo
unzip -q "$zip" -d "$suite"
probeer_zip windows

start "$(windows_pad "$installateur")" /S "/D=$(windows_pad "$suite")"
wacht 'installeren' wine reg query "$sleutel" /v EstimatedSize
[[ -f $map/Lauwerkrans.exe && -f $map/verwijderen.exe ]] || mislukt 'het programma staat er niet'

start_programma 'starten'
foto gestart

(cd "$map" && start Lauwerkrans.exe)
wacht 'de weigering van een tweede exemplaar' zoek_venster Lauwerkrans
sleep 1
foto tweede
xdotool key Return
wacht 'het sluiten van de weigering' niet zoek_venster Lauwerkrans

minimum=(13 10 8)
for lijn in 0 1 2; do
  klik 321 $((462 + 20 * lijn))
  xdotool type "${minimum[lijn]}"
done
klik 868 610 # the heading that the tour uses
xdotool type 'Kampioenen van de voorjaarscompetitie'
klik 389 442 # "Bereken" of "Alle"
sleep 1
foto berekend
klik 912 645 # "Uitvoerlijsten ..."
wacht 'het afdrukvoorbeeld' zoek_venster Zittinguitslag
sleep 1
foto voorbeeld
klik 300 396 # "MaakCSV"
wacht 'het CSV-bestand' test -s "$lijsten/Lauwr__LijnABC.CSV"
sleep 1
foto csv
xdotool key Return
sleep 0.5
klik 300 430 # "MaakHTML"
wacht 'het HTML-bestand' test -s "$lijsten/Lauwr__LijnABC.HTML"
sleep 1
foto html
xdotool key Return
if [[ -n $linux ]]; then
  zelfde CSV
  zelfde HTML
fi

# An upgrade asks the running copy to close; it saves its settings then.
# The size in the list of programs is the last that the installer writes.
rm "$map/Leesmij.txt"
wine reg delete "$sleutel" /v EstimatedSize /f </dev/null >/dev/null
start "$(windows_pad "$installateur")" /S "/D=$(windows_pad "$suite")"
wacht 'het sluiten voor een nieuwe versie' niet zoek_venster "$titel"
wacht 'de nieuwe versie' wine reg query "$sleutel" /v EstimatedSize
[[ -f $map/Leesmij.txt ]] || mislukt 'de nieuwe versie is niet compleet'
grep -q '^__TXT1=13' "$map/Lauwr.ini" || mislukt 'de instellingen zijn niet bewaard'
[[ -s $lijsten/Lauwr__LijnABC.CSV ]] || mislukt 'de lijst is weg'
start_programma 'starten van de nieuwe versie'
foto bijgewerkt

# Removal asks the running copy to close too; what is the user's own stays.
start "$(windows_pad "$map/verwijderen.exe")" /S
wacht 'het sluiten voor het verwijderen' niet zoek_venster "$titel"
wacht_verwijderd
over=$(cd "$map" && find . -type f | LC_ALL=C sort | tr '\n' ' ')
[[ $over == './Lauwerkrans/Lauwr__LijnABC.CSV ./Lauwerkrans/Lauwr__LijnABC.HTML ./Lauwr.ini ' ]] ||
  mislukt "na verwijderen staat er: $over"
foto verwijderd

# Once more, with the tick at what is the user's own: nothing stays.
start "$(windows_pad "$installateur")" /S "/D=$(windows_pad "$suite")"
wacht 'nog eens installeren' wine reg query "$sleutel" /v EstimatedSize
start "$(windows_pad "$map/verwijderen.exe")"
wacht 'de vraag wat er weg mag' zoek_venster 'Lauwerkrans-de.*'
sleep 1
klik 587 421 # "Instellingen en lijsten"
foto vinkje
klik 762 580 # "Verwijderen"
wacht_verwijderd
wacht 'het opruimen van de map' niet test -e "$map"
[[ -s $suite/Mappen.ini ]] || mislukt 'de administratie is geraakt'
sleep 1
foto alles-verwijderd
echo "De pakketten voor Windows doen wat ze moeten; beelden in $beelden:"
ls -v "$beelden"
