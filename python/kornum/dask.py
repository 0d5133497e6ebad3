"""The exact descriptive-statistics report of data spread over a Dask cluster.

:func:`describe` gives the same :class:`kornum.Description` as :func:`kornum.describe`
would for all the values at once, and the same bits whatever the number of chunks, their
order or the workers that ran them: each chunk is summarised exactly (count, extremes and
exact sums of the first four powers, in a pass that also counts the first key
histograms), the order statistics are selected by counting key prefixes over the chunks
(one to three more passes, no sort of the whole), and only the mode
moves data: the cells of a fine cut of the number line are dealt to parts by a hash of
their block and counted, each part in one task, beside the other passes, and only the
values of the busy cells, which can be in a run of equal neighbours, move on to the runs.
"""

from __future__ import annotations

from typing import Any, Dict, List, Optional, Sequence

import numpy as np

from . import _kornum
from ._description import Description

# Buckets of at most this many values are gathered to the client rather than narrowed.
GATHER_LIMIT = 1 << 18
# The mode takes the runs of the values of busy cells in one task up to this many.
FEW_CANDIDATES = 1 << 22


def _as_floats(chunk: Any) -> np.ndarray:
    """A chunk as one contiguous array: float64 kept as it is (the passes read doubles as
    the long doubles they convert to, at half the bytes), anything else as long doubles."""
    array = np.asarray(chunk)
    dtype = np.float64 if array.dtype == np.float64 else np.longdouble
    return np.ascontiguousarray(array.ravel(), dtype=dtype)


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


class _Started:
    """Tasks started on the current client, which run while the caller goes on; with no
    client they run on Dask's local scheduler, all together when the first is asked for."""

    def __init__(self, tasks: List[Any], background: Sequence[Any] = ()) -> None:
        self.client = _client()
        if self.client is None:
            self.tasks = list(tasks) + list(background)
        else:
            # The background tasks run when the cluster has nothing more urgent to do.
            self.tasks = (self.client.compute(list(tasks), priority=1) +
                          (self.client.compute(list(background), priority=0) if background else []))
        self.done: Optional[Sequence[Any]] = None

    def results(self, progress: bool, indices: Sequence[int]) -> List[Any]:
        """The results of the tasks at indices; with progress, Dask's progress bar of those
        still running goes to standard error."""
        import contextlib
        import sys

        import dask

        if self.client is None:
            if self.done is None:
                if progress:
                    from dask.diagnostics import ProgressBar

                    with ProgressBar(out=sys.stderr):
                        self.done = dask.compute(*self.tasks)
                else:
                    self.done = dask.compute(*self.tasks)
            return [self.done[i] for i in indices]
        futures = [self.tasks[i] for i in indices]
        if progress:
            from distributed import progress as show

            with contextlib.redirect_stdout(sys.stderr):
                show(futures)
            sys.stderr.write("\n")
        return list(self.client.gather(futures))


def _compute(progress: bool, *tasks: Any) -> Any:
    """The results of the tasks, on the current client or Dask's local scheduler."""
    return tuple(_Started(list(tasks)).results(progress, range(len(tasks))))


def _persisted(chunks: List[Any]) -> List[Any]:
    """The chunks kept in the workers' memory between passes (in this process without a
    cluster)."""
    import dask

    client = _client()
    if client is None:
        return [dask.delayed(c) for c in dask.compute(*chunks)]
    return client.persist(chunks)


def _part_count(chunks: List[Any]) -> int:
    """The parts the mode's cells are dealt to: one a chunk, up to eight a worker thread
    (small parts sort in the cache, and the last ones to finish keep few workers idle)."""
    import os

    client = _client()
    threads = sum(client.nthreads().values()) if client is not None else (os.cpu_count() or 1)
    return max(1, min(len(chunks), 8 * threads))


def _busy(parts: List[Any]) -> Any:
    """The busy cells of all parts and the number of values they hold."""
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


def _mode_tasks(chunks: List[Any], parts: int) -> List[Any]:
    """The mode's filter, which needs nothing from the other passes: each chunk's cells
    dealt to parts, the busy cells of each part, and, when those hold few values (the
    usual case), the runs of their values in one task. Empty when the tolerance is too
    coarse for cells."""
    import dask

    if not _kornum.mode_cells_usable():
        return []
    split = [dask.delayed(_kornum.split_cells, nout=parts)(c, parts) for c in chunks]
    busy = dask.delayed(_busy)([dask.delayed(_kornum.busy_cells)([s[i] for s in split])
                                for i in range(parts)])
    return [dask.delayed(_runs_of_few)([dask.delayed(_few_candidates)(c, busy) for c in chunks]), busy]


def _mode(started: _Started, chunks: List[Any], top: List[Any], n: int, parts: int, progress: bool) -> Any:
    """Whether the values have a mode, and the mode: the runs of equal neighbours of each
    range of keys, from the values of the cells the filter found busy (from all values
    when the tolerance is too coarse for cells)."""
    import dask

    candidates = chunks
    if started.tasks and n > 1:  # a single value is its own mode, though it has no company
        result, (busy_cells, _) = started.results(progress, [0, 1])
        if result is not None:
            return result
        candidates = [dask.delayed(_kornum.mode_candidates)(c, busy_cells) for c in chunks]
    # Ranges of keys of about equal counts; a top bucket too large for one is counted finer.
    heavy = [(bucket, 0, 16) for bucket, count in top if count * parts > n]
    finer: List[Any] = []
    if heavy:
        counts, = _compute(progress, dask.delayed(_kornum.merge_counts)(
            [dask.delayed(_kornum.prefix_counts)(c, heavy) for c in chunks]))
        finer = [(request[0], count) for request, count in zip(heavy, counts)]
    bounds = _kornum.range_bounds(top, finer, parts)
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

    # Pass 1: the exact summaries and the selection's first histograms; the mode's filter
    # starts beside it and runs on the cluster while the selection's passes go on.
    parts = _part_count(chunks)
    firsts = [dask.delayed(_kornum.summary_and_first_counts, nout=2)(c) for c in chunks]
    started = _Started([dask.delayed(_kornum.merge_summaries)([first[0] for first in firsts]),
                        dask.delayed(_kornum.merge_first_counts)([first[1] for first in firsts])])
    # The mode's graph is built while the cluster runs the first pass.
    mode_started = _Started([], background=_mode_tasks(chunks, parts)) if mode else None
    summary, first_counts = started.results(progress, [0, 1])
    n = _kornum.summary_count(summary)
    if n == 0:
        return Description(_kornum.describe([], population=bool(population)), bool(population))

    selection = _kornum.RankSelection(n, _kornum.report_ranks(n), GATHER_LIMIT)
    while not selection.done():
        if selection.narrow_with(first_counts):
            continue  # the first pass counted these already
        if selection.gathering():
            prefixes = selection.gather_prefixes()
            lists = _compute(progress, *[dask.delayed(_kornum.collect_prefix)(c, prefixes) for c in chunks])
            selection.gathered(_gathered(list(lists), len(prefixes)))
        else:
            counts, = _compute(progress, dask.delayed(_kornum.merge_counts)(
                [dask.delayed(_kornum.prefix_counts)(c, selection.requests()) for c in chunks]))
            selection.narrow(counts)

    mode_exists, mode_value = _mode(mode_started, chunks, first_counts[0], n, parts, progress) if mode else (False, 0.0)
    result = _kornum.ShardedSummary(summary, bool(population), selection.values(), mode_exists, mode_value)
    description = Description(result, bool(population))
    if not mode:
        object.__setattr__(description, "mode", None)
        description._values["mode"] = None
    return description
