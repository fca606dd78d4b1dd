#!/usr/bin/env bash
# Starts the designer on the greeting example. Without a display it starts a virtual one, works the designer there
# (F5: generate, compile, link, run) and leaves pictures of the designer and of the program that came out.
#   run-designer.sh BUILD_FOLDER
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "$1" && pwd)
designer=$build/src/shell/wdesign
run=$build/run
mkdir -p "$run"
cp "$root"/examples/greeting/greeting.wdp "$run/"

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  echo "== Starting the designer on $run/greeting.wdp (a copy of examples/greeting)"
  cd "$run"
  exec "$designer" greeting.wdp
fi

echo "== No display: starting a virtual one"

numbers=$(mktemp -u)
mkfifo "$numbers"
Xvfb -displayfd 4 -screen 0 1400x1000x24 -nolisten tcp 4>"$numbers" >"$run/xvfb.log" 2>&1 &
server=$!
trap 'kill "${program:-}" "${window_manager:-}" "$server" 2>/dev/null || true; rm -f "$numbers"' EXIT
read -r number <"$numbers"
export DISPLAY=:$number
openbox >"$run/openbox.log" 2>&1 &
window_manager=$!
sleep 1

cd "$run"
rm -f greeting.f90 greeting greeting.o
echo "== Starting the designer on $run/greeting.wdp"
ORBA_NO_SPLASH=1 "$designer" greeting.wdp >"$run/designer.log" 2>&1 &
program=$!
window() { timeout "$2" xdotool search --sync --onlyvisible --name "$1" | head -n 1; }
window 'ORBAWIDG Designer' 30 >/dev/null
sleep 2
import -window root "$run/designer.png"

echo "== F5: generate, compile, link and run"
xdotool key F5
if window 'Create ORBAWIDG code' 10 >/dev/null; then
  sleep 0.5
  xdotool key Return
fi
if window '^Greeting$' 60 >/dev/null; then
  sleep 1
  import -window root "$run/greeting.png"
  echo "The program is running. Pictures:"
  echo "  designer: $run/designer.png"
  echo "  program:  $run/greeting.png"
else
  import -window root "$run/failed.png"
  echo "The program did not come up; see $run/failed.png and $run/designer.log" >&2
  exit 1
fi
