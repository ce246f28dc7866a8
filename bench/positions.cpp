#include "positions.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>

#include "store/files.h"
#include "store/item_store.h"
#include "words/word_list_file.h"

namespace quillet {
namespace {

Square SquareWithTile(Square square, char character) {
    if (character == '.') return square;
    const bool isBlank = character >= 'a' && character <= 'z';
    square.state = SquareState::Frozen;
    square.blankLetter = static_cast<LetterCode>(isBlank ? character - 'a' + 'A' : character);
    square.letter = isBlank ? kBlank : square.blankLetter;
    return square;
}

Position PositionFromLine(const std::string& line) {
    Position position{game.board, line.substr(0, line.find(' '))};
    const std::string tiles = line.substr(line.find(' ') + 1);
    for (std::size_t i = 0; i < tiles.size(); ++i) {
        Square& square = position.board[i / kBoardSize + 1][i % kBoardSize + 1];
        square = SquareWithTile(square, tiles[i]);
    }
    return position;
}

}  // namespace

std::string PositionLine(const Position& position) {
    std::string line = position.rack + " ";
    for (int row = 1; row <= kBoardSize; ++row) {
        for (int col = 1; col <= kBoardSize; ++col) {
            const Square& square = position.board[row][col];
            const char letter = square.IsEmpty() ? '.' : square.ShownLetter();
            line +=
                square.letter == kBlank && !square.IsEmpty() ? static_cast<char>(letter - 'A' + 'a') : letter;
        }
    }
    return line;
}

PositionSet ReadPositions() {
    PositionSet set;
    std::ifstream file(QUILLET_BENCH_FOLDER "/positions.txt");
    std::getline(file, set.squares);
    game = FreshGameState();
    LoadSquares(set.squares);
    ComputeBounds();
    for (std::string line; std::getline(file, line);) {
        const Position position = PositionFromLine(line);
        const auto blanks = static_cast<std::size_t>(std::ranges::count(position.rack, kBlank));
        set.byBlanks[blanks].push_back(position);
    }
    return set;
}

Dict ReadLargeList() {
    SetDataFolder(QUILLET_ASSETS);
    scenarioStore.shared = true;
    std::optional<Dict> dict = ReadDict(WordListPath("Large"), "Large");
    if (!dict) {
        std::cerr << "cannot open the Large list in " QUILLET_ASSETS "\n";
        std::exit(2);
    }
    return *std::move(dict);
}

}  // namespace quillet
