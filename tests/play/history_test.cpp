#include "play/history.h"

#include "game/bag.h"
#include "play/turns.h"
#include "support/random_games.h"

namespace quillet {
namespace {

using History = World;

MoveRecord Record(int player, const char* letters, const char* newLetters = "", int score = 0, int time = 0) {
    MoveRecord record;
    record.player = static_cast<std::uint16_t>(player);
    record.letters = letters;
    record.newLetters = newLetters;
    record.score = score;
    record.time = time;
    return record;
}

TEST_F(History, AllMovesTakenBackAndPlayedAgainGiveTheSameGame) {
    for (std::uint32_t seed = 1; seed <= 80; ++seed) {
        RandomGame random(seed);
        random.Play(random.Choose(0, 1) == 0 ? 500 : 20);
        while (game.history.redoCount > 0) RedoMove();
        recorded = {};
        Strings texts{GameText()};
        while (game.history.movesCount > 0) {
            UndoMove();
            ExpectConsistent();
            texts.push_back(GameText());
        }
        for (int p = 1; p <= game.numPlayers; ++p) {
            EXPECT_EQ(game.players[p].score + game.players[p].timeUsed + game.players[p].turns, 0);
        }
        while (game.history.redoCount > 0) {
            RedoMove();
            ExpectConsistent();
        }
        EXPECT_EQ(GameText(), texts[0]) << seed;
        const int t = random.Choose(1, game.history.movesCount + 1);
        GoToMove(t);
        EXPECT_EQ(GameText(), texts[texts.size() - static_cast<std::size_t>(t)]) << seed;
        EXPECT_EQ(recorded.Count("PlaySoundFile"), 0);
    }
}

TEST_F(History, NeedsTheHintsOptionAndMakesComputersWait) {
    SetWords({"AT", "ER", "IN", "ON", "TO"});
    StartGame({"Ada 9"});
    for (int i = 0; i < 4; ++i) FinishTurn();
    for (const auto& [t, waits] : {std::pair{5, false}, {2, true}, {4, true}, {5, false}, {4, true}}) {
        preferences.tellComputerToMove = false;
        GoToMove(t);
        EXPECT_EQ(game.history.movesCount, t - 1);
        EXPECT_EQ(preferences.tellComputerToMove, waits) << t;
    }
    EXPECT_EQ(ReadFile("Data/Prefs/1010.str"), "T");
    preferences.allowHints = false;
    UndoMove();
    RedoMove();
    GoToMove(1);
    EXPECT_EQ(game.history.movesCount, 3);
    EXPECT_THAT(TakeMessages(),
                ElementsAre("Undo is only allowed after you tick the \"Allow Hints\" option.",
                            "Redo is only allowed after you tick the \"Allow Hints\" option.",
                            "Undo/redo is only allowed after you tick the \"Allow Hints\" option."));
}

TEST_F(History, ImpossibleRecordsEndTheProgramWithTheirMessage) {
    const std::tuple<const char*, const char*, std::int16_t, std::string> cases[] = {
        // letters, new letters, row of the tile in column 8, and what is wrong
        {"E", "", 16, "bad board pos"}, {"E", "", 8, "square should be empty"},
        {"Z", "", 9, "tile not found"}, {"{Z}", "A", 0, "tile not in rack"},
        {"E", "AA", 9, "rack full"},    {"E", "Z", 9, "requested letter not in bag"},
    };
    for (const auto& [letters, newLetters, row, fault] : cases) {
        headless = {};
        game = FreshGameState();
        game.numPlayers = 2;
        game.dealOnSetUp = false;
        game.startRacks = {{"CATEIOU", "ZQJXKVW"}};
        game.board[8][8] = {.kind = 9, .state = SquareState::Frozen, .letter = '1'};
        MoveRecord& record = game.history.records[1] = Record(1, letters, newLetters);
        record.numTiles = row > 0 ? 1 : 0;
        record.coords[1] = {row, 8};
        game.history.movesCount = 1;
        FillBag();
        SetUpGame();
        EXPECT_THROW(OpenGameReplay(), ProgramEnd) << fault;
        EXPECT_THAT(TakeMessages(), ElementsAre("Bug: " + fault));
    }
}

// A file can hold moves behind the passes that end a game.
TEST_F(History, RedoStopsAtAnEndInTheMiddleOfTheMoves) {
    StartGame({"Ada", "Bo"});
    for (int n = 1; n <= 6; ++n) game.history.records[n] = Record(2 - n % 2, "{}");
    game.history.movesCount = 6;
    OpenGameReplay();
    for (const int t : {1, 7, 7}) GoToMove(t);
    EXPECT_TRUE(game.gameOver);
    EXPECT_EQ(game.history.movesCount, 2);
    EXPECT_EQ(HistoryLine(2, HistoryLineCount(2)).substr(6, 12), "End of game.");
}

TEST_F(History, EndTakenBackGivesBackItsPointsWhateverTheTimerIsNow) {
    StartGame({"Ada"});
    preferences.timerEnabled = true;
    game.players[1].timeUsed = 26 * 60;
    headless.answers = {true};
    FinishTurn();
    ASSERT_LE(game.players[1].score, -20);
    preferences.timerEnabled = false;
    UndoMove();
    EXPECT_FALSE(game.gameOver);
    EXPECT_EQ(game.players[1].score + game.passCount, 0);
}

TEST_F(History, LinesStandInTheirColumns) {
    MoveHistory& history = game.history;
    history.records[1] = Record(1, "C[AT", "", 8, 60);
    history.records[1].numTiles = 3;
    history.records[2] = Record(2, "{}", "", 0, 1530);
    history.records[3] = Record(1, "{Q[}", "AB", 0, 1495);
    history.records[12] = Record(1, "[A[B[C[D[EFG", "", 1234, 1490);
    history.records[12].numTiles = 7;
    history.movesCount = 1;
    history.redoCount = 11;
    game.gameOver = false;
    preferences.timerEnabled = true;
    const auto lines = [](int player) {
        Strings texts;
        for (int i = 1; i <= HistoryLineCount(player); ++i) {
            texts.push_back(std::to_string(HistoryRecord(player, i)) + "|" + HistoryLine(player, i));
        }
        return texts;
    };
    EXPECT_THAT(lines(1), ElementsAre("1|1     C(A)T                8       24:00",   //
                                      "3|3   + replaced Q?          0        0:05",   //
                                      "12|12  + (A)(B)(C)(D)(E)FG 1234        0:10",  //
                                      "13|      Redo all moves."));
    EXPECT_EQ(lines(2)[0], "2|2   \xB7 passed               0       +0:30");
    preferences.timerEnabled = false;
    EXPECT_EQ(lines(1)[1], "3|3   + replaced Q?          0");
    preferences.timerEnabled = true;
    history.redoCount = 0;
    EXPECT_EQ(HistoryLineCount(2), 0);
    game.gameOver = true;
    game.players[1].lettersAdjustment = 12;
    game.players[2].lettersAdjustment = -7;
    game.players[2].overtimePenalty = 20;
    EXPECT_EQ(lines(1)[1], "2|      End of game.       +12");
    EXPECT_THAT(lines(2), ElementsAre("2|      End of game.        -7         -20"));
}

}  // namespace
}  // namespace quillet
