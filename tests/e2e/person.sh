# Sourced by the tests that act as a person in front of the real program: a display of its own, a fresh home
# folder, and words for what a person does and sees. Usage: source person.sh PROGRAM DATA_FOLDER

set -euo pipefail

program=$(realpath "$1")
data=$(realpath "$2")
for tool in Xvfb xdotool xwininfo xprop openbox import; do
    if ! command -v "$tool" >/dev/null; then
        echo "skipped: there is no $tool on this machine"
        exit 77
    fi
done

home=$(mktemp -d)
games="$home/Documents/My Games"
pids=()

clean_up() {
    # The program first: it would complain about a display that is gone.
    for ((i = ${#pids[@]} - 1; i >= 0; i--)); do
        kill "${pids[$i]}" 2>/dev/null || true
        wait "${pids[$i]}" 2>/dev/null || true
    done
    rm -rf "$home"
}
trap clean_up EXIT

fail() {
    echo "FAILED: $*" >&2
    xdotool search --onlyvisible --name . getwindowname %@ 2>/dev/null | sed 's/^/  open window: /' >&2 || true
    tail -20 "$home/errors" "$games"/*.log >&2 2>/dev/null || true
    [ -n "${E2E_PICTURES:-}" ] && import -window root "$E2E_PICTURES/failed.png"
    exit 1
}

# until_true SECONDS COMMAND...
until_true() {
    local tries=$(($1 * 10))
    shift
    while ! "$@" >/dev/null 2>&1; do
        tries=$((tries - 1))
        [ $tries -gt 0 ] || return 1
        sleep 0.1
    done
}

# The display finds a free number by itself.
start_display() {
    # Without -noreset the display starts anew, and drops who is just coming, whenever its last client goes.
    Xvfb -noreset -displayfd 3 -screen 0 "${E2E_SCREEN:-1280x1024}x24" 3>"$home/display" 2>>"$home/errors" &
    local display_pid=$!
    pids+=("$display_pid")
    until_true 20 display_is_known_or_gone "$display_pid"
    [ -s "$home/display" ] || return 1
    DISPLAY=:$(cat "$home/display")
    export DISPLAY
    until_true 10 xdotool getdisplaygeometry
}
display_is_known_or_gone() { [ -s "$home/display" ] || ! kill -0 "$1"; }

# Windows that come before it are placed and activated by nobody.
window_manager_is_there() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }

open_display() {
    mkdir -p "$games" "$home/runtime"
    chmod 700 "$home/runtime"
    export HOME=$home XDG_RUNTIME_DIR=$home/runtime QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1
    unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_DOCUMENTS_DIR
    start_display || fail "the display doesn't start"
    openbox 2>/dev/null &
    pids+=($!)
    until_true 20 window_manager_is_there || fail "the window manager doesn't start"
    # Neither the welcome nor the splash stands in the way of a test that isn't about them.
    printf '[tavlora]\r\nShowSplash=false\r\n' >"$games/tavlora.ini"
}

start_program() {
    "$program" "$@" 2>>"$home/errors" &
    pids+=($!)
    program_pid=$!
}

# Waits until a window with this title has come, and makes it the one that the keys go to.
see_window() {
    local i
    for ((i = 0; i < 150; i++)); do
        window=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -1) || true
        if [ -n "$window" ]; then
            # It would wait for ever for a window that has gone meanwhile.
            timeout 10 xdotool windowactivate --sync "$window" 2>/dev/null || true
            sleep 0.3
            return
        fi
        kill -0 "$program_pid" 2>/dev/null || fail "the program ended before a window \"$1\" came"
        sleep 0.2
    done
    fail "no window \"$1\""
}

see_no_window() {
    local i
    for ((i = 0; i < 150; i++)); do
        [ -n "$(xdotool search --onlyvisible --name "$1" 2>/dev/null)" ] || return 0
        sleep 0.2
    done
    fail "the window \"$1\" is still open"
}

press() { xdotool key --delay 30 "$@"; }
type_text() { xdotool type --delay 15 "$1"; }

# Clicks at fractions of the width and height of the window seen last.
click_at() {
    local X Y WIDTH HEIGHT SCREEN WINDOW
    eval "$(xdotool getwindowgeometry --shell "$window")"
    xdotool mousemove --window "$window" "$(awk "BEGIN { print int($1 * $WIDTH) }")" \
        "$(awk "BEGIN { print int($2 * $HEIGHT) }")" click 1
}

picture_of_window() { import -window "$window" "$1"; }

# A sample as if nobody had chosen pictures yet: copy_without_pictures SAMPLE GAME
copy_without_pictures() { sed 's|"[a-z]*/[^"]*", 320, 320, 0|"", 0, 0, 0|' "$1" >"$2"; }

wait_for_end() {
    local i
    for ((i = 0; i < 150; i++)); do
        kill -0 "$program_pid" 2>/dev/null || return 0
        sleep 0.2
    done
    fail "the program is still running"
}

# The line must stand in the file, to the letter.
expect_in_file() { grep -qF -- "$2" "$1" || fail "\"$2\" is not in $(basename "$1"): $(head -3 "$1")"; }
