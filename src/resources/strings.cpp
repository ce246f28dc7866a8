#include "resources/strings.h"

#include <algorithm>
#include <array>

namespace quillet {
namespace {

struct StringEntry {
    StringId id;
    std::string_view text;
};

// Folder paths are written with "\" throughout the program; the file layer turns them into its own.
constexpr std::array kStrings{
    StringEntry{StringId::ProgramTitle, "Quillet"},
    StringEntry{StringId::BoardEditorHint1,
                "Select a box to the right and then click in the board to change squares."},
    StringEntry{StringId::BoardEditorHint2, "Control-click in the board to change the starting square."},
    StringEntry{StringId::BoardEditorHint3, "Use Copy and Paste in the Edit menu to change square pictures."},
    StringEntry{StringId::PanelFontFace, "Times New Roman Bold"},
    StringEntry{StringId::PanelFontSize, "12"},
    StringEntry{StringId::PanelColour, "yellow"},
    StringEntry{StringId::ScenariosFolder, "Scenarios"},
    StringEntry{StringId::OpponentsFolder, "Opponents"},
    StringEntry{StringId::StatisticsFolder, "Statistics"},
    StringEntry{StringId::WordListsFolder, "Word Lists"},
    StringEntry{StringId::DefinitionsFolder, "Definitions"},
    StringEntry{StringId::PrefsFolder, "Data\\Prefs"},
    StringEntry{StringId::GraphicsFolder, "Data\\Graphics"},
    StringEntry{StringId::SoundsFolder, "Data\\Sounds"},
    StringEntry{StringId::HelpFolder, "Data\\Help"},
    // What a new scenario holds; the ids are those of its items and 8000.
    StringEntry{StringId::DefaultAboutText, "Select \"Edit Scenario\" to change this text."},
    // One character per letter A to Z, then the blank: "0" + the number.
    StringEntry{StringId::DefaultLetterValues, "1332142418513113:11114484:0"},
    StringEntry{StringId::DefaultLetterCounts, "9224<2329114268216464221212"},
    StringEntry{StringId::DefaultSevenLetterBonus, "50"},
    StringEntry{StringId::DefaultBoardRows, "15"},
    StringEntry{StringId::DefaultBoardCols, "15"},
    StringEntry{StringId::DefaultBoardSquares,
                "..............."
                "..............."
                "..............."
                "..............."
                "..............."
                "..............."
                "..............."
                "..............."
                "..............."
                "..............."
                "..............."
                "..............."
                "..............."
                "..............."
                "..............."},
    StringEntry{StringId::DefaultStartRow, "8"},
    StringEntry{StringId::DefaultStartCol, "8"},
    StringEntry{StringId::DefaultBonusWordValue, "0"},
    StringEntry{StringId::DefaultBonusWordsEnabled, "F"},
};

}  // namespace

std::string_view ResourceString(StringId id) {
    const auto entry = std::ranges::find(kStrings, id, &StringEntry::id);
    return entry == kStrings.end() ? std::string_view{} : entry->text;
}

}  // namespace quillet
