#!/usr/bin/env python3
"""Times kornum.dask.describe (exact) against Dask's own describe of a dataframe column
(approximate percentiles) on one local cluster, on two workers and on one, and the
single-process kornum program on the same values as text.

Usage: dask_describe.py [COUNT] [SHARDS] [--program KORNUM_BINARY] [--dir DIRECTORY]

COUNT (default 10^8) normal values in SHARDS (default 16) Parquet files of one column
"x"; each figure is the best wall time of two runs. Run by hand, not by the tests.
"""
import argparse
import os
import subprocess
import tempfile
import time

import numpy as np


def write_shards(directory, count, shards):
    rng = np.random.default_rng(2026)
    import pyarrow as pa
    import pyarrow.parquet as pq

    paths = []
    for i, size in enumerate(np.diff(np.linspace(0, count, shards + 1).astype(np.int64))):
        path = os.path.join(directory, f"shard{i:03d}.parquet")
        if not os.path.exists(path):
            pq.write_table(pa.table({"x": rng.normal(1000, 7, int(size))}), path)
        paths.append(path)
    return paths


def best(job, runs=2):
    times = []
    for _ in range(runs):
        start = time.perf_counter()
        result = job()
        times.append(time.perf_counter() - start)
    return min(times), result


def on_cluster(workers, paths):
    import dask.dataframe as dd
    import distributed

    import kornum.dask

    with distributed.LocalCluster(n_workers=workers, threads_per_worker=1, processes=True,
                                  dashboard_address=None, silence_logs=40) as cluster, distributed.Client(cluster):
        exact, report = best(lambda: kornum.dask.describe(paths, column="x"))
        no_mode, _ = best(lambda: kornum.dask.describe(paths, column="x", mode=False))
        approximate, _ = best(lambda: dd.read_parquet(paths, columns=["x"])["x"].describe().compute())
    return exact, no_mode, approximate, report


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("count", nargs="?", type=float, default=1e8)
    parser.add_argument("shards", nargs="?", type=int, default=16)
    parser.add_argument("--program", help="the kornum program, timed on the values as text")
    parser.add_argument("--dir", help="where the shards are kept (default: a temporary folder)")
    args = parser.parse_args()
    count = int(args.count)
    with tempfile.TemporaryDirectory() as scratch:
        directory = args.dir or scratch
        os.makedirs(directory, exist_ok=True)
        paths = write_shards(directory, count, args.shards)
        two_exact, two_no_mode, two_dask, report = on_cluster(2, paths)
        one_exact, one_no_mode, one_dask, _ = on_cluster(1, paths)
        print(f"{count:.0e} values in {args.shards} Parquet shards")
        print(f"kornum.dask.describe, 2 workers: {two_exact:8.2f} s")
        print(f"dask describe(),      2 workers: {two_dask:8.2f} s   (kornum / dask: {two_exact / two_dask:.2f})")
        print(f"kornum.dask.describe, 1 worker:  {one_exact:8.2f} s   (1 / 2 workers: {one_exact / two_exact:.2f})")
        print(f"dask describe(),      1 worker:  {one_dask:8.2f} s")
        print(f"kornum.dask.describe(mode=False), 2 workers: {two_no_mode:8.2f} s   "
              f"(kornum / dask: {two_no_mode / two_dask:.2f}), 1 worker: {one_no_mode:8.2f} s "
              f"(1 / 2 workers: {one_no_mode / two_no_mode:.2f})")
        if args.program:
            import pyarrow.parquet as pq

            text = os.path.join(directory, "values.txt")
            if not os.path.exists(text):
                with open(text, "w") as out:
                    for path in paths:
                        np.savetxt(out, pq.read_table(path).column(0).to_numpy(), fmt="%.17g")
            single, _ = best(lambda: subprocess.run([args.program, "describe", text], check=True,
                                                    capture_output=True))
            print(f"kornum describe, one process (text): {single:8.2f} s")
        print(report.report(None), end="")


if __name__ == "__main__":
    main()
