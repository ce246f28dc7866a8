#!/usr/bin/env bash
# Plays a whole game against a computer player of level 9 in the real window, with mouse and keyboard alone: the
# person takes the best strategic move that the key 9 shows. Not among the tests, for it takes a while.
#   whole_game.sh PROGRAM COMPANION ASSETS
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

start_story "$@"

done_shows() { is_light 276 20; }

start_quillet
choose_players alt+2 S Tab 9 # Strix
keys alt+o
keys m # the computer moves without being told
for ((turn = 1; turn <= 60; ++turn)); do
    wait_for 20 done_shows || break
    point_at 5 460
    keys 9
    sleep 0.6
    keys 0
    sleep 1.2
done
picture end_of_game
keys ctrl+s
dialog_is "Save Game"
type_text "$work/whole.qlg"
keys Return
wait_for 5 test -s "$work/whole.qlg" || fail "nothing was saved"
"$companion" --data "$data" analyse "$work/whole.qlg" | tail -12
