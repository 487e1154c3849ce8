#!/usr/bin/env bash
# With AMORTIX2_ALL=1 runs nginx as the guide configures it, but for ports and files, before the page server: 10,000
# requests over TLS.
#
#   nginx_test.sh PROGRAM GUIDE FOLDER
set -euo pipefail
[ "${AMORTIX2_ALL:-}" = 1 ] || exit 77
rm -rf "$3"
mkdir -p "$3/log"
cd "$3"
cleanup() { kill "${pids[@]}" 2>/dev/null || true; }
pids=()
trap cleanup EXIT

openssl req -x509 -newkey rsa:2048 -nodes -days 1 -subj /CN=localhost -keyout key.pem -out certificate.pem 2>/dev/null
"$1" serve --listen 127.0.0.1:18080 >address &
pids+=($!)
{
  echo "daemon off; pid nginx.pid; events {} http {"
  sed -n '/^```nginx$/,/^```$/{/^```/!p}' "$2" | sed "s|/etc/ssl/certs/.*;|$PWD/certificate.pem;|
    s|/etc/ssl/private/.*;|$PWD/key.pem;|; s|/var/log/nginx|$PWD/log|; s|127.0.0.1:8080|127.0.0.1:18080|
    s|listen 443|listen 127.0.0.1:18443|; s|listen 80;|listen 127.0.0.1:18081;|; s|money.example.com|localhost|"
  echo "}"
} >nginx.conf
nginx -p "$PWD" -c "$PWD/nginx.conf" 2>/dev/null &
pids+=($!)
site=https://127.0.0.1:18443
for _ in {1..100}; do curl -fsko page "$site/loan" 2>/dev/null && break; sleep 0.1; done

status=0
expect() { grep -q -- "$1" "$2" || { echo "no \"$1\" in:" >&2; cat "$2" >&2; status=1; }; }
for protocol in http/1.1 h2; do
  h2load -n 5000 -c 16 -m 4 --npn-list="$protocol" "$site/" "$site/loan" "$site/refinance" >load 2>&1
  expect "5000 succeeded, 0 failed, 0 errored" load
  expect "5000 2xx" load
done
curl -sk --compressed -o page -D header "$site/loan?secret=1"
expect "^HTTP/2 200" header
expect "^content-encoding: gzip" header
expect "^strict-transport-security:" header
expect "^content-security-policy:" header
curl -sko page -w '%{http_code}\n' "$site/loan?$(head -c 9000 /dev/zero | tr '\0' x)" >code
expect 414 code
cmp <(curl -sk "$site/loan") <(curl -s http://127.0.0.1:18080/loan) || status=1
grep -r secret log && status=1
exit "$status"
