#!/usr/bin/env bash
# Installs, with apt-get, whatever of the build and test tools this machine lacks. Runs without
# questions (also in CI, with no standard input). Usage: scripts/install_deps.sh
set -euo pipefail

packages=(
  cmake ninja-build g++ make pkg-config python3
  googletest libgtest-dev libbenchmark-dev libcairo2-dev libpng-dev
  g++-mingw-w64-x86-64-posix mingw-w64-tools binutils-mingw-w64-x86-64
  wine wine64 msitools wixl
  xvfb xdotool imagemagick x11-utils fonts-dejavu-core
  clang-format clang libclang-rt-14-dev openssl ccache
)

missing=()
for package in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$package")
  fi
done

[ ${#missing[@]} -eq 0 ] && exit 0

echo "installing: ${missing[*]}"
sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -q
$sudo apt-get install -y -q --no-install-recommends "${missing[@]}" </dev/null
