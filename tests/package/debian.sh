#!/usr/bin/env bash
# The Debian packages in a fresh system: lintian finds no error, they install, the program and a program built against
# the library answer, and removed they leave nothing. As root; takes minutes, so that it is run on demand
# (`./dev test --all`).
#
#   debian.sh BUILD WORK
set -euo pipefail
build=$1 work=$2
here=$(dirname "$(readlink -f "$0")")
mkdir -p "$work"
(cd "$build" && cpack -G DEB -B "$work/packages" >/dev/null)
lintian --allow-root --fail-on error "$work"/packages/*.deb

root=$work/root
[ -d "$root/usr" ] || debootstrap --variant=minbase --include=g++,pkg-config bookworm "$root" "${DEBIAN_MIRROR:-$(
  sed -nE 's/^(deb .*|URIs: )(https?:[^ ]*).*/\2/p' /etc/apt/sources.list /etc/apt/sources.list.d/* 2>/dev/null | head -1)}" >/dev/null
cp "$work"/packages/*.deb "$here/consumer/main.cpp" "$root/root/"
inside() { chroot "$root" /usr/bin/env LC_ALL=C "$@"; }

inside sh -c 'dpkg -i /root/*.deb >/dev/null'
inside amortix2 call Calculator.SimpleLoanCalculator vPurchaseAmt=200000 vPeriod=360 vIntRate=6.5 | grep -m1 1264.14
inside sh -c 'g++ -std=c++20 /root/main.cpp -o /root/consumer $(pkg-config --cflags --libs amortix2) && /root/consumer' |
  grep -x 1264.14
inside dpkg --purge amortix2 libamortix2-dev libamortix2-1 >/dev/null
if inside find /usr -iname '*amortix2*' | grep .; then
  echo "Something stays after the packages were removed." >&2
  exit 1
fi
