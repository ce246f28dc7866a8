#include "support/world.h"

#include "base/idle_pump.h"
#include "computer/move_choice.h"
#include "computer/opponents.h"
#include "game/bag.h"
#include "game/consistency.h"
#include "game/validation.h"
#include "play/announcements.h"
#include "play/turns.h"
#include "store/preferences.h"
#include "words/bonus_words.h"

namespace quillet {
namespace {

char CodeOf(char character) {
    return character == '?' || ToUpper(character) != character ? kBlank : character;
}

template <typename Take>
void LayTiles(int row, int col, std::string_view tiles, SquareState state, Take take) {
    const int firstCol = col;
    for (char character : tiles) {
        if (character == '/') {
            ++row;
            col = firstCol;
            continue;
        }
        if (character != '.') {
            Square& square = game.board[row][col];
            square.state = state;
            square.letter = CodeOf(character);
            square.blankLetter = ToUpper(character);
            take(square.letter);
        }
        ++col;
    }
}

}  // namespace

World::World() {
    MakeFolder("Data/Prefs");
    ClosePrefs();
    preferences = {};
    recorded = {};
    pump = {};
    game = FreshGameState();
    FillBag();
    SeedRandom(1);
    formedWords = {};
    ResetExchangeCounts();
    ResetVoiceTurns();
    opponentTable = {};
    wordList = {};
    SetWords({});
    bonusWords = {};
    BuildBonusDict(bonusWords);
}

void World::MakeOpponent(const std::string& name, const std::string& lexicon) {
    opponentTable.entries[static_cast<std::size_t>(++opponentTable.numOpponents)].name = Text<10>(name);
    WriteFile("Opponents/" + name + "/300.str", lexicon);
}

void SetWords(const Strings& words) {
    mainDict = {};
    MakeStore(mainDict, 0);
    for (const std::string& word : words) AddWord(mainDict, word);
}

void SetBonusWords(const Strings& words, int value) {
    bonusWords = {};
    std::ranges::transform(words, bonusWords.begin(), [](const std::string& word) { return Word(word); });
    BuildBonusDict(bonusWords);
    game.settings.bonusWordsEnabled = true;
    game.settings.bonusWordValue = static_cast<std::int16_t>(value);
}

void SetPlayers(const Strings& names) {
    game.numPlayers = static_cast<std::uint16_t>(names.size());
    game.currentPlayer = 1;
    for (int p = 1; p <= game.numPlayers; ++p) {
        game.players[p] = {};
        game.players[p].name = PlayerName(names[static_cast<std::size_t>(p) - 1]);
        PlayerKindFromName(p);
    }
    LoadOpponentData();
}

void StartGame(const Strings& names) {
    SetPlayers(names);
    BeginGame(false);
    game.currentPlayer = 1;
    StartTurn();
    recorded.calls.clear();
}

void GiveRack(int player, std::string_view codes) {
    Rack& rack = game.players[player].rack;
    for (LetterCode code : rack.Codes()) AddToBag(code);
    rack = {};
    for (char character : codes) {
        RemoveFromBag(CodeOf(character));
        rack.positions[++rack.numtiles] = CodeOf(character);
    }
}

void GiveScore(int player, int score) {
    MoveRecord& record = game.history.records[++game.history.movesCount];
    record = {};
    record.player = static_cast<std::uint16_t>(player);
    record.letters = "{}";
    record.score = score;
    game.players[player].score += score;
}

void LeaveInBag(std::string_view codes) {
    LetterCounts& counts = game.settings.letterCounts;
    for (int i = 1; i <= game.bag.tilesleft; ++i) --counts[game.bag.tiles[i]];
    game.bag.tilesleft = 0;
    for (char character : codes) {
        AddToBag(CodeOf(character));
        ++counts[CodeOf(character)];
    }
}

void SetSquare(int row, int col, char kind) {
    Square& square = game.board[row][col];
    square = {.kind = KindFromCharacter(kind)};
    if (!IsPlayable(square.kind)) square = {square.kind, SquareState::Frozen, kind, 0};
}

void PutTiles(int row, int col, std::string_view tiles) {
    LayTiles(row, col, tiles, SquareState::Placed, [](LetterCode code) {
        Rack& rack = game.Current().rack;
        const int position = rack.PositionOf(code);
        ASSERT_NE(position, 0) << "no " << code << " on the rack";
        rack.positions[position] = 0;
    });
}

void FreezeTiles(int row, int col, std::string_view tiles) {
    LayTiles(row, col, tiles, SquareState::Frozen, RemoveFromBag);
}

std::string RackOf(int player) {
    std::string codes;
    for (LetterCode code : game.players[player].rack.Codes()) codes += code == kBlank ? '?' : code;
    return codes;
}

Strings StatusLines() {
    Strings lines;
    for (const StatusLine& line : game.statusLines) lines.emplace_back(line.View());
    while (!lines.empty() && lines.back().empty()) lines.pop_back();
    return lines;
}

Strings Calls(const std::string& beginning) {
    Strings calls;
    for (const std::string& call : recorded.calls) {
        if (call.starts_with(beginning)) calls.push_back(call);
    }
    return calls;
}

void ExpectConsistent() { EXPECT_EQ(FindInconsistency(game).value_or(""), ""); }

}  // namespace quillet
