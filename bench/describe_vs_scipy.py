#!/usr/bin/env python3
"""Times `kornum describe` against NumPy's loadtxt followed by SciPy's describe on the
same file of numbers, each as a whole process, and prints the ratio.

Usage: describe_vs_scipy.py KORNUM_BINARY [COUNT] [RUNS]
"""
import os
import random
import subprocess
import sys
import tempfile
import time

PYTHON = "/usr/bin/python3"  # Debian's interpreter, which has NumPy and SciPy
SCIPY_JOB = (
    "import sys, numpy, scipy.stats\n"
    "x = numpy.loadtxt(sys.argv[1])\n"
    "print(scipy.stats.describe(x))\n"
)


def best_time(command, runs):
    best = float("inf")
    for _ in range(runs):
        start = time.perf_counter()
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
        best = min(best, time.perf_counter() - start)
    return best


def main():
    binary = sys.argv[1]
    count = int(sys.argv[2]) if len(sys.argv) > 2 else 1_000_000
    runs = int(sys.argv[3]) if len(sys.argv) > 3 else 5
    generator = random.Random(20261121)
    with tempfile.TemporaryDirectory() as directory:
        path = os.path.join(directory, "numbers.txt")
        with open(path, "w") as out:
            for _ in range(count):
                out.write(f"{generator.gauss(100.0, 15.0):.6f}\n")
        ours = best_time([binary, "describe", path], runs)
        peer = best_time([PYTHON, "-c", SCIPY_JOB, path], runs)
    print(f"values: {count}, best of {runs} runs")
    print(f"kornum describe:            {ours:8.3f} s")
    print(f"numpy loadtxt + describe:   {peer:8.3f} s")
    print(f"speed-up (peer / kornum):   {peer / ours:8.2f}x")


if __name__ == "__main__":
    main()
