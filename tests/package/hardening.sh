#!/usr/bin/env bash
# What the compiler and the linker offer against a fault that becomes an attack is in each of these files, as far as
# their format has it.
#
#   hardening.sh PROGRAM LIBRARY [DLL ...]
set -euo pipefail

missing=0
expect() {
  local file=$1 what=$2 pattern=$3
  shift 3
  if ! grep -qE "$pattern" <("$@" "$file"); then
    echo "$file: no $what" >&2
    missing=1
  fi
}

expect "$1" "position-independent code" 'Type: +DYN' readelf -hW
expect "$1" "checked library functions" __snprintf_chk readelf -sW
for file in "$1" "$2"; do
  expect "$file" "read-only relocations" GNU_RELRO readelf -lW
  expect "$file" "binding at the start" BIND_NOW readelf -dW
  expect "$file" "stack without code" 'GNU_STACK.* RW ' readelf -lW
  expect "$file" "stack protector" __stack_chk_fail readelf -sW
  expect "$file" "landing pads of indirect branches" endbr64 objdump -d --no-show-raw-insn
done
for file in "${@:3}"; do
  expect "$file" "loading at any address" DYNAMIC_BASE x86_64-w64-mingw32-objdump -p
  expect "$file" "data without code" NX_COMPAT x86_64-w64-mingw32-objdump -p
done
exit $missing
