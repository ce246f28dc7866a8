#include "data/statistics.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>

#include "base/messages.h"
#include "data/line_reader.h"
#include "platform/ticks.h"
#include "store/files.h"

namespace quillet {
namespace {

constexpr std::size_t kLineWidth = 80;
constexpr std::size_t kLabelWidth = 14;
constexpr std::size_t kColumnWidth = 15;

FilePath StatisticsPath(std::string_view matchName) {
    FilePath path(ResourceString(StringId::StatisticsFolder));
    path.Append("\\");
    path.Append(matchName);
    return path;
}

// A damaged file may hold any number; sums stay within range.
std::int32_t Sum(std::int64_t a, std::int64_t b) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(a + b, Limits::min(), Limits::max()));
}

// --- Reading ---

void SkipValueLine(LineReader& reader) {
    reader.BeginLine();
    reader.EndLine();
}

void ReadColumns(LineReader& reader, StatisticsTotals& totals, std::int32_t PlayerTotals::*column) {
    reader.BeginLine();
    for (int player = 1; player <= game.numPlayers; ++player) {
        totals.players[player].*column = reader.ReadInteger();
    }
    reader.EndLine();
}

StatisticsTotals ReadTotals(LineReader& reader) {
    StatisticsTotals totals;
    SkipValueLine(reader);  // players
    reader.BeginLine();
    totals.games = reader.ReadInteger();
    reader.EndLine();
    ReadColumns(reader, totals, &PlayerTotals::wins);
    SkipValueLine(reader);  // percentage
    ReadColumns(reader, totals, &PlayerTotals::totalScore);
    ReadColumns(reader, totals, &PlayerTotals::bestGame);
    ReadColumns(reader, totals, &PlayerTotals::worstGame);
    SkipValueLine(reader);  // average game
    ReadColumns(reader, totals, &PlayerTotals::totalMoves);
    ReadColumns(reader, totals, &PlayerTotals::bestMove);

    totals.drawn = totals.games;
    for (int player = 1; player <= game.numPlayers; ++player) {
        totals.drawn = Sum(totals.drawn, -std::int64_t{totals.players[player].wins});
    }
    return totals;
}

// --- Adding a game ---

void AddGame(StatisticsTotals& totals) {
    const auto players = std::span(game.players.entries).first(game.numPlayers);
    const std::int32_t highest = std::ranges::max(players, {}, &Player::score).score;
    const bool drawn = std::ranges::count(players, highest, &Player::score) > 1;
    totals.games = Sum(totals.games, 1);
    if (drawn) totals.drawn = Sum(totals.drawn, 1);
    for (int i = 1; i <= game.numPlayers; ++i) {
        const Player& player = game.players[i];
        PlayerTotals& own = totals.players[i];
        own.totalMoves = Sum(own.totalMoves, player.turns);
        own.totalScore = Sum(own.totalScore, player.score);
        own.worstGame = std::min(own.worstGame, player.score);
        own.bestGame = std::max(own.bestGame, player.score);
        if (!drawn && player.score == highest) own.wins = Sum(own.wins, 1);
    }
    for (int i = 1; i <= game.history.movesCount; ++i) {
        const MoveRecord& move = game.history.records[i];
        std::int32_t& best = totals.players[move.player].bestMove;
        best = std::max(best, move.score);
    }
}

// --- Writing ---

// Lines have the same width whatever they hold, so that the summary never grows into the games.
void WriteSummaryLine(File& file, std::string text) {
    text.resize(kLineWidth, '.');
    WriteText(file, text + "\r");
}

// A line with a column for each player; textOf(i) is what player i's holds.
template <typename TextOf>
void WriteColumns(File& file, std::string_view label, TextOf textOf) {
    std::string text(label);
    for (int player = 1; player <= game.numPlayers; ++player) {
        std::string column(textOf(player));
        column.resize(kColumnWidth, ' ');
        text += column;
    }
    WriteSummaryLine(file, std::move(text));
}

void WriteGamesLine(File& file, const StatisticsTotals& totals) {
    std::string text = "total games = " + std::to_string(totals.games) + " ";
    if (totals.drawn > 0) text += "(" + std::to_string(totals.drawn) + " drawn) ";
    text.resize(kLabelWidth + kColumnWidth * game.numPlayers, ' ');
    WriteSummaryLine(file, std::move(text));
}

void WriteSummary(File& file, const StatisticsTotals& totals) {
    const auto number = [&](std::int32_t PlayerTotals::*column) {
        return [&totals, column](int i) { return std::to_string(totals.players[i].*column); };
    };
    const auto& players = totals.players;
    WriteColumns(file, "players     = ", [](int i) { return game.players[i].name.View(); });
    WriteGamesLine(file, totals);
    WriteColumns(file, "wins        = ", number(&PlayerTotals::wins));
    WriteColumns(file, "percentage  = ", [&](int i) {
        return OneDecimal(std::int64_t{players[i].wins} * 100, totals.games);
    });
    WriteColumns(file, "total score = ", number(&PlayerTotals::totalScore));
    WriteColumns(file, "best game   = ", number(&PlayerTotals::bestGame));
    WriteColumns(file, "worst game  = ", number(&PlayerTotals::worstGame));
    WriteColumns(file,
                 "ave game    = ", [&](int i) { return OneDecimal(players[i].totalScore, totals.games); });
    WriteColumns(file, "total moves = ", number(&PlayerTotals::totalMoves));
    WriteColumns(file, "best move   = ", number(&PlayerTotals::bestMove));
    WriteColumns(file, "ave move    = ", [&](int i) {
        return OneDecimal(players[i].totalScore, players[i].totalMoves);
    });
    for (int i = 0; i < 3; ++i) WriteSummaryLine(file, "");
    WriteSummaryLine(file, std::string(kLineWidth, '*'));
}

std::string TwoDigits(int number) {
    return {static_cast<char>('0' + number / 10 % 10), static_cast<char>('0' + number % 10)};
}

std::string GameLine() {
    constexpr std::array kMonths{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                 "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const LocalTime now = LocalTimeNow();
    std::string line = TwoDigits(now.day) + "/" + kMonths.at(static_cast<std::size_t>(now.month - 1)) + "/" +
                       TwoDigits(now.year) + "|" + TwoDigits(now.hour) + ":" + TwoDigits(now.minute);
    for (int player = 1; player <= game.numPlayers; ++player) {
        line += (player == 1 ? "|" : " ") + std::to_string(game.players[player].score);
    }
    return line + "\r";
}

}  // namespace

std::string OneDecimal(std::int64_t dividend, std::int64_t divisor) {
    if (divisor == 0) return "-";
    const std::int64_t tenths = (std::abs(dividend) * 20 / std::abs(divisor) + 1) / 2;
    const bool negative = tenths != 0 && (dividend < 0) != (divisor < 0);
    return (negative ? "-" : "") + std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

bool StatisticsFileExists(std::string_view matchName) { return FileExists(StatisticsPath(matchName)); }

std::optional<StatisticsTotals> ReadStatisticsTotals(std::string_view matchName) {
    FileRef file = OpenForReading(StatisticsPath(matchName));
    if (!file) return std::nullopt;
    LineReader reader(std::move(file), matchName);
    try {
        return ReadTotals(reader);
    } catch (const BadFile&) {
        return std::nullopt;
    }
}

void RecordGameStatistics() {
    const Text<31> matchName = MatchName();
    const FilePath path = StatisticsPath(matchName);
    StatisticsTotals totals;
    if (FileExists(path)) {
        const std::optional<StatisticsTotals> recorded = ReadStatisticsTotals(matchName);
        if (!recorded) return;
        totals = *recorded;
    }
    AddGame(totals);

    FileRef file = OpenForAppending(path);
    if (!file) {
        Warning("Could not save statistics in file: ", "\"", path, "\".");
        return;
    }
    SeekTo(*file, 0);
    WriteSummary(*file, totals);
    SeekTo(*file, FileSize(*file));
    WriteText(*file, GameLine());
    CloseFile(std::move(file));
}

}  // namespace quillet
