#!/usr/bin/env bash
# The version for Windows: builds the program and all tests, runs the tests under wine, and puts the
# portable package, the demo and the installer into build/pakketten/.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
# shellcheck source=tools/pakketten.sh
source tools/pakketten.sh
# shellcheck source=packaging/windows/wine.sh
source packaging/windows/wine.sh
# shellcheck source=packaging/bouwpaden.sh
source packaging/bouwpaden.sh

hier=$PWD/packaging/windows
uit=$PWD/build/windows
pakketten=$PWD/build/pakketten
pakket=$uit/pakket/Lauwerkrans

thread_dlls=/usr/x86_64-w64-mingw32/lib

bouw() {
  mkdir -p build
  # What CMake remembers of another Qt is of no use.
  grep -qsxF "LAUWERKRANS_QT:PATH=$qt" "$uit/CMakeCache.txt" || rm -f -- "$uit/CMakeCache.txt"
  LAUWERKRANS_QT=$qt configureer windows >build/windows.log || { cat build/windows.log >&2; return 1; }
  cmake --build --preset windows --target Lauwerkrans kern_tests gui_tests maak_competitie handleiding
}

# The guards on the stack and the checked copies are linked in; a stripped program no longer names
# them.
controleer_wachters() {
  local naam namen
  namen=$(x86_64-w64-mingw32-nm "$uit/Lauwerkrans/Lauwerkrans.exe")
  for naam in __stack_chk_fail __memcpy_chk; do
    grep -qw "$naam" <<<"$namen" || { echo "Lauwerkrans.exe heeft geen $naam" >&2; return 1; }
  done
}

test_alles() {
  local proef
  for proef in kern_tests gui_tests; do
    wine "$uit/tests/$proef.exe" --gtest_brief=1 </dev/null
  done
}

# The folder as the user gets it. What is no program has the line ends of Windows.
leg_neer() {
  rm -rf -- "$uit/pakket"
  mkdir -p "$pakket"/{platforms,translations,licenties/qt}
  cp "$uit/Lauwerkrans/Lauwerkrans.exe" "$pakket"
  x86_64-w64-mingw32-strip "$pakket/Lauwerkrans.exe"
  cp "$qt"/bin/Qt6{Core,Gui,Widgets,PrintSupport}.dll "$pakket"
  cp "$qt/plugins/platforms/qwindows.dll" "$pakket/platforms"
  cp "$qt/translations/qtbase_nl.qm" "$pakket/translations"
  printf '[Paths]\r\nPrefix=.\r\n' >"$pakket/qt.conf" # else Qt looks for them in the folder above
  cp "$gcc_dlls"/lib{stdc++-6,gcc_s_seh-1}.dll "$thread_dlls/libwinpthread-1.dll" "$pakket"
  x86_64-w64-mingw32-strip "$pakket"/lib*.dll
  cp -r "$uit/handleiding" "$pakket"
  licenties
}

licenties() {
  local van=/usr/share/doc naar=$pakket/licenties
  als_tekst "$qt/bron/copyright" "$naar/qt6-base.txt"
  local tekst
  for tekst in "$qt"/bron/LICENSES/*.txt; do
    als_tekst "$tekst" "$naar/qt/$(basename "$tekst")"
  done
  als_tekst $van/gcc-mingw-w64-base/copyright "$naar/gcc.txt"
  als_tekst $van/mingw-w64-common/copyright "$naar/mingw-w64.txt"
  als_tekst <(sed "s|@VERSIE@|$versie|; s|@QT@|$qt_versie|" "$hier/leesmij.txt") "$pakket/Leesmij.txt"
  als_tekst CHANGELOG.md "$pakket/CHANGELOG.txt"
}

als_tekst() { sed 's/\r*$/\r/' "$1" >"$2"; }

# The suite of a club that does not exist, with the program in it. Its folders are named as seen from
# the program's own folder, so that it may be unpacked anywhere.
leg_demo_neer() {
  local demo=$uit/pakket/Lauwerkrans-demo
  mkdir -p "$demo"
  wine "$uit/tools/maak_competitie.exe" demo "$(windows_pad "$demo")" '..' '..\Competities' </dev/null
  cp -r "$pakket" "$demo/Lauwerkrans"
}

# zip_map FOLDER NAME: a folder of build/windows/pakket as a ZIP, files in a fixed order. Empty folders
# count: sessions that are still to be played have one.
zip_map() {
  (cd "$uit/pakket" && find "$1" \( -type f -o -type d -empty \) | LC_ALL=C sort | zip -q -9 -X "$pakketten/$2.zip" -@)
}

# What the installer writes and what its counterpart takes away: exactly the packed files.
# shellcheck disable=SC2016,SC1003 # $INSTDIR is a word of the installer's language
lijsten() {
  local map
  {
    while read -r map; do
      printf 'SetOutPath "$INSTDIR\\Lauwerkrans%s"\n' "${map//\//\\}"
      find "$pakket$map" -maxdepth 1 -type f -printf 'File "%p"\n' | LC_ALL=C sort
    done < <(find "$pakket" -type d -printf '/%P\n' | sed 's|/$||' | LC_ALL=C sort)
  } >"$uit/pakket/bestanden.nsh"
  {
    find "$pakket" -type f -printf 'Delete "$INSTDIR\\%P"\n'
    find "$pakket" -mindepth 1 -depth -type d -printf 'RMDir "$INSTDIR\\%P"\n'
  } | tr / '\\' >"$uit/pakket/verwijder.nsh"
}

installeerder() {
  lijsten
  makensis -V2 -WX -INPUTCHARSET UTF8 -DVERSIE="$versie" -DPICTOGRAM="$hier/lauwerkrans.ico" \
    -DLIJSTEN="$uit/pakket" -DUIT="$pakketten/Lauwerkrans-$versie-installeren.exe" \
    "$hier/lauwerkrans.nsi"
}

installeer bouwen scherm toetsen windows
gcc_dlls=$(dirname "$(x86_64-w64-mingw32-gcc-posix -print-file-name=libstdc++-6.dll)")
qt=$("$hier/bouw_qt.sh")
qt_versie=$(sed -nE 's/^Version: //p' "$qt"/bron/*.dsc | head -n 1)
versie=$(versie_van_programma)
bouw
controleer_wachters
trap eind_wine EXIT
begin_wine "$uit/wine" "$qt/bin" "$gcc_dlls" "$thread_dlls"
export WINEQT_PLUGIN_PATH
WINEQT_PLUGIN_PATH=$(windows_pad "$qt/plugins")
test_alles
leg_neer
"$hier/controleer_pakket.sh" "$pakket" Lauwerkrans.exe "$versie"
leg_demo_neer
zonder_bouwpaden "$uit/pakket/Lauwerkrans-demo"
mkdir -p "$pakketten"
rm -f -- "$pakketten"/Lauwerkrans-*-{windows,windows-demo}.zip "$pakketten"/Lauwerkrans-*-installeren.exe
zip_map Lauwerkrans "Lauwerkrans-$versie-windows"
zip_map Lauwerkrans-demo "Lauwerkrans-$versie-windows-demo"
installeerder
zonder_bouwpaden "$pakketten"
ls -l "$pakketten"
