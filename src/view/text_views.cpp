// The views of text: statistics and bonus words; and the view of the palette.
#include <cstdint>
#include <string>

#include "base/messages.h"
#include "data/statistics.h"
#include "platform/message_box.h"
#include "platform/window.h"
#include "store/files.h"
#include "view/graphics.h"
#include "view/palette.h"
#include "view/pop_up.h"
#include "view/view_state.h"
#include "view/views.h"
#include "words/bonus_words.h"

namespace quillet {
namespace {

const Layout& At() { return view.layout; }

// A view that stands on a box of the player panel, its left edge under the players' names.
Rect RectAbove(const Rect& box, Size size) {
    return Rect::At({At().playerRow[1].left + 3, box.top - 2 - size.height}, size);
}

void ShowUntilClosed(const Rect& rect, const Rect& box) {
    DrawPressedBox(box);
    WaitUntilClosed([](Point) { return kForever; });
    CloseView(rect, box);
}

std::string GamesPlayed(const StatisticsTotals& totals) {
    std::string text = std::to_string(totals.games);
    if (totals.drawn > 0) text += " (" + std::to_string(totals.drawn) + " drawn)";
    return text;
}

struct StatisticsRow {
    std::string_view label;
    std::string (*figure)(const StatisticsTotals& totals, const PlayerTotals& player);
};

constexpr StatisticsRow kStatisticsRows[] = {
    {"          Wins:",
     [](const StatisticsTotals& totals, const PlayerTotals& player) {
         return std::to_string(player.wins) + " (" +
                OneDecimal(player.wins * std::int64_t{100}, totals.games) + "%)";
     }},
    {"    Best total:",
     [](const StatisticsTotals&, const PlayerTotals& player) { return std::to_string(player.bestGame); }},
    {"   Worst total:",
     [](const StatisticsTotals&, const PlayerTotals& player) { return std::to_string(player.worstGame); }},
    {" Average total:",
     [](const StatisticsTotals& totals, const PlayerTotals& player) {
         return OneDecimal(player.totalScore, totals.games);
     }},
    {"     Best move:",
     [](const StatisticsTotals&, const PlayerTotals& player) {
         return player.totalMoves == 0 ? "-" : std::to_string(player.bestMove);
     }},
    {"  Average move:",
     [](const StatisticsTotals&, const PlayerTotals& player) {
         return OneDecimal(player.totalScore, player.totalMoves);
     }},
};

void DrawStatistics(const Rect& rect, const StatisticsTotals& totals) {
    const TextGrid grid(rect, kViewFont);
    grid.Write(1, 1, "Statistics for:");
    grid.Write(1, 2, "  Games played:");
    grid.Write(2, 2, GamesPlayed(totals));
    for (int p = 1; p <= game.numPlayers; ++p) grid.Write(p + 1, 1, game.players[p].name);
    int row = 3;
    for (const StatisticsRow& entry : kStatisticsRows) {
        grid.Write(1, row, entry.label);
        for (int p = 1; p <= game.numPlayers; ++p) {
            grid.Write(p + 1, row, entry.figure(totals, totals.players[p]));
        }
        ++row;
    }
}

int CountBonusWords() {
    int count = 0;
    while (count < kMaxBonusWords && !bonusWords[static_cast<std::size_t>(count)].empty()) ++count;
    return count;
}

}  // namespace

void ShowStatisticsView() {
    if (!game.gameStarted) return;
    const std::string_view folder = ResourceString(StringId::StatisticsFolder);
    if (!FolderExists(folder)) return Warning("The ", folder, " folder is missing!");
    if (!StatisticsFileExists(MatchName())) {
        return Warning(
            "There is no statistics file for the current players.  Tick the \"Save Statistics\" option and "
            "play some games.");
    }
    const std::optional<StatisticsTotals> totals = ReadStatisticsTotals(MatchName());
    if (!totals) return Warning("Could not load statistics!");
    const Rect rect = RectAbove(At().statisticsBox, TextGrid::SizeOf(kViewFont, game.numPlayers + 1, 8));
    DrawTextFrame(rect);
    DrawStatistics(rect, *totals);
    ShowUntilClosed(rect, At().statisticsBox);
}

void ShowBonusWordsView() {
    if (!game.gameStarted) return;
    constexpr int kWordsInColumn = 20;
    const int count = CountBonusWords();
    const int columns = count <= 2 * kWordsInColumn ? 2 : (count - 41) / kWordsInColumn + 3;
    const int rows = count < kWordsInColumn ? count + 1 : kWordsInColumn + 1;
    const Rect rect = RectAbove(At().bonusWordsBox, TextGrid::SizeOf(kSmallViewFont, columns, rows));
    DrawTextFrame(rect);
    const TextGrid grid(rect, kSmallViewFont);
    grid.Write(1, 1, "Bonus words: " + std::to_string(count));
    grid.Write(2, 1, "Bonus pts: " + std::to_string(game.settings.bonusWordValue));
    for (int i = 0; i < count; ++i) {
        grid.Write(i / kWordsInColumn + 1, i % kWordsInColumn + 2, bonusWords[static_cast<std::size_t>(i)]);
    }
    ShowUntilClosed(rect, At().bonusWordsBox);
}

void ShowPaletteView() {
    if (!game.gameStarted) return;
    if (!programPalette.inUse) return Beep();
    constexpr int kCell = 16;
    constexpr int kCells = 16;  // in a row and in a column
    const int bottom = At().bonusWordsBox.top - 2;
    const Rect rect{5, bottom - 255, 261, bottom + 1};
    for (int i = 0; i < kCells * kCells; ++i) {
        const Rect cell =
            Rect::At({rect.left + i % kCells * kCell, rect.top + i / kCells * kCell}, {kCell, kCell});
        WindowCanvas().Fill(cell, programPalette.colours[static_cast<std::size_t>(i)]);
    }
    WindowCanvas().Frame(rect, kBlack);
    ShowUntilClosed(rect, At().bonusWordsBox);
}

}  // namespace quillet
