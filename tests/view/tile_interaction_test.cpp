// Tiles under the person's hand: dragged, typed, swapped, thrown back.

#include "base/presentation.h"
#include "game/consistency.h"
#include "store/preferences.h"
#include "support/running_program.h"

namespace quillet {
namespace {

// A game in which the human Ann is to move, with the rack CATSDOG.
class Hand : public RunningProgram {
  protected:
    Hand() { Begin("CATSDOG"); }

    // The same with another rack; "." is an empty slot.
    void Begin(std::string_view rack) {
        StartGame({"Ann", "Bob"});
        std::string slots(rack);
        std::ranges::replace(slots, '?', kBlank);
        std::ranges::replace(slots, '.', '\0');
        std::string codes(slots);
        std::erase(codes, '\0');
        GiveRack(1, codes);
        game.players[1].rack.positions = {};
        std::ranges::copy(slots, game.players[1].rack.positions.begin());
        headless.beeps = 0;
    }
    static void ExpectRack(const std::string& slots) {
        std::string text;
        for (char code : game.players[1].rack.positions)
            text += code == 0 ? '.' : code == kBlank ? '?' : code;
        EXPECT_EQ(text, slots);
        ExpectConsistent();
    }
    static std::string TilesFrom(int row, int col, int rowStep, int colStep, int count) {
        std::string text;
        for (; count > 0; --count, row += rowStep, col += colStep) {
            const Square& square = game.board[row][col];
            text += square.IsEmpty() ? '.' : square.letter == kBlank ? '?' : square.letter;
        }
        return text;
    }
    static std::string RowText(int row, int col, int count) { return TilesFrom(row, col, 0, 1, count); }
    static std::string ColumnText(int col, int row, int count) { return TilesFrom(row, col, 1, 0, count); }
    // Puts the letters of the first slots on the board in a row, by dragging each.
    void DragRow(int row, int firstCol, int count) {
        for (int i = 0; i < count; ++i) DragTo(MiddleOfSlot(i + 1), MiddleOfSquare(row, firstCol + i));
    }
};

TEST_F(Hand, RearrangesTheRack) {
    const std::tuple<const char*, int, int, int, const char*> drags[] = {
        {"ABCDEFG.", 2, 8, 0, "A.CDEFGB"},       // to a free slot
        {"ABCDEFG.", 3, 3, 0, "ABCDEFG."},       // back to its own
        {"ABCDEFG.", 3, 4, 0, "ABDCEFG."},       // neighbours swap
        {"ABCDEFG.", 2, 5, 0, "A.CDBEFG"},       // both gaps equally near: to the right
        {"ABCDEFG.", 3, 5, 0, "ABDECFG."},       // the gap it left is nearer
        {"ABC.EFG.", 1, 8, kShift, "BC..EFGA"},  // the run after it finds no slot to the right
    };
    for (const auto& [before, from, to, held, after] : drags) {
        SCOPED_TRACE(std::string(before) + " " + std::to_string(from) + " to " + std::to_string(to));
        Begin(before);
        DragTo(MiddleOfSlot(from), MiddleOfSlot(to), held);
        ExpectRack(after);
    }
}

TEST_F(Hand, TurnsAWordWhereItStands) {
    DragRow(8, 7, 3);
    ASSERT_EQ(RowText(8, 7, 3), "CAT");
    DragTo(MiddleOfSquare(8, 8), MiddleOfSquare(8, 8), kShift);
    EXPECT_EQ(RowText(8, 7, 3), "CAT");
    DragTo(MiddleOfSquare(8, 8), MiddleOfSquare(8, 8), kShift | kControl);
    EXPECT_EQ(ColumnText(8, 7, 3), "CAT");
    ExpectRack("...SDOG.");
}

TEST_F(Hand, ARunIsCarriedToTheBoardAndWhatFindsNoSquareGoesToTheRack) {
    DragTo(MiddleOfSlot(4), MiddleOfSquare(1, 1), kShift | kControl);
    EXPECT_EQ(ColumnText(1, 1, 4), "SDOG");
    ExpectRack("TAC.....");
    DragTo(MiddleOfSlot(2), MiddleOfSquare(8, 8), kShift);
    EXPECT_EQ(RowText(8, 7, 3), "TAC");
    ExpectRack("........");
}

TEST_F(Hand, NewTilesSwapAndMakeRoom) {
    DragRow(8, 7, 3);
    DragTo(MiddleOfSquare(8, 7), MiddleOfSquare(8, 8));
    EXPECT_EQ(RowText(8, 6, 5), ".ACT.");
    DragTo(MiddleOfSlot(4), MiddleOfSquare(8, 8));  // from the rack, onto a tile: fewer tiles to the left
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
        DragTo(MiddleOfSlot(4), MiddleOfSquare(8, 8));
        EXPECT_EQ(RowText(8, 6, 5), testCase.row);
        EXPECT_EQ(ColumnText(8, 6, 5), testCase.column);
        ExpectRack(testCase.row[2] == 'S' ? "..T.DOG." : "..TSDOG.");
    }
    DragTo(MiddleOfSquare(1, 1), MiddleOfSquare(8, 8));
    EXPECT_EQ(RowText(1, 1, 2) + RowText(8, 7, 3), "A.ECE") << "no room for a tile of the board either";
}

TEST_F(Hand, AGroupThatCannotStayReturnsToWhereItCameFrom) {
    for (int i = 0; i < 4; ++i) Drag(MiddleOfSlot(i + 1), MiddleOfSquare(5 + i, 2));
    Run();
    // Picked up along the column for want of neighbours in the row, and let go outside.
    DragTo(MiddleOfSquare(8, 2), MiddleOf(view.layout.infoPanel), kShift);
    EXPECT_EQ(ColumnText(2, 5, 4), "CATS");
    ExpectRack("....DOG.");
}

TEST_F(Hand, TheBagTakesTilesOnlyWhileItHoldsMoreThanSix) {
    Drag(MiddleOfSlot(1), MiddleOf(view.layout.bagRect));
    Drag(MiddleOfSlot(3), MiddleOf(view.layout.bagRect));
    headlessWindow.textsDrawn.clear();
    Run();
    EXPECT_EQ(game.thrownBack.View(), "CT");
    EXPECT_TRUE(WasDrawn("Replace CT"));
    EXPECT_EQ(game.statusLines[2].View(), "Score = 0");
    ExpectRack(".A.SDOG.");
    ClickAt(MiddleOf(view.layout.bagRect));
    EXPECT_EQ(game.thrownBack.View(), "C");
    ExpectRack("TA.SDOG.");

    ClickAt(MiddleOf(view.layout.bagRect));
    LeaveInBag("AEIOUY");
    DragTo(MiddleOfSlot(1), MiddleOf(view.layout.bagRect));
    EXPECT_TRUE(game.thrownBack.empty());
}

TEST_F(Hand, LosingTheFocusOrClosingPutsTheTileBack) {
    for (const auto kind : {Message::Kind::Deactivated, Message::Kind::CloseRequest}) {
        Press(MiddleOfSlot(1));
        PostEvent({.kind = Message::Kind::PointerMoved, .at = MiddleOfSquare(8, 8)});
        PostEvent({.kind = kind});
        Run();
        ExpectRack("CATSDOG.");
        EXPECT_EQ(hasEnded, kind == Message::Kind::CloseRequest);
    }
}

TEST_F(Hand, FixedTilesBeep) {
    FreezeTiles(8, 8, "ER");
    ClickAt(MiddleOfSquare(8, 8));
    EXPECT_EQ(headless.beeps, 1);
}

// --- Typing ---

TEST_F(Hand, TypesAWordFromThePointerOn) {
    Begin("CATS?OG");
    FreezeTiles(8, 9, "X");
    PostEvent({.kind = Message::Kind::PointerMoved, .at = MiddleOfSquare(8, 8)});
    Type("catz");  // the blank stands for the Z
    EXPECT_EQ(RowText(8, 8, 5), "CXAT?");
    EXPECT_EQ(headless.beeps, 0);
    Type("q");
    EXPECT_EQ(headless.beeps, 1);
    Type("\b\b");
    EXPECT_EQ(RowText(8, 8, 5), "CXA..");
    ExpectRack("?T.S.OG.");
}

TEST_F(Hand, ArrowsTurnTypingUntilALineStands) {
    PostEvent({.kind = Message::Kind::PointerMoved, .at = MiddleOfSquare(8, 8)});
    PressKey(Key::Up);
    Type("CAT");
    EXPECT_EQ(ColumnText(8, 6, 3), "TAC");
    PressKey(Key::Right);
    Run();
    EXPECT_EQ(headless.beeps, 1);
}

TEST_F(Hand, ADirectionAcrossTheLineGoesOnForwards) {
    DragRow(8, 7, 2);
    view.typingDirection = Direction::Up;
    Type("T");
    EXPECT_EQ(RowText(8, 7, 3), "CAT");
    EXPECT_EQ(view.typingDirection, Direction::Right);
}

TEST_F(Hand, ScatteredTilesTakeNoTypedLetter) {
    Drag(MiddleOfSlot(1), MiddleOfSquare(2, 2));
    Drag(MiddleOfSlot(2), MiddleOfSquare(5, 9));
    Type("T");
    EXPECT_THAT(TakeMessages(), ElementsAre("Added letters must be in a straight line."));
    Type("\b");
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
    Press(MiddleOf(view.layout.mixButton));
    Release({5, 5}, 100);
    Run();
    ExpectRack("CATSDOG.");
    EXPECT_TRUE(headlessWindow.sounds.empty());
    ClickAt(MiddleOf(view.layout.mixButton));
    EXPECT_EQ(headlessWindow.sounds.size(), 1U);
}

TEST_F(Hand, ControlClicksSwitchBoardSizeAndValues) {
    ClickAt(MiddleOf(view.layout.infoPanel), kControl);
    EXPECT_EQ(headlessWindow.canvas.Extent(), kSmallBoard.client);
    ClickAt(MiddleOf(view.layout.lettersLeftBox), kControl);
    EXPECT_FALSE(preferences.bigBoard || preferences.showLetterValues);
}

}  // namespace
}  // namespace quillet
