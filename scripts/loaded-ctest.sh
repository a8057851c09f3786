#!/usr/bin/env bash
# Runs the whole test suite RUNS times in a row (default 10), each time with
# `ctest -j2` beside a CPU hog (stress-ng --cpu 1, or a busy loop without it),
# the way CI runs on a shared two-core machine. Stops at the first failing run
# and prints its log. Usage: scripts/loaded-ctest.sh [RUNS] (BUILD_DIR=build).
set -euo pipefail
cd "$(dirname "$0")/.."
runs=${1:-10}
build=${BUILD_DIR:-build}
export CCACHE_BASEDIR=${CCACHE_BASEDIR:-$(cd .. && pwd)}

if [ ! -f "$build/CMakeCache.txt" ]; then
  cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release -DSUDOKU_BUILD_BENCH=ON > /dev/null
fi
cmake --build "$build" -j2 > /dev/null

log=$(mktemp)
if command -v stress-ng > /dev/null; then
  stress-ng --cpu 1 --quiet &
  hog_name="stress-ng --cpu 1"
else
  bash -c 'while :; do :; done' &
  hog_name="a busy loop"
fi
hog=$!
trap 'kill "$hog" 2> /dev/null || true; wait "$hog" 2> /dev/null || true; rm -f "$log"' EXIT

passed=0
total_seconds=0
for ((run = 1; run <= runs; ++run)); do
  start=$SECONDS
  if ctest --test-dir "$build" -j2 --output-on-failure > "$log" 2>&1; then
    status=passed
    passed=$((passed + 1))
  else
    status=FAILED
  fi
  seconds=$((SECONDS - start))
  total_seconds=$((total_seconds + seconds))
  echo "run $run/$runs: $status in ${seconds} s ($(grep -o '[0-9]*% tests passed.*' "$log"))"
  if [ "$status" = FAILED ]; then
    grep -E '\*\*\*|Failed|FAIL' "$log" | head -40
    echo
    echo "loaded ctest: run $run failed beside $hog_name, after $passed passing runs"
    exit 1
  fi
done
echo
echo "loaded ctest: $passed of $runs runs passed beside $hog_name (average $((total_seconds / runs)) s a run)"
