#!/usr/bin/env bash
# Installs every Debian 12 package needed to build, test and run TESK.
# Idempotent: packages already installed are skipped, and when nothing is missing apt is not
# touched at all, so calling it before every build costs a fraction of a second.
set -euo pipefail

PACKAGES=(
  # build
  build-essential cmake ninja-build g++ clang libclang-rt-14-dev clang-format
  # Qt 6 (Widgets, Network, Test, PrintSupport come with qt6-base-dev)
  qt6-base-dev qt6-base-dev-tools libgl1-mesa-dev
  # tests and benchmarks
  libgtest-dev libgmock-dev googletest libbenchmark-dev
  # end-to-end runs: the packet engine, and python3 for the AGW check client
  direwolf python3
  # windows on a machine without a screen, and screenshots of them
  xvfb xauth imagemagick fonts-dejavu-core
  # the Debian package: the 128 px icon, and the checks of the desktop entry, metainfo and .deb
  librsvg2-bin desktop-file-utils appstream lintian dpkg-dev file
)

missing=()
for pkg in "${PACKAGES[@]}"; do
  status=$(dpkg-query -W -f='${db:Status-Status}' "$pkg" 2>/dev/null || true)
  [[ "$status" == "installed" ]] || missing+=("$pkg")
done

if ((${#missing[@]} == 0)); then
  echo "install-deps: all ${#PACKAGES[@]} packages present"
  exit 0
fi

echo "install-deps: installing ${missing[*]}"
SUDO=()
if [[ $(id -u) -ne 0 ]]; then
  command -v sudo >/dev/null || { echo "install-deps: not root and no sudo" >&2; exit 1; }
  SUDO=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${SUDO[@]}" apt-get update -qq
"${SUDO[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${missing[@]}" </dev/null
echo "install-deps: done"
