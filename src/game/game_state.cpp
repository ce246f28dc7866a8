#include "game/game_state.h"

#include <algorithm>

#include "base/presentation.h"
#include "resources/strings.h"

namespace quillet {

int Rack::PositionOf(LetterCode code) const {
    const auto found = std::ranges::find(positions, code);
    return found == positions.end() ? 0 : static_cast<int>(found - positions.begin()) + 1;
}

Text<kRackPositions> Rack::Codes() const {
    Text<kRackPositions> codes;
    for (LetterCode code : positions) {
        if (code != 0) codes.Append(code);
    }
    return codes;
}

GameState FreshGameState() {
    GameState fresh;
    fresh.settings.letterValues =
        LetterTableFromText<std::int32_t>(ResourceString(StringId::DefaultLetterValues));
    fresh.settings.letterCounts =
        LetterTableFromText<std::int16_t>(ResourceString(StringId::DefaultLetterCounts));
    fresh.statusLines[1] = "Start a new game or";
    fresh.statusLines[2] = "select a scenario.";
    return fresh;
}

void ComputeBounds() {
    // Boards are centred; an even size therefore gets one row or column more. Files may hold sizes that no
    // board has: those get the smallest or the largest one.
    const auto margin = [](int size) { return (kBoardSize - std::clamp(size, 1, kBoardSize)) / 2; };
    const int rowMargin = margin(game.settings.boardRows);
    const int colMargin = margin(game.settings.boardCols);
    game.bounds = {rowMargin + 1, kBoardSize - rowMargin, colMargin + 1, kBoardSize - colMargin};
}

void ClearTiles() {
    for (auto& row : game.board) {
        for (Square& square : row) {
            if (IsPlayable(square.kind)) square.state = SquareState::Empty;
        }
    }
}

void LoadSquares(std::string_view squares) {
    game.board = {};
    const std::size_t count = std::min<std::size_t>(squares.size(), kBoardSize * kBoardSize);
    for (std::size_t i = 0; i < count; ++i) {
        SetSquareKind(game.board[i / kBoardSize + 1][i % kBoardSize + 1], KindFromCharacter(squares[i]));
    }
}

std::string SquaresText() {
    std::string squares;
    for (int row = 1; row <= kBoardSize; ++row) {
        for (int col = 1; col <= kBoardSize; ++col) {
            squares += kSquareKinds[game.board[row][col].kind].character;
        }
    }
    return squares;
}

Text<31> MatchName() {
    Text<31> name(game.players[1].name);
    for (int p = 2; p <= game.numPlayers; ++p) {
        name.Append(" vs ");
        name.Append(game.players[p].name);
    }
    return name;
}

bool AllComputers() {
    return std::all_of(game.players.begin(), game.players.begin() + game.numPlayers,
                       [](const Player& player) { return player.isComputer; });
}

void SetStatusLine(int k, std::string_view text) {
    game.statusLines[k] = StatusLine(text);
    ShowStatusLine(k, game.statusLines[k]);
}

void ClearStatusLines(int first) {
    for (int k = first; k <= kStatusLines; ++k) SetStatusLine(k, {});
}

}  // namespace quillet
