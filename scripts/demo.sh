#!/usr/bin/env bash
# Installs what is missing, builds the library and runs the demo, which
# writes demo.png in the current directory.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
"$root/scripts/deps.sh"
cmake -S "$root" -B "$root/build" -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build "$root/build" -j"$(nproc)" --target vok_demo
"$root/build/examples/vok_demo"
