#!/usr/bin/env bash
# Kills Quillet in the middle of a game and starts it again: it asks whether to go on, and does.
#   kept_game_test.sh PROGRAM COMPANION ASSETS
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

start_story "$@"

kill_quillet() {
    kill -9 "$quillet_pid"
    wait "$quillet_pid" 2>/dev/null || true
}

start_quillet
choose_players
drag "$(slot_x 1)" $slot_y "${bag[@]}"
keys 0
wait_for 10 grep -q '^moves = 1' "$kept" || fail "the game is not kept"
before=$(cat "$kept")
kill_quillet

start_quillet
has_left_window || fail "no question"
picture question
keys Return
wait_for 5 has_focus Quillet
sleep 0.5
has_tile "$(slot_x 1)" $slot_y || fail "the game did not go on"
picture went_on
[[ $(cat "$kept") == "$before" ]] || fail "the kept game is another"

# A second program leaves it alone.
first_pid=$quillet_pid
"$program" --data "$data" --zoom 1 >"$work/second.log" 2>&1 &
quillet_pid=$!
sleep 3
[[ $(xdotool search --onlyvisible --name '^Quillet$' | wc -l) == 2 ]] || fail "the second program asks about the first's game"
kill_quillet
quillet_pid=$first_pid

# A proper end, not saving.
xdotool windowactivate --sync "$window" sleep 0.3
keys ctrl+q
dialog_opens
keys alt+n
wait_for 10 test ! -d /proc/"$quillet_pid" || fail "Quillet did not end"
[[ ! -e $kept ]] || fail "the kept game stayed"
echo "kept, asked, gone on, ended: all as it should be"
