# Sourced by the end-to-end tests: a virtual display with a window manager, and a person's hand and eyes on it.
# shellcheck shell=bash

# start_story PROGRAM COMPANION ASSETS: a desktop, and data of its own for the program in $data.
start_story() {
    program=$1 companion=$2 assets=$3
    start_desktop 1100x800
    data=$work/data
    kept=$data/Data/Prefs/Running.qlg
    mkdir "$data"
    cp -r "$assets"/. "$data"
}

# start_desktop WIDTHxHEIGHT: a display of its own; it ends with the script.
start_desktop() {
    local number_file
    work=$(mktemp -d)
    number_file=$work/display
    Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp 3>"$number_file" 2>"$work/xvfb.log" &
    xvfb_pid=$!
    trap end_desktop EXIT
    wait_for 20 test -s "$number_file"
    DISPLAY=:$(cat "$number_file")
    export DISPLAY
    export XDG_RUNTIME_DIR=$work QT_QPA_PLATFORM=xcb
    openbox >"$work/openbox.log" 2>&1 &
    wait_for 10 xdotool search --onlyvisible --name . || true
}

end_desktop() {
    { kill -9 ${quillet_pid:-} && wait $quillet_pid; } 2>/dev/null || true
    kill "$xvfb_pid" 2>/dev/null || true
    rm -rf "$work"
}

# wait_for SECONDS COMMAND...: until the command succeeds; false when it never did.
wait_for() {
    local tries=$(($1 * 20))
    shift
    while ((tries-- > 0)); do
        "$@" >/dev/null 2>&1 && return 0
        sleep 0.05
    done
    return 1
}

fail() {
    echo "failed: $*" >&2
    import -window root "${QUILLET_E2E_PICTURES:-$work}/failed.png" || true
    exit 1
}

# start_quillet ARGUMENT...: starts the program on $data; leaves the window in $window and its canvas's corner.
start_quillet() {
    "$program" --data "$data" --zoom "${quillet_zoom:-1}" "$@" >"$work/quillet.log" 2>&1 &
    quillet_pid=$!
    wait_for 20 find_window || fail "no window: $(cat "$work/quillet.log")"
    wait_for 20 is_painted || fail "nothing is painted"
    sleep 2.3 # the splash
    find_canvas
}

# The main window: a question of the program has the same title.
find_window() {
    for window in $(xdotool search --onlyvisible --name '^Quillet$'); do
        xwininfo -id "$window" | awk '/^  Width:/ { exit $NF < 640 }' && return
    done
    return 1
}

is_painted() {
    find_canvas
    [[ $(colour_at 30 300) != 000000 ]]
}

# The canvas lies at the bottom of the window, below the menu bar.
find_canvas() {
    local height top
    read -r canvas_x top canvas_width height < <(xwininfo -id "$window" | awk '
        /Absolute upper-left X/ { x = $NF } /Absolute upper-left Y/ { y = $NF }
        /^  Width:/ { width = $NF } /^  Height:/ { print x, y, width, $NF }')
    canvas_height=$((canvas_width % 660 == 0 ? canvas_width / 660 * 470 : canvas_width / 640 * 414))
    canvas_y=$((top + height - canvas_height))
}

# canvas_is WIDTH: finds the canvas anew; is it that wide?
canvas_is() {
    find_canvas
    ((canvas_width == $1))
}

point_at() { xdotool mousemove $((canvas_x + $1)) $((canvas_y + $2)) sleep 0.05; }
click_at() { point_at "$1" "$2" && xdotool click "${3:-1}" sleep 0.15; }
drag() {
    point_at "$1" "$2"
    xdotool mousedown 1 sleep 0.08
    point_at $((($1 + $3) / 2)) $((($2 + $4) / 2))
    point_at "$3" "$4"
    xdotool mouseup 1 sleep 0.25
}
keys() { xdotool key --delay 60 "$@" sleep 0.2; }
type_text() { xdotool type --delay 25 "$1" && sleep 0.2; }

# Waits until something else than the main window has the focus.
dialog_opens() {
    wait_for 5 has_left_window || fail "no dialog"
    sleep 0.4 # until the keyboard has followed
}
window_is_back() { ! has_left_window; }
has_left_window() { [[ $(xdotool getactivewindow) != "$window" ]]; }

# dialog_is TITLE: waits until that dialog has the focus.
dialog_is() {
    wait_for 5 has_focus "$1" || fail "no dialog \"$1\""
    sleep 0.4
}
has_focus() { [[ $(xdotool getactivewindow getwindowname) == "$1" ]]; }

# dialog_ends TITLE
dialog_ends() { wait_for 30 lost_focus "$1" || fail "\"$1\" stays open"; }
lost_focus() { ! has_focus "$1"; }

# menu KEY KEY...: chooses a command by the access keys of its menu and its line.
menu() {
    keys "alt+$1"
    shift
    keys "$@"
}

picture() { # NAME: of the window, kept when a folder for pictures is named
    [[ -z ${QUILLET_E2E_PICTURES:-} ]] && return
    import -window root -crop "${canvas_width}x${canvas_height}+$canvas_x+$canvas_y" +repage \
        "$QUILLET_E2E_PICTURES/$1.png"
}

screen() { # NAME: of all that is on the display, likewise
    [[ -z ${QUILLET_E2E_PICTURES:-} ]] || import -window root "$QUILLET_E2E_PICTURES/$1.png"
}

# colour_at X Y: "RRGGBB" of a point of the canvas.
colour_at() {
    import -window root -crop "1x1+$((canvas_x + $1))+$((canvas_y + $2))" +repage -depth 8 txt:- |
        grep -oE '#[0-9A-F]{6}' | tail -1 | cut -c2-
}

# is_light X Y: is that point as light as the edge of a tile?
is_light() {
    local colour
    colour=$(colour_at "$1" "$2")
    ((16#${colour:0:2} > 200 && 16#${colour:2:2} > 190))
}

# has_tile X Y: does a tile lie on the square or slot with that middle?
has_tile() { is_light $(($1 - 11)) $(($2 - 11)); }

# --- Places of the big board with the rack above ---

slot_x() { echo $((333 + ($1 - 1) * 27 + 14)); }
slot_y=29
col_x() { echo $((239 + ($1 - 1) * 27 + 14)); }
row_y() { echo $((59 + ($1 - 1) * 27 + 14)); }
player_y() { echo $((257 + ($1 - 1) * 14)); }
done_button=(276 28)
bag=(183 34)
info_panel=(110 130)
bag_box=(117 34)
statistics_box=(217 412)
bonus_words_box=(217 342)

square() { echo "$(col_x "$2")" "$(row_y "$1")"; } # ROW COLUMN
# shellcheck disable=SC2046
drag_to_square() { drag "$(slot_x "$1")" $slot_y $(square "$2" "$3"); } # SLOT ROW COLUMN
press_done() { click_at "${done_button[@]}"; }

# choose_players [KEY...]: starts a game of Ann and of whom the keys choose in the dialog.
choose_players() {
    keys ctrl+n
    dialog_is "Choose Players"
    type_text Ann
    (($# == 0)) || keys "$@"
    screen choose_players
    keys Return
    dialog_ends "Choose Players"
    wait_for 10 has_tile "$(slot_x 1)" $slot_y || fail "no tiles on the rack"
}

# take_turn TURN: the computer moves, or the person makes the highest scoring move; until the kept game shows it. Keys
# are lost while a computer player is congratulated or letters are thrown back, so it is tried again, slower.
take_turn() {
    local pause
    for pause in 0.6 2 2 2 2; do
        keys 8
        sleep $pause
        keys 0
        sleep 0.4
        while has_left_window; do keys Return sleep 0.3; done # a blank's letter, as proposed
        wait_for 2 grep -q "^moves = $1" "$kept" && return
    done
    fail "move $1 was not made"
}
