#!/usr/bin/env bash
# Makes a scenario in the real window: its board, a picture from another program, letters, bonus words and text;
# plays on it, and looks at the files and at what another program gets through the clipboard.
#   scenario_test.sh PROGRAM COMPANION ASSETS
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

start_story "$@"
mine=$data/Scenarios/Mine

# Places of the board editor.
cancel_button=(45 26)
save_button=(125 26)
rows_list=(45 96)
columns_list=(125 96)
kind_box() { echo 192 $((19 + $1 * 30)); } # KIND
click_square() { click_at "$(col_x "$2")" "$(row_y "$1")"; } # ROW COLUMN
edit() { # KEY [TITLE]: the access key of a part of the scenario, and its dialog
    menu s e
    dialog_is "Edit Scenario"
    keys "alt+$1"
    if [[ -n ${2:-} ]]; then dialog_is "$2"; else dialog_ends "Edit Scenario"; fi
}
items() { for item; do echo "$item=$(cat "$mine/$item.str")"; done; }
has_items() { # "ITEM=VALUE ..."
    local pair
    for pair in $1; do grep -qFx -- "${pair#*=}" "$mine/${pair%%=*}.str" || return; done
}
look() { import -window root -crop "${canvas_width}x${canvas_height}+$canvas_x+$canvas_y" rgb:- | cksum; }
# shellcheck disable=SC2046
choose_kind() { click_at $(kind_box "$1"); }

start_quillet
menu s n
dialog_is "New Scenario"
type_text Mine
keys Return
dialog_is "Choose Players"
type_text Ann
keys Return
dialog_ends "Choose Players"

# --- The board ---

click_at "${rows_list[@]}"
keys 1 1 Return
click_at "${columns_list[@]}"
keys 1 3 Return
choose_kind 8
click_square 4 4
click_square 4 12
choose_kind 9
click_square 12 8
xdotool keydown ctrl
click_square 7 7
xdotool keyup ctrl
# A picture comes from another program, and goes to one.
convert -size 52x52 xc:'#FF0000' "$work/red.png"
xclip -selection clipboard -t image/png -i "$work/red.png"
choose_kind 1
keys ctrl+v
sleep 0.5
screen board_editor
choose_kind 3
keys ctrl+c
sleep 0.5
timeout 5 xclip -selection clipboard -t image/png -o >"$work/copied.png"
[[ $(identify -format %wx%h "$work/copied.png") == 26x26 ]] || fail "no picture came out: $(identify "$work/copied.png")"
click_at "${save_button[@]}"
wait_for 5 has_items "400=11 401=13 500=7 501=7" || fail "the board was not saved: $(items 400 401 500 501)"
[[ $(convert "$mine/b202.bmp" -scale 1x1 -depth 8 txt:-) == *'#FF0000'* ]] || fail "the pasted picture was not saved"
[[ $(tr -d . <"$mine/402.str") == PP1 ]] || fail "other squares were saved: $(cat "$mine/402.str")"

# --- Letters, bonus words, the text ---

edit l "Edit Letter Info"
screen letters_editor
keys Tab Up Up # from Cancel to the value of A
keys alt+7 7 7 Return
wait_for 5 has_items "350=77" || fail "the bonus was not saved"
[[ $(head -c 1 "$mine/300.str") == 3 ]] || fail "the value of A was not saved: $(cat "$mine/300.str")"
edit w "Edit Bonus Words"
keys alt+e alt+p 2 0 alt+w
for word in quill ink inkwell; do
    type_text $word
    keys alt+a
done
screen bonus_words_editor
keys alt+s
wait_for 5 has_items "600=20 601=T" || fail "the bonus points were not saved: $(items 600 601)"
[[ $(cat "$mine/602.str") == $'INK\r\nINKWELL\r\nQUILL\r' ]] || fail "the bonus words were not saved: $(cat "$mine/602.str")"
edit a "Edit About Text"
keys ctrl+a
type_text "Quills and ink."
keys alt+s
wait_for 5 grep -qx "Quills and ink." "$mine/199.str" || fail "the text was not saved"
"$companion" check "$data" >"$work/check.log" || fail "$(cat "$work/check.log")"

# --- A game on it ---

take_turn 1
picture own_scenario
before=$(cat "$kept")
shown=$(look)
edit b Quillet # "Cancel the current game?"
keys alt+y
wait_for 5 window_is_back
sleep 0.3
choose_kind 14
click_square 7 7
click_square 8 8
keys ctrl+v
screen board_editor_in_a_game
click_at "${cancel_button[@]}"
sleep 0.5
[[ $(look) == "$shown" && $(cat "$kept") == "$before" ]] || fail "cancelling changed the game"

# --- The views ---

# view_opens NAME X Y [BUTTON]: at a quick click there, and closes at the next
view_opens() {
    click_at "$2" "$3" "${4:-1}"
    sleep 0.3
    picture "$1"
    [[ $(look) != "$shown" ]] || fail "no $1"
    click_at 5 460
    sleep 0.3
    [[ $(look) == "$shown" ]] || fail "the $1 leaves something behind"
}
view_opens bonus_words_view "${bonus_words_box[@]}"
view_opens bag_view "${bag_box[@]}"
view_opens history_view 217 "$(player_y 1)"
view_opens swap_view "$(slot_x 1)" $slot_y 3
click_at "${statistics_box[@]}"
dialog_is Quillet # no game was finished
keys Return
wait_for 5 window_is_back || fail "the warning stays open"
take_turn 2
echo "a scenario made and played: all as it should be"
