#include "play/history.h"

#include <gmock/gmock.h>

#include <utility>

#include "base/messages.h"
#include "game/bag.h"
#include "game/consistency.h"
#include "game/validation.h"
#include "play/turns.h"
#include "store/preferences.h"
#include "support/random_games.h"
#include "support/recording_presentation.h"
#include "support/temp_folder.h"

namespace quillet {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class History : public TempFolder {
  protected:
    History() {
        recorded = {};
        MakeFolder("Data/Prefs");
        preferences = {};
        ClosePrefs();
        LoadPreferences();
        game = FreshGameState();
    }

    // Exchanges the player's rack with the bag for these codes.
    static void GiveRack(int p, std::string_view codes) {
        Rack& rack = game.players[p].rack;
        for (LetterCode code : rack.Codes()) AddToBag(code);
        rack = {};
        for (LetterCode code : codes) {
            RemoveFromBag(code);
            rack.positions[rack.EmptyPosition()] = code;
            ++rack.numtiles;
        }
    }
};

MoveRecord Record(int player, const char* letters, const char* newLetters = "", int score = 0, int time = 0) {
    MoveRecord record;
    record.player = static_cast<std::uint16_t>(player);
    record.letters = letters;
    record.newLetters = newLetters;
    record.score = score;
    record.time = time;
    return record;
}

void ExpectSound(std::uint32_t seed) { ASSERT_EQ(FindInconsistency(game).value_or(""), "") << seed; }

TEST_F(History, AllMovesTakenBackAndPlayedAgainGiveTheSameGame) {
    for (std::uint32_t seed = 1; seed <= 80; ++seed) {
        RandomGame random(seed);
        random.Play(random.Choose(0, 1) == 0 ? 500 : 20);
        for (int left = game.history.redoCount; left > 0; --left) RedoMove();
        std::vector<std::string> texts{GameText()};
        while (game.history.movesCount > 0) {
            UndoMove();
            ExpectSound(seed);
            texts.push_back(GameText());
        }
        for (int p = 1; p <= game.numPlayers; ++p) {
            const Player& player = game.players[p];
            EXPECT_EQ(player.score + player.timeUsed + player.turns, 0);
        }
        recorded = {};
        while (game.history.redoCount > 0) {
            RedoMove();
            ExpectSound(seed);
        }
        EXPECT_EQ(GameText(), texts[0]) << seed;
        EXPECT_EQ(recorded.Count("PlaySoundFile"), 0);
        const int t = random.Choose(1, game.history.movesCount + 1);
        GoToMove(t);
        if (t > 1 && game.passCount > 0) continue;  // undo and play count passes differently
        EXPECT_EQ(GameText(), texts[texts.size() - static_cast<std::size_t>(t)]) << seed;
    }
}

TEST_F(History, UndoneMoveGivesBackTilesTimeAndTheTurn) {
    StartSmallGame({"Ada", "Bo"}, 1);
    game.currentPlayer = 1;
    GiveRack(1, "C[TEQUI");
    game.board[8][8] = {.state = SquareState::Placed, .letter = 'C'};
    game.board[8][9] = {.state = SquareState::Placed, .letter = '[', .blankLetter = 'A'};
    game.board[8][10] = {.state = SquareState::Placed, .letter = 'T'};
    for (int position : {1, 2, 3}) game.players[1].rack.positions[position] = 0;
    recorded.blankLetters = {'A'};
    FinishTurn();
    ASSERT_EQ(game.history.movesCount, 1);
    std::swap(game.players[2].rack.positions[1], game.players[2].rack.positions[8]);
    game.thrownBack.Append(std::exchange(game.players[2].rack.positions[2], '\0'));
    UndoMove();  // first takes back what Bo has put aside
    EXPECT_EQ(game.history.movesCount, 0);
    EXPECT_EQ(game.currentPlayer, 1);
    EXPECT_EQ(game.players[1].rack.Codes(), "C[TEQUI");
    EXPECT_EQ(game.players[1].timeUsed, 0);
    EXPECT_EQ(game.statusLines[1], "Your move Ada.");
}

TEST_F(History, NewMoveForgetsTheUndoneOnes) {
    RandomGame random(2);
    random.Play(6);
    UndoMove();
    UndoMove();
    game.Current().isComputer = false;
    headless.answers = {true};
    FinishTurn();
    ASSERT_EQ(game.history.Last().letters, "{}");
    const std::string text = GameText();
    RedoMove();
    EXPECT_EQ(GameText(), text);
}

TEST_F(History, UndoAndRedoNeedTheHintsOption) {
    RandomGame random(2);
    random.Play(3);
    UndoMove();
    preferences.allowHints = false;
    const std::string text = GameText();
    UndoMove();
    RedoMove();
    GoToMove(1);
    EXPECT_EQ(GameText(), text);
    EXPECT_THAT(TakeMessages(),
                ElementsAre("Undo is only allowed after you tick the \"Allow Hints\" option.",
                            "Redo is only allowed after you tick the \"Allow Hints\" option.",
                            "Undo/redo is only allowed after you tick the \"Allow Hints\" option."));
}

TEST_F(History, GoingToAComputersMoveMakesItWait) {
    StartSmallGame({"Ada 9"}, 1);
    for (int i = 0; i < 4; ++i) FinishTurn();
    for (const auto& [t, waits] : {std::pair{5, false}, {2, true}, {4, true}, {5, false}}) {
        preferences.tellComputerToMove = false;
        GoToMove(t);
        EXPECT_EQ(game.history.movesCount, t - 1);
        EXPECT_EQ(preferences.tellComputerToMove, waits) << t;
    }
    EXPECT_EQ(ReadFile("Data/Prefs/1010.str"), "T");
}

// Records that no game can have made, each after the good first move of CAT.
TEST_F(History, ImpossibleRecordsEndTheProgramWithTheirMessage) {
    struct Case {
        std::string letters, newLetters;
        int row;
        std::string message;
    };
    for (const Case& c : {
             Case{"E", "", 1, "Bug: bad board pos"},
             Case{"E", "", 8, "Bug: square should be empty"},
             Case{"Z", "", 9, "Bug: tile not found"},
             Case{"{Z}", "A", 0, "Bug: tile not in rack"},
             Case{"E", "AA", 9, "Bug: rack full"},
             Case{"E", "Z", 9, "Bug: requested letter not in bag"},
         }) {
        headless = {};
        game = FreshGameState();
        game.settings.boardRows = 13;
        ComputeBounds();
        StartSmallGame({"Ada", "Bo"}, 1);
        GiveRack(1, "");
        GiveRack(2, "ZQJXKVW");
        GiveRack(1, "CATEIOU");
        MoveHistory& history = game.history;
        history.records[1] = Record(1, "CAT", "EIO");
        history.records[1].numTiles = 3;
        for (std::int16_t i = 1; i <= 3; ++i) {
            history.records[1].coords[i] = {8, static_cast<std::int16_t>(7 + i)};
        }
        history.records[2] = Record(1, c.letters.c_str(), c.newLetters.c_str());
        if (c.row > 0) {
            history.records[2].numTiles = 1;
            history.records[2].coords[1] = {static_cast<std::int16_t>(c.row), 8};
        }
        history.movesCount = 2;
        EXPECT_THROW(OpenGameReplay(), ProgramEnd) << c.message;
        EXPECT_THAT(TakeMessages(), ElementsAre(c.message));
    }
}

// A file can hold moves behind the passes that end a game; redoing stops there and does not hang.
TEST_F(History, RedoStopsAtAnEndInTheMiddleOfTheMoves) {
    StartSmallGame({"Ada", "Bo"}, 1);
    for (int n = 1; n <= 6; ++n) game.history.records[n] = Record(2 - n % 2, "{}");
    game.history.movesCount = 6;
    OpenGameReplay();
    EXPECT_TRUE(game.gameOver);
    GoToMove(1);
    GoToMove(7);
    EXPECT_TRUE(game.gameOver);
    EXPECT_EQ(game.history.movesCount, 2);
    EXPECT_EQ(HistoryLine(2, HistoryLineCount(2)).substr(6, 12), "End of game.");
    GoToMove(7);
    EXPECT_EQ(game.history.movesCount, 2);
}

TEST_F(History, EndTakenBackGivesBackItsPointsWhateverTheTimerIsNow) {
    StartSmallGame({"Ada", "Bo"}, 1);
    preferences.timerEnabled = true;
    game.players[1].timeUsed = 26 * 60;
    game.players[2].timeUsed = 26 * 60;
    headless.answers = {true, true};
    FinishTurn();
    FinishTurn();
    ASSERT_TRUE(game.gameOver);
    EXPECT_LT(game.players[1].score, -19);
    preferences.timerEnabled = false;
    UndoMove();
    EXPECT_FALSE(game.gameOver);
    EXPECT_EQ(game.players[1].score, 0);
    EXPECT_EQ(game.players[2].score, 0);
    EXPECT_EQ(game.passCount, 1);
}

TEST_F(History, LinesStandInTheirColumns) {
    StartSmallGame({"Ada", "Bo"}, 1);
    MoveHistory& history = game.history;
    history.records[1] = Record(1, "C[AT", "", 8, 60);
    history.records[1].numTiles = 3;
    history.records[2] = Record(2, "{}", "", 0, 1530);
    history.records[3] = Record(1, "{Q[}", "AB", 0, 1495);
    history.records[12] = Record(1, "[A[B[C[D[EFG", "", 1234, 1500);
    history.records[12].numTiles = 7;
    history.movesCount = 1;
    history.redoCount = 11;
    for (int n = 4; n <= 11; ++n) history.records[n].player = 3;
    const std::vector<std::string> untimed{
        "1     C(A)T                 8",  //
        "3   + replaced Q?           0",
        "12  + (A)(B)(C)(D)(E)FG  1234",
        "      Redo all moves.",
    };
    const std::vector<std::string> times{"       24:00", "        0:05", "        0:00", ""};
    ASSERT_EQ(HistoryLineCount(1), 4);
    for (const bool timed : {false, true}) {
        preferences.timerEnabled = timed;
        for (int i = 1; i <= 4; ++i) {
            const auto at = static_cast<std::size_t>(i) - 1;
            EXPECT_EQ(HistoryLine(1, i), untimed[at] + (timed ? times[at] : ""));
        }
    }
    EXPECT_EQ(HistoryLine(2, 1), "2   \xB7 passed                0       +0:30");
    EXPECT_EQ(HistoryRecord(1, 3), 12);
    EXPECT_EQ(HistoryRecord(1, 4), 13);

    history.redoCount = 0;
    EXPECT_EQ(HistoryLineCount(2), 0);
    game.gameOver = true;
    game.players[1].lettersAdjustment = 12;
    game.players[2].lettersAdjustment = -7;
    game.players[2].overtimePenalty = 20;
    EXPECT_EQ(HistoryLine(1, 2), "      End of game.        +12");
    EXPECT_EQ(HistoryLine(2, 1), "      End of game.         -7         -20");
    EXPECT_EQ(HistoryRecord(2, 1), 2);
}

}  // namespace
}  // namespace quillet
