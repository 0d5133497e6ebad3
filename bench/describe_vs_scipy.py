#!/usr/bin/env python3
"""Times `kornum describe` as a whole process against NumPy's loadtxt followed by SciPy's
describe, and against GNU datamash computing the statistics it shares with ours, on the
same files; prints the best wall time of several runs, the ratios, and the peak resident
memory of each (from /usr/bin/time).

Usage: describe_vs_scipy.py KORNUM_BINARY [COUNT] [RUNS] [--large]

Data sets: COUNT numbers of 17 significant digits (Python's repr of gauss(1000, 7)),
COUNT numbers with 2 decimals, and a 3-column CSV with a header read with --field 2;
with --large also ten times COUNT numbers of 17 digits (kornum alone).
"""
import os
import random
import shutil
import subprocess
import sys
import tempfile
import time

PYTHON = "/usr/bin/python3"  # Debian's interpreter, which has NumPy and SciPy
SCIPY_JOB = (
    "import sys, numpy, scipy.stats\n"
    "kw = dict(delimiter=',', skiprows=1, usecols=1) if sys.argv[1].endswith('.csv') else {}\n"
    "x = numpy.loadtxt(sys.argv[1], **kw)\n"
    "print(scipy.stats.describe(x))\n"
)
# The statistics datamash shares with the report.
DATAMASH_OPS = ["count", "min", "max", "sum", "mean", "mode", "median", "svar", "sstdev",
                "skurt", "sskew", "q1", "q3", "iqr"]


def measure(command, stdin_path, runs):
    """Best wall time and the peak resident memory (MiB) of its run."""
    best, peak = float("inf"), 0.0
    for _ in range(runs):
        with open(stdin_path) if stdin_path else open(os.devnull) as source:
            start = time.perf_counter()
            result = subprocess.run(["/usr/bin/time", "-f", "%M"] + command, stdin=source,
                                    stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, check=True, text=True)
            elapsed = time.perf_counter() - start
        if elapsed < best:
            best = elapsed
            peak = int(result.stderr.strip().splitlines()[-1]) / 1024
    return best, peak


def write_numbers(path, count, text):
    generator = random.Random(20261122)
    with open(path, "w") as out:
        for _ in range(count):
            out.write(text(generator.gauss(1000.0, 7.0)) + "\n")


def write_csv(path, count):
    generator = random.Random(20261123)
    with open(path, "w") as out:
        out.write("id,flow,note\n")
        for i in range(count):
            out.write(f"{i},{generator.gauss(1000.0, 7.0)!r},{generator.randrange(100)}\n")


def compare(name, kornum, path, runs, csv=False):
    ours_args = ["describe", "--header", "--delimiter", ",", "--field", "2", path] if csv else ["describe", path]
    datamash = ["datamash", "-t", ",", "--header-in"] if csv else ["datamash", "-W"]
    column = "2" if csv else "1"
    datamash += [part for op in DATAMASH_OPS for part in (op, column)]
    ours, ours_peak = measure([kornum] + ours_args, None, runs)
    print(f"{name}")
    print(f"  kornum describe:              {ours:7.3f} s  {ours_peak:7.1f} MiB")
    peers = [("numpy loadtxt + scipy describe", [PYTHON, "-c", SCIPY_JOB, path], None)]
    if shutil.which("datamash"):
        peers.append(("datamash", datamash, path))
    for label, command, stdin_path in peers:
        theirs, theirs_peak = measure(command, stdin_path, runs)
        print(f"  {label + ':':30s}{theirs:7.3f} s  {theirs_peak:7.1f} MiB   kornum {theirs / ours:5.2f}x faster")


def main():
    arguments = [a for a in sys.argv[1:] if not a.startswith("--")]
    large = "--large" in sys.argv
    kornum = os.path.abspath(arguments[0])
    count = int(arguments[1]) if len(arguments) > 1 else 1_000_000
    runs = int(arguments[2]) if len(arguments) > 2 else 5
    print(f"best of {runs} runs, whole process, wall time and peak resident memory")
    with tempfile.TemporaryDirectory() as directory:
        digits17 = os.path.join(directory, "digits17.txt")
        write_numbers(digits17, count, repr)
        compare(f"{count} numbers of 17 significant digits", kornum, digits17, runs)
        decimals2 = os.path.join(directory, "decimals2.txt")
        write_numbers(decimals2, count, lambda x: f"{x:.2f}")
        compare(f"{count} numbers with 2 decimals", kornum, decimals2, runs)
        csv = os.path.join(directory, "three-columns.csv")
        write_csv(csv, count)
        compare(f"{count} rows of a 3-column CSV, field 2", kornum, csv, runs, csv=True)
        if large:
            big = os.path.join(directory, "digits17-large.txt")
            write_numbers(big, 10 * count, repr)
            seconds, peak = measure([kornum, "describe", big], None, runs)
            print(f"{10 * count} numbers of 17 significant digits")
            print(f"  kornum describe:              {seconds:7.3f} s  {peak:7.1f} MiB")


if __name__ == "__main__":
    main()
