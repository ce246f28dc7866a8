// What helps the player to move with the rack: mixing it, stepping through its arrangements, and hints. None
// of these ends the turn.
//
// Changes the current player's rack; a hint moves tiles as the player could.
#pragma once

#include "game/letters.h"

namespace quillet {

// Shuffles the rack. Beeps when the game is over or the rack is empty.
void MixRack();

// Puts the rack's letters into their next arrangement in alphabetical order, blanks last; after the last one
// comes the first. Beeps when the rack is empty.
void Permute();

// Lays out on the board, or puts aside for exchange, what the computer would do at that level (8 the highest
// scoring move, 9 the best strategic one). For human players, while the option allows hints.
void ShowHint(int level);

// Swaps the tile in that position (1..8) for one of another letter that the bag holds, as if it had been
// drawn: the records say so, and what was undone cannot be redone.
void SwapWithBag(int position, LetterCode bagLetter);

}  // namespace quillet
