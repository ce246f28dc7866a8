#include "play/turns.h"
#include "play/announcements.h"

#include <sstream>

#include "base/idle_pump.h"
#include "support/world.h"
#include "words/word_list_file.h"

namespace quillet {
namespace {

class Turns : public World {
  protected:
    static void Finish() {
        FinishTurn();
        ExpectConsistent();
    }
    // Plays tiles of the current player's rack; the words count as known.
    static void Play(const std::string& tiles) {
        PutTiles(8, 8, tiles);
        headless.answers = {true, true};
        Finish();
    }
    // Lets a pass of player 1 end the game.
    static void EndByPass() {
        game.passCount = static_cast<std::uint16_t>(game.numPlayers - 1);
        game.players[1].turns = 1;
        Finish();
    }
    // "player letters score time new-letters".
    static std::string LastMove() {
        const MoveRecord& move = game.history.records[std::max(game.history.movesCount, 1)];
        std::ostringstream text;
        text << move.player << ' ' << move.letters.View() << ' ' << move.score << ' ' << move.time << "s "
             << move.newLetters.View();
        return text.str();
    }
    // "move-count, who is next, passes in a row".
    static std::string Standing() {
        std::ostringstream text;
        text << game.history.movesCount << ", " << game.Current().name.View() << ", " << game.passCount;
        return text.str();
    }
    static Strings Sounds() {
        Strings sounds = Calls("PlaySoundFile ");
        for (std::string& sound : sounds) sound.erase(0, sound.find(' ') + 1);
        return sounds;
    }
};

TEST_F(Turns, PlacementIsRecordedScoredAndRefilled) {
    StartGame({"Ada", "Bo"});
    GiveRack(1, "XT?VAEI");
    LeaveInBag("OO");
    EXPECT_THAT(StatusLines(), ElementsAre("Your move Ada.", "Click on DONE after", "moving your letters."));
    game.turnSeconds = 12;
    game.passCount = 1;
    game.history.redoCount = 3;
    recorded.blankLetters = {'C'};
    Play("c/A/T");
    EXPECT_EQ(LastMove(), "1 [CAT 2 12s OO");
    EXPECT_EQ(game.history.Last().coords[3], (BoardPosition{10, 8}));
    EXPECT_EQ(RackOf(1), "XOOVEI");
    EXPECT_EQ(Standing(), "1, Bo, 0");
    EXPECT_TRUE(game.players[1].turns == 1 && game.history.redoCount == 0);
    EXPECT_THAT(Calls("Draw"), ElementsAre("DrawPlayedBlank 8 8"));
}

TEST_F(Turns, RefusedPlacementsStayOnTheBoardAndCostNothing) {
    StartGame({"Ada", "Bo"});
    GiveRack(1, "CAT?EEE");
    PutTiles(8, 8, "CATx");
    recorded.blankLetters = {std::nullopt, 'Q'};
    Finish();
    EXPECT_TRUE(headless.questions.empty());
    Finish();
    EXPECT_THAT(headless.questions, SizeIs(1));
    game.thrownBack = "E";
    game.players[1].rack.positions[5] = 0;
    Finish();
    EXPECT_THAT(TakeMessages(), ElementsAre("Some letters have been thrown back and some are on the board."));
    EXPECT_EQ(Standing(), "0, Ada, 0");
}

TEST_F(Turns, FirstPassIsQuestionedWhileAnExchangeIsPossible) {
    StartGame({"Ada", "Bo"});
    LeaveInBag("ABCDEFG");
    Finish();
    ASSERT_THAT(headless.questions, SizeIs(1));
    EXPECT_EQ(headless.questions.front().text,
              "Are you sure you want to pass rather than throw back letters?");
    EXPECT_FALSE(headless.questions.front().yesIsDefault);
    EXPECT_EQ(Standing(), "0, Ada, 0");
    headless.answers = {true};
    Finish();
    EXPECT_EQ(LastMove(), "1 {} 0 1s ");
    EXPECT_EQ(Standing(), "1, Bo, 1");
    LeaveInBag("ABCDEF");
    Finish();
    EXPECT_TRUE(game.gameOver);
    EXPECT_THAT(headless.questions, SizeIs(2));
}

TEST_F(Turns, ThrowAllBackExchangesRackBoardAndThrownTiles) {
    StartGame({"Ada", "Bo 4"});
    GiveRack(1, "QZJXKV?");
    LeaveInBag("EEEEEE");
    ThrowAllBack();
    EXPECT_THAT(TakeMessages(), ElementsAre("Must be at least 7 letters left."));
    LeaveInBag("EEEEEEE");
    PutTiles(3, 3, "x");
    game.thrownBack = "J";
    game.players[1].rack.positions[3] = 0;
    ThrowAllBack();
    EXPECT_EQ(LastMove(), "1 {JQZXKV[} 0 1s EEEEEEE");
    ThrowAllBack();  // a computer's tiles are not the user's to throw
    ExpectConsistent();
    EXPECT_EQ(Standing(), "1, Bo 4, 0");
}

TEST_F(Turns, RestoredTilesTakeTheLowestFreePositions) {
    StartGame({"Ada", "Bo"});
    GiveRack(1, "CAT?EFG");
    PutTiles(8, 8, "T/x");
    game.players[1].rack.positions[1] = 0;
    game.thrownBack = "C";
    RestoreTiles();
    RestoreTiles();
    ExpectConsistent();
    EXPECT_EQ(RackOf(1), "TA?CEFG");
    EXPECT_EQ(recorded.Count("UpdateScorePreview"), 1);
    game.players[1].rack.positions[8] = 'A';
    game.thrownBack = "A";
    EXPECT_THROW(RestoreTiles(), ProgramEnd);
    EXPECT_THROW(FinishTurn(), ProgramEnd);
}

TEST_F(Turns, ComputerPlacesExchangesOrPasses) {
    const std::tuple<Strings, std::string, Strings> cases[] = {
        {{"CAT"}, "1 CAT 5 1s EEE", {}},
        {{"ZZZ"}, "1 {CATVVWW} 0 1s EEEEEEE", {"2 Throw back", "3 CATVVWW"}},
        {{}, "1 {} 0 1s ", {"2 Pass!"}}};
    for (const auto& [words, move, shown] : cases) {
        StartGame({"Bo 8", "Ada"});
        GiveRack(1, "CATVVWW");
        LeaveInBag("EEEEEEE");
        SetWords(words);
        Finish();
        EXPECT_EQ(LastMove(), move);
        EXPECT_EQ(Standing(), words.empty() ? "1, Ada, 1" : "1, Ada, 0");
        EXPECT_EQ(recorded.Count("FlashSquares 8 "), shown.empty() ? 1 : 0);
        for (const std::string& line : shown) EXPECT_EQ(recorded.Count("ShowStatusLine " + line), 1) << line;
        game.settings = FreshGameState().settings;
    }
}

TEST_F(Turns, EachMoveShowsWhatItChanged) {
    SetWords({"CAT"});
    const auto shown = [] {
        Strings calls = recorded.calls;
        std::erase_if(calls, [](const std::string& call) { return call.starts_with("ShowStatusLine"); });
        recorded.calls.clear();
        return calls;
    };
    StartGame({"Ada", "Bo 8"});
    GiveRack(1, "DDEEEEE");
    GiveRack(2, "CATVVWW");
    PutTiles(3, 3, "E/E");
    game.thrownBack = "E";
    *std::ranges::find(game.players[1].rack.positions, 'E') = 0;
    RestoreTiles();
    EXPECT_THAT(shown(), ElementsAre("DrawSquare 3 3", "DrawSquare 4 3", "RedrawRack", "RedrawLettersLeft",
                                     "UpdateScorePreview"));
    PutTiles(3, 3, "E");
    ThrowAllBack();
    EXPECT_THAT(shown(), ElementsAre("DrawSquare 3 3", "RefreshForTurn", "RedrawAfterMove 1"));
    preferences.blinkComputerMoves = preferences.canWeTalk = preferences.playEndGame = false;
    Finish();
    EXPECT_THAT(shown(), ElementsAre("ShowWaitCursor", "RedrawRack", "DrawBoardTile 8 6 C",
                                     "DrawBoardTile 8 7 A", "DrawBoardTile 8 8 T", "RefreshForTurn",
                                     "RedrawAfterMove 2", "ShowArrowCursor", "RedrawWindow"));
    game.players[1].turns = 1;
    game.passCount = 1;
    Finish();
    EXPECT_THAT(shown(), ElementsAre("RedrawAfterMove 1", "RedrawPanels"));
}

TEST_F(Turns, WaitCursorStaysWhileAComputerUsesItsOwnWordList) {
    MakeFolder("Word Lists");
    MakeOpponent("Bo", "Own");
    SetWords({"CAT"});
    ASSERT_TRUE(SaveWordList("Own"));
    SetWords({});
    ASSERT_TRUE(SaveWordList("Words"));
    wordList.current = "Words";
    StartGame({"Bo 8", "Ada"});
    GiveRack(1, "CATVVWW");
    recorded.whenCalled["DrawBoardTile"] = [] {
        const Strings cursors = Calls("Show");
        EXPECT_EQ(*std::find_if(cursors.rbegin(), cursors.rend(),
                                [](auto& call) { return call.ends_with("Cursor"); }),
                  "ShowWaitCursor");
    };
    Finish();
    EXPECT_EQ(LastMove().substr(0, 5), "1 CAT");
    EXPECT_EQ(wordList.current, "Words");
}

TEST_F(Turns, EscapeStopsComputersThatPlayOnAlone) {
    preferences.tellComputerToMove = false;
    SetWords({"AT", "TA", "AA"});
    StartGame({"Bo 8", "Cy 8", "Di 8"});
    recorded.whenCalled["RefreshForTurn"] = [] { pump.abortRequested = game.history.movesCount == 4; };
    Finish();
    EXPECT_EQ(Standing(), "4, Cy 8, 0");
    EXPECT_EQ(ReadFile("Data/Prefs/1010.str"), "T");
    Finish();
    EXPECT_EQ(Standing(), "5, Di 8, 0");
}

TEST_F(Turns, HumansBingosAndBonusWordsAreAnnounced) {
    SetBonusWords({"RETAINS", "CAT"}, 25);
    const Strings bonus{"sounds bonus.wav"}, both{"sounds bingo.wav", "sounds bonus.wav"};
    const std::tuple<std::string, bool, Strings, unsigned> cases[] = {{"AT", true, {}, 0},
                                                                      {"CAT", true, bonus, 1500},
                                                                      {"RETAINS", true, both, 3000},
                                                                      {"RETAINS", false, {}, 3000}};
    for (const auto& [word, sounds, played, pause] : cases) {
        StartGame({"Ada", "Bo 4"});
        GiveRack(1, word);
        preferences.playBingoBonus = sounds;
        headless.tick = 0xFFFF'FF00;  // about to wrap around
        Play(word);
        EXPECT_EQ(headless.tick - 0xFFFF'FF00, pause) << word;
        EXPECT_EQ(Sounds(), played) << word;
        EXPECT_EQ(recorded.Count("ShowStatusLine 1 *** BINGO! ***"), word == "RETAINS" ? 1 : 0);
        EXPECT_EQ(recorded.Count("ShowStatusLine 1 *** BONUS WORD! ***"), word == "AT" ? 0 : 1);
    }
}

TEST_F(Turns, ComputersAlternateTheirVoicesAndPauseUnlessHushed) {
    MakeOpponent("Bo");
    const Strings none, bingo{"RETAINS"};
    const std::tuple<Strings, bool, bool, bool, int, unsigned> cases[] = {
        // the words; whether it is told to move, sounds and talks; the first of the two sounds that are
        // spoken
        // in two moves, and how long the moves pause
        {bingo, true, false, true, 8003, 3000}, {bingo, false, true, true, 8003, 3000},
        {bingo, false, false, true, 8003, 0},   {bingo, false, false, false, 0, 0},
        {none, true, true, true, 8005, 3000},   {none, false, true, false, 0, 3000},
        {none, false, false, true, 0, 0}};
    recorded.whenCalled["RefreshForTurn"] = [] { pump.abortRequested = true; };
    for (const auto& [words, tell, sounds, talks, voice, pause] : cases) {
        preferences.playSounds = sounds;
        preferences.canWeTalk = talks;
        SetWords(words);
        ResetVoiceTurns();
        headless.tick = 0;
        for (int move = 0; move < 2; ++move) {
            preferences.tellComputerToMove = tell;
            StartGame({"Bo 8", "Cy 8"});
            GiveRack(1, "RETAINS");
            Finish();
            const std::string sound = "opponents Bo\\" + std::to_string(voice + move) + ".wav";
            EXPECT_EQ(Sounds(), Strings(voice != 0 ? 1 : 0, sound));
        }
        EXPECT_EQ(headless.tick, pause);
    }
}

TEST_F(Turns, GoingOutTakesTheValuesOfTheOthersTiles) {
    StartGame({"Ada", "Bo", "Cy"});
    GiveRack(1, "CAT");
    GiveRack(2, "QZ?");
    GiveRack(3, "E");
    LeaveInBag("");
    Play("CAT");
    EXPECT_EQ(game.players[1].score, 5 + 21);
    EXPECT_EQ(game.players[2].score * 100 + game.players[3].score, -20 * 100 - 1);
    EXPECT_THAT(StatusLines(), ElementsAre("End of game.", "Well done", "Ada!"));
    recorded.calls.clear();
    Finish();  // from now on DONE shows the next rack
    EXPECT_EQ(game.currentPlayer, 2);
    EXPECT_THAT(recorded.calls, ElementsAre("RedrawWindow"));
}

TEST_F(Turns, TwoHundredthMoveEndsTheGame) {
    for (void (*move)() : {+[] { FinishTurn(); }, +[] { ThrowAllBack(); }, +[] { Play("CAT"); },
                           +[] { game.currentPlayer = 2, FinishTurn(); }}) {
        StartGame({"Ada", "Bo 4"});
        GiveRack(1, "CATEEEE");
        game.players[1].turns = 1;
        while (game.history.movesCount < 199) GiveScore(2, 0);
        move();
        ExpectConsistent();
        EXPECT_LT(game.players[2].lettersAdjustment, 0);
        EXPECT_TRUE(game.gameOver && RackOf(1).size() + game.history.Last().numTiles <= 7) << "no refill";
        EXPECT_THAT(TakeMessages(), ElementsAre("Too many moves!  Sorry, but we'll have to end this game."));
    }
}

TEST_F(Turns, NoMoveCountsMoreThanSumsCanBear) {
    for (const std::string player : {"Ada", "Ada 9"}) {
        StartGame({player, "Bo"});
        SetWords({"RETAINS"});
        GiveRack(1, "RETAINS");
        for (int at = 1; at <= kBoardSize; ++at) {
            SetSquare(8, at, 'P');
            SetSquare(at, 8, 'P');
        }
        game.settings.letterValues.entries.fill(207);
        game.Current().isComputer ? Finish() : Play("RETAINS");
        EXPECT_EQ(game.history.Last().score, kMostMovePoints) << player;
        EXPECT_EQ(game.players[1].score, kMostMovePoints) << player;
    }
}

TEST_F(Turns, EachStartedMinuteOverTheLimitCostsThePenalty) {
    for (const auto& [timeUsed, penalty] : {std::pair{1500, 0}, {1501, 10}, {1559, 10}, {1560, 20}}) {
        preferences.timerEnabled = true;
        StartGame({"Ada"});
        game.players[1].timeUsed = timeUsed - 1;
        EndByPass();
        EXPECT_EQ(game.players[1].overtimePenalty, penalty) << timeUsed;
    }
}

TEST_F(Turns, EndOfGameNamesTiesAndSounds) {
    MakeOpponent("Bo");
    const Strings against{"Ada", "Bo 5"};
    const std::tuple<Strings, int, bool, bool, Strings> cases[] = {
        // players, winner, whether voices and the sounds of the end are on, and what is heard
        {against, 0, true, true, {"sounds tiedgame.wav"}},
        {against, 0, true, false, {}},
        {against, 2, true, true, {"opponents Bo\\8001.wav"}},
        {against, 2, false, true, {}},
        {against, 1, true, true, {"opponents Bo\\8002.wav"}},
        {against, 1, false, true, {"sounds clapping.wav"}},
        {against, 1, false, false, {}},
        {{"Ada", "Bo 5", "Cy"}, 3, true, true, {"sounds clapping.wav"}},
        {{"Ada", "Cy"}, 2, true, true, {"sounds clapping.wav"}}};
    for (const auto& [names, winner, talk, endSounds, heard] : cases) {
        StartGame(names);
        game.settings.letterValues = {};
        if (winner != 0) GiveScore(winner, 10);
        preferences.canWeTalk = talk;
        preferences.playEndGame = endSounds;
        EndByPass();
        EXPECT_EQ(Sounds(), heard);
        if (winner != 0) continue;
        EXPECT_THAT(StatusLines(), ElementsAre("End of game.", "Well done", "Ada", "and Bo 5!"));
    }
}

TEST_F(Turns, NewGameTakesPlayersAndTimerFromThePreferences) {
    SetPlayers({"?"});
    NewGame(true);  // asks who plays; cancelled
    EXPECT_FALSE(game.gameStarted);
    WritePlayerNames(std::vector<PlayerName>{"Ada", "Bo 7"});
    RememberTimer(true, 7, 3);
    recorded.playersChosen = true;
    NewGame(true);
    EXPECT_EQ(recorded.Count("ChoosePlayers"), 2);
    GiveScore(1, 5);
    FreezeTiles(8, 8, "CAT");
    game.thrownBack = "A";
    game.passCount = 1;
    NewGame(true);
    ExpectConsistent();
    EXPECT_EQ(Standing(), "0, " + std::string(game.Current().name) + ", 0");
    EXPECT_TRUE(game.IsRunning() && game.players[2].skill == 7 && game.bag.tilesleft == 100 - 14);
    EXPECT_TRUE(game.timeLimit == 7 && game.timePenalty == 3);
}

}  // namespace
}  // namespace quillet
