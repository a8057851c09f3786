#!/usr/bin/env bash
# Runs a command as a Wayland client of a private headless weston (1280x1024, pixman renderer, --debug so that
# weston-screenshooter may take screenshots), torn down afterwards.
#   scripts/with-weston.sh COMMAND [ARGS...]
# The command gets XDG_RUNTIME_DIR, WAYLAND_DISPLAY and QT_QPA_PLATFORM=wayland, and a session bus of its own where
# none is given, and a fresh empty XDG_DATA_HOME (see with-display.sh); its exit status is returned.
# Without weston it returns 77 (a skipped test under ctest), saying so.
set -euo pipefail
(($#)) || { echo "usage: $0 COMMAND [ARGS...]" >&2; exit 2; }
command -v weston >/dev/null || { echo "weston is not installed (scripts/deps.sh): skipped"; exit 77; }

XDG_RUNTIME_DIR=$(mktemp -d)
export XDG_RUNTIME_DIR
chmod 700 "$XDG_RUNTIME_DIR"
XDG_DATA_HOME=$XDG_RUNTIME_DIR/data
export XDG_DATA_HOME
export WAYLAND_DISPLAY=wayland-sudoku
weston --backend=headless-backend.so --use-pixman --debug --socket="$WAYLAND_DISPLAY" --width=1280 --height=1024 \
  --idle-time=0 >"$XDG_RUNTIME_DIR/weston.log" 2>&1 &
weston=$!
bus=
if [[ -z ${DBUS_SESSION_BUS_ADDRESS:-} ]]; then
  eval "$(dbus-launch --sh-syntax)"
  bus=$DBUS_SESSION_BUS_PID
fi
cleanup() {
  kill "$weston" $bus 2>/dev/null || true
  wait "$weston" 2>/dev/null || true
  rm -rf "$XDG_RUNTIME_DIR"
}
trap cleanup EXIT
for _ in $(seq 600); do
  [[ -S $XDG_RUNTIME_DIR/$WAYLAND_DISPLAY ]] && break
  kill -0 "$weston" 2>/dev/null || { cat "$XDG_RUNTIME_DIR/weston.log" >&2; exit 1; }
  sleep 0.1
done
[[ -S $XDG_RUNTIME_DIR/$WAYLAND_DISPLAY ]] || { echo "weston did not start" >&2; exit 1; }
QT_QPA_PLATFORM=wayland "$@"
