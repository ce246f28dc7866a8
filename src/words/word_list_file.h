// The current word list and its file. A list named NAME is the file NAME.qld in the word lists folder: the
// 300-byte preamble and then the edges, as they lie in memory (docs/formats/word-list.md).
//
// Owns wordList; loads into and saves from mainDict.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "store/files.h"
#include "words/dict.h"

namespace quillet {

using WordListName = Text<31>;

struct WordListState {
    WordListName current;       // the list that mainDict holds
    bool loaded = false;        // some list has been, since the program started
    bool fromScenario = false;  // it was chosen because the scenario asked for it, not by the user
};

inline WordListState wordList;

// The names of the lists there are, sorted; at most 86, names that are too long left out. Fatal when their
// folder is missing.
std::vector<std::string> ListWordLists();

// The path of that list's file, with "\" between folder and name.
FilePath WordListPath(std::string_view name);

// Reads the file of the list called `name`. None when it cannot be opened; every other fault is Fatal and
// names the list: a bad header or a short file. The edges are taken as they are; before anything walks them
// they must pass words/graph_check.h.
std::optional<Dict> ReadDict(std::string_view path, std::string_view name);

// Writes the dict to a file. False, with a warning, when that cannot be done; the old file is then as it was.
bool WriteDict(std::string_view path, const Dict& dict);

// Reads the list into mainDict and makes it the current one. False, with a warning, only when the file
// cannot be opened; mainDict is then untouched. Every other fault is Fatal, a graph in which a walk could go
// astray among them ("Bad edges in "NAME"!").
bool LoadWordList(std::string_view name);

// Writes mainDict to the list's file, as WriteDict does. Does not reset the change counters.
bool SaveWordList(std::string_view name);

// Loads the named list; with `remember` it also becomes the user's preferred list. False, with a warning,
// when the file is missing or cannot be opened.
bool SelectWordList(bool remember, std::string_view name);

// When the current list was changed, asks whether to save it, and does. Changes that could not be saved
// still count as changes.
void OfferToSaveWordList();

// Follows the wish of the scenario, which may name a list: changes to that one, or back to the user's own
// choice when the scenario names none but an earlier one did. Offers to save changes before. A list that
// there is not is reported, and the wish cleared. True when a list was loaded: `wordList` then tells which.
bool ApplyScenarioWordList(WordListName& requested);

// Around a computer player's move: loads the opponent's own list when it names one that differs from the
// current one and exists. True when it did; `previous` then names the list to go back to.
bool UseOpponentWordList(std::string_view opponentList, WordListName& previous);

// Goes back to that list if its file still exists.
void RestoreWordList(std::string_view previous);

}  // namespace quillet
