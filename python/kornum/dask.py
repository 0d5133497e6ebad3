"""The exact descriptive-statistics report of data spread over a Dask cluster.

:func:`describe` gives the same :class:`kornum.Description` as :func:`kornum.describe`
would for all the values at once, and the same bits whatever the number of chunks, their
order or the workers that ran them: each chunk is summarised exactly (count, extremes and
exact sums of the first four powers), the order statistics are selected by counting key
prefixes over the chunks (two or three passes, no sort of the whole), and only the mode
moves data: the cells of a fine cut of the number line are counted, each range of cells
in one task, and only the values of the busy cells, which can be in a run of equal
neighbours, move on to the runs of each range of keys.
"""

from __future__ import annotations

from typing import Any, Dict, List, Optional, Sequence

import numpy as np

from . import _kornum
from ._description import Description

# Buckets of at most this many values are gathered to the client rather than narrowed.
GATHER_LIMIT = 1 << 16
# The mode takes the runs of the values of busy cells in one task up to this many.
FEW_CANDIDATES = 1 << 22


def _as_floats(chunk: Any) -> np.ndarray:
    return np.ascontiguousarray(np.asarray(chunk, dtype=np.longdouble).ravel())


def _chunks(data: Any, column: Any, reading: Dict[str, Any]) -> List[Any]:
    """The data as a list of Dask delayed objects, one 1-D np.longdouble array each."""
    import dask
    import dask.array as da

    if isinstance(data, da.Array):
        return [dask.delayed(_as_floats)(block) for block in data.to_delayed().ravel()]
    if hasattr(data, "to_delayed") and hasattr(data, "npartitions"):  # a dataframe column
        if getattr(data, "ndim", 1) == 2:  # a dataframe: its column of numbers
            if column is None:
                raise TypeError("describe of a dataframe needs column=, the name of the numbers' column")
            data = data[column]
        return [dask.delayed(_as_floats)(part) for part in data.to_delayed()]
    if isinstance(data, (str, bytes)) or not isinstance(data, Sequence):
        raise TypeError(f"data must be a dask array, a dask dataframe column or a list of paths, "
                        f"not {type(data).__name__}")
    return _files(list(data), column, reading)


def _files(patterns: List[Any], column: Any, reading: Dict[str, Any]) -> List[Any]:
    import glob

    import dask

    paths: List[str] = []
    for pattern in patterns:
        found = sorted(glob.glob(str(pattern)))
        if not found:
            raise FileNotFoundError(f"no file matches {pattern!r}")
        paths += found
    if any(p.endswith(".parquet") for p in paths) and column is None:
        raise TypeError("Parquet files need column=, the name of the numbers' column")
    return [dask.delayed(_parquet_column)(p, column) if p.endswith(".parquet")
            else dask.delayed(_kornum.read_numbers)(p, **reading) for p in paths]


def _parquet_column(path: str, column: str) -> np.ndarray:
    import pyarrow.parquet as pq

    table = pq.read_table(path, columns=[column])
    return _as_floats(table.column(0).to_numpy())


def _concatenate(parts: List[np.ndarray]) -> np.ndarray:
    return np.concatenate(parts) if parts else np.empty(0, dtype=np.longdouble)


def _gathered(lists: List[List[np.ndarray]], count: int) -> List[np.ndarray]:
    return [_concatenate([chunk[i] for chunk in lists]) for i in range(count)]


def _client() -> Any:
    try:
        from distributed import get_client

        return get_client()
    except (ImportError, ValueError):
        return None


def _submit(*tasks: Any) -> Any:
    """The tasks started on the current client (they run while the caller goes on), or
    kept for Dask's local scheduler when there is none."""
    client = _client()
    return (client, client.compute(list(tasks)) if client is not None else tasks)


def _gather(progress: bool, submitted: Any) -> Any:
    """The results of submitted tasks; with progress, Dask's progress bar on standard
    error."""
    import contextlib
    import sys

    import dask

    client, tasks = submitted
    if client is None:
        if not progress:
            return dask.compute(*tasks)
        from dask.diagnostics import ProgressBar

        with ProgressBar(out=sys.stderr):
            return dask.compute(*tasks)
    if progress:
        from distributed import progress as show

        with contextlib.redirect_stdout(sys.stderr):
            show(tasks)
        sys.stderr.write("\n")
    return tuple(client.gather(tasks))


def _compute(progress: bool, *tasks: Any) -> Any:
    """The results of the tasks, on the current client or Dask's local scheduler."""
    return _gather(progress, _submit(*tasks))


def _persisted(chunks: List[Any]) -> List[Any]:
    """The chunks kept in the workers' memory between passes (in this process without a
    cluster)."""
    import dask

    client = _client()
    if client is None:
        return [dask.delayed(c) for c in dask.compute(*chunks)]
    return client.persist(chunks)


def _busy(parts: List[Any]) -> Any:
    """The busy cells of all parts, ascending, and the number of values they hold."""
    return np.concatenate([cells for cells, _ in parts]), sum(count for _, count in parts)


def _few_candidates(values: np.ndarray, busy: Any) -> Optional[np.ndarray]:
    """The values of the busy cells, or None when all chunks together have too many for
    one task."""
    cells, count = busy
    return _kornum.mode_candidates(values, cells) if count <= FEW_CANDIDATES else None


def _runs_of_few(candidates: List[Optional[np.ndarray]]) -> Any:
    if any(c is None for c in candidates):
        return None
    return _kornum.append_runs([_kornum.run_summary(_concatenate(candidates))])


def _start_mode(chunks: List[Any], bounds: List[Any], n: int) -> Any:
    """The mode's first graph started: cells, busy cells and, when those hold few values
    (the usual case), the candidates and their runs in one task. None when there are few
    values or the tolerance is too coarse for cells."""
    import dask

    cells = _kornum.cell_bounds(bounds)
    if cells is None or n <= GATHER_LIMIT:
        return None
    limits = [0] + cells + [2**64 - 1]
    split = [dask.delayed(_kornum.split_cells, nout=len(cells) + 1)(c, cells) for c in chunks]
    busy = dask.delayed(_busy)([dask.delayed(_kornum.busy_cells)([s[i] for s in split], limits[i], limits[i + 1])
                                for i in range(len(cells) + 1)])
    few = dask.delayed(_runs_of_few)([dask.delayed(_few_candidates)(c, busy) for c in chunks])
    return _submit(few, busy)


def _finish_mode(started: Any, chunks: List[Any], bounds: List[Any], progress: bool) -> Any:
    """Whether the values have a mode, and the mode: the runs of equal neighbours of each
    range of keys, from the values of the cells the filter found busy (all values when
    there are few, or when the tolerance is too coarse for cells)."""
    import dask

    candidates = chunks
    if started is not None:
        result, (busy_cells, _) = _gather(progress, started)
        if result is not None:
            return result
        candidates = [dask.delayed(_kornum.mode_candidates)(c, busy_cells) for c in chunks]
    splits = [dask.delayed(_kornum.split_by_range, nout=len(bounds) + 1)(c, bounds) for c in candidates]
    runs = [dask.delayed(_kornum.run_summary)(dask.delayed(_concatenate)([s[i] for s in splits]))
            for i in range(len(bounds) + 1)]
    return _compute(progress, dask.delayed(_kornum.append_runs)(runs))[0]


def describe(data: Any, *, population: bool = False, mode: bool = True, column: Any = None, field: int = 0,
             delimiter: Optional[str] = None, header: bool = False, allow_nonfinite: bool = False,
             progress: bool = False) -> Description:
    """The descriptive statistics of the values of a Dask collection, exactly as
    :func:`kornum.describe` reports them for the same values in one array.

    ``data`` is a dask array, a dask dataframe column (or a dataframe with ``column=``) or
    a list of paths or globs: Parquet files (``.parquet``, the numbers in ``column=``) or
    text read as ``kornum describe`` reads it (``field``, ``delimiter``, ``header``,
    ``allow_nonfinite`` as its options; a bad token raises ValueError with its message,
    naming the file, line, field and text). The work runs on the current
    ``dask.distributed`` client, or on Dask's local scheduler when there is none. With
    ``progress=True`` Dask's progress bar of each pass goes to standard error. With
    ``mode=False`` the step that moves the values (the mode) is skipped and ``mode`` is
    ``None``. An empty input raises :class:`kornum.MathError`.
    """
    import dask

    if not isinstance(population, (bool, np.bool_)):
        raise TypeError(f"population must be a bool, not {type(population).__name__}")
    reading = dict(field=int(field), delimiter=delimiter or "", header=bool(header),
                   allow_nonfinite=bool(allow_nonfinite))
    chunks = _persisted(_chunks(data, column, reading))

    # Pass 1: the exact summaries and the counts of the top 16 key bits.
    summary, tops = _compute(progress,
        dask.delayed(_kornum.merge_summaries)([dask.delayed(_kornum.shard_summary)(c) for c in chunks]),
        dask.delayed(_kornum.merge_counts)([dask.delayed(_kornum.prefix_counts)(c, [(0, 0, 0)]) for c in chunks]))
    n = _kornum.summary_count(summary)
    if n == 0:
        return Description(_kornum.describe([], population=bool(population)), bool(population))

    parts = max(1, len(chunks))
    # The top buckets too large for one range of the mode are counted finer, with the
    # selection's own counts where a pass runs anyway.
    heavy = [(bucket, 0, 16) for bucket, count in tops[0] if mode and count * parts > n]
    finer: Dict[int, Any] = {}

    def counted(requests: List[Any]) -> List[Any]:
        asked = requests + [h for h in heavy if h not in requests and h[0] not in finer]
        counts, = _compute(progress, dask.delayed(_kornum.merge_counts)(
            [dask.delayed(_kornum.prefix_counts)(c, asked) for c in chunks]))
        finer.update((request[0], count) for request, count in zip(asked, counts) if request in heavy)
        return counts[:len(requests)]

    # The mode's graph starts as soon as its ranges are known, and runs on the cluster
    # beside the selection's passes.
    mode_bounds: Optional[List[Any]] = None
    mode_started = None

    def start_mode() -> None:
        nonlocal mode_bounds, mode_started
        if mode and mode_bounds is None and all(h[0] in finer for h in heavy):
            mode_bounds = _kornum.range_bounds(tops[0], sorted(finer.items()), parts)
            mode_started = _start_mode(chunks, mode_bounds, n)

    selection = _kornum.RankSelection(n, _kornum.report_ranks(n), GATHER_LIMIT)
    start_mode()
    while not selection.done():
        if selection.gathering():
            prefixes = selection.gather_prefixes()
            lists = _compute(progress, *[dask.delayed(_kornum.collect_prefix)(c, prefixes) for c in chunks])
            selection.gathered(_gathered(list(lists), len(prefixes)))
        elif selection.requests() == [(0, 0, 0)]:
            selection.narrow(tops)  # the first pass counted these already
        else:
            selection.narrow(counted(selection.requests()))
        start_mode()

    mode_exists, mode_value = False, 0.0
    if mode:
        if mode_bounds is None:
            counted([])
            start_mode()
        mode_exists, mode_value = _finish_mode(mode_started, chunks, mode_bounds, progress)
    result = _kornum.ShardedSummary(summary, bool(population), selection.values(), mode_exists, mode_value)
    description = Description(result, bool(population))
    if not mode:
        object.__setattr__(description, "mode", None)
        description._values["mode"] = None
    return description
