#!/usr/bin/env bash
# Builds the Debian package: a Release build without the test suites in build-pkg/, then
# `cpack -G DEB` into dist/ (tesk_<version>_<arch>.deb). Install it with
#   sudo apt install ./dist/tesk_*.deb
# Usage: scripts/package.sh [extra cmake args...], e.g. -DTESK_PACKAGE_MAINTAINER="Name <addr>"
set -euo pipefail

src=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$src"
bash scripts/install-deps.sh
bash scripts/build.sh build-pkg -DCMAKE_BUILD_TYPE=Release -DTESK_WITH_TESTS=OFF "$@"
mkdir -p dist
# An older package of another version would be picked up by `apt install ./dist/tesk_*.deb`.
rm -f dist/tesk_*.deb
(cd build-pkg && cpack -G DEB -B "$src/dist")
# CPack leaves its working folder beside the package.
rm -rf dist/_CPack_Packages
ls -l dist/tesk_*.deb
