#!/usr/bin/env bash
# Measures everything that stands in docs/metingen.md and writes its tables and the plot anew: builds
# the release, runs every benchmark in a process of its own, and the comparisons. For numbers that
# are to stay: on a machine with nothing else to do, and no other copy of the program running. The
# raw numbers stay in build/metingen. With -t the tables alone are made again from those.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=tools/pakketten.sh
source tools/pakketten.sh

uit=$PWD/build/metingen
bin=$PWD/build/release
python=/usr/bin/python3 # Debian's, which has Debian's pandas

tabellen() {
  "$python" bench/tabellen.py "$uit" docs/metingen.md
  "$python" bench/groei.py "$uit" docs/beelden/groei.svg
}

[[ ${1:-} == -t ]] && tabellen && exit

installeer bouwen scherm beelden meten
configureer release
cmake --build --preset release --target kern_bench venster_bench kaal_venster bench_einde \
  Lauwerkrans lauwerkrans_lijst maak_competitie
rm -rf "$uit"
mkdir -p "$uit"
werk=$(mktemp -d)
trap 'rm -rf -- "$werk"' EXIT
export XDG_RUNTIME_DIR=$werk/xdg PYTHONDONTWRITEBYTECODE=1
mkdir -m 700 "$XDG_RUNTIME_DIR"

# The machine, and whether it had other work.
omgeving() {
  local druk
  read -r druk _ </proc/loadavg
  printf 'Run of %s on %d cores of %s; load at the start %s, the build just before included.\n' \
    "$(date +%F)" "$(nproc)" "$(sed -n '/^model name/{s/.*: //p;q}' /proc/cpuinfo)" "$druk"
}

# benchmarks PROGRAM: each in a process of its own, so that the peak memory is its own.
benchmarks() {
  local naam
  "$bin/bench/$1" --benchmark_list_tests=true | while IFS= read -r naam; do
    echo "$1 $naam"
    "$bin/bench/$1" --benchmark_filter="^$naam\$" --benchmark_out_format=json \
      --benchmark_out="$uit/$1_${naam//[^[:alnum:]_]/_}.json" >/dev/null
  done
}

# begin PLATFORM: the program as it is delivered, from its start until its window can be used.
begin() {
  local map=$werk/begin
  "$bin/tools/maak_competitie" grootte "$map" 5 5 36 80 3
  mkdir "$map/Lauwerkrans"
  cp "$bin/Lauwerkrans/Lauwerkrans.bin" "$map/Lauwerkrans/"
  QT_LOAD_TESTABILITY=1 LD_LIBRARY_PATH=$bin/bench/einde QT_QPA_PLATFORM=$1 \
    "$python" bench/wissel.py 51 "$uit/begin_${1%%:*}.json" "$werk" \
    "kaal_venster=$bin/bench/kaal_venster" "Lauwerkrans=$map/Lauwerkrans/Lauwerkrans.bin"
  rm -r "$map"
}

# vergelijk NAME PAIRS MEMBERS LINES [los]: the same averages by the program and by scripts.
vergelijk() {
  local naam=$1 map=$werk/vergelijk scripts=$PWD/bench/vergelijk competitie minima
  "$bin/tools/maak_competitie" grootte "$map" 99 99 "${@:2}"
  competitie=("$map"/Competities/*)
  minima=$(printf '%s=1,' {A..Z} | cut -c "1-$((4 * $4 - 1))")
  "$python" bench/wissel.py 5 "$uit/vergelijk_$naam.json" "$map" \
    "lauwerkrans_lijst=$bin/tools/lauwerkrans_lijst '$map' ranglijst --minimum $minima" \
    "mawk=$scripts/awk.sh '${competitie[0]}'" \
    "sqlite3=$scripts/sqlite.sh '${competitie[0]}'" \
    "pandas=$python $scripts/pandas_lijst.py '${competitie[0]}'"
  "$python" bench/vergelijk/controleer.py "$map" "$map"/{lauwerkrans_lijst,mawk,sqlite3,pandas}.txt
  rm -r "$map"
}

omgeving | tee "$uit/omgeving.txt"

echo '{"screens": [{"name": "scherm", "x": 0, "y": 0, "width": 1920, "height": 1080,
  "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]}' >"$werk/scherm.json"
begin "offscreen:configfile=$werk/scherm.json"
Xvfb -displayfd 3 -screen 0 1920x1080x24 -nolisten tcp 3>"$werk/display" &>/dev/null &
scherm=$!
trap 'kill "$scherm" 2>/dev/null; rm -rf -- "$werk"' EXIT
until [[ -s $werk/display ]]; do
  sleep 0.1
done
DISPLAY=:$(<"$werk/display") begin xcb
kill "$scherm"

benchmarks kern_bench
QT_QPA_PLATFORM=offscreen benchmarks venster_bench
vergelijk grootst 160 1000 8
vergelijk losse_paren 160 1000 8 los
tabellen
