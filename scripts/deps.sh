#!/usr/bin/env bash
# Installs the Debian packages the build and the tests need, when missing.
set -euo pipefail

packages=(
  build-essential cmake pkg-config libfontconfig-dev
  qtbase5-dev qtbase5-private-dev qtmultimedia5-dev libqt5multimedia5-plugins libqt5svg5 qtwayland5
  qttools5-dev qttools5-dev-tools qttranslations5-l10n
  qt6-base-dev qt6-base-private-dev qt6-multimedia-dev qt6-wayland libgl-dev
  qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-translations-l10n
  googletest libgtest-dev libgmock-dev libbenchmark-dev
  clang libclang-rt-14-dev
  poppler-utils
  xvfb openbox xdotool imagemagick x11-utils x11-xserver-utils libxcb1-dev weston
  stress-ng desktop-file-utils appstream ccache fonts-droid-fallback
  at-spi2-core dbus-x11 libglib2.0-bin python3-pyatspi
  dpkg-dev file
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done

if ((${#missing[@]})); then
  echo "Installing: ${missing[*]}"
  export DEBIAN_FRONTEND=noninteractive
  apt-get update -qq
  apt-get install -y -qq "${missing[@]}"
fi
