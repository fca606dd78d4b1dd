#!/usr/bin/env bash
# Installs what the build, the tests and generated programs need, by Debian package name. Does nothing when all is there.
set -euo pipefail

packages=(
  g++ cmake ninja-build ccache pkg-config      # build
  gfortran                                     # the language bindings, and what users compile generated programs with
  qt6-base-dev qt6-svg-dev                      # the toolkit's widgets; icons are SVG
  breeze-icon-theme                            # pictures behind the stock icon names
  xterm                                        # the window of console programs, where the desktop brings no terminal
  fonts-dejavu-core fonts-liberation           # text in a bare installation; a Courier New metric match for code
  libgtest-dev libgmock-dev libbenchmark-dev   # tests and benchmarks
  liblapack-dev libblas-dev                    # the library that the equations example links
  xvfb openbox xdotool imagemagick             # end-to-end tests: display, window manager, mouse and keys, pictures
  qt6-tools-dev designer-qt6                   # only measured against: form loader, form compiler and form designer
  clang-14 libclang-rt-14-dev clang-tidy-14 clang-format-14 # fuzzing, checks, layout
)

missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -q '^installed$' || missing+=("$package")
done
if [ ${#missing[@]} -eq 0 ]; then
  echo "All packages are installed."
  exit 0
fi
echo "Installing: ${missing[*]}"
as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)
"${as_root[@]}" apt-get update -qq
DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq "${missing[@]}"
