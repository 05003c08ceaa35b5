#!/usr/bin/env bash
# Installs the Debian packages that are missing for the given purposes:
#   build (always), bench (OpenCV and Google Benchmark).
set -euo pipefail
packages=(cmake g++ make binutils pkg-config libhwy-dev libgtest-dev)
for purpose in "$@"; do
  case "$purpose" in
    bench) packages+=(libbenchmark-dev libopencv-dev) ;;
  esac
done
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "installing: ${missing[*]}"
  apt-get update -qq
  DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${missing[@]}" >/dev/null
fi
