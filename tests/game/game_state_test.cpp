#include "game/game_state.h"

#include "support/world.h"

namespace quillet {
namespace {

using GameModel = World;

TEST_F(GameModel, BoundsCentreTheBoardAndNeverLeaveTheGrid) {
    const std::tuple<int, int, BoardBounds> cases[] = {
        {15, 11, {1, 15, 3, 13}}, {14, 12, {1, 15, 2, 14}},       {1, 2, {8, 8, 7, 9}},
        {0, 16, {8, 8, 1, 15}},   {-32768, 32767, {8, 8, 1, 15}},
    };
    for (const auto& [rows, cols, bounds] : cases) {
        game.settings.boardRows = static_cast<std::int16_t>(rows);
        game.settings.boardCols = static_cast<std::int16_t>(cols);
        ComputeBounds();
        EXPECT_EQ(game.bounds, bounds) << rows << " x " << cols;
    }
}

TEST_F(GameModel, SquaresTextIsReadRowByRowAndWhatItLacksIsPlain) {
    LoadSquares(std::string(13, 'T') + "x6Pd");
    std::string kinds;
    for (const auto& [row, col] : {std::pair{1, 13}, {1, 14}, {1, 15}, {2, 1}, {2, 2}, {2, 3}, {15, 15}}) {
        kinds += kSquareKinds[game.board[row][col].kind].character;
    }
    EXPECT_EQ(kinds, "T.6Pd..");
    EXPECT_EQ(game.board[1][15], (Square{14, SquareState::Frozen, '6', 0}));
    FreezeTiles(2, 2, "A");
    ClearTiles();
    EXPECT_TRUE(game.board[2][2].IsEmpty() && !game.board[1][15].IsEmpty());
    LoadSquares(std::string(300, 'q'));
    EXPECT_EQ(game.board[15][16].kind, 0) << "nothing is written beyond the grid";
}

TEST_F(GameModel, ComputerPlayersAreKnownByTheirNames) {
    MakeOpponent("Bo");
    MakeOpponent("Mary Ann");
    const std::tuple<std::string, bool, int, int> cases[] = {
        {"Bo 7", true, 7, 1},  {"Bo", false, 0, 0}, {"mary ann  0", true, 0, 2}, {"Mary Ann9", true, 9, 2},
        {"Zoe 3", true, 3, 0}, {"5", true, 5, 0},   {"", false, 0, 0},
    };
    for (const auto& [name, isComputer, skill, opponent] : cases) {
        SetPlayers({name});
        const Player& player = game.players[1];
        EXPECT_EQ(std::tuple(player.isComputer, player.skill, player.opponent),
                  std::tuple(isComputer, skill, opponent))
            << name;
    }
}

}  // namespace
}  // namespace quillet
