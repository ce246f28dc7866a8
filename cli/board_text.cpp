#include "board_text.h"

#include <array>
#include <sstream>
#include <vector>

#include "command.h"

namespace quillet {
namespace {

// How the playable kinds look between tiles: their text and a terminal's background colour.
struct KindLook {
    std::string_view text;
    int background;  // of the 256-colour palette
};
constexpr std::array<KindLook, kFirstBlockedKind> kKindLooks{{{" . ", 66},
                                                              {"2L ", 94},
                                                              {"2W ", 61},
                                                              {"3L ", 88},
                                                              {"3W ", 55},
                                                              {"4L ", 52},
                                                              {"4W ", 54},
                                                              {"5L ", 52},
                                                              {"5W ", 53}}};
constexpr std::string_view kBlockedText = "###";
constexpr int kBlockedColour = 236;
constexpr int kTileColour = 230;
constexpr int kTileInk = 16;
constexpr int kSquareInk = 252;

std::vector<std::string> BoardLines(const std::string& text, const std::string& name) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        if (line.ends_with('\r')) line.pop_back();
        lines.push_back(line);
    }
    while (!lines.empty() && lines.back().empty()) lines.pop_back();
    if (lines.size() != kBoardSize) {
        throw CommandFailed{name + ": " + std::to_string(lines.size()) + " lines instead of 15"};
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].size() != kBoardSize) {
            throw CommandFailed{name + ", line " + std::to_string(i + 1) + ": " +
                                std::to_string(lines[i].size()) + " characters instead of 15"};
        }
    }
    return lines;
}

template <typename Set>
void SetBoard(const std::string& text, const std::string& name, Set set) {
    const std::vector<std::string> lines = BoardLines(text, name);
    for (int row = 1; row <= kBoardSize; ++row) {
        for (int col = 1; col <= kBoardSize; ++col) {
            const char character = lines[row - 1][col - 1];
            if (!set(game.board[row][col], character)) {
                throw CommandFailed{name + ", line " + std::to_string(row) + ": \"" + character +
                                    "\" does not belong on a board"};
            }
        }
    }
}

std::string Painted(std::string_view text, int ink, int background, bool colour) {
    if (!colour) return std::string(text);
    return "\033[38;5;" + std::to_string(ink) + ";48;5;" + std::to_string(background) + "m" +
           std::string(text) + "\033[0m";
}

// A blank's letter in lower case.
char TileText(const Square& square) {
    const char letter = square.ShownLetter();
    return square.letter == kBlank ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::string SquareText(const Square& square, bool colour) {
    if (!IsPlayable(square.kind)) return Painted(kBlockedText, kSquareInk, kBlockedColour, colour);
    if (square.IsEmpty()) {
        const KindLook& look = kKindLooks[square.kind];
        return Painted(look.text, kSquareInk, look.background, colour);
    }
    return Painted(std::string{' ', TileText(square), ' '}, kTileInk, kTileColour, colour);
}

}  // namespace

void SetSquares(const std::string& text, const std::string& name) {
    std::string squares;
    for (const std::string& line : BoardLines(text, name)) squares += line;
    LoadSquares(squares);
    ComputeBounds();
}

void SetTiles(const std::string& text, const std::string& name) {
    SetBoard(text, name, [](Square& square, char character) {
        if (character == '.') return true;
        const bool isBlank = character >= 'a' && character <= 'z';
        const auto letter = static_cast<LetterCode>(isBlank ? character - 'a' + 'A' : character);
        if (!IsLetter(letter) || !IsPlayable(square.kind)) return false;
        square.state = SquareState::Frozen;
        square.letter = isBlank ? kBlank : letter;
        square.blankLetter = letter;
        return true;
    });
}

std::string RackCodes(const std::string& letters) {
    std::string codes;
    for (char letter : letters) {
        const char code = letter == '?' ? kBlank : ToUpper(letter);
        if (!IsTileCode(code))
            throw CommandFailed{"the rack \"" + letters + "\" holds more than letters and \"?\""};
        codes += code;
    }
    if (codes.empty() || codes.size() > kRackSize) {
        throw CommandFailed{"the rack \"" + letters + "\" must hold 1 to 7 letters"};
    }
    return codes;
}

std::string RackText(std::string_view codes) {
    std::string text(codes);
    for (char& code : text) {
        if (code == kBlank) code = '?';
    }
    return text;
}

std::string SquareName(int row, int col) { return std::to_string(row) + static_cast<char>('A' + col - 1); }

std::string PlayText(std::span<const BoardPosition> squares) {
    const auto holdsTile = [](int row, int col) {
        const Square& square = game.board[row][col];
        return !square.IsEmpty() && IsPlayable(square.kind);
    };
    int row = squares.front().row;
    int col = squares.front().col;
    const bool across =
        squares.size() > 1 ? squares.back().row == row : holdsTile(row, col - 1) || holdsTile(row, col + 1);
    while (holdsTile(across ? row : row - 1, across ? col - 1 : col)) --(across ? col : row);
    const std::string at = " at " + SquareName(row, col) + (across ? " across" : " down");
    std::string word;
    for (; holdsTile(row, col); ++(across ? col : row)) word += TileText(game.board[row][col]);
    return word + at;
}

std::string MoveText(const MoveRecord& record) {
    if (record.numTiles > 0) return PlayText({record.coords.begin(), record.numTiles});
    const std::string_view letters = record.letters;
    return letters == "{}" ? "passes" : "exchanges " + RackText(letters.substr(1, letters.size() - 2));
}

std::string CandidateText(const Candidate& candidate) {
    int row = candidate.rows[1];
    int col = candidate.firstCol;
    if (candidate.transposed) std::swap(row, col);
    std::string word(candidate.word.View());
    for (int n = 1; n <= candidate.numTiles; ++n) {
        char& letter = word[static_cast<std::size_t>(candidate.cols[n] - candidate.firstCol)];
        if (candidate.letters[n] == kBlank) letter = static_cast<char>(letter - 'A' + 'a');
    }
    return word + " at " + SquareName(row, col) + (candidate.transposed ? " down" : " across");
}

std::string BoardText(bool colour) {
    const BoardBounds& bounds = game.bounds;
    std::string text = "   ";
    for (int col = bounds.firstCol; col <= bounds.lastCol; ++col) {
        text += std::string{' ', static_cast<char>('A' + col - 1), ' '};
    }
    text += '\n';
    for (int row = bounds.firstRow; row <= bounds.lastRow; ++row) {
        text += (row < 10 ? " " : "") + std::to_string(row) + " ";
        for (int col = bounds.firstCol; col <= bounds.lastCol; ++col) {
            text += SquareText(game.board[row][col], colour);
        }
        text += '\n';
    }
    return text;
}

}  // namespace quillet
