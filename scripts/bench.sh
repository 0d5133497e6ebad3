#!/usr/bin/env bash
# Builds and runs every benchmark, each beside its peer, then times the kornum program
# against NumPy and SciPy. With --quick, a short smoke run that only shows they work.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh --bench
quick=""
if [ "${1:-}" = "--quick" ]; then quick="--benchmark_min_time=0.001"; fi
cmake -S . -B build-bench -G Ninja -DCMAKE_BUILD_TYPE=Release -DKORNUM_BUILD_BENCH=ON \
  -DKORNUM_BUILD_TESTS=OFF -DKORNUM_BUILD_GTK=OFF
cmake --build build-bench
for bench in build-bench/bench/kornum_*_bench; do
  echo "== $(basename "$bench")"
  "$bench" $quick
done
echo "== kornum describe beside NumPy loadtxt with SciPy describe, and GNU datamash"
if [ -n "$quick" ]; then
  python3 bench/describe_vs_scipy.py build-bench/cli/kornum 10000 1
else
  python3 bench/describe_vs_scipy.py build-bench/cli/kornum 1000000 5 --large
fi
