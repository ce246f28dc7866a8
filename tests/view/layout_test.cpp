#include "view/layout.h"
#include "support/testing.h"

namespace quillet {
namespace {

// The shipped pictures.
constexpr PictureSizes kSizes{.info = {215, 150},
                              .note = {215, 195},
                              .smallNote = {215, 140},
                              .bag = {96, 56},
                              .rack = {229, 38},
                              .logo = {225, 46},
                              .done = {60, 36},
                              .mix = {60, 36}};

TEST(Layout, NothingOverlapsOrLeavesTheWindow) {
    for (const auto& [big, above] : {std::pair{true, true}, {true, false}, {false, true}, {false, false}}) {
        SCOPED_TRACE(std::to_string(big) + std::to_string(above));
        const Layout layout = ComputeLayout(big, above, kSizes);
        const std::vector<Rect> panels{layout.boardFrame,  layout.rackRect,       layout.infoPanel,
                                       layout.visibleNote, layout.bagRect,        layout.doneButton,
                                       layout.mixButton,   layout.lettersLeftBox, layout.logoRect};
        for (std::size_t i = 0; i < panels.size(); ++i) {
            EXPECT_TRUE(Rect::At({0, 0}, layout.client).Contains(panels[i])) << i;
            for (std::size_t j = i + 1; j < panels.size(); ++j)
                EXPECT_FALSE(panels[i].Meets(panels[j])) << i << j;
        }
        for (const Rect& row : layout.playerRow) EXPECT_TRUE(layout.visibleNote.Contains(row));
        EXPECT_FALSE(layout.clockRow.Meets(layout.playerRow[4]));
        EXPECT_TRUE(layout.rackRect.Contains(layout.rackTileStrip));
        EXPECT_TRUE(layout.rackTileStrip.Contains(layout.RackSlotRect(8)));
    }
}

TEST(Layout, PointsFindTheSquareThatWasDrawnThere) {
    game = FreshGameState();
    const Layout layout = ComputeLayout(true, false, kSizes);
    for (int row = 1; row <= kBoardSize; ++row) {
        const BoardPosition square{static_cast<std::int16_t>(row), static_cast<std::int16_t>(16 - row)};
        EXPECT_EQ(SquareAt(layout, layout.SquareRect(row, 16 - row).Corner()), square);
    }
    EXPECT_FALSE(SquareAt(layout, {layout.boardFrame.left - 1, layout.boardFrame.top + 5}));
    EXPECT_EQ(RackSlotAt(layout, layout.RackSlotRect(3).Corner()), 3);
    EXPECT_EQ(RackSlotAt(layout, {layout.rackTileStrip.right - 1, layout.rackTileStrip.top}), 8);
}

TEST(Layout, SmallerBoardsStandInTheMiddleOfTheFrame) {
    game = FreshGameState();
    game.settings.boardRows = game.settings.boardCols = 9;
    ComputeBounds();
    const Layout layout = ComputeLayout(true, true, kSizes);
    const Rect frame = VisibleBoardFrame(layout);
    EXPECT_EQ(frame.left, layout.boardFrame.left + 3 * layout.pitch);
    EXPECT_EQ(frame.Width(), 9 * layout.pitch + 1);
    EXPECT_FALSE(SquareAt(layout, layout.SquareRect(3, 8).Corner()));
    EXPECT_TRUE(SquareAt(layout, layout.SquareRect(4, 4).Corner()));
    game = FreshGameState();
}

// --- The window on the screen ---

Display Screen(int width, int height) {
    return {.size = {width, height},
            .workArea = {0, 0, width, height},
            .frameWidth = 4,
            .captionHeight = 20,
            .menuHeight = 20};
}

TEST(WindowPlace, IsKeptOnlyWhileTheClientAreaIsWhollyOnTheScreen) {
    const Display screen = Screen(1024, 768);
    const Size client = kBigBoard.client;
    const Point last{1024 - client.width, 768 - client.height};
    EXPECT_EQ(ClientCorner(screen, client, last), last);
    const Point middle = ClientCorner(screen, client, {-1000, -1000});
    EXPECT_EQ(middle.x, (1024 - (client.width + 8)) / 2 + 4);
    EXPECT_EQ(middle.y, (748 + 20 - (client.height + 48)) / 2 + 44);
    for (Point off :
         {Point{last.x + 1, 0}, Point{0, last.y + 1}, Point{-1, 5}, Point{2147483647, 2147483647}}) {
        EXPECT_EQ(ClientCorner(screen, client, off), middle);
    }
}

TEST(WindowPlace, ASmallScreenGetsTheSmallBoardInItsCorner) {
    EXPECT_FALSE(BigBoardFits(Screen(640, 480), 1));
    EXPECT_TRUE(BigBoardFits(Screen(641, 481), 1));
    EXPECT_EQ(ClientCorner(Screen(640, 480), kSmallBoard.client, {-1000, -1000}), (Point{0, 40}));
}

TEST(WindowPlace, LargeScreensEnlargeTheWindowByWholeSteps) {
    EXPECT_EQ(ComfortableZoom(Screen(1024, 768)), 1);
    EXPECT_EQ(ComfortableZoom(Screen(1920, 1080)), 2);
    EXPECT_EQ(ComfortableZoom(Screen(3840, 2160)), 4);
    EXPECT_EQ(ComfortableZoom(Screen(320, 200)), 1);
}

}  // namespace
}  // namespace quillet
