#!/usr/bin/env bash
# Runs a command on a real X server: a private Xvfb (1280x1024x24) with the
# openbox window manager, torn down afterwards.
#   scripts/with-display.sh [--dpi N] COMMAND [ARGS...]
# --dpi sets Xft.dpi through xrdb before the command starts (default 96, as a
# desktop session sets it; Xvfb alone would report 100). The command gets
# DISPLAY and QT_QPA_PLATFORM=xcb, and a session bus of its own where none is
# given, and a fresh empty XDG_DATA_HOME, so that a game the program keeps
# there is neither the user's nor another run's; its exit status is returned.
set -euo pipefail
dpi=96
if [[ ${1:-} == --dpi ]]; then
  dpi=$2
  shift 2
fi
(($#)) || { echo "usage: $0 [--dpi N] COMMAND [ARGS...]" >&2; exit 2; }

pids=()
fifo_dir=$(mktemp -d)
XDG_DATA_HOME=$(mktemp -d)
export XDG_DATA_HOME
cleanup() {
  for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
  wait 2>/dev/null || true
  rm -rf "$fifo_dir" "$XDG_DATA_HOME"
}
trap cleanup EXIT

# Xvfb picks a free display itself and writes its number to the pipe.
mkfifo "$fifo_dir/fd"
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$fifo_dir/fd" 2>/dev/null &
pids+=($!)
read -r -t 60 number <"$fifo_dir/fd" || { echo "Xvfb did not start" >&2; exit 1; }
export DISPLAY=":$number"

if [[ -n $dpi ]]; then
  echo "Xft.dpi: $dpi" | xrdb -merge
fi

openbox >/dev/null 2>&1 &
pids+=($!)
# Poll until the window manager owns the screen.
for _ in $(seq 600); do
  xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break
  sleep 0.1
done
xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' ||
  { echo "openbox did not start" >&2; exit 1; }

# As on a desktop, the session bus exists before the program starts. Without
# one, libdbus forks a launcher from inside the program, and a sanitizer
# build's child can then hang on an allocator lock another thread held.
if [[ -z ${DBUS_SESSION_BUS_ADDRESS:-} ]]; then
  eval "$(dbus-launch --sh-syntax)"
  pids+=("$DBUS_SESSION_BUS_PID")
fi

export QT_QPA_PLATFORM=xcb
set +e
"$@"
status=$?
set -e
exit $status
