// The terminal companion as a user runs it: the real program, its output, its exit code.
#include <sys/wait.h>

#include <cstdio>

#include "support/temp_folder.h"

namespace quillet {
namespace {

struct Outcome {
    int exitCode = -1;
    std::string output;  // standard output and standard error
};

Outcome Cli(const std::string& arguments, const std::string& redirection = "2>&1") {
    Outcome run;
    const std::string command =
        "'" QUILLET_CLI "' --data '" QUILLET_ASSETS "' " + arguments + " " + redirection;
    FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) return run;
    std::array<char, 4096> buffer{};
    while (const std::size_t read = std::fread(buffer.data(), 1, buffer.size(), pipe)) {
        run.output.append(buffer.data(), read);
    }
    run.exitCode = WEXITSTATUS(pclose(pipe));
    return run;
}

std::string EmptyBoard() {
    std::string board;
    for (int row = 0; row < 15; ++row) board += "...............\n";
    return board;
}

struct CliTest : TempFolder {
    std::string Path(const std::string& name) const { return "'" + (root / name).string() + "'"; }
};

TEST_F(CliTest, SameSeedGivesTheSameGamesInAnyNumberOfProcesses) {
    const std::string games =
        "selfplay --players 'Ada 9' 'Bo 3' 'Cy 8' --games 6 --words Common --seed 11 --quiet";
    const Outcome first = Cli(games);
    EXPECT_EQ(first.exitCode, 0) << first.output;
    EXPECT_THAT(first.output, HasSubstr("Cy 8               6"));
    EXPECT_EQ(Cli(games + " --jobs 3").output, first.output);
    EXPECT_NE(Cli(games + " --seed 12").output, first.output);
}

TEST_F(CliTest, ShownGameEndsWithTheWinnerAndTheFinalScores) {
    const Outcome run = Cli("selfplay --players 'Ada 9' --show --words Common");
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.output, HasSubstr("End of game. Well done Ada 9!"));
    EXPECT_THAT(run.output, HasSubstr("for letters left)"));
}

TEST_F(CliTest, MovesAreListedByScoreWithTheChoiceLast) {
    std::string board = EmptyBoard();
    board.replace(7 * 16 + 6, 3, "Cat");  // row 8, columns G to I; blanks stand for A and T
    WriteFile("board", board);
    WriteFile("words", "cat\ncats\nscat\nas\nat\n");
    ASSERT_EQ(Cli("wordlist build " + Path("words") + " " + Path("few.qld")).exitCode, 0);
    const Outcome run =
        Cli("moves --board " + Path("board") + " --rack 's?' --level 8 --words " + Path("few.qld"));
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.output, StartsWith("1\tAS\t7F\tdown\taS\t5\t0\t"));
    EXPECT_THAT(run.output, HasSubstr("\tSCAT\t8F\tacross\tS\t4\t0\t"));
    EXPECT_THAT(run.output, EndsWith("plays aS at 7F down for 5\n"));
}

TEST_F(CliTest, WordListsGoFromTextToListAndBack) {
    WriteFile("words.txt", "zebra apple Paris o'clock\tfig\nfig\n");
    ASSERT_EQ(Cli("wordlist build " + Path("words.txt") + " " + Path("out.qld")).exitCode, 0);
    EXPECT_EQ(Cli("wordlist dump " + Path("out.qld")).output, "apple\nfig\nzebra\n");
    EXPECT_THAT(Cli("wordlist check " + Path("out.qld")).output, HasSubstr("is sound: 3 words"));
    EXPECT_THAT(Cli("wordlist info " + Path("out.qld")).output, HasSubstr(" 5 letters: 2\n"));

    SetByte("out.qld", 303, '!');  // the first edge's letter
    const Outcome damaged = Cli("wordlist check " + Path("out.qld"));
    EXPECT_EQ(damaged.exitCode, 2);
    EXPECT_THAT(damaged.output, HasSubstr("edge 0"));
}

TEST_F(CliTest, SavedGamesAreShownAndAnalysed) {
    const std::string play = "selfplay --scenario 'Quick Nine' --players 'Ada 9' 'Bo 2' --seed 3 --quiet";
    ASSERT_EQ(Cli(play + " --games 2 --jobs 2 --save " + Path("games")).exitCode, 0);
    EXPECT_EQ(CountEntries("games"), 2U);
    const std::string games = Path("games/game-00001.qlg") + " " + Path("games/game-00002.qlg");

    const Outcome table = Cli("analyse " + games);
    EXPECT_EQ(table.exitCode, 0);
    EXPECT_THAT(table.output, HasSubstr("Bingos missed\nAda 9"));
    const Outcome csv = Cli("analyse --csv " + games);
    EXPECT_THAT(csv.output, StartsWith("file,move,player,rack,played,score,best,best score,missed,rank\n"));
    EXPECT_THAT(csv.output, HasSubstr("game-00002.qlg\",1,\""));

    const Outcome board = Cli("show --move 0 " + Path("games/game-00001.qlg"));
    EXPECT_EQ(board.exitCode, 0);
    EXPECT_THAT(board.output, HasSubstr("letters left in the bag"));
    EXPECT_EQ(Cli("show --move 199 " + Path("games/game-00001.qlg")).exitCode, 2);

    const std::string game = ReadFile("games/game-00001.qlg");
    WriteFile("edited.qlg", game.substr(0, game.find("start row")) + "start row = eight\r\n");
    EXPECT_THAT(Cli("show " + Path("edited.qlg")).output, HasSubstr("Bad cardinal on line 6 of /"));
}

TEST_F(CliTest, CheckNamesEachProblemOfADataFolder) {
    const auto version = std::filesystem::path(QUILLET_ASSETS) / "Scenarios/Duel/12345.str";
    const auto before = std::filesystem::last_write_time(version);
    EXPECT_THAT(Cli("check '" QUILLET_ASSETS "'").output, EndsWith(": nothing wrong\n"));
    EXPECT_EQ(std::filesystem::last_write_time(version), before) << "the data may be somebody else's";

    std::filesystem::copy(QUILLET_ASSETS, root, std::filesystem::copy_options::recursive);
    SetByte("Word Lists/Common.qld", 400, '\xFF');
    WriteFile("Word Lists/Large.qld", ReadFile("Word Lists/Large.qld").substr(0, 5000));
    WriteFile("Scenarios/Duel/301.str", "999");
    WriteFile("Scenarios/Kitchen/402.str", "...");
    WriteFile("Scenarios/Kitchen/602.str", "FORK\r\nSPOON2\r\n");
    WriteFile("Scenarios/Classic/700.str", "Nowhere");
    WriteFile("Scenarios/Classic/500.str", "99");
    WriteFile("Scenarios/Diamond/12345.str", "7");
    WriteFile("Opponents/Pip/300.str", "Gone");
    WriteFile("Opponents/Pip/9001.bmp", "BM, but no picture");
    WriteFile("Definitions/Q.txt", "QUIT  (verb) stop\r\nQUIET  (noun) silence\r\nQUEUE\r\n");
    WriteFile("Data/Help/HELPITEMS.txt", "Playing\r\nTips\r\n");
    WriteFile("Data/Help/Tips.txt", std::string(32001, 'x'));
    const Outcome broken = Cli("check '" + root.string() + "'", "2>/dev/null");
    EXPECT_EQ(broken.exitCode, 2);
    for (const char* problem :
         {"Word Lists\\Common: Common: edge ", "Word Lists\\Large: \"Large\" ended unexpectedly!",
          "Scenarios\\Duel: Too few letters!", "Scenarios\\Kitchen: board squares (402.str): 3 characters",
          "Scenarios\\Kitchen: a bonus word", "Scenarios\\Classic: asks for the unknown word list Nowhere",
          "Scenarios\\Classic: the start square", "Scenarios\\Diamond: Unexpected version in scenario!",
          "Opponents\\Pip: has the unknown word list Gone", "Opponents\\Pip: Could not read bitmap header",
          "Q.txt, line 2: QUIET must come before QUIT", "Q.txt, line 3: must be a word",
          "Data\\Help\\Playing.txt: is missing", "Data\\Help\\Tips.txt: has more than 32,000 bytes"}) {
        EXPECT_THAT(broken.output, HasSubstr(problem));
    }
}

TEST_F(CliTest, WrongUseIsOneLineOnStandardErrorAndWritesNothing) {
    WriteFile("empty.txt", "");
    WriteFile("short.qld", "not a list");
    WriteFile("board", EmptyBoard());
    WriteFile("ragged", "...\n");
    WriteFile("astray", "CAT............\n" + EmptyBoard().substr(16));
    const Strings cases{
        "frobnicate",
        "selfplay --games 0",
        "selfplay --players Ada",
        "selfplay --players 'A 1' 'B 1' 'C 1' 'D 1' 'E 1'",
        "selfplay --words Nowhere",
        "selfplay --words " + Path("short.qld"),
        "selfplay --scenario Nowhere",
        "selfplay --save " + Path("board"),
        "analyse " + Path("short.qld"),
        "selfplay --squares " + Path("ragged"),
        "moves --rack ABC --board " + Path("missing"),
        "moves --rack ABC --board " + Path("astray"),
        "moves --rack ABCDEFGH --board " + Path("board"),
        "moves --rack AB1 --board " + Path("board"),
        "wordlist build " + Path("empty.txt") + " " + Path("new.qld"),
        "wordlist dump " + Path("short.qld"),
    };
    for (const std::string& arguments : cases) {
        SCOPED_TRACE(arguments);
        EXPECT_EQ(Cli(arguments, "2>/dev/null").output, "");
        const Outcome run = Cli(arguments);
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_THAT(run.output, StartsWith("quillet-cli: "));
        EXPECT_EQ(run.output.find('\n'), run.output.size() - 1);
    }
    EXPECT_EQ(ReadFile("new.qld"), "<none>");
}

TEST_F(CliTest, EveryCommandHasHelp) {
    for (const char* command : {"", "selfplay", "moves", "wordlist", "wordlist build", "wordlist check"}) {
        const Outcome run = Cli(std::string(command) + " --help");
        EXPECT_EQ(run.exitCode, 0) << command;
        EXPECT_THAT(run.output, HasSubstr("Usage: ")) << command;
    }
}

}  // namespace
}  // namespace quillet
