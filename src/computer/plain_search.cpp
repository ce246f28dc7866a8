#include "computer/plain_search.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/idle_pump.h"
#include "computer/tile_choice.h"
#include "game/validation.h"

namespace quillet {
namespace {

constexpr std::uint32_t kRootList = 0;

using PartialWord = Text<kBoardSize>;

template <typename T>
using Grid = std::array<std::array<T, kGridSize>, kGridSize>;

PartialWord WithLetter(const PartialWord& word, LetterCode letter) {
    PartialWord longer = word;
    longer.Append(letter);
    return longer;
}

// The working state of one search, and its steps. The board is a copy, held transposed while plays down
// the columns are searched.
struct PlainSearch {
    const SearchRequest& request;
    CandidateList& list;

    Board board;
    BoardBounds bounds;
    int startRow;
    int startCol;
    RackCounts rack;
    Grid<std::uint32_t> crossMask{};
    Grid<bool> isAnchor{};
    CrossTables cross;

    const Dict* dict = nullptr;  // of the pass under way
    bool mainWordIsBonus = false;
    int anchorRow = 0;
    int anchorCol = 0;
    bool transposed = false;
    std::uint32_t found = 0;

    PlainSearch(const SearchRequest& searchRequest, CandidateList& candidates)
        : request(searchRequest),
          list(candidates),
          board(searchRequest.board),
          bounds(searchRequest.bounds),
          startRow(searchRequest.settings.startRow),
          startCol(searchRequest.settings.startCol),
          rack(CountRack(searchRequest.rack)) {}

    int RackLength() const { return static_cast<int>(request.rack.size()); }
    bool HoldsTile(int row, int col) const { return board[row][col].IsLetterSquare(); }
    bool EndsWord(int row, int col) const { return !HoldsTile(row, col); }

    void Run();
    void TransposeBoard();
    void OnePass(bool firstMove);
    void ComputeCrossChecks();
    void ComputeCrossCheck(int row, int col, std::uint32_t supplied);
    int LeftLimit(bool firstMove) const;
    void SearchAnchor(bool firstMove);
    void SearchAnchorIn(const Dict& words, bool isBonus, bool firstMove);
    void LeftPart(int limit, std::uint32_t listStart, const PartialWord& word);
    void ExtendRight(int col, std::uint32_t listStart, const PartialWord& word);
    void RecordMove(int lastCol, const PartialWord& word);
    void PutOnBoard(const Candidate& candidate);

    // Finds the edge with that letter in a list; null when there is none.
    const Edge* FindEdge(std::uint32_t listStart, LetterCode letter) const;
    // The code that the rack would give for that letter: the letter, else a blank, else 0.
    LetterCode CodeFor(LetterCode letter) const;
};

LetterCode PlainSearch::CodeFor(LetterCode letter) const {
    if (rack.count[letter] > 0) return letter;
    return rack.count[kBlank] > 0 ? kBlank : LetterCode{0};
}

const Edge* PlainSearch::FindEdge(std::uint32_t listStart, LetterCode letter) const {
    for (std::uint32_t i = listStart;; ++i) {
        const Edge& edge = dict->edges[i];
        if (edge.letter() == letter) return &edge;
        if (edge.lastEdge() || edge.letter() > letter) return nullptr;
    }
}

void PlainSearch::TransposeBoard() {
    for (int row = 1; row <= kBoardSize; ++row) {
        for (int col = row + 1; col <= kBoardSize; ++col) std::swap(board[row][col], board[col][row]);
    }
    std::swap(bounds.firstRow, bounds.firstCol);
    std::swap(bounds.lastRow, bounds.lastCol);
    std::swap(startRow, startCol);
}

void PlainSearch::Run() {
    const bool firstMove = request.IsFirstMove();
    OnePass(firstMove);
    if (pump.abortRequested) return;
    TransposeBoard();
    transposed = true;
    OnePass(firstMove);
}

void PlainSearch::OnePass(bool firstMove) {
    ComputeCrossChecks();
    if (firstMove) {
        anchorRow = startRow;
        anchorCol = startCol;
        SearchAnchor(true);
        return;
    }
    for (int row = bounds.firstRow; row <= bounds.lastRow; ++row) {
        for (int col = bounds.firstCol; col <= bounds.lastCol; ++col) {
            if (TimeCheck()) return;
            if (!isAnchor[row][col]) continue;
            anchorRow = row;
            anchorCol = col;
            SearchAnchor(false);
            if (pump.abortRequested) return;
        }
    }
}

void PlainSearch::ComputeCrossChecks() {
    const std::uint32_t supplied = SuppliedLetters(rack);
    isAnchor = {};
    cross = {};
    for (int row = bounds.firstRow; row <= bounds.lastRow; ++row) {
        for (int col = bounds.firstCol; col <= bounds.lastCol; ++col) {
            if (!board[row][col].IsEmpty()) continue;
            if (HoldsTile(row - 1, col) || HoldsTile(row + 1, col)) {
                ComputeCrossCheck(row, col, supplied);
                isAnchor[row][col] = crossMask[row][col] != 0;
            } else {
                crossMask[row][col] = kAllLetters;
                isAnchor[row][col] = HoldsTile(row, col - 1) || HoldsTile(row, col + 1);
            }
        }
    }
}

void PlainSearch::ComputeCrossCheck(int row, int col, std::uint32_t supplied) {
    int first = row;
    int last = row;
    while (HoldsTile(first - 1, col)) --first;
    while (HoldsTile(last + 1, col)) ++last;
    PartialWord word;
    int sum = 0;
    for (int r = first; r <= last; ++r) {
        word.Append(r == row ? ' ' : board[r][col].ShownLetter());
        if (r != row) sum += request.settings.letterValues[board[r][col].letter];
    }
    cross.sum[row][col] = static_cast<std::int16_t>(sum);
    std::uint32_t mask = 0;
    for (LetterCode letter = 'A'; letter <= 'Z'; ++letter) {
        if ((supplied & LetterBit(letter)) == 0) continue;
        word[static_cast<std::size_t>(row - first)] = letter;
        if (request.UsesBonusWords() && IsWord(request.bonusDict, word)) {
            mask |= LetterBit(letter);
            cross.bonusMask[row][col] |= LetterBit(letter);
        } else if (IsWord(request.mainDict, word)) {
            mask |= LetterBit(letter);
        }
    }
    crossMask[row][col] = mask;
}

int PlainSearch::LeftLimit(bool firstMove) const {
    int count = 0;
    for (int col = anchorCol - 1; col >= bounds.firstCol && board[anchorRow][col].IsEmpty(); --col) {
        const bool free = crossMask[anchorRow][col] == kAllLetters && !isAnchor[anchorRow][col];
        if (!firstMove && !free) break;
        ++count;
    }
    return std::min(count, firstMove ? kRackSize - 1 : RackLength() - 1);
}

void PlainSearch::SearchAnchor(bool firstMove) {
    if (request.UsesBonusWords()) SearchAnchorIn(request.bonusDict, true, firstMove);
    if (!pump.abortRequested && request.mainDict.numwords > 0) {
        SearchAnchorIn(request.mainDict, false, firstMove);
    }
}

void PlainSearch::SearchAnchorIn(const Dict& words, bool isBonus, bool firstMove) {
    dict = &words;
    mainWordIsBonus = isBonus;
    if (firstMove || !HoldsTile(anchorRow, anchorCol - 1)) {
        LeftPart(LeftLimit(firstMove), kRootList, {});
        return;
    }
    int col = anchorCol;
    while (HoldsTile(anchorRow, col - 1)) --col;
    PartialWord prefix;
    std::uint32_t listStart = kRootList;
    for (; col < anchorCol; ++col) {
        const LetterCode letter = board[anchorRow][col].ShownLetter();
        const Edge* edge = FindEdge(listStart, letter);
        if (edge == nullptr || edge->child() == 0) return;
        prefix.Append(letter);
        listStart = edge->child();
    }
    ExtendRight(anchorCol, listStart, prefix);
}

void PlainSearch::LeftPart(int limit, std::uint32_t listStart, const PartialWord& word) {
    if (TimeCheck()) return;
    ExtendRight(anchorCol, listStart, word);
    if (pump.abortRequested || limit <= 0) return;
    for (std::uint32_t i = listStart;; ++i) {
        const Edge edge = dict->edges[i];
        const LetterCode code = edge.child() != 0 ? CodeFor(edge.letter()) : LetterCode{0};
        if (code != 0) {
            --rack.count[code];
            LeftPart(limit - 1, edge.child(), WithLetter(word, edge.letter()));
            ++rack.count[code];
            if (pump.abortRequested) return;
        }
        if (edge.lastEdge()) return;
    }
}

void PlainSearch::ExtendRight(int col, std::uint32_t listStart, const PartialWord& word) {
    if (TimeCheck() || col > bounds.lastCol) return;
    const Square& square = board[anchorRow][col];
    if (square.IsEmpty()) {
        for (std::uint32_t i = listStart;; ++i) {
            const Edge edge = dict->edges[i];
            const bool fits = (crossMask[anchorRow][col] & LetterBit(edge.letter())) != 0;
            const LetterCode code = fits ? CodeFor(edge.letter()) : LetterCode{0};
            if (code != 0) {
                const PartialWord longer = WithLetter(word, edge.letter());
                if (edge.wordEnd() && EndsWord(anchorRow, col + 1)) RecordMove(col, longer);
                if (edge.child() != 0) {
                    --rack.count[code];
                    ExtendRight(col + 1, edge.child(), longer);
                    ++rack.count[code];
                }
                if (pump.abortRequested) return;
            }
            if (edge.lastEdge()) return;
        }
    } else if (square.IsLetterSquare()) {
        const Edge* edge = FindEdge(listStart, square.ShownLetter());
        if (edge == nullptr) return;
        const PartialWord longer = WithLetter(word, square.ShownLetter());
        if (edge->wordEnd() && EndsWord(anchorRow, col + 1)) RecordMove(col, longer);
        if (edge->child() != 0) ExtendRight(col + 1, edge->child(), longer);
    }
}

void PlainSearch::PutOnBoard(const Candidate& candidate) {
    for (int n = 1; n <= candidate.numTiles; ++n) {
        Square& square = board[anchorRow][candidate.cols[n]];
        square.state = SquareState::Placed;
        square.letter = candidate.letters[n];
        square.blankLetter = candidate.blankLetters[n];
    }
}

void PlainSearch::RecordMove(int lastCol, const PartialWord& word) {
    const int firstCol = lastCol - static_cast<int>(word.size()) + 1;
    const bool crossed = HoldsTile(anchorRow - 1, lastCol) || HoldsTile(anchorRow + 1, lastCol);
    if (word.size() == 1 && crossed) return;

    Candidate candidate;
    candidate.transposed = transposed;
    candidate.word = word;
    candidate.firstCol = static_cast<std::uint8_t>(firstCol);
    candidate.rank = found++;
    Text<kRackSize> tiles(request.rack);
    for (std::size_t i = 0; i < word.size(); ++i) {
        const int col = firstCol + static_cast<int>(i);
        if (!board[anchorRow][col].IsEmpty()) continue;
        AddTile(candidate, tiles, anchorRow, col, word[i], request.settings.letterValues,
                [&](int c) { return board[anchorRow][c].kind; });
    }
    PutOnBoard(candidate);
    const PlayScore play = ComputeScore(board, request.settings, cross, anchorRow, firstCol, lastCol,
                                        candidate.numTiles, mainWordIsBonus);
    candidate.score = play.score;
    candidate.bonusCount = static_cast<std::uint8_t>(play.bonusCount);
    for (int n = 1; n <= candidate.numTiles; ++n) {
        board[anchorRow][candidate.cols[n]].state = SquareState::Empty;
    }
    if (request.scoreCeiling && candidate.score > *request.scoreCeiling) return;
    InsertCandidate(list, candidate, request.showWords);
}

}  // namespace

void SearchPlainly(const SearchRequest& request, CandidateList& list) {
    list.count = 0;
    if (request.HasWords()) PlainSearch(request, list).Run();
}

}  // namespace quillet
