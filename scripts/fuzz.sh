#!/usr/bin/env bash
# Builds the fuzzers with clang and runs each for the given number of seconds (default 60, split between the two):
# fuzz_sud on the saved-game seeds in fuzz/corpus, fuzz_play on the play scripts in fuzz/corpus-play, each with its
# dictionary. New units stay in build-fuzz/corpus and build-fuzz/corpus-play; further arguments go to libFuzzer as
# they are. Every unit runs in milliseconds: the generous per-unit timeout only keeps a run on a busy machine (a
# starved process) from being reported as a hang.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
bash scripts/deps.sh
CC=clang CXX=clang++ cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DSUDOKU_BUILD_UI=OFF -DSUDOKU_BUILD_TESTS=OFF -DSUDOKU_FUZZ=ON > /dev/null
cmake --build build-fuzz -j"$(nproc)" --target fuzz_sud fuzz_play
for target in fuzz_sud:corpus fuzz_play:corpus-play; do
  name=${target%%:*} seeds=fuzz/${target#*:} work=build-fuzz/${target#*:}
  mkdir -p "$work"
  cp -n "$seeds"/* "$work"/ 2>/dev/null || true
  echo "== $name"
  ./build-fuzz/fuzz/"$name" -max_total_time=$(((seconds + 1) / 2)) -max_len=20000 -timeout=60 -rss_limit_mb=2048 \
    -dict=fuzz/"$name".dict -print_final_stats=1 -artifact_prefix=build-fuzz/"$name"- "${@:2}" "$work"
done
