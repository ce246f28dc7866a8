// The computer opponents: characters with a name, a word list of their own, pictures and voices; and the
// players of a game as names tell them.
//
// Owns opponentTable: names by ListOpponents from the opponents' folders, details by LoadOpponentData. What
// an opponent's folder holds: docs/formats/opponent.md.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/colours.h"
#include "base/one_based.h"
#include "base/text.h"
#include "game/game_state.h"
#include "platform/image.h"
#include "words/word_list_file.h"

namespace quillet {

constexpr int kMaxOpponents = 20;
constexpr int kNumMoods = 5;   // 1 normal, 2 pleased, 3 displeased, 4 winner, 5 loser
constexpr int kNumVoices = 6;  // 1 wins, 2 loses, 3 and 4 pleased, 5 and 6 displeased

struct Opponent {
    Text<10> name = "unknown";  // the opponent's folder, cut
    WordListName lexicon;       // its own word list; empty: it plays with the current one
    Colour textColour = kWhite;
    OneBased<std::optional<Picture>, kNumMoods>
        pictures;                           // none: its folder lacks that one, or it does not play
    OneBased<Text<31>, kNumVoices> voices;  // wave files, relative to the opponents folder
};

struct OpponentTable {
    // 1..numOpponents are the opponents found, sorted by name; 0 keeps the defaults and stands in for none.
    std::array<Opponent, kMaxOpponents + 1> entries;
    int numOpponents = 0;
};

inline OpponentTable opponentTable;

// Fills the table from the opponents' folders, with a warning when there are none to list, and then reads the
// players from the preferences.
void ListOpponents();

// Sets isComputer, skill and opponent of that player (1..4) from its name: a name whose last character is
// a digit is a computer's, the digit its skill, what stands before it and the spaces its opponent.
void PlayerKindFromName(int player);

// Takes the number of players and their names from the preferences; all racks are then empty, and player 1 is
// the current one.
void ReadPlayerSetUp();

// Keeps the game's players for the next game and the next start.
void SavePlayers();

// Reads word list, colour, pictures and voices of the opponents that play in this game, and drops the
// pictures of all others.
void LoadOpponentData();

// --- For choosing players ---

// None when the opponent has no such picture. `opponent` is 0..20, `mood` 1..5.
std::optional<Picture> LoadOpponentPicture(int opponent, int mood);

// "Current word list", then the names of up to 100 word lists, sorted.
std::vector<std::string> WordListChoices();

// Which of the choices (0-based) the opponent's own word list is; 0 when it has none or it is not among them.
std::size_t WordListChoiceOf(int opponent, const std::vector<std::string>& choices);

// Makes that choice (0-based) the opponent's own word list, in its folder. Does nothing for opponent 0, which
// has none; warns when the folder is gone, or goes meanwhile.
void SaveOpponentLexicon(int opponent, const std::vector<std::string>& choices, std::size_t choice);

}  // namespace quillet
