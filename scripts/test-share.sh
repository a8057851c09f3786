#!/usr/bin/env bash
# Prints the share of the tests in the hand-written code, counted in non-blank lines of the committed files:
# everything under tests/ against the engine, the widgets (sources and scripts, not the forms), the benchmarks, the
# fuzz targets (not their corpora and dictionaries), the scripts and the resource generator.
set -euo pipefail
cd "$(dirname "$0")/.."
nb() { if [ $# -eq 0 ]; then echo 0; else cat "$@" | grep -cv '^\s*$' || true; fi; }
mapfile -t tests < <(git ls-files 'tests/*')
mapfile -t code < <(git ls-files 'engine/*.cpp' 'engine/*.h' 'ui/*.cpp' 'ui/*.h' 'ui/*.py' 'bench/*.cpp' \
    'fuzz/*.cpp' 'fuzz/*.h' 'scripts/*' 'resources/generate/*')
t=$(nb "${tests[@]}")
c=$(nb "${code[@]}")
awk -v t="$t" -v c="$c" 'BEGIN { printf "tests %d, code %d, share %.1f%%\n", t, c, 100 * t / c }'
