#!/usr/bin/env bash
# Installs the Debian packages that building, testing and the demo need, when any is missing.
# Debian 12; only Debian's own packages. Runs apt as root, or through sudo.
# fonts-wine: Wine draws captions and their buttons with its own fonts; without them a close
# button shows as a letter in every picture.
set -euo pipefail

packages=(
  cmake ninja-build g++ clang libclang-rt-14-dev clang-format
  libgtest-dev googletest libgmock-dev libbenchmark-dev libpugixml-dev
  g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools binutils-mingw-w64
  wine64 wine libwine-dev wine64-tools fonts-wine
  xvfb xauth imagemagick x11-utils xdotool
)

missing=()
for pkg in "${packages[@]}"; do
  status=$(dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null || true)
  [ "$status" = "install ok installed" ] || missing+=("$pkg")
done
if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

if [ "$(id -u)" -eq 0 ]; then
  as_root=()
elif command -v sudo >/dev/null; then
  as_root=(sudo)
else
  echo "deps: missing packages (${missing[*]}) and neither root nor sudo to install them" >&2
  exit 1
fi

echo "deps: installing ${missing[*]}" >&2
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get update -q
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
  apt-get install -y -q --no-install-recommends "${missing[@]}"
