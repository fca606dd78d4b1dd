#!/bin/sh
# Compiles what the lower rooms have for Windows with the cross compiler, so that it does not rot.
# Usage: check-windows-files.sh [COMPILER]; exit status 0 when all is well, 77 without the compiler.
compiler=${1:-x86_64-w64-mingw32-g++}
command -v "$compiler" >/dev/null || { echo "$compiler is not installed"; exit 77; }
root=$(cd "$(dirname "$0")/.." && pwd)
object=$(mktemp) || exit 1
trap 'rm -f "$object"' EXIT
failed=0
for file in "$root"/src/platform/*.cpp "$root"/src/compile/*.cpp; do
    case $file in *_posix.cpp) continue ;; esac
    "$compiler" -std=c++20 -Wall -Wextra -Werror -I"$root/src" -c "$file" -o "$object" || { echo "FAILED: $file"; failed=1; }
done
exit $failed
