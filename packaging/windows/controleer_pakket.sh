#!/usr/bin/env bash
# controleer_pakket.sh FOLDER PROGRAM VERSION: looks into the manual and all programs and DLLs below a
# folder, as they are packed. Says everything that is wrong, and fails then:
# - a DLL is imported that is neither there nor one of Windows, or one lies there that nothing
#   imports (plugins lie in sub-folders and are loaded by name);
# - a file lacks a mark of hardening: any address, also above 4 GB, and no running of data;
# - the program opens a console, or lacks its picture, this version or its manifest;
# - the manual is not whole, or not of this version;
# - a file names a folder of the building machine.
set -euo pipefail
map=$(realpath "$1")
programma=$2
versie=$3
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
# shellcheck source=packaging/bouwpaden.sh
source packaging/bouwpaden.sh

fouten=0

meld() {
  echo "$1" >&2
  fouten=$((fouten + 1))
}

# The DLLs of Windows: those that an import library of mingw-w64 names (its own DLLs have theirs in
# files *.dll.a).
van_windows() {
  grep -qriF --include='*.a' --exclude='*.dll.a' -- "$1" /usr/x86_64-w64-mingw32/lib
}

kop() { x86_64-w64-mingw32-objdump -p "$1"; }

controleer_invoer() {
  local -A aanwezig=() gevraagd=()
  local bestand naam tabel dll
  for bestand in "${bestanden[@]}"; do
    naam=$(basename "$bestand")
    [[ $(dirname "$bestand") != "$map" ]] || aanwezig[${naam,,}]=$bestand
  done
  for bestand in "${bestanden[@]}"; do
    tabel=$(kop "$bestand" | sed -nE 's/^[[:space:]]*DLL Name: (.*)$/\L\1/p')
    [[ -n $tabel ]] || meld "Geen importtabel te lezen: $bestand"
    for dll in $tabel; do
      gevraagd[$dll]=$bestand
      [[ -n ${aanwezig[$dll]:-} ]] || van_windows "$dll" || meld "Ontbreekt: $dll, voor $bestand"
    done
  done
  for dll in "${!aanwezig[@]}"; do
    [[ $dll == "${programma,,}" || -n ${gevraagd[$dll]:-} ]] || meld "Overbodig: ${aanwezig[$dll]}"
  done
  echo "${#bestanden[@]} programma's en DLL's vragen ${#gevraagd[@]} DLL's."
}

controleer_hardheid() {
  local bestand merk kenmerken
  for bestand in "${bestanden[@]}"; do
    kenmerken=$(kop "$bestand")
    for merk in HIGH_ENTROPY_VA DYNAMIC_BASE NX_COMPAT; do
      grep -qw "$merk" <<<"$kenmerken" || meld "$bestand heeft geen $merk"
    done
  done
}

controleer_programma() {
  local gegevens deel
  gegevens=$(kop "$map/$programma")
  grep -q '^Subsystem.*Windows GUI' <<<"$gegevens" || meld "$programma opent een console"
  gegevens=$(x86_64-w64-mingw32-windres -J coff -i "$map/$programma" -O rc)
  for deel in RT_GROUP_ICON VERSIONINFO RT_MANIFEST; do
    grep -qw "$deel" <<<"$gegevens" || meld "$programma heeft geen $deel"
  done
  for deel in FileVersion ProductVersion; do
    grep -qF "VALUE \"$deel\", \"$versie\"" <<<"$gegevens" || meld "$programma is niet $versie: $deel"
  done
}

mapfile -d '' bestanden < <(find "$map" \( -iname '*.exe' -o -iname '*.dll' \) -print0)
if [[ ! -f $map/$programma ]]; then
  meld "Geen $programma in $map"
else
  controleer_invoer
  controleer_hardheid
  controleer_programma
  tools/handleiding.sh controleer "$versie" "$map/handleiding" || meld "De handleiding deugt niet."
  zonder_bouwpaden "$map" || meld "Dat hoort niet in een pakket."
fi
((fouten == 0)) || exit 1
echo "Het pakket is compleet; niets is overbodig."
