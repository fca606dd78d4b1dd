#!/usr/bin/env bash
# Holds the sources against the rules of this tree:
#   - layout, by clang-format;
#   - what belongs to one file stands in an unnamed namespace, not behind "static";
#   - a pointer is its own condition: no comparison with nullptr;
#   - in the lines that have changed since BASE, the faults that clang-tidy finds, where there is a build to take the
#     commands from. BASE is where this branch left the main one, on the main one the commit before; where neither is
#     known, every file is looked at for as long as TIDY_SECONDS (600) allow.
#   check-style.sh [BASE [BUILD_FOLDER]]
# With TIDY=no in the environment clang-tidy, which takes minutes, is left out.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${2:-build/dev}
failed=0

baseOfChange() {
  local ref base
  for ref in origin/HEAD origin/main origin/master main master; do
    base=$(git merge-base HEAD "$ref" 2>/dev/null) || continue
    [ "$base" = "$(git rev-parse HEAD)" ] || { echo "$base"; return; }
  done
  git rev-parse --quiet --verify 'HEAD~1^{commit}' || true
}

mapfile -t files < <(git ls-files 'src/*.cpp' 'src/*.h' 'tests/*.cpp' 'tests/*.h' 'bench/*.cpp' 'fuzz/*.cpp' \
  ':!*/golden/*' ':!*/menu-c.h')

clang-format-14 --dry-run -Werror "${files[@]}" || failed=1

if grep -nE '^(template.*> )?static [^;]*[({=]' "${files[@]}" | grep -v ':static_assert'; then
  echo "What belongs to one file stands in an unnamed namespace, not behind \"static\"." && failed=1
fi
if grep -nE '(if|while|for) \(.*[!=]= nullptr|[!=]= nullptr *(&&|\|\||\?)' "${files[@]}"; then
  echo "A pointer is its own condition: write \"if (pointer)\" or \"if (!pointer)\"." && failed=1
fi

base=${1:-$(baseOfChange)}
if [ "${TIDY:-yes}" = no ]; then
  echo "Without clang-tidy."
elif [ ! -f "$build/compile_commands.json" ]; then
  echo "No clang-tidy: $build holds no compile_commands.json. Run make build first."
elif [ -n "$base" ]; then
  git diff -U0 "$base" -- 'src/*.cpp' ':!*_windows.cpp' |
    clang-tidy-diff-14.py -p1 -path "$build" -j "$(nproc)" -quiet || failed=1
else
  timeout "${TIDY_SECONDS:-600}" xargs -P "$(nproc)" -n 1 clang-tidy-14 -p "$build" --quiet \
    < <(git ls-files 'src/*.cpp' ':!*_windows.cpp') || { [ $? -eq 124 ] && echo "Time was up for clang-tidy."; } || failed=1
fi
[ $failed -eq 0 ] && echo "${#files[@]} files keep the rules."
exit $failed
