#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The one install step of ./run and ./test: brings the Debian 12 packages that are missing, and says which.
# Usage: packaging/packages.sh run|test
set -euo pipefail

# To build and run the program; then the fonts, window system and picture tools for a machine without a display.
run_packages=(g++ cmake ninja-build ccache qt6-base-dev libsqlite3-dev libxcb1-dev sqlite3 fonts-dejavu-core
    libqt6svg6 libqt6help6 qt6-tools-dev qt6-documentation-tools libqt6sql6-sqlite
    breeze-icon-theme xvfb xauth openbox imagemagick x11-utils xdotool)
# To test it.
test_packages=(libgtest-dev libgmock-dev libbenchmark-dev python3 git clang-format clang-tidy
    at-spi2-core python3-gi gir1.2-atspi-2.0 dbus-daemon x11-xserver-utils
    desktop-file-utils appstream)

case "${1:-}" in
    run) wanted=("${run_packages[@]}") ;;
    test) wanted=("${run_packages[@]}" "${test_packages[@]}") ;;
    *) echo "usage: $0 run|test" >&2; exit 2 ;;
esac

missing=()
for package in "${wanted[@]}"; do
    if [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)" != installed ]; then
        missing+=("$package")
    fi
done
[ ${#missing[@]} -gt 0 ] || exit 0

echo "Installing Debian packages: ${missing[*]}"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "These packages are missing and neither root nor sudo is here to install them." >&2; exit 1; }
    as_root=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
for package in "${missing[@]}"; do
    if [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)" != installed ]; then
        echo "Package $package could not be installed." >&2
        exit 1
    fi
done
