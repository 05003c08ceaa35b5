#!/usr/bin/env bash
# Usage: check_exports.sh LIBRARY EXPORTS_DIR
# Fails when the library exports a name outside voki*/voks*/vokConstantOf*,
# or a name that the interface's list does not have. Skips (77) when the list
# is not beside the checkout.
set -euo pipefail
library=$1 exports=$2
[ -d "$exports" ] || { echo "no export list at $exports"; exit 77; }
defined=$(nm -D --defined-only "$library" | awk '{print $3}' | sort -u)
stray=$(grep -vE '^(voki|voks|vokConstantOf)' <<<"$defined" || true)
if [ -n "$stray" ]; then echo "exported outside the interface:"; echo "$stray"; exit 1; fi
unknown=$(comm -23 <(echo "$defined") <(cat "$exports"/*.txt | sort -u))
if [ -n "$unknown" ]; then echo "not in the interface's list:"; echo "$unknown"; exit 1; fi
echo "$(wc -l <<<"$defined") exported names, all in the interface's list"
