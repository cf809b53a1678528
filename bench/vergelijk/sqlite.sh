#!/usr/bin/env bash
# The plain average of every pair of every line, with SQLite: line, both members, sessions, average.
# sqlite.sh COMPETITION
set -euo pipefail
cd "$1"
cat Ronde-*/Zitting-*/PercZit-*.txt | sqlite3 -batch :memory: \
  'create table zit (nr, richting, paar, leden, perc, spellen, rest)' \
  '.mode csv' '.import /dev/stdin zit' '.mode tabs' \
  "with score as (
     select substr(paar, 1, 1) as lijn,
            cast(leden as integer) as lid1,
            cast(substr(leden, instr(leden, '-') + 1) as integer) as lid2,
            cast(replace(perc, ',', '.') as real) as perc
     from zit)
   select lijn, min(lid1, lid2), max(lid1, lid2), count(*), printf('%.3f', avg(perc))
   from score where perc <> 0 group by 1, 2, 3"
