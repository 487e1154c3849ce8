#!/usr/bin/python3
"""A portfolio's cash flow by month as one would write it by hand: a loop over the months, each step on all loans of a
block at once, amounts rounded to cents. Reads and writes what `amortix2 rows --sum` does; run by portfolio.sh alone.
"""

import sys

import numpy as np

BLOCK = 10_000
LAST = 12 * 2200


def cents(amounts):
    return np.floor(amounts * 100 + 0.5) / 100


def add(sums, lines):
    columns = [line.split(",") for line in lines]
    balance = np.array([float(c[1]) for c in columns])
    term = np.array([int(c[2]) for c in columns])
    growth = np.array([float(c[3]) for c in columns]) / 1200
    first = np.array([int(c[4][:4]) * 12 + int(c[4][5:7]) - 1 for c in columns])
    payment = cents(balance * growth / (1 - (1 + growth) ** -term))
    start = first.min() - 1
    width = int((first + term).max()) - start

    def book(row, months, amounts):
        sums[row, start : start + width] += np.bincount(months - start, amounts, width)

    book(3, first - 1, balance)
    for k in range(int(term.max())):
        interest = cents(balance * growth)
        paid = np.where(k + 1 < term, np.minimum(payment, balance + interest), balance + interest)
        principal = paid - interest
        balance = cents(balance - principal)
        months = first + np.minimum(k, term - 1)
        book(0, months, paid)
        book(1, months, principal)
        book(2, months, interest)
        book(3, months, balance)


def main():
    sums = np.zeros((4, LAST))
    sys.stdin.readline()
    while lines := sys.stdin.readlines(BLOCK * 35):
        add(sums, lines)
    print("month,payments,principal,interest,balance", end="\r\n")
    used = np.flatnonzero(sums.any(axis=0))
    for month in range(used[0], used[-1] + 1):
        amounts = ",".join(f"{amount:.2f}" for amount in sums[:, month])
        print(f"{month // 12:04d}-{month % 12 + 1:02d},{amounts}", end="\r\n")


if __name__ == "__main__":
    main()
