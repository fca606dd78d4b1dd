#!/usr/bin/env bash
# Runs every measurement of bench/ on a release build and prints its figures.
#   run-benchmarks.sh BUILD_FOLDER
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
for script in "$root"/bench/*/*.sh; do
  echo "== $(basename "$script" .sh)"
  "$script" "$1"
done
