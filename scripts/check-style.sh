#!/usr/bin/env bash
# Holds what has changed since BASE (default: the commit before this one) against the rules of this tree: layout by
# clang-format, faults by clang-tidy where there is a build to take the commands from, and in the lines that came
#   - what belongs to one file stands in an unnamed namespace, not behind "static";
#   - a pointer is its own condition: no comparison with nullptr.
set -euo pipefail
cd "$(dirname "$0")/.."
base=${1:-HEAD~1}
build=${2:-build/dev}
git rev-parse --quiet --verify "$base^{commit}" >/dev/null || { echo "Nothing to compare with: no commit $base."; exit 0; }

mapfile -t files < <(git diff --name-only --diff-filter=d "$base" -- 'src/*.cpp' 'src/*.h' 'tests/*.cpp' 'tests/*.h' \
  'bench/*.cpp' 'fuzz/*.cpp' ':!*/golden/*' ':!*/menu-c.h')
[ ${#files[@]} -gt 0 ] || { echo "No source has changed since $base."; exit 0; }
failed=0

clang-format-14 --dry-run -Werror "${files[@]}" || failed=1

came=$(git diff -U0 "$base" -- "${files[@]}" | grep -E '^\+[^+]' || true)
if grep -nE '^\+static [^=;]*\(' <<<"$came"; then
  echo "A function of one file stands in an unnamed namespace, not behind \"static\"." && failed=1
fi
if grep -nE '(if|while|for) \(.*[!=]= nullptr|[!=]= nullptr *(&&|\|\||\?)' <<<"$came"; then
  echo "A pointer is its own condition: write \"if (pointer)\" or \"if (!pointer)\"." && failed=1
fi

if [ -f "$build/compile_commands.json" ]; then
  git diff -U0 "$base" -- 'src/*.cpp' ':!*_windows.cpp' | clang-tidy-diff-14.py -p1 -path "$build" -quiet || failed=1
fi
[ $failed -eq 0 ] && echo "${#files[@]} files keep the rules."
exit $failed
