#!/usr/bin/env bash
# Builds Sudoku Vantu and launches it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release > /dev/null
cmake --build build -j"$(nproc)" --target sudoku-vantu
exec ./build/ui/sudoku-vantu "$@"
