#include "view/render.h"

#include <algorithm>
#include <array>
#include <string>

#include "base/presentation.h"
#include "game/validation.h"
#include "platform/ticks.h"
#include "store/bitmap_files.h"
#include "store/preferences.h"
#include "view/board_drawing.h"
#include "view/graphics.h"
#include "view/palette.h"
#include "view/panels.h"
#include "view/view_state.h"

namespace quillet {
namespace {

constexpr int kShadow = 3;  // how far a panel's shadow reaches to the right and below

const Layout& At() { return view.layout; }

EditorPanel editorPanel;

Rect Client() { return Rect::At({0, 0}, At().client); }

// --- Painting ---

void PaintSplash() {
    Canvas& canvas = WindowCanvas();
    std::optional<Picture> splash = LoadGraphicsPicture("splash.bmp");
    if (!splash) return;
    FitToPalette(*splash);
    if (!At().bigBoard) {
        canvas.Draw(*splash, Client());
        return;
    }
    canvas.Fill(Client(), kWhite);
    const Size size{splash->Width(), splash->Height()};
    canvas.Draw(
        *splash,
        Rect::At({(At().client.width - size.width) / 2, (At().client.height - size.height) / 2}, size));
}

// The strips of a panel's shadow.
Region ShadowOf(const Rect& panel) {
    Region shadow(panel.Moved(kShadow, kShadow));
    shadow.Subtract(panel);
    return shadow;
}

struct Cover {
    Rect rect;
    bool hasShadow;
};

// What the background does not shine through.
std::vector<Cover> Covers() {
    std::vector<Cover> covers{{VisibleBoardFrame(At()), true}};
    if (game.editorActive) {
        covers.push_back({editorPanel.rect, false});
        return covers;
    }
    for (const Rect& panel : {At().lettersLeftBox, At().rackRect, At().infoPanel, At().visibleNote}) {
        covers.push_back({panel, true});
    }
    if (view.colourDisplay) covers.push_back({At().logoRect, false});
    covers.push_back({At().bagRect, false});
    if (MixButtonShows()) covers.push_back({At().mixButton, false});
    if (DoneButtonShows()) covers.push_back({At().doneButton, false});
    return covers;
}

void PaintBackground(const Region& update) {
    Canvas& canvas = WindowCanvas();
    Region background = update;
    Region shadows;
    const std::vector<Cover> covers = Covers();
    for (const Cover& cover : covers) {
        background.Subtract(cover.rect);
        if (!cover.hasShadow) continue;
        for (const Rect& strip : ShadowOf(cover.rect).rects) {
            if (update.Meets(strip)) shadows.Add(strip);
        }
    }
    for (const Cover& cover : covers) shadows.Subtract(cover.rect);
    for (const Rect& rect : background.rects) {
        if (view.colourDisplay) {
            canvas.Tile(rect, graphics.background);
        } else {
            canvas.Fill(rect, kGrey);
        }
    }
    for (const Rect& rect : shadows.rects) {
        if (view.colourDisplay) {
            canvas.Tile(rect, graphics.shadow);
        } else {
            canvas.Fill(rect, kBlack);
        }
    }
}

void PaintPanels(const Region& update) {
    struct Element {
        Rect rect;
        bool shows;
        void (*draw)();
    };
    const Element elements[] = {
        {At().logoRect, view.colourDisplay, [] { WindowCanvas().Draw(graphics.logo, view.layout.logoRect); }},
        {At().bagRect, true, DrawBag},
        {At().lettersLeftBox, true, DrawLettersLeft},
        {At().rackRect, true, DrawRackPanel},
        {At().mixButton, MixButtonShows(), [] { DrawMixButton(false); }},
        {At().doneButton, DoneButtonShows(), [] { DrawDoneButton(false); }},
        {At().infoPanel, true, DrawInfoPanel},
        {At().visibleNote, true, DrawNotePanel},
    };
    for (const Element& element : elements) {
        if (element.shows && update.Meets(element.rect)) element.draw();
    }
}

// --- Moods ---

int MoodOf(int computer) {
    if (game.numPlayers == 1) return 1;
    int leader = 1;
    int bestOther = game.players[computer == 1 ? 2 : 1].score;
    for (int p = 1; p <= game.numPlayers; ++p) {
        if (game.players[p].score > game.players[leader].score) leader = p;
        if (p != computer) bestOther = std::max(bestOther, game.players[p].score);
    }
    constexpr int kClearLead = 50;
    const int score = game.players[computer].score;
    if (leader != computer) return game.players[leader].score - score > kClearLead ? 3 : 1;
    return score - bestOther > kClearLead ? 2 : 1;
}

// --- Flashing ---

// Two flashes that end in the picture there was.
void Flash(const Region& region) {
    constexpr std::uint32_t kFlashPause = 150;
    for (int inversion = 1; inversion <= 4; ++inversion) {
        for (const Rect& rect : region.rects) WindowCanvas().Invert(rect);
        if (inversion < 4) Pause(kFlashPause);
    }
}

// --- The live score ---

// Can this be a move, as far as the place of its tiles tells?
bool MayBeAMove(const PlacedTiles& placed) {
    const Span& extent = placed.extent;
    const bool inRow = extent.firstRow == extent.lastRow;
    const bool inColumn = extent.firstCol == extent.lastCol;
    if (!inRow && !inColumn) return false;
    if (!game.StartSquareIsEmpty()) return true;
    const bool onStartRow = inRow && extent.firstRow == game.settings.startRow;
    const bool onStartColumn = inColumn && extent.firstCol == game.settings.startCol;
    return onStartRow || onStartColumn;
}

}  // namespace

void PaintWindow(const Region& update) {
    if (++view.paintCount == 1) {
        PaintSplash();
        return;
    }
    Region area = update;
    if (view.paintCount == 2) {
        TakeInvalid();
        area = Region(Client());
        SetCursor(Cursor::Arrow);
    }
    view.colourDisplay = CurrentDisplay().bitsPerPixel > 4;
    PaintBackground(area);
    if (!game.editorActive) {
        PaintPanels(area);
    } else if (editorPanel.draw != nullptr) {
        editorPanel.draw();
    }
    const Rect frame = VisibleBoardFrame(At());
    if (area.Meets(frame)) DrawBoard(area.Bounds());
}

void PaintNow() {
    if (HasInvalid()) PaintWindow(TakeInvalid());
}

void ShowEditorPanel(const EditorPanel& panel) { editorPanel = panel; }

void InvalidateWindow() { Invalidate(Client()); }

void InvalidateBoard() {
    Rect area = VisibleBoardFrame(At());
    area.right += kShadow;
    area.bottom += kShadow;
    Invalidate(area);
}

void InvalidateButtons() {
    Invalidate(At().doneButton);
    Invalidate(At().mixButton);
}

void InvalidateRack() { Invalidate(At().rackTileStrip); }

void InvalidatePlayerRow(int player) { Invalidate(At().playerRow[player]); }

void InvalidateInfoPanel() { Invalidate(At().infoPanel); }

void RedrawTiles() {
    ForEachSquare([](BoardPosition at, const Square& square) {
        if (square.IsEmpty() || !IsTileCode(square.letter)) return;
        DrawTileOnBoard(at.row, at.col, square.letter);
        if (square.IsLetterSquare() && square.letter == kBlank) DrawPlayedBlank(at.row, at.col);
    });
    if (game.gameStarted) DrawRack();
}

void RedrawHintLock() {
    Invalidate(At().BagViewTrigger());
    PaintNow();
}

void ShowMoveButtonPlainly() {
    view.moveFlashes = false;
    Invalidate(At().doneButton);
    PaintNow();
}

void MarkSquareAsked(int row, int col) {
    WindowCanvas().Invert(At().SquareRect(row, col).Shrunk(view.colourDisplay ? 3 : 2));
}

void UnmarkSquareAsked(int row, int col) {
    Invalidate(At().SquareRect(row, col));
    PaintNow();
}

Point InfoPanelMiddle() { return {(At().infoPanel.left + At().infoPanel.right) / 2, At().client.height / 2}; }

void DescribeGame() {
    std::string text;
    if (game.gameStarted) {
        for (int p = 1; p <= game.numPlayers; ++p) {
            const Player& player = game.players[p];
            text += std::string(player.name.View()) + " " + std::to_string(player.score) + ". ";
        }
        if (!game.Current().isComputer || preferences.showComputerLetters) {
            std::string rack(game.Current().rack.Codes().View());
            std::ranges::replace(rack, kBlank, '?');
            text += "Rack: " + rack + ". ";
        }
    }
    for (const StatusLine& line : game.statusLines) {
        if (!line.empty()) text += std::string(line.View()) + " ";
    }
    DescribeWindow(text);
}

// --- What the rules ask of the screen ---

void ShowStatusLine(int line, std::string_view text) {
    if (MainWindowExists() && view.paintCount > 1 && !game.editorActive) DrawStatusLine(line, text);
}

void DrawBoardTile(int row, int col, char letter) {
    DrawTileOnBoard(row, col, letter);
    if (IsTileCode(letter) && preferences.playTileClicks) PlaySoundFile(true, "tile.wav");
}

void FlashSquares(std::span<const BoardPosition> squares) {
    Region region;
    for (const BoardPosition& at : squares) {
        region.Add(At().SquareRect(at.row, at.col).Shrunk(view.colourDisplay ? 2 : 0));
    }
    Flash(region);
}

void FlashLettersLeft() {
    Rect box = At().lettersLeftBox.Shrunk(1);
    box.right -= 14;
    Flash(box);
}

void RefreshForTurn() {
    if (game.Current().isComputer) {
        view.opponentMood = MoodOf(game.currentPlayer);
        view.moveFlashes = false;
    } else {
        view.typingDirection = Direction::Right;
    }
    view.startMarkIsNext = true;
    // Whose turn it is shows on every panel; the tiles on the board have been drawn as they came.
    InvalidateInfoPanel();
    InvalidateButtons();
    for (const Rect& rect : {At().visibleNote, At().rackRect, At().lettersLeftBox, At().bagRect})
        Invalidate(rect);
}

void UpdateScorePreview() {
    ClearStatusLines();
    const PlacedTiles placed = CollectPlacedTiles();
    if (!game.thrownBack.empty()) {
        SetStatusLine(2, placed.count == 0 ? "Score = 0" : "Score = ?");
    } else if (placed.count > 0) {
        SetStatusLine(2, MayBeAMove(placed) ? "Score = " + std::to_string(ScoreMove(false, placed))
                                            : std::string("Score = ?"));
    }
}

void RedrawAfterMove(int player) {
    InvalidatePlayerRow(player);
    InvalidateButtons();
    for (const Rect& rect : {At().rackRect, At().lettersLeftBox, At().bagRect}) Invalidate(rect);
}

void RedrawPanels() {
    for (const Rect& rect : {At().infoPanel, At().visibleNote, At().rackRect, At().lettersLeftBox,
                             At().bagRect, At().doneButton, At().mixButton}) {
        Invalidate(rect);
    }
    PaintNow();
}

void RedrawWindow() {
    InvalidateWindow();
    PaintNow();
}

void RedrawClock() {
    Invalidate(At().clockRow);
    PaintNow();
}

void RedrawClockDigits() { DrawClockDigits(); }

void RedrawRack() { DrawRackPanel(); }

void RedrawLettersLeft() {
    DrawLettersLeft();
    DrawBag();
}

void ToggleMovePicture() {
    view.moveFlashes = !view.moveFlashes;
    if (DoneButtonShows()) DrawDoneButton(false);
}

void BlinkStartMark() {
    const int row = game.settings.startRow;
    const int col = game.settings.startCol;
    if (view.startMarkIsNext) {
        DrawStartMark(row, col);
    } else {
        DrawSquareWithoutStartMark(row, col);
    }
    view.startMarkIsNext = !view.startMarkIsNext;
}

void ShowOpponentMood(int mood) {
    view.opponentMood = mood;
    if (MainWindowExists()) DrawInfoPanel();
}

void ShowWaitCursor() { SetCursor(Cursor::Wait); }
void ShowArrowCursor() { SetCursor(Cursor::Arrow); }

bool PointerIsOverStatistics() { return At().statisticsBox.Contains(PointerPosition()); }

}  // namespace quillet
