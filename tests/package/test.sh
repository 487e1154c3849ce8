#!/usr/bin/env bash
# What somebody else's project meets: installs the build, moves the tree, and builds and runs a program against it by
# find_package and by pkg-config, with g++ and with clang, and one that has the sources as a subproject (with
# AMORTIX2_ALL=1 that is built, else configured alone).
#
#   test.sh SOURCE BUILD WORK
set -euo pipefail
source=$1 build=$2 work=$3
here=$(dirname "$(readlink -f "$0")")
rm -rf "$work"
mkdir -p "$work"

cmake --install "$build" --prefix "$work/first" >/dev/null
mv "$work/first" "$work/prefix"
expected=$("$work/prefix/bin/amortix2" call Calculator.SimpleLoanCalculator vPurchaseAmt=200000 vPeriod=360 vIntRate=6.5 --json)

# run PROGRAM: its payment is the command line's.
check() {
  local said
  said=$("$@")
  case "$expected" in
    *"\"vResPayment\":$said,"*) echo "$1: $said" ;;
    *) echo "$1 says $said, the command line another payment" >&2; return 1 ;;
  esac
}

for compiler in g++ clang++; do
  cmake -S "$here/consumer" -B "$work/$compiler" -G Ninja -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_PREFIX_PATH="$work/prefix" --log-level=WARNING
  cmake --build "$work/$compiler" >/dev/null
  check "$work/$compiler/consumer_amortix2"
  check "$work/$compiler/consumer_static"

  export PKG_CONFIG_PATH="$work/prefix/lib/pkgconfig"
  "$compiler" -std=c++20 "$here/consumer/main.cpp" -o "$work/by_pkg_config" $(pkg-config --cflags --libs amortix2)
  LD_LIBRARY_PATH="$work/prefix/lib" check "$work/by_pkg_config"
done

cmake -S "$here/consumer" -B "$work/subproject" -G Ninja -DCMAKE_BUILD_TYPE=Quick -DAMORTIX2_SOURCE="$source" \
  --log-level=WARNING
if [ "${AMORTIX2_ALL:-}" = 1 ]; then
  cmake --build "$work/subproject" >/dev/null
  check "$work/subproject/consumer_amortix2"
fi
if ninja -C "$work/subproject" -t targets all | grep -qE 'amortix2/(component|json|hosts/cli|hosts/com|tests)/'; then
  echo "A subproject builds more than the library." >&2
  exit 1
fi
