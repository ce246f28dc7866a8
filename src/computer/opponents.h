// The computer opponents: characters with a name, a word list of their own, pictures and voices.
//
// Owns opponentTable: names from the opponents' folders, details by LoadOpponentData.
#pragma once

#include <array>
#include <string_view>

#include "base/one_based.h"
#include "base/text.h"
#include "game/game_state.h"
#include "words/word_list_file.h"

namespace quillet {

constexpr int kMaxOpponents = 20;
constexpr int kNumVoices = 6;  // 1 wins, 2 loses, 3 and 4 pleased, 5 and 6 displeased

struct Opponent {
    Text<10> name = "unknown";              // the opponent's folder, cut
    WordListName lexicon;                   // its own word list; empty: it plays with the current one
    OneBased<Text<31>, kNumVoices> voices;  // wave files, relative to the opponents folder
};

struct OpponentTable {
    // 1..count are the opponents found, sorted by name; 0 keeps the defaults and stands in for none.
    std::array<Opponent, kMaxOpponents + 1> entries;
    int count = 0;
};

inline OpponentTable opponentTable;

// Sets isComputer, skill and opponent of that player (1..4) from its name: a name whose last character is
// a digit is a computer's, the digit its skill, what stands before it and the spaces its opponent.
void PlayerKindFromName(int player);

// Takes the number of players and their names from the preferences, with empty racks; player 1 is the
// current one.
void ReadPlayerSetUp();

// Reads word list and voices of the opponents that play in this game.
void LoadOpponentData();

}  // namespace quillet
