// The sounds of the game. All are in G, on the five notes G A B D E, and stand in the same room.
#pragma once

#include <span>

#include "instruments.h"

namespace quillet {

struct Piece {
    const char* file;  // in Data/Sounds, without ".wav"
    double seconds;
    double loudness;  // of its loudest moment, in LUFS
    int channels;
    double room;  // how much of the room is heard
    void (*play)(Track&);
};

std::span<const Piece> Pieces();

Wave MakeWave(const Piece& piece);

}  // namespace quillet
