#include "data/saved_game.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "base/messages.h"
#include "base/presentation.h"
#include "computer/opponents.h"
#include "data/line_reader.h"
#include "data/scenarios.h"
#include "game/bag.h"
#include "game/game_state.h"
#include "store/files.h"
#include "store/preferences.h"

namespace quillet {
namespace {

constexpr std::uint16_t kVersion = 2;
constexpr std::uint16_t kVersionWithoutTimes = 1;
constexpr std::string_view kPass = "{}";
constexpr char kStoredQuote = '\1';  // stands for a double quote within a word
// Of all moves together.
constexpr std::int64_t kMostPoints = std::int64_t{kMaxMoves} * kMostMovePoints;
// Far beyond what a game can reach, and low enough for all sums to stay in range.
constexpr std::int32_t kMostSeconds = 100'000'000;

// --- Writing ---

// Every byte of the text; a NUL does not end it.
void Write(File& file, std::string_view text) {
    for (const char character : text) WriteChar(file, character);
}

void WriteLine(File& file, std::string_view key, std::string_view value) {
    Write(file, key);
    Write(file, " = ");
    Write(file, value);
    Write(file, "\r");
}

void WriteLine(File& file, std::string_view key, int value) { WriteLine(file, key, std::to_string(value)); }

// The text as a word that the reader takes whole.
std::string AsWord(std::string_view text) {
    std::string word(text);
    std::ranges::replace(word, '"', kStoredQuote);
    const bool needsQuotes = word.empty() || word.find_first_of(" \t") != std::string::npos;
    return needsQuotes ? '"' + word + '"' : word;
}

std::string MoveText(const MoveRecord& record) {
    std::string text = std::to_string(record.player) + " " + std::string(record.letters.View());
    for (int i = 1; i <= record.numTiles; ++i) {
        const BoardPosition& at = record.coords[i];
        text += " " + std::to_string(at.row) + " " + std::to_string(at.col);
    }
    if (record.letters != kPass) text += " " + AsWord(record.newLetters);
    return text + " " + std::to_string(record.score) + " " + std::to_string(record.time);
}

void WriteSettings(File& file) {
    const GameSettings& settings = game.settings;
    WriteLine(file, "7 letter bonus", settings.sevenLetterBonus);
    WriteLine(file, "letter values", TextFromLetterTable(settings.letterValues));
    WriteLine(file, "letter counts", TextFromLetterTable(settings.letterCounts));
    WriteLine(file, "start row", settings.startRow);
    WriteLine(file, "start col", settings.startCol);
    WriteLine(file, "board rows", settings.boardRows);
    WriteLine(file, "board cols", settings.boardCols);
    WriteLine(file, "board squares", SquaresText());
}

void WriteMoves(File& file) {
    for (int p = 1; p <= game.numPlayers; ++p) {
        WriteLine(file, "p" + std::to_string(p) + " start", game.startRacks[p]);
    }
    WriteLine(file, "moves", game.history.movesCount);
    for (int n = 1; n <= game.history.movesCount; ++n) {
        WriteLine(file, std::to_string(n), MoveText(game.history.records[n]));
    }
}

void WriteGame(File& file) {
    WriteLine(file, "version", kVersion);
    WriteLine(file, "scenario", AsWord(CurrentScenario()));
    WriteSettings(file);
    Write(file, "players =");
    for (int p = 1; p <= game.numPlayers; ++p) Write(file, " " + AsWord(game.players[p].name));
    Write(file, "\r");
    const bool starts = game.history.movesCount == 0;
    WriteLine(file, "start game", starts ? "true" : "false");
    if (!starts) WriteMoves(file);
}

// --- Reading ---

// What is about to be read takes the place of the game on the screen, which cannot go on from here.
void LeaveGame() {
    game.gameStarted = false;
    game.gameOver = true;
    game.currentPlayer = 1;
    game.history.movesCount = 0;
    game.history.redoCount = 0;
    game.thrownBack.Clear();
    for (Player& player : game.players) player.rack = {};
    ClearTiles();
    const GameState fresh = FreshGameState();
    for (int k = 1; k <= kStatusLines; ++k) SetStatusLine(k, fresh.statusLines[k]);
}

std::uint16_t ReadCardinalLine(LineReader& reader) {
    reader.BeginLine();
    const std::uint16_t value = reader.ReadCardinal();
    reader.EndLine();
    return value;
}

// A line of that many characters as they stand; the complaint is for one that holds more or fewer.
std::string ReadCharactersLine(LineReader& reader, std::size_t count, std::string_view complaint) {
    reader.BeginLine();
    std::string characters = reader.ReadCharacters(count);
    if (!reader.AtLineEnd()) Warning(complaint);
    reader.EndLine();
    return characters;
}

// False, with a warning, when there is no such scenario.
bool ReadScenario(LineReader& reader) {
    reader.BeginLine();
    const ScenarioName name = reader.ReadWord<ScenarioName::capacity()>();
    if (!ScenarioExists(name)) {
        Warning("Unknown scenario in game file: ", name);
        return false;
    }
    reader.EndLine();
    if (name == CurrentScenario()) return true;
    LeaveGame();
    SetCurrentScenario(name);
    LoadScenario();
    return true;
}

void ReadLetters(LineReader& reader) {
    reader.BeginLine();
    const std::int32_t bonus = reader.ReadInteger();
    reader.EndLine();
    const std::string values = ReadCharactersLine(reader, kNumLetterCodes, "Bad letter values!");
    const std::string counts = ReadCharactersLine(reader, kNumLetterCodes, "Bad letter counts!");
    LeaveGame();
    GameSettings& settings = game.settings;
    settings.sevenLetterBonus = std::clamp<std::int32_t>(bonus, 0, 999);
    settings.letterValues = LetterTableFromText<std::int32_t>(values);
    settings.letterCounts = LetterTableFromText<std::int16_t>(counts);
    FillBag();
}

void ReadBoard(LineReader& reader) {
    BoardDescription board;
    for (int* number : {&board.startRow, &board.startCol, &board.rows, &board.cols}) {
        *number = ReadCardinalLine(reader);
    }
    board.squares = ReadCharactersLine(reader, kBoardSize * kBoardSize, "Bad board squares!");
    InstallBoard(board);
}

// Names beyond the fourth are passed over.
void ReadPlayers(LineReader& reader) {
    std::vector<PlayerName> names;
    reader.BeginLine();
    while (!reader.AtLineEnd() && names.size() < kMaxPlayers) {
        names.push_back(reader.ReadWord<PlayerName::capacity()>());
    }
    reader.EndLine();
    if (names.empty()) names.emplace_back("Who?");
    game.numPlayers = 0;
    for (const PlayerName& name : names) {
        game.players[++game.numPlayers].name = name;
        PlayerKindFromName(game.numPlayers);
    }
}

void CheckCodes(const LineReader& reader, std::string_view codes) {
    if (!std::ranges::all_of(codes, IsTileCode)) reader.Fail("Bad letter on line ");
}

void ReadStartRack(LineReader& reader, int p) {
    reader.BeginLine();
    const auto rack = reader.ReadWord<kRackSize + 1>();
    if (rack.size() != kRackSize) reader.Fail("Incorrect number of letters on line ");
    CheckCodes(reader, rack);
    game.startRacks[p] = Text<kRackSize>(rack.View());
    reader.EndLine();
}

// The tiles that a placement's letters name, a blank and its letter being one.
int CountTiles(const LineReader& reader, std::string_view letters) {
    int tiles = 0;
    for (std::size_t i = 0; i < letters.size(); ++i, ++tiles) {
        if (letters[i] == kBlank) {
            if (++i == letters.size() || !IsLetter(letters[i])) reader.Fail("Bad blank on line ");
        } else if (!IsLetter(letters[i])) {
            reader.Fail("Bad move on line ");
        }
    }
    return tiles;
}

std::int16_t ReadCoordinate(LineReader& reader, int first, int last, std::string_view complaint) {
    const std::int32_t value = reader.ReadInteger();
    if (value < first || value > last) reader.Fail(complaint);
    return static_cast<std::int16_t>(value);
}

void ReadNewLetters(LineReader& reader, MoveRecord& record, std::size_t fewest, std::size_t most,
                    std::string_view complaint) {
    const auto letters = reader.ReadWord<kRackSize + 1>();
    if (letters.size() < fewest || letters.size() > most) reader.Fail(complaint);
    CheckCodes(reader, letters);
    record.newLetters = Text<kRackSize>(letters.View());
}

void ReadPlacement(LineReader& reader, MoveRecord& record) {
    const int tiles = CountTiles(reader, record.letters);
    if (tiles > kRackSize) reader.Fail("Bad move length on line ");
    record.numTiles = static_cast<std::uint16_t>(tiles);
    const BoardBounds& bounds = game.bounds;
    for (int i = 1; i <= tiles; ++i) {
        BoardPosition& at = record.coords[i];
        at.row = ReadCoordinate(reader, bounds.firstRow, bounds.lastRow, "Bad row coord on line ");
        at.col = ReadCoordinate(reader, bounds.firstCol, bounds.lastCol, "Bad col coord on line ");
    }
    ReadNewLetters(reader, record, 0, record.numTiles, "Bad new letters on line ");
}

void ReadExchangeOrPass(LineReader& reader, MoveRecord& record) {
    const std::string_view letters = record.letters;
    if (!letters.ends_with('}')) reader.Fail("} expected on line ");
    if (letters == kPass) return;
    const std::string_view thrown = letters.substr(1, letters.size() - 2);
    CheckCodes(reader, thrown);
    if (thrown.size() > kRackSize) reader.Fail("Bad move length on line ");
    ReadNewLetters(reader, record, thrown.size(), thrown.size(), "Bad replacement letters on line ");
}

MoveRecord ReadMove(LineReader& reader, bool hasTime) {
    MoveRecord record;
    reader.BeginLine();
    record.player = reader.ReadCardinal();
    if (record.player < 1 || record.player > game.numPlayers) reader.Fail("Bad player number on line ");
    constexpr std::size_t kLongest = decltype(record.letters)::capacity();
    const auto letters = reader.ReadWord<kLongest + 1>();
    if (letters.empty() || letters.size() > kLongest) reader.Fail("Bad move length on line ");
    record.letters = Text<kLongest>(letters.View());
    if (letters[0] == '{') {
        ReadExchangeOrPass(reader, record);
    } else {
        ReadPlacement(reader, record);
    }
    record.score = reader.ReadInteger();
    if (hasTime) record.time = reader.ReadInteger();
    if (record.time < -kMostSeconds || record.time > kMostSeconds) reader.Fail("Bad integer on line ");
    return record;
}

void ReadMoves(LineReader& reader, bool hasTimes) {
    int count = ReadCardinalLine(reader);
    if (count > kMaxMoves) {
        Warning("Number of moves is too high!");
        count = kMaxMoves;
    }
    std::int64_t points = 0;
    for (int n = 1; n <= count; ++n) {
        MoveRecord& record = game.history.records[n] = ReadMove(reader, hasTimes);
        points += std::abs(std::int64_t{record.score});
        if (points > kMostPoints) reader.Fail("Bad integer on line ");
        reader.EndLine();
    }
    game.history.movesCount = count;
}

bool ReadGame(LineReader& reader) {
    const std::uint16_t version = ReadCardinalLine(reader);
    if (version != kVersion && version != kVersionWithoutTimes) {
        Warning("Unexpected version number in game file.");
    }
    if (!ReadScenario(reader)) return false;
    ReadLetters(reader);
    ReadBoard(reader);
    ReadPlayers(reader);
    reader.BeginLine();
    game.dealOnSetUp = reader.ReadBoolean();
    reader.EndLine();
    if (game.dealOnSetUp) return true;
    for (int p = 1; p <= game.numPlayers; ++p) ReadStartRack(reader, p);
    ReadMoves(reader, version != kVersionWithoutTimes);
    return true;
}

void RememberPlayers() {
    std::vector<PlayerName> names;
    for (int p = 1; p <= game.numPlayers; ++p) names.push_back(game.players[p].name);
    WritePlayerNames(names);
}

}  // namespace

bool SaveGame(std::string_view path) {
    FileRef file = CreateForWriting(path);
    if (!file) {
        Warning("Couldn't create game file: ", path);
        return false;
    }
    WriteGame(*file);
    return CloseFile(std::move(file));
}

bool LoadGame(std::string_view path) {
    FileRef file = OpenForReading(path);
    if (!file) {
        Warning("Couldn't open game file: ", path);
        return false;
    }
    try {
        LineReader reader(std::move(file), path);
        if (!ReadGame(reader)) return false;
    } catch (const BadFile&) {
        RedrawWindow();  // what was read so far may have changed the board
        return false;
    }
    RememberPlayers();
    LoadOpponentData();
    SetUpGame();
    return true;
}

}  // namespace quillet
