#!/usr/bin/env bash
# What the compiler and the linker offer against a fault that becomes an attack is in each of these files.
#
#   hardening.sh PROGRAM LIBRARY
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

for file in "$@"; do
  expect "$file" "read-only relocations" GNU_RELRO readelf -lW
  expect "$file" "binding at the start" BIND_NOW readelf -dW
  expect "$file" "stack without code" 'GNU_STACK.* RW ' readelf -lW
  expect "$file" "stack protector" __stack_chk_fail readelf -sW
  expect "$file" "landing pads of indirect branches" endbr64 objdump -d --no-show-raw-insn
done
expect "$1" "position-independent code" 'DYN.*Position-Independent|Type: +DYN' readelf -hW
expect "$1" "checked library functions" __snprintf_chk readelf -sW
exit $missing
