#include "data/saved_game.h"

#include <gmock/gmock.h>

#include "base/messages.h"
#include "data/scenarios.h"
#include "game/consistency.h"
#include "play/history.h"
#include "store/preferences.h"
#include "support/random_games.h"
#include "support/recording_presentation.h"
#include "support/temp_folder.h"

namespace quillet {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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

class SavedGame : public GameFolder {
  protected:
    SavedGame() {
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

// The text with line `number` (from 1) in the place of the one it has; without a text the line goes.
std::string WithLine(const std::string& text, int number, const std::string& line) {
    std::size_t at = 0;
    while (--number > 0) at = text.find('\n', at) + 1;
    const std::size_t end = text.find('\n', at) + 1;
    return text.substr(0, at) + line + text.substr(end);
}

TEST_F(SavedGame, IsReadAndWrittenByteForByte) {
    ASSERT_TRUE(Load(kGood));
    OpenGameReplay();
    EXPECT_EQ(FindInconsistency(game).value_or(""), "");
    EXPECT_EQ(game.players[1].rack.Codes(), "ZQXEUOR");
    EXPECT_EQ(game.players[1].score + game.players[2].score, 8);
    EXPECT_EQ(game.players[1].timeUsed + game.players[2].timeUsed, 110);
    EXPECT_EQ(game.statusLines[1], "Your move Ada L.");
    EXPECT_TRUE(game.players[2].isComputer && game.players[2].skill == 9);
    EXPECT_EQ(ReadFile("Data/Prefs/201.str") + ReadFile("Data/Prefs/202.str"), "Ada LBo9");
    EXPECT_EQ(Save(), kGood);
    for (int i = 0; i < 4; ++i) UndoMove();
    EXPECT_EQ(Save(), kGood.substr(0, kGood.find("start game")) + "start game = true\r\n");
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_FALSE(SaveGame("Gone\\game.qlg"));
    EXPECT_THAT(TakeMessages(), ElementsAre("Couldn't create game file: Gone\\game.qlg"));
}

TEST_F(SavedGame, OddFilesThatStillTellAGameAreOpened) {
    struct Case {
        std::string contents, name;  // what is loaded; the first player's name or what else came of it
        std::vector<std::string> warnings;
    };
    const std::string start = kGood.substr(0, kGood.find("start game")) + "x=True\r\n";
    for (const Case& c : {
             Case{"% hello\r\n%\r\n" + kGood, "Ada L", {}},
             Case{WithLine(kGood, 1, "=3\r\n"), "Ada L", {"Unexpected version number in game file."}},
             Case{
                 WithLine(kGood, 4, "v = 1332142418513113:11114484:00\r\n"), "Ada L", {"Bad letter values!"}},
             Case{WithLine(kGood, 5, "c=9224<2329114268216464221212 \r\n"), "Ada L", {"Bad letter counts!"}},
             Case{WithLine(kGood, 10, "=" + std::string(226, '.') + "\r\n"), "Ada L", {"Bad board squares!"}},
             Case{start + "rubbish", "Ada L", {}},
             Case{WithLine(start, 11, "=\r\n"), "Who?", {}},
             Case{WithLine(start, 11, "= \"\" A B\r\n"), "", {}},
             Case{WithLine(start, 11, "= A B C D E F\r\n"), "A", {}},
             Case{WithLine(start, 11, "= ABCDEFGHIJKLMNO\r\n"), "ABCDEFGHIJKL", {}},
             Case{WithLine(start, 8, "= 65535\r\n"), "Ada L", {}},
         }) {
        ASSERT_TRUE(Load(c.contents)) << c.contents;
        EXPECT_EQ(TakeMessages(), c.warnings);
        EXPECT_EQ(game.players[1].name, c.name.c_str());
        EXPECT_LE(game.numPlayers, 4);
        OpenGameReplay();
    }
    std::string old = WithLine(kGood, 1, "version = 1\r\n");
    for (const auto& [line, text] : {std::pair{16, "= 1 CAT 8 5 8 6 8 7 EQU 10\r\n"}, {17, "= 2 {} 0\r\n"}}) {
        old = WithLine(old, line, text);
    }
    ASSERT_TRUE(Load(old));
    EXPECT_EQ(game.history.records[1].time, 0);
    std::string many = WithLine(kGood, 15, "moves = 250\r\n");
    for (int n = 5; n <= 200; ++n) many += std::to_string(n) + " = 2 {} 0 1\r\n";
    ASSERT_TRUE(Load(many));
    EXPECT_EQ(game.history.movesCount, 200);
    EXPECT_THAT(TakeMessages(), ElementsAre("Number of moves is too high!"));
}

TEST_F(SavedGame, EachFaultIsReportedWithItsLine) {
    struct Case {
        int line;
        std::string text, message;
    };
    for (const Case& c : {
             Case{1, "version = x\r\n", "Bad cardinal on line 1"},
             Case{2, "\r\n", "Missing \"=\" sign on line 2"},
             Case{2, "scenario = \"My\r\n", "Missing end quote on line 2"},
             Case{2, "% a comment\r\nscenario\r\n", "Missing \"=\" sign on line 3"},
             Case{3, "bonus = 5x\r\n", "Bad integer on line 3"},
             Case{7, "col = 65536\r\n", "Bad cardinal on line 7"},
             Case{9, "cols = -1\r\n", "Bad cardinal on line 9"},
             Case{12, "start game = 1\r\n", "Bad boolean on line 12"},
             Case{13, "p1 = CA[ETO\r\n", "Incorrect number of letters on line 13"},
             Case{14, "p2 = CA[ETORS\r\n", "Incorrect number of letters on line 14"},
             Case{14, "p2 = iIIIIII\r\n", "Bad letter on line 14"},
             Case{15, "moves = many\r\n", "Bad cardinal on line 15"},
             Case{16, "1 = 0 {} 0 1\r\n", "Bad player number on line 16"},
             Case{16, "1 = 3 {} 0 1\r\n", "Bad player number on line 16"},
             Case{16, "1 = 1\r\n", "Bad move length on line 16"},
             Case{16, "1 = 1 ABCDEFGHIJKLM 0 1\r\n", "Bad move length on line 16"},
             Case{16, "1 = 1 ABCDEFGH 8 1 8 2 8 3 8 4 8 5 8 6 8 7 8 8 \"\" 0 1\r\n",
                  "Bad move length on line 16"},
             Case{16, "1 = 1 {ABCDEFGH} ABCDEFGH 0 1\r\n", "Bad move length on line 16"},
             Case{16, "1 = 1 { 0 1\r\n", "} expected on line 16"},
             Case{16, "1 = 1 {a} B 0 1\r\n", "Bad letter on line 16"},
             Case{16, "1 = 1 {AB} C 0 1\r\n", "Bad replacement letters on line 16"},
             Case{16, "1 = 1 {AB} C? 0 1\r\n", "Bad letter on line 16"},
             Case{16, "1 = 1 A[ 8 8 \"\" 0 1\r\n", "Bad blank on line 16"},
             Case{16, "1 = 1 [[ 8 8 \"\" 0 1\r\n", "Bad blank on line 16"},
             Case{16, "1 = 1 A} 8 8 \"\" 0 1\r\n", "Bad move on line 16"},
             Case{16, "1 = 1 A 1 8 \"\" 0 1\r\n", "Bad row coord on line 16"},
             Case{16, "1 = 1 A 8 16 \"\" 0 1\r\n", "Bad col coord on line 16"},
             Case{16, "1 = 1 A 8 eight \"\" 0 1\r\n", "Bad integer on line 16"},
             Case{16, "1 = 1 A 8 8 AB 0 1\r\n", "Bad new letters on line 16"},
             Case{16, "1 = 1 A 8 8 1 0 1\r\n", "Bad letter on line 16"},
             Case{16, "1 = 1 A 8 8 \"\" 0\r\n", "Bad integer on line 16"},
             Case{16, "1 = 1 A 8 8 \"\" 2000000000 0\r\n", "Bad integer on line 16"},
             Case{16, "1 = 1 A 8 8 \"\" 0 -2147483648\r\n", "Bad integer on line 16"},
         }) {
        EXPECT_FALSE(Load(WithLine(kGood, c.line, c.text))) << c.text;
        EXPECT_THAT(TakeMessages(), ElementsAre(c.message + " of game.qlg")) << c.text;
    }
    for (std::size_t size = 0; size < kGood.size() - 1; size += 7) {
        EXPECT_FALSE(Load(kGood.substr(0, size)));
        EXPECT_THAT(TakeMessages(), ElementsAre("Unexpected end to file: game.qlg")) << size;
    }
    EXPECT_FALSE(LoadGame("Gone.qlg"));
    EXPECT_THAT(TakeMessages(), ElementsAre("Couldn't open game file: Gone.qlg"));
}

TEST_F(SavedGame, FailedLoadNeverLeavesHalfAGameInPlay) {
    CreateScenario("Other");
    SetCurrentScenario("My \"own\"");
    StartGameOf({"Ada", "Bo"}, 3);
    const std::string before = GameText();
    for (const auto& [line, text] :
         {std::pair{2, "= Gone\r\n"}, {3, "= x\r\n"}, {2, "= Other\r\n= x\r\n"}, {12, "=\r\n"}}) {
        EXPECT_FALSE(Load(WithLine(kGood, line, text)));
        const bool late = line == 12 || text[2] == 'O';
        EXPECT_EQ(GameText() == before, !late) << text;
        EXPECT_EQ(game.IsRunning(), !late);
        EXPECT_EQ(FindInconsistency(game).value_or(""), "");
        if (!late) continue;
        EXPECT_EQ(game.statusLines[2], "select a scenario.");
        StartGameOf({"Ada", "Bo"}, 3);
    }
    EXPECT_EQ(CurrentScenario(), "My \"own\"");
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
    EXPECT_THAT(TakeMessages(), testing::Each("Too many moves!  Sorry, but we'll have to end this game."));
}

// Whatever is in the file: the game is opened, or there is a warning, or the program ends with a message.
TEST_F(SavedGame, RandomDamageIsOpenedOrReported) {
    RandomGame random(4);
    random.Play(12);
    const std::string good = Save();
    static constexpr std::string_view kBytes = "0189 =\"AEZ[{}-T.%\r\n\0\xFF";
    for (int round = 0; round < 600; ++round) {
        std::string bytes = good;
        for (int damage = random.Choose(1, 3); damage > 0; --damage) {
            const auto at = static_cast<std::size_t>(random.Choose(0, static_cast<int>(bytes.size()) - 1));
            const auto length = static_cast<std::size_t>(random.Choose(0, 2));
            const auto byte = static_cast<std::size_t>(random.Choose(0, static_cast<int>(kBytes.size()) - 1));
            bytes.replace(at, length, static_cast<std::size_t>(random.Choose(0, 2)), kBytes[byte]);
        }
        bool opened = false;
        bool ended = false;
        try {
            opened = Load(bytes);
            if (opened) OpenGameReplay();
        } catch (const ProgramEnd&) {
            ended = true;
        }
        EXPECT_TRUE(!TakeMessages().empty() || (opened && !ended));
        EXPECT_TRUE(ended || IsConsistent(game)) << bytes;
    }
}

}  // namespace
}  // namespace quillet
