#!/usr/bin/env bash
# Runs the fuzzers, two at a time, each so many minutes: tools/fuzz.sh MINUTES [TARGET...]. With -r
# NUMBER in place of the minutes each gets that number of tries. What is found stays in
# build/fuzz/vondsten; the inputs that reached something new stay in build/fuzz/invoer.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=tools/pakketten.sh
source tools/pakketten.sh

case ${1:-} in
  -r) grens=(-runs="${2:?aantal}" -seed=1) && shift 2 ;;
  [1-9]*) grens=(-max_total_time=$(($1 * 60))) && shift ;;
  *) sed -n '2,4s/^# //p' "$0" && exit 2 ;;
esac

# The files of the checked-in competitions that a reader starts from, by the end of their names.
declare -A zaad=([compbums]=compbums.txt [compdata]=compdata.txt [leden]=orvspelers.txt
  [mappen]=mappen.ini [perczit]='perczit-*.txt' [rondedata]=rondedata.txt
  [lijstformaat]='perczit-*.txt' [tekst]='compbums.txt' [instellingen]=lauwr.ini
  [bereken]='perczit-*.txt')
doelen=("$@")
((${#doelen[@]})) || doelen=("${!zaad[@]}")

installeer bouwen fuzz
configureer fuzz
cmake --build --preset fuzz
mkdir -p build/fuzz/vondsten build/fuzz/log
# The files that are tried lie in memory.
TMPDIR=$(mktemp -d -p /dev/shm)
export TMPDIR
trap 'rm -rf -- "$TMPDIR"' EXIT

zaai() {
  local doel=$1 nummer=0 bestand
  mkdir -p "build/fuzz/invoer/$doel"
  while IFS= read -r -d '' bestand; do
    cp "$bestand" "build/fuzz/invoer/$doel/zaad_$((++nummer))"
  done < <(find tests/gegevens -type f -iname "${zaad[$doel]}" -size -8k -print0)
}

fuzz() {
  local doel=$1
  shift
  "build/fuzz/tests/fuzz/fuzz_$doel" "$@" -max_len=2048 -timeout=10 -rss_limit_mb=1024 \
    -print_final_stats=1 -artifact_prefix="build/fuzz/vondsten/${doel}_" \
    "build/fuzz/invoer/$doel" &>"build/fuzz/log/$doel.txt" ||
    { echo "$doel: gevonden" && tail -n 40 "build/fuzz/log/$doel.txt" && return 1; }
  sed -n "s/^stat::number_of_executed_units: */$doel: executions /p" "build/fuzz/log/$doel.txt"
}
export -f fuzz

for doel in "${doelen[@]}"; do
  zaai "$doel"
done
printf '%s\0' "${doelen[@]}" |
  xargs -0 -I{} -P 2 bash -c 'fuzz "$@"' fuzz {} "${grens[@]}"
