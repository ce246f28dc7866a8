// A small world for tests of the rules: a line or two make a game whose tiles add up. What a test of the
// rules speaks of comes with it: the game, the preferences, messages and files.
//
// Racks and boards are literal text. In a rack "?" is a blank. A piece of board is "CAT" or, with more rows,
// "CAT/.O."; there "." leaves a square as it is, and a lower-case letter is a blank that stands for it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/messages.h"
#include "game/game_state.h"
#include "store/preferences.h"
#include "support/recording_presentation.h"
#include "support/temp_folder.h"

namespace quillet {

// The program just after its start: default letters on a plain board, a full bag, no words, no opponents,
// default preferences and a fixed random seed. Only the alternation of the voices lives on between tests.
class World : public TempFolder {
  protected:
    World();

    void MakeOpponent(const std::string& name, const std::string& lexicon = "");
};

void SetWords(const Strings& words);
void SetBonusWords(const Strings& words, int value);

// These players, with their kinds and opponents; racks empty, player 1 to move.
void SetPlayers(const Strings& names);

// A new game of these players in which player 1 begins. What was recorded so far is forgotten.
void StartGame(const Strings& names);

void GiveRack(int player, std::string_view codes);  // in exchange with the bag
void GiveScore(int player, int score);              // by an earlier move
void LeaveInBag(std::string_view codes);            // and no others: the full set is what is then in the game

// Gives an empty square its kind by its character: "D" doubles words, "1" is a blocked picture square.
void SetSquare(int row, int col, char kind);

// Puts tiles on the board, the first at that square: from the current player's rack, for this turn; or from
// the bag, as tiles of earlier moves.
void PutTiles(int row, int col, std::string_view tiles);
void FreezeTiles(int row, int col, std::string_view tiles);

std::string RackOf(int player);               // in position order, "?" for a blank
Strings StatusLines();                        // up to the last that shows something
Strings Calls(const std::string& beginning);  // the recorded calls that begin so
void ExpectConsistent();                      // or the test fails with what does not fit

}  // namespace quillet
