#!/usr/bin/env bash
# Installs what building, running and testing Kelvora needs on Debian, when it is missing.
set -euo pipefail

packages=(cmake ninja-build g++ pkg-config qt6-base-dev qt6-base-dev-tools libqt6sql6-sqlite libgl-dev
          sqlite3 libsqlite3-dev libxlsxwriter-dev)
# The report tests read saved PDFs and zip-based exports back as text, names in Devanagari included.
packages+=(poppler-utils unzip fonts-lohit-deva)
# Form 16A in a batch draws many certificates into one PDF and splits it, a file per deductee.
packages+=(libqpdf-dev)
if [ "${1:-}" = "--gui" ]; then
    # Only for looking at the program on a machine without a display, and for the manual's
    # screenshots (scripts/manual-screenshots.sh).
    packages+=(xvfb xauth imagemagick openbox xdotool)
fi

missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' \
        || missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
    sudo=""
    [ "$(id -u)" -eq 0 ] || sudo="sudo"
    $sudo apt-get update
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y --no-install-recommends "${missing[@]}"
fi
