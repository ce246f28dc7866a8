// Tiles under the person's hand: dragged, typed, swapped, thrown back.
#include <gtest/gtest.h>

#include "base/presentation.h"
#include "game/consistency.h"
#include "store/preferences.h"
#include "support/running_program.h"
#include "support/world.h"
#include "view/view_state.h"

namespace quillet {
namespace {

class Hand : public RunningProgram {
  protected:
    // A game in which the human Ann is to move with that rack, "." for an empty slot.
    void Begin(std::string_view rack) {
        StartGame({"Ann", "Bob"});
        std::string codes;
        for (char code : rack) codes += code == '.' ? "" : std::string(1, code);
        GiveRack(1, codes);
        auto& slots = game.players[1].rack.positions;
        slots = {};
        for (std::size_t i = 0; i < rack.size(); ++i)
            slots[i + 1] = rack[i] == '?' ? kBlank : rack[i] == '.' ? '\0' : rack[i];
        headless.beeps = 0;
    }
    void ExpectRack(const std::string& slots) {
        std::string text;
        for (char code : game.players[1].rack.positions)
            text += code == 0 ? '.' : code == kBlank ? '?' : code;
        EXPECT_EQ(text, slots);
        const auto problem = FindInconsistency(game);
        EXPECT_FALSE(problem.has_value()) << *problem;
    }
    static std::string RowText(int row, int firstCol, int count) {
        std::string text;
        for (int col = firstCol; col < firstCol + count; ++col) {
            const Square& square = game.board[row][col];
            text += square.IsEmpty() ? '.' : square.letter == kBlank ? '?' : square.letter;
        }
        return text;
    }
    static std::string ColumnText(int col, int firstRow, int count) {
        std::string text;
        for (int row = firstRow; row < firstRow + count; ++row) {
            text += game.board[row][col].IsEmpty() ? '.' : game.board[row][col].letter;
        }
        return text;
    }
    // Puts the letters of the first slots on the board in a row, by dragging each.
    void DragRow(int row, int firstCol, int count) {
        for (int i = 0; i < count; ++i) Drag(MiddleOfSlot(i + 1), MiddleOfSquare(row, firstCol + i));
        Run();
    }
};

struct RackDrag {
    const char* before;
    int from;
    int to;
    int held;
    const char* after;
};

TEST_F(Hand, RearrangesTheRack) {
    const RackDrag drags[] = {
        {"ABCDEFG.", 2, 8, 0, "A.CDEFGB"},       // to a free slot
        {"ABCDEFG.", 3, 3, 0, "ABCDEFG."},       // back to its own
        {"ABCDEFG.", 3, 4, 0, "ABDCEFG."},       // neighbours swap
        {"ABCDEFG.", 2, 5, 0, "A.CDBEFG"},       // both gaps equally near: to the right
        {"ABCDEFG.", 3, 5, 0, "ABDECFG."},       // the gap it left is nearer
        {"ABC.EFG.", 1, 8, kShift, "BC..EFGA"},  // the run after it finds no slot to the right
    };
    for (const RackDrag& drag : drags) {
        SCOPED_TRACE(std::string(drag.before) + " " + std::to_string(drag.from) + " to " +
                     std::to_string(drag.to));
        Begin(drag.before);
        Drag(MiddleOfSlot(drag.from), MiddleOfSlot(drag.to), drag.held);
        Run();
        ExpectRack(drag.after);
    }
}

TEST_F(Hand, CarriesARunOfTheRackToTheBoard) {
    Begin("CATSDOG");
    Drag(MiddleOfSlot(2), MiddleOfSquare(8, 8), kShift);
    Run();
    EXPECT_EQ(RowText(8, 7, 7), "CATSDOG");
    ExpectRack("........");
}

TEST_F(Hand, TurnsAWordWhereItStands) {
    Begin("CATSDOG");
    DragRow(8, 7, 3);
    ASSERT_EQ(RowText(8, 7, 3), "CAT");
    Drag(MiddleOfSquare(8, 8), MiddleOfSquare(8, 8), kShift);
    Run();
    EXPECT_EQ(RowText(8, 7, 3), "CAT");
    Drag(MiddleOfSquare(8, 8), MiddleOfSquare(8, 8), kShift | kControl);
    Run();
    EXPECT_EQ(ColumnText(8, 7, 3), "CAT");
    ExpectRack("...SDOG.");
}

TEST_F(Hand, TilesThatFindNoSquareGoToTheRack) {
    Begin("CATSDOG");
    Drag(MiddleOfSlot(4), MiddleOfSquare(1, 1), kShift | kControl);
    Run();
    EXPECT_EQ(ColumnText(1, 1, 4), "SDOG");
    ExpectRack("TAC.....");
}

TEST_F(Hand, NewTilesSwapAndMakeRoom) {
    Begin("CATSDOG");
    DragRow(8, 7, 3);
    Drag(MiddleOfSquare(8, 7), MiddleOfSquare(8, 8));
    Run();
    EXPECT_EQ(RowText(8, 6, 5), ".ACT.");
    Drag(MiddleOfSlot(4), MiddleOfSquare(8, 8));  // from the rack, onto a tile: fewer tiles to the left
    Run();
    EXPECT_EQ(RowText(8, 6, 5), ".ASCT");
    ExpectRack("....DOG.");
}

TEST_F(Hand, ANewTileIsPushedWhereThereIsMostRoom) {
    struct Case {
        const char* name;
        std::vector<BoardPosition> fixed;
        BoardPosition another;  // new tile
        const char* row;        // 8, from column 6
        const char* column;     // 8, from row 6
    };
    const Case cases[] = {
        {"nothing around: to the right", {}, {1, 1}, "..SC.", "..S.."},
        {"fixed at the right", {{8, 9}}, {1, 1}, ".CSE.", "..S.."},
        {"fixed on both sides: down", {{8, 7}, {8, 9}}, {1, 1}, ".ESE.", "..SC."},
        {"more new tiles in the column, nearer above", {}, {9, 8}, "..S..", ".CSA."},
        {"as near, more new tiles at the left", {}, {8, 5}, ".CS..", "..S.."},
        {"fixed all around", {{8, 7}, {8, 9}, {7, 8}, {9, 8}}, {1, 1}, ".ECE.", ".ECE."},
    };
    for (const Case& testCase : cases) {
        SCOPED_TRACE(testCase.name);
        Begin("CATSDOG");
        for (const BoardPosition& at : testCase.fixed) FreezeTiles(at.row, at.col, "E");
        PutTiles(8, 8, "C");
        PutTiles(testCase.another.row, testCase.another.col, "A");
        Drag(MiddleOfSlot(4), MiddleOfSquare(8, 8));
        Run();
        EXPECT_EQ(RowText(8, 6, 5), testCase.row);
        EXPECT_EQ(ColumnText(8, 6, 5), testCase.column);
        ExpectRack(testCase.row[2] == 'S' ? "..T.DOG." : "..TSDOG.");
    }
}

TEST_F(Hand, AGroupThatCannotStayReturnsToWhereItCameFrom) {
    Begin("CATSDOG");
    for (int i = 0; i < 4; ++i) Drag(MiddleOfSlot(i + 1), MiddleOfSquare(5 + i, 2));
    Run();
    // Picked up along the column for want of neighbours in the row, and let go outside.
    Drag(MiddleOfSquare(8, 2), MiddleOf(view.layout.infoPanel), kShift);
    Run();
    EXPECT_EQ(ColumnText(2, 5, 4), "CATS");
    ExpectRack("....DOG.");
}

TEST_F(Hand, TheBagTakesTilesOnlyWhileItHoldsMoreThanSix) {
    Begin("CATSDOG");
    Drag(MiddleOfSlot(1), MiddleOf(view.layout.bagRect));
    Drag(MiddleOfSlot(3), MiddleOf(view.layout.bagRect));
    headlessWindow.textsDrawn.clear();
    Run();
    EXPECT_EQ(game.thrownBack.View(), "CT");
    EXPECT_TRUE(WasDrawn("Replace CT"));
    EXPECT_EQ(game.statusLines[2].View(), "Score = 0");
    ExpectRack(".A.SDOG.");
    Click(MiddleOf(view.layout.bagRect));
    Run();
    EXPECT_EQ(game.thrownBack.View(), "C");
    ExpectRack("TA.SDOG.");

    Click(MiddleOf(view.layout.bagRect));
    Run();
    LeaveInBag("AEIOUY");
    Drag(MiddleOfSlot(1), MiddleOf(view.layout.bagRect));
    Run();
    EXPECT_TRUE(game.thrownBack.empty());
}

TEST_F(Hand, LosingTheFocusPutsTheTileBack) {
    Begin("CATSDOG");
    Press(MiddleOfSlot(1));
    PostEvent({.kind = Message::Kind::PointerMoved, .at = MiddleOfSquare(8, 8)});
    PostEvent({.kind = Message::Kind::Deactivated});
    Run();
    ExpectRack("CATSDOG.");
    EXPECT_TRUE(game.StartSquareIsEmpty());
}

TEST_F(Hand, ClosingInTheMiddleOfADragClosesAfterIt) {
    Begin("CATSDOG");
    Press(MiddleOfSlot(1));
    PostEvent({.kind = Message::Kind::CloseRequest});
    Release(MiddleOfSquare(8, 8));
    Run();
    EXPECT_TRUE(hasEnded);
    ExpectRack("CATSDOG.");
}

TEST_F(Hand, FixedTilesBeep) {
    Begin("CATSDOG");
    FreezeTiles(8, 8, "ER");
    Click(MiddleOfSquare(8, 8));
    Run();
    EXPECT_EQ(headless.beeps, 1);
}

// --- Typing ---

TEST_F(Hand, TypesAWordFromThePointerOn) {
    Begin("CATS?OG");
    FreezeTiles(8, 9, "X");
    PostEvent({.kind = Message::Kind::PointerMoved, .at = MiddleOfSquare(8, 8)});
    TypeText("catz");  // the blank stands for the Z
    Run();
    EXPECT_EQ(RowText(8, 8, 5), "CXAT?");
    EXPECT_EQ(headless.beeps, 0);
    TypeText("q");
    Run();
    EXPECT_EQ(headless.beeps, 1);
    TypeText("\b\b");
    Run();
    EXPECT_EQ(RowText(8, 8, 5), "CXA..");
    ExpectRack("?T.S.OG.");
}

TEST_F(Hand, ArrowsTurnTypingUntilALineStands) {
    Begin("CATSDOG");
    PostEvent({.kind = Message::Kind::PointerMoved, .at = MiddleOfSquare(8, 8)});
    PressKey(Key::Up);
    TypeText("CAT");
    Run();
    EXPECT_EQ(ColumnText(8, 6, 3), "TAC");
    PressKey(Key::Right);
    Run();
    EXPECT_EQ(headless.beeps, 1);
}

TEST_F(Hand, ADirectionAcrossTheLineGoesOnForwards) {
    Begin("CATSDOG");
    DragRow(8, 7, 2);
    view.typingDirection = Direction::Up;
    TypeText("T");
    Run();
    EXPECT_EQ(RowText(8, 7, 3), "CAT");
    EXPECT_EQ(view.typingDirection, Direction::Right);
}

TEST_F(Hand, ScatteredTilesTakeNoTypedLetter) {
    Begin("CATSDOG");
    Drag(MiddleOfSlot(1), MiddleOfSquare(2, 2));
    Drag(MiddleOfSlot(2), MiddleOfSquare(5, 9));
    TypeText("T");
    Run();
    EXPECT_EQ(TakeMessages(), std::vector<std::string>{"Added letters must be in a straight line."});
    TypeText("\b");
    Run();
    EXPECT_TRUE(game.board[5][9].IsEmpty());
    ExpectRack("A.TSDOG.");
}

TEST_F(Hand, EveryTilePutOnTheBoardClicksAndNothingElseDoes) {
    Begin("CATSDOG");
    FlipPreference(&Preferences::playTileClicks);
    DragRow(8, 7, 2);
    TypeText("T");
    Run();
    const std::string click = (root / "Data/Sounds/tile.wav").string();
    EXPECT_EQ(headlessWindow.sounds, std::vector<std::string>(3, click));
    Drag(MiddleOfSquare(8, 9), MiddleOfSlot(1));
    Click(MiddleOf(view.layout.lettersLeftBox), kControl);  // draws all tiles again
    Run();
    RedrawWindow();
    EXPECT_EQ(headlessWindow.sounds.size(), 3U);
    FlipPreference(&Preferences::playTileClicks);
    Drag(MiddleOfSlot(1), MiddleOfSquare(8, 9));
    Run();
    EXPECT_EQ(headlessWindow.sounds.size(), 3U);
}

// --- Panels ---

TEST_F(Hand, PressingMixOutsideOfItsReleaseDoesNothing) {
    Begin("CATSDOG");
    Press(MiddleOf(view.layout.mixButton));
    Release({5, 5}, 100);
    Run();
    ExpectRack("CATSDOG.");
    EXPECT_TRUE(headlessWindow.sounds.empty());
    Click(MiddleOf(view.layout.mixButton));
    Run();
    EXPECT_EQ(headlessWindow.sounds.size(), 1U);
}

TEST_F(Hand, ControlClicksSwitchBoardSizeAndValues) {
    Begin("CATSDOG");
    Click(MiddleOf(view.layout.infoPanel), kControl);
    Run();
    EXPECT_EQ(headlessWindow.canvas.Extent(), kSmallBoard.client);
    EXPECT_EQ(ReadFile("Data/Prefs/1000.str"), "F");
    Click(MiddleOf(view.layout.lettersLeftBox), kControl);
    Run();
    EXPECT_FALSE(preferences.showLetterValues);
}

TEST_F(Hand, DoneFinishesTheTurnAndDrawsNewTiles) {
    Begin("CATSDOG");
    DragRow(8, 7, 3);
    EXPECT_EQ(game.statusLines[2].View(), "Score = 10");
    Click(MiddleOf(view.layout.doneButton));
    Run();
    EXPECT_EQ(game.history.movesCount, 1);
    EXPECT_EQ(game.currentPlayer, 2);
    EXPECT_EQ(FindInconsistency(game), std::nullopt);
}

}  // namespace
}  // namespace quillet
