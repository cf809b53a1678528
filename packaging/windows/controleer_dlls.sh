#!/usr/bin/env bash
# controleer_dlls.sh FOLDER PROGRAM: looks at the import tables of all programs and DLLs below a
# folder. Fails when a DLL is imported that is neither there nor one of Windows, and when one lies
# there that nothing imports. Plugins lie in sub-folders and are loaded by name.
set -euo pipefail

map=$1
programma=$2

# The DLLs of Windows: those that an import library of mingw-w64 names (its own DLLs have theirs in
# files *.dll.a).
van_windows() {
  grep -qriF --include="*.a" --exclude="*.dll.a" -- "$1" /usr/x86_64-w64-mingw32/lib
}

invoer() { x86_64-w64-mingw32-objdump -p "$1" | sed -nE 's/^[[:space:]]*DLL Name: (.*)$/\L\1/p'; }

declare -A aanwezig=() gevraagd=()
fouten=0
mapfile -d '' bestanden < <(find "$map" \( -iname '*.exe' -o -iname '*.dll' \) -print0)
for bestand in "${bestanden[@]}"; do
  if [[ $(dirname "$bestand") == "$map" ]]; then
    naam=$(basename "$bestand")
    aanwezig[${naam,,}]=$bestand
  fi
done
for bestand in "${bestanden[@]}"; do
  tabel=$(invoer "$bestand")
  if [[ -z $tabel ]]; then
    echo "Geen importtabel te lezen: $bestand" >&2
    fouten=$((fouten + 1))
  fi
  for dll in $tabel; do
    gevraagd[$dll]=$bestand
    [[ -z ${aanwezig[$dll]:-} ]] || continue
    if ! van_windows "$dll"; then
      echo "Ontbreekt: $dll, gevraagd door $bestand" >&2
      fouten=$((fouten + 1))
    fi
  done
done
for dll in "${!aanwezig[@]}"; do
  [[ $dll != "${programma,,}" && -z ${gevraagd[$dll]:-} ]] || continue
  echo "Overbodig: ${aanwezig[$dll]}" >&2
  fouten=$((fouten + 1))
done
if ((${#bestanden[@]} == 0)) || [[ -z ${aanwezig[${programma,,}]:-} ]]; then
  echo "Geen $programma in $map" >&2
  fouten=$((fouten + 1))
fi
((fouten == 0)) || exit 1
echo "Importtabellen: ${#bestanden[@]} bestanden, ${#gevraagd[@]} DLL's, niets ontbreekt of is overbodig."
