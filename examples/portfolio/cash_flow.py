#!/usr/bin/python3
"""A portfolio's cash flow by month, from many machines, with Dask.

    cash_flow.py tcp://SCHEDULER:8786 loans.csv > cash_flow.csv

Cuts the table into blocks of lines, has a worker's amortix2 add each up, and adds the sums. A worker that goes away
loses nothing but time: its blocks are given to others, and the sums are the same bytes. Workers see the file under
the same name; with --send they get their lines instead. No value of the table may break lines.
"""

import argparse
import os
import pathlib
import re
import subprocess
import sys
import tempfile

from distributed import Client, as_completed

ROWS_FAILED = range(11, 111)  # exit statuses: rows have failed, all else is done


def run(command, lines=b""):
    """What the command prints, and how many rows failed."""
    done = subprocess.run(command, input=lines, capture_output=True, check=False)
    errors = done.stderr.decode()
    if done.returncode != 0 and done.returncode not in ROWS_FAILED:
        raise RuntimeError(errors or f"amortix2 ended with {done.returncode}")
    failed = re.search(r"(\d+) of \d+ rows failed\s*$", errors)
    return done.stdout, int(failed[1]) if failed else 0


def blocks(path, size):
    """The table's header, and where its blocks of whole lines begin and end."""
    with open(path, "rb") as table:
        header = table.readline()
        places, start, end = [], table.tell(), os.path.getsize(path)
        while start < end:
            table.seek(min(start + size, end) - 1)
            table.readline()
            places.append((start, table.tell()))
            start = table.tell()
    return header, places


def read(path, start, end):
    with open(path, "rb") as table:
        table.seek(start)
        return table.read(end - start)


def sum_block(command, header, block):
    lines = block if isinstance(block, bytes) else read(*block)
    return run(command, header + lines)


def merge(program, sums):
    with tempfile.TemporaryDirectory() as folder:
        files = []
        for number, (text, _) in enumerate(sums):
            files.append(pathlib.Path(folder) / str(number))
            files[-1].write_bytes(text)
        text, _ = run([program, "rows", "--merge", *map(str, files)])
    return text, sum(failed for _, failed in sums)


def main():
    parser = argparse.ArgumentParser(description=__doc__.partition("\n")[0])
    parser.add_argument("scheduler")
    parser.add_argument("table")
    parser.add_argument("--amortix2", default="amortix2", help="the program, as workers find it")
    parser.add_argument("--method", default="fixed")
    parser.add_argument("--sum", default="vDetArray", help="the schedule to add up")
    parser.add_argument("--block", type=int, default=1 << 20, help="bytes of the table in a block")
    parser.add_argument("--send", action="store_true", help="send lines, where workers do not see the file")
    given = parser.parse_args()

    command = [given.amortix2, "rows", given.method, "--sum", given.sum, "--by", "month"]
    table = os.path.abspath(given.table)
    header, places = blocks(table, given.block)
    with Client(given.scheduler) as client:
        parts = []
        for place in places:
            block = read(table, *place) if given.send else (table, *place)
            parts.append(client.submit(sum_block, command, header, block))
        for count, _ in enumerate(as_completed(parts), 1):
            print(f"{count} of {len(parts)} blocks", file=sys.stderr, flush=True)
        while len(parts) != 1:
            groups = [parts[i : i + 16] for i in range(0, len(parts), 16)] or [[]]
            parts = [client.submit(merge, given.amortix2, group) for group in groups]
        text, failed = parts[0].result()
    sys.stdout.buffer.write(text)
    if failed:
        print(f"{failed} rows failed", file=sys.stderr)
    return min(failed, 1)


if __name__ == "__main__":
    sys.exit(main())
