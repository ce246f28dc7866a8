// The flow of a game: who moves, what DONE and MOVE do, passes, exchanges, refilling racks, the end and its
// adjustments, and new games.
//
// Changes game.
#pragma once

#include "game/game_state.h"

namespace quillet {

// Begins the turn of the current player.
void StartTurn();

// DONE for a human player, MOVE for a computer; after the end of the game shows the next player's rack.
void FinishTurn();

// Plays the current computer player's move, and in a game of computers only those that follow, until the
// game ends, someone presses Escape or the computers are to be told to move.
void ComputerTurn();

// Exchanges all tiles of the current human player's rack and ends the turn.
void ThrowAllBack();

// Takes the tiles placed and thrown back in this turn back to the rack.
void RestoreTiles();

// Starts a new game with the players of the preferences; asks who plays when nobody has been chosen yet.
void NewGame(bool redraw);

// Starts a new game with the players that the game has.
void BeginGame(bool redraw);

// Counts a move; the 200th ends the game, with a warning or without.
void IncrementMoveCount(bool withMessage);

}  // namespace quillet
