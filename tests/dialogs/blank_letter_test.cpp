
#include "base/presentation.h"
#include "game/game_state.h"
#include "support/dialog_test.h"
#include "view/render.h"

namespace quillet {

// The board is not there: what is asked of it is written down.
void MarkSquareAsked(int row, int col) { Record("MarkSquareAsked", row, col); }
void UnmarkSquareAsked(int row, int col) { Record("UnmarkSquareAsked", row, col); }
Point InfoPanelMiddle() { return {7, 9}; }

namespace {

using BlankLetter = DialogTest;
constexpr int kLetter = BlankLetterControls::kLetter;

TEST_F(BlankLetter, IsTheLastOneTypedAndOneOfTheAlphabet) {
    InDialog([](Dialog& dialog) {
        PressControl(dialog, kOkId);
        EXPECT_EQ(headless.beeps, 1);
        for (const std::string typed : {"3", "\xE4", "q"}) {
            TypeText(dialog, kLetter, typed);
            EXPECT_EQ(EditText(dialog, kLetter), "[" + typed + "]") << "the next key replaces it";
            PressControl(dialog, kOkId);
        }
        EXPECT_EQ(headless.beeps, 3);
    });
    EXPECT_EQ(AskBlankLetter(8, 5), 'Q');
    EXPECT_THAT(recorded.calls, ElementsAre("MarkSquareAsked 8 5", "UnmarkSquareAsked 8 5"));
    InDialog([](Dialog& dialog) { TypeText(dialog, kLetter, "A"); });
    EXPECT_EQ(AskBlankLetter(8, 5), std::nullopt) << "cancelled";
    game.board[8][5].blankLetter = 'J';
    InDialog([](Dialog& dialog) {
        EXPECT_EQ(EditText(dialog, kLetter), "[J]") << "known from a hint";
        PressControl(dialog, kOkId);
    });
    EXPECT_EQ(AskBlankLetter(8, 5), 'J');
}

}  // namespace
}  // namespace quillet
