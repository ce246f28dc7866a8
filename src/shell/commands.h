// What each command of the menus, each accelerator and each of the typed command keys does.
//
// Owns the name of the file that the current game is kept in.
#pragma once

#include <string>
#include <string_view>

namespace quillet {

// The number of a menu item (resources/menus.h).
void DispatchCommand(int command);

// A typed character, which the game's own keys and the hand on the tiles share.
void HandleTypedCharacter(char character);

// DONE or MOVE, with the menus disabled meanwhile.
void FinishTurnFromWindow();

// Opens a saved game by its path in the file system. False after a warning.
bool OpenGameFile(const std::string& path);

// Likewise, but the file does not become the game's own: saving proposes another.
bool GoOnWithGame(const std::string& path);

// When a running game has moves and the person wants it kept, asks where and saves it. False when it was to
// be saved and is not.
bool OfferToSaveGame();

// Follows the wish of the scenario for a word list, in the menu too.
void FollowScenarioWordList();

}  // namespace quillet
