#!/usr/bin/env bash
# Puts the program of this folder into the menu of the user's desktop, or takes it out again
# (--verwijder). Nothing but files in the user's own folder of data is touched.
set -euo pipefail
hier=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
programma=$hier/Lauwerkrans.bin
gegevens=${XDG_DATA_HOME:-$HOME/.local/share}
snelkoppeling=$gegevens/applications/Lauwerkrans.desktop # by this name Wayland finds the picture
thema=$gegevens/icons/hicolor

# The program as the line "Exec" names it: quoted, a percent sign doubled; then every backslash
# doubled once more, as in any text of such a file. GNOME looks for the program before it halves the
# percent signs, so there another one comes first.
als_exec() {
  local woord=$1 teken
  for teken in \\ \" \` \$; do
    woord=${woord//"$teken"/\\"$teken"}
  done
  woord=${woord//%/%%}
  [[ $1 != *%* ]] || printf 'env '
  printf '"%s"' "${woord//\\/\\\\}"
}

voeg_toe() {
  local regel beeld maat
  if [[ $programma == *$'\n'* ]]; then
    echo 'De naam van deze map heeft een regeleinde; dat kan niet in het menu.' >&2
    return 1
  fi
  mkdir -p "${snelkoppeling%/*}"
  while IFS= read -r regel; do
    [[ $regel != Exec=* ]] || regel="Exec=$(als_exec "$programma")"
    printf '%s\n' "$regel"
  done <"$hier/lauwerkrans.desktop" >"$snelkoppeling"
  for beeld in "$hier"/pictogrammen/*.png; do
    maat=$(basename "$beeld" .png)
    mkdir -p "$thema/$maat/apps"
    cp "$beeld" "$thema/$maat/apps/lauwerkrans.png"
  done
  touch "$thema" # desktops look here for news
  echo 'Lauwerkrans staat in het menu.'
  waarschuw
}

# What would keep the program from starting, as far as can be seen from here.
waarschuw() {
  local weg
  weg=$(ldd "$programma" | sed -nE 's/^[[:space:]]*(.*) => not found$/  \1/p')
  [[ -z $weg ]] ||
    printf 'Let op: op dit systeem ontbreken bibliotheken, zie Leesmij.txt:\n%s\n' "$weg" >&2
  [[ -f $hier/../Mappen.ini ]] ||
    echo "Let op: in de map ${hier%/*} staat geen bestand Mappen.ini. Het programma kan niet starten." >&2
}

haal_weg() {
  rm -f -- "$snelkoppeling" "$thema"/*/apps/lauwerkrans.png
  echo "Lauwerkrans staat niet meer in het menu. Het programma zelf staat nog in $hier."
}

case ${1-} in
  '') voeg_toe ;;
  --verwijder) haal_weg ;;
  *)
    echo "Gebruik: installeer.sh [--verwijder]" >&2
    exit 2
    ;;
esac
