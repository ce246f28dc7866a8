// Scenarios: the variants of the game. Each is a folder of items in the scenarios folder, with pictures for
// its squares (docs/formats/scenario.md). One scenario is current.
//
// Owns the current scenario's name and the word list it asks for; fills the game's settings, board and bag
// and the bonus words. Its items are changed only through the functions below.
//
// Files may hold anything. What a loaded board guarantees stands at InstallBoard; letter values are -48..207;
// counts are those of a bag that FillBag accepts.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "game/board.h"
#include "words/word_list_file.h"

namespace quillet {

using ScenarioName = Text<31>;

struct Scenario {
    WordListName requestedWordList;  // without extension; empty: any will do
};

inline Scenario scenario;

// The names of the scenarios there are, sorted; at most 95, names that are too long left out. Fatal when
// there are none, or not even their folder.
std::vector<std::string> ListScenarios();

const ScenarioName& CurrentScenario();
void SetCurrentScenario(std::string_view name);

// Can that scenario be opened? Warns of one that is of another version.
bool ScenarioExists(std::string_view name);

// Fills the game's settings, board and bag, the bonus words and the requested word list from the current
// scenario, and remembers it as the preferred one. A game must be started or opened next. Fatal when the
// scenario cannot be opened or its letters make no playable set.
void LoadScenario();

// Loads the current scenario's pictures of the squares again.
void ReloadSquarePictures();

// A board as scenarios and saved games describe it.
struct BoardDescription {
    int rows = kBoardSize;
    int cols = kBoardSize;
    int startRow = 8;
    int startCol = 8;
    std::string squares;  // as LoadSquares reads them
};

// Makes it the game's board, without tiles. Whatever it says, the board is then sound: a size that is not
// 1..15 becomes 15; a start square outside the board goes to the middle, and one on a blocked square to the
// playable square nearest to it (if there is any).
void InstallBoard(const BoardDescription& board);

// --- New scenarios ---

// Is there a folder to make scenarios in? Warns when not.
bool CheckScenariosFolder();

enum class NewScenarioFault { None, NoName, NameTooLong, Exists, NotCreated };

// What to tell the person about it; nothing for None and NoName, at which the program beeps.
std::string_view TextOf(NewScenarioFault fault);

// Creates a scenario of that name with default items and the default pictures, and makes it the current one.
NewScenarioFault CreateScenario(std::string_view name);

// The file name of a square kind's picture: "b201.bmp".
std::string SquarePictureName(SquareKind kind);

// --- Changing the current scenario ---

// Each writes its part of the game's settings into the scenario. False, with a warning, when it cannot be
// changed.
bool SaveScenarioLetters();
bool SaveScenarioBoard(bool picturesChanged);
bool SaveBonusWords();  // value, switch and words

// What the scenario says about itself, up to 256 characters; CR LF ends a line. None, with a warning, when it
// cannot be opened. The first 255 characters are saved.
std::optional<std::string> ReadAboutText();
bool SaveAboutText(std::string_view text);

}  // namespace quillet
