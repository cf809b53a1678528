#!/usr/bin/env bash
# The manual (docs/handleiding) as HTML: handleiding.sh VERSION FOLDER. The folder is made anew. A
# link or a picture that leads nowhere is an error.
#
# handleiding.sh controleer VERSION FOLDER: the same look at a folder that was made before, as it lies
# in a package: every page is there, of that version, and leads to what is there. Says what is wrong.
#
# handleiding.sh beelden: makes the manual's pictures, and that of README.md, again by
# tools/beelden.sh, with or without a display. They have two pixels for one, so that they stay sharp
# on a screen at 150 or 200 %; the pages show them at their natural size.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=tools/pakketten.sh
source tools/pakketten.sh

bron=docs/handleiding

# kopieer PICTURE FILE: of 256 colours, which the eye takes for the same at half the size; and the same
# bytes from the same picture.
kopieer() { convert "build/beelden/200/$1" -strip -dither None -colors 256 "PNG8:$2"; }

beelden() {
  installeer handleiding
  tools/beelden.sh 200
  local beeld
  rm -rf -- "$bron/beelden"
  mkdir -p "$bron/beelden"
  while read -r beeld; do
    kopieer "$beeld" "$bron/beelden/$beeld"
  done < <(grep -ohE 'beelden/[^)]+\.png' "$bron"/*.md | sed 's|.*/||' | sort -u)
  kopieer 02-alle-lijnen.png docs/beelden/hoofdvenster.png
}

titel() { sed -n '1s/^# //p' "$bron/$1.md"; }

# The pages in the order in which the first one names them.
volgorde() {
  echo index
  grep -oE '\]\([a-z_]+\.md\)' "$bron/index.md" | sed -E 's/^..(.*)\.md\)$/\1/' | awk '!gezien[$0]++'
}

# verwijzing PAGE TEXT: nothing when there is no page.
verwijzing() { [[ -z $1 ]] || printf '<a href="%s.html">%s</a>\n' "$1" "$2"; }

# For sed: gives every picture its natural size. Bytes 16 to 23 of a PNG are width and height.
maten() {
  local beeld breedte hoogte
  for beeld in "$bron"/beelden/*.png; do
    read -r breedte hoogte < <(od -An -tu4 --endian=big -j16 -N8 "$beeld")
    printf 's|<img src="beelden/%s"|& width="%d" height="%d"|\n' "$(basename "$beeld")" \
      $((breedte / 2)) $((hoogte / 2))
  done
}

# Headings get a name of their own, to which a link may lead.
inhoud() {
  cmark-gfm --extension table "$bron/$1.md" |
    sed -E -e 's/href="([a-z_]+)\.md/href="\1.html/g' -e "$beeldmaten" |
    awk 'match($0, /^<h[23]>[^<]*</) {
      naam = tolower(substr($0, 5, RLENGTH - 5))
      gsub(/[^a-z0-9]+/, "-", naam)
      $0 = substr($0, 1, 3) " id=\"" naam "\"" substr($0, 4)
    } { print }'
}

# pagina NAME PREVIOUS NEXT
pagina() {
  local naam
  naam=$(titel "$1")
  cat <<KOP
<!DOCTYPE html>
<html lang="nl">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>$naam</title>
<link rel="stylesheet" href="handleiding.css">
</head>
<body>
<header><a href="index.html">Handleiding Lauwerkrans</a></header>
<main>
KOP
  inhoud "$1"
  echo '</main>'
  echo '<nav>'
  printf '<span>%s</span>\n' "$(verwijzing "$2" "Vorige: $(titel "${2:-index}")")"
  printf '<span>%s</span>\n' "$(verwijzing "$3" "Volgende: $(titel "${3:-index}")")"
  echo '</nav>'
  echo "<footer>Lauwerkrans $versie</footer>"
  echo '</body>'
  echo '</html>'
}

# verwijzingen_kloppen: every link of every page leads to a file beside it and, behind a "#", to a
# heading in there.
verwijzingen_kloppen() {
  local pagina doel bestand anker fouten=0
  while IFS=: read -r pagina doel; do
    bestand=${doel%%#*}
    anker=${doel#"$bestand"}
    bestand=${bestand:-$pagina}
    [[ -f $uit/$bestand ]] && { [[ -z $anker ]] || grep -qF "id=\"${anker#\#}\"" "$uit/$bestand"; } &&
      continue
    echo "$pagina: $doel leidt nergens heen." >&2
    fouten=$((fouten + 1))
  done < <(cd "$uit" && grep -HoE '(href|src)="[^"]*"' -- *.html | sed -E 's/(href|src)="([^"]*)"/\2/')
  ((fouten == 0))
}

controleer() {
  local ander
  [[ -f $uit/index.html ]] || { echo "Er is geen $uit/index.html." >&2; return 1; }
  ander=$(cd "$uit" && grep -LF "<footer>Lauwerkrans $versie</footer>" -- *.html) || true
  [[ -z $ander ]] || printf 'Niet van versie %s:\n%s\n' "$versie" "$ander" >&2
  verwijzingen_kloppen && [[ -z $ander ]]
}

maak() {
  command -v cmark-gfm >/dev/null || {
    echo "Het pakket cmark-gfm ontbreekt (tools/pakketten.sh)." >&2
    return 1
  }
  local -a namen
  local i beeldmaten
  beeldmaten=$(maten)
  mapfile -t namen < <(volgorde)
  rm -rf -- "$uit"
  mkdir -p "$uit"
  for i in "${!namen[@]}"; do
    pagina "${namen[i]}" "$( ((i == 0)) || echo "${namen[i - 1]}")" "${namen[i + 1]:-}" \
      >"$uit/${namen[i]}.html"
  done
  cp -r "$bron/beelden" "$bron/handleiding.css" "$uit"
  controleer
}

if [[ $# == 1 && $1 == beelden ]]; then
  beelden
elif [[ $# == 3 && $1 == controleer ]]; then
  versie=$2
  uit=$3
  controleer
elif (($# == 2)); then
  versie=$1
  uit=$2
  maak
else
  echo 'Gebruik: handleiding.sh [controleer] VERSIE MAP of handleiding.sh beelden' >&2
  exit 2
fi
