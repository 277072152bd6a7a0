#!/usr/bin/env bash
# Takes the user manual's pictures from the real program on a virtual display (1366x768), on a
# demo data store made for the purpose, and writes them as small palette PNGs into doc/images/.
# Re-run it after a screen changes: scripts/manual-screenshots.sh [BUILD_DIR]
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
build=$(realpath -m "${1:-build}")
images=$root/doc/images

scripts/install-deps.sh --gui
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build "$build" --target kelvora Backup kelvora-newstore kelvora-returns

# The program and the backup program in a folder of their own, with the demo store beside them.
base=$(mktemp -d)
work=$base/Kelvora
mkdir "$work"
pids=()
cleanup() {
    for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
    rm -rf "$base"
}
trap cleanup EXIT
cp "$build/bin/kelvora" "$build/bin/Backup" "$work/"
"$build/bin/kelvora-newstore" --year 2026 "$work/Kelvora.db" >/dev/null

exec 3> "$work/display"
Xvfb -displayfd 3 -screen 0 1366x768x24 -nolisten tcp >/dev/null 2>&1 &
pids+=($!)
for _ in $(seq 50); do [ -s "$work/display" ] && break; sleep 0.1; done
export DISPLAY=":$(cat "$work/display")"
openbox >/dev/null 2>&1 &
pids+=($!)
sleep 1

kelvora=0
start_kelvora() {
    (cd "$work" && exec ./kelvora) >/dev/null 2>&1 &
    kelvora=$!
    pids+=("$kelvora")
    xdotool search --sync --onlyvisible --name '^Kelvora :' >/dev/null
    sleep 2
}
stop_kelvora() {
    kill "$kelvora" 2>/dev/null || true
    wait "$kelvora" 2>/dev/null || true
}
# Each screen is taken from a fresh start, so that it opens where a user first sees it.
fresh() {
    stop_kelvora
    start_kelvora
}
keys() {
    for key in "$@"; do
        xdotool key --clearmodifiers "$key"
        sleep 0.5
    done
    sleep 1.5
}
click() {
    xdotool mousemove "$1" "$2" click 1
    sleep 1.5
}
fill() {
    click "$1" "$2"
    xdotool type --delay 40 "$3"
}
save() {
    convert "$work/screen.png" "$@" +dither -colors 64 "PNG8:$images/$name.png"
    echo "doc/images/$name.png"
}
# shot NAME [WxH+X+Y]: the whole screen or a part of it.
shot() {
    name=$1
    import -window root "$work/screen.png"
    save -crop "${2:-1366x768+0+0}" +repage
}
# screen NAME: the main window's menu and the screens open in it, down to their lower right.
screen() {
    name=$1
    import -window root "$work/screen.png"
    local box w h x y
    box=$(convert "$work/screen.png" -crop 1366x730+0+38 +repage -bordercolor "$desk" -border 1 \
        -format '%@' info:)
    IFS='x+' read -r w h x y <<< "$box"
    save -crop "$((x - 1 + w))x$((38 + y - 1 + h))+0+0" +repage
}
# window NAME: a window of its own, without the desktop around it.
window() {
    name=$1
    import -window root "$work/screen.png"
    save -bordercolor black -border 1 -trim +repage
}
desk='rgb(159,159,159)' # the main window's empty area

# The first start brings the fresh store up to date; then the demo office is filled in.
start_kelvora
stop_kelvora
sqlite3 "$work/Kelvora.db" < "$root/scripts/manual-demo.sql"
mkdir -p "$images"

start_kelvora
keys alt+m
shot main-menu 480x250+0+0

fresh
keys alt+m g
screen group-master

fresh
keys alt+m c Return alt+e
shot company-master 1010x768+0+0

fresh
keys alt+m d
click 300 452
screen deductee-master

# A Statement: the company and the quarter, then the panels of the statement screen.
fresh
keys alt+t o
screen select-company
keys alt+s
screen statement-basic
click 69 155
click 300 463
screen statement-challan
click 69 183
click 300 570
screen statement-deductee
click 69 227
keys Return
click 795 631
keys y Return
screen statement-generation
click 913 631
sleep 2
screen form-27a

# The check before filing of the same Statement, beside its screen.
fresh
keys alt+t o alt+s
click 69 255
keys Return
screen statement-check

# Form 16A of the quarter's deductees.
fresh
keys alt+r Down Down Down Down Return alt+s
click 20 370
fill 443 397 PUNE
fill 226 425 15/07/2026
fill 443 425 'ANIL DESHPANDE'
fill 226 453 DIRECTOR
screen form-16a
click 383 481
sleep 2
screen form-16a-preview

# Backup & Restore from the Utilities menu: the program ends, the backup window takes over, and
# closing it brings the program back.
fresh
keys alt+u b
shot backup-question 700x300+333+234
keys y
xdotool search --sync --onlyvisible --name '^Backup & Restore$' >/dev/null
sleep 2
keys alt+u Return
window backup-window
keys alt+r
window restore-question
keys Escape alt+c
back=$(xdotool search --sync --onlyvisible --name '^Kelvora :' getwindowpid)
pids+=("$back")
echo "the program came back after the backup window closed"
