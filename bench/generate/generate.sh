#!/usr/bin/env bash
# Generating sources against Qt's uic on equivalent forms, in one run. Needs about 1 GB on the disk.
#   generate.sh BUILD_FOLDER [RUNS]
set -euo pipefail
"$1/bench/generate/bench_generate" "$1/src/wdgen/wdgen" /usr/lib/qt6/libexec/uic "${2:-5}"
