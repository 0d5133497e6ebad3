"""python -m kornum describe: the report of ``kornum describe`` over files read and
summarised by a Dask cluster (``--scheduler ADDRESS``) or by Dask's local scheduler."""

from __future__ import annotations

import argparse
import contextlib
import math
import sys
from typing import List, Optional


def _delimiter(text: str) -> str:
    if text == "\\t":
        return "\t"
    if len(text) != 1 or text in "\n\r\"":
        raise argparse.ArgumentTypeError("one character (or \\t for a tab), not a quote or a line end")
    return text


def _parser() -> argparse.ArgumentParser:
    parser = argparse.ArgumentParser(prog="python -m kornum")
    commands = parser.add_subparsers(dest="command", required=True)
    d = commands.add_parser("describe", help="the descriptive statistics of the numbers of the files",
                            description="Reads numbers from the files, on a Dask cluster, and prints the report "
                                        "of kornum describe for them.")
    d.add_argument("--scheduler", metavar="ADDRESS", help="the Dask scheduler to run on (default: in this process)")
    d.add_argument("--progress", action="store_true", help="show Dask's progress bar on standard error")
    d.add_argument("--population", action="store_true", help="treat the numbers as a whole population")
    d.add_argument("--decimals", type=int, metavar="N", help="print N fixed decimals (0 to 255)")
    d.add_argument("--json", action="store_true", help="print the statistics as one JSON object")
    d.add_argument("--field", type=int, default=0, metavar="N", help="the number is field N (1-based) of each record")
    d.add_argument("--delimiter", type=_delimiter, metavar="C", help="fields are separated by the character C")
    d.add_argument("--header", action="store_true", help="skip the first record of each file")
    d.add_argument("--allow-nonfinite", action="store_true", help="take nan, inf and -inf as values")
    d.add_argument("--column", help="the column of Parquet files")
    d.add_argument("--no-mode", action="store_true", help="skip the mode (the step that moves the values)")
    d.add_argument("files", nargs="+", metavar="FILE")
    return parser


def _json(description, decimals: Optional[int]) -> str:
    from . import _kornum

    def value(key, v):
        if v is None or (not isinstance(v, int) and not math.isfinite(v)):
            return "null"
        if isinstance(v, int):
            return str(v)
        return _kornum.number_text_fixed(v, -1 if decimals is None else decimals)

    return "{" + ", ".join(f'"{k}": {value(k, v)}' for k, v in description.to_dict().items()) + "}\n"


def main(argv: Optional[List[str]] = None) -> int:
    args = _parser().parse_args(argv)
    if args.decimals is not None and not 0 <= args.decimals <= 255:
        print("kornum describe: --decimals must be from 0 to 255", file=sys.stderr)
        return 2
    from . import MathError
    from . import dask as kdask

    with contextlib.ExitStack() as stack:
        if args.scheduler:
            import distributed

            stack.enter_context(distributed.Client(args.scheduler))
        try:
            d = kdask.describe(args.files, population=args.population, mode=not args.no_mode, column=args.column,
                               field=args.field, delimiter=args.delimiter, header=args.header,
                               allow_nonfinite=args.allow_nonfinite, progress=args.progress)
        except (ValueError, FileNotFoundError, TypeError) as error:
            print(f"kornum describe: {error}", file=sys.stderr)
            return 2
        except MathError:
            print("kornum describe: no numbers in the input", file=sys.stderr)
            return 2
    sys.stdout.write(_json(d, args.decimals) if args.json else d.report(args.decimals))
    return 0


if __name__ == "__main__":
    sys.exit(main())
