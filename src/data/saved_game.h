// Saved games: a text file of "key = value" lines that tells the scenario's settings, the players, their
// first racks and every move (docs/formats/saved-game.md).
//
// Owns nothing; reads and fills the game.
#pragma once

#include <string_view>

namespace quillet {

// Writes the game on the screen with its moves; undone ones are left out. False, with a warning, when it does
// not stand whole in its place; the file that was there is then as it was.
bool SaveGame(std::string_view path);

// Reads a game up to its first racks; OpenGameReplay then plays its moves. False after a warning. Faults up
// to the letter counts leave the game on the screen as it was, if it is one of that scenario. A later one
// leaves what was read before it, and then no game is in play any more.
//
// What is read can be replayed without harm, but need not make a possible game. Fatal when the letters make
// no playable set or a rack holds a tile that there is not.
bool LoadGame(std::string_view path);

}  // namespace quillet
