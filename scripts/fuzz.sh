#!/usr/bin/env bash
# Builds the libFuzzer targets (clang, ASan+UBSan) and runs each for a while (60 seconds by
# default) from the seed corpus in fuzz/corpus. New inputs go to a scratch directory, so the
# kept corpus changes only by hand.   scripts/fuzz.sh [seconds]
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
seconds=${1:-60}
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
for target in build/fuzz/fuzz/fuzz_*; do
    name=$(basename "$target")
    parser=${name#fuzz_}
    mkdir -p "$scratch/$parser"
    echo "=== $name: ${seconds}s ==="
    status=0
    "$target" -max_total_time="$seconds" -print_final_stats=1 "$scratch/$parser" \
        "fuzz/corpus/$parser" >"$scratch/$parser.log" 2>&1 || status=$?
    grep -E 'stat::number_of_executed_units|ERROR|SUMMARY|Done' "$scratch/$parser.log" || true
    if [ "$status" -ne 0 ]; then
        tail -n 40 "$scratch/$parser.log"
        echo "$name failed with status $status"
        exit 1
    fi
done
