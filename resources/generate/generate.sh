#!/usr/bin/env bash
# Redraws the icons and the sound into resources/. The results are committed.
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"
out="$(dirname "$here")"
tmp="$(mktemp -d)"
g++ -std=c++17 -fPIC "$here/make_icons.cpp" -o "$tmp/make_icons" $(pkg-config --cflags --libs Qt5Gui)
QT_QPA_PLATFORM="${QT_QPA_PLATFORM:-offscreen}" "$tmp/make_icons" "$out"
python3 "$here/make_cuckoo.py" "$out/cuckoo.wav"
rm -rf "$tmp"
