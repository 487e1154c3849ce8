# Makes a portfolio of loans as a table, the same every time:
#
#   awk -v count=400000 -f loans.awk > loans.csv
#
# months=360 gives all loans that term; bad=100 spoils every hundredth row.
function below(limit) {
  seed = seed * 16807 % 2147483647
  return seed % limit
}
BEGIN {
  seed = 20261121
  print "id,vPurchaseAmt,vPeriod,vIntRate,vPayDate"
  for (i = 1; i <= count; ++i) {
    amount = 50000 + 100 * below(9500)
    term = months ? months : 120 + 12 * below(21)
    rate = 2 + below(50) / 8
    first = sprintf("%d-%02d-%02d", 2015 + below(12), 1 + below(12), 1 + below(28))
    printf "L%07d,%d,%d,%.3f,%s\n", i, amount, bad && i % bad == 0 ? 40000 : term, rate, first
  }
}
