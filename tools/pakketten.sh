# shellcheck shell=bash
# The Debian 12 packages that this project needs, in one place, and what the scripts do alike:
# installing what is missing, and configuring a preset. Sourced by run.sh, test.sh and .ci/run; it
# does nothing by itself.

# shellcheck disable=SC2034 # the groups are used by name
pakketten_bouwen=(
  g++             # the compiler (12)
  cmake           # the build (3.25)
  ninja-build     # runs the build's commands
  make            # link-time optimisation runs its parts side by side with it
  qt6-base-dev    # the windows (6.4); brings the libraries and the plugin for X11 with it
  libgtest-dev    # the tests (GoogleTest)
  libbenchmark-dev # the benchmarks (Google Benchmark)
  cmark-gfm       # makes the pages of the manual of its Markdown, with tables
)

# shellcheck disable=SC2034
pakketten_scherm=(
  fonts-liberation # the letters of the windows: metric substitutes of the usual Windows fonts
  qt6-translations-l10n # Qt's own texts in Dutch: buttons, print dialog
)

# Only for a desktop that has Wayland and nothing else.
# shellcheck disable=SC2034
pakketten_wayland=(
  qt6-wayland     # Qt's plugin for Wayland
)

# A screen where there is none: the tour of run.sh, and tests that need a window manager.
# shellcheck disable=SC2034
pakketten_beelden=(
  xvfb            # an X server without hardware
  openbox         # a window manager, for maximising and for the outer size of a window
)

# The pictures of the manual, made anew by its writer.
# shellcheck disable=SC2034
pakketten_handleiding=(
  imagemagick     # makes the pictures smaller
)

# What the tests look at the program's files with.
# shellcheck disable=SC2034
pakketten_toetsen=(
  poppler-utils   # reads the printed pages back: texts and their places
  strace          # says which files the program touches
)

# What hears the program as a screen reader does (tools/toegankelijkheid.sh).
# shellcheck disable=SC2034
pakketten_toegankelijkheid=(
  at-spi2-core    # the bus between programs and screen readers
  dbus-daemon     # a session of its own for it
  python3         # the listener is a Python program
  python3-gi      # speaks for it to the libraries of the desktop
  gir1.2-atspi-2.0 # what it hears with
)

# The fuzzers.
# shellcheck disable=SC2034
pakketten_fuzz=(
  clang-14        # the compiler that makes them
  libclang-rt-14-dev # and what it links into them
)

# Counting what the tests take.
# shellcheck disable=SC2034
pakketten_dekking=(
  gcovr           # adds up the compiler's counts
)

# bench/meet.sh: what a handy club member would use instead, to measure beside. No test needs them.
# shellcheck disable=SC2034
pakketten_meten=(
  mawk            # averages by awk
  sqlite3         # averages by SQL
  python3-pandas  # averages by pandas; with it the Python that makes tables and plot
)

# What .ci/run checks beyond the tests.
# shellcheck disable=SC2034
pakketten_ci=(
  git             # says which files are ours
  clang-14        # the second compiler
  clang-format-14 # the formatter
  clang-tidy-14   # the linter
  shellcheck      # the linter of the scripts
)

# The version for Windows: built here, tried under wine.
# shellcheck disable=SC2034
pakketten_windows=(
  g++-mingw-w64-x86-64-posix # the compiler, with the threads that the standard library needs
  dpkg-dev        # unpacks Debian's sources of Qt
  googletest      # the tests' library as source
  nsis            # makes the installer
  zip             # makes the portable package
  wine            # runs Windows programs
  wine64          # those of 64 bits
  fonts-wine      # the letters of wine's own boxes
)

# What tries the packages for Windows: a screen, a hand and a camera.
# shellcheck disable=SC2034
pakketten_windows_proef=(
  xvfb
  xdotool         # moves the mouse and types
  imagemagick     # takes pictures of the screen
  unzip           # unpacks the ZIPs
)

# The package for Linux: a menu's view of it, and a hand that closes the program.
# shellcheck disable=SC2034
pakketten_linux_proef=(
  xvfb
  openbox
  xdotool
  desktop-file-utils # judges the entry in the menu
  file            # tells what the pictures are
  libglib2.0-bin  # starts the program from it as a desktop does
)

is_geinstalleerd() {
  dpkg-query --show --showformat='${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

# Runs a command as root: directly, or through sudo when that can ask its question.
als_root() {
  if ((EUID == 0)); then
    "$@"
  else
    sudo "$@"
  fi
}

mag_root() {
  ((EUID == 0)) && return 0
  command -v sudo >/dev/null || return 1
  sudo --non-interactive true 2>/dev/null || { [[ -t 0 ]] && sudo --validate; }
}

# installeer GROUP...: installs the missing packages of the groups (bouwen, scherm, ...). Returns 1
# when that cannot be done; what is missing has then been said.
installeer() {
  local groep pakket
  local -a weg=()
  for groep in "$@"; do
    local -n lijst="pakketten_$groep"
    for pakket in "${lijst[@]}"; do
      is_geinstalleerd "$pakket" || weg+=("$pakket")
    done
  done
  ((${#weg[@]})) || return 0
  if ! command -v apt-get >/dev/null || ! mag_root; then
    {
      echo "Deze pakketten ontbreken:"
      printf '  %s\n' "${weg[@]}"
      echo "Installeer ze als beheerder en probeer het opnieuw:"
      echo "  apt-get install ${weg[*]}"
    } >&2
    return 1
  fi
  echo "Ontbrekende pakketten worden geïnstalleerd: ${weg[*]}"
  local -a apt=(env DEBIAN_FRONTEND=noninteractive apt-get --quiet --yes
    -o DPkg::Lock::Timeout=120 -o Dpkg::Use-Pty=0)
  # Without a network an older list may still do.
  als_root "${apt[@]}" update >/dev/null || echo "De pakketlijst is niet bijgewerkt." >&2
  if ! als_root "${apt[@]}" install --no-install-recommends "${weg[@]}"; then
    echo "Het installeren is mislukt. Deze pakketten zijn nodig: ${weg[*]}" >&2
    return 1
  fi
}

# The version of the program, as CMake knows it.
versie_van_programma() { sed -nE 's/^project\(Lauwerkrans VERSION ([0-9.]+) .*/\1/p' CMakeLists.txt; }

# configureer PRESET: also when the checkout has moved, which CMake's cache does not survive.
configureer() {
  local cache=build/$1/CMakeCache.txt
  if [[ -f $cache ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$cache"; then
    cmake --fresh --preset "$1"
  else
    cmake --preset "$1"
  fi
}
