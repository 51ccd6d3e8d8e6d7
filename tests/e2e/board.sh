# Sourced after person.sh by the tests that look at the board: where it lies on the screen, and which colour
# its places have. Places are told in ten thousandths of the board's width.

active_title() { xdotool getactivewindow getwindowname 2>/dev/null || true; }
is_active() { active_title | grep -qE "$1"; }
see_active() { until_true 20 is_active "$1" || fail "\"$1\" isn't in front but \"$(active_title)\""; }

# X, Y, WIDTH and HEIGHT of a window without its frame; xdotool's own figures count the frame twice.
measure_window() {
    read -r X Y WIDTH HEIGHT < <(xwininfo -id "$1" | awk '/Absolute upper-left X/ { x = $4 }
        /Absolute upper-left Y/ { y = $4 } /^ *Width/ { w = $2 } /^ *Height/ { h = $2 } END { print x, y, w, h }')
}

# It is white at its edges, so the column behind its left one holds no longer run of white.
measure_board() {
    local top
    measure_window "$(xdotool search --onlyvisible --name '^Tavlora: ' | tail -1)" || return 1
    board_x=$((X + 8))
    read -r top board_side < <(import -window root -crop "1x${HEIGHT}+$((board_x + 4))+${Y}" -depth 8 rgb:- |
        od -An -v -tx1 -w3 | awk '{ run = $0 == " ff ff ff" ? run + 1 : 0 }
                                  run > longest { longest = run; last = NR } END { print last - longest, longest + 0 }')
    board_y=$((Y + top))
    [ "$board_side" -gt 200 ]
}
find_board() { until_true 20 measure_board || fail "no board in the main window"; }

# Before the first paint the board's place is white as a whole, and a measure of it means nothing.
measure_painted_board() { measure_board && has_colour 5000 4500 00B0FF; }
find_whole_board() { until_true 20 measure_painted_board || fail "no board with its panel in the main window"; }

point_at() { xdotool mousemove $((board_x + board_side * $1 / 10000)) $((board_y + board_side * $2 / 10000)); }
click_board() {
    point_at "$1" "$2"
    sleep 0.1
    xdotool click 1
    sleep 0.3
}

# Colour of a place as RRGGBB.
colour_of() {
    import -window root -crop "1x1+$((board_x + board_side * $1 / 10000))+$((board_y + board_side * $2 / 10000))" \
        -depth 8 rgb:- | od -An -tx1 | tr -d ' \n' | tr a-f A-F
}
has_colour() { [ "$(colour_of "$1" "$2")" = "$3" ]; }
# see_colour X Y COLOUR WHAT
see_colour() { until_true 10 has_colour "$1" "$2" "$3" || fail "$4 is $(colour_of "$1" "$2") instead of $3"; }

ok() { echo "ok: $*"; }
