#!/usr/bin/env bash
# The plain average of every pair of every line, with awk: line, both members, sessions, average.
# awk.sh COMPETITION
set -euo pipefail
cd "$1"
cat Ronde-*/Zitting-*/PercZit-*.txt | mawk -F'"' '
  {
    sub(",", ".", $8)
    if ($8 + 0 == 0) next
    split($6, lid, "-")
    if (lid[1] + 0 > lid[2] + 0) { hoog = lid[1]; lid[1] = lid[2]; lid[2] = hoog }
    paar = substr($4, 1, 1) "\t" lid[1] "\t" lid[2]
    som[paar] += $8
    aantal[paar]++
  }
  END { for (paar in som) printf "%s\t%d\t%.3f\n", paar, aantal[paar], som[paar] / aantal[paar] }'
