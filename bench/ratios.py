#!/usr/bin/env python3
"""Prints Velmor/peer time ratios from Google Benchmark JSON output.

Benchmarks are named "<operation>/<implementation>[/<arguments>]"; the implementation
"velmor" is compared with every other implementation of the same operation and arguments.
A ratio below 1 means Velmor is faster.
"""
import json
import sys
from collections import defaultdict


def main(paths):
    times = defaultdict(dict)
    for path in paths:
        with open(path) as handle:
            for entry in json.load(handle)["benchmarks"]:
                if entry.get("run_type") == "aggregate" and entry.get("aggregate_name") != "median":
                    continue
                parts = entry["run_name"].split("/")
                if len(parts) < 2:
                    continue
                key = (parts[0], "/".join(parts[2:]))
                times[key][parts[1]] = entry["real_time"]
    print(f"{'operation':<34} {'args':<14} {'peer':<10} {'velmor':>10} {'peer':>10} {'ratio':>7}")
    for (operation, args), by_impl in sorted(times.items()):
        if "velmor" not in by_impl:
            continue
        for peer, peer_time in sorted(by_impl.items()):
            if peer == "velmor" or peer_time == 0:
                continue
            ratio = by_impl["velmor"] / peer_time
            print(f"{operation:<34} {args:<14} {peer:<10} {by_impl['velmor']:>10.2f} "
                  f"{peer_time:>10.2f} {ratio:>7.2f}")


if __name__ == "__main__":
    main(sys.argv[1:])
