#!/usr/bin/env bash
# Installs what is missing, builds everything with sanitizers and library checks, and runs all
# tests. The last lines and the exit status are those of ctest.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
# shellcheck source=tools/pakketten.sh
source tools/pakketten.sh

installeer bouwen scherm beelden toetsen
configureer ci
cmake --build --preset ci
exec ctest --preset ci
