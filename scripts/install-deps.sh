#!/usr/bin/env bash
# Installs the Debian packages that building, testing and benchmarking need, when
# any is missing. Safe to run again: it does nothing when all are present.
set -euo pipefail

packages=(
  g++ cmake ninja-build           # toolchain
  pkg-config libcairo2-dev fonts-dejavu-core  # the Cairo canvas and its fonts
  libgtest-dev                    # unit tests
  libbenchmark-dev                # benchmarks
  libboost-dev libgsl-dev         # peers measured in the benchmarks
  libeigen3-dev
  python3-mpmath                  # regenerating the reference tables
  python3-numpy python3-scipy     # the random variates' distribution tests
  doxygen                         # the API reference (the docs target)
  python3-venv                    # the Python package's test environment
  libgtk-4-dev                    # the optional GTK 4 host of the edit controls
  xvfb xdotool                    # kornum-edit's smoke test: a display and typed keys
  chromium                        # renders the plots' SVG to compare with their PNG
)
# With --bench: also what the whole-program benchmark compares against.
if [ "${1:-}" = "--bench" ]; then
  packages+=(datamash time)
fi
# With --fuzz: clang and its fuzzing runtime.
if [ "${1:-}" = "--fuzz" ]; then
  packages+=(clang libclang-rt-14-dev)
fi

missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" ||
    missing+=("$package")
done
if [ ${#missing[@]} -eq 0 ]; then exit 0; fi

echo "Installing: ${missing[*]}"
sudo=""
if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
# Another install holding the package manager's lock is waited for, not failed on.
lock_wait=(-o DPkg::Lock::Timeout=900)
$sudo apt-get "${lock_wait[@]}" update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get "${lock_wait[@]}" install -y -qq "${missing[@]}" >/dev/null
