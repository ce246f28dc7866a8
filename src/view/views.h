// The views that pop up over the window while the button is held, or until the next click: what the bag
// holds, a tile to swap with it, statistics, bonus words, the palette, a player's history.
//
// None keeps anything after it closes. Bag, swap and history are hints: they ask for that option.
#pragma once

#include "platform/geometry.h"

namespace quillet {

void ShowBagView();

// The tile in that slot (1..8) of the rack, which must hold one, follows the pointer; let go on a tile of the
// bag, it is swapped for that.
void ShowSwapView(int slot, Point pointer);

void ShowStatisticsView();
void ShowBonusWordsView();
void ShowPaletteView();  // beeps unless the display has one

// The moves of that player, one of which can be chosen to go back or forth to.
void ShowHistoryView(int player);

}  // namespace quillet
