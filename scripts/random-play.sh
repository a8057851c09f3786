#!/usr/bin/env bash
# Long random play through the engine: SESSIONS sessions (default 20000) of the
# random-play test, in the Release build. Usage: scripts/random-play.sh [SESSIONS]
set -euo pipefail
cd "$(dirname "$0")/.."
sessions=${1:-20000}
build=${BUILD_DIR:-build}
export CCACHE_BASEDIR=${CCACHE_BASEDIR:-$(cd .. && pwd)}
if [ ! -f "$build/CMakeCache.txt" ]; then
  cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release > /dev/null
fi
cmake --build "$build" -j"$(nproc)" --target engine_tests > /dev/null
start=$SECONDS
SUDOKU_RANDOM_PLAY_SESSIONS=$sessions "$build/tests/engine_tests" --gtest_filter='RandomPlay.*' --gtest_brief=1
echo "random play: $sessions sessions passed in $((SECONDS - start)) s"
