#!/usr/bin/env bash
# Chooses four players and changes one, then makes a word list in the real window: imports 200,000 words, edits,
# cancels another import, reverts, saves and dumps; looks at the files.
#   words_test.sh PROGRAM COMPANION ASSETS
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

start_story "$@"
lists="$data/Word Lists"

words_in() { "$companion" wordlist info "$lists/$1.qld" | awk '/words/ { print $2; exit }'; }
has_words() { [[ $(words_in "$1") == "$2" ]]; }   # LIST COUNT
has_lines() { [[ $(wc -l <"$2") == "$1" ]]; } # COUNT FILE
save_as() {
    menu w a
    dialog_is "Save As"
    type_text "$1"
    keys Return
    dialog_ends "Save As"
}
# text_file NAME: of the words on standard input, as "Add from Text File" takes them
text_file() { tr '[:upper:]' '[:lower:]' | sed 's/$/\r/' >"$work/$1.txt"; }
add_from() {
    menu w t
    dialog_is "Add from Text File"
    type_text "$work/$1.txt"
    keys Return
    dialog_ends "Add from Text File"
}
has_players() { wait_for 5 grep -q "^players = $1" "$kept" || fail "not $1: $(grep '^players' "$kept")"; }

# --- Players ---

start_quillet
choose_players alt+2 S Tab 9 alt+3 H B O B alt+4 P Tab 3 # Strix, BOB, Pip
for turn in {1..4}; do take_turn "$turn"; done
has_players 'Ann "Strix 9" BOB "Pip 3"'
picture four_players
# Strix makes way for a human player.
xdotool keydown ctrl
click_at 60 "$(player_y 2)"
xdotool keyup ctrl
dialog_is "Change One Player"
screen change_player
keys alt+p H
type_text Cleo
keys Return
dialog_ends "Change One Player"
has_players 'Ann Cleo BOB "Pip 3"'
picture changed_player

# --- A word list ---

menu w n
dialog_is "New Word List"
screen new_word_list
type_text Club
keys Return
dialog_ends "New Word List"
"$companion" wordlist dump "$lists/Large.qld" >"$work/words"
shuf --random-source=<(yes) -n 200000 "$work/words" | text_file many
add_from many
sleep 0.5
dialog_ends Status
menu w s # save
wait_for 5 has_words Club 200000 || fail "Club has $(words_in Club) words"
keys ctrl+e
dialog_is 'Edit "Club"'
type_text quilletish
keys alt+a
sleep 0.3
screen word_list_editor
keys alt+o
dialog_ends 'Edit "Club"'
menu w s
wait_for 5 has_words Club 200001 || fail "the added word was not saved"
keys ctrl+e
dialog_is 'Edit "Club"'
type_text quilletish
keys alt+d Escape # deleted, and then forgotten
dialog_is Quillet
screen forget_changes
keys Return
dialog_ends 'Edit "Club"'
menu w s
sleep 0.3
has_words Club 200001 || fail "a cancelled deletion was saved"

# A second import is cancelled: what had come by then stays, until the list is reverted.
text_file large <"$work/words"
for copy in {1..60}; do cat "$work/large.txt"; done >"$work/huge.txt"
printf 'lastofthem\r\n' >>"$work/huge.txt"
add_from huge
dialog_is Status
screen import
keys Escape
wait_for 2 window_is_back || fail "the import goes on"
save_as Cut
added=$(words_in Cut)
((added > 200001 && added < 244158)) || fail "Cut has $added words"
menu w r # revert
dialog_is Quillet
keys Return
wait_for 2 window_is_back || fail "the question stays open"
save_as Whole
has_words Whole 200001 || fail "the reverted list has $(words_in Whole) words"
menu w f # dump
dialog_is "Dump to Text File"
type_text "$work/dump.txt"
keys Return
wait_for 10 has_lines 200001 "$work/dump.txt" || fail "the dump has $(wc -l <"$work/dump.txt") lines"
echo "players chosen and changed, a word list made, filled, edited, saved and dumped: all as it should be"
