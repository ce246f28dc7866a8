#include "data/scenarios.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <utility>

#include "base/messages.h"
#include "base/presentation.h"
#include "game/bag.h"
#include "game/game_state.h"
#include "store/bitmap_files.h"
#include "store/item_store.h"
#include "store/preferences.h"
#include "words/bonus_words.h"

namespace quillet {
namespace {

constexpr ItemId kAboutItem = 199;
constexpr ItemId kLetterValuesItem = 300;
constexpr ItemId kLetterCountsItem = 301;
constexpr ItemId kSevenLetterBonusItem = 350;
constexpr ItemId kBoardRowsItem = 400;
constexpr ItemId kBoardColsItem = 401;
constexpr ItemId kBoardSquaresItem = 402;
constexpr ItemId kStartRowItem = 500;
constexpr ItemId kStartColItem = 501;
constexpr ItemId kBonusWordValueItem = 600;
constexpr ItemId kBonusWordsEnabledItem = 601;
constexpr ItemId kWordListItem = 700;

struct DefaultItem {
    ItemId id;
    StringId value;
};
constexpr std::array kDefaultItems{
    DefaultItem{kAboutItem, StringId::DefaultAboutText},
    DefaultItem{kLetterValuesItem, StringId::DefaultLetterValues},
    DefaultItem{kLetterCountsItem, StringId::DefaultLetterCounts},
    DefaultItem{kSevenLetterBonusItem, StringId::DefaultSevenLetterBonus},
    DefaultItem{kBoardRowsItem, StringId::DefaultBoardRows},
    DefaultItem{kBoardColsItem, StringId::DefaultBoardCols},
    DefaultItem{kBoardSquaresItem, StringId::DefaultBoardSquares},
    DefaultItem{kStartRowItem, StringId::DefaultStartRow},
    DefaultItem{kStartColItem, StringId::DefaultStartCol},
    DefaultItem{kBonusWordValueItem, StringId::DefaultBonusWordValue},
    DefaultItem{kBonusWordsEnabledItem, StringId::DefaultBonusWordsEnabled},
};

constexpr std::size_t kMostScenarios = 95;
constexpr std::uint32_t kMostPictureBytes = 64 << 20;  // far more than a square's picture takes
constexpr std::size_t kMostAboutCharacters = 255;      // that are saved
constexpr BoardPosition kMiddle{8, 8};

std::string_view ScenariosFolder() { return ResourceString(StringId::ScenariosFolder); }

FilePath PathIn(std::string_view folder, std::string_view name) {
    FilePath path(folder);
    path.Append('\\');
    path.Append(name);
    return path;
}

FilePath ScenarioFolder(std::string_view name) { return PathIn(ScenariosFolder(), name); }

// The name of a folder that stands in the scenarios folder itself and is listed there.
bool IsFolderName(std::string_view name) {
    return !name.empty() && !name.starts_with('.') && name.find_first_of("/\\") == std::string_view::npos;
}

// Opens the current scenario; false after a warning.
bool OpenForChanging() {
    if (OpenScenario(Purpose::Changing)) return true;
    Warning("Scenario changes could not be saved.");
    return false;
}

template <typename T>
PerLetter<T> ReadLetterTable(ItemId id) {
    return LetterTableFromText<T>(ReadItemText<kNumLetterCodes>(scenarioStore, id));
}

// The playable square nearest to that one, which may be it; that one itself when there is none.
BoardPosition NearestPlayable(BoardPosition wanted) {
    BoardPosition nearest = wanted;
    int shortest = std::numeric_limits<int>::max();
    ForEachSquare([&](BoardPosition at, const Square& square) {
        const int rows = at.row - wanted.row;
        const int cols = at.col - wanted.col;
        const int distance = rows * rows + cols * cols;
        if (!IsPlayable(square.kind) || distance >= shortest) return;
        nearest = at;
        shortest = distance;
    });
    return nearest;
}

std::optional<std::vector<std::byte>> ReadWholeFile(std::string_view path) {
    FileRef file = OpenForReading(path);
    if (!file || FileSize(*file) > kMostPictureBytes) return std::nullopt;
    std::vector<std::byte> bytes(FileSize(*file));
    const bool complete = ReadBlock(*file, bytes);
    CloseFile(std::move(file));
    return complete ? std::optional(std::move(bytes)) : std::nullopt;
}

// A source that cannot be read is passed over.
void CopyPictureFile(std::string_view from, std::string_view to) {
    const auto bytes = ReadWholeFile(from);
    if (!bytes) return;
    FileRef file = CreateForWriting(to);
    if (!file) {
        Warning("Couldn't create bitmap file: ", to);
        return;
    }
    WriteBlock(*file, *bytes);
    CloseFile(std::move(file));
}

void CopyDefaultPictures(std::string_view folder) {
    for (SquareKind kind = 0; kind < kSquareKinds.size(); ++kind) {
        const std::string name = SquarePictureName(kind);
        const FilePath from = PathIn(ResourceString(StringId::GraphicsFolder), name);
        const FilePath to = PathIn(folder, name);
        CopyPictureFile(from, to);
        CopyPictureFile(PathOfTwin(from), PathOfTwin(to));
    }
}

}  // namespace

std::vector<std::string> ListScenarios() {
    if (!FolderExists(ScenariosFolder())) {
        Fatal("Sorry, but the ", ScenariosFolder(), " folder is missing!");
    }
    auto listed = ListSubfolders(ScenariosFolder());
    if (!listed) Fatal("FindFirstFile failed!");
    std::vector<std::string> names = *std::move(listed);
    std::erase_if(names, [](const std::string& name) { return name.size() > ScenarioName::capacity(); });
    if (names.empty()) Fatal("Sorry, but there are no scenarios!");
    if (names.size() > kMostScenarios) names.resize(kMostScenarios);
    return names;
}

const ScenarioName& CurrentScenario() { return scenarioStore.member; }

void SetCurrentScenario(std::string_view name) { scenarioStore.member = ScenarioName(name); }

bool ScenarioExists(std::string_view name) {
    if (!IsFolderName(name)) return false;
    const ScenarioName current = std::exchange(scenarioStore.member, ScenarioName(name));
    const bool exists = OpenScenario(Purpose::Reading);
    scenarioStore.member = current;
    return exists;
}

void ReloadSquarePictures() { LoadSquarePictures(ScenarioFolder(CurrentScenario())); }

void LoadScenario() {
    const ItemStore& store = scenarioStore;
    if (!OpenScenario(Purpose::Reading)) Fatal("Could not open scenario: ", "\"", store.member, "\"");
    const FilePath folder = ScenarioFolder(store.member);
    LoadSquarePictures(folder);
    GameSettings& settings = game.settings;
    settings.sevenLetterBonus = std::clamp<std::int32_t>(ReadItemShort(store, kSevenLetterBonusItem), 0, 999);
    settings.letterValues = ReadLetterTable<std::int32_t>(kLetterValuesItem);
    settings.letterCounts = ReadLetterTable<std::int16_t>(kLetterCountsItem);
    FillBag();
    const auto squares = ReadItemText<kBoardSize * kBoardSize>(store, kBoardSquaresItem);
    InstallBoard({.rows = ReadItemShort(store, kBoardRowsItem),
                  .cols = ReadItemShort(store, kBoardColsItem),
                  .startRow = ReadItemShort(store, kStartRowItem),
                  .startCol = ReadItemShort(store, kStartColItem),
                  .squares = std::string(squares.View())});
    scenario.requestedWordList = ReadItemText<31>(store, kWordListItem);
    settings.bonusWordValue = ReadItemShort(store, kBonusWordValueItem);
    settings.bonusWordsEnabled = ReadItemBoolean(store, kBonusWordsEnabledItem);
    LoadBonusWords(folder);
    RememberScenario(store.member);
}

void InstallBoard(const BoardDescription& board) {
    const auto size = [](int wanted) {
        return static_cast<std::int16_t>(wanted < 1 || wanted > kBoardSize ? kBoardSize : wanted);
    };
    game.settings.boardRows = size(board.rows);
    game.settings.boardCols = size(board.cols);
    ComputeBounds();
    LoadSquares(board.squares);
    const bool inside = game.bounds.Contains(board.startRow, board.startCol);
    const BoardPosition wanted{static_cast<std::int16_t>(board.startRow),
                               static_cast<std::int16_t>(board.startCol)};
    const BoardPosition start = NearestPlayable(inside ? wanted : kMiddle);
    game.settings.startRow = start.row;
    game.settings.startCol = start.col;
}

bool CheckScenariosFolder() {
    if (FolderExists(ScenariosFolder())) return true;
    Warning("The ", ScenariosFolder(), " folder is missing!");
    return false;
}

std::string_view TextOf(NewScenarioFault fault) {
    switch (fault) {
        case NewScenarioFault::NameTooLong:
            return "Sorry, but that name is too long.";
        case NewScenarioFault::Exists:
            return "Sorry, but that scenario already exists.";
        case NewScenarioFault::NotCreated:
            return "Could not create the new scenario!";
        default:
            return {};
    }
}

NewScenarioFault CreateScenario(std::string_view name) {
    const FilePath folder = ScenarioFolder(name);
    if (name.empty()) return NewScenarioFault::NoName;
    if (name.size() > ScenarioName::capacity()) return NewScenarioFault::NameTooLong;
    if (!IsFolderName(name)) return NewScenarioFault::NotCreated;
    if (FolderExists(folder)) return NewScenarioFault::Exists;
    if (!CreateFolder(folder)) return NewScenarioFault::NotCreated;
    SetCurrentScenario(name);
    WriteItemText(scenarioStore, kVersionItem, "1");
    for (const DefaultItem& item : kDefaultItems) {
        WriteItemText(scenarioStore, item.id, ResourceString(item.value));
    }
    CopyDefaultPictures(folder);
    return NewScenarioFault::None;
}

std::string SquarePictureName(SquareKind kind) {
    return "b" + std::to_string((IsPlayable(kind) ? 201 : 292) + kind) + ".bmp";
}

bool SaveScenarioLetters() {
    if (!OpenForChanging()) return false;
    const GameSettings& settings = game.settings;
    WriteItemText(scenarioStore, kLetterValuesItem, TextFromLetterTable(settings.letterValues));
    WriteItemText(scenarioStore, kLetterCountsItem, TextFromLetterTable(settings.letterCounts));
    WriteItemNumber(scenarioStore, kSevenLetterBonusItem, settings.sevenLetterBonus);
    return true;
}

bool SaveScenarioBoard(bool picturesChanged) {
    if (!OpenForChanging()) return false;
    const GameSettings& settings = game.settings;
    WriteItemNumber(scenarioStore, kStartRowItem, settings.startRow);
    WriteItemNumber(scenarioStore, kStartColItem, settings.startCol);
    WriteItemNumber(scenarioStore, kBoardRowsItem, settings.boardRows);
    WriteItemNumber(scenarioStore, kBoardColsItem, settings.boardCols);
    WriteItemText(scenarioStore, kBoardSquaresItem, SquaresText());
    if (picturesChanged) SaveSquarePictures(ScenarioFolder(CurrentScenario()));
    return true;
}

bool SaveBonusWords() {
    if (!OpenForChanging()) return false;
    WriteItemNumber(scenarioStore, kBonusWordValueItem, game.settings.bonusWordValue);
    WriteItemBoolean(scenarioStore, kBonusWordsEnabledItem, game.settings.bonusWordsEnabled);
    return WriteBonusWords(ScenarioFolder(CurrentScenario()));
}

std::optional<std::string> ReadAboutText() {
    std::array<char, 256> text{};
    if (OpenScenario(Purpose::Reading)) return std::string(ReadItem(scenarioStore, kAboutItem, text));
    Warning("Could not open scenario: ", "\"", CurrentScenario(), "\"");
    return std::nullopt;
}

bool SaveAboutText(std::string_view text) {
    if (!OpenForChanging()) return false;
    WriteItemText(scenarioStore, kAboutItem, text.substr(0, kMostAboutCharacters));
    return true;
}

}  // namespace quillet
