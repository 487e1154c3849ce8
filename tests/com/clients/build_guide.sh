#!/bin/bash
# Builds the C++ program of the COM guide by the commands that stand in it: build_guide.sh GUIDE PREFIX BITS PROGRAM
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
ln -s "$(dirname "$1")/../hosts" "$folder/hosts"
cd "$folder"
awk '/^```cpp$/ { inside = 1; next } /^```$/ { inside = 0 } inside' "$1" >loan.cpp
grep '^    x86_64-w64-mingw32-' "$1" | sed "s/x86_64-w64-mingw32/$2/; s/--win64/--win$3/" >commands
[ "$(wc -l <commands)" = 2 ]
sh -e commands
cp loan.exe "$4"
