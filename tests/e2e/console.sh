# Sourced by the tests that print from the console: its sheets, and words for how a person prints one.

# Of each sheet: the key of its menu, the keys of its button, its name, the width and height of its page in points.
sheets=(
    "alt+b|alt+b|Box Top & Token Stickers|792 x 612"
    "alt+b|alt+w|West, South & Corner Board Stickers|792 x 612"
    "alt+b|alt+e|East, North & Title Board Stickers|792 x 612"
    "alt+t|alt+1|Property Deed Sheet #1|612 x 792"
    "alt+t|alt+2|Property Deed Sheet #2|612 x 792"
    "alt+g|alt+g|Good News Cards|612 x 792"
    "alt+g|alt+b|Bad News Cards|612 x 792"
    "alt+y|alt+1|\$ 100|612 x 792"
    "alt+y|alt+5|\$ 500|612 x 792"
    "alt+y|alt+0|\$ 1,000|612 x 792"
    "alt+y|Tab Tab Tab Return|\$ 5,000|612 x 792"
    "alt+i|alt+p|Game Play Instruction Sheet|612 x 792"
)

open_console() {
    see_window '^Tavlora: '
    press ctrl+p
    see_window '^Print Your Own Tavlo$'
}

# A button shows for a moment that it is pressed, and acts after that.
press_button() {
    local keys
    read -ra keys <<<"$1"
    press "${keys[@]}"
    sleep 0.3
}

# choose_sheet MENU_KEY BUTTON_KEY: as far as the question about the paper.
choose_sheet() {
    see_window '^Print Your Own Tavlo$'
    press_button alt+m
    press_button "$1"
    press_button "$2"
    see_window '^Select Test Sheet or Final $'
}

# The file is a PDF of one page of this size.
expect_page() {
    local info
    info=$(pdfinfo "$1" 2>&1) || fail "$1 is no PDF file: $info"
    grep -q '^Pages: *1$' <<<"$info" || fail "$1 isn't one page"
    grep -q "^Page size: *$2 pts" <<<"$info" || fail "$1 has another page than $2: $(grep 'Page size' <<<"$info")"
}
