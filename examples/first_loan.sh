#!/usr/bin/env bash
# What does a house of 200000 cost a month? Asks the command line, and shows where to go on from there.
set -euo pipefail
amortix2=$1
question=(call loan vPurchaseAmt=200000 vPeriod=360 vIntRate=6.5)

echo
echo "$ amortix2 ${question[*]}"
"$amortix2" "${question[@]}" >/tmp/first_loan.$$
head -n 14 /tmp/first_loan.$$
echo "  ..."
tail -n 2 /tmp/first_loan.$$
rm -f /tmp/first_loan.$$
cat <<TEXT

Try next:
  $amortix2 list                   what there is
  $amortix2 call refinance --help  what a method takes
  $amortix2 call loan vPurchaseAmt=200000 vPayment=1500 vIntRate=6.5

To see all calculators in a browser:
  $amortix2 serve                  then open http://127.0.0.1:8080/
TEXT
