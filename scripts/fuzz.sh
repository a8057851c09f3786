#!/usr/bin/env bash
# Builds the saved-game fuzzer with clang and runs it for the given number of
# seconds (default 60), starting from the seed corpus in fuzz/corpus. New units
# stay in build-fuzz/corpus; further arguments go to libFuzzer as they are.
# Every unit runs in milliseconds: the generous per-unit timeout only keeps a
# run on a busy machine (a starved process) from being reported as a hang.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
bash scripts/deps.sh
CC=clang CXX=clang++ cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DSUDOKU_BUILD_UI=OFF -DSUDOKU_BUILD_TESTS=OFF -DSUDOKU_FUZZ=ON > /dev/null
cmake --build build-fuzz -j"$(nproc)" --target fuzz_sud
work=build-fuzz/corpus
mkdir -p "$work"
cp -n fuzz/corpus/* "$work"/ 2>/dev/null || true
./build-fuzz/fuzz/fuzz_sud -max_total_time="$seconds" -max_len=20000 -timeout=60 \
  -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix=build-fuzz/ "${@:2}" "$work"
