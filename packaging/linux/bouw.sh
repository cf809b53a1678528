#!/usr/bin/env bash
# The package for Linux: builds the program optimised, packs it into build/pakketten/ and tries the
# package.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
# shellcheck source=tools/pakketten.sh
source tools/pakketten.sh

installeer bouwen scherm
mkdir -p build/pakketten
rm -f build/pakketten/Lauwerkrans-*-linux-* # those of other versions
configureer release >build/release.log || { cat build/release.log >&2; exit 1; }
cmake --build --preset release --target pakketdelen maak_competitie
cpack --config build/release/CPackConfig.cmake >build/cpack.log || { cat build/cpack.log >&2; exit 1; }
rm -rf build/pakketten/_CPack_Packages
pakket=build/pakketten/Lauwerkrans-$(versie_van_programma)-linux-$(uname -m).tar.gz
packaging/linux/controleer_pakket.sh "$pakket"
ls -l "$pakket"
