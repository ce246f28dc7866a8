// The board editor in the main window, opened and left as a person does.

#include "editors/board_editor.h"
#include "resources/dialog_templates.h"
#include "support/random_games.h"
#include "support/running_program.h"
#include "view/graphics.h"

namespace quillet {
namespace {

constexpr int kSave = 1;
constexpr int kCancel = 2;
constexpr int kRowsList = 3;
constexpr int kColumnsList = 4;
constexpr int kCopy = 104;
constexpr int kPaste = 105;

class BoardEditing : public RunningProgram {
  protected:
    void Begin() {
        StartGame({"Ann", "Bob"});
        headless.beeps = 0;
    }
    void Open() {
        headlessWindow.dialogScripts.push_back(
            [](Dialog& dialog) { PressControl(dialog, EditScenarioControls::kBoard); });
        Choose(203);
        ASSERT_TRUE(game.editorActive);
    }
    void BeginEditing() {
        Begin();
        Open();
    }
    void Select(SquareKind kind) {
        const int pitch = view.layout.pitch;
        Click({178 + pitch / 2, 5 + kind * (pitch + 3) + pitch / 2});
    }
    void ClickSquare(int row, int col, int held = kNothing) { ClickAt(MiddleOfSquare(row, col), held); }
    void PressButton(int id) {
        PressWindowControl(id);
        Run();
    }
    void ChooseCount(int list, int count) {
        ChooseWindowControlLine(list, (count - 5) / 2);
        Run();
    }
    void Choose(int command) {
        Run();  // the menus see what can be chosen
        RunningProgram::Choose(command);
    }
    static int TakeBeeps() { return std::exchange(headless.beeps, 0); }
    static std::pair<int, int> Start() { return {game.settings.startRow, game.settings.startCol}; }
};

TEST_F(BoardEditing, AClickGivesASquareTheChosenKindAndASecondTakesIt) {
    BeginEditing();
    for (SquareKind kind = 1; kind < kSquareKinds.size(); ++kind) {
        SCOPED_TRACE(int{kind});
        const Square& square = game.board[3][4];
        Select(kind);
        if (square.kind != kind) ClickSquare(3, 4);
        EXPECT_EQ(square.kind, kind);
        EXPECT_EQ(square.IsEmpty(), kind < kFirstBlockedKind);
        EXPECT_EQ(square.letter, IsPlayable(kind) ? '\0' : "123456"[kind - kFirstBlockedKind]);
        ClickSquare(3, 4);
        EXPECT_EQ(square, Square{});
    }
    Select(0);
    ClickSquare(1, 1);
    EXPECT_EQ(game.board[1][1].kind, 0);
    EXPECT_EQ(TakeBeeps(), 0);
}

TEST_F(BoardEditing, TheStartSquareIsNeverBlocked) {
    BeginEditing();
    Select(9);
    ClickSquare(8, 8);
    EXPECT_EQ(TakeBeeps(), 1);
    EXPECT_TRUE(IsPlayable(game.board[8][8].kind));
    ClickSquare(5, 5);
    ClickSquare(5, 5, kControl);
    EXPECT_EQ(TakeBeeps(), 1);
    EXPECT_EQ(Start(), std::pair(8, 8));
    ClickSquare(8, 8, kControl);
    EXPECT_EQ(Start(), std::pair(8, 8));
    ClickSquare(2, 12, kControl);
    EXPECT_EQ(Start(), std::pair(2, 12));
    ClickSquare(2, 12);
    ClickSquare(8, 8);
    EXPECT_EQ(TakeBeeps(), 1) << "only the new start square";
    EXPECT_EQ(game.board[8][8].kind, 9);
}

TEST_F(BoardEditing, FewerRowsHideSquaresAndKeepThem) {
    BeginEditing();
    std::string squares = SquaresText();
    ChooseCount(kRowsList, 5);
    ChooseCount(kColumnsList, 9);
    Select(12);
    ClickSquare(5, 8);  // just outside
    EXPECT_EQ(SquaresText(), squares);
    ClickSquare(6, 4);
    ChooseCount(kRowsList, 15);
    ChooseCount(kColumnsList, 15);
    EXPECT_EQ(game.bounds, (BoardBounds{1, 15, 1, 15}));
    squares[5 * 15 + 3] = '4';
    EXPECT_EQ(SquaresText(), squares);
}

TEST_F(BoardEditing, PicturesGoToTheClipboardAndComeFromIt) {
    Remove("Scenarios/Classic/b301.bmp");
    BeginEditing();
    Select(9);
    Choose(kCopy);
    EXPECT_EQ(TakeBeeps(), 1) << "no picture";
    EXPECT_FALSE(FindMenuItem(kPaste)->enabled);
    PasteSquarePicture();  // the clipboard was just emptied
    EXPECT_THAT(TakeMessages(), ElementsAre("Nothing to paste!"));
    EXPECT_FALSE(graphics.squares[9]);

    Image picture(52, 13, 0x0000FF);
    for (int y = 0; y < 13; ++y) picture.At(51, y) = picture.At(50, y) = 0x00FF00;
    headlessWindow.clipboard = picture;
    Choose(kPaste);
    Image expected(26, 26, 0x0000FF);
    for (int y = 0; y < 26; ++y) expected.At(25, y) = 0x00FF00;
    ASSERT_TRUE(graphics.squares[9]);
    EXPECT_EQ(graphics.squares[9]->image, expected);
    ClickSquare(4, 4);
    EXPECT_EQ(headlessWindow.canvas.At(MiddleOfSquare(4, 4)), 0x0000FFU);

    headlessWindow.clipboard.reset();
    const std::uint32_t start = headless.tick;
    Choose(kCopy);
    EXPECT_GE(headless.tick, start + 100);
    EXPECT_EQ(headlessWindow.clipboard, expected);
    EXPECT_EQ(headlessWindow.cursor, Cursor::Arrow);
}

TEST_F(BoardEditing, CancelBringsBackTheBoardThePicturesAndTheGame) {
    Begin();
    GiveRack(1, "CATSDOG");
    FreezeTiles(8, 8, "ER");
    DragTo(MiddleOfSlot(1), MiddleOfSquare(8, 7));
    DragTo(MiddleOfSlot(2), MiddleOf(view.layout.bagRect));
    ASSERT_EQ(game.thrownBack, "A");
    const std::string before = GameText();
    const Image picture = graphics.squares[1]->image;

    Open();
    EXPECT_FALSE(HoldsTiles(game.board));
    Select(1);
    ClickSquare(8, 8);
    ClickSquare(3, 3, kControl);
    ChooseCount(kRowsList, 7);
    headlessWindow.clipboard = Image(26, 26, 0x123456);
    Choose(kPaste);
    ASSERT_NE(graphics.squares[1]->image, picture);
    PressButton(kCancel);

    EXPECT_FALSE(game.editorActive);
    EXPECT_THAT(headlessWindow.windowControls, IsEmpty());
    EXPECT_EQ(GameText(), before);
    EXPECT_EQ(Start(), std::pair(8, 8));
    EXPECT_EQ(game.thrownBack, "A");
    EXPECT_EQ(graphics.squares[1]->image, picture);
    EXPECT_EQ(ReadItems("Scenarios/Classic", {400, 500, 501}), "15|8|8|");
    Type("T");
    EXPECT_TRUE(game.board[8][10].IsPlaced()) << "the game goes on";
}

TEST_F(BoardEditing, SaveWritesTheScenarioAndStartsAGame) {
    Begin();
    GiveScore(1, 30);
    headless.answers = {true};
    Open();
    ASSERT_EQ(headless.questions.back().text, "Cancel the current game?");
    ChooseCount(kRowsList, 11);
    ClickSquare(8, 5, kControl);
    ChooseCount(kColumnsList, 5);
    PressButton(kSave);
    EXPECT_THAT(TakeMessages(), ElementsAre("There is no starting square!"));
    EXPECT_EQ(ReadItems("Scenarios/Classic", {400, 401, 500, 501}), "15|15|8|8|");

    ChooseCount(kColumnsList, 13);
    Select(14);
    ClickSquare(8, 8);
    headlessWindow.clipboard = Image(26, 26, 0x123456);
    Choose(kPaste);
    const std::string otherPicture = ReadFile("Scenarios/Classic/b306.bmp");
    PressButton(kSave);
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_THAT(headlessWindow.windowControls, IsEmpty());
    EXPECT_EQ(ReadItems("Scenarios/Classic", {400, 401, 500, 501}), "11|13|8|5|");
    EXPECT_EQ(ReadFile("Scenarios/Classic/402.str"), SquaresText());
    EXPECT_EQ(SquaresText()[7 * 15 + 7], '6');
    EXPECT_NE(ReadFile("Scenarios/Classic/b306.bmp"), otherPicture);
    EXPECT_TRUE(game.IsRunning() && !game.editorActive);
    EXPECT_EQ(game.history.movesCount + game.players[1].score, 0);
    ExpectConsistent();
}

TEST_F(BoardEditing, TheGameStandsStillMeanwhile) {
    BeginEditing();
    const std::string rack = RackOf(1);
    TypeText(" .0" + rack);
    PostEvent({.kind = Message::Kind::CloseRequest});
    Run();
    EXPECT_FALSE(hasEnded);
    EXPECT_EQ(TakeBeeps(), 1) << "at the close box";
    EXPECT_EQ(RackOf(1), rack);
    EXPECT_THAT(headless.questions, IsEmpty());
    for (const int command : {1, 3, 101, 203, 303, 404, 503, 1002})
        EXPECT_FALSE(FindMenuItem(command)->enabled) << command;
    PressButton(kCancel);
    EXPECT_TRUE(FindMenuItem(203)->enabled);
    EXPECT_FALSE(FindMenuItem(kCopy)->enabled);
}

}  // namespace
}  // namespace quillet
