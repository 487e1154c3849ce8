#!/usr/bin/env bash
# The portfolio's examples: many processes, one of which is killed at work, give the same bytes as one.
#
#   portfolio_test.sh PROGRAM LOANS
#
# Needs Debian's python3-distributed and parallel.
set -euo pipefail
program=$(realpath "$1")
loans=$2
examples=$(realpath "$(dirname "$0")/../../examples/portfolio")
folder=$(mktemp -d)
started=()
finish() {
  for process in "${started[@]}"; do kill -KILL "$process" 2>/dev/null || true; done
  rm -rf "$folder"
}
trap finish EXIT
cd "$folder"

# At least forty blocks, so that a worker can be killed with most of them to do.
awk -v count="$loans" -v months=360 -v bad=1000 -f "$examples/loans.awk" >loans.csv
block=$(($(stat -c %s loans.csv) / 40))
status=0
"$program" rows fixed --sum vDetArray --by month <loans.csv >one.csv 2>one.txt || status=$?
[ "$status" -gt 10 ]

AMORTIX2=$program "$examples/cash_flow.sh" loans.csv --block "$block" >parallel.csv 2>parallel.txt
cmp one.csv parallel.csv

dask() { /usr/bin/python3 -m "distributed.cli.dask_$1" "${@:2}" >>"$1.log" 2>&1 & }
dask scheduler --host 127.0.0.1 --port 0 --no-dashboard --scheduler-file scheduler.json
started+=($!)
until [ -s scheduler.json ]; do sleep 0.1; done
address=$(/usr/bin/python3 -c 'import json; print(json.load(open("scheduler.json"))["address"])')
for _ in 1 2; do
  dask worker "$address" --nthreads 1 --no-nanny --no-dashboard --local-directory "$folder"
  started+=($!)
done
for _ in $(seq 600); do
  [ "$(grep -c 'Register worker' scheduler.log)" -ge 2 ] && break
  sleep 0.1
done

/usr/bin/python3 "$examples/cash_flow.py" "$address" loans.csv --amortix2 "$program" --block "$block" \
  >dask.csv 2>dask.txt &
sums=$!
started+=("$sums")
until grep -q '^4 of' dask.txt; do kill -0 "$sums"; sleep 0.01; done
kill -KILL "${started[1]}"
echo "killed a worker after $(grep -c blocks dask.txt) blocks: $(tail -n 1 dask.txt)"
status=0
wait "$sums" || status=$?
[ "$status" = 1 ] # a row in a thousand fails
grep -q 'Remove worker' scheduler.log
cmp one.csv dask.csv
grep -qx "$((loans / 1000)) rows failed" dask.txt
echo "the same $(stat -c %s dask.csv) bytes from $loans loans"
