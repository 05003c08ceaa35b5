#!/usr/bin/env bash
# Builds and runs the benchmarks against OpenCV. Extra arguments go to the
# benchmark program, e.g. --benchmark_filter=Add.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
"$root/scripts/deps.sh" bench
cmake -S "$root" -B "$root/build-bench" -DCMAKE_BUILD_TYPE=Release \
  -DVOK_BUILD_BENCH=ON -DVOK_BUILD_TESTS=OFF >/dev/null
cmake --build "$root/build-bench" -j"$(nproc)" --target vok_bench
"$root/build-bench/bench/vok_bench" "$@"
