#!/usr/bin/env bash
# Prints the table of docs/storingen.md: every file that the program reads, broken in every way, and
# what the program then said. Without sanitizers, so that the large files have their full size.
# Stops at the first fault that cost something.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=tools/pakketten.sh
source tools/pakketten.sh

installeer bouwen toetsen >&2
{
  configureer release
  cmake --build --preset release --target kern_tests gui_tests
} >&2

# rijen PROGRAM: its rows of the table, those of one file together; fails when a test does.
rijen() {
  local uitvoer
  uitvoer=$("$1" --gtest_filter='Storingen/*' --gtest_brief=1) || {
    printf '%s\n' "$uitvoer" >&2
    return 1
  }
  grep -a '^| ' <<<"$uitvoer" | sort -s -t '|' -k 2,2
}

kern=$(rijen build/release/tests/kern_tests)
vensters=$(QT_QPA_PLATFORM=offscreen rijen build/release/tests/gui_tests)
printf '| File | Fault | Inputs | Messages seen | Lost |\n|---|---|---|---|---|\n%s\n\n' "$kern"
printf '| File, in the window | Fault | Inputs | Boxes answered | Lost |\n|---|---|---|---|---|\n%s\n' "$vensters"
