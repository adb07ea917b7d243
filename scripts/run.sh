#!/usr/bin/env bash
# Builds the library (i386, the primary platform) and runs the demo program in the current
# working directory, with the built message catalogue.
set -euo pipefail
here=$(pwd)
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/install-deps.sh"
(cd "$root" && cmake --preset i386 >/dev/null &&
    cmake --build --preset i386 --target velmor_demo velqel_catalog >/dev/null)
cd "$here"
emulator=$(cat "$root/build/i386/emulator.txt")
NLSPATH="$root/build/i386/catalog/%N" $emulator "$root/build/i386/examples/velmor_demo" "$@"
