#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks that every source file is laid out as .clang-format says.
# usage: check_format.sh CLANG-FORMAT [ROOT]
set -euo pipefail
cd "${2:-.}"
find . -path ./build -prune -o -name '.?*' -prune -o \( -name '*.h' -o -name '*.cpp' \) -print0 |
    xargs -0 -n 16 -P "$(nproc)" "$1" --dry-run -Werror
