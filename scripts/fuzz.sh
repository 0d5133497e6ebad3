#!/usr/bin/env bash
# Builds the libFuzzer targets with clang, the address and undefined-behaviour
# sanitizers, and runs each for SECONDS (default 30) from its seed corpus in
# fuzz/corpus/. New inputs go to a scratch directory; a crash leaves its input in
# build-fuzz/ and fails the script.
#   bash scripts/fuzz.sh [SECONDS] [TARGET ...]    targets: the list below
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh --fuzz
seconds=${1:-30}
shift || true
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=(str2float describe_reader text_form matrix_reader dist_arguments random_arguments label_caption)
flags="-fsanitize=address,undefined -fno-sanitize-recover=all -fsanitize=fuzzer-no-link -fno-omit-frame-pointer"
cmake -S . -B build-fuzz -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DCMAKE_CXX_FLAGS="$flags" -DCMAKE_EXE_LINKER_FLAGS="-fsanitize=address,undefined" \
  -DCMAKE_SHARED_LINKER_FLAGS="-fsanitize=address,undefined" \
  -DKORNUM_BUILD_TESTS=OFF -DKORNUM_BUILD_EXAMPLES=OFF -DKORNUM_BUILD_GTK=OFF -DKORNUM_BUILD_FUZZ=ON >/dev/null
cmake --build build-fuzz
for target in "${targets[@]}"; do
  scratch=$(mktemp -d)
  log="build-fuzz/$target.log"
  echo "== fuzzing $target for ${seconds}s"
  status=0
  (cd build-fuzz && ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
    "./fuzz/kornum_fuzz_$target" -max_total_time="$seconds" -print_final_stats=1 -timeout=10 -close_fd_mask=3 \
    "$scratch" "../fuzz/corpus/$target" >"$target.log" 2>&1) || status=$?
  rm -rf "$scratch"
  if [ $status -ne 0 ]; then
    tail -n 40 "$log"
    echo "fuzzing $target failed (exit $status); the input is in build-fuzz/"
    exit 1
  fi
  grep -E '^(Done|stat::number_of_executed_units|stat::peak_rss_mb)' "$log"
done
