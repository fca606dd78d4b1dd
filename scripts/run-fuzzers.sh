#!/usr/bin/env bash
# Builds the fuzz targets and runs each of them, with address and undefined-behaviour sanitizers.
#   run-fuzzers.sh SECONDS [target...]
# The corpus grows in build/fuzz/corpus; what crashes is left in build/fuzz/findings and ends the run with status 1.
set -euo pipefail
export UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
cd "$(dirname "$0")/.."
seconds=${1:-60}
shift || true
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=(project form defaults log registry)

cmake --preset fuzz >/dev/null
ninja -C build/fuzz -j"${JOBS:-2}" make_seeds "${targets[@]/#/fuzz_}"
seeds=build/fuzz/seeds
findings=build/fuzz/findings
build/fuzz/fuzz/make_seeds "$seeds"
mkdir -p "$findings"
for target in "${targets[@]}"; do
  mkdir -p "build/fuzz/corpus/$target" "$seeds/$target"
  echo "== fuzz_$target for $seconds seconds"
  log=build/fuzz/$target.log
  status=0
  # A slow input counts as a finding too: nothing takes longer than ten seconds.
  "build/fuzz/fuzz/fuzz_$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -max_len=250000 \
    -artifact_prefix="$findings/$target-" -print_final_stats=1 "build/fuzz/corpus/$target" "$seeds/$target" \
    >"$log" 2>&1 || status=$?
  grep -aE '^stat::|SUMMARY|ERROR|runtime error|DONE|Test unit written' "$log" || true
  if [ "$status" -ne 0 ]; then
    echo "== fuzz_$target found something; see $log"
    exit 1
  fi
done
echo "== nothing found"
