#!/usr/bin/env bash
# Installs what is missing, builds the library and runs the whole test suite.
#   scripts/test.sh             optimised build in build/
#   scripts/test.sh --sanitize  AddressSanitizer and UndefinedBehaviorSanitizer
#                               build in build-sanitize/
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
"$root/scripts/deps.sh"
dir=$root/build flags=(-DCMAKE_BUILD_TYPE=Release)
if [ "${1:-}" = "--sanitize" ]; then
  dir=$root/build-sanitize flags=(-DCMAKE_BUILD_TYPE=Release -DVOK_SANITIZE=ON)
fi
cmake -S "$root" -B "$dir" "${flags[@]}" >/dev/null
cmake --build "$dir" -j"$(nproc)"
cd "$dir" && ctest --output-on-failure
