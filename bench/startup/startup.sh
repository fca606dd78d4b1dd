#!/usr/bin/env bash
# How long the designer takes until its main window is on the screen, beside Qt Designer, in turn in one run.
#   startup.sh BUILD_FOLDER [RUNS]
# Prints the median of each in milliseconds and the ratio of the two; the aim is a ratio of at most 0.5.
set -euo pipefail
build=$(cd "$1" && pwd)
runs=${2:-7}
numbers=$(mktemp -u)
mkfifo "$numbers"
Xvfb -displayfd 4 -screen 0 1400x1000x24 -nolisten tcp 4>"$numbers" >/dev/null 2>&1 &
server=$!
read -r number <"$numbers"
export DISPLAY=:$number QT_QPA_PLATFORM=xcb
openbox >/dev/null 2>&1 &
manager=$!
home=$(mktemp -d)
export HOME=$home XDG_CONFIG_HOME=$home/config XDG_RUNTIME_DIR=$home
trap 'kill $manager $server 2>/dev/null || true; rm -rf "$home" "$numbers"' EXIT
sleep 1

# Milliseconds from the start of a command to the first visible window whose title matches.
until_window() {
  local title=$1
  shift
  local begin end
  begin=$(date +%s%N)
  "$@" >/dev/null 2>&1 &
  local program=$!
  until xdotool search --onlyvisible --name "$title" >/dev/null 2>&1; do sleep 0.005; done # --sync looks twice a second
  end=$(date +%s%N)
  kill -9 $program 2>/dev/null || true
  wait $program 2>/dev/null || true
  echo $(((end - begin) / 1000000))
}
median() { sort -n | awk '{ value[NR] = $1 } END { print value[int((NR + 1) / 2)] }'; }

cd "$home"
ours=() theirs=()
for ((run = 0; run <= runs; ++run)); do
  own=$(ORBA_NO_SPLASH=1 until_window '^ORBAWIDG Designer' "$build/src/shell/wdesign")
  other=$(until_window '^Qt Designer' /usr/lib/qt6/bin/designer)
  [ "$run" -eq 0 ] && continue # the first pair only warms the caches
  ours+=("$own") theirs+=("$other")
done
own=$(printf '%s\n' "${ours[@]}" | median)
other=$(printf '%s\n' "${theirs[@]}" | median)
echo "main window on the screen, median of $runs: wdesign $own ms, Qt Designer $other ms, ratio $(awk "BEGIN { printf \"%.2f\", $own / $other }")"
