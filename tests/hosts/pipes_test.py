#!/usr/bin/python3
"""amortix2 batch between pipes: a reply comes as soon as no complete line waits, and a pipe that does not block is
waited for.

  pipes_test.py PROGRAM
"""
import os, subprocess, sys, time

LOAN = b'"call":"Calculator.SimpleLoanCalculator","args":{"vPurchaseAmt":200000,"vPeriod":360,"vIntRate":6.5}}'
BATCH = [sys.argv[1], "batch"]


def reply_at_once():
    batch = subprocess.Popen(BATCH, stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, bufsize=0)
    batch.stdin.write(b'{}\n[]\n{"id"')
    assert b"BadRequest" in batch.stdout.readline() and b"BadRequest" in batch.stdout.readline()
    batch.stdin.write(b":1," + LOAN + b"\n")
    assert batch.stdout.readline().startswith(b'{"id":1,"results"')
    batch.stdin.write(b'{"id":2,' + LOAN)  # the last line needs no end
    batch.stdin.close()
    assert batch.stdout.readline().startswith(b'{"id":2,"results"')
    assert batch.stdout.read() == b"" and batch.wait() == 0


def wait_for_a_full_pipe():
    requests = (b"{" + LOAN + b"\n") * 200
    ends = os.pipe()
    os.set_blocking(ends[1], False)
    batch = subprocess.Popen(BATCH, stdin=subprocess.PIPE, stdout=ends[1])
    os.close(ends[1])
    batch.stdin.write(requests)
    batch.stdin.close()
    time.sleep(0.1)  # until the pipe is full
    with open(ends[0], "rb") as out:
        assert out.read() == subprocess.run(BATCH, input=requests, stdout=subprocess.PIPE).stdout
    assert batch.wait() == 0


reply_at_once()
wait_for_a_full_pipe()
