#!/usr/bin/env bash
# Runs a command as on a desktop with a screen reader: a private session bus, the accessibility bus
# (at-spi-bus-launcher) and its registry, and QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 for the Qt programs it
# starts. Run it on an X display (scripts/with-display.sh). Exit 77 when a tool is missing.
#   scripts/with-accessibility-bus.sh COMMAND [ARGS...]
set -euo pipefail
launcher=/usr/libexec/at-spi-bus-launcher registry=/usr/libexec/at-spi2-registryd
for tool in dbus-launch dbus-send gdbus "$launcher" "$registry"; do
  command -v "$tool" >/dev/null || { echo "SKIPPED: $tool is missing (scripts/deps.sh installs it)"; exit 77; }
done
XDG_RUNTIME_DIR=$(mktemp -d)
export XDG_RUNTIME_DIR
eval "$(dbus-launch --sh-syntax)"
pids=("$DBUS_SESSION_BUS_PID")
cleanup() {
  kill "${pids[@]}" 2>/dev/null || true
  rm -rf "$XDG_RUNTIME_DIR"
}
trap cleanup EXIT

# Polls a D-Bus call until it answers.
answers() {
  for _ in $(seq 300); do
    "$@" >/dev/null 2>&1 && return 0
    sleep 0.1
  done
  echo "no answer from: $*" >&2
  exit 1
}
"$launcher" --launch-immediately --a11y=1 >/dev/null 2>&1 &
pids+=($!)
answers dbus-send --session --dest=org.a11y.Bus --print-reply /org/a11y/bus org.a11y.Bus.GetAddress
address=$(dbus-send --session --dest=org.a11y.Bus --print-reply /org/a11y/bus org.a11y.Bus.GetAddress |
  sed -n 's/^ *string "\(.*\)"$/\1/p')
"$registry" >/dev/null 2>&1 &
pids+=($!)
registered() {
  gdbus call --address "$address" --dest org.freedesktop.DBus --object-path /org/freedesktop/DBus \
    --method org.freedesktop.DBus.NameHasOwner org.a11y.atspi.Registry | grep -q true
}
answers registered

export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
set +e
"$@"
status=$?
set -e
exit $status
