#!/usr/bin/env bash
# Loading and saving projects against plain reading and writing of the same bytes. Needs about 2 GB on the disk.
set -euo pipefail
"$1/bench/project_files/bench_project_files" "$1" "${@:2}"
