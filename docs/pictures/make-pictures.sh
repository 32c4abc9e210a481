#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Takes the pictures of this folder anew: builds the program, runs it on virtual displays, in both looks.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
packaging/packages.sh test
cmake --preset release >/dev/null
cmake --build --preset release --target velmora velmora_help_viewer makedemo
/usr/bin/python3 tests/journey/pictures.py build/release/app/velmora build/release/tools/makedemo docs/pictures
