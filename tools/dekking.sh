#!/usr/bin/env bash
# Prints which part of the branches of data/, calc/ and the files of output/ that belong to the core
# its tests take, and the lines with a branch that they leave out. Branches that only an exception
# of the standard library takes (no memory) are not counted. Fails under 95 %.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=tools/pakketten.sh
source tools/pakketten.sh

installeer bouwen toetsen dekking
configureer dekking >/dev/null
cmake --build --preset dekking --target kern_tests
find build/dekking -name '*.gcda' -delete
build/dekking/tests/kern_tests --gtest_brief=1
gcovr --root . --filter 'data/' --filter 'calc/' --filter 'output/' --filter 'app/mod' \
  --exclude-throw-branches --exclude-unreachable-branches --branches \
  --fail-under-branch 95 --gcov-ignore-parse-errors build/dekking
