#!/bin/bash
# Every source of ours is laid out as .clang-format says.
set -euo pipefail
cd "$(dirname "$0")/.."
find . -path ./build -prune -o \( -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 --no-run-if-empty clang-format --dry-run -Werror
