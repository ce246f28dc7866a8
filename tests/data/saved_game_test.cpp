#include "data/saved_game.h"

#include "data/scenarios.h"
#include "play/history.h"
#include "support/random_games.h"

namespace quillet {
namespace {

// A move of each kind. Line 10 has a double word at row 8, column 8 and a blocked square beside it.
const std::string kGood =
    "version = 2\r\n"
    "scenario = \"My \1own\1\"\r\n"
    "7 letter bonus = 45\r\n"
    "letter values = 1332142418513113:11114484:0\r\n"
    "letter counts = 9224<2329114268216464221212\r\n"
    "start row = 8\r\n"
    "start col = 7\r\n"
    "board rows = 13\r\n"
    "board cols = 15\r\n"
    "board squares = " +
    std::string(112, '.') + "D1" + std::string(111, 't') +
    "\r\n"
    "players = \"Ada L\" Bo9\r\n"
    "start game = false\r\n"
    "p1 start = CA[ETOR\r\n"
    "p2 start = IIIIIII\r\n"
    "moves = 4\r\n"
    "1 = 1 CAT 8 5 8 6 8 7 EQU 10 31\r\n"
    "2 = 2 {} 0 64\r\n"
    "3 = 1 {[E} ZX 0 40\r\n"
    "4 = 2 I 9 6 \"\" -2 70\r\n";

class SavedGame : public World {
  protected:
    SavedGame() {
        MakeFolder("Scenarios");
        CreateScenario("My \"own\"");
        LoadScenario();
    }

    bool Load(const std::string& contents) {
        WriteFile("game.qlg", contents);
        return LoadGame("game.qlg");
    }
    std::string Save() {
        EXPECT_TRUE(SaveGame("game.qlg"));
        return ReadFile("game.qlg");
    }
};

// The good file with the value `value` in that line, counted from 1.
std::string With(int line, const std::string& value, const std::string& file = kGood) {
    std::size_t at = 0;
    while (--line > 0) at = file.find('\n', at) + 1;
    return file.substr(0, at) + "=" + value + file.substr(file.find('\r', at));
}

TEST_F(SavedGame, IsReadAndWrittenByteForByte) {
    ASSERT_TRUE(Load(kGood));
    OpenGameReplay();
    ExpectConsistent();
    EXPECT_EQ(RackOf(1), "ZQXEUOR");
    EXPECT_TRUE(game.players[1].score == 10 && game.players[2].timeUsed == 70 && game.players[2].isComputer);
    EXPECT_EQ(game.statusLines[1], "Your move Ada L.");
    EXPECT_EQ(ReadFile("Data/Prefs/201.str") + ReadFile("Data/Prefs/202.str"), "Ada LBo9");
    EXPECT_EQ(Save(), kGood);
    for (int i = 0; i < 4; ++i) UndoMove();
    EXPECT_EQ(Save(), kGood.substr(0, kGood.find("start game")) + "start game = true\r\n");
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_FALSE(SaveGame("Gone\\game.qlg") || LoadGame("Gone.qlg"));
    EXPECT_THAT(TakeMessages(), ElementsAre("Couldn't create game file: Gone\\game.qlg",
                                            "Couldn't open game file: Gone.qlg"));
}

TEST_F(SavedGame, OddFilesThatStillTellAGameAreOpened) {
    const std::string start = kGood.substr(0, kGood.find("start game")) + "x=True\r\n";
    std::string many = With(15, "250");
    for (int n = 5; n <= 200; ++n) many += " = 2 {} 0 1\r\n";
    const std::tuple<std::string, const char*, std::string> cases[] = {
        // the file, its first player, and the warning
        {"% hello\r\n%\r\n" + kGood, "Ada L", ""},
        {With(1, "3"), "Ada L", "Unexpected version number in game file."},
        {With(3, "5000"), "Ada L", ""},
        {With(4, std::string(28, '1')), "Ada L", "Bad letter values!"},
        {With(5, "9224<2329114268216464221212 "), "Ada L", "Bad letter counts!"},
        {With(10, std::string(226, '.')), "Ada L", "Bad board squares!"},
        {many, "Ada L", "Number of moves is too high!"},
        {start + "rubbish", "Ada L", ""},
        {With(11, "", start), "Who?", ""},
        {With(11, "A \"long \1 name that is cut\" \"\" D E F", start), "A", ""},
        {With(1, "1", With(16, "1 CAT 8 5 8 6 8 7 EQU 10")), "Ada L", ""},
    };
    for (const auto& [file, firstPlayer, warning] : cases) {
        ASSERT_TRUE(Load(file)) << file;
        EXPECT_EQ(TakeMessages(), Strings(warning.empty() ? 0 : 1, warning));
        EXPECT_EQ(game.players[1].name, firstPlayer);
        EXPECT_LE(game.numPlayers, 4);
        EXPECT_LE(game.settings.sevenLetterBonus, 999);
        OpenGameReplay();
    }
    EXPECT_EQ(game.history.records[1].time, 0) << "of version 1";
}

TEST_F(SavedGame, EachFaultIsReportedWithItsLine) {
    const std::tuple<int, const char*, std::string> cases[] = {
        {2, "\"My", "Missing end quote on line 2"},
        {2, "\"My \1own\1\"\r\n%\r\n\r\nx", "Missing \"=\" sign on line 4"},
        {3, "5x", "Bad integer on line 3"},
        {3, "", "Bad integer on line 3"},
        {7, "65536", "Bad cardinal on line 7"},
        {7, "-1", "Bad cardinal on line 7"},
        {12, "1", "Bad boolean on line 12"},
        {13, "CA[ETO", "Incorrect number of letters on line 13"},
        {14, "iIIIIII", "Bad letter on line 14"},
        {16, "3 {} 0 1", "Bad player number on line 16"},
        {16, "1 ABCDEFGHIJKLM 0 1", "Bad move length on line 16"},
        {16, "1 ABCDEFGH 8 1 8 2 8 3 8 4 8 5 8 6 8 7 8 8 \"\" 0 1", "Bad move length on line 16"},
        {16, "1 {ABCDEFGH} ABCDEFGH 0 1", "Bad move length on line 16"},
        {16, "1 { 0 1", "} expected on line 16"},
        {16, "1 {AB} C 0 1", "Bad replacement letters on line 16"},
        {16, "1 A[ 8 8 \"\" 0 1", "Bad blank on line 16"},
        {16, "1 A} 8 8 \"\" 0 1", "Bad move on line 16"},
        {16, "1 A 1 8 \"\" 0 1", "Bad row coord on line 16"},
        {16, "1 A 8 16 \"\" 0 1", "Bad col coord on line 16"},
        {16, "1 A 8 8 AB 0 1", "Bad new letters on line 16"},
        {16, "1 A 8 8 \"\" 2000000000 0", "Bad integer on line 16"},
        {16, "1 A 8 8 \"\" 0 -2147483648", "Bad integer on line 16"},
    };
    for (const auto& [line, value, message] : cases) {
        EXPECT_FALSE(Load(With(line, value))) << value;
        EXPECT_THAT(TakeMessages(), ElementsAre(message + " of game.qlg"));
    }
    for (std::size_t size = 0; size < kGood.size() - 1; size += 7) {
        EXPECT_FALSE(Load(kGood.substr(0, size)));
        EXPECT_THAT(TakeMessages(), ElementsAre("Unexpected end to file: game.qlg")) << size;
    }
}

TEST_F(SavedGame, FailedLoadNeverLeavesHalfAGameInPlay) {
    CreateScenario("Other");
    SetCurrentScenario("My \"own\"");
    for (const auto& [file, goesOn] :
         {std::pair{With(2, "Gone"), true},
          {With(3, "x"), true},
          {With(3, "7").substr(0, With(3, "7").find("letter counts") + 20), true},
          {With(2, "Other", With(3, "x")), false},
          {With(11, "\"Ada"), false},
          {With(12, "x"), false}}) {
        StartGame({"Ada", "Bo"});
        const std::string before = GameText();
        const LetterValues values = game.settings.letterValues = {};
        const std::int32_t bonus = game.settings.sevenLetterBonus = 1;
        EXPECT_FALSE(Load(file));
        EXPECT_EQ(GameText() == before, goesOn);
        EXPECT_EQ(game.settings.letterValues == values && game.settings.sevenLetterBonus == bonus, goesOn);
        EXPECT_EQ(game.IsRunning(), goesOn);
        EXPECT_GT(game.numPlayers, 0);
        EXPECT_EQ(game.statusLines[2] == "select a scenario.", !goesOn);
    }
}

TEST_F(SavedGame, AnyGameComesBackTheSame) {
    for (std::uint32_t seed = 1; seed <= 200; ++seed) {
        RandomGame random(seed);
        random.Play(random.Choose(0, 40) * (seed % 8 == 0 ? 100 : 1));
        const std::string saved = Save();
        const std::string text = GameText();
        ASSERT_TRUE(LoadGame("game.qlg"));
        OpenGameReplay();
        EXPECT_TRUE(GameText() == text || game.history.movesCount == 0) << seed;
        EXPECT_EQ(Save(), saved) << seed;
    }
}

}  // namespace
}  // namespace quillet
