#!/usr/bin/env bash
# Prints which part of the branches of the core its tests take, and the lines with a branch that they
# leave out: first the settings, the list files and the page layout, then data/ and calc/. Branches
# that only an exception of the standard library takes (no memory) are not counted. Fails when those
# of data/ and calc/ are under 95 %.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=tools/pakketten.sh
source tools/pakketten.sh

installeer bouwen toetsen dekking
configureer dekking >/dev/null
cmake --build --preset dekking --target kern_tests
find build/dekking -name '*.gcda' -delete
build/dekking/tests/kern_tests --gtest_brief=1

# dekking OPTION...: the table of the files that the options choose.
dekking() {
  gcovr --root . --exclude-throw-branches --exclude-unreachable-branches --branches \
    --gcov-ignore-parse-errors "$@" build/dekking
}

dekking --filter 'output/' --filter 'app/mod'
dekking --filter 'data/' --filter 'calc/' --fail-under-branch 95
