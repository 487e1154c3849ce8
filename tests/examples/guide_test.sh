#!/usr/bin/env bash
# Runs the program made of a guide's code; its output must be what the guide shows, its chart a GIF.
set -euo pipefail
guide=$1
program=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
diff <(awk '/^```text$/ { inside = 1; next } /^```$/ { inside = 0 } inside' "$guide") <("$program")
[ "$(head -c 10 balance.gif | od -An -tx1 | tr -d ' ')" = 4749463837617c012c01 ] # GIF87a, 380 by 300
