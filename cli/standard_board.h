// The board that games are played on when no other is asked for.
#pragma once

#include <string_view>

namespace quillet {

// Our own layout: eight ways symmetrical, with 8 triple words on the rim, 21 double words (the start square
// among them) in arcs around the middle, and a fourfold letter near each corner.
constexpr std::string_view kStandardSquares =
    "d..T.d...d.T..d"
    ".q..D.t.t.D..q."
    "..Dd.......dD.."
    "T.d..D.d.D..d.T"
    ".D..t.....t..D."
    "d..D..d.d..D..d"
    ".t...d...d...t."
    "...d...D...d..."
    ".t...d...d...t."
    "d..D..d.d..D..d"
    ".D..t.....t..D."
    "T.d..D.d.D..d.T"
    "..Dd.......dD.."
    ".q..D.t.t.D..q."
    "d..T.d...d.T..d";

}  // namespace quillet
