#!/usr/bin/env python3
"""Times each step of kornum.dask.describe on one core, per million values, as the
estimate of the "Sharded data" page uses them.

Usage: sharded_steps.py [COUNT]

COUNT (default 10^7) normal values (mean 1000, sd 7) as float64, as a Parquet file reads
them; each figure is the best of three runs, in milliseconds per 10^6 values. Run by
hand, not by the tests.
"""
import os
import sys
import tempfile

import functools

import dask_describe  # this folder's
import numpy as np

from kornum import _kornum

best = functools.partial(dask_describe.best, runs=3)


def main():
    count = int(float(sys.argv[1])) if len(sys.argv) > 1 else 10**7
    import pyarrow as pa
    import pyarrow.parquet as pq

    values = np.random.default_rng(2026).normal(1000, 7, count)
    def show(step, seconds, values_timed=count):
        print(f"{step:66s} {seconds * 1e9 / values_timed:7.1f} ms")

    with tempfile.TemporaryDirectory() as scratch:
        path = os.path.join(scratch, "values.parquet")
        pq.write_table(pa.table({"x": values}), path)
        seconds, _ = best(lambda: pq.read_table(path, columns=["x"]).column(0).to_numpy())
        show("Parquet read (page cache), float64", seconds)
    floats = values.astype(np.longdouble)
    show("conversion to long double (not done for float64)", best(lambda: values.astype(np.longdouble))[0])
    show("summary and first histograms (summary_and_first_counts)",
         best(lambda: _kornum.summary_and_first_counts(values))[0])
    show("  the same on long doubles", best(lambda: _kornum.summary_and_first_counts(floats))[0])
    n = count
    selection = _kornum.RankSelection(n, _kornum.report_ranks(n), 1 << 18)
    first_counts = _kornum.summary_and_first_counts(values)[1]
    selection.narrow_with(first_counts)  # the top histogram's round
    requests = selection.requests()
    show(f"prefix histogram, {len(requests)} requests (prefix_counts; answered by the first pass here)",
         best(lambda: _kornum.prefix_counts(values, requests))[0])
    while not selection.gathering():
        if not selection.narrow_with(first_counts):
            selection.narrow(_kornum.prefix_counts(values, selection.requests()))
    prefixes = selection.gather_prefixes()
    show(f"gathering under {len(prefixes)} prefixes (collect_prefix)",
         best(lambda: _kornum.collect_prefix(values, prefixes))[0])
    parts = 16
    seconds, split = best(lambda: _kornum.split_cells(values, parts))
    show(f"mode: cells dealt to {parts} parts (split_cells)", seconds)
    seconds, busy = best(lambda: [_kornum.busy_cells([piece]) for piece in split])
    show(f"mode: sort of a part's cells, busy cells (busy_cells, {n // parts} a part)", seconds)
    cells = np.concatenate([b[0] for b in busy])
    seconds, found = best(lambda: _kornum.mode_candidates(values, cells))
    show(f"mode: values of busy cells (mode_candidates; {len(found)} found)", seconds)
    show("mode, when many: run summary of a range (run_summary)", best(lambda: _kornum.run_summary(floats))[0])


if __name__ == "__main__":
    main()
