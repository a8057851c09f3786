#!/usr/bin/env bash
# Builds everything and runs every test: the full suite, the engine tests again
# under AddressSanitizer and UBSan, and a short fuzzing run of the saved-game reader.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
jobs=$(nproc)

echo "== Build and test"
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release -DSUDOKU_BUILD_BENCH=ON > /dev/null
cmake --build build -j"$jobs"
ctest --test-dir build --output-on-failure -j"$jobs"

echo "== Engine tests with sanitizers"
cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=Debug -DSUDOKU_BUILD_UI=OFF -DSUDOKU_SANITIZE=ON > /dev/null
cmake --build build-asan -j"$jobs" --target engine_tests
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
  ctest --test-dir build-asan --output-on-failure -j"$jobs"

if [ -f scripts/fuzz.sh ]; then
  echo "== Fuzzing the saved-game reader"
  bash scripts/fuzz.sh "${SUDOKU_FUZZ_SECONDS:-45}"
fi
