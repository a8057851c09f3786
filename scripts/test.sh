#!/usr/bin/env bash
# Builds everything and runs every test: the full suite on Qt 5, the engine and
# widget tests again under AddressSanitizer and UBSan, a short run of each
# fuzzer, and the full suite again on Qt 6 (skipped, saying why, where Qt 6 is
# not installed).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
jobs=$(nproc)
# The compiler cache keys paths below the checkout relative to it, so another clone reuses what one has built.
export CCACHE_BASEDIR=$PWD
log=$(mktemp)
trap 'rm -f "$log"' EXIT

echo "== Build and test (Qt 5)"
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release -DSUDOKU_BUILD_BENCH=ON > /dev/null
cmake --build build -j"$jobs"
ctest --test-dir build --output-on-failure -j"$jobs" | tee -a "$log"

echo "== Engine and widget tests with sanitizers"
# The leak checker ignores only what Qt's offscreen platform plugin and, after
# the real-display tests, libdbus keep until the process ends.
cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=Debug -DSUDOKU_SANITIZE=ON > /dev/null
cmake --build build-asan -j"$jobs"
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
  LSAN_OPTIONS=suppressions="$PWD/scripts/lsan-qt-platform.supp" \
  ctest --test-dir build-asan --output-on-failure -j"$jobs" | tee -a "$log"

echo "== Fuzzing the saved-game reader and play scripts"
bash scripts/fuzz.sh "${SUDOKU_FUZZ_SECONDS:-45}"

echo "== Build and test (Qt 6)"
mkdir -p build-qt6
if cmake -S . -B build-qt6 -DCMAKE_BUILD_TYPE=Release -DSUDOKU_QT_MAJOR=6 > build-qt6/configure.log 2>&1; then
  cmake --build build-qt6 -j"$jobs"
  ctest --test-dir build-qt6 --output-on-failure -j"$jobs" | tee -a "$log"
else
  echo "Qt 6 skipped:$(awk '/CMake Error/ {on = 1; next} on && /^$/ {exit} on' build-qt6/configure.log | tr -s ' \n' ' ')"
fi

# One closing line for all test runs.
passed=0
total=0
while read -r p t; do
  passed=$((passed + p))
  total=$((total + t))
done < <(sed -n 's/^.*tests passed, \([0-9]*\) tests failed out of \([0-9]*\)$/\1 \2/p' "$log" |
         awk '{print $2 - $1, $2}')
echo
echo "tests: $passed passed, $((total - passed)) failed"
