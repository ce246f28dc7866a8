#include "data/statistics.h"

#include "support/world.h"

namespace quillet {
namespace {

constexpr std::size_t kSummarySize = 15 * 82;

class Statistics : public World {
  protected:
    Statistics() {
        MakeFolder("Statistics");
        headless.localTime = {.year = 2024, .month = 3, .day = 7, .hour = 9, .minute = 5};
    }

    // A game that ended with these scores; the players take turns with these moves.
    static void EndGame(const std::vector<std::pair<std::string, int>>& results,
                        const std::vector<int>& moves) {
        game = FreshGameState();
        Strings names;
        for (const auto& [name, score] : results) names.push_back(name);
        SetPlayers(names);
        for (const int score : moves) {
            GiveScore(game.history.movesCount % 2 + 1, score);
            ++game.players[game.history.Last().player].turns;
        }
        for (int p = 1; p <= game.numPlayers; ++p) {
            game.players[p].score = results[static_cast<std::size_t>(p) - 1].second;
        }
        RecordGameStatistics();
    }

    // The file with "\n" for line ends and one dot for each run of them at a line's end.
    std::string File(const std::string& name) {
        std::string text;
        for (const char character : ReadFile("Statistics/" + name)) {
            if (character == '\n') text.erase(text.find_last_not_of(".\r") + 1).append(".");
            if (character != '\r') text += character;
        }
        return text;
    }
};

TEST_F(Statistics, FirstAndSecondGameByteForByte) {
    EndGame({{"Ada 9", 300}, {"Bo", 251}}, {40, 61, 0, 13, 90});
    const std::string first = ReadFile("Statistics/Ada 9 vs Bo");
    EXPECT_EQ(first.size(), kSummarySize + std::string("07/Mar/24|09:05|300 251\r\n").size());
    EXPECT_TRUE(
        first.starts_with("players     = Ada 9          Bo             " + std::string(36, '.') + "\r\n"));

    headless.localTime = {.year = 2009, .month = 12, .day = 31, .hour = 23, .minute = 59};
    EndGame({{"Ada 9", 280}, {"Bo", 280}}, {70, 80});
    EXPECT_EQ(File("Ada 9 vs Bo"),
              "players     = Ada 9          Bo             .\n"
              "total games = 2 (1 drawn)                   .\n"
              "wins        = 1              0              .\n"
              "percentage  = 50.0           0.0            .\n"
              "total score = 580            531            .\n"
              "best game   = 300            280            .\n"
              "worst game  = 280            251            .\n"
              "ave game    = 290.0          265.5          .\n"
              "total moves = 4              3              .\n"
              "best move   = 90             80             .\n"
              "ave move    = 145.0          177.0          .\n"
              ".\n.\n.\n" +
                  std::string(80, '*') +
                  ".\n"
                  "07/Mar/24|09:05|300 251.\n"
                  "31/Dec/09|23:59|280 280.\n");
    EXPECT_EQ(ReadFile("Statistics/Ada 9 vs Bo").find("07/Mar"), kSummarySize);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(Statistics, AveragesRoundAndSurviveAPlayerWithoutMoves) {
    const auto endGame = [](int score, std::vector<int> moves) {
        EndGame({{"A", score}, {"B", score + 2}, {"Sleepyhead 0", 0}}, moves);
    };
    endGame(-1, {0, 0});
    endGame(-2, {-1, 1});
    EXPECT_THAT(File("A vs B vs Sleepyhead 0"),
                AllOf(HasSubstr("ave game    = -1.5           0.5            0.0            .\n"),
                      HasSubstr("ave move    = -1.5           0.5            -              .\n")));
    for (const int score : {0, 0, 1}) EndGame({{"A", score}}, {score});
    EXPECT_THAT(File("A"), HasSubstr("ave game    = 0.3            .\n"));
}

TEST_F(Statistics, DamagedFileIsReportedAndLeftAlone) {
    EndGame({{"Ada", 10}, {"Bo", 20}}, {10, 20});
    const std::string good = ReadFile("Statistics/Ada vs Bo");
    std::string badNumber = good, badName = good;
    badNumber[82 * 2 + 15] = 'x';
    badName[82 * 4 + 12] = '-';
    for (const auto& [damaged, message] : {std::pair(badNumber, "Bad integer on line 3 of Ada vs Bo"),
                                           {badName, "Missing \"=\" sign on line 5 of Ada vs Bo"},
                                           {good.substr(0, 500), "Unexpected end to file: Ada vs Bo"}}) {
        WriteFile("Statistics/Ada vs Bo", damaged);
        EndGame({{"Ada", 10}, {"Bo", 20}}, {10, 20});
        EXPECT_THAT(TakeMessages(), ElementsAre(message));
        EXPECT_EQ(ReadFile("Statistics/Ada vs Bo"), damaged);
    }
    Remove("Statistics/Ada vs Bo");
    Remove("Statistics");
    EndGame({{"Ada", 10}}, {10});
    EXPECT_THAT(TakeMessages(), ElementsAre("Could not save statistics in file: \"Statistics\\Ada\"."));
}

TEST_F(Statistics, HugeTotalsStayInRangeAndInTheirColumns) {
    EndGame({{"Ada", 10}}, {10});
    std::string text = ReadFile("Statistics/Ada");
    for (const std::size_t line : {1U, 4U}) text.replace(82 * line + 14, 10, "2147483647");
    WriteFile("Statistics/Ada", text);
    EndGame({{"Ada", 10}}, {10});
    EXPECT_EQ(ReadStatisticsTotals("Ada")->players[1].totalScore, 2147483647);
    EXPECT_EQ(ReadFile("Statistics/Ada").find("07/Mar"), kSummarySize);
}

}  // namespace
}  // namespace quillet
