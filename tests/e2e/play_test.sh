#!/usr/bin/env bash
# Plays Quillet in its real window with mouse and keyboard: the first minute of a new player, then a game with
# everything a hand can do, and looks at the saved file and the screen.
#   play_test.sh PROGRAM COMPANION ASSETS
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

start_story "$@"

# --- The first minute ---

start_quillet
choose_players
picture first_game
[[ $(cat "$data/Data/Prefs/201.str") == Ann ]] || fail "the player's name was not kept"
keys ctrl+q
wait_for 10 test ! -d /proc/"$quillet_pid" || fail "Quillet did not end"

# --- A game of two, from a file with known racks ---

printf F >"$data/Data/Prefs/1016.str" # no tile clicks
"$companion" --data "$data" selfplay --players "A 1" "B 1" --games 1 --scenario Classic --save "$work/games" >"$work/selfplay.log"
sed -e 's/^players = .*/players = Ann Bob\r/' -e 's/^p1 start = .*/p1 start = CATERS[\r/' \
    -e 's/^p2 start = .*/p2 start = QUIZDOG\r/' -e 's/^moves = .*/moves = 1\r/' \
    -e '/^[0-9]\+ = /d' "$work"/games/*.qlg >"$work/known.qlg"
printf '1 = 2 {} 0 5\r\n' >>"$work/known.qlg"
start_quillet "$work/known.qlg"
picture opened

# Ann drags a tile, types the others and presses DONE.
drag_to_square 1 8 7
type_text at
wait_for 5 has_tile "$(col_x 9)" "$(row_y 8)" || fail "the typed tile is not on the board"
picture cat
press_done
# Bob passes; Ann goes on with her blank.
keys 0
drag_to_square 7 8 10
press_done
dialog_opens
type_text s
keys Return
wait_for 5 has_focus Quillet
picture cats
# Bob throws two tiles back.
drag "$(slot_x 1)" $slot_y "${bag[@]}"
drag "$(slot_x 2)" $slot_y "${bag[@]}"
picture thrown
press_done
# Undo and redo; a hint, taken back again.
keys ctrl+z
keys ctrl+d
keys ctrl+8
sleep 1
picture hint
keys Return
# The window keeps its size, but for the board's own switch.
xdotool windowsize "$window" 900 700 sleep 0.5
canvas_is 660 || fail "the window was resized to $canvas_width"
xdotool keydown ctrl
click_at "${info_panel[@]}"
xdotool keyup ctrl
wait_for 5 canvas_is 640 || fail "the small board did not come: $canvas_width"
picture small_board

# Quit and save.
keys ctrl+q
dialog_opens
keys Return
dialog_is "Save Game"
type_text "$work/end.qlg"
keys Return
wait_for 10 test ! -d /proc/"$quillet_pid" || fail "Quillet did not end after saving"
[[ -f $work/end.qlg ]] || fail "nothing was saved"
for line in '^moves = 5' '^2 = 1 CAT 8 7 8 8 8 9 ' '^3 = 2 {} ' '^4 = 1 \[S 8 10 ' '^5 = 2 {QU} '; do
    grep -qE "${line//\{/\\\{}" "$work/end.qlg" || fail "the saved game lacks $line: $(grep -E '^[0-9]+ =' "$work/end.qlg")"
done
echo "played, undone, hinted, resized, saved: all as it should be"
