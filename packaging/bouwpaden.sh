# shellcheck shell=bash
# What a package must not tell: where on the building machine it was made. Sourced; does nothing by
# itself.

# bouwpad_patroon PATH NEXT: a pattern for PATH as a whole name, with slashes of either kind, in single
# bytes (UTF-8) and in UTF-16; NEXT is a pattern of what may follow it. Nothing for the root, which is
# no place of its own.
bouwpad_patroon() {
  local codering nul bytes
  [[ $1 != / ]] || return 0
  for codering in UTF-8 UTF-16LE; do
    nul=''
    [[ $codering == UTF-8 ]] || nul='\x00'
    bytes=$(printf '%s' "$1" | iconv -f UTF-8 -t "$codering" | od -An -v -tx1 | tr -d ' \n' |
      sed -E 's/../\\x&/g; s/\\x2f/[\\x2f\\x5c]/g')
    printf '|(?<![\\w./-]%s)%s%s' "$nul" "$bytes" "$2"
  done
}

# zonder_bouwpaden FOLDER...: fails, and says what is where, when a file below the folders names the
# checkout (the current folder), the user's folder, the folder that Qt for Windows is kept in, or
# something in the folder for temporary files.
zonder_bouwpaden() {
  local patroon pad vondst
  patroon=$(
    for pad in "$PWD" "${HOME:-/}" "${XDG_CACHE_HOME:-/}" "${LAUWERKRANS_QT_MAP:-/}"; do
      bouwpad_patroon "$(realpath -m "$pad")" '(?![\w.-])'
    done
    for pad in /tmp "${TMPDIR:-/tmp}"; do # bare, it is also what a program takes where none is set
      bouwpad_patroon "$(realpath -m "$pad")" '[/\\]'
    done
  )
  vondst=$(LC_ALL=C grep -raoP "(?:${patroon#|})[\\x00\\x20-\\x7e]{0,160}" "$@" | tr -d '\0') ||
    (($? == 1)) || return 1 # 1: nothing found
  [[ -z $vondst ]] || printf 'Een pad van deze machine:\n%s\n' "$vondst" >&2
  [[ -z $vondst ]]
}
