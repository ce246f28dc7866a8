// Keeping word lists from within the program, as far as it needs no dialog: names for new lists, making,
// saving and reverting the current list, the editor's three buttons, words from and to text files.
//
// Holds no state; changes mainDict, bonusDict (the editor's buttons) and wordList. Whatever the user must
// know is shown here, except what is wrong with the contents of an edit box: that comes back as an Objection
// for the dialog to show.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "words/dict.h"
#include "words/word_list_file.h"

namespace quillet {

// What is wrong with the text in an edit box: a warning to show (empty: a beep will do) and the characters
// to select then, `selectCount` of them from the 0-based `selectFrom` on.
struct Objection {
    static constexpr std::size_t kToTheEnd = static_cast<std::size_t>(-1);

    std::string_view warning;
    std::size_t selectFrom = 0;
    std::size_t selectCount = kToTheEnd;
};

// --- The list as a whole ---

// False, with a warning, when the folder is missing. To be asked before a name is asked for.
bool WordListsFolderExists();

struct ListNameCheck {
    WordListName name;  // as typed, without ".qld" at its end
    std::optional<Objection> objection;
};

// Can a new list have that name?
ListNameCheck CheckListName(std::string_view typed);

// Makes the current list a new, empty one of that name, which passed CheckListName, and remembers it as the
// user's choice. With an objection, or when the file cannot be written, the current list stays.
std::optional<Objection> CreateWordList(std::string_view name);

// Writes mainDict to a list of that name, which passed CheckListName. The current list stays what it is,
// unsaved changes included.
std::optional<Objection> SaveWordListAs(std::string_view name);

// Loads the current list afresh when it was changed and the user agrees to lose the changes.
void RevertWordList();

// Saves the current list when it was changed. What could not be saved still counts as changed.
void SaveCurrentWordList();

// --- Word by word ---

struct WordCheck {
    Word word;  // in upper case
    std::optional<Objection> objection;
};

// Is that a word that a list can hold: 1 to 15 letters, of either case?
WordCheck CheckEditorWord(std::string_view typed);

enum class EditorButton { Add, Find, Delete };

// What the button does to the bonus dict or the main dict, with a word that passed CheckEditorWord. True
// when the list changed; beeps when there is nothing to add, find or delete.
bool EditorWordCommand(bool bonus, EditorButton button, std::string_view word);

// --- Text files ---

// Adds the words of a text file to mainDict, showing its progress in the Status window; Cancel or Escape
// stops it with what it has. A word is a run of 1 to 15 lower-case letters a to z between separators:
// spaces, tabs, CR and CR LF. A lone LF is no separator.
void AddFromTextFile(std::string_view path);

// False, with a warning, when mainDict holds no words. To be asked before a path is asked for.
bool HasWordsToDump();

// Writes mainDict as text, one lower-case word a line in alphabetical order, lines ended by CR LF; otherwise
// as AddFromTextFile.
void DumpToTextFile(std::string_view path);

}  // namespace quillet
