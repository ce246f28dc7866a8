// The string table: the program's title, the names of its folders and the texts of a new scenario.
#pragma once

#include <string_view>

namespace quillet {

enum class StringId {
    ProgramTitle = 1,
    BoardEditorHint1 = 128,
    BoardEditorHint2 = 129,
    BoardEditorHint3 = 130,
    PanelFontFace = 200,
    PanelFontSize = 201,  // points
    PanelColour = 203,
    ScenariosFolder = 251,
    OpponentsFolder = 252,
    StatisticsFolder = 253,
    WordListsFolder = 254,
    DefinitionsFolder = 255,
    PrefsFolder = 260,
    GraphicsFolder = 261,
    SoundsFolder = 262,
    HelpFolder = 263,
    DefaultAboutText = 8199,
    DefaultLetterValues = 8300,
    DefaultLetterCounts = 8301,
    DefaultSevenLetterBonus = 8350,
    DefaultBoardRows = 8400,
    DefaultBoardCols = 8401,
    DefaultBoardSquares = 8402,
    DefaultStartRow = 8500,
    DefaultStartCol = 8501,
    DefaultBonusWordValue = 8600,
    DefaultBonusWordsEnabled = 8601,
};

// The text of that id; empty when the table has none.
std::string_view ResourceString(StringId id);

}  // namespace quillet
