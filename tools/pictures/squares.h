// The things that lie on blocked squares, for squares.cpp.
#pragma once

#include <QPainter>
#include <array>

namespace quillet {

constexpr int kSquareUnits = 26;
constexpr int kBlockedCount = 6;

using Motif = void (*)(QPainter&);  // draws over the ground of a blocked square
using Motifs = std::array<Motif, kBlockedCount>;

// Of the writing desk: what lies on it, and its bare cloth, which shapes boards.
void PaintBareDesk(QPainter& painter);
extern const Motifs kDeskMotifs;
extern const Motifs kDiamondMotifs;  // the bare desk first: it is what this board is cut with
extern const Motifs kKitchenMotifs;
extern const Motifs kSeaMotifs;
extern const Motifs kNurseryMotifs;
extern const Motifs kHouseMotifs;  // walls first
extern const Motifs kNightSkyMotifs;

}  // namespace quillet
