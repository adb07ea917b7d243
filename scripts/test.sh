#!/usr/bin/env bash
# Builds Velmor for i386 and x86_64 and runs every test on both.
#   scripts/test.sh                 both architectures
#   scripts/test.sh asan tsan       other presets (sanitizer builds)
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh

presets=("$@")
if [ ${#presets[@]} -eq 0 ]; then
    presets=(i386 x86_64)
fi
for preset in "${presets[@]}"; do
    echo "=== $preset ==="
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset"
    ctest --preset "$preset" -j "$(nproc)"
done
