#include "view/layout.h"

#include <algorithm>

namespace quillet {
namespace {

constexpr int kMargin = 10;  // of the panels from the client area's left edge
constexpr int kRowHeight = 14;
constexpr Size kLettersLeftSize{115, 19};
constexpr Size kBoxSize{16, 13};
constexpr int kSmallScreenWidth = 640;
constexpr int kSmallScreenHeight = 480;

int RoundHalfUp(double number) { return static_cast<int>(number + 0.5); }

// What lies under the same name in both board sizes.
struct Measures {
    int rackTop, rackGap, stripLeft, stripTop, clockDrop, boxRise;
};
constexpr Measures kSmallMeasures{7, 2, 5, 4, 84, 14};
constexpr Measures kBigMeasures{10, 5, 6, 5, 126, 70};

void PlacePanels(Layout& layout, const PictureSizes& sizes, Point infoCorner) {
    layout.infoPanel = Rect::At(infoCorner, sizes.info);
    layout.infoTextArea = layout.infoPanel.Shrunk(6);
    const Point noteCorner{kMargin, layout.infoPanel.bottom + 8};
    layout.notePanel = Rect::At(noteCorner, sizes.note);
    layout.visibleNote = Rect::At(noteCorner, layout.bigBoard ? sizes.note : sizes.smallNote);
}

void PlaceBoard(Layout& layout, int top) {
    const int extent = kBoardSize * layout.pitch + 1;
    const int room = layout.client.width - layout.notePanel.right - extent;
    layout.boardFrame = Rect::At({layout.notePanel.right + room / 2, top}, {extent, extent});
}

void PlaceRack(Layout& layout, int top) {
    const int left = layout.boardFrame.left + (layout.boardFrame.Width() - layout.rackRect.Width()) / 2;
    layout.rackRect = layout.rackRect.MovedTo({left, top});
}

void PlaceButtons(Layout& layout, const PictureSizes& sizes, int doneTop, int mixTop) {
    const bool big = layout.bigBoard;
    const int mixLeft = big ? layout.rackRect.right + 20 : layout.boardFrame.right - sizes.mix.width;
    const int doneLeft = big ? layout.rackRect.left - sizes.done.width - 21 : layout.boardFrame.left - 1;
    layout.mixButton = Rect::At({mixLeft, mixTop}, sizes.mix);
    layout.doneButton = Rect::At({doneLeft, doneTop}, sizes.done);
}

void ArrangeRackAbove(Layout& layout, const PictureSizes& sizes, const Measures& measures) {
    const auto [width, height] = layout.client;
    layout.logoRect = Rect::At({0, height - sizes.logo.height}, sizes.logo);
    layout.lettersLeftBox = Rect::At({kMargin, 25}, kLettersLeftSize);
    layout.bagRect = Rect::At({layout.lettersLeftBox.right + 10, 6}, sizes.bag);
    PlacePanels(layout, sizes, {kMargin, layout.bagRect.bottom + 5});
    PlaceBoard(layout, height - 5 - (kBoardSize * layout.pitch + 1));
    PlaceRack(layout, measures.rackTop);
    const int buttonTop = layout.bigBoard ? 10 : 3;
    PlaceButtons(layout, sizes, buttonTop, buttonTop);
}

void ArrangeRackBelow(Layout& layout, const PictureSizes& sizes, const Measures& measures) {
    const int height = layout.client.height;
    layout.logoRect = Rect::At({0, 0}, sizes.logo);
    PlacePanels(layout, sizes, {kMargin, layout.logoRect.bottom + 10});
    PlaceBoard(layout, 5);
    PlaceRack(layout, height - 5 - layout.rackRect.Height() - measures.rackGap);
    const auto buttonTop = [&](Size button) {
        return height - 5 - button.height + 3 - (layout.bigBoard ? 5 : 0);
    };
    PlaceButtons(layout, sizes, buttonTop(sizes.done), buttonTop(sizes.mix));
    layout.lettersLeftBox = Rect::At({kMargin, height - 38}, kLettersLeftSize);
    layout.bagRect = Rect::At({layout.lettersLeftBox.right + 10, height - sizes.bag.height}, sizes.bag);
}

void PlaceRows(Layout& layout, const Measures& measures) {
    layout.rackTileStrip =
        Rect::At({layout.rackRect.left + measures.stripLeft, layout.rackRect.top + measures.stripTop},
                 {kRackPositions * layout.pitch + 1, layout.pitch + 1});
    const Rect& note = layout.notePanel;
    for (int k = 1; k <= kMaxPlayers; ++k) {
        const int top = note.top + 26 + (k - 1) * kRowHeight;
        layout.playerRow[k] = {note.left + 13, top, note.right, top + kRowHeight};
    }
    layout.clockRow = Rect::At(layout.playerRow[1].Corner(), {64, kRowHeight + kBoxSize.height})
                          .Moved(0, measures.clockDrop);
    const Rect& visible = layout.visibleNote;
    layout.statisticsBox =
        Rect::At({visible.right - kBoxSize.width, visible.bottom - kBoxSize.height}, kBoxSize);
    layout.bonusWordsBox = layout.statisticsBox.Moved(0, -measures.boxRise);
}

}  // namespace

Rect Layout::StatusLineBox(int line) const {
    const int top = infoTextArea.top + 4 + (line - 1) * 18;
    return {infoTextArea.left + 1, top, infoTextArea.right - 1, top + 18};
}

Rect Layout::SquareRect(int row, int col) const {
    return Rect::At({boardFrame.left + (col - 1) * pitch + 1, boardFrame.top + (row - 1) * pitch + 1},
                    {pitch - 1, pitch - 1});
}

Rect Layout::RackSlotRect(int slot) const {
    return Rect::At({rackTileStrip.left + (slot - 1) * pitch + 1, rackTileStrip.top + 1},
                    {pitch - 1, pitch - 1});
}

Layout ComputeLayout(bool bigBoard, bool rackAbove, const PictureSizes& sizes) {
    Layout layout{
        .bigBoard = bigBoard, .pitch = SizeInfo(bigBoard).pitch, .client = SizeInfo(bigBoard).client};
    const Measures& measures = bigBoard ? kBigMeasures : kSmallMeasures;
    const Size rack = bigBoard
                          ? sizes.rack
                          : Size{RoundHalfUp(sizes.rack.width * 0.89), RoundHalfUp(sizes.rack.height * 0.88)};
    layout.rackRect = Rect::At({0, 0}, rack);
    (rackAbove ? ArrangeRackAbove : ArrangeRackBelow)(layout, sizes, measures);
    PlaceRows(layout, measures);
    return layout;
}

std::optional<BoardPosition> SquareAt(const Layout& layout, Point p) {
    if (!layout.boardFrame.Contains(p)) return std::nullopt;
    const int row = (p.y - layout.boardFrame.top) / layout.pitch + 1;
    const int col = (p.x - layout.boardFrame.left) / layout.pitch + 1;
    if (!game.bounds.Contains(row, col)) return std::nullopt;
    return BoardPosition{static_cast<std::int16_t>(row), static_cast<std::int16_t>(col)};
}

int RackSlotAt(const Layout& layout, Point p) {
    return std::min((p.x - layout.rackTileStrip.left) / layout.pitch + 1, kRackPositions);
}

Rect VisibleBoardFrame(const Layout& layout) {
    const int byRows = (kBoardSize - game.settings.boardRows) / 2 * layout.pitch;
    const int byCols = (kBoardSize - game.settings.boardCols) / 2 * layout.pitch;
    const Rect& frame = layout.boardFrame;
    return {frame.left + byCols, frame.top + byRows, frame.right - byCols, frame.bottom - byRows};
}

bool BigBoardFits(const Display& display, int zoom) {
    return display.size.width / zoom > kSmallScreenWidth && display.size.height / zoom > kSmallScreenHeight;
}

int ComfortableZoom(const Display& display) {
    constexpr int kPercent = 95;  // of the desktop that the window may take
    const int width = display.workArea.Width() * kPercent / 100 - 2 * display.frameWidth;
    const int height = display.workArea.Height() * kPercent / 100 - 2 * display.frameWidth -
                       display.captionHeight - display.menuHeight;
    return std::max(1, std::min(width / kBigBoard.client.width, height / kBigBoard.client.height));
}

Point ClientCorner(const Display& display, Size client, Point remembered) {
    // Compared so that no remembered number, whatever it is, overflows.
    const bool onScreen = remembered.x >= 0 && remembered.x <= display.size.width - client.width &&
                          remembered.y >= 0 && remembered.y <= display.size.height - client.height;
    if (onScreen) return remembered;
    const int frame = display.frameWidth;
    const int above = display.captionHeight + display.menuHeight;
    const Size window{client.width + 2 * frame, client.height + 2 * frame + above};
    Point corner{-frame, -frame};
    if (display.size.width > kSmallScreenWidth || display.size.height > kSmallScreenHeight) {
        const int fullScreenClient = display.workArea.Height() - display.captionHeight;
        corner = {(display.size.width - window.width) / 2, (fullScreenClient + 20 - window.height) / 2};
    }
    // A window that is higher than the screen still shows its title bar.
    return {corner.x + frame, std::max(corner.y, -frame) + frame + above};
}

}  // namespace quillet
