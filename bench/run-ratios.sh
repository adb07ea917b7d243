#!/usr/bin/env bash
# Builds the x86_64 benchmarks and runs each given one (all by default), then prints the
# Velmor/peer ratios of that run.  bench/run-ratios.sh [bench_name ...]
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake --preset x86_64 >/dev/null
cmake --build --preset x86_64 >/dev/null
out=$(mktemp -d)
names=("$@")
if [ ${#names[@]} -eq 0 ]; then
    mapfile -t names < <(find build/x86_64/bench -maxdepth 1 -type f -name 'bench_*' -executable -printf '%f\n' | sort)
fi
for name in "${names[@]}"; do
    "build/x86_64/bench/$name" --benchmark_out="$out/$name.json" --benchmark_out_format=json \
        --benchmark_repetitions=3 --benchmark_report_aggregates_only=true >/dev/null
done
python3 bench/ratios.py "$out"/*.json
