#include "play/rack_tools.h"

#include "computer/move_choice.h"
#include "play/turns.h"
#include "support/world.h"

namespace quillet {
namespace {

using testing::IsSubsetOf;

class RackTools : public World {
  protected:
    // A rack with empty places before and between its tiles.
    static void GiveSpreadRack(std::string_view codes) {
        GiveRack(1, codes);
        auto& positions = game.players[1].rack.positions;
        std::rotate(positions.begin() + 1, positions.begin() + 7, positions.begin() + 8);
        std::rotate(positions.begin(), positions.begin() + 7, positions.begin() + 8);
    }
    static Strings Hint(int level) {
        recorded.calls.clear();
        ShowHint(level);
        ExpectConsistent();
        return recorded.calls;
    }
};

TEST_F(RackTools, PermuteVisitsEachArrangementOnceInOrder) {
    const std::pair<std::string, Strings> cases[] = {
        {"ABC", {"ACB", "BAC", "BCA", "CAB", "CBA", "ABC"}},
        {"AAB", {"ABA", "BAA", "AAB"}},
        {"?Z", {"Z?", "?Z"}},
        {"E", {"E"}},
    };
    StartGame({"Ada"});
    for (const auto& [rack, arrangements] : cases) {
        GiveSpreadRack(rack);
        for (const std::string& arrangement : arrangements) {
            Permute();
            EXPECT_EQ(RackOf(1), arrangement);
            EXPECT_NE(game.players[1].rack.positions[static_cast<int>(rack.size())], 0) << "compacted";
        }
    }
    EXPECT_EQ(headless.beeps, 0);
}

TEST_F(RackTools, MixKeepsTheTilesAndCompactsThem) {
    StartGame({"Ada"});
    const std::string rack = "AEIRST?";
    int atHome = 0;
    for (int mix = 0; mix < 300; ++mix) {
        if (mix % 100 == 0) GiveSpreadRack(rack);
        MixRack();
        EXPECT_THAT(RackOf(1), testing::UnorderedElementsAreArray(rack));
        EXPECT_EQ(game.players[1].rack.EmptyPosition(), 8);
        atHome += RackOf(1)[0] == 'A';
    }
    EXPECT_TRUE(atHome > 20 && atHome < 70) << atHome;  // of 300 / 7
}

TEST_F(RackTools, BeepWhereThereIsNothingToDoAndSoundAsTheOptionSays) {
    StartGame({"Ada"});
    MixRack();
    Permute();
    EXPECT_THAT(recorded.calls, ElementsAre("StartSoundFile sounds mix.wav", "RedrawRack",
                                            "StartSoundFile sounds mix.wav", "RedrawRack"));
    preferences.playMixPermute = false;
    MixRack();
    EXPECT_EQ(recorded.Count("StartSoundFile"), 2);
    recorded.calls.clear();
    game.gameOver = true;
    Permute();
    EXPECT_EQ(headless.beeps, 0);
    MixRack();
    EXPECT_EQ(headless.beeps, 1);
    game.gameOver = false;
    GiveRack(1, "");
    MixRack();
    Permute();
    EXPECT_EQ(headless.beeps, 3);
    EXPECT_THAT(recorded.calls, IsEmpty());
}

TEST_F(RackTools, HintLaysOutThePlacementForDone) {
    SetWords({"CATS", "AT"});
    StartGame({"Ada", "Bo"});
    GiveRack(1, "VVCAT?E");
    PutTiles(3, 3, "V");
    game.thrownBack = "E";
    game.players[1].rack.positions[7] = 0;
    EXPECT_THAT(Strings({"ShowWaitCursor", "DrawSquare 3 3", "RedrawLettersLeft", "RedrawRack",
                         "DrawBoardTile 8 5 C", "DrawBoardTile 8 6 A", "DrawBoardTile 8 7 T",
                         "DrawBoardTile 8 8 [", "FlashSquares 8 5 8 6 8 7 8 8"}),
                IsSubsetOf(Hint(8)));
    EXPECT_EQ(recorded.calls.back(), "ShowArrowCursor");
    EXPECT_EQ(RackOf(1), "VVE");
    EXPECT_THAT(StatusLines(), ElementsAre("Your move Ada.", "Score = 5"));
    preferences.blinkComputerMoves = false;
    EXPECT_THAT(Hint(8), Not(Contains(StartsWith("Flash"))));
    recorded.blankLetters = {'S'};
    FinishTurn();
    EXPECT_EQ(game.history.Last().letters, "CAT[S");
    EXPECT_EQ(game.history.Last().score, 5);
}

TEST_F(RackTools, HintToExchangePutsTheLettersAsideForDone) {
    SetWords({"QUIZ"});
    StartGame({"Ada", "Bo"});
    GiveRack(1, "VVWWCCF");
    headless.tick = 5000;
    EXPECT_THAT(Strings({"RedrawRack", "RedrawLettersLeft", "FlashLettersLeft", "ShowStatusLine 2 Throw back",
                         "ShowStatusLine 3 VVWWCCF", "ShowStatusLine 2 Score = 0"}),
                IsSubsetOf(Hint(8)));
    EXPECT_EQ(headless.tick, 6500);
    EXPECT_EQ(RackOf(1), "");
    EXPECT_EQ(recorded.Count("PlaySoundFile"), 0);
    FinishTurn();
    ExpectConsistent();
    EXPECT_EQ(game.history.Last().letters, "{VVWWCCF}");
}

TEST_F(RackTools, HintsAreForHumansWhoAllowThem) {
    StartGame({"Ada", "Bo 4"});
    GiveRack(1, "VVWWCCF");
    PutTiles(8, 8, "V");
    Hint(9);
    EXPECT_EQ(recorded.Count("ShowStatusLine 2 Pass!"), 1);
    EXPECT_EQ(RackOf(1), "VVWWCCF");
    SetWords({"AT"});
    preferences.allowHints = false;
    EXPECT_THAT(Hint(8), IsEmpty());
    EXPECT_THAT(TakeMessages(),
                ElementsAre("Help is only allowed after you tick the \"Allow Hints\" option."));
    preferences.allowHints = true;
    game.currentPlayer = 2;
    EXPECT_THAT(Hint(8), IsEmpty());
    game.currentPlayer = 1;
    game.gameOver = true;
    ShowHint(8);
    EXPECT_THAT(recorded.calls, IsEmpty());
}

TEST_F(RackTools, SwappingWithTheBagRewritesTheLatestDrawOfThatLetter) {
    const std::tuple<Strings, Strings, const char*> cases[] = {
        // drawn after each move so far, Ada's the first; the same then, and her rack at the start
        {{"DOD", "D", "AD", "D"}, {"DOD", "D", "AZ", "D"}, "DAD"},
        {{"DOD", "D", "AA", "D"}, {"ZOD", "D", "AA", "D"}, "DAD"},
        {{"EEE", "D"}, {"EEE", "D"}, "ZAD"},
        {{}, {}, "ZAD"},
    };
    for (const auto& [drawn, rewritten, startRack] : cases) {
        StartGame({"Ada", "Bo"});
        GiveRack(2, "AEIEAIE");
        GiveRack(1, "CATSDOG");
        game.startRacks[1] = "DAD";
        for (const std::string& letters : drawn) {
            GiveScore(game.history.movesCount % 2 + 1, 0);
            game.history.Last().newLetters = std::string_view(letters);
        }
        game.history.redoCount = 3;
        SwapWithBag(5, 'Z');
        EXPECT_EQ(RackOf(1), "CATSZOG");
        EXPECT_EQ(game.history.redoCount, 0);
        EXPECT_EQ(game.startRacks[1], startRack);
        for (int n = 1; n <= game.history.movesCount; ++n) {
            EXPECT_EQ(game.history.records[n].newLetters, rewritten[static_cast<std::size_t>(n) - 1]);
        }
    }
}

}  // namespace
}  // namespace quillet
