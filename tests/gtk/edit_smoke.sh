#!/usr/bin/env bash
# kornum-edit in a virtual display (run under xvfb-run): xdotool types a value into the
# first cell, presses Enter and Ctrl+S, and the file must hold the value.
set -euo pipefail
program=$1
dir=$(mktemp -d)
pid=
cleanup() {
  if [ -n "$pid" ]; then kill "$pid" 2>/dev/null || true; fi
  rm -rf "$dir"
}
trap cleanup EXIT
printf '1\n2\n3\n' > "$dir/vector.txt"
"$program" "$dir/vector.txt" &
pid=$!
window=$(timeout 30 xdotool search --sync --onlyvisible --name 'kornum-edit' | head -1)
xdotool windowfocus --sync "$window"
sleep 0.5  # the grid takes the focus once the window is shown
xdotool type --delay 30 '42.5'
xdotool key Return ctrl+s
expected=$'42.5\n2\n3'
for _ in $(seq 100); do
  [ "$(cat "$dir/vector.txt")" = "$expected" ] && exit 0
  sleep 0.1
done
echo "the file holds:"
cat "$dir/vector.txt"
exit 1
