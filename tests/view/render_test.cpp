// What the window shows, read back from its pixels and texts.
#include "view/render.h"

#include "base/presentation.h"
#include "computer/opponents.h"
#include "shell/main_loop.h"
#include "store/bitmap_files.h"
#include "support/running_program.h"
#include "view/graphics.h"
#include "view/main_window.h"
#include "view/palette.h"

namespace quillet {
namespace {

constexpr Colour kNothing = 0x123456;  // no picture has it

Colour PixelAt(Point p) { return WindowCanvas().At(p); }

// How many pixels of the rectangle hold that colour.
int Count(const Rect& rect, Colour colour) {
    int count = 0;
    for (int y = rect.top; y < rect.bottom; ++y) {
        for (int x = rect.left; x < rect.right; ++x) count += PixelAt({x, y}) == colour;
    }
    return count;
}

// Does the rectangle show that picture, unscaled and untouched?
bool Shows(const Rect& rect, const Picture& picture) {
    if (rect.Extent() != Size{picture.Width(), picture.Height()}) return false;
    for (int y = 0; y < rect.Height(); ++y) {
        for (int x = 0; x < rect.Width(); ++x) {
            if (PixelAt({rect.left + x, rect.top + y}) != picture.image.At(x, y)) return false;
        }
    }
    return true;
}

class Look : public RunningProgram {
  protected:
    // Draws everything on a canvas that holds nothing yet.
    static void Redraw() {
        WindowCanvas().Fill(Client(), kNothing);
        headlessWindow.textsDrawn.clear();
        RedrawWindow();
    }
    static Rect Client() { return Rect::At({0, 0}, view.layout.client); }
};

// Boards of every size, on every kind of display.
TEST_F(Look, NothingIsLeftUndrawn) {
    StartGame({"Ann", "Bob"});
    for (int bits : {32, 8, 1}) {
        for (int size : {15, 14, 9, 1}) {
            headlessWindow.display.bitsPerPixel = bits;
            game.settings.boardRows = game.settings.boardCols = static_cast<std::int16_t>(size);
            ComputeBounds();
            Redraw();
            EXPECT_EQ(Count(Client(), kNothing), 0) << bits << " bits, board of " << size;
        }
    }
}

TEST_F(Look, TheSplashStandsAloneUntilItsTimeIsUp) {
    for (bool big : {true, false}) {
        view = {};
        if (!big) FlipPreference(&Preferences::bigBoard);
        StartProgram({.savedGame = "", .zoom = 1});
        const Picture splash = *LoadGraphicsPicture("splash.bmp");
        const Size client = view.layout.client;
        const Size size{splash.Width(), splash.Height()};
        const Point corner{(client.width - size.width) / 2, (client.height - size.height) / 2};
        EXPECT_TRUE(Shows(Rect::At(corner, size), splash));
        EXPECT_EQ(PixelAt({0, 0}), big ? kWhite : splash.image.At(0, 0));
        EXPECT_FALSE(WasDrawn("select a scenario."));
        Run(3);
        EXPECT_TRUE(WasDrawn("select a scenario."));
        ResetHeadlessWindow();
    }
}

TEST_F(Look, EightBitDisplaysShowThePalettesColoursOnly) {
    Display& display = headlessWindow.display;
    display.bitsPerPixel = 8;
    display.paletteEntries = 256;
    display.reservedEntries = 20;
    display.systemPalette[255] = kWhite;
    const auto isFitted = [] {
        const auto& colours = programPalette.colours;
        return std::ranges::all_of(WindowCanvas().Pixels().pixels, [&](Colour pixel) {
            return pixel == kGrey || std::ranges::find(colours, pixel) != colours.end();
        });
    };
    StartProgram({.savedGame = "", .zoom = 1});
    EXPECT_EQ(programPalette.colours[10], 0x200000U);
    EXPECT_TRUE(isFitted()) << "the splash";
    ClearStatusLines(1);
    RedrawWindow();
    EXPECT_TRUE(isFitted()) << "the window";
}

TEST_F(Look, PanelsOfTheBlackAndWhiteDisplay) {
    headlessWindow.display.bitsPerPixel = 1;
    StartGame({"Ann", "Bob"});
    ClearStatusLines(1);
    FreezeTiles(8, 8, "q");
    Redraw();
    const Layout& at = view.layout;
    const Rect& panel = at.infoPanel;
    const Rect& text = at.infoTextArea;
    EXPECT_EQ(Count(text, kBlack), text.Width() * text.Height());
    EXPECT_EQ(Count(panel, kWhite), panel.Width() * panel.Height() - text.Width() * text.Height());
    EXPECT_TRUE(Shows(at.bagRect, graphics.bagBlackAndWhite));
    EXPECT_EQ(PixelAt(MiddleOf(at.logoRect)), kGrey);
    EXPECT_EQ(PixelAt({panel.right + 2, panel.top + 3}), kBlack);  // the shadow
    EXPECT_EQ(PixelAt({panel.right + 2, panel.top + 2}), kGrey);
    EXPECT_EQ(PixelAt(at.SquareRect(2, 1).Corner()), kGrey);  // a plain square
    const Rect square = at.SquareRect(8, 8);
    EXPECT_EQ(PixelAt({square.left + 1, square.top + 1}), kBlack);  // a played blank's, inverted
    EXPECT_GT(Count(square, kRed ^ 0xFFFFFF), 0);
}

TEST_F(Look, TheBagShowsHowFullItIs) {
    StartGame({"Ann", "Bob"});
    game.bag.totaltiles = 100;
    const std::pair<int, int> cases[] = {{100, 1}, {51, 1}, {50, 2}, {26, 2}, {25, 3}, {1, 3}, {0, 4}};
    for (const auto& [left, picture] : cases) {
        game.bag.tilesleft = static_cast<std::int16_t>(left);
        Redraw();
        EXPECT_TRUE(Shows(view.layout.bagRect, graphics.bag[picture])) << left;
    }
}

TEST_F(Look, TheLettersLeftBoxTellsWhatTheBagHoldsOrGets) {
    StartGame({"Ann", "Bob"});
    const auto end = [] {  // of the box, between its frame and its line
        const Rect& box = view.layout.lettersLeftBox;
        return Rect{box.right - 14, box.top + 1, box.right - 1, box.bottom - 1};
    };
    const auto firstLine = [&] {  // of the triangle, in units
        Rect line = end();
        while (Count({line.left, line.top, line.right, line.top + 1}, kBlack) == 0) ++line.top;
        return Count({line.left, line.top, line.right, line.top + 1}, kBlack);
    };
    Redraw();
    EXPECT_TRUE(WasDrawn("Letters left:  86"));
    EXPECT_EQ(Count(end(), kBlack), 1 + 3 + 5 + 7 + 9);
    EXPECT_EQ(firstLine(), 9) << "the view opens below";
    FlipPreference(&Preferences::rackAbove);
    ArrangeWindow();
    Redraw();
    EXPECT_EQ(firstLine(), 1) << "the view opens above";
    FlipPreference(&Preferences::allowHints);
    Redraw();
    EXPECT_NE(Count(end(), kBlack), 1 + 3 + 5 + 7 + 9) << "the lock";
    game.thrownBack = "A[E";
    game.bag.tilesleft = 0;
    Redraw();
    EXPECT_TRUE(WasDrawn("Replace A?E"));
    EXPECT_EQ(Count(end(), kWhite), end().Width() * end().Height());
}

TEST_F(Look, TheClockCountsOnInRedOnceTheTimeIsUp) {
    StartGame({"Ann", "Bob"});
    const std::tuple<int, const char*, const char*> cases[] = {{0, "Time left", "25:00"},
                                                               {1439, "Time left", "1:01"},
                                                               {1500, "Time left", "0:00"},
                                                               {1505, "Overtime", "0:05"},
                                                               {2125, "Overtime", "10:25"}};
    Redraw();
    EXPECT_FALSE(WasDrawn("Time left"));
    preferences.timerEnabled = true;
    for (const auto& [used, label, digits] : cases) {
        game.players[1].timeUsed = used;
        Redraw();
        EXPECT_TRUE(WasDrawn(label) && WasDrawn(digits)) << used;
        EXPECT_EQ(Count(view.layout.clockRow, kDarkRed) > 0, used > 1500) << used;
    }
}

TEST_F(Look, ComputersShowHowTheyFeel) {
    StartGame({"Ann", "Pip 3"});
    const auto shown = [] {
        ClearStatusLines(1);
        Redraw();
        const int opponent = game.players[2].opponent;
        const auto& pictures = opponentTable.entries[static_cast<std::size_t>(opponent)].pictures;
        for (int mood = 1; mood <= kNumMoods; ++mood) {
            if (Shows(view.layout.infoPanel, *pictures[mood])) return mood;
        }
        return Shows(view.layout.infoPanel, graphics.info) ? 0 : -1;
    };
    EXPECT_EQ(shown(), 0);
    game.currentPlayer = 2;
    const std::tuple<int, int, int> turns[] = {{0, 0, 1}, {50, 0, 1}, {51, 0, 3}, {0, 50, 1}, {0, 51, 2}};
    for (const auto& [ann, pip, mood] : turns) {
        game.players[1].score = ann;
        game.players[2].score = pip;
        RefreshForTurn();
        EXPECT_EQ(shown(), mood) << ann << " to " << pip;
    }
    game.gameOver = true;
    for (const auto& [players, winner, mood] : {std::tuple{2, 2, 4}, {2, 1, 5}, {2, 0, 0}, {3, 1, 0}}) {
        game.numPlayers = static_cast<std::uint16_t>(players);
        game.winner = static_cast<std::uint16_t>(winner);
        EXPECT_EQ(shown(), mood) << "player " << winner << " of " << players << " wins";
    }
}

TEST_F(Look, TheButtonsAreThoseOfWhoIsToMove) {
    StartGame({"Ann", "Pip 3"});
    const Layout& at = view.layout;
    Redraw();
    EXPECT_TRUE(Shows(at.mixButton, graphics.mix));
    EXPECT_TRUE(Shows(at.doneButton, graphics.done));
    EXPECT_TRUE(WasDrawn("Your move Ann."));
    game.currentPlayer = 2;
    RefreshForTurn();
    Redraw();
    EXPECT_TRUE(Shows(at.doneButton, graphics.move));
    ToggleMovePicture();
    EXPECT_TRUE(Shows(at.doneButton, graphics.moveFlashing));
    preferences.tellComputerToMove = false;
    ShowMoveButtonPlainly();
    EXPECT_FALSE(Shows(at.doneButton, graphics.move));
    EXPECT_TRUE(Shows(at.mixButton, graphics.mix));
    game.gameOver = true;
    Redraw();
    EXPECT_FALSE(Shows(at.mixButton, graphics.mix));
}

TEST_F(Look, AComputersRackHidesItsLettersAndValues) {
    StartGame({"Ann", "Pip 3"});
    game.currentPlayer = 2;
    GiveRack(1, "");
    GiveRack(2, "QZ");
    const auto slot = [](int number) {
        const Rect rect = view.layout.RackSlotRect(number);
        std::vector<Colour> pixels;
        for (int y = rect.top; y < rect.bottom; ++y) {
            for (int x = rect.left; x < rect.right; ++x) pixels.push_back(PixelAt({x, y}));
        }
        return pixels;
    };
    Redraw();
    EXPECT_NE(slot(1), slot(2));
    preferences.showComputerLetters = false;
    Redraw();
    EXPECT_EQ(slot(1), slot(2));
    preferences.showComputerLetters = true;
    GiveRack(2, "??");
    preferences.showLetterValues = false;
    const auto hidden = slot(1);
    Redraw();
    EXPECT_EQ(slot(1), hidden) << "hidden letters look like blanks without a value";
}

TEST_F(Look, TheScoreIsShownOnceTheTilesMayBeAMove) {
    StartGame({"Ann", "Bob"});
    GiveRack(1, "CATSDOG");
    const GameState begun = game;
    const std::tuple<const char*, std::function<void()>, const char*> cases[] = {
        {"nothing", [] {}, ""},
        {"one tile in the start row", [] { PutTiles(8, 2, "C"); }, "Score = 3"},
        {"one tile in the start column", [] { PutTiles(3, 8, "C"); }, "Score = 3"},
        {"one tile elsewhere", [] { PutTiles(7, 7, "C"); }, "Score = ?"},
        {"a row beside the start", [] { PutTiles(7, 7, "CAT"); }, "Score = ?"},
        {"a row", [] { PutTiles(8, 7, "CAT"); }, "Score = 10"},
        {"no line", [] { PutTiles(8, 7, "CA/T."); }, "Score = ?"},
        {"thrown back", [] { game.thrownBack = "C"; }, "Score = 0"},
        {"both", [] { game.thrownBack = "C", PutTiles(8, 8, "A"); }, "Score = ?"},
    };
    for (const auto& [state, place, line] : cases) {
        place();
        UpdateScorePreview();
        EXPECT_EQ(game.statusLines[2], line) << state;
        game = begun;
    }
}

}  // namespace
}  // namespace quillet
