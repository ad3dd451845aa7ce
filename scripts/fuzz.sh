#!/bin/bash
# One fuzzer for MAGPIE_FUZZ_SECONDS: ./scripts/fuzz.sh NAME
# Its seeds are in fuzz/corpus/NAME. What it learns stays in build/fuzz, so that
# the next run goes on from there; inputs that fail are put beside it.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
learned=$root/build/fuzz/corpus/$1
findings=$root/build/fuzz/findings
seeds=$root/fuzz/corpus/$1
mkdir -p "$learned" "$findings"
exec "$root/build/fuzz/bin/$1" -max_total_time="${MAGPIE_FUZZ_SECONDS:-5}" -timeout=10 \
    -print_final_stats=1 -artifact_prefix="$findings/$1-" "$learned" "$seeds"
