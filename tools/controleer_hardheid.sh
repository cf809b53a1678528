#!/usr/bin/env bash
# controleer_hardheid.sh PROGRAM [geoptimaliseerd]: whether a built program carries what
# cmake/Hardening.cmake asks for. Says what is missing, and fails then. Checked copies are there only
# with optimisation and without sanitizers: they are looked for when the second word says so.
set -euo pipefail

programma=$1
fouten=0

# eis WHAT PATTERN TEXT
eis() {
  if grep -qE "$2" <<<"$3"; then
    echo "$1: yes"
  else
    echo "$1: NO"
    fouten=$((fouten + 1))
  fi
}

kop=$(readelf --wide --file-header --program-headers "$programma")
dynamisch=$(readelf --wide --dynamic "$programma")
namen=$(readelf --wide --dyn-syms "$programma")

eis 'any address' '^ *Type: +DYN .*Position-Independent Executable' "$kop"
eis 'relocations for reading only' '^ *GNU_RELRO ' "$kop"
eis 'all calls found at the start' '\(FLAGS\).*BIND_NOW|\(BIND_NOW\)' "$dynamisch"
eis 'no stack that runs' '^ *GNU_STACK .* RW +0x' "$kop"
eis 'guards on the stack' ' UND __stack_chk_fail' "$namen"
if [[ ${2:-} == geoptimaliseerd ]]; then
  eis 'checked copies' ' UND __[a-z]+_chk(@|$)' "$namen"
fi
if grep -q 'X86-64' <<<"$kop"; then
  # Half a thousand functions of ours begin with one; the few of the system's start-up have none.
  sprongen=$(objdump --disassemble "$programma" | grep -c '\bendbr64' || true)
  eis 'marks for jumps' '^[0-9]{3,}$' "$sprongen"
fi
((fouten == 0))
