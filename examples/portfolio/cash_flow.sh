#!/usr/bin/env bash
# A portfolio's cash flow by month, on all cores of this machine or of others, with GNU parallel.
#
#   cash_flow.sh loans.csv > cash_flow.csv
#   cash_flow.sh loans.csv --sshlogin one,two,three > cash_flow.csv
#
# No value of the table may break lines. AMORTIX2 names the program.
set -euo pipefail
table=$1
shift
amortix2=${AMORTIX2:-amortix2}
parts=$(mktemp -d)
trap 'rm -rf "$parts"' EXIT
# Where rows fail, the rest is done.
job="$amortix2 rows fixed --sum vDetArray --by month; status=\$?; [ \$status = 0 ] || [ \$status -gt 10 -a \$status -le 110 ]"
failed=0
parallel --will-cite --pipe --block 1M --header : --results "$parts/{#}" "$@" "$job" <"$table" >/dev/null || failed=$?
cat "$parts"/*.err >&2
[ "$failed" = 0 ]
"$amortix2" rows --merge "$parts"/*[0-9]
