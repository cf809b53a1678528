#!/usr/bin/env bash
# Builds Qt for Windows from Debian's source package, of the version that the Linux build uses, into
# a folder outside the tree: Core, Gui, Widgets, PrintSupport and Test as DLLs, the platforms
# "windows" and "offscreen". The folder's name holds the versions and a checksum of what the build
# is told, so that it is built once, and again only when that changes.
#
# The output is one line, the folder; everything else goes to the error stream.
# LAUWERKRANS_QT_MAP names the folder that such builds are kept in (default: the user's cache).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
hier=$PWD/packaging/windows
# shellcheck source=tools/pakketten.sh
source tools/pakketten.sh
exec 3>&1 1>&2

# What the program does not use, and the libraries that the system would have to bring. direct2d
# stays: printing does not link without it. tabletevent needs a header that Debian leaves out.
uit=(network sql dbus xml concurrent opengl vulkan tabletevent direct2d1_1 zstd icu glib fontconfig
  pkg_config jpeg gif)

vlaggen=(
  -G Ninja
  -DCMAKE_BUILD_TYPE=Release
  -DBUILD_SHARED_LIBS=ON
  -DQT_HOST_PATH=/usr
  -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake
  -DQT_BUILD_EXAMPLES=OFF
  -DQT_BUILD_TESTS=OFF
  -DQT_QPA_DEFAULT_PLATFORM=windows
  -DINPUT_opengl=no
)
for eigenschap in "${uit[@]}"; do
  vlaggen+=("-DFEATURE_$eigenschap=OFF")
done

# A private apt that also knows the sources of the machine's own addresses: no root is needed, and
# the machine's lists stay as they are.
maak_apt() {
  local deel
  mkdir -p "$werk"/apt/{lijsten/partial,delen,cache/archives/partial}
  for deel in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
    [[ -f $deel ]] || continue
    sed -E 's/^[[:space:]]*deb[[:space:]]/deb-src /' "$deel" >"$werk/apt/delen/$(basename "$deel" .list).list"
  done
  for deel in /etc/apt/sources.list.d/*.sources; do
    [[ -f $deel ]] || continue
    sed -E 's/^Types:.*/Types: deb-src/' "$deel" >"$werk/apt/delen/$(basename "$deel")"
  done
  apt=(-o Dir::Etc::SourceList=/dev/null -o "Dir::Etc::SourceParts=$werk/apt/delen"
    -o "Dir::State::Lists=$werk/apt/lijsten" -o "Dir::Cache=$werk/apt/cache"
    -o Acquire::Languages=none)
  apt-get "${apt[@]}" --quiet update
}

# Fetches and unpacks the source, with Debian's patches.
haal_bron() {
  maak_apt
  (cd "$werk" && apt-get "${apt[@]}" --quiet source --download-only "qt6-base=$versie")
  dpkg-source --no-check -x "$werk"/qt6-base_*.dsc "$werk/bron"
}

# shellcheck disable=SC2317 # called by the trap
ruim_op() { rm -rf -- "$werk"; }

bouw() {
  mkdir -p "$kast"
  # Beside the result, so that it becomes that by one rename.
  werk=$(mktemp -d "$(realpath "$kast")/bouw.XXXXXX") # a symbolic link in the path breaks the build
  trap ruim_op EXIT
  haal_bron
  # Its name does not begin that of the sources: their places are mapped by the first letters alike.
  mkdir "$werk/gebouwd"
  cmake -S "$werk/bron" -B "$werk/gebouwd" "${vlaggen[@]}" \
    -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/mingw.cmake" \
    -DCMAKE_PROJECT_QtBase_INCLUDE="$hier/qt_na_project.cmake" \
    -DCMAKE_INSTALL_PREFIX="$werk/qt" >"$werk/configureren.log" ||
    { cat "$werk/configureren.log"; return 1; }
  cmake --build "$werk/gebouwd"
  cmake --install "$werk/gebouwd" --strip >/dev/null
  mkdir -p "$werk/qt/translations"
  cp /usr/share/qt6/translations/qtbase_nl.qm "$werk/qt/translations" # Debian packs it apart
  # Who may replace the DLLs may know what they were made of.
  mkdir "$werk/qt/bron"
  cp "$werk"/qt6-base_*.dsc "$werk/configureren.log" "$werk/qt/bron"
  cp -r "$werk/bron/LICENSES" "$werk/bron/debian/copyright" "$werk/qt/bron"
  mv -T "$werk/qt" "$doel"
}

installeer bouwen scherm windows
versie=$(dpkg-query --show --showformat='${source:Version}' qt6-base-dev)
# shellcheck disable=SC2016 # dpkg's own placeholders
gereedschap=$(dpkg-query --show --showformat='${Package} ${Version}\n' g++-mingw-w64-x86-64-posix \
  mingw-w64-x86-64-dev)
sleutel=$({ printf '%s\n' "$versie" "$gereedschap" "${vlaggen[@]}"
  cat cmake/mingw.cmake "$hier/qt_na_project.cmake"; } | sha256sum | cut -c 1-12)
kast=${LAUWERKRANS_QT_MAP:-${XDG_CACHE_HOME:-$HOME/.cache}/lauwerkrans-qt}
doel=$kast/qt-${versie//[^0-9A-Za-z.]/_}-$sleutel
[[ -d $doel ]] || bouw
printf '%s\n' "$doel" >&3
