#!/usr/bin/env bash
# The toolkit beside Qt's own form loader, and the rate of its events. Needs no display.
#   toolkit.sh BUILD_FOLDER
set -euo pipefail
QT_QPA_PLATFORM=offscreen "$1/bench/toolkit/toolkit_bench" 2>/dev/null
