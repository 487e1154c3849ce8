#!/usr/bin/env bash
# Loans of 360 months per second on one core, in one run: `rows` next to `batch`, to a loop in NumPy and to QuantLib,
# and how batch's "only" compares. Processor time counts, so that other work on the machine matters little.
#
#   portfolio.sh PROGRAM FOLDER
#
# Needs Debian's python3-numpy and libquantlib0-dev, and builds the QuantLib program in the folder.
set -euo pipefail
here=$(realpath "$(dirname "$0")")
program=$(realpath "$1")
mkdir -p "$2"
cd "$2"
g++ -O2 -std=c++17 -o quantlib "$here/portfolio_quantlib.cpp" -lQuantLib
make_loans() { awk -v count="$1" -v months=360 -f "$here/../examples/portfolio/loans.awk"; }
make_requests() {
  make_loans "$1" | awk -F, -v only="$2" 'NR > 1 { printf "{\"call\":\"Calculator.FixedPayment\",\"args\":{\"vPurchaseAmt\":%s,\"vPeriod\":%s,\"vIntRate\":%s,\"vPayDate\":\"%s\"}%s}\n", $2, $3, $4, $5, only }'
}

# measure NAME LOANS INPUT COMMAND...: microseconds and loans per second of the best of three.
measure() {
  local name=$1 loans=$2 input=$3 best=1000000 seconds
  shift 3
  for _ in 1 2 3; do
    TIMEFORMAT='%U %S'
    seconds=$( { time taskset -c 0 "$@" <"$input" >output; } 2>&1 | awk '{ print $1 + $2 }')
    best=$(awk -v a="$best" -v b="$seconds" 'BEGIN { print a < b ? a : b }')
  done
  awk -v name="$name" -v loans="$loans" -v seconds="$best" -v bytes="$(stat -c %s output)" 'BEGIN {
    printf "%-34s %8.2f us a loan %9.0f loans a second %9.1f bytes a loan\n", name, seconds / loans * 1e6, loans / seconds, bytes / loans }'
}

make_loans 200000 >loans.csv
make_loans 20000 >some.csv
make_loans 2000 >few.csv
make_requests 5000 '' >all.txt
make_requests 50000 ',"only":["vResPayment","vTotInt"]' >only.txt
measure "rows --only vResPayment,vTotInt" 200000 loans.csv "$program" rows fixed --only vResPayment,vTotInt
measure "rows --sum vDetArray" 200000 loans.csv "$program" rows fixed --sum vDetArray --by month
measure "batch" 5000 all.txt "$program" batch
measure "batch with only" 50000 only.txt "$program" batch
measure "NumPy, sums by month" 20000 some.csv /usr/bin/python3 "$here/portfolio_numpy.py"
measure "QuantLib, sums by month" 2000 few.csv ./quantlib
