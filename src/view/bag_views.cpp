// The views of tiles: what the bag holds, and the swap of a tile of the rack for one of the bag.
#include <algorithm>
#include <optional>
#include <vector>

#include "base/messages.h"
#include "play/rack_tools.h"
#include "store/preferences.h"
#include "view/board_drawing.h"
#include "view/drag.h"
#include "view/graphics.h"
#include "view/pop_up.h"
#include "view/render.h"
#include "view/view_state.h"
#include "view/views.h"

namespace quillet {
namespace {

constexpr int kTilesInRow = 20;

const Layout& At() { return view.layout; }

struct BagTile {
    LetterCode code;
    int place;  // 0-based among the places of the full set
};

// The full set has its places in the order of the codes; a kind's first places are filled as far as the bag
// holds it.
std::vector<BagTile> TilesInBag() {
    LetterCounts inBag{};
    for (int i = 1; i <= game.bag.tilesleft; ++i) ++inBag[game.bag.tiles[i]];
    std::vector<BagTile> tiles;
    int place = 0;
    for (LetterCode code = 'A'; code <= kBlank; ++code) {
        for (int i = 0; i < inBag[code]; ++i) tiles.push_back({code, place + i});
        place += game.settings.letterCounts[code];
    }
    return tiles;
}

int RowsOfFullSet() { return std::max((game.bag.totaltiles + kTilesInRow - 1) / kTilesInRow, 1); }

Size ViewSize(int pitch) { return {kTilesInRow * pitch + 1, RowsOfFullSet() * pitch + 1}; }

Rect TileRect(const Rect& viewRect, int pitch, int place) {
    return Rect::At(
        {viewRect.left + place % kTilesInRow * pitch + 1, viewRect.top + place / kTilesInRow * pitch + 1},
        {pitch - 1, pitch - 1});
}

Rect DrawTiles(const Rect& viewRect, int pitch) {
    const Rect drawn = DrawTileFrame(viewRect);
    for (const BagTile& tile : TilesInBag()) {
        DrawTile(WindowCanvas(), TileRect(viewRect, pitch, tile.place), pitch,
                 {tile.code, preferences.showLetterValues});
    }
    return drawn;
}

Rect BagViewRect() {
    const Rect& box = At().lettersLeftBox;
    const Size size = ViewSize(kSmallBoard.pitch);
    const int top = box.top > 200 ? box.top - size.height : box.bottom;
    return Rect::At({box.left - 1, top}, size);
}

Rect SwapViewRect() {
    const Rect& strip = At().rackTileStrip;
    const Size size = ViewSize(At().pitch);
    const int top = preferences.rackAbove ? strip.bottom + 3 : strip.top - 3 - size.height;
    return Rect::At({strip.left - 8 * At().pitch, top}, size);
}

// Lets the tile follow the pointer over the view until that closes; the bag's tile under it, if any.
std::optional<BagTile> ChooseTile(const Rect& viewRect, int slot, Point pointer) {
    const std::vector<BagTile> tiles = TilesInBag();
    const auto rectOf = [&](const BagTile& tile) { return TileRect(viewRect, At().pitch, tile.place); };
    EraseRackSlot(slot);
    const TileGroup group{.letter = game.Current().rack.positions[slot], .slot = slot};
    DragPicture picture(group);
    auto chosen = tiles.end();
    picture.Show(pointer);
    const bool byHand = WaitUntilClosed([&](Point p) {
        const auto under =
            std::ranges::find_if(tiles, [&](const BagTile& tile) { return rectOf(tile).Contains(p); });
        if (under != chosen) {
            if (chosen != tiles.end()) picture.InvertBackground(rectOf(*chosen));
            if (under != tiles.end()) picture.InvertBackground(rectOf(*under));
            chosen = under;
        }
        picture.Show(p);
        return kForever;
    });
    picture.Remove();
    return !byHand || chosen == tiles.end() ? std::nullopt : std::optional(*chosen);
}

}  // namespace

void ShowBagView() {
    if (game.bag.tilesleft == 0) return;
    if (!preferences.allowHints) {
        return Warning("To see letters in the bag, tick the \"Allow Hints\" option.");
    }
    WindowCanvas().Invert(At().BagViewTrigger().Shrunk(1));
    const Rect drawn = DrawTiles(BagViewRect(), kSmallBoard.pitch);
    WaitUntilClosed([](Point) { return kForever; });
    CloseView(drawn, At().BagViewTrigger());
}

void ShowSwapView(int slot, Point pointer) {
    if (!preferences.allowHints) {
        return Warning("Letter swapping is only allowed after you tick the \"Allow Hints\" option.");
    }
    const Rect viewRect = SwapViewRect();
    const Rect drawn = DrawTiles(viewRect, At().pitch);
    const std::optional<BagTile> chosen = ChooseTile(viewRect, slot, pointer);
    CloseView(drawn, {});
    const LetterCode letter = game.Current().rack.positions[slot];
    if (chosen && chosen->code != letter) SwapWithBag(slot, chosen->code);
    EraseRackSlot(slot);
    DrawRackSlot(game.currentPlayer, slot, game.Current().rack.positions[slot]);
}

}  // namespace quillet
